#include "scanners.hpp"

#include <support/text.hpp>

using namespace std::literals;
using test::ScanCase;
using test::Scanner;

namespace {

void check(char const *name, Scanner scanner, std::initializer_list<ScanCase> cases) {
    for (ScanCase const &item : cases) {
        EXPECT_EQ(test::scan(scanner, item.text), item.expected) << name << " of \"" << item.text << "\": " << item.why;
    }
}

#define CHECK(Name, ...) check(#Name, quill___Skip##Name, __VA_ARGS__)

// Several names of one rule.
struct Named {
    char const *name;
    Scanner scanner;
};
#define NAMED(Name)                                                                                                    \
    Named { #Name, quill___Skip##Name }

void checkAll(std::initializer_list<Named> names, std::initializer_list<ScanCase> cases) {
    for (Named const &named : names) check(named.name, named.scanner, cases);
}

} // namespace

// Every scanner

TEST(QuillSkip, NothingMatchesNoText) {
    ASSERT_EQ(test::scanners().size(), 115u);
    for (test::ScannerRow const &row : test::scanners()) EXPECT_EQ(row.scan(nullptr, 0), 0) << row.name;
}

TEST(QuillSkip, TheSampleIsAWholeMatch) {
    for (test::ScannerRow const &row : test::scanners()) {
        int64_t const expected = row.name == "Accept" ? 4 : static_cast<int64_t>(row.sample.size());
        EXPECT_EQ(test::scan(row.scan, row.sample), expected) << row.name;
    }
}

TEST(QuillSkip, TheLengthIsTheEnd) {
    // What stands behind the length doesn't count, though it would go on.
    coChar const text[] = U"aaaa";
    EXPECT_EQ(quill___SkipToken(text, 2), 2);
    EXPECT_EQ(quill___SkipQuotedString(U"\"a\"", 2), 0);
    EXPECT_EQ(quill___SkipUser(U"a%41", 3), 1);
    EXPECT_EQ(quill___SkipSemi(U"  ;", 2), 0);
    EXPECT_EQ(quill___SkipWkday(U"Mon", 2, nullptr), 0);
    EXPECT_EQ(quill___SkipHostPort(U"h:5", 2), 1);
}

TEST(QuillSkipDeathTest, PreconditionsOfEveryScanner) {
    for (test::ScannerRow const &row : test::scanners()) {
        EXPECT_ABORT(row.scan(U"a", -1), row.unit, "length >= 0");
        EXPECT_ABORT(row.scan(nullptr, 1), row.unit, "chs || length == 0");
    }
}

TEST(QuillSkipDeathTest, PreconditionsOnWhatIsLookedFor) {
    constexpr auto unit = "source/quill/quill_skip";
    coChar const beyond = 0x110000;
    EXPECT_ABORT(quill___SkipChar(U"a", 1, beyond), unit, "CO_CHAR_OK( ch )");
    EXPECT_ABORT(quill___SkipChar(nullptr, 0, beyond), unit, "CO_CHAR_OK( ch )");
    EXPECT_ABORT(quill___SkipSwsCharSws(U"a", 1, beyond), unit, "CO_CHAR_OK( ch )");
    EXPECT_ABORT(quill___SkipSwsChar(U"a", 1, beyond), unit, "CO_CHAR_OK( ch )");
    EXPECT_ABORT(quill___SkipCharSws(U"a", 1, ~0u), unit, "CO_CHAR_OK( ch )");
    EXPECT_ABORT(quill___SkipChars(U"a", 1, U"a", -1), unit, "skipLength >= 0");
    EXPECT_ABORT(quill___SkipChars(U"a", 1, nullptr, 1), unit, "skipChs || skipLength == 0");
    EXPECT_ABORT(quill___SkipCharsAsciiCaseFold(U"a", 1, U"a", -1), unit, "skipLength >= 0");
    EXPECT_ABORT(quill___SkipCharsAsciiCaseFold(U"a", 1, nullptr, 1), unit, "skipChs || skipLength == 0");
}

// Characters

TEST(QuillSkip, Char) {
    EXPECT_EQ(quill___SkipChar(U"ab", 2, U'a'), 1);
    EXPECT_EQ(quill___SkipChar(U"ab", 2, U'b'), 0);
    EXPECT_EQ(quill___SkipChar(U"A", 1, U'a'), 0);
    EXPECT_EQ(quill___SkipChar(nullptr, 0, U'a'), 0);
    EXPECT_EQ(quill___SkipChar(U"\U0010FFFF", 1, 0x10FFFF), 1);
    EXPECT_EQ(quill___SkipChar(U"\0", 1, 0), 1);
}

TEST(QuillSkip, Chars) {
    struct {
        std::u32string_view text, sought;
        int64_t exact, folded;
        char const *why;
    } const cases[] = {
        {U"received=x", U"received", 8, 8, "the beginning of the text"},
        {U"RECEIVED=x", U"received", 0, 8, "upper case in the text"},
        {U"received=x", U"RECEIVED", 0, 8, "upper case in what is sought"},
        {U"receive", U"received", 0, 0, "the text is too short"},
        {U"receivex", U"received", 0, 0, "the last one differs"},
        {U"x", U"", 0, 0, "nothing sought"},
        {U"", U"", 0, 0, "nothing at all"},
        {U"\u00C9", U"\u00E9", 0, 0, "no folding beyond ASCII"},
        {U"\u00E9", U"\u00E9", 1, 1, "but the same is the same"},
        {U"\u212A", U"k", 0, 0, "the Kelvin sign is no K"},
        {U"@[`{", U"`{@[", 0, 0, "neighbours of the letters are not folded"},
        {U"[", U"{", 0, 0, "32 apart, but no letters"},
        {U"@", U"`", 0, 0, "32 apart, but no letters"},
    };
    for (auto const &item : cases) {
        auto const scanned = [&](auto scanner) {
            return scanner(item.text.data(), static_cast<int64_t>(item.text.size()), item.sought.data(),
                           static_cast<int64_t>(item.sought.size()));
        };
        EXPECT_EQ(scanned(quill___SkipChars), item.exact) << item.why;
        EXPECT_EQ(scanned(quill___SkipCharsAsciiCaseFold), item.folded) << item.why;
    }
    EXPECT_EQ(quill___SkipChars(U"a", 1, nullptr, 0), 0);
    EXPECT_EQ(quill___SkipCharsAsciiCaseFold(U"a", 1, nullptr, 0), 0);
}

// Blanks and separators

TEST(QuillSkip, Blanks) {
    checkAll({NAMED(Sws), NAMED(Lws)}, {{" \t x", 3, "SP and HTAB"},
                                        {"x ", 0, "none at the start"},
                                        {"\r\n ", 0, "a line end is no blank"},
                                        {" \r\n ", 1, "nor behind one"},
                                        {"   ", 3, "nothing else"},
                                        {"\u00A0", 0, "nor is the no-break space"},
                                        {"\v", 0, "nor other white space"}});
}

TEST(QuillSkip, SeparatorsInBlanks) {
    struct {
        Named named;
        char ch;
    } const rows[] = {{NAMED(Hcolon), ':'}, {NAMED(Colon), ':'},  {NAMED(Comma), ','},
                      {NAMED(Equal), '='},  {NAMED(Semi), ';'},   {NAMED(Slash), '/'},
                      {NAMED(Star), '*'},   {NAMED(Lparen), '('}, {NAMED(Rparen), ')'}};
    for (auto const &[named, ch] : rows) {
        std::string const c(1, ch);
        std::string const twice = c + c, inBlanks = "  " + c + "  x", alone = " \t" + c, after = c + "\t ",
                          lineEnd = c + "\r\n ";
        check(named.name, named.scanner,
              {{inBlanks, 5, "blanks on both sides"},
               {alone, 3, "blanks before only"},
               {after, 3, "blanks behind only"},
               {c, 1, "alone"},
               {twice, 1, "once only"},
               {lineEnd, 1, "a line end is no blank"},
               {"  ", 0, "blanks alone"},
               {" x", 0, "another character"},
               {"@", 0, "another character at once"}});
        for (auto const scanner : {quill___SkipSwsCharSws, quill___SkipSwsChar, quill___SkipCharSws}) {
            EXPECT_EQ(scanner(U"x", 1, static_cast<coChar>(ch)), 0);
        }
    }
}

TEST(QuillSkip, SeparatorsWithBlanksOnOneSide) {
    CHECK(Laquot, {{" <x", 2, "blanks before"},
                   {"< x", 1, "the blanks behind stay"},
                   {"\t \t<", 4, "any number of blanks"},
                   {" ", 0, "blanks alone"},
                   {" >", 0, "another character"}});
    CHECK(Ldquot, {{" \"x", 2, "blanks before"}, {"\" x", 1, "the blanks behind stay"}, {"  x\"", 0, "not the first"}});
    CHECK(Raquot,
          {{"> ;", 2, "blanks behind"}, {">", 1, "alone"}, {" >", 0, "no blanks before"}, {">\t \t>", 4, "once"}});
    CHECK(Rdquot, {{"\" ;", 2, "blanks behind"}, {"\"", 1, "alone"}, {" \"", 0, "no blanks before"}});
}

TEST(QuillSkip, GivenCharacterWithBlanks) {
    EXPECT_EQ(quill___SkipSwsCharSws(U" x y", 4, U'x'), 3);
    EXPECT_EQ(quill___SkipSwsCharSws(U" x y", 4, U'y'), 0);
    EXPECT_EQ(quill___SkipSwsChar(U" x y", 4, U'x'), 2);
    EXPECT_EQ(quill___SkipSwsChar(U"  ", 2, U'x'), 0);
    EXPECT_EQ(quill___SkipCharSws(U"x y", 3, U'x'), 2);
    EXPECT_EQ(quill___SkipCharSws(U" x y", 4, U'x'), 0);
    EXPECT_EQ(quill___SkipSwsCharSws(U" \u00E9 ", 3, 0xE9), 3);
    EXPECT_EQ(quill___SkipSwsCharSws(U"   ", 3, U' '), 0) << "the blanks have taken it";
    EXPECT_EQ(quill___SkipCharSws(U"   ", 3, U' '), 3);
}

// Runs

TEST(QuillSkip, Token) {
    checkAll({NAMED(Token),          NAMED(Branch),           NAMED(ContentCoding), NAMED(DispositionType),
              NAMED(EmParam),        NAMED(EventReasonValue), NAMED(Handling),      NAMED(MessageHeaderName),
              NAMED(Method),         NAMED(OptionTag),        NAMED(PriorityValue), NAMED(PrivValue),
              NAMED(ProtocolName),   NAMED(ProtocolVersion),  NAMED(Pseudonym),     NAMED(Purpose),
              NAMED(ReasonProtocol), NAMED(SubstateValue),    NAMED(Tag),           NAMED(Transport)},
             {{"abc", 3, "whole"},
              {"ab c", 2, "up to the blank"},
              {" abc", 0, "no blanks before"},
              {"a.b-!%*_+`'~9Z", 14, "all the characters there are"},
              {"*", 1, "an asterisk is a token"},
              {"%4", 2, "a percent sign is a character like any other"},
              {"a,b", 1, "up to the comma"},
              {"a=b", 1, "up to the equal sign"},
              {"caf\u00E9", 3, "ASCII only"},
              {"\u0130x", 0, "ASCII only"},
              {"a\0b"sv, 1, "NUL is no member"},
              {"\"a\"", 0, "no quotes"},
              {"\x7F", 0, "DEL is no member"}});
}

TEST(QuillSkip, RunsWithoutDots) {
    checkAll({NAMED(TokenNodot), NAMED(Atom)}, {{"a.b", 1, "up to the dot"},
                                                {".a", 0, "a dot first"},
                                                {"a-!%*_+`'~9Z@", 12, "all the characters there are"},
                                                {"a b", 1, "up to the blank"},
                                                {"\u00E9", 0, "ASCII only"}});
}

TEST(QuillSkip, Word) {
    CHECK(Word, {{"a-.!%*_+`'~()<>:\\\"/[]?{}9", 25, "all the characters there are"},
                 {"a@b", 1, "up to the at sign"},
                 {"a;b", 1, "up to the semicolon"},
                 {"a=b", 1, "up to the equal sign"},
                 {"a,b", 1, "up to the comma"},
                 {"#", 0, "no number sign"},
                 {"$", 0, "no dollar sign"},
                 {"&", 0, "no ampersand"},
                 {" a", 0, "no blanks"},
                 {"a\u00E9", 1, "ASCII only"}});
}

TEST(QuillSkip, Digits) {
    checkAll({NAMED(Digits), NAMED(DeltaSeconds), NAMED(ReasonCause), NAMED(Ttl), NAMED(Port)},
             {{"0", 1, "zero"},
              {"0123x", 4, "up to the letter"},
              {"99999999999999999999999999", 26, "the value doesn't matter"},
              {"-1", 0, "no sign"},
              {"+1", 0, "no sign"},
              {" 1", 0, "no blanks"},
              {"\u0661\u0662", 0, "Arabic digits are none"},
              {"\uFF11", 0, "full-width digits are none"},
              {"x", 0, "no digit"}});
}

// Dotted runs

TEST(QuillSkip, DottedRuns) {
    checkAll({NAMED(DotAtom), NAMED(EventType)}, {{"a.b.c", 5, "whole"},
                                                  {"a.b.", 3, "a dangling dot is left"},
                                                  {"a..b", 1, "so are two"},
                                                  {"a", 1, "no dot"},
                                                  {".a", 0, "a dot first"},
                                                  {"a.b@c", 3, "up to another character"},
                                                  {"a. b", 1, "no blanks"},
                                                  {"a.\u00E9", 1, "ASCII only"}});
    CHECK(Rvalue, {{"a.b", 3, "whole"},
                   {"a.b.c", 3, "one dot only"},
                   {"a.", 0, "both parts"},
                   {"a", 0, "both parts and the dot"},
                   {".b", 0, "both parts"},
                   {"a..b", 0, "both parts around one dot"},
                   {"dsn.flash-override x", 18, "up to the blank"}});
}

// Texts

TEST(QuillSkip, QuotedString) {
    checkAll({NAMED(QuotedString), NAMED(ReasonText), NAMED(WarnText)},
             {{"\"\"", 2, "empty"},
              {" \"\"", 3, "empty, a blank before"},
              {" \"a\\\"b\" x", 7, "a quote escaped"},
              {"\"abc", 0, "not closed"},
              {"\"", 0, "nothing behind the quote"},
              {"\"a\\", 0, "nothing behind the backslash"},
              {"\"a\\\"", 0, "the closing quote is escaped"},
              {"\"a\\\\\"", 5, "the backslash is escaped"},
              {"\"a\rb\"", 0, "CR"},
              {"\"a\nb\"", 0, "LF"},
              {"\"a\\\rb\"", 0, "CR escaped"},
              {"\"a\\\nb\"", 0, "LF escaped"},
              {"\"\x01\x7F\0\"", 0, "cut by the literal's NUL: not closed"},
              {"\"\x01\x7F\0\""sv, 5, "other controls"},
              {"\"\\\0\""sv, 4, "a control escaped"},
              {"\"caf\u00E9 \U0001F4DE\"", 8, "beyond ASCII"},
              {"\"\\\u00E9\"", 4, "beyond ASCII, escaped"},
              {"\"a\" ", 3, "blanks behind are left"},
              {"\"a\"b\"", 3, "the first closing quote"},
              {"a\"b\"", 0, "not at the start"},
              {"  ", 0, "blanks alone"}});
}

TEST(QuillSkip, Comment) {
    CHECK(Comment, {{"(a(b)c)", 7, "nested"},
                    {"(a(b)c", 0, "not closed"},
                    {"(a) x", 4, "the blank behind is taken"},
                    {" ( a ) ", 7, "blanks everywhere"},
                    {"()", 2, "empty"},
                    {"(((((())))))", 12, "deep"},
                    {"((((((()))))", 0, "deep, one not closed"},
                    {"(a))", 3, "one too many"},
                    {"( a ( b ) c ) d", 14, "blanks around the inner one"},
                    {"(a\x7F)", 0, "DEL"},
                    {"(a\rb)", 0, "CR"},
                    {"(a\nb)", 0, "LF"},
                    {"(a\x01)", 0, "a control"},
                    {"(a\tb)", 5, "HTAB is a blank"},
                    {"(\\()", 4, "a parenthesis escaped"},
                    {"(\\))", 4, "the other one escaped"},
                    {"(\\)", 0, "escaped, not closed"},
                    {"(\\", 0, "nothing behind the backslash"},
                    {"(\\\r)", 0, "CR escaped"},
                    {"(\\\n)", 0, "LF escaped"},
                    {"(\\\x7F)", 4, "DEL escaped"},
                    {"(\\\\)", 4, "the backslash escaped"},
                    {"(caf\u00E9 \u0080)", 8, "beyond ASCII"},
                    {"(!\"#$%&'*+,[]^~)", 16, "the ends of the ranges"},
                    {"a(b)", 0, "not at the start"},
                    {"(", 0, "open alone"},
                    {" ", 0, "a blank alone"}});
}

TEST(QuillSkip, CommentOfAnyDepth) {
    std::u32string const deep = std::u32string(100000, U'(') + std::u32string(100000, U')');
    EXPECT_EQ(test::scan(quill___SkipComment, deep), 200000);
    EXPECT_EQ(test::scan(quill___SkipComment, std::u32string_view(deep).substr(1)), 199998);
    EXPECT_EQ(test::scan(quill___SkipComment, std::u32string_view(deep).substr(0, 199999)), 0);
}

TEST(QuillSkip, TextUtf8Trim) {
    checkAll({NAMED(Organization), NAMED(Subject)}, {{"Hello  world  ", 12, "blanks at the end are left"},
                                                     {"Hello", 5, "one word"},
                                                     {" Hello", 0, "no blanks first"},
                                                     {"a \t b", 5, "blanks within"},
                                                     {"a\r\n b", 1, "up to a line end"},
                                                     {"a \x01", 1, "up to the blanks before a control"},
                                                     {"a\x7F", 1, "DEL is a control"},
                                                     {"\x7F", 0, "DEL is a control"},
                                                     {"\u65E5\u672C \u8A9E", 4, "beyond ASCII"},
                                                     {"\u0080", 1, "beyond ASCII"},
                                                     {"!\"#;,<>@\\", 9, "any printable character"}});
}

TEST(QuillSkip, DisplayName) {
    CHECK(DisplayName, {{"Front Desk <sip:x>", 11, "tokens, and the blank behind"},
                        {"\"Front Desk\" <sip:x>", 12, "a quoted string, without the blank behind"},
                        {" \"a\"<", 4, "a blank before the quoted string"},
                        {" a <", 0, "no blank before a token"},
                        {"a<", 1, "no blank behind"},
                        {"a  b\t", 5, "any blanks"},
                        {"<sip:x>", 0, "no name"},
                        {"\"a", 0, "not closed"},
                        {"a \"b\"", 2, "no quoted string behind tokens"},
                        {"\"a\"b", 3, "no token behind a quoted string"},
                        {"sip:x", 3, "as far as it goes"},
                        {"caf\u00E9", 3, "tokens are ASCII"}});
}

// Escaped runs

TEST(QuillSkip, EscapedRuns) {
    checkAll({NAMED(User), NAMED(Password), NAMED(Pvalue), NAMED(Uric)}, {{"aZ9-_.!~*'()", 12, "unreserved"},
                                                                          {"%41%c3%A9", 9, "escapes"},
                                                                          {"a%4", 1, "half an escape"},
                                                                          {"a%", 1, "a percent sign"},
                                                                          {"a%4gb", 1, "no hexadecimal digits"},
                                                                          {"a%g4b", 1, "no hexadecimal digits"},
                                                                          {"%%41", 0, "not an escape"},
                                                                          {"%41%4", 3, "the second one is none"},
                                                                          {"\u00E9", 0, "ASCII only"},
                                                                          {"a b", 1, "no blanks"},
                                                                          {"\"", 0, "no quote"},
                                                                          {"<", 0, "no bracket"},
                                                                          {"#", 0, "no number sign"}});
    CHECK(
        User,
        {{"&=+$,;?/", 8, "user-unreserved"}, {"a:b", 1, "no colon"}, {"a@b", 1, "no at sign"}, {"[", 0, "no bracket"}});
    CHECK(Password, {{"&=+$,", 5, "its own"},
                     {"a;b", 1, "no semicolon"},
                     {"a?", 1, "no query"},
                     {"a/", 1, "no slash"},
                     {":", 0, "no colon"}});
    CHECK(Pvalue, {{"[]/:&+$", 7, "param-unreserved"},
                   {"a=b", 1, "no equal sign"},
                   {"a;b", 1, "no semicolon"},
                   {"a,", 1, "no comma"},
                   {"?", 0, "no query"},
                   {"@", 0, "no at sign"}});
    CHECK(Uric, {{";/?:@&=+$,", 10, "reserved"}, {"a[", 1, "no brackets"}});
}

// Hosts

TEST(QuillSkip, DomainLabel) {
    CHECK(DomainLabel, {{"example", 7, "letters"},
                        {"9a", 2, "a digit first"},
                        {"a-b", 3, "a hyphen within"},
                        {"a--b", 4, "hyphens within"},
                        {"-a", 0, "a hyphen first"},
                        {"a-", 1, "hyphens at the end are left"},
                        {"a---.b", 1, "hyphens at the end are left"},
                        {"%41b", 4, "an escape first"},
                        {"a-%41", 5, "an escape behind a hyphen"},
                        {"a%4", 1, "half an escape"},
                        {"a-%4", 1, "half an escape behind a hyphen"},
                        {"a.b", 1, "up to the dot"},
                        {"a_b", 1, "no underscore"},
                        {"\u00E9", 0, "ASCII only"}});
}

TEST(QuillSkip, Hostname) {
    CHECK(Hostname, {{"a.b.", 4, "the final dot"},
                     {"a.b.c", 5, "labels"},
                     {"1.2.3.4", 7, "digits alone"},
                     {"a..b", 2, "a dot, and no label behind it"},
                     {".a", 0, "a dot first"},
                     {"a.-b", 2, "no label behind the dot"},
                     {"a-.b", 1, "a hyphen at a label's end"},
                     {"a.b-", 3, "a hyphen at the end"},
                     {"example.com:5060", 11, "up to the colon"},
                     {"caf\u00E9.example", 3, "ASCII only"}});
}

TEST(QuillSkip, Addresses) {
    CHECK(IpV4Address, {{"192.0.2.1", 9, "whole"},
                        {"255.255.255.255x", 15, "the largest"},
                        {"1.2.3", 0, "three octets"},
                        {"1.2.3.", 0, "three octets and a dot"},
                        {"256.1.1.1", 0, "beyond an octet"},
                        {"1.2.3.4.5", 7, "one too many"},
                        {"01.2.3.4", 0, "a leading zero"},
                        {"a", 0, "no digit"}});
    CHECK(IpV6Address, {{"::", 2, "nothing but zeros"},
                        {"2001:db8::1]", 11, "up to the bracket"},
                        {"1:2:3:4:5:6:7:8", 15, "no compression"},
                        {"::ffff:192.0.2.1", 16, "an IPv4 address at the end"},
                        {"[::1]", 0, "no brackets"},
                        {"1:2:3", 0, "three groups"},
                        {"192.0.2.1", 0, "IPv4"},
                        {":", 0, "a colon"}});
    CHECK(IpV6Reference, {{"[::1]", 5, "whole"},
                          {"[::1]:5060", 5, "up to the colon"},
                          {"[::1", 0, "not closed"},
                          {"::1]", 0, "not opened"},
                          {"[]", 0, "empty"},
                          {"[1.2.3.4]", 0, "IPv4"},
                          {"[::1%25eth0]", 0, "no zone"},
                          {"[ ::1]", 0, "no blanks"}});
}

TEST(QuillSkip, Host) {
    CHECK(Host, {{"example.com", 11, "a name"},
                 {"192.0.2.1", 9, "an address"},
                 {"192.0.2.1.example", 17, "the name is longer"},
                 {"192.0.2.1.", 10, "the name's final dot"},
                 {"256.1.1.1", 9, "a name, though no address"},
                 {"[::1]x", 5, "a reference"},
                 {"::1", 0, "no reference without brackets"},
                 {"[::1", 0, "not closed"},
                 {"-", 0, "nothing"}});
    CHECK(HostPort, {{"h1.h2:", 5, "a colon without a port is left"},
                     {"[::1]:5060", 10, "a reference and a port"},
                     {"h:5060", 6, "a name and a port"},
                     {"h", 1, "no port"},
                     {"h:x", 1, "no digits"},
                     {"h :5060", 1, "no blanks"},
                     {"h: 5060", 1, "no blanks"},
                     {"h:99999999999999999999", 22, "the value doesn't matter"},
                     {":5060", 0, "no host"}});
}

// URIs and addresses

TEST(QuillSkip, Uri) {
    CHECK(Uri, {{"sip:alice@example.com>", 21, "up to the bracket"},
                {"sip:a@b;lr?x=y", 14, "parameters and headers"},
                {"sip:\u00E9@caf\u00E9.example;x=\u65E5", 22, "beyond ASCII"},
                {"tel:+1-201-555-0123;ext=7", 25, "a telephone number"},
                {"urn:service:sos", 15, "a name"},
                {"sip:", 0, "nothing behind the scheme"},
                {"example.com", 0, "no scheme"}});
}

TEST(QuillSkip, AddrSpec) {
    CHECK(AddrSpec, {{"sip:a@b;lr", 7, "up to the semicolon"},
                     {"sip:a@b?x=y;z", 11, "also in the headers"},
                     {"sip:a;b@c", 5, "also in the user part"},
                     {"sip:;x", 0, "nothing before it"},
                     {"sip:a,b;c@d", 5, "what follows the semicolon makes no user part"},
                     {"sip:a,b@d;c", 9, "a comma in the user part"},
                     {"http://a;b", 8, "other schemes, too"},
                     {";sip:a", 0, "a semicolon first"},
                     {"<sip:a>", 0, "no brackets"},
                     {" sip:a", 0, "no blanks"}});
}

TEST(QuillSkip, ListsOfBareAddresses) {
    CHECK(AddrSpec, {{"sip:a@h,sip:b@h", 7, "two addresses"},
                     {"sip:a@h, sip:b@h", 7, "two addresses and a blank"},
                     {"sip:h1:5060,sip:b@h", 11, "the first without a user"},
                     {"sip:h1, sip:b@h", 6, "the same, and a blank"},
                     {"SIPS:a@h,b@h", 8, "the scheme's letter case"}});
}

TEST(QuillSkip, NameAddr) {
    CHECK(NameAddr, {{"<sip:a@b;lr>", 12, "brackets alone"},
                     {"Alice <sip:a@b>", 15, "tokens"},
                     {"\"A, \\\"<\" <sip:a@b> ;x", 19, "a quoted string; the blank behind is taken"},
                     {"Alice<sip:a@b>", 14, "no blank between"},
                     {" <sip:a@b>", 10, "a blank before"},
                     {"A B  C <sip:a,b@h>", 18, "a comma in the user part"},
                     {"<sip:a@b", 0, "not closed"},
                     {"<>", 0, "no URI"},
                     {"< sip:a>", 0, "no blank behind the bracket"},
                     {"<sip:a >", 0, "nor before the other"},
                     {"sip:a@b", 0, "no brackets"},
                     {"\"A <sip:a@b>", 0, "the quoted string isn't closed"},
                     {"\"A\" B <sip:a@b>", 0, "both forms of a name"},
                     {"J\u00F6rg <sip:a@b>", 0, "tokens are ASCII"},
                     {"\"J\u00F6rg\" <sip:\u00F6@b>", 16, "quoted strings and IRIs aren't"},
                     {"<sip:a@[::1]:5060;x=[y]?z=[1]>", 30, "brackets in the URI"}});
}

TEST(QuillSkip, Contact) {
    CHECK(Contact, {{"<sip:a@b>;q=0.5", 15, "brackets and parameters"},
                    {"sip:a@b;q=0.5", 13, "the parameters are the value's"},
                    {"\"A\" <sip:a@b;lr> ; x ; y=\"z\"", 28, "blanks"},
                    {"<sip:a@b>;", 9, "a dangling semicolon is left"},
                    {"<sip:a@b>;;x", 9, "an empty parameter is left"},
                    {"<sip:a@b>;x=", 9, "a parameter without its value is left"},
                    {"sip:a@b,sip:c@d", 7, "the first of two"},
                    {"<sip:a@b>,<sip:c@d>", 9, "the first of two"},
                    {"*", 0, "the asterisk is no address"},
                    {"a@b", 0, "no scheme"}});
}

TEST(QuillSkip, AddressesInBrackets) {
    checkAll({NAMED(Route), NAMED(Diversion), NAMED(HistoryInfo)},
             {{"<sip:a@b;lr>", 12, "no parameters"},
              {"<sip:a@b>;index=1.1;x", 21, "parameters"},
              {"\"A\" <sip:a@b> ;x", 16, "a name"},
              {"sip:a@b", 0, "brackets are required"},
              {"<sip:a@b>;", 9, "a dangling semicolon is left"},
              {"<sip:a@b>;x;", 11, "a dangling semicolon is left"}});
}

TEST(QuillSkip, IdentityValue) {
    CHECK(IdentityValue, {{"\"A\" <sip:a@b>;x", 13, "no parameters"},
                          {"sip:a@b;x", 7, "no parameters"},
                          {"tel:+14085264000", 16, "a telephone number"},
                          {"<tel:+1>, <sip:a>", 8, "the first of two"},
                          {"A", 0, "a name alone"}});
}

TEST(QuillSkip, UrisInBrackets) {
    checkAll({NAMED(AlertInfo), NAMED(CallInfo), NAMED(ErrorInfo)},
             {{"<http://a/b>;purpose=icon", 25, "parameters"},
              {" <http://a/b> ;x", 16, "blanks"},
              {"<urn:alert:service:normal>", 26, "no parameters"},
              {"\"A\" <http://a>", 0, "no name"},
              {"http://a", 0, "no brackets"},
              {"<http://a", 0, "not closed"},
              {"<>", 0, "empty"},
              {"<http://a>;", 10, "a dangling semicolon is left"}});
}

TEST(QuillSkip, SipInstance) {
    CHECK(SipInstance, {{"<urn:uuid:f81d4fae-7dec-11d0-a765-00a0c91e6bf6>", 47, "whole"},
                        {"<a>", 3, "any characters of a URI"},
                        {"<%41>x", 5, "an escape"},
                        {"<>", 0, "empty"},
                        {" <a>", 0, "no blank before"},
                        {"<a> ", 3, "the blank behind is left"},
                        {"< a>", 0, "no blank within"},
                        {"<a", 0, "not closed"},
                        {"<%4>", 0, "half an escape"},
                        {"<\u00E9>", 0, "ASCII only"}});
}

// Parameters

TEST(QuillSkip, GenericParam) {
    CHECK(GenericParam, {{"a=", 0, "no value"},
                         {"a", 1, "a name"},
                         {"a=\"x y\"", 7, "a quoted string"},
                         {"a=b", 3, "a token"},
                         {"a = b c", 5, "blanks around the equal sign"},
                         {"a b", 1, "the blank behind is left"},
                         {"a =", 0, "no value"},
                         {"a=[::1]", 7, "a host"},
                         {"a=[::1", 0, "no host"},
                         {"a=1.2.3.4", 9, "an address is a token"},
                         {"a=b:5060", 3, "no port"},
                         {"a=\"x", 0, "not closed"},
                         {"a=  \"x\"", 7, "blanks before the quoted string"},
                         {"a==b", 0, "two equal signs"},
                         {"=b", 0, "no name"},
                         {"a=\u00E9", 0, "ASCII only"},
                         {"+sip.instance=\"<urn:x>\"", 23, "a quoted string of anything"}});
    CHECK(GenericParams, {{";a;b=c", 6, "two"},
                          {" ; a ; b = c ", 12, "blanks; those behind are left"},
                          {";a;", 2, "a dangling semicolon is left"},
                          {";a;;b", 2, "so is an empty parameter"},
                          {";a;b=", 2, "so is one without its value"},
                          {";", 0, "none"},
                          {"a;b", 0, "a semicolon first"},
                          {";a=\";\";b", 8, "a semicolon in quotes"},
                          {";a,;b", 2, "up to the comma"}});
}

TEST(QuillSkip, ViaParams) {
    CHECK(ViaReceived, {{"received=192.0.2.1", 18, "IPv4"},
                        {"RECEIVED = 2001:db8::1", 22, "IPv6, letter case and blanks"},
                        {"received=[::1]", 0, "no brackets"},
                        {"received=", 0, "no value"},
                        {"received", 0, "no value"},
                        {"receive=192.0.2.1", 0, "another name"},
                        {"receivedx=192.0.2.1", 0, "another name"},
                        {"received=h", 0, "no address"},
                        {"received=::ffff:192.0.2.1;x", 25, "both"}});
    CHECK(ViaParams, {{"received=192.0.2.1", 18, "an address"},
                      {"received=::1", 12, "an IPv6 address without brackets"},
                      {"received=[::1]", 14, "a generic parameter"},
                      {"received=h", 10, "a generic parameter"},
                      {"received", 8, "a generic parameter"},
                      {"received=", 0, "neither"},
                      {"branch=z9hG4bK1;x", 15, "a generic parameter"},
                      {"maddr=::1", 0, "no value"},
                      {"rport", 5, "a name alone"}});
}

// Via and version

TEST(QuillSkip, Version) {
    CHECK(Version, {{"SIP/2.0", 7, "whole"},
                    {"SIP / 2.0 ", 9, "blanks; those behind are left"},
                    {"SIP/2.0/UDP", 7, "up to the second slash"},
                    {"SIP/", 0, "no version"},
                    {"SIP", 0, "no slash"},
                    {"/2.0", 0, "no name"},
                    {"x/y", 3, "any tokens"}});
}

TEST(QuillSkip, Via) {
    CHECK(Via, {{"SIP/2.0/UDP h", 13, "a host"},
                {"SIP/2.0/UDP h:;x", 0, "a colon without a port"},
                {"SIP/2.0/UDP h:x", 0, "a colon without a port"},
                {"SIP/2.0/UDP h : 5060 ; x", 24, "blanks"},
                {"SIP / 2.0 / UDP\th", 17, "blanks"},
                {"SIP/2.0/UDP h:5060;received=::1;branch=z", 40, "an address in a parameter"},
                {"SIP/2.0/UDP [2001:db8::1]:5060", 30, "a reference"},
                {"SIP/2.0/UDP", 0, "no host"},
                {"SIP/2.0/UDP ", 0, "no host"},
                {"SIP/2.0/UDP[::1]", 0, "no blank"},
                {"SIP/2.0 UDP h", 0, "no slash"},
                {"SIP/2.0/UDP h;", 13, "a dangling semicolon is left"},
                {"SIP/2.0/UDP h;;x", 13, "an empty parameter is left"},
                {"SIP/2.0/UDP h;received=,x", 13, "a parameter without its value is left"},
                {"SIP/2.0/UDP h, SIP/2.0/UDP i", 13, "the first of two"},
                {"SIP/2.0/UDP caf\u00E9", 15, "ASCII only"}});
}

// Media and content

TEST(QuillSkip, MediaTypes) {
    checkAll({NAMED(MediaType), NAMED(MediaSubtype)}, {{"text", 4, "a token"},
                                                       {"*", 0, "an asterisk alone"},
                                                       {"*/", 0, "an asterisk alone"},
                                                       {"**", 2, "a token all the same"},
                                                       {"*x", 2, "a token all the same"},
                                                       {"/", 0, "no token"}});
}

TEST(QuillSkip, AcceptCountsItsParametersAlone) {
    CHECK(Accept, {{"text/plain", 0, "no parameters"},
                   {"text/plain;q=1", 4, "the parameters"},
                   {"text / plain ; q=1 ;x", 9, "blanks, and those before the semicolon"},
                   {"*/*;q=1", 4, "anything"},
                   {"text/*;q=1", 4, "any subtype"},
                   {"*/plain;q=1", 0, "any type of a subtype"},
                   {"*x/plain;q=1", 0, "nor is this a type"},
                   {"text;q=1", 0, "no subtype"},
                   {"text/;q=1", 0, "no subtype"},
                   {"/plain;q=1", 0, "no type"},
                   {"text/plain;", 0, "a dangling semicolon"},
                   {"text/plain;q=", 0, "no value"},
                   {"text/plain,text/html;q=1", 0, "the parameters of another range"}});
}

TEST(QuillSkip, TokensWithParameters) {
    checkAll({NAMED(AcceptEncoding), NAMED(Reason), NAMED(UuiValue)}, {{"gzip;q=1.0", 10, "a parameter"},
                                                                       {"*", 1, "an asterisk"},
                                                                       {"*;q=0", 5, "an asterisk and a parameter"},
                                                                       {"a ; b", 5, "blanks"},
                                                                       {"a;", 1, "a dangling semicolon is left"},
                                                                       {";b", 0, "no token"},
                                                                       {"a,b", 1, "the first of two"}});
    CHECK(AcceptEncoding, {{"\"a\"", 0, "no quoted string"}});
    CHECK(Reason,
          {{"Q.850 ;cause=16 ;text=\"Terminated\"", 34, "as RFC 3326 shows it"}, {"\"a\"", 0, "no quoted string"}});
    CHECK(UuiValue, {{"\"a b\";encoding=hex", 18, "a quoted string"},
                     {" \"a\"", 4, "a blank before it"},
                     {"\"a", 0, "not closed"},
                     {"56a390f3d2b7310023a2;encoding=hex;purpose=foo;content=bar", 57, "as RFC 7433 shows it"}});
}

TEST(QuillSkip, TokensOrQuotedStrings) {
    checkAll({NAMED(DiversionPrivacy), NAMED(DiversionReason), NAMED(DiversionScreen)},
             {{"full", 4, "a token"},
              {"\"a b\"", 5, "a quoted string"},
              {" \"a\" ", 4, "a blank before it"},
              {" a", 0, "no blank before a token"},
              {"\"a", 0, "not closed"},
              {"user-busy;x", 9, "up to the semicolon"}});
}

// Identifiers and numbers

TEST(QuillSkip, CallId) {
    CHECK(CallId, {{"a84b4c76e66710@pc33.atlanta.com", 31, "two words"},
                   {"a", 1, "one word"},
                   {"a@", 0, "nothing behind the at sign"},
                   {"@a", 0, "nothing before it"},
                   {"a@b@c", 3, "once"},
                   {"a @b", 1, "no blanks"},
                   {"a@ b", 0, "no blanks"},
                   {"<a>@[b]", 7, "a word's characters"},
                   {"a,b", 1, "the first of two"}});
}

TEST(QuillSkip, SipCleanMsgId) {
    CHECK(SipCleanMsgId, {{"20398823.2UWQFN309shb3@referror.example", 39, "a dot-atom"},
                          {"a@[::1]\"", 7, "a host"},
                          {"a@b_c.d-", 8, "the dot-atom is longer"},
                          {"a@b.", 4, "the host is longer"},
                          {"a@", 0, "nothing behind the at sign"},
                          {"@b", 0, "nothing before it"},
                          {"a", 0, "no at sign"},
                          {"a.@b", 0, "a dot before it"},
                          {"\"a@b\"", 0, "no quotes"}});
}

TEST(QuillSkip, Epid) {
    CHECK(Epid, {{"0123456789abcdef", 16, "sixteen"},
                 {"0123456789abcdefg", 16, "no more than sixteen"},
                 {"abc", 3, "fewer"},
                 {"a.!~ b", 4, "a token"},
                 {"", 0, "none"},
                 {" a", 0, "no blanks"}});
}

TEST(QuillSkip, SessUuid) {
    CHECK(SessUuid, {{"ab30317f1a784dc48ff824d0d3715d86", 32, "hexadecimal digits"},
                     {"zzzzzzzzzzzzzzzzzzzzzzzzzzzzzzzz", 32, "the whole alphabet"},
                     {"zzzzzzzzzzzzzzzzzzzzzzzzzzzzzzz", 0, "31"},
                     {"zzzzzzzzzzzzzzzzzzzzzzzzzzzzzzzzz", 32, "the 33rd isn't looked at"},
                     {"zzzzzzzzzzzzzzzzzzzzzzzzzzzzzzzz\u00E9", 32, "whatever it is"},
                     {"Ab30317f1a784dc48ff824d0d3715d86", 0, "no upper case"},
                     {"ab30317f1a784dc48ff824d0d3715d8-", 0, "no hyphen"},
                     {"ab30317f-1a78-4dc4-8ff8-24d0d3715d86", 0, "no hyphens"},
                     {"00000000000000000000000000000000;remote=x", 32, "nil"}});
}

TEST(QuillSkip, NumbersOfTwoDigits) {
    checkAll({NAMED(DiversionCounter), NAMED(DiversionLimit)}, {{"1", 1, "one"},
                                                                {"10", 2, "two"},
                                                                {"100", 2, "no more"},
                                                                {"00", 2, "zeros"},
                                                                {"x", 0, "none"},
                                                                {"1x", 1, "one"}});
}

TEST(QuillSkip, WarnCode) {
    CHECK(WarnCode, {{"399", 3, "three digits"},
                     {"3999", 0, "four"},
                     {"39", 0, "two"},
                     {"399 ", 3, "a blank behind"},
                     {"39x", 0, "two"},
                     {"", 0, "none"}});
}

TEST(QuillSkip, HistoryInfoIndex) {
    CHECK(HistoryInfoIndex, {{"1", 1, "one"},
                             {"1.2.3", 5, "three"},
                             {"0", 1, "zero"},
                             {"1.0", 3, "zero"},
                             {"1.01", 0, "a leading zero"},
                             {"01", 0, "a leading zero"},
                             {"00", 0, "a leading zero"},
                             {"1.", 0, "a dangling dot"},
                             {"1..2", 0, "two dots"},
                             {"1.2.x", 0, "no digits"},
                             {".1", 0, "a dot first"},
                             {"10.20;x", 5, "up to the semicolon"},
                             {"1.99999999999999999999", 22, "the value doesn't matter"}});
}

TEST(QuillSkip, Qvalue) {
    CHECK(Qvalue, {{"0", 1, "zero"},
                   {"0.5", 3, "one digit"},
                   {"0.123", 5, "three digits"},
                   {"0.1234", 5, "no more than three"},
                   {"0.", 2, "the dot alone"},
                   {"0.x", 2, "the dot alone"},
                   {"1", 1, "one"},
                   {"1.", 2, "the dot alone"},
                   {"1.000", 5, "zeros"},
                   {"1.0000", 5, "no more than three"},
                   {"1.5", 2, "no other digit behind one"},
                   {"1.05", 3, "zeros only"},
                   {"2", 0, "neither"},
                   {".5", 0, "no digit first"},
                   {"00.5", 1, "one digit first"},
                   {"-0", 0, "no sign"},
                   {"0 .5", 1, "no blanks"}});
}

TEST(QuillSkip, TimestampValue) {
    CHECK(TimestampValue, {{"54", 2, "seconds"},
                           {"54.21", 5, "a fraction"},
                           {"54.", 3, "an empty fraction"},
                           {"54 ", 3, "the blanks behind are taken"},
                           {"54 0.5", 6, "a delay"},
                           {"54\t 7.", 6, "a delay with an empty fraction"},
                           {"54 .5", 3, "no delay without digits before the dot"},
                           {"54 x", 3, "no delay"},
                           {"54.x", 3, "up to the letter"},
                           {"54.1.2", 4, "one dot"},
                           {"54 1 ", 4, "the blanks behind the delay are left"},
                           {".5", 0, "digits first"},
                           {" 54", 0, "no blanks first"}});
}

TEST(QuillSkip, Refresher) {
    CHECK(Refresher, {{"uac", 3, "caller"},
                      {"uas", 3, "callee"},
                      {"UaC", 3, "letter case"},
                      {"uacx", 3, "the beginning"},
                      {"ua", 0, "too short"},
                      {"uax", 0, "neither"},
                      {" uac", 0, "no blanks"}});
}

// Products and warnings

TEST(QuillSkip, ServerVal) {
    CHECK(ServerVal, {{"a", 1, "a product"},
                      {"a/1", 3, "and its version"},
                      {"a / 1 ", 5, "blanks around the slash"},
                      {"a/", 0, "no version"},
                      {"a /", 0, "no version"},
                      {"a//1", 0, "two slashes"},
                      {"(c) ", 4, "a comment and its blanks"},
                      {" (c)", 4, "a comment and its blanks"},
                      {" a", 0, "no blanks before a product"},
                      {"a(c)", 1, "one at a time"},
                      {"/1", 0, "no product"},
                      {"(c", 0, "not closed"}});
}

TEST(QuillSkip, Server) {
    checkAll({NAMED(Server), NAMED(UserAgent)}, {{"a/1 b", 5, "two products"},
                                                 {"a/1 ", 0, "a blank at the end"},
                                                 {"a", 1, "one product"},
                                                 {"a  b\tc", 6, "any blanks"},
                                                 {"a (x)", 5, "a comment"},
                                                 {"a (x) b", 7, "the comment's blank is the next product's"},
                                                 {"a (x)  (y (z)) b/1", 18, "so is another comment's"},
                                                 {"(x) b", 5, "a comment first"},
                                                 {" (x) b", 6, "its blank first"},
                                                 {" a", 0, "no blank before a product"},
                                                 {"a (x) ", 6, "a blank at the end that is the comment's"},
                                                 {"a (x) ,", 6, "the comment's blank, though nothing follows"},
                                                 {"a (x)(y)", 5, "no blank between comments"},
                                                 {"a(x)", 1, "no blank before the comment"},
                                                 {"a (x)b", 5, "no blank behind the comment"},
                                                 {"a (x", 0, "a comment that isn't closed"},
                                                 {"a ,b", 0, "no product behind the blank"},
                                                 {"a,b", 1, "no blank"},
                                                 {"a b/", 0, "no version"},
                                                 {"a/1\r\n b", 3, "a line end is no blank"},
                                                 {"caf\u00E9", 3, "ASCII only"},
                                                 {"(caf\u00E9) a", 8, "but in comments"}});
}

TEST(QuillSkip, Warnings) {
    CHECK(WarnAgent, {{"h:5060", 6, "a host and a port"},
                      {"isi.edu ", 7, "a host"},
                      {"~x", 2, "a pseudonym"},
                      {"a_b", 1, "the host comes first"},
                      {"[::1]", 5, "a reference"},
                      {"\"", 0, "neither"}});
    CHECK(WarningValue, {{"307 isi.edu \"Session parameter 'foo' not understood\"", 52, "as RFC 3261 shows it"},
                         {"301  h:5060\t\"x\"y", 15, "any blanks"},
                         {"301 h \"\"", 8, "an empty text"},
                         {"301 ~x \"x\"", 10, "a pseudonym"},
                         {"301 h\"x\"", 0, "no blank"},
                         {"301h \"x\"", 0, "no blank"},
                         {"3010 h \"x\"", 0, "four digits"},
                         {"301 h x", 0, "no quotes"},
                         {"301 h", 0, "no text"},
                         {"301 a_b \"x\"", 0, "the host that begins the pseudonym comes first"}});
}

// Dates

TEST(QuillSkip, Names) {
    constexpr std::u32string_view weekdays[] = {U"Mon", U"Tue", U"Wed", U"Thu", U"Fri", U"Sat", U"Sun"};
    constexpr std::u32string_view months[] = {U"Jan", U"Feb", U"Mar", U"Apr", U"May", U"Jun",
                                              U"Jul", U"Aug", U"Sep", U"Oct", U"Nov", U"Dec"};
    int64_t expected = 0;
    for (auto const name : weekdays) {
        int64_t index = 99;
        EXPECT_EQ(quill___SkipWkday(name.data(), 3, &index), 3);
        EXPECT_EQ(index, expected++);
        EXPECT_EQ(quill___SkipWkday(name.data(), 3, nullptr), 3);
        EXPECT_EQ(quill___SkipMonth(name.data(), 3, nullptr), 0);
    }
    expected = 1;
    for (auto const name : months) {
        int64_t index = 99;
        EXPECT_EQ(quill___SkipMonth(name.data(), 3, &index), 3);
        EXPECT_EQ(index, expected++);
        EXPECT_EQ(quill___SkipMonth(name.data(), 3, nullptr), 3);
        EXPECT_EQ(quill___SkipWkday(name.data(), 3, nullptr), 0);
    }
}

TEST(QuillSkip, NamesThatAreNone) {
    for (std::u32string_view const text :
         {U"", U"M", U"Mo", U"mon", U"MON", U"jan", U"JAN", U" Mon", U"Xyz", U"\u004Do\u0578"}) {
        int64_t index = 99;
        EXPECT_EQ(quill___SkipWkday(text.data(), static_cast<int64_t>(text.size()), &index), 0);
        EXPECT_EQ(quill___SkipMonth(text.data(), static_cast<int64_t>(text.size()), &index), 0);
        EXPECT_EQ(index, 99) << "not written without a match";
    }
    EXPECT_EQ(quill___SkipWkday(U"Monday", 6, nullptr), 3);
    EXPECT_EQ(quill___SkipMonth(U"June", 4, nullptr), 3);
}
