#include <support/text.hpp>

namespace test {

Str::Str(std::string_view utf8) : Str(std::u32string_view(wide(utf8))) {}

Str::Str(std::u32string_view chars)
    : string(coStringCreateFromCharsCopy(chars.data(), static_cast<int64_t>(chars.size()))) {}

std::string utf8(coString const *borrowed) {
    if (!borrowed) return "(null)";
    std::string text;
    coChar const *chars = coStringBacking(borrowed);
    for (int64_t i = 0; i < coStringLength(borrowed); i++) {
        coChar const ch = chars[i];
        auto put = [&](coChar byte) { text += static_cast<char>(static_cast<unsigned char>(byte)); };
        if (ch < 0x80) {
            put(ch);
        } else if (ch < 0x800) {
            put(0xC0 | ch >> 6), put(0x80 | (ch & 0x3F));
        } else if (ch < 0x10000) {
            put(0xE0 | ch >> 12), put(0x80 | (ch >> 6 & 0x3F)), put(0x80 | (ch & 0x3F));
        } else {
            put(0xF0 | ch >> 18), put(0x80 | (ch >> 12 & 0x3F)), put(0x80 | (ch >> 6 & 0x3F)), put(0x80 | (ch & 0x3F));
        }
    }
    return text;
}

std::string taken(coString *owned) {
    std::string const text = utf8(owned);
    if (owned) coStringRelease(owned);
    return text;
}

std::string bytes(coBuffer const *borrowed) {
    if (!borrowed) return "(null)";
    if (coBufferLength(borrowed) == 0) return {};
    return {reinterpret_cast<char const *>(coBufferBacking(borrowed)), static_cast<size_t>(coBufferLength(borrowed))};
}

std::string takenBytes(coBuffer *owned) {
    std::string const text = bytes(owned);
    if (owned) coBufferRelease(owned);
    return text;
}

co::Ref<coBuffer> buffer(std::string_view text) {
    return co::Ref<coBuffer>(
        coBufferCreateFromBytesCopy(reinterpret_cast<uint8_t const *>(text.data()), static_cast<int64_t>(text.size())));
}

std::u32string wide(std::string_view utf8) {
    std::u32string chars;
    for (size_t i = 0; i < utf8.size();) {
        auto const byte = static_cast<unsigned char>(utf8[i]);
        size_t const length = byte < 0x80 ? 1 : byte < 0xE0 ? 2 : byte < 0xF0 ? 3 : 4;
        char32_t ch = length == 1 ? byte : byte & (0xFFu >> (length + 1));
        for (size_t k = 1; k < length; k++) ch = ch << 6 | (static_cast<unsigned char>(utf8[i + k]) & 0x3Fu);
        chars += ch;
        i += length;
    }
    return chars;
}

testing::Matcher<std::string const &> abortText(std::string unit, std::string condition, std::string message) {
    std::string const before = "abort: " + (message.empty() ? "" : message + ": ") + unit + ":";
    return testing::AllOf(testing::HasSubstr(before), testing::HasSubstr(": " + condition + "\n"));
}

} // namespace test
