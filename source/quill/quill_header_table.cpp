// A fragment's header collection. Contract: quill_header_table.hpp.

#define CO_UNIT "source/quill/quill_header_table"

#include <algorithm>
#include <co/co_assert.hpp>
#include <co/co_buffer.hpp>
#include <co/co_hash.hpp>
#include <co/co_memory.h>
#include <quill/quill_field_name.hpp>
#include <quill/quill_header_table.hpp>
#include <quill/quill_message_header.h>
#include <quill/quill_message_header.hpp>

namespace quill {

using Bytes = std::string_view;

static void freeNothing(coObj *) {}

constinit coSort const WireText::sort{&co___sort_CO_SORT, &quill___module, "QUILL_WIRE_TEXT",
                                      freeNothing,        nullptr,         nullptr};

namespace {

constexpr int64_t fewUnknown = 8; // names that are searched one after the other
constexpr int64_t usualEntries = 20;
constexpr uint32_t noEntry = UINT32_MAX;

template <class T> inline T trimmed(T text) {
    auto const isBlank = [](auto ch) { return ch == ' ' || ch == '\t'; };
    while (!text.empty() && isBlank(text.front())) text.remove_prefix(1);
    while (!text.empty() && isBlank(text.back())) text.remove_suffix(1);
    return text;
}

// What stands before the next line end; the rest stays without both.
inline Bytes takeLine(Bytes *rest) {
    size_t const end = rest->find("\r\n");
    Bytes const line = rest->substr(0, end);
    rest->remove_prefix(end == Bytes::npos ? rest->size() : end + 2);
    return line;
}

// Calls `add` with the pieces of a folded text, trimmed, those of white space alone left out.
template <class Add> void forEachPiece(Bytes folded, Add add) {
    while (!folded.empty())
        if (Bytes const piece = trimmed(takeLine(&folded)); !piece.empty()) add(piece);
}

} // namespace

// Known names have their places in an array, the others are searched, or hashed when there are many. Removed entries
// leave a gap, which is closed when gaps outnumber entries.
struct HeaderSet : coObj {
    static coSort const sort;

    WireText *text; // null where nothing was decoded
    HeaderEntry *entries;
    int64_t used; // with gaps
    int64_t length;
    int64_t capacity;
    int64_t unknown;  // entries of other names, with gaps
    uint32_t *slots;  // of other names, open addressing; null while they are few
    int64_t slotMask; // their number is a power of two
    uint32_t placeOfKnown[knownFieldNameCount];

    HeaderEntry *inlineEntries() { return reinterpret_cast<HeaderEntry *>(this + 1); }
    uint32_t find(co::Chars name, int known) const;
    uint32_t add(HeaderEntry const &entry); // takes the entry's references over
    void remove(uint32_t place, int known);

private:
    void grow();
    void index(uint32_t place);
    void indexAll();
    void closeGaps();
};

static HeaderSet *makeHeaderSet(int64_t capacity) {
    int64_t const size = static_cast<int64_t>(sizeof(HeaderSet) + sizeof(HeaderEntry) * static_cast<size_t>(capacity));
    auto *set = static_cast<HeaderSet *>(co::allocateObject(size, &HeaderSet::sort));
    set->text = nullptr;
    set->entries = set->inlineEntries();
    set->used = set->length = set->unknown = 0;
    set->capacity = capacity;
    set->slots = nullptr;
    set->slotMask = 0;
    std::fill(std::begin(set->placeOfKnown), std::end(set->placeOfKnown), noEntry);
    return set;
}

static void freeEntries(HeaderSet *set) {
    if (set->entries != set->inlineEntries()) coMemFree(set->entries);
}

static void releaseEntry(HeaderEntry const &entry) {
    if (!entry.name) return;
    co::release(entry.name);
    if (entry.header) co::release(entry.header);
}

static void freeHeaderSet(coObj *obj) {
    auto *set = static_cast<HeaderSet *>(obj);
    for (int64_t i = 0; i < set->used; i++) releaseEntry(set->entries[i]);
    if (set->text) co::release(set->text);
    freeEntries(set);
    coMemFree(set->slots);
    set->entries = co::released<HeaderEntry>();
    set->text = co::released<WireText>();
}

constinit coSort const HeaderSet::sort{&co___sort_CO_SORT, &quill___module, "QUILL_HEADER_SET",
                                       freeHeaderSet,      nullptr,         nullptr};

uint32_t HeaderSet::find(co::Chars name, int known) const {
    if (known >= 0) return placeOfKnown[known];
    if (unknown == 0) return noEntry;
    if (slots) {
        for (auto slot = static_cast<int64_t>(co::hash(name)) & slotMask; slots[slot] != noEntry;
             slot = (slot + 1) & slotMask)
            if (HeaderEntry const &entry = entries[slots[slot]]; entry.name && entry.name->view() == name)
                return slots[slot];
        return noEntry;
    }
    for (int64_t i = 0; i < used; i++)
        if (entries[i].name && entries[i].name->view() == name) return static_cast<uint32_t>(i);
    return noEntry;
}

// Gaps keep their slots until all are indexed anew: a search goes on behind them.
void HeaderSet::index(uint32_t place) {
    auto slot = static_cast<int64_t>(co::hash(entries[place].name->view())) & slotMask;
    while (slots[slot] != noEntry) slot = (slot + 1) & slotMask;
    slots[slot] = place;
}

void HeaderSet::indexAll() {
    coMemFree(slots);
    slots = nullptr;
    if (unknown <= fewUnknown) return;
    int64_t slotCount = 64;
    while (slotCount < unknown * 4) slotCount *= 2;
    slots = static_cast<uint32_t *>(coMemAllocN(slotCount, sizeof(uint32_t)));
    std::fill(slots, slots + slotCount, noEntry);
    slotMask = slotCount - 1;
    for (int64_t i = 0; i < used; i++)
        if (entries[i].name && entries[i].known < 0) index(static_cast<uint32_t>(i));
}

void HeaderSet::grow() {
    int64_t const wanted = capacity + capacity / 2 + 8;
    auto *moved = static_cast<HeaderEntry *>(coMemAllocN(wanted, sizeof(HeaderEntry)));
    std::copy(entries, entries + used, moved);
    freeEntries(this);
    entries = moved;
    capacity = wanted;
}

uint32_t HeaderSet::add(HeaderEntry const &entry) {
    if (used == capacity) grow();
    auto const place = static_cast<uint32_t>(used++);
    length++;
    entries[place] = entry;
    if (entry.known >= 0) {
        placeOfKnown[entry.known] = place;
        return place;
    }
    unknown++;
    if (slots ? unknown * 2 > slotMask : unknown > fewUnknown)
        indexAll();
    else if (slots)
        index(place);
    return place;
}

void HeaderSet::remove(uint32_t place, int known) {
    releaseEntry(entries[place]);
    entries[place].name = nullptr;
    entries[place].header = nullptr;
    length--;
    if (known >= 0) placeOfKnown[known] = noEntry;
    if (used > 16 && length < used / 2) closeGaps();
}

void HeaderSet::closeGaps() {
    int64_t kept = 0;
    unknown = 0;
    for (int64_t i = 0; i < used; i++) {
        if (!entries[i].name) continue;
        entries[kept] = entries[i];
        if (int const known = entries[kept].known; known >= 0)
            placeOfKnown[known] = static_cast<uint32_t>(kept);
        else
            unknown++;
        kept++;
    }
    used = kept;
    indexAll();
}

// Copy on write.
static HeaderSet *writable(co::Slot<HeaderSet> *slot) {
    HeaderSet *old = slot->get();
    if (old && co::isUnique(old)) return old;
    HeaderSet *own = makeHeaderSet(old ? old->length + 2 : 8);
    if (old) {
        own->text = co::retained(old->text);
        for (int64_t i = 0; i < old->used; i++) {
            HeaderEntry entry = old->entries[i];
            if (!entry.name) continue;
            co::retain(entry.name);
            entry.header = co::retained(entry.header);
            own->add(entry);
        }
    }
    slot->adopt(own);
    return own;
}

// Decoding.

namespace {

// The index of the lines while it grows: on the stack for as many as a message usually has.
class LineIndex {
public:
    ~LineIndex() { coMemFree(heap); }

    uint32_t add(WireLine const &line) {
        if (count == capacity) grow();
        lines[count] = line;
        return static_cast<uint32_t>(count++);
    }

    WireLine local[48];
    WireLine *heap = nullptr;
    WireLine *lines = local;
    int64_t count = 0;
    int64_t capacity = 48;

private:
    void grow() {
        auto *more = static_cast<WireLine *>(coMemAllocN(capacity * 2, sizeof(WireLine)));
        std::copy(lines, lines + count, more);
        coMemFree(heap);
        lines = heap = more;
        capacity *= 2;
    }
};

bool equals(Bytes bytes, co::Chars chars) {
    return std::equal(bytes.begin(), bytes.end(), chars.begin(), chars.end(),
                      [](char byte, coChar ch) { return static_cast<unsigned char>(byte) == ch; });
}

// Splits header lines. A header is pending from its first line on until a line comes that does not continue it.
class Splitter {
public:
    Splitter(Bytes all, HeaderSet *headerSet) : text(all), set(headerSet) {}

    bool split() {
        Bytes rest = text;
        while (!rest.empty())
            if (!add(takeLine(&rest))) return false;
        return flush();
    }

    LineIndex index;
    int64_t encodedLength = 0;

private:
    bool add(Bytes line) {
        if (!pending.empty() && !line.empty() && (line.front() == ' ' || line.front() == '\t')) {
            end = line.data() + line.size();
            folded = true;
            return true;
        }
        if (!flush()) return false;
        pending = trimmed(line);
        end = line.data() + line.size();
        return true;
    }

    // field-name HCOLON field-value, the name in one piece and the value in one or more
    bool flush() {
        if (pending.empty()) return true;
        Bytes const whole(pending.data(), static_cast<size_t>(end - pending.data()));
        size_t const colon = whole.find(':');
        if (colon == Bytes::npos) return false;
        Bytes const name = nameOf(whole.substr(0, colon));
        Bytes const value = trimmed(whole.substr(colon + 1));
        bool const kept = keep(name, value, colon);
        pending = {};
        folded = false;
        return kept;
    }

    // A name with line ends around it is one nevertheless; empty where there are several pieces.
    Bytes nameOf(Bytes beforeColon) const {
        if (!folded) return trimmed(beforeColon);
        Bytes name;
        int pieces = 0;
        forEachPiece(beforeColon, [&](Bytes piece) { name = piece, pieces++; });
        return pieces == 1 ? name : Bytes();
    }

    bool keep(Bytes name, Bytes value, size_t colon) {
        int const known = knownFieldName(name);
        co::Ref<coString> normal(known >= 0 ? co::retained(fieldNameAt(known)) : tryNormalizeFieldName(name));
        if (!normal) return false;
        bool const manyPieces = folded && value.find("\r\n") != Bytes::npos;
        bool const plain = !folded && !value.empty() && value.data() == pending.data() + colon + 2 &&
                           value.data()[-1] == ' ' && value.data() + value.size() == end;
        bool const canonical = plain && name.size() == colon && equals(name, normal->view());
        encodedLength += normal->length + static_cast<int64_t>(value.size()) + 4;
        WireLine const line{offset(pending.data()),
                            offset(value.data()),
                            static_cast<uint32_t>(value.size()),
                            noLine,
                            manyPieces,
                            plain,
                            canonical};
        uint32_t const place = index.add(line);
        uint32_t const at = set->find(normal->view(), known);
        if (at == noEntry) {
            set->add({normal.take(), nullptr, place, place, 1, known});
            return true;
        }
        HeaderEntry &entry = set->entries[at];
        index.lines[entry.last].next = place;
        entry.last = place;
        entry.count++;
        return true;
    }

    uint32_t offset(char const *at) const { return static_cast<uint32_t>(at - text.data()); }

    Bytes text;
    HeaderSet *set;
    Bytes pending; // the first line, trimmed
    char const *end = nullptr;
    bool folded = false;
};

} // namespace

bool HeaderTable::tryDecode(Bytes lines, bool ascii) {
    if (lines.size() >= noLine) return false;
    co::Ref<HeaderSet> set(makeHeaderSet(usualEntries));
    Splitter splitter(lines, set.get());
    if (!splitter.split()) return false;
    LineIndex const &index = splitter.index;
    auto const byteCount = static_cast<int64_t>(lines.size());
    int64_t const size =
        static_cast<int64_t>(sizeof(WireText)) + index.count * static_cast<int64_t>(sizeof(WireLine)) + byteCount;
    auto *text = static_cast<WireText *>(co::allocateObject(size, &WireText::sort));
    text->lineCount = index.count;
    text->byteCount = byteCount;
    text->encodedLength = splitter.encodedLength;
    text->ascii = ascii;
    std::copy(index.lines, index.lines + index.count, text->lines());
    std::copy(lines.begin(), lines.end(), text->bytes());
    set->text = text;
    headers.adopt(set.take());
    return true;
}

// Reading.

HeaderEntry const *HeaderTable::find(co::Chars name) const {
    HeaderSet const *set = headers.get();
    if (!set) return nullptr;
    uint32_t const place = set->find(name, knownFieldName(name));
    return place == noEntry ? nullptr : &set->entries[place];
}

HeaderEntry const *HeaderTable::find(int known) const {
    HeaderSet const *set = headers.get();
    if (!set || set->placeOfKnown[known] == noEntry) return nullptr;
    return &set->entries[set->placeOfKnown[known]];
}

// The bytes of a line's value, joined where it is folded.
static coString *makeLine(WireText const *text, WireLine const &line) {
    Bytes const value = text->valueOf(line);
    if (!line.folded) return co::makeStringFromUtf8(value);
    coString *joined = co::makeString(static_cast<int64_t>(value.size()));
    coChar *end = joined->chars();
    forEachPiece(value, [&](Bytes piece) {
        if (end != joined->chars()) *end++ = U' ';
        end = text->widen(end, piece);
    });
    joined->length = end - joined->chars();
    return joined;
}

static struct quillMessageHeader *makeHeader(HeaderSet const *set, HeaderEntry const &entry) {
    if (entry.header) return co::retained(entry.header);
    struct quillMessageHeader *header = makeMessageHeader(entry.name);
    for (uint32_t i = entry.first; i != noLine; i = set->text->lines()[i].next)
        co::appendTaken(header->lines.address(), co::header(makeLine(set->text, set->text->lines()[i])));
    return header;
}

struct quillMessageHeader *HeaderTable::header(co::Chars name) const {
    HeaderEntry const *entry = find(name);
    return entry ? makeHeader(headers.get(), *entry) : nullptr;
}

coVector *HeaderTable::vector() const {
    coVector *vector = coVectorCreate();
    HeaderSet const *set = headers.get();
    for (int64_t i = 0; set && i < set->used; i++)
        if (set->entries[i].name) co::appendTaken(&vector, co::header(makeHeader(set, set->entries[i])));
    return vector;
}

Lines::Lines(HeaderSet const *set, HeaderEntry const *entry) : capacity(usualLength) {
    if (!entry) return;
    if (entry->header) {
        strings = entry->header->lines.get();
        total = strings->length;
        return;
    }
    text = set->text;
    place = firstPlace = entry->first;
    lastPlace = entry->last;
    total = entry->count;
}

Lines::Lines(struct quillMessageHeader const *header)
    : strings(header->lines.get()), total(strings->length), capacity(usualLength) {}

Lines::~Lines() { coMemFree(heap); }

co::Chars Lines::widen(uint32_t index) {
    WireLine const &line = text->lines()[index];
    Bytes const value = text->valueOf(line);
    if (static_cast<int64_t>(value.size()) > capacity) {
        coMemFree(heap);
        capacity = static_cast<int64_t>(value.size());
        heap = static_cast<coChar *>(coMemAllocN(capacity, sizeof(coChar)));
    }
    coChar *const chars = heap ? heap : local;
    coChar *end = chars;
    if (!line.folded) {
        end = text->widen(chars, value);
    } else {
        forEachPiece(value, [&](Bytes piece) {
            if (end != chars) *end++ = U' ';
            end = text->widen(end, piece);
        });
    }
    return {chars, static_cast<size_t>(end - chars)};
}

bool Lines::next(co::Chars *line) {
    if (strings) {
        if (place >= strings->length) return false;
        current = co::stringAt(strings, place++);
        *line = current->view();
        return true;
    }
    if (!text || place == noLine) return false;
    *line = widen(place);
    place = text->lines()[place].next;
    return true;
}

bool Lines::last(co::Chars *line) {
    if (total == 0) return false;
    *line = strings ? co::stringAt(strings, strings->length - 1)->view() : widen(lastPlace);
    return true;
}

// Changing.

void HeaderTable::set(struct quillMessageHeader *header) {
    HeaderSet *set = writable(&headers);
    co::Chars const name = header->name->view();
    int const known = knownFieldName(name);
    uint32_t const place = set->find(name, known);
    if (place == noEntry) {
        set->add({header->name.retained(), co::retained(header), noLine, noLine, 0, known});
        return;
    }
    HeaderEntry &entry = set->entries[place];
    if (struct quillMessageHeader *old = std::exchange(entry.header, co::retained(header))) co::release(old);
}

void HeaderTable::remove(co::Chars name) {
    int const known = knownFieldName(name);
    if (!headers || headers->find(name, known) == noEntry) return;
    HeaderSet *set = writable(&headers);
    set->remove(set->find(name, known), known); // a copy has other places
}

void HeaderTable::removeAll() { headers.clear(); }

// Encoding.

namespace {

// Writes lines behind one another. What stands in the received bytes as it is written, from a line's start or from its
// colon up to the next line that does not, is a run and copied at once.
class LineWriter {
public:
    LineWriter(uint8_t *to, WireText const *wireText) : at(to), text(wireText) {}

    void write(HeaderEntry const &entry) {
        if (entry.header) {
            coVector const *lines = entry.header->lines.get();
            for (int64_t i = 0; i < lines->length; i++) write(entry, co::stringAt(lines, i)->view());
            return;
        }
        for (uint32_t i = entry.first; i != noLine; i = text->lines()[i].next) write(entry, text->lines()[i]);
    }

    // A line in the place of the entry's, whose first one may be the same.
    void writeInstead(HeaderEntry const &entry, Bytes whole) {
        if (!entry.header) {
            WireLine const &line = text->lines()[entry.first];
            if (line.canonical && Bytes(text->bytes() + line.start, endOf(line) - line.start) == whole)
                return addToRun(line.start, endOf(line));
        }
        write(whole);
    }

    void write(Bytes whole) {
        flush();
        at = co::put(co::put(at, whole), "\r\n");
    }

    uint8_t *finish() {
        flush();
        return at;
    }

private:
    static constexpr size_t nowhere = SIZE_MAX - 2;

    static size_t endOf(WireLine const &line) { return size_t{line.value} + line.length; }

    void addToRun(size_t start, size_t end) {
        if (start != runEnd + 2) {
            flush();
            runStart = start;
        }
        runEnd = end;
    }

    void flush() {
        if (runEnd == nowhere) return;
        at = co::put(co::put(at, Bytes(text->bytes() + runStart, runEnd - runStart)), "\r\n");
        runEnd = nowhere;
    }

    void write(HeaderEntry const &entry, WireLine const &line) {
        if (line.canonical) return addToRun(line.start, endOf(line));
        flush();
        putName(entry);
        if (line.plain) return addToRun(line.value - 2, endOf(line));
        at = co::put(at, ": ");
        if (line.folded)
            putJoined(text->valueOf(line));
        else
            at = co::put(at, text->valueOf(line));
        at = co::put(at, "\r\n");
    }

    void write(HeaderEntry const &entry, co::Chars value) {
        flush();
        putName(entry);
        at = co::put(at, ": ");
        at = co::put(co::narrowToUtf8(at, value), "\r\n");
    }

    void putName(HeaderEntry const &entry) {
        at = entry.known >= 0 ? putFieldName(at, entry.known) : co::narrowAscii(at, entry.name->view());
    }

    void putJoined(Bytes folded) {
        uint8_t *const start = at;
        forEachPiece(folded, [&](Bytes piece) {
            if (at != start) *at++ = ' ';
            at = co::put(at, piece);
        });
    }

    uint8_t *at;
    WireText const *text;
    size_t runStart = nowhere;
    size_t runEnd = nowhere;
};

} // namespace

uint8_t *HeaderTable::encode(uint8_t *to, Bytes contentLengthLine) const {
    HeaderSet const *set = headers.get();
    LineWriter writer(to, set ? set->text : nullptr);
    HeaderEntry const *lengthEntry = find(contentLengthField);
    for (int64_t i = 0; set && i < set->used; i++) {
        HeaderEntry const &entry = set->entries[i];
        if (!entry.name) continue;
        if (&entry == lengthEntry)
            writer.writeInstead(entry, contentLengthLine);
        else
            writer.write(entry);
    }
    if (!lengthEntry) writer.write(contentLengthLine);
    return writer.finish();
}

// Lines of the received bytes count even where a header was set in their place: then there is room to spare.
int64_t HeaderTable::encodedLength() const {
    HeaderSet const *set = headers.get();
    if (!set) return 0;
    int64_t bytes = fieldNameRoom + (set->text ? set->text->encodedLength : 0);
    for (int64_t i = 0; i < set->used; i++) {
        struct quillMessageHeader const *header = set->entries[i].header;
        for (int64_t k = 0; header && k < header->lines->length; k++)
            bytes += header->name->length + co::utf8Length(co::stringAt(header->lines.get(), k)->view()) + 4;
    }
    return bytes;
}

} // namespace quill
