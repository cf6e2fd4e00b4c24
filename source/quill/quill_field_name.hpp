// Names of header fields in their normal form, and the shared strings of the known ones: those of the typed headers and
// those that have a compact form (RFC 3261, 7.3.3 and 20).
#pragma once

#include <co/co_string.hpp>
#include <string_view>

namespace quill {

// The number of a known name, in any letter case or compact; -1 for others. Nothing is allocated. The typed headers come
// first, in the order of their list.
int knownFieldName(std::string_view name);
int knownFieldName(co::Chars name);

// The same, and whether the name is written in its normal form. The text that it stands in ends at `end`: a name with some
// text behind it is compared in whole words.
int matchFieldName(std::string_view name, char const *end, bool *isNormal);

// A name: its number, or else a text, which is a token, in its normal form or as it was received.
struct FieldName {
    int known = -1;
    co::Chars normal = {};
    std::string_view received = {}; // where there is no normal form
};

inline constexpr int knownFieldNameCount = 65;
inline constexpr int contentLengthFieldName = 59;       // the number of Content-Length
extern coString *sharedFieldNames[knownFieldNameCount]; // null before start-up, all ones after shut-down
inline coString *fieldNameAt(int known) { return sharedFieldNames[known]; } // borrowed
std::string_view fieldNameText(int known);                                  // the same as bytes

// Writes a known name; returns its end. All bytes of the room for it may be overwritten.
inline constexpr int64_t fieldNameRoom = 24;
uint8_t *putFieldName(uint8_t *to, int known);

// The normal form as an owned string, shared where the name is known; null where the text is no token.
coString *tryNormalizeFieldName(std::string_view name);
coString *tryNormalizeFieldName(co::Chars name);

// Of a name that is none of the known ones: whether it is a token at all, and in its normal form.
struct NameForm {
    bool isName;
    bool isNormal;
};
NameForm formOfFieldName(std::string_view name);
void normalizeFieldName(char *name, size_t length); // in its place

void startFieldNames();
void stopFieldNames();

} // namespace quill
