#include "text.hpp"

#include "objects.hpp"
#include <co/co_charset.h>
#include <cstdio>

namespace inspect {
namespace {

String fromBytes(std::string_view bytes) {
    return String(coStringCreateFromCstr(bytes.data(), static_cast<int64_t>(bytes.size())));
}

std::u32string_view chars(coString const *string) {
    return {coStringBacking(string), static_cast<size_t>(coStringLength(string))};
}

} // namespace

bool isPlain(coChar ch) {
    bool const control = ch < 0x20 || (ch >= 0x7F && ch <= 0x9F);
    bool const direction =
        ch == 0x61C || ch == 0x200E || ch == 0x200F || (ch >= 0x202A && ch <= 0x202E) || (ch >= 0x2066 && ch <= 0x2069);
    bool const separator = ch == 0x2028 || ch == 0x2029;
    return !control && !direction && !separator && ch != 0xFEFF;
}

void appendUtf8(std::string &text, coChar ch) {
    if (ch < 0x80) {
        text += static_cast<char>(ch);
        return;
    }
    uint8_t bytes[4];
    int64_t const length = coCharsConvertToUtf8(bytes, sizeof bytes, &ch, 1, 0);
    text.append(reinterpret_cast<char const *>(bytes), static_cast<size_t>(length));
}

std::string utf8(coString const *string) {
    std::string text;
    for (coChar const ch : chars(string)) appendUtf8(text, ch);
    return text;
}

std::string repaired(std::string_view bytes) { return utf8(fromBytes(bytes).get()); }

std::string shown(coString const *string) {
    std::string text;
    for (coChar const ch : chars(string)) {
        if (isPlain(ch)) {
            appendUtf8(text, ch);
        } else {
            char escape[16];
            std::snprintf(escape, sizeof escape, "\\u{%X}", static_cast<unsigned>(ch));
            text += escape;
        }
    }
    return text;
}

std::string shown(std::string_view bytes) { return shown(fromBytes(bytes).get()); }

std::string versionText(quillMessage const *message) {
    Version const version(quillMessageVersion(message));
    String const name(quillVersionProtocolName(version.get()));
    String const number(quillVersionProtocolVersion(version.get()));
    return utf8(name.get()) + '/' + utf8(number.get());
}

} // namespace inspect
