// Typed headers: what all of them share. Contract: quill_header_family.hpp.

#include <quill/quill_field_name.hpp>
#include <quill/quill_header_family.hpp>

namespace quill {

static struct quillMessageHeader *makeHeader(int known) { return makeMessageHeader(fieldNameAt(known)); }

struct quillMessageHeader *makeHeaderOfLine(int known, coString *line) {
    co::Ref<coString> const taken(line);
    struct quillMessageHeader *header = makeHeader(known);
    quillMessageHeaderAppendLine(&header, taken.get());
    return header;
}

// What was read holds no line end.
struct quillMessageHeader *makeHeaderOf(int known, ListHeader const *list) {
    struct quillMessageHeader *header = makeHeader(known);
    if (list->elements.arePieces()) {
        header->lines.set(const_cast<ListHeader *>(list), &list->elements);
        return header;
    }
    co::Ref<coVector> const lines(list->elements.vector());
    quillMessageHeaderSetLinesVector(&header, lines.get());
    return header;
}

coString *textOfLines(struct quillMessageHeader const *header) {
    HeaderLines const &lines = header->lines;
    if (lines.length() == 0) return coStringCreate();
    if (lines.length() == 1) return lines.string(0);
    co::Ref<coVector> const all(lines.vector());
    return coVectorToString(all.get());
}

// The value that a line begins with, where that is a whole element: how many code points it is, 0 where it is none.
static int64_t readFirst(Elements *elements, ValueKind const *kind, co::Chars line) {
    constexpr size_t longest = 1024; // copies of the value have all of the line
    co::Chars rest = line;
    coObj *value = line.size() <= longest ? kind->tryRead(&rest) : nullptr;
    if (!value) return 0;
    elements->setFirst(value);
    if (rest.empty() || rules::comma(rest) > 0) return co::length(line) - co::length(rest);
    elements->dropFirst();
    return 0;
}

// Reads the elements of a line that a list keeps, the first of all with its value where its kind is given. False where the
// line is anything else.
static bool readElementsInto(ListHeader *list, co::Chars line, Scanner element, ValueKind const *kind) {
    return readElementsOf(line, quill___SkipComma, [=](co::Chars text) {
        bool const isFirst = kind && list->elements.count() == 0;
        int64_t count = isFirst ? readFirst(&list->elements, kind, text) : 0;
        if (count == 0) count = measure(element, text);
        if (count > 0) list->elements.appendPiece(upTo(text, count));
        return count;
    });
}

// Any number of lines.
static ListHeader *tryReadLines(coSort const *sort, Lines &lines, Scanner element, ValueKind const *kind) {
    int64_t const before = kind ? kind->room : 0;
    int64_t const length = before + lines.room();
    co::Ref<ListHeader> list(static_cast<ListHeader *>(co::makeZeroed(sort, length)));
    list->lineLength = length;
    coChar *room = co::lineBehind(list.get()) + before;
    for (co::Chars line; lines.next(room, &line); room += line.size())
        if (!readElementsInto(list.get(), line, element, kind)) return nullptr;
    return list.take();
}

// The elements as strings, where the lines are too long to be kept.
static ListHeader *tryReadStrings(coSort const *sort, Lines &lines, Scanner element) {
    co::Ref<ListHeader> list(static_cast<ListHeader *>(co::makeZeroed(sort, 0)));
    bool const isRead = readElements(lines, quill___SkipComma, [&](co::Chars text) {
        int64_t const count = measure(element, text);
        if (count > 0) co::appendTaken(list->elements.writable(), co::header(co::makeString(upTo(text, count))));
        return count;
    });
    return isRead ? list.take() : nullptr;
}

static ListHeader *tryReadAll(coSort const *sort, LineSource source, Scanner element, ValueKind const *kind) {
    Lines lines(source);
    if (lines.count() == 0) return nullptr;
    if (lines.room() == 0) return tryReadStrings(sort, lines, element);
    return tryReadLines(sort, lines, element, kind);
}

ListHeader *tryMakeList(coSort const *sort, LineSource source, Scanner element, ValueKind const *kind) {
    co::Chars line;
    co::WithLine *only = makeWithLine(sort, source, Wanted::only, kind ? kind->room : 0, &line);
    if (!only) return tryReadAll(sort, source, element, kind);
    co::Ref<ListHeader> list(static_cast<ListHeader *>(only));
    return readElementsInto(list.get(), line, element, kind) ? list.take() : nullptr;
}

co::WithLine *makeWithLine(coSort const *sort, LineSource source, Wanted wanted, int64_t before, co::Chars *line) {
    Lines const lines(source);
    int64_t const room = lines.count() > 0 ? lines.lastRoom() : 0;
    bool const isOnly = lines.count() == 1 && room <= co::longestLine;
    if (wanted == Wanted::only ? !isOnly : lines.count() == 0) return nullptr;
    int64_t const length = before + room;
    auto *zeroed = static_cast<co::WithLine *>(co::makeZeroed(sort, length));
    zeroed->lineLength = length;
    *line = lines.last(co::lineBehind(zeroed) + before);
    return zeroed;
}

static void appendJoined(coString **line, co::Chars text, co::Chars delimiter) {
    if ((*line)->length > 0) co::append(line, delimiter);
    co::append(line, text);
}

static struct quillMessageHeader *makeHeaderUnlessEmpty(int known, coString *line) {
    if (line->length > 0) return makeHeaderOfLine(known, line);
    co::release(line);
    return makeHeader(known);
}

struct quillMessageHeader *makeHeaderOfJoined(int known, coVector const *texts, co::Chars delimiter) {
    coString *line = coStringCreate();
    for (int64_t i = 0; i < texts->length; i++) appendJoined(&line, co::stringAt(texts, i)->view(), delimiter);
    return makeHeaderUnlessEmpty(known, line);
}

struct quillMessageHeader *makeHeaderOfJoined(int known, coDict const *keys, co::Chars delimiter) {
    coString *line = coStringCreate();
    co::DictWalk walk(keys);
    for (co::DictEntry entry; walk.next(&entry);) appendJoined(&line, entry.key->view(), delimiter);
    return makeHeaderUnlessEmpty(known, line);
}

} // namespace quill
