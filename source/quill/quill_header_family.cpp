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
    if (line.size() > longest) return 0;
    co::Chars rest = line;
    coObj *value = kind->make(line);
    elements->setFirst(value);
    if (kind->read(value, &rest) && (rest.empty() || rules::comma(rest) > 0))
        return co::length(line) - co::length(rest);
    elements->dropFirst();
    return 0;
}

bool readList(ListHeader *hdr, Lines &lines, Scanner element, ValueKind const *kind) {
    coChar *room = hdr->lineLength > 0 ? co::lineBehind(hdr) : nullptr;
    if (room && kind) room += kind->room;
    auto const take = [&](co::Chars text) {
        bool const isFirst = room && kind && hdr->elements.count() == 0;
        int64_t count = isFirst ? readFirst(&hdr->elements, kind, text) : 0;
        if (count == 0) count = measure(element, text);
        if (count > 0) hdr->elements.append(upTo(text, count), room);
        return count;
    };
    for (co::Chars line; room ? lines.next(room, &line) : lines.next(&line);) {
        if (!readElementsOf(line, quill___SkipComma, take)) return false;
        if (room) room += line.size();
    }
    return lines.count() > 0;
}

co::WithLine *makeWithLast(Lines const &lines, coSort const *sort, co::Chars *line) {
    int64_t const room = lines.lastRoom();
    auto *zeroed = static_cast<co::WithLine *>(co::makeZeroed(sort, room));
    zeroed->lineLength = room;
    *line = lines.last(co::lineBehind(zeroed));
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
