#include <algorithm>
#include <gtest/gtest.h>
#include <idn2.h>
#include <nx/nx_idna.hpp>
#include <nx/nx_punycode.hpp>
#include <random>
#include <string>
#include <support/text.hpp>
#include <unicode/uchar.h>
#include <unicode/uidna.h>
#include <unicode/unorm2.h>
#include <unicode/ustring.h>

namespace {

using Text = std::u32string;

std::string utf8(std::u32string_view chars) { return test::utf8(test::str(chars).get()); }

bool isSurrogate(coChar ch) { return ch >= 0xD800 && ch < 0xE000; }

// The oracles: ICU for mapping and normalisation, in the same version of Unicode; libidn2 for IDNA2008.

static_assert(U_UNICODE_VERSION[0] == '1' && U_UNICODE_VERSION[1] == '5');

std::u16string utf16(Text const &text) {
    std::u16string units(2 * text.size() + 1, u'\0');
    int32_t length = 0;
    UErrorCode error = U_ZERO_ERROR;
    u_strFromUTF32(units.data(), static_cast<int32_t>(units.size()), &length,
                   reinterpret_cast<UChar32 const *>(text.data()), static_cast<int32_t>(text.size()), &error);
    EXPECT_TRUE(U_SUCCESS(error));
    units.resize(static_cast<size_t>(length));
    return units;
}

Text utf32(UChar const *units, int32_t count) {
    Text text(static_cast<size_t>(count) + 1, U'\0');
    int32_t length = 0;
    UErrorCode error = U_ZERO_ERROR;
    u_strToUTF32(reinterpret_cast<UChar32 *>(text.data()), count + 1, &length, units, count, &error);
    EXPECT_TRUE(U_SUCCESS(error));
    text.resize(static_cast<size_t>(length));
    return text;
}

Text icuNfc(Text const &text) {
    UErrorCode error = U_ZERO_ERROR;
    std::u16string const units = utf16(text);
    std::u16string normal(4 * units.size() + 1, u'\0');
    int32_t const length =
        unorm2_normalize(unorm2_getNFCInstance(&error), units.data(), static_cast<int32_t>(units.size()), normal.data(),
                         static_cast<int32_t>(normal.size()), &error);
    EXPECT_TRUE(U_SUCCESS(error));
    return utf32(normal.data(), length);
}

Text icuLower(coChar ch) {
    UErrorCode error = U_ZERO_ERROR;
    std::u16string const units = utf16({ch});
    UChar lower[8];
    int32_t const length = u_strToLower(lower, 8, units.data(), static_cast<int32_t>(units.size()), "", &error);
    EXPECT_TRUE(U_SUCCESS(error));
    return utf32(lower, length);
}

Text icuWidth(coChar ch) {
    int32_t const type = u_getIntPropertyValue(static_cast<UChar32>(ch), UCHAR_DECOMPOSITION_TYPE);
    if (type != U_DT_WIDE && type != U_DT_NARROW) return {ch};
    UErrorCode error = U_ZERO_ERROR;
    UChar units[8];
    int32_t const length =
        unorm2_getRawDecomposition(unorm2_getNFKCInstance(&error), static_cast<UChar32>(ch), units, 8, &error);
    EXPECT_TRUE(U_SUCCESS(error));
    return utf32(units, length);
}

// The capital letters of Cherokee: its small letters fold to them, so it is the capital ones that IDNA2008 permits.
bool isCherokeeCapital(coChar ch) { return ch >= 0x13A0 && ch <= 0x13F5; }

Text icuMapped(Text const &text) {
    Text mapped;
    for (coChar ch : text) {
        Text const lower = isCherokeeCapital(ch) ? Text{ch} : icuLower(ch);
        for (coChar part : lower) mapped += icuWidth(part);
    }
    return icuNfc(mapped);
}

Text mapped(Text const &text) {
    nx::Label label;
    return nx::mapLabel(text, label) ? Text(label.view()) : U"(none)";
}

TEST(MapLabel, EveryCodePoint) {
    for (coChar ch = 0; ch < 0x110000; ch++) {
        if (isSurrogate(ch)) {
            ASSERT_EQ(mapped({ch}), Text{ch});
            continue;
        }
        ASSERT_EQ(mapped({ch}), icuMapped({ch})) << std::hex << uint32_t{ch};
    }
}

TEST(MapLabel, Table) {
    struct {
        std::u32string_view text;
        std::u32string_view mapped;
        char const *why;
    } const rows[] = {
        {U"BÜCHER", U"bücher", "lower case"},
        {U"bu\u0308cher", U"bücher", "composed"},
        {U"ＡＢＣ", U"abc", "wide forms, in lower case"},
        {U"ｶﾞ", U"ガ", "narrow forms, composed"},
        {U"İ", U"i\u0307", "to two"},
        {U"K", U"k", "the Kelvin sign"},
        {U"Å", U"å", "the Angstrom sign"},
        {U"ΣΑΣ", U"σασ", "each code point for itself: no final sigma"},
        {U"ẞ", U"ß", "a capital sharp s"},
        {U"Ꭰ", U"Ꭰ", "a capital letter that is permitted"},
        {U"\u1112\u1161\u11AB", U"한", "Hangul"},
        {U"a\u0301\u0323", U"\u1EA1\u0301", "marks in order of their classes"},
        {U"a\u0334\u0301", U"\u00E1\u0334", "a mark of another class does not stand in the way"},
        {U"a\u0301\u0301", U"\u00E1\u0301", "a mark of the same class does"},
        {U"豈", U"豈", "a compatibility ideograph with a canonical decomposition"},
        {U"\u0958", U"\u0915\u093C", "excluded from composition"},
        {U"", U"", "nothing"},
    };
    for (auto const &row : rows) EXPECT_EQ(mapped(Text(row.text)), row.mapped) << row.why;
    for (coChar ch : {coChar{0x110000}, coChar{0xFFFFFFFF}}) EXPECT_EQ(mapped({ch}), Text{ch}) << "no code point";
}

TEST(MapLabel, Limits) {
    EXPECT_EQ(mapped(Text(63, U'Ü')), Text(63, U'ü'));
    EXPECT_EQ(mapped(Text(64, U'ü')), U"(none)");
    Text longest; // 63 code points, each composed of four
    for (int i = 0; i < 63; i++) longest += U"\u03B1\u0313\u0300\u0345";
    EXPECT_EQ(mapped(longest), Text(63, U'\u1F82'));
    EXPECT_EQ(mapped(longest + U"a"), U"(none)");
    EXPECT_EQ(mapped(U"a" + Text(1'000'000, U'\u0301')), U"(none)");
}

TEST(MapLabel, RandomText) {
    constexpr std::u32string_view alphabet =
        U"aeouAEOUäÄ\u0300\u0301\u0302\u0304\u0306\u0307\u0308\u030A\u030B\u030C\u0313\u0323\u0325\u0327\u0328\u0331"
        U"\u0334"
        U"\u0338\u0345\u0344\u0340\u0130\u01D5\u03B1\u03A9\u1F00\u1F82\u1FB4\u1100\u1102\u1112\u1161\u1175\u11A7\u11A8"
        U"\u11C2"
        U"\uAC00\uAC01\uD7A3\u0915\u093C\u094D\u0958\u09C7\u09BE\u09D7\u0B47\u0B56\u0CC6\u0CC2\u0CD5\u0DD9\u0DCF\u0DCA"
        U"\u0F71\u0F72\u0F73\u0F74\u0F81\u1025\u102E\u1B05\u1B35\u304B\u3099\u309A\u30AB\uFF76\uFF9E\uFF9F\uF900"
        U"\U00011099"
        U"\U000110BA\U0001109A\U00011347\U0001133E\U0001D15E\U0002F800\u0F0B\u2126\u212B\uFF21\u2ADC\u05D0\u05B7\uFB1D";
    std::mt19937 random(5895);
    for (int i = 0; i < 50'000; i++) {
        Text text;
        for (size_t count = 1 + random() % 12; count; count--) text += alphabet[random() % alphabet.size()];
        ASSERT_EQ(mapped(text), icuMapped(text)) << utf8(text);
    }
}

// Labels.

bool isULabelByItself(Text const &label) {
    if (!nx::isULabel(label)) return false;
    return !nx::isRightToLeftLabel(label) || nx::satisfiesBidiRule(label);
}

int idn2Registers(Text const &label) {
    uint8_t *aLabel = nullptr;
    int const result = idn2_register_u8(reinterpret_cast<uint8_t const *>(utf8(label).c_str()), nullptr, &aLabel, 0);
    if (result == IDN2_OK) {
        nx::Label encoded;
        EXPECT_TRUE(nx::encodePunycode(label, encoded));
        EXPECT_EQ("xn--" + utf8(encoded.view()), reinterpret_cast<char const *>(aLabel));
        idn2_free(aLabel);
    }
    return result;
}

// libidn2 2.3.3 has the tables of Unicode 12.1: what was added in 13.0, 14.0 and 15.0 is unassigned to it.
bool isNewerThanIdn2(coChar ch) {
    UVersionInfo age;
    u_charAge(static_cast<UChar32>(ch), age);
    return age[0] > 12;
}

// Such code points are compared with ICU's UTS #46, which permits what IDNA2008 does and symbols, punctuation and such.
bool icuPermits(Text const &label) {
    UErrorCode error = U_ZERO_ERROR;
    UIDNA *const idna = uidna_openUTS46(UIDNA_CHECK_BIDI | UIDNA_CHECK_CONTEXTJ | UIDNA_NONTRANSITIONAL_TO_ASCII |
                                            UIDNA_NONTRANSITIONAL_TO_UNICODE | UIDNA_USE_STD3_RULES,
                                        &error);
    std::u16string const units = utf16(label);
    UChar result[256];
    UIDNAInfo info = UIDNA_INFO_INITIALIZER;
    int32_t const length =
        uidna_labelToUnicode(idna, units.data(), static_cast<int32_t>(units.size()), result, 256, &info, &error);
    uidna_close(idna);
    EXPECT_TRUE(U_SUCCESS(error));
    return info.errors == 0 && utf32(result, length) == label;
}

bool isLetterDigit(coChar ch) { // RFC 5892, 2.1
    constexpr uint32_t mask =
        U_GC_LL_MASK | U_GC_LU_MASK | U_GC_LO_MASK | U_GC_ND_MASK | U_GC_LM_MASK | U_GC_MN_MASK | U_GC_MC_MASK;
    return U_GET_GC_MASK(static_cast<UChar32>(ch)) & mask;
}

TEST(ULabel, EveryCodePointAloneAndBehindALetter) {
    int newer = 0;
    int permitted = 0;
    for (Text const &before : {Text(), Text(U"a")}) {
        for (coChar ch = 0x80; ch < 0x110000; ch++) {
            if (isSurrogate(ch)) {
                ASSERT_FALSE(nx::isULabel(before + ch));
                continue;
            }
            Text const label = before + ch;
            int const theirs = idn2Registers(label);
            bool const ours = isULabelByItself(label);
            permitted += ours;
            if (!isNewerThanIdn2(ch)) {
                ASSERT_EQ(ours, theirs == IDN2_OK) << std::hex << uint32_t{ch} << " " << idn2_strerror_name(theirs);
                continue;
            }
            newer++;
            ASSERT_NE(theirs, IDN2_OK) << std::hex << uint32_t{ch} << ": the tables of libidn2 have become newer";
            ASSERT_EQ(ours, icuPermits(label) && isLetterDigit(ch)) << std::hex << uint32_t{ch};
        }
    }
    EXPECT_EQ(newer, 2 * (5930 + 838 + 4489)) << "the code points that 13.0, 14.0 and 15.0 added";
    EXPECT_GT(permitted, 250'000);
}

// What libidn2 2.3.3 lets pass in right-to-left labels: European and Arabic numbers in one label (RFC 5893, 2, condition
// 4), and marks at the end behind something that is neither letter nor number, as in "א-\u05B7" (condition 3).
bool isOverlookedByIdn2(Text const &label) {
    bool european = false;
    bool arabic = false;
    UCharDirection last = U_OTHER_NEUTRAL;
    for (coChar ch : label) {
        UCharDirection const direction = u_charDirection(static_cast<UChar32>(ch));
        european |= direction == U_EUROPEAN_NUMBER;
        arabic |= direction == U_ARABIC_NUMBER;
        if (direction != U_DIR_NON_SPACING_MARK) last = direction;
    }
    bool const isLetterOrNumber = last == U_LEFT_TO_RIGHT || last == U_RIGHT_TO_LEFT ||
                                  last == U_RIGHT_TO_LEFT_ARABIC || last == U_EUROPEAN_NUMBER ||
                                  last == U_ARABIC_NUMBER;
    return (european && arabic) || !isLetterOrNumber;
}

TEST(ULabel, RandomLabels) {
    constexpr std::u32string_view scripts[] = {
        U"abcxyzl0189--éüßñøł·",
        U"αβγωςϝ\u0375\u0384ά",
        U"абвя\u0487\u0301ё",
        U"אבת\u05F3\u05F4\u05B7\u05D9",
        U"عربيه\u0640\u0650\u0660\u0661\u06F0\u06F9\u200C\u200Dڡگ",
        U"कखग\u094D\u093E\u200C\u200D\u0966",
        U"かなカナ漢字ー・\u3005\u3007\u303B",
        U"한글\u1100\u1161\u11A8ᄀ",
        U"\u0780\u07A6\u0710\u0711\u07CA\u07FA\u0840\U00010A00\U00010A01\U0001E900\U0001E944",
        U"!_ .@\u00A0\u2010\u3002\uFF21\u00AD\u0378\U000E0100☃",
    };
    std::mt19937 random(5892);
    int good = 0;
    for (int i = 0; i < 60'000; i++) {
        Text label;
        size_t const script = random() % std::size(scripts);
        for (size_t count = 1 + random() % 6; count; count--) {
            std::u32string_view const from = scripts[random() % 5 ? script : random() % std::size(scripts)];
            label += from[random() % from.size()];
        }
        if (std::all_of(label.begin(), label.end(), [](coChar ch) { return ch < 0x80; })) continue;
        int const theirs = idn2Registers(label);
        bool const expected = theirs == IDN2_OK && !(nx::isRightToLeftLabel(label) && isOverlookedByIdn2(label));
        ASSERT_EQ(isULabelByItself(label), expected) << utf8(label) << " " << idn2_strerror_name(theirs);
        good += theirs == IDN2_OK;
    }
    EXPECT_GT(good, 5'000);
}

struct Row {
    std::u32string_view label;
    bool ok;
    char const *why;
};

TEST(ULabel, ContextRules) {
    Row const rows[] = {
        {U"क्\u200Cष", true, "A.1 ZWNJ after a virama"},
        {U"क\u200Cष", false, "A.1 ZWNJ after a letter that does not join"},
        {U"\u200Cकष", false, "A.1 ZWNJ first"},
        {U"نامه\u200Cای", true, "A.1 ZWNJ between joining letters"},
        {U"نامه\u0650\u200C\u0650ای", true, "A.1 ZWNJ between joining letters and transparent marks"},
        {U"نامه\u200C", false, "A.1 ZWNJ last"},
        {U"نامه\u200C\u0650", false, "A.1 ZWNJ with nothing but a transparent mark behind"},
        {U"و\u200Cا", false, "A.1 ZWNJ after a letter that joins to the right only"},
        {U"ب\u200C\u200Cب", false, "A.1 two ZWNJ: neither is between joining letters"},
        {U"ب\u200Ca", false, "A.1 ZWNJ before a letter that does not join"},
        {U"क्\u200Dष", true, "A.2 ZWJ after a virama"},
        {U"क\u200Dष", false, "A.2 ZWJ after a letter"},
        {U"ب\u200Dب", false, "A.2 ZWJ has no joining rule"},
        {U"\u200Dक", false, "A.2 ZWJ first"},
        {U"l·l", true, "A.3 middle dot between two l"},
        {U"col·legi", true, "A.3 middle dot between two l"},
        {U"L·L", false, "A.3 capital letters are not permitted"},
        {U"l·", false, "A.3 middle dot last"},
        {U"·l", false, "A.3 middle dot first"},
        {U"a·l", false, "A.3 middle dot after another letter"},
        {U"l·a", false, "A.3 middle dot before another letter"},
        {U"l··l", false, "A.3 two middle dots"},
        {U"\u0375α", true, "A.4 keraia before Greek"},
        {U"α\u0375", false, "A.4 keraia last"},
        {U"\u0375a", false, "A.4 keraia before Latin"},
        {U"א׳", true, "A.5 geresh after Hebrew"},
        {U"א׳ב", true, "A.5 geresh after Hebrew"},
        {U"׳א", false, "A.5 geresh first"},
        {U"a׳", false, "A.5 geresh after Latin"},
        {U"א״ב", true, "A.6 gershayim after Hebrew"},
        {U"״ב", false, "A.6 gershayim first"},
        {U"ア・イ", true, "A.7 katakana middle dot with Katakana"},
        {U"・あ", true, "A.7 katakana middle dot with Hiragana"},
        {U"漢・", true, "A.7 katakana middle dot with Han"},
        {U"a・b", false, "A.7 katakana middle dot with Latin"},
        {U"・", false, "A.7 katakana middle dot alone"},
        {U"・ー", false, "A.7 the prolonged sound mark is of no single script"},
        {U"ب٠١", true, "A.8 Arabic-Indic digits"},
        {U"ب۰۱", true, "A.9 extended Arabic-Indic digits"},
        {U"ب٠۱", false, "A.8, A.9 both"},
        {U"ب۰١", false, "A.8, A.9 both"},
    };
    for (Row const &row : rows) EXPECT_EQ(nx::isULabel(row.label), row.ok) << utf8(row.label) << ": " << row.why;
}

TEST(ULabel, Table) {
    Row const rows[] = {
        {U"bücher", true, "permitted"},
        {U"faß", true, "an exception of RFC 5892, 2.6"},
        {U"ὀδός", true, "final sigma, another"},
        {U"〇", true, "another"},
        {U"Ꭰ", true, "a capital letter that case folding leaves"},
        {U"\uAB70", false, "and a small one that it does not"},
        {U"Bücher", false, "an upper-case letter"},
        {U"bücher.de", false, "a dot"},
        {U"bü cher", false, "a blank"},
        {U"bü_cher", false, "an underscore"},
        {U"bu\u0308cher", false, "not in form C"},
        {U"\u0958", false, "not in form C: excluded from composition"},
        {U"\u0301ü", false, "a combining mark first"},
        {U"\u0903क", false, "a spacing mark first"},
        {U"-ü", false, "a hyphen first"},
        {U"ü-", false, "a hyphen last"},
        {U"ü-a", true, "a hyphen between"},
        {U"üa--b", false, "hyphens in third and fourth place"},
        {U"ü--b", true, "hyphens in second and third place"},
        {U"üab--c", true, "hyphens in fourth and fifth place"},
        {U"xn--ü", false, "hyphens in third and fourth place"},
        {U"bucher", false, "ASCII only"},
        {U"", false, "empty"},
        {U"☃", false, "a symbol"},
        {U"ﬁ", false, "a compatibility character"},
        {U"\u1100\u1161", false, "old Hangul jamo"},
        {U"ـ", false, "tatweel, an exception"},
        {U"\u0378", false, "unassigned"},
        {U"\uE000", false, "private use"},
        {U"\uFFFE", false, "a noncharacter"},
        {U"\U000E0100", false, "ignorable"},
        {U"\u20D0ü", false, "a mark for symbols"},
        {U"ü\u20D0", false, "a mark for symbols"},
    };
    for (Row const &row : rows) EXPECT_EQ(nx::isULabel(row.label), row.ok) << utf8(row.label) << ": " << row.why;
}

TEST(ULabel, BeyondUnicode) {
    for (coChar ch : {coChar{0x110000}, coChar{0x80000061}, coChar{0xFFFFFFFF}}) EXPECT_FALSE(nx::isULabel({&ch, 1}));
}

TEST(BidiRule, Table) {
    Row const rows[] = {
        {U"a", true, "left to right"},
        {U"a1", true, "ends with EN"},
        {U"a\u0301", true, "ends with NSM after L"},
        {U"a-b", true, "ES inside"},
        {U"a-", false, "condition 6: ends with ES"},
        {U"aא", false, "condition 5: R after L"},
        {U"a٠", false, "condition 5: AN after L"},
        {U"1", false, "condition 1: begins with EN"},
        {U"1a", false, "condition 1: begins with EN"},
        {U"-a", false, "condition 1: begins with ES"},
        {U"٠א", false, "condition 1: begins with AN"},
        {U"א", true, "right to left"},
        {U"ا", true, "right to left"},
        {U"אa", false, "condition 2: L after R"},
        {U"א-ב", true, "ES inside"},
        {U"א-", false, "condition 3: ends with ES"},
        {U"א1", true, "ends with EN"},
        {U"א٠", true, "ends with AN"},
        {U"א1\u05B7", true, "ends with NSM after EN"},
        {U"א-\u05B7", false, "condition 3: ends with NSM after ES"},
        {U"א1٠", false, "condition 4: EN and AN"},
        {U"א٠1ב", false, "condition 4: EN and AN"},
        {U"", false, "empty"},
    };
    for (Row const &row : rows) EXPECT_EQ(nx::satisfiesBidiRule(row.label), row.ok) << utf8(row.label) << row.why;
    EXPECT_FALSE(nx::isRightToLeftLabel(U"a-1\u0301"));
    EXPECT_TRUE(nx::isRightToLeftLabel(U"aא"));
    EXPECT_TRUE(nx::isRightToLeftLabel(U"ا"));
    EXPECT_TRUE(nx::isRightToLeftLabel(U"a٠"));
}

} // namespace
