// A fragment's header collection. Contract: quill_header_table.hpp.

#define CO_UNIT "source/quill/quill_header_table"

#include <algorithm>
#include <co/co_assert.hpp>
#include <co/co_buffer.hpp>
#include <co/co_hash.hpp>
#include <co/co_memory.h>
#include <co/co_simd.hpp>
#include <co/co_unicode.hpp>
#include <cstring>
#include <quill/quill_field_name.hpp>
#include <quill/quill_header_table.hpp>
#include <quill/quill_message_header.h>
#include <quill/quill_message_header.hpp>

namespace quill {

using Bytes = std::string_view;

static int64_t sizeOfWireText(int64_t lineCount, int64_t byteCount) {
    return static_cast<int64_t>(sizeof(WireText)) + lineCount * static_cast<int64_t>(sizeof(WireLine)) + byteCount;
}

static int64_t sizeOfWireText(coObj const *obj) {
    auto const *text = static_cast<WireText const *>(obj);
    return sizeOfWireText(text->lineCount, text->byteCount);
}

static void freeKept(coObj *obj) {
    auto *text = static_cast<WireText *>(obj);
    co::release(text->buffer);
    text->buffer = co::released<coBuffer>();
}

constinit coSort const WireText::sort{
    &co___sort_CO_SORT, &quill___module, "QUILL_WIRE_TEXT", nullptr, nullptr, nullptr, 0, sizeOfWireText};
constinit coSort const WireText::sortOfKept{
    &co___sort_CO_SORT, &quill___module, "QUILL_WIRE_TEXT", freeKept, nullptr, nullptr, 0, sizeOfWireText};

namespace {

constexpr int64_t fewUnknown = 8; // names that are searched one after the other
constexpr int64_t usualEntries = 20;
constexpr uint32_t noEntry = UINT32_MAX;

// What stands before the next line end; the rest stays without both.
[[gnu::noinline]] Bytes takeLine(Bytes *rest) {
    size_t const end = co::findLineEnd(*rest);
    Bytes const line = rest->substr(0, end);
    rest->remove_prefix(std::min(end + 2, rest->size()));
    return line;
}

// Calls `add` with the pieces of a folded text, trimmed, those of white space alone left out.
template <class Add> void forEachPiece(Bytes folded, Add add) {
    while (!folded.empty())
        if (Bytes const piece = withoutBlanks(takeLine(&folded)); !piece.empty()) add(piece);
}

} // namespace

// Known names have their places in an array, the others are searched, or hashed when there are many. Removed entries
// leave a gap, which is closed when gaps outnumber entries.
struct HeaderSet : coObj {
    static coSort const sort;

    WireText *text;    // null where nothing was decoded
    char const *bytes; // the received ones; while they are decoded, those of the caller
    HeaderEntry *entries;
    int64_t used; // with gaps
    int64_t length;
    int64_t capacity;
    int64_t unknown;  // entries of other names, with gaps
    uint32_t *slots;  // of other names, open addressing, a quarter taken at most; null while they are few
    int64_t slotMask; // their number is a power of two
    bool counts;      // some entry holds a header
    bool hashed;      // entries of other names have their hashes
    uint32_t placeOfKnown[knownFieldNameCount];

    HeaderEntry *inlineEntries() { return reinterpret_cast<HeaderEntry *>(this + 1); }
    bool hasOutgrown() const { return entries != reinterpret_cast<HeaderEntry const *>(this + 1); }
    uint32_t find(int known) const { return placeOfKnown[known]; }
    // By a normal form, or by a name as it was received.
    template <class Name> uint32_t findUnknown(Name name, uint32_t hash) const;
    uint32_t find(FieldName name) const {
        if (name.known >= 0) return find(name.known);
        return name.normal.empty() ? findUnknown(name.received, hash(name.received))
                                   : findUnknown(name.normal, hash(name.normal));
    }
    template <class Name> uint32_t hash(Name name) const {
        return hashed ? static_cast<uint32_t>(co::hashIgnoringCase(name)) : 0;
    }
    // The name of an entry that is not known and was received.
    Bytes receivedName(HeaderEntry const &entry) const { return {bytes + entry.name, entry.nameLength}; }
    void add(HeaderEntry const &entry);
    void remove(uint32_t place);
    void copyFrom(HeaderSet const &source); // into a new set with room for all its entries

private:
    bool isNamed(HeaderEntry const &entry, co::Chars normal) const;
    bool isNamed(HeaderEntry const &entry, Bytes name) const;
    uint32_t hashOf(HeaderEntry const &entry) const;
    [[gnu::cold]] void grow();
    void index(uint32_t place);
    void indexLast(); // a new entry of another name
    void indexAll();
    void closeGaps();
};

static int64_t sizeOfHeaderSet(int64_t capacity) {
    return static_cast<int64_t>(sizeof(HeaderSet)) + capacity * static_cast<int64_t>(sizeof(HeaderEntry));
}

// A set that outgrew its memory has forgotten how much that was.
static int64_t sizeOfHeaderSet(coObj const *obj) {
    auto const *set = static_cast<HeaderSet const *>(obj);
    return set->hasOutgrown() ? 0 : sizeOfHeaderSet(set->capacity);
}

static HeaderSet *makeHeaderSet(int64_t capacity) {
    auto *set = static_cast<HeaderSet *>(co::allocateObject(sizeOfHeaderSet(capacity), &HeaderSet::sort));
    set->text = nullptr;
    set->bytes = nullptr;
    set->entries = set->inlineEntries();
    set->used = set->length = set->unknown = 0;
    set->capacity = capacity;
    set->slots = nullptr;
    set->slotMask = 0;
    set->counts = set->hashed = false;
    std::fill(std::begin(set->placeOfKnown), std::end(set->placeOfKnown), noEntry);
    return set;
}

static void freeEntries(HeaderSet *set) {
    if (set->hasOutgrown()) coMemFree(set->entries);
}

static void freeHeaderSet(coObj *obj) {
    auto *set = static_cast<HeaderSet *>(obj);
    for (int64_t i = 0; set->counts && i < set->used; i++)
        if (set->entries[i].header) co::release(set->entries[i].header);
    if (set->text) co::release(set->text);
    freeEntries(set);
    coMemFree(set->slots);
    set->entries = co::released<HeaderEntry>();
    set->text = co::released<WireText>();
}

constinit coSort const HeaderSet::sort{
    &co___sort_CO_SORT, &quill___module, "QUILL_HEADER_SET", freeHeaderSet, nullptr, nullptr, 0, sizeOfHeaderSet};

static bool equals(Bytes bytes, co::Chars chars) {
    return std::equal(bytes.begin(), bytes.end(), chars.begin(), chars.end(),
                      [](char byte, coChar ch) { return static_cast<unsigned char>(byte) == ch; });
}

bool HeaderSet::isNamed(HeaderEntry const &entry, co::Chars normal) const {
    if (entry.header) return entry.header->name->view() == normal;
    return !entry.isGap() && equals(receivedName(entry), normal);
}

// Names that differ in letter case alone have the same normal form.
template <class Other> static bool equalsIgnoringCase(Bytes name, Other other) {
    auto const lower = [](auto ch) { return co::asciiLower(static_cast<std::make_unsigned_t<decltype(ch)>>(ch)); };
    return std::equal(name.begin(), name.end(), other.begin(), other.end(),
                      [lower](auto a, auto b) { return lower(a) == lower(b); });
}

bool HeaderSet::isNamed(HeaderEntry const &entry, Bytes name) const {
    if (entry.header) return equalsIgnoringCase(name, entry.header->name->view());
    return !entry.isGap() && equalsIgnoringCase(name, receivedName(entry));
}

template <class Name> uint32_t HeaderSet::findUnknown(Name name, uint32_t hash) const {
    if (unknown == 0) return noEntry;
    if (slots) {
        int64_t slot = hash & slotMask;
        for (; slots[slot] != noEntry; slot = (slot + 1) & slotMask)
            if (entries[slots[slot]].hash == hash && isNamed(entries[slots[slot]], name)) break;
        return slots[slot];
    }
    for (int64_t i = 0; i < used; i++)
        if (entries[i].known < 0 && isNamed(entries[i], name)) return static_cast<uint32_t>(i);
    return noEntry;
}

uint32_t HeaderSet::hashOf(HeaderEntry const &entry) const {
    return entry.header ? hash(entry.header->name->view()) : hash(receivedName(entry));
}

// Gaps keep their slots until all are indexed anew: a search goes on behind them.
void HeaderSet::index(uint32_t place) {
    int64_t slot = entries[place].hash & slotMask;
    while (slots[slot] != noEntry) slot = (slot + 1) & slotMask;
    slots[slot] = place;
}

void HeaderSet::indexAll() {
    coMemFree(slots);
    slots = nullptr;
    if (unknown <= fewUnknown) return;
    int64_t slotCount = 64;
    while (slotCount < unknown * 8) slotCount *= 2;
    slots = static_cast<uint32_t *>(coMemAllocN(slotCount, sizeof(uint32_t)));
    std::fill(slots, slots + slotCount, noEntry);
    slotMask = slotCount - 1;
    bool const areHashed = std::exchange(hashed, true);
    for (int64_t i = 0; i < used; i++) {
        HeaderEntry &entry = entries[i];
        if (entry.isGap() || entry.known >= 0) continue;
        if (!areHashed) entry.hash = hashOf(entry);
        index(static_cast<uint32_t>(i));
    }
}

void HeaderSet::grow() {
    int64_t const wanted = capacity * 2 + 8;
    auto *moved = static_cast<HeaderEntry *>(coMemAllocN(wanted, sizeof(HeaderEntry)));
    std::copy(entries, entries + used, moved);
    freeEntries(this);
    entries = moved;
    capacity = wanted;
}

void HeaderSet::indexLast() {
    unknown++;
    if (slots ? unknown * 4 > slotMask : unknown > fewUnknown)
        indexAll();
    else if (slots)
        index(static_cast<uint32_t>(used - 1));
}

inline void HeaderSet::add(HeaderEntry const &entry) {
    if (used == capacity) grow();
    auto const place = static_cast<uint32_t>(used++);
    length++;
    entries[place] = entry;
    if (entry.known >= 0)
        placeOfKnown[entry.known] = place;
    else
        indexLast();
}

void HeaderSet::remove(uint32_t place) {
    HeaderEntry &entry = entries[place];
    if (struct quillMessageHeader *old = std::exchange(entry.header, nullptr)) co::release(old);
    entry.count = 0;
    length--;
    if (entry.known >= 0) placeOfKnown[entry.known] = noEntry;
    if (used > 16 && length < used / 2) closeGaps();
}

void HeaderSet::closeGaps() {
    int64_t kept = 0;
    unknown = 0;
    for (int64_t i = 0; i < used; i++) {
        if (entries[i].isGap()) continue;
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

void HeaderSet::copyFrom(HeaderSet const &source) {
    text = co::retained(source.text);
    bytes = source.bytes;
    counts = source.counts;
    hashed = source.hashed;
    std::copy(source.entries, source.entries + source.used, entries);
    used = source.used;
    length = source.length;
    for (int64_t i = 0; counts && i < used; i++)
        if (entries[i].header) co::retain(entries[i].header);
    closeGaps();
}

// Copy on write.
static HeaderSet *writable(co::Slot<HeaderSet> *slot) {
    HeaderSet *old = slot->get();
    if (old && co::isUnique(old)) return old;
    HeaderSet *own = makeHeaderSet(old ? old->used + 2 : 8);
    if (old) own->copyFrom(*old);
    slot->adopt(own);
    return own;
}

// Decoding.

namespace {

// The index of the lines while it grows: on the stack for as many as a message usually has.
class LineIndex {
public:
    ~LineIndex() { coMemFree(heap); }

    // One more, to be filled where it stands: a copy in whole blocks would wait until its small members are written.
    WireLine *add() {
        if (count == capacity) grow();
        return &lines[count++];
    }

    WireLine local[48];
    WireLine *heap = nullptr;
    WireLine *lines = local;
    int64_t count = 0;
    int64_t capacity = 48;

private:
    [[gnu::cold]] void grow() {
        auto *more = static_cast<WireLine *>(coMemAllocN(capacity * 2, sizeof(WireLine)));
        std::copy(lines, lines + count, more);
        coMemFree(heap);
        lines = heap = more;
        capacity *= 2;
    }
};

// Splits header lines, each of which is found, named and entered in one go.
class Splitter {
public:
    Splitter(Bytes all, bool toEmptyLine, HeaderSet *headerSet)
        : text(all), untilEmptyLine(toEmptyLine), set(headerSet) {
        set->bytes = text.data();
    }

    // A header goes on in the lines that begin with a blank. Blanks that follow no header say nothing.
    bool split() {
        co::simd::Places returns(text, '\r');
        char const *start = text.begin(); // of a header
        bool folded = false;
        for (char const *at = start; at < text.end();) {
            char const *const end = takeLine(returns, &at);
            if (start == end && untilEmptyLine) return finish(start, at, returns.sawAsciiAlone());
            bool const goesOn = at < text.end() && isBlank(*at);
            if (folded || goesOn || !keepUsual(start, end)) {
                while (start < end && isBlank(*start)) start++;
                folded = folded || (goesOn && start < end);
                if (folded && goesOn) continue;
                if (start < end && !keep(start, end, folded)) return false;
                folded = false;
            }
            start = at;
        }
        return finish(text.end(), text.end(), returns.sawAsciiAlone());
    }

    Bytes headers; // what was split
    Bytes rest;    // behind the empty line
    LineIndex index;
    int64_t encodedLength = 0;
    bool isAscii = false;     // all of it; not known where what follows is none
    bool hasOddNames = false; // some are not in their normal form, known ones apart

private:
    bool finish(char const *end, char const *next, bool sawAsciiAlone) {
        isAscii = sawAsciiAlone;
        headers = Bytes(text.begin(), end);
        rest = Bytes(next, text.end());
        return headers.size() < noLine;
    }

    // The end of the line; the next one is at hand then.
    [[gnu::always_inline]] char const *takeLine(co::simd::Places &returns, char const **at) const {
        for (;;) {
            size_t const end = returns.next();
            if (end + 1 >= text.size()) return *at = text.end();
            if (text[end + 1] != '\n') continue;
            *at = text.begin() + end + 2;
            return text.begin() + end;
        }
    }

    // A line of a short name with one blank behind the colon and none at another place: as nearly all are. False, and
    // nothing is kept, for any other. No name holds a line end, so that the search for the colon needn't mind it.
    [[gnu::always_inline]] bool keepUsual(char const *start, char const *end) {
        constexpr size_t nameRoom = 32; // and the colon: two blocks
        static_assert(nameRoom > fieldNameRoom);
        auto const left = static_cast<size_t>(text.end() - start);
        Bytes const name(start, co::simd::find(Bytes(start, std::min(left, nameRoom)), ':'));
        bool isNormal;
        int const known = matchFieldName(name, text.end(), &isNormal);
        if (end - name.end() < 3 || name.end()[1] != ' ') return false;
        Bytes const value(name.end() + 2, end);
        if (isBlank(value.front()) || isBlank(value.back())) return false;
        if (known < 0) return *name.end() == ':' && tryKeepUnknown(name, value, {.folded = false, .plain = true});
        addLine(name, value, {.folded = false, .plain = true, .canonical = isNormal});
        countWritten(known, name.size(), value.size());
        enter(set->find(known), known);
        return true;
    }

    // field-name HCOLON field-value, the name in one piece and the value in one or more
    [[gnu::noinline]] bool keep(char const *start, char const *end, bool folded) {
        char const *const colon = start + co::simd::find(Bytes(start, text.end()), ':');
        if (colon >= end || colon == start) return false;
        Bytes name(start, colon);
        Bytes value(colon + 1, end);
        // One blank behind the colon, and none at another place.
        bool const usual = !folded && value.size() > 1 && value[0] == ' ' && !isBlank(value[1]) && !isBlank(end[-1]) &&
                           !isBlank(colon[-1]);
        if (usual) {
            value.remove_prefix(1);
        } else {
            name = folded ? pieceOf(name) : withoutBlanks(name);
            value = withoutBlanks(value);
        }
        bool isNormal;
        int const known = matchFieldName(name, text.end(), &isNormal);
        Form const form{folded && value.find("\r\n") != Bytes::npos, usual, usual && isNormal};
        if (known < 0) return tryKeepUnknown(name, value, form);
        addLine(name, value, form);
        countWritten(known, name.size(), value.size());
        enter(set->find(known), known);
        return true;
    }

    struct Form {
        bool folded;
        bool plain;
        bool canonical = false;
    };

    void addLine(Bytes name, Bytes value, Form form) {
        WireLine *const line = index.add();
        line->start = offset(name.begin());
        line->value = offset(value.begin());
        line->length = static_cast<uint32_t>(value.size());
        line->next = noLine;
        line->folded = form.folded;
        line->plain = form.plain;
        line->canonical = form.canonical;
    }

    void countWritten(int known, size_t nameLength, size_t valueLength) {
        if (nameLength == 1 && known >= 0) nameLength = fieldNameText(known).size(); // of a compact form
        encodedLength += static_cast<int64_t>(nameLength + valueLength) + 4;
    }

    // False, and nothing is kept, where the name is none at all.
    [[gnu::noinline]] bool tryKeepUnknown(Bytes name, Bytes value, Form form) {
        bool const isSame = unknown.place != noEntry && name == unknown.name;
        if (!isSame && !findUnknown(name)) return false;
        form.canonical = form.plain && unknown.isNormal;
        addLine(name, value, form);
        countWritten(-1, name.size(), value.size());
        enter(unknown.place, -1, unknown.hash);
        return true;
    }

    bool findUnknown(Bytes name) {
        NameForm const form = formOfFieldName(name);
        if (!form.isName) return false;
        uint32_t const hash = set->hash(name);
        uint32_t const place = set->findUnknown(name, hash);
        unknown = {name, form.isNormal, place == noEntry ? static_cast<uint32_t>(set->used) : place, hash};
        hasOddNames = hasOddNames || !form.isNormal;
        return true;
    }

    // The last line is one more of an entry, or the first one of a new entry.
    [[gnu::always_inline]] void enter(uint32_t place, int known, uint32_t hash = 0) {
        auto const line = static_cast<uint32_t>(index.count - 1);
        if (place >= set->used) return addEntry(line, known, hash);
        HeaderEntry &entry = set->entries[place];
        index.lines[entry.last].next = line;
        entry.last = line;
        entry.count++;
    }

    void addEntry(uint32_t line, int known, uint32_t hash) {
        set->add({.first = line,
                  .last = line,
                  .count = 1,
                  .known = known,
                  .hash = hash,
                  .name = index.lines[line].start,
                  .nameLength = static_cast<uint32_t>(unknown.name.size())});
    }

    // A name with line ends around it is one nevertheless; empty where there are several pieces.
    static Bytes pieceOf(Bytes folded) {
        Bytes name;
        int pieces = 0;
        forEachPiece(folded, [&](Bytes piece) { name = piece, pieces++; });
        return pieces == 1 ? name : Bytes();
    }

    uint32_t offset(char const *at) const { return static_cast<uint32_t>(at - text.begin()); }

    // The name that was none of the known ones last: lines of one name mostly follow each other.
    struct Unknown {
        Bytes name;
        bool isNormal = false;
        uint32_t place = noEntry; // the next new one, where it has none yet
        uint32_t hash = 0;
    };

    Bytes const text;
    bool const untilEmptyLine;
    HeaderSet *const set;
    Unknown unknown;
};

} // namespace

// Puts names that are none of the known ones into their normal form, so that they can be compared and written as they stand.
static void normalizeNames(HeaderSet const *set, WireText *text) {
    char *const bytes = text->ownBytes();
    for (int64_t i = 0; i < set->used; i++) {
        HeaderEntry const &entry = set->entries[i];
        if (entry.known >= 0) continue;
        char *const name = bytes + entry.name;
        normalizeFieldName(name, entry.nameLength);
        for (uint32_t k = entry.first; k != noLine; k = text->lines()[k].next) {
            WireLine &line = text->lines()[k];
            if (!line.plain || line.canonical) continue;
            if (k != entry.first) std::memcpy(bytes + line.start, name, entry.nameLength);
            line.canonical = true;
        }
    }
}

static WireText *makeWireText(Splitter const &splitter, int64_t byteCount, coSort const *sort) {
    LineIndex const &index = splitter.index;
    auto *text = static_cast<WireText *>(co::allocateObject(sizeOfWireText(index.count, byteCount), sort));
    text->lineCount = index.count;
    text->byteCount = byteCount;
    text->encodedLength = splitter.encodedLength;
    text->ascii = splitter.isAscii;
    std::copy(index.lines, index.lines + index.count, text->lines());
    return text;
}

static WireText *makeCopy(Splitter const &splitter) {
    Bytes const lines = splitter.headers;
    WireText *text = makeWireText(splitter, static_cast<int64_t>(lines.size()), &WireText::sort);
    std::copy(lines.begin(), lines.end(), text->ownBytes());
    text->bytes = text->ownBytes();
    text->buffer = nullptr;
    return text;
}

// The buffer is shared from then on, so that nobody changes it.
[[gnu::noinline]] static WireText *makeKept(Splitter const &splitter, coBuffer const *buffer) {
    WireText *text = makeWireText(splitter, 0, &WireText::sortOfKept);
    text->bytes = splitter.headers.data();
    text->buffer = co::retained(buffer);
    return text;
}

// Whether the lines are not to be copied: they are many, most of what the buffer holds, and stand as they are kept.
static bool canKeep(Splitter const &splitter, coBuffer const *buffer) {
    size_t const size = splitter.headers.size();
    constexpr size_t many = 16 << 10;
    return size > many && buffer && !splitter.hasOddNames && buffer->heldSize() < static_cast<int64_t>(2 * size);
}

static bool readUtf8(Splitter *splitter) {
    co::Utf8Count const chars = co::countUtf8(splitter->headers);
    splitter->isAscii = static_cast<size_t>(chars.chars) == splitter->headers.size();
    return chars.valid;
}

bool HeaderTable::tryDecode(Bytes *rest, bool untilEmptyLine, coBuffer const *buffer) {
    co::Ref<HeaderSet> set(makeHeaderSet(usualEntries));
    Splitter splitter(*rest, untilEmptyLine, set.get());
    if (!splitter.split()) return false;
    if (!splitter.isAscii && !readUtf8(&splitter)) return false;
    set->text = canKeep(splitter, buffer) ? makeKept(splitter, buffer) : makeCopy(splitter);
    set->bytes = set->text->bytes;
    if (splitter.hasOddNames) normalizeNames(set.get(), set->text);
    headers.adopt(set.take());
    *rest = splitter.rest;
    return true;
}

// Reading.

HeaderEntry const *HeaderTable::find(FieldName name) const {
    HeaderSet const *set = headers.get();
    uint32_t const place = set ? set->find(name) : noEntry;
    return place == noEntry ? nullptr : &set->entries[place];
}

// The pieces of a folded value, joined.
[[gnu::noinline]] static coChar *widenFolded(WireText const *text, coChar *chars, Bytes folded) {
    coChar *end = chars;
    forEachPiece(folded, [&](Bytes piece) {
        if (end != chars) *end++ = U' ';
        end = text->widen(end, piece);
    });
    return end;
}

static coString *makeLine(WireText const *text, WireLine const &line) {
    Bytes const value = text->valueOf(line);
    if (!line.folded) return co::makeStringFromUtf8(value);
    coString *joined = co::makeString(static_cast<int64_t>(value.size()));
    joined->length = widenFolded(text, joined->chars(), value) - joined->chars();
    return joined;
}

static struct quillMessageHeader *makeHeader(HeaderSet const *set, HeaderEntry const &entry) {
    if (entry.header) return co::retained(entry.header);
    co::Ref<coString> const name(entry.known >= 0 ? co::retained(fieldNameAt(entry.known))
                                                  : co::makeStringFromUtf8(set->receivedName(entry)));
    struct quillMessageHeader *header = makeMessageHeader(name.get());
    for (uint32_t i = entry.first; i != noLine; i = set->text->lines()[i].next)
        co::appendTaken(header->lines.writable(), co::header(makeLine(set->text, set->text->lines()[i])));
    return header;
}

struct quillMessageHeader *HeaderTable::header(FieldName name) const {
    HeaderEntry const *entry = find(name);
    return entry ? makeHeader(headers.get(), *entry) : nullptr;
}

Bytes HeaderTable::lastReceived(int known) const {
    HeaderEntry const *entry = find(known);
    if (!entry || entry->header) return {};
    WireText const *text = headers->text;
    WireLine const &line = text->lines()[entry->last];
    return line.folded ? Bytes() : text->valueOf(line);
}

coVector *HeaderTable::vector() const {
    coVector *vector = coVectorCreate();
    HeaderSet const *set = headers.get();
    for (int64_t i = 0; set && i < set->used; i++)
        if (!set->entries[i].isGap()) co::appendTaken(&vector, co::header(makeHeader(set, set->entries[i])));
    return vector;
}

Lines::Lines(LineSource source) : capacity(usualLength) {
    if (source.known == LineSource::noName)
        use(static_cast<struct quillMessageHeader const *>(source.place)->lines);
    else
        find(*static_cast<HeaderTable const *>(source.place), source.known);
}

void Lines::find(HeaderTable const &table, int known) {
    HeaderEntry const *entry = table.find(known);
    if (!entry) return;
    if (entry->header) return use(entry->header->lines);
    text = table.headers->text;
    place = entry->first;
    lastPlace = entry->last;
    total = entry->count;
}

void Lines::use(HeaderLines const &lines) {
    set = &lines;
    total = lines.length();
    if (total == 0) return;
    place = 0;
    lastPlace = static_cast<uint32_t>(total - 1);
}

Lines::~Lines() {
    if (heap) [[unlikely]]
        coMemFree(heap);
}

int64_t Lines::length(uint32_t index) const { return set ? co::length(set->view(index)) : text->lines()[index].length; }

co::Chars Lines::copy(uint32_t index, coChar *to) const {
    if (set) {
        co::Chars const line = set->view(index);
        std::copy(line.begin(), line.end(), to);
        return {to, line.size()};
    }
    WireLine const &line = text->lines()[index];
    Bytes const value = text->valueOf(line);
    coChar *const end = line.folded ? widenFolded(text, to, value) : text->widen(to, value);
    return {to, static_cast<size_t>(end - to)};
}

co::Chars Lines::view(uint32_t index) {
    if (set) return set->view(index);
    if (length(index) > capacity) reserve(length(index));
    return copy(index, heap ? heap : local);
}

void Lines::reserve(int64_t length) {
    coMemFree(heap);
    capacity = length;
    heap = static_cast<coChar *>(coMemAllocN(capacity, sizeof(coChar)));
}

int64_t Lines::room() const {
    int64_t sum = 0;
    for (uint32_t i = place; i != noLine; i = behind(i)) sum += length(i);
    return sum <= co::longestLine ? sum : 0;
}

// The place behind a line, noLine for none.
uint32_t Lines::behind(uint32_t index) const {
    if (text) return text->lines()[index].next;
    return index < lastPlace ? index + 1 : noLine;
}

// The place of the next line; false when there is none.
bool Lines::step(uint32_t *next) {
    if (place == noLine) return false;
    *next = std::exchange(place, behind(place));
    return true;
}

bool Lines::next(co::Chars *line) {
    uint32_t next;
    if (!step(&next)) return false;
    *line = view(next);
    return true;
}

bool Lines::next(coChar *to, co::Chars *line) {
    uint32_t next;
    if (!step(&next)) return false;
    *line = copy(next, to);
    return true;
}

bool Lines::last(co::Chars *line) {
    if (total == 0) return false;
    *line = view(lastPlace);
    return true;
}

// Changing.

void HeaderTable::set(struct quillMessageHeader *header) {
    HeaderSet *set = writable(&headers);
    co::Chars const name = header->name->view();
    int const known = knownFieldName(name);
    uint32_t const hash = known >= 0 ? 0 : set->hash(name);
    uint32_t const place = known >= 0 ? set->find(known) : set->findUnknown(name, hash);
    set->counts = true;
    if (place == noEntry) return set->add({.header = co::retained(header), .known = known, .hash = hash});
    HeaderEntry &entry = set->entries[place];
    if (struct quillMessageHeader *old = std::exchange(entry.header, co::retained(header))) co::release(old);
}

void HeaderTable::remove(FieldName name) {
    if (!has(name)) return;
    HeaderSet *set = writable(&headers);
    set->remove(set->find(name)); // a copy has other places
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
            HeaderLines const &lines = entry.header->lines;
            for (int64_t i = 0; i < lines.length(); i++) write(entry, lines.view(i));
            return;
        }
        for (uint32_t i = entry.first; i != noLine; i = text->lines()[i].next) write(entry, text->lines()[i]);
    }

    // A line in the place of the entry's, whose first one may be the same.
    void writeInstead(HeaderEntry const &entry, Bytes whole) {
        if (!entry.header) {
            WireLine const &line = text->lines()[entry.first];
            if (line.canonical && Bytes(text->bytes + line.start, endOf(line) - line.start) == whole)
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
        at = co::put(co::put(at, Bytes(text->bytes + runStart, runEnd - runStart)), "\r\n");
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
        if (entry.known >= 0)
            at = putFieldName(at, entry.known);
        else if (entry.header)
            at = co::narrowAscii(at, entry.header->name->view());
        else
            at = co::put(at, Bytes(text->bytes + entry.name, entry.nameLength));
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
    HeaderEntry const *lengthEntry = find(contentLengthFieldName);
    for (int64_t i = 0; set && i < set->used; i++) {
        HeaderEntry const &entry = set->entries[i];
        if (entry.isGap()) continue;
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
        for (int64_t k = 0; header && k < header->lines.length(); k++)
            bytes += header->name->length + co::utf8Length(header->lines.view(k)) + 4;
    }
    return bytes;
}

} // namespace quill
