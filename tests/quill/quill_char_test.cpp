#include <quill/quill_char.h>
#include <support/text.hpp>

namespace {

constexpr std::string_view letters = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz";
constexpr std::string_view digits = "0123456789";

struct Row {
    char const *name;
    bool (*isMember)(coChar ch);
    std::string members;
};

std::string join(std::initializer_list<std::string_view> parts) {
    std::string all;
    for (std::string_view part : parts) all += part;
    return all;
}

bool isHexdig(coChar ch) { return quill___CharIsHexdig(ch, nullptr); }

std::vector<Row> const rows = {
    {"Alpha", quill___CharIsAlpha, join({letters})},
    {"Digit", quill___CharIsDigit, join({digits})},
    {"Alphanum", quill___CharIsAlphanum, join({letters, digits})},
    {"Atom", quill___CharIsAtom, join({letters, digits, "-!%*+_`'~"})},
    {"TokenNodot", quill___CharIsTokenNodot, join({letters, digits, "-!%*+_`'~"})},
    {"Token", quill___CharIsToken, join({letters, digits, "-.!%*+_`'~"})},
    {"Hexdig", isHexdig, join({digits, "ABCDEFabcdef"})},
    {"HnvUnreserved", quill___CharIsHnvUnreserved, "[]/?:+$"},
    {"Lws", quill___CharIsLws, " \t"},
    {"Mark", quill___CharIsMark, "-_.!~*'()"},
    {"Reserved", quill___CharIsReserved, ";/?:@&=+$,"},
    {"Separator", quill___CharIsSeparator, "()<>@,;:\\\"/[]?={} \t"},
    {"Unreserved", quill___CharIsUnreserved, join({letters, digits, "-_.!~*'()"})},
    {"ParamChar", quill___CharIsParamChar, join({letters, digits, "-_.!~*'()", "[]/:&+$%"})},
    {"UserUnreserved", quill___CharIsUserUnreserved, "&=+$,;?/"},
    {"Word", quill___CharIsWord, join({letters, digits, "-.!%*_+`'~()<>:\\\"/[]?{}"})},
};

} // namespace

TEST(QuillChar, EveryClassHasItsMembersAndNoOther) {
    ASSERT_EQ(rows.size(), 16u);
    for (Row const &row : rows) {
        for (coChar ch = 0; ch <= 0x250; ch++) {
            bool const expected = ch > 0 && ch < 128 && row.members.find(static_cast<char>(ch)) != std::string::npos;
            EXPECT_EQ(row.isMember(ch), expected) << row.name << " of " << static_cast<uint32_t>(ch);
        }
    }
}

TEST(QuillChar, NothingBeyondAsciiIsAMember) {
    // The first three fold or cut to ASCII letters; the last ones are negative as the signed integers they came from.
    coChar const values[] = {0x0130,
                             0x212A,
                             0x10041,
                             0x10000 + U'0',
                             0x01000000 + U'-',
                             0x0000FFFD,
                             0x10FFFF,
                             0x110000,
                             0x7FFFFFFF,
                             0x80000000,
                             0x80000041,
                             ~0u,
                             ~0u - 127u,
                             static_cast<coChar>(-65)};
    for (Row const &row : rows) {
        for (coChar const ch : values)
            EXPECT_FALSE(row.isMember(ch)) << row.name << " of " << static_cast<uint32_t>(ch);
    }
}

TEST(QuillChar, HexdigTellsTheValue) {
    for (coChar ch = 0; ch <= 0x250; ch++) {
        int64_t value = 99;
        bool const isDigit = quill___CharIsHexdig(ch, &value);
        size_t const index = ch > 0 && ch < 128
                                 ? std::string_view("0123456789abcdef0123456789ABCDEF").find(static_cast<char>(ch))
                                 : std::string_view::npos;
        EXPECT_EQ(isDigit, index != std::string_view::npos) << static_cast<uint32_t>(ch);
        EXPECT_EQ(value, isDigit ? static_cast<int64_t>(index % 16) : -1) << static_cast<uint32_t>(ch);
        EXPECT_EQ(quill___CharIsHexdig(ch, nullptr), isDigit);
    }
}

TEST(QuillChar, NeighboursOfTheLetters) {
    for (coChar const ch : {U'@', U'[', U'`', U'{'}) EXPECT_FALSE(quill___CharIsAlpha(ch));
    for (coChar const ch : {U'/', U':'}) EXPECT_FALSE(quill___CharIsDigit(ch));
    for (coChar const ch : {U'\r', U'\n', U'\v', U'\f', coChar{0xA0}}) EXPECT_FALSE(quill___CharIsLws(ch));
}
