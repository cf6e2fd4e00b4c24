#include "page.hpp"

#include "text.hpp"
#include <algorithm>

namespace inspect {
namespace {

char const *code(Style style) {
    switch (style) {
    case Style::plain:
        break;
    case Style::title:
        return "\x1b[1m";
    case Style::part:
        return "\x1b[33m";
    case Style::name:
        return "\x1b[36m";
    case Style::dim:
        return "\x1b[2m";
    case Style::alarm:
        return "\x1b[1;31m";
    }
    return "";
}

/// The lines of a text, which end in LF or CR LF; a tab stays as it is.
std::vector<std::string> textLines(coString const *text) {
    std::vector<std::string> lines;
    std::string line;
    int64_t const length = coStringLength(text);
    for (int64_t i = 0; i < length; i++) {
        coChar const ch = coStringCharAt(text, i);
        bool const lineEnd = ch == '\r' && i + 1 < length && coStringCharAt(text, i + 1) == '\n';
        if (lineEnd) continue;
        if (ch == '\n') {
            lines.push_back(std::move(line));
            line.clear();
        } else if (ch == '\t' || isPlain(ch)) {
            appendUtf8(line, ch);
        } else {
            String const one(coStringCreateFromCharsCopy(&ch, 1));
            line += shown(one.get());
        }
    }
    if (!line.empty()) lines.push_back(std::move(line));
    return lines;
}

void appendHex(std::string &text, size_t value, int digits) {
    for (int shift = 4 * (digits - 1); shift >= 0; shift -= 4) text += "0123456789abcdef"[value >> shift & 0xF];
}

/// Sixteen bytes of a dump: `00 01 02 …  |...|`.
std::string dumpLine(std::span<uint8_t const> bytes) {
    constexpr size_t width = 16;
    std::string hex, chars;
    for (size_t i = 0; i < width; i++) {
        hex += i == width / 2 ? "  " : i > 0 ? " " : "";
        if (i < bytes.size()) {
            appendHex(hex, bytes[i], 2);
            chars += bytes[i] >= 0x20 && bytes[i] < 0x7F ? static_cast<char>(bytes[i]) : '.';
        } else {
            hex += "  ";
        }
    }
    return hex + "  |" + chars + '|';
}

} // namespace

void Page::put(Style style, std::string_view words) {
    bool const paint = colored && style != Style::plain && !words.empty();
    if (paint) text += code(style);
    text += words;
    if (paint) text += "\x1b[0m";
}

void Page::line(Style style, std::string_view words) {
    put(style, words);
    text += '\n';
}

void Page::table(std::vector<Row> const &rows) {
    constexpr size_t widest = 24;
    size_t column = 0, detailColumn = 0;
    for (Row const &row : rows) {
        if (row.name.size() <= widest) column = std::max(column, row.name.size());
        for (Detail const &each : row.details) detailColumn = std::max(detailColumn, each.name.size());
    }
    for (Row const &row : rows) {
        size_t const padding = column - std::min(column, row.name.size());
        for (size_t i = 0; i < row.values.size(); i++) {
            text += "  ";
            if (i == 0) {
                put(row.style, row.name);
                text.append(padding + 2, ' ');
            } else {
                text.append(column, ' ');
                put(Style::dim, "+ ");
            }
            line(Style::plain, row.values[i]);
        }
        details(row.details, column + 4, detailColumn);
    }
}

void Page::textBody(coString const *body) {
    for (std::string const &words : textLines(body)) {
        text += "  ";
        put(Style::dim, "| ");
        line(Style::plain, words);
    }
}

void Page::binaryBody(std::span<uint8_t const> bytes) {
    constexpr size_t width = 16;
    for (size_t offset = 0; offset < bytes.size(); offset += width) {
        std::string place;
        appendHex(place, offset, 8);
        text += "  ";
        put(Style::dim, place);
        line(Style::plain, "  " + dumpLine(bytes.subspan(offset, std::min(width, bytes.size() - offset))));
    }
}

void Page::details(std::vector<Detail> const &details, size_t indent, size_t nameColumn) {
    size_t markColumn = 0;
    for (Detail const &each : details) markColumn = std::max(markColumn, each.mark.size());
    for (Detail const &each : details) {
        text.append(indent + markColumn - each.mark.size(), ' ');
        put(each.markStyle, each.mark);
        text += markColumn > 0 ? "  " : "   ";
        put(Style::dim, each.name);
        if (!each.name.empty()) text.append(nameColumn - each.name.size() + 2, ' ');
        line(each.textStyle, each.text);
    }
}

} // namespace inspect
