#include "scanners.hpp"

#include <memory>
#include <support/text.hpp>

namespace test {

#define ROW(Name, ...)                                                                                                 \
    ScannerRow { #Name, quill___Skip##Name, __VA_ARGS__ }

// The scanners that take more than a text, with something to look for.
static int64_t skipChar(coChar const *chs, int64_t length) { return quill___SkipChar(chs, length, U'%'); }
static int64_t skipChars(coChar const *chs, int64_t length) { return quill___SkipChars(chs, length, U"sip:", 4); }
static int64_t skipCharsAsciiCaseFold(coChar const *chs, int64_t length) {
    return quill___SkipCharsAsciiCaseFold(chs, length, U"RECEIVED", 8);
}
static int64_t skipSwsCharSws(coChar const *chs, int64_t length) { return quill___SkipSwsCharSws(chs, length, U'a'); }
static int64_t skipSwsChar(coChar const *chs, int64_t length) { return quill___SkipSwsChar(chs, length, U'a'); }
static int64_t skipCharSws(coChar const *chs, int64_t length) { return quill___SkipCharSws(chs, length, U'a'); }
static int64_t skipWkday(coChar const *chs, int64_t length) { return quill___SkipWkday(chs, length, nullptr); }
static int64_t skipMonth(coChar const *chs, int64_t length) { return quill___SkipMonth(chs, length, nullptr); }

std::vector<ScannerRow> const &scanners() {
    constexpr auto loc = "source/loc/loc_skip";
    static std::vector<ScannerRow> const rows = {
        {"Char", skipChar, 0, "%"},
        {"Chars", skipChars, 0, "sip:"},
        {"CharsAsciiCaseFold", skipCharsAsciiCaseFold, 0, "received"},
        ROW(Sws, 1, " \t"),
        ROW(Lws, 1, "\t "),
        // The blanks behind a separator end at the next code point; what ends with a character needs none.
        {"SwsCharSws", skipSwsCharSws, 1, " a "},
        {"SwsChar", skipSwsChar, 0, " a"},
        {"CharSws", skipCharSws, 1, "a "},
        ROW(Hcolon, 1, " : "),
        ROW(Colon, 1, " : "),
        ROW(Comma, 1, " , "),
        ROW(Equal, 1, " = "),
        ROW(Semi, 1, " ; "),
        ROW(Slash, 1, " / "),
        ROW(Star, 1, " * "),
        ROW(Lparen, 1, " ( "),
        ROW(Rparen, 1, " ) "),
        ROW(Laquot, 0, " <"),
        ROW(Ldquot, 0, " \""),
        ROW(Raquot, 1, "> "),
        ROW(Rdquot, 1, "\" "),
        // A run ends at the next code point.
        ROW(Token, 1, "a.b-1"),
        ROW(TokenNodot, 1, "a-1"),
        ROW(Atom, 1, "a-1"),
        ROW(Word, 1, "a<b>[c]"),
        ROW(Digits, 1, "0123"),
        ROW(Branch, 1, "z9hG4bK776asdhds"),
        ROW(ContentCoding, 1, "gzip"),
        ROW(DispositionType, 1, "session"),
        ROW(EmParam, 1, "sendrecv"),
        ROW(EventReasonValue, 1, "noresource"),
        ROW(Handling, 1, "optional"),
        ROW(MessageHeaderName, 1, "Content-Length"),
        ROW(Method, 1, "INVITE"),
        ROW(OptionTag, 1, "100rel"),
        ROW(PriorityValue, 1, "non-urgent"),
        ROW(PrivValue, 1, "header"),
        ROW(ProtocolName, 1, "SIP"),
        ROW(ProtocolVersion, 1, "2.0"),
        ROW(Pseudonym, 1, "proxy"),
        ROW(Purpose, 1, "icon"),
        ROW(ReasonProtocol, 1, "Q.850"),
        ROW(SubstateValue, 1, "active"),
        ROW(Tag, 1, "a6c85cf"),
        ROW(Transport, 1, "UDP"),
        ROW(DeltaSeconds, 1, "3600"),
        ROW(ReasonCause, 1, "486"),
        ROW(Ttl, 1, "255"),
        ROW(ReasonText, 0, "\"Busy Here\""),
        ROW(WarnText, 0, "\"Incompatible\""),
        // A dot is taken with what follows it.
        ROW(DotAtom, 2, "a.b.c"),
        ROW(EventType, 2, "presence.winfo"),
        ROW(Rvalue, 1, "dsn.flash"),
        // What closes itself needs nothing, what takes the blanks behind it one code point.
        ROW(QuotedString, 0, " \"a\\\"b\""),
        ROW(Comment, 1, " (a (b) \\) c) "),
        // Blanks in a text are taken with the character behind them.
        ROW(Organization, everything, "Boxes  by Bob"),
        ROW(Subject, everything, "Need more boxes"),
        ROW(DisplayName, 1, "Front Desk "),
        // An escape is three code points.
        ROW(User, 3, "alice%20b;x=y"),
        ROW(Password, 3, "a$b%2fc"),
        ROW(Pvalue, 3, "[::1]:%41"),
        ROW(Uric, 3, "urn:uuid:%41"),
        // Hyphens in a label are taken with what follows them.
        ROW(DomainLabel, everything, "a--b%41"),
        ROW(Hostname, everything, "h1.example.com."),
        ROW(IpV4Address, 15, "192.0.2.17", loc),
        ROW(IpV6Address, 45, "2001:db8::192.0.2.1", loc),
        ROW(Port, 1, "5060", loc),
        ROW(IpV6Reference, 0, "[2001:db8::1]"),
        ROW(Host, everything, "[2001:db8::1]"),
        ROW(HostPort, everything, "example.com:5060"),
        // A comma belongs to the user part if an "@" follows.
        ROW(Uri, everything, "sip:a,b@[::1];lr?x=[y]", loc),
        ROW(AddrSpec, everything, "sip:alice@example.com:5060?subject=x"),
        ROW(NameAddr, 1, "\"A. B\" <sip:a@b;lr> "),
        // Blanks before a separator are taken with it.
        ROW(Contact, everything, "sip:a@b;q=0.5"),
        ROW(Route, everything, "<sip:a@b;lr>;x"),
        ROW(Diversion, everything, "<sip:a@b>;reason=user-busy"),
        ROW(HistoryInfo, everything, "<sip:a@b>;index=1.1"),
        ROW(IdentityValue, everything, "sip:a@b"),
        ROW(AlertInfo, everything, "<http://a/b>;x=y"),
        ROW(CallInfo, everything, " <http://a/b> ; purpose=icon"),
        ROW(ErrorInfo, everything, "<sip:a@b>;x=\"y\""),
        ROW(SipInstance, 0, "<urn:uuid:0>"),
        ROW(GenericParam, everything, "a = \"x y\""),
        ROW(GenericParams, everything, ";a; b=c ;d=[::1]"),
        ROW(ViaReceived, 45, "Received = 192.0.2.1"),
        ROW(ViaParams, everything, "received=2001:db8::1"),
        ROW(Version, 1, "SIP / 2.0"),
        ROW(Via, everything, "SIP/2.0/UDP h:5060;received=::1;branch=z"),
        ROW(MediaType, 1, "text"),
        ROW(MediaSubtype, 1, "plain"),
        ROW(Accept, everything, "text/plain;q=1"), // but for this one's length, which is that of ";q=1"
        ROW(AcceptEncoding, everything, "gzip;q=1.0"),
        ROW(Reason, everything, "SIP ;cause=200 ;text=\"x\""),
        ROW(UuiValue, everything, "\"56\";encoding=hex"),
        ROW(DiversionPrivacy, 1, "full"),
        ROW(DiversionReason, 1, "\"user busy\""),
        ROW(DiversionScreen, 1, "yes"),
        ROW(CallId, 1, "f81d4fae@foo.bar.com"),
        ROW(SipCleanMsgId, everything, "20398823.2UWQFN309shb3@[::1]"),
        ROW(Epid, 1, "0123456789abcdef"),
        ROW(SessUuid, 0, "ab30317f1a784dc48ff824d0d3715d86"),
        ROW(DiversionCounter, 1, "10"),
        ROW(DiversionLimit, 1, "5"),
        ROW(WarnCode, 1, "301"),
        ROW(HistoryInfoIndex, 1, "1.0.12"),
        ROW(Qvalue, 1, "0.123"),
        ROW(TimestampValue, 1, "54.1 0.5"),
        ROW(Refresher, 0, "UAC"),
        ROW(ServerVal, everything, "a / 1"),
        ROW(Server, everything, "a/1 (b) c"),
        ROW(UserAgent, everything, "a/1 (b (c)) d/2"),
        ROW(WarnAgent, everything, "h:5060"),
        ROW(WarningValue, 0, "301 h:5060 \"text\""),
        {"Wkday", skipWkday, 0, "Sun"},
        {"Month", skipMonth, 0, "Dec"},
    };
    return rows;
}

int64_t scan(Scanner scanner, std::u32string_view text) {
    auto const copy = std::make_unique<coChar[]>(text.size());
    text.copy(copy.get(), text.size());
    return scanner(copy.get(), static_cast<int64_t>(text.size()));
}

int64_t scan(Scanner scanner, std::string_view utf8) { return scan(scanner, std::u32string_view(wide(utf8))); }

} // namespace test
