// A fragment's header collection: raw headers by their normal names, in the order in which the names came. The fragment,
// its decoder and its encoder use this interface alone; how the headers are kept is known here and in the source file.
//
// A decoded table keeps the received bytes and an index over them: for each name the lines of it. A raw header is made
// of them when somebody asks for one, a line is widened when somebody reads it, and the encoder copies bytes. A header
// that is set stands in the table as the object it is.
#pragma once

#include <co/co_member.hpp>
#include <co/co_utf8.hpp>
#include <co/co_vector.hpp>
#include <quill/quill_field_name.hpp>
#include <quill/quill_types.h>
#include <string_view>

namespace quill {

template <class Char> constexpr bool isBlank(Char ch) { return ch == Char{' '} || ch == Char{'\t'}; }

// A text without the blanks around it.
template <class Char> std::basic_string_view<Char> withoutBlanks(std::basic_string_view<Char> text) {
    auto const *start = text.begin();
    auto const *end = text.end();
    while (start < end && isBlank(*start)) start++;
    while (start < end && isBlank(end[-1])) end--;
    return {start, end};
}

// One line of the received bytes.
struct WireLine {
    uint32_t start; // of the name
    uint32_t value; // trimmed
    uint32_t length;
    uint32_t next;  // of the same name, noLine for none
    bool folded;    // the value holds line ends, which are to be joined
    bool plain;     // from the two bytes before the value, which are colon and blank, it stands as it is written
    bool canonical; // from the start on
};

inline constexpr uint32_t noLine = UINT32_MAX;

// The received header lines, checked as UTF-8; the lines' index follows, then the bytes, unless they are those of the buffer
// that they came in. Names that are none of the known ones are in their normal form. Never changed.
struct WireText : coObj {
    static coSort const sort;
    static coSort const sortOfKept; // with a buffer
    char const *bytes;
    coBuffer *buffer;
    int64_t lineCount;
    int64_t byteCount;     // of those that follow the index
    int64_t encodedLength; // of all lines as they are written, at most
    bool ascii;            // every byte

    coChar *widen(coChar *chars, std::string_view piece) const {
        return ascii ? co::widenAscii(chars, piece) : co::widenUtf8(chars, piece);
    }
    WireLine *lines() { return reinterpret_cast<WireLine *>(this + 1); }
    WireLine const *lines() const { return reinterpret_cast<WireLine const *>(this + 1); }
    char *ownBytes() { return reinterpret_cast<char *>(lines() + lineCount); }
    std::string_view valueOf(WireLine const &line) const { return {bytes + line.value, line.length}; }
};

class HeaderLines; // of a raw header
struct HeaderSet;  // what copies of a table share until one of them changes

// What stands under one name.
struct HeaderEntry {
    struct quillMessageHeader *header = nullptr; // null while the lines of the received bytes are it
    uint32_t first = noLine;                     // of the lines
    uint32_t last = noLine;
    uint32_t count = 0;
    int32_t known = -1; // the number of a known name
    uint32_t hash = 0;  // of a name that is not known, once there are many of them
    uint32_t name = 0;  // where such a name stands in the received bytes; a header that was set has its own
    uint32_t nameLength = 0;

    bool isGap() const { return !header && count == 0; } // an entry that was removed
};

// A member of the fragment like a co::Slot: copies share, changes make private.
class HeaderTable {
public:
    static constexpr size_t references = 1;

    // Reads header lines into an empty table: all of them, or those up to an empty line. What follows that line stays. False
    // where a line is none of a header, or not UTF-8. Many bytes are kept in the buffer that they are in, where it is given.
    bool tryDecode(std::string_view *rest, bool untilEmptyLine, coBuffer const *buffer);

    bool has(FieldName name) const { return find(name) != nullptr; }
    struct quillMessageHeader *header(FieldName name) const; // owned, or null
    void remove(FieldName name);

    // The last line of a known name as it was received, where that is in one piece; else an empty text.
    std::string_view lastReceived(int known) const;

    // A new vector of the headers in order.
    coVector *vector() const;

    void set(struct quillMessageHeader *header);
    void removeAll();

    // Writes the lines of all headers, with the line of the content's length, which is given without its end, in the
    // place of the header of that name, or behind all others. Returns the end of what it wrote, which is no more than
    // encodedLength() and that line.
    uint8_t *encode(uint8_t *to, std::string_view contentLengthLine) const;
    int64_t encodedLength() const;

private:
    friend class Lines;
    HeaderEntry const *find(FieldName name) const;
    HeaderEntry const *find(int known) const { return find(FieldName{.known = known}); }

    co::Slot<HeaderSet> headers; // null for none at all
};

// Where the lines of a header are: in a table, under a known name, or in a raw header.
class LineSource {
public:
    LineSource(HeaderTable const &table, int knownName) : place(&table), known(knownName) {}
    explicit LineSource(struct quillMessageHeader const *header) : place(header), known(noName) {}

private:
    friend class Lines;
    static constexpr int noName = -1;

    // In two words, so that it is handed on in registers.
    void const *place;
    int known; // noName for a raw header
};

// The lines of one header, read one after the other without anything being made of them that is kept.
class Lines {
public:
    explicit Lines(LineSource source);
    Lines(Lines const &) = delete;
    ~Lines();

    int64_t count() const { return total; }
    // The next line, and the last one; good until another is read. False when there is none.
    bool next(co::Chars *line);
    bool last(co::Chars *line);

    // The same into memory of the caller's, so that an object reads its line where it keeps it: text that was just
    // written and is copied at once costs more than widening it.
    bool next(coChar *to, co::Chars *line);
    co::Chars last(coChar *to) const { return copy(lastPlace, to); }
    // How many code points they hold at most: the last line, and all that are left; 0 where a slot can't point into as many.
    int64_t lastRoom() const { return length(lastPlace); }
    int64_t room() const;

private:
    static constexpr int64_t usualLength = 256;

    void find(HeaderTable const &table, int known);
    void use(HeaderLines const &lines);
    bool step(uint32_t *next);
    uint32_t behind(uint32_t index) const;
    co::Chars view(uint32_t index);
    co::Chars copy(uint32_t index, coChar *to) const;
    int64_t length(uint32_t index) const; // at most
    [[gnu::cold]] void reserve(int64_t length);

    HeaderLines const *set = nullptr; // of a raw header, or else
    WireText const *text = nullptr;   // the received bytes
    uint32_t place = noLine;          // of the next line
    uint32_t lastPlace = noLine;
    int64_t total = 0;
    coChar *heap = nullptr;
    int64_t capacity;
    coChar local[usualLength];
};

} // namespace quill
