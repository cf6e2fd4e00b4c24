// Reason phrases: escapes, and back.
#include <quill/quill_internal.h>
#include <quill/quill_reason_phrase.h>
#include <random>
#include <support/text.hpp>

using test::str;

static std::string decode(std::string const &text) {
    std::u32string const chars = test::wide(text);
    return test::taken(quill___ReasonPhraseDecode(chars.data(), static_cast<int64_t>(chars.size())));
}

TEST(ReasonPhrase, IsAnyText) {
    for (auto const *text : {"", " ", "OK", "\r\n", "\x7f", "\u00e9", "%"}) EXPECT_TRUE(quillReasonPhraseOk(str(text)));
    EXPECT_TRUE(quillReasonPhraseOk(str(std::string(1, '\0'))));
}

TEST(ReasonPhrase, MustBeGiven) {
    EXPECT_ABORT(quillReasonPhraseOk(nullptr), "source/quill/quill_reason_phrase", "reasonPhrase");
    EXPECT_ABORT(quill___ReasonPhraseEncode(nullptr), "source/quill/quill_reason_phrase", "reasonPhrase");
}

TEST(ReasonPhrase, IsEscaped) {
    struct {
        std::string phrase;
        std::string expected;
    } const rows[] = {
        {"", ""},
        {"OK", "OK"},
        {"Call leg/transaction does not exist", "Call leg/transaction does not exist"},
        {"100% sure", "100%25 sure"},
        {"a\tb", "a\tb"},
        {"a\r\nb", "a%0D%0Ab"},
        {"\x7f", "%7F"},
        {std::string(1, '\0'), "%00"},
        {"\x1f", "%1F"},
        {"\"#<>[\\]^`{|}", "%22%23%3C%3E%5B%5C%5D%5E%60%7B%7C%7D"},
        {";/?:@&=+$,-_.!~*'()", ";/?:@&=+$,-_.!~*'()"},
        {"Sant\u00e9 \U0001F600", "Sant\u00e9 \U0001F600"},
        {"\u0080", "\u0080"},
        {"%25", "%2525"},
        {"%%", "%25%25"},
    };
    for (auto const &[phrase, expected] : rows)
        EXPECT_EQ(test::taken(quill___ReasonPhraseEncode(str(phrase))), expected) << phrase;
}

// Character by character, against the grammar's own list.
TEST(ReasonPhrase, KeepsReservedUnreservedBlanksAndAllBeyondAscii) {
    std::u32string const kept = U" \t;/?:@&=+$,-_.!~*'()0123456789"
                                U"ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz";
    for (char32_t ch = 0; ch < 0x180; ch++) {
        std::u32string const text(1, ch);
        std::string const encoded = test::taken(quill___ReasonPhraseEncode(str(text)));
        if (ch > 127 || kept.find(ch) != std::u32string::npos) {
            EXPECT_EQ(test::wide(encoded), text);
        } else {
            char hex[16];
            std::snprintf(hex, sizeof hex, "%%%02X", static_cast<unsigned>(ch));
            EXPECT_EQ(encoded, hex);
        }
    }
}

TEST(ReasonPhrase, IsSharedWhereNothingIsEscaped) {
    auto const phrase = str("Busy here");
    co::Ref<coString> const encoded(quill___ReasonPhraseEncode(phrase));
    EXPECT_EQ(encoded.get(), phrase.get());
}

TEST(ReasonPhrase, IsUnescaped) {
    struct {
        std::string text;
        std::string expected;
        char const *why;
    } const rows[] = {
        {"", "", "may be empty"},
        {"OK", "OK", ""},
        {"100%25 sure", "100% sure", ""},
        {"%41", "A", "also what needs no escape"},
        {"%0d%0A", "\r\n", "either letter case"},
        {"%e9", "\u00e9", "a code point, no octet of UTF-8"},
        {"%C3%A9", "\u00c3\u00a9", "each by itself"},
        {"%fF", "\u00ff", "mixed letter case"},
        {"%00", std::string(1, '\0'), ""},
        {"50%", "50%", "no digits behind"},
        {"%", "%", "no digits behind"},
        {"%4", "%4", "one digit"},
        {"a%4", "a%4", "one digit"},
        {"%zz", "%zz", "no digits"},
        {"%4z", "%4z", "one digit"},
        {"%z4", "%z4", "one digit"},
        {"%%41", "%A", "the second begins the escape"},
        {"%%%", "%%%", ""},
        {"%4%41", "%4A", ""},
        {"%2541", "%41", "once only"},
        {"%\u0664\u0661", "%\u0664\u0661", "no other digits"},
        {"\U0001F600%21", "\U0001F600!", ""},
    };
    for (auto const &[text, expected, why] : rows) EXPECT_EQ(decode(text), expected) << text << ": " << why;
    EXPECT_EQ(test::taken(quill___ReasonPhraseDecode(nullptr, 0)), "");
}

TEST(ReasonPhrase, ComesBack) {
    std::mt19937 random(1);
    for (int i = 0; i < 2000; i++) {
        std::u32string phrase(random() % 20, U' ');
        for (char32_t &ch : phrase) ch = random() % 4 ? random() % 128 : U"%%é\U0001F600"[random() % 4];
        co::Ref<coString> const encoded(quill___ReasonPhraseEncode(str(phrase)));
        co::Ref<coString> const decoded(
            quill___ReasonPhraseDecode(coStringBacking(encoded.get()), coStringLength(encoded.get())));
        EXPECT_EQ(test::wide(test::utf8(decoded.get())), phrase);
    }
}

TEST(ReasonPhrase, IsReadFromATextThatIsThere) {
    EXPECT_ABORT(quill___ReasonPhraseDecode(U"a", -1), "source/quill/quill_reason_phrase", "length >= 0");
    EXPECT_ABORT(quill___ReasonPhraseDecode(nullptr, 1), "source/quill/quill_reason_phrase", "chs || length == 0");
}
