// A raw header. Contract: quill_message_header.h.

#define CO_UNIT "source/quill/quill_message_header"

#include <algorithm>
#include <co/co_simd.hpp>
#include <co/co_store.h>
#include <co/co_vector.hpp>
#include <cstring>
#include <quill/quill_family.hpp>
#include <quill/quill_field_name.hpp>
#include <quill/quill_message_header.h>
#include <quill/quill_message_header.hpp>
#include <quill/quill_skip.h>

QUILL_DEFINE_SORT(MessageHeader, MESSAGE_HEADER, quill___MessageHeaderCompFunc, nullptr)
QUILL_DEFINE_CREATE_FROM(MessageHeader)

int quill___MessageHeaderCompFunc(struct coObj const *thisObj, struct coObj const *thatObj) {
    CO_ASSERT_GIVEN(thisObj);
    CO_ASSERT_GIVEN(thatObj);
    return co::compareMembers<struct quillMessageHeader>(quillMessageHeaderFrom(thisObj),
                                                         quillMessageHeaderFrom(thatObj));
}

// Static objects.

struct coString *quill___CosName;
struct coString *quill___CosLines;
struct coString *quill___CosAcceptContact;
struct coString *quill___CosContentType;
struct coString *quill___CosIdentity;
struct coString *quill___CosIdentityInfo;
struct coString *quill___CosRejectContact;
struct coString *quill___CosRequestDisposition;

namespace {

struct Static {
    coString **slot;
    char const *text;
};

constexpr Static statics[] = {
    {&quill___CosName, "name"},
    {&quill___CosLines, "lines"},
    {&quill___CosAcceptContact, "Accept-Contact"},
    {&quill___CosContentType, "Content-Type"},
    {&quill___CosIdentity, "Identity"},
    {&quill___CosIdentityInfo, "Identity-Info"},
    {&quill___CosRejectContact, "Reject-Contact"},
    {&quill___CosRequestDisposition, "Request-Disposition"},
};

} // namespace

void quill___MessageHeaderStartup(void) {
    for (Static const &each : statics) quill::start(each.slot, coStringCreateFromCstr(each.text, -1));
    quill::startFieldNames();
}

void quill___MessageHeaderShutdown(void) {
    for (Static const &each : statics) quill::stop(each.slot);
    quill::stopFieldNames();
}

// What a name and a line may be.

bool quillMessageHeaderNameOk(struct coString const *name) {
    CO_ASSERT_GIVEN(name);
    return name->length > 0 && quill___SkipMessageHeaderName(name->chars(), name->length) == name->length;
}

struct coString *quillMessageHeaderNameNormalize(struct coString const *name) {
    CO_ASSERT_OK(quillMessageHeaderNameOk, name);
    return quill::tryNormalizeFieldName(name->view());
}

quill::HeaderName::HeaderName(coString const *name) : normal(quillMessageHeaderNameNormalize(name)) {
    field.normal = normal->view();
    if (co::isImmortal(normal.get())) field.known = knownFieldName(field.normal);
}

quill::HeaderName::HeaderName(char const *name, int64_t length) {
    bool const isText = name && length >= -1;
    size_t const size = !isText ? 0 : length < 0 ? std::strlen(name) : static_cast<size_t>(length);
    field.received = {name, size};
    field.known = knownFieldName(field.received);
    bool const isName = field.known >= 0 || formOfFieldName(field.received).isName;
    if (!isName) co::release(quillMessageHeaderNameNormalize(co::Text(name, length))); // aborts
}

bool quillMessageHeaderLineOk(struct coString const *line) {
    CO_ASSERT_GIVEN(line);
    co::Chars const text = line->view();
    return !co::simd::contains(text, U'\r') || text.find(U"\r\n") == co::Chars::npos;
}

// The lines of a header.

coString *quill::HeaderLines::string(int64_t index) const {
    return strings ? coStringFrom(coVectorObjAt(strings, index)) : elements->string(index);
}

void quill::HeaderLines::set(coVector *lines) {
    if (coVector *old = std::exchange(strings, co::retained(lines))) co::release(old);
    if (coObj *old = std::exchange(owner, nullptr)) co::release(old);
}

void quill::HeaderLines::set(coObj *elementsOwner, Elements const *pieces) {
    if (coObj *old = std::exchange(owner, co::retained(elementsOwner))) co::release(old);
    elements = pieces;
    if (coVector *old = std::exchange(strings, nullptr)) co::release(old);
}

coVector **quill::HeaderLines::writable() {
    if (!strings) {
        co::Ref<coVector> const made(vector());
        set(made.get());
    }
    return &strings;
}

// Line by line; the shorter of two that begin alike comes first.
int quill::HeaderLines::compare(HeaderLines const &other) const {
    if (strings && other.strings) return co::compare(strings, other.strings);
    int64_t const common = std::min(length(), other.length());
    for (int64_t i = 0; i < common; i++)
        if (int const order = view(i).compare(other.view(i))) return order < 0 ? -1 : 1;
    return (length() > other.length()) - (length() < other.length());
}

// Creation and name.

struct quillMessageHeader *quill::makeMessageHeader(coString *normalName) {
    auto *header = co::make<struct quillMessageHeader>();
    header->name.set(normalName);
    header->lines.set(&co::emptyVector);
    return header;
}

struct quillMessageHeader *quillMessageHeaderCreate(struct coString *name) {
    co::Ref<coString> const normal(quillMessageHeaderNameNormalize(name));
    return quill::makeMessageHeader(normal.get());
}

CO_DEFINE_TEXT_FORMS(struct quillMessageHeader *, quillMessageHeaderCreate, name)

CO_DEFINE_STRING_MEMBER(quillMessageHeader, header, Name, name, quillMessageHeaderNameOk, name,
                        quillMessageHeaderNameNormalize)
CO_DEFINE_TEXT_FORMS_1(void, quillMessageHeaderSetName, struct quillMessageHeader **, header, name)

bool quillMessageHeaderNameEquals(struct quillMessageHeader const *header, struct coString const *name) {
    CO_ASSERT_GIVEN(header);
    co::Ref<coString> const normal(quillMessageHeaderNameNormalize(name));
    return header->name->view() == normal->view();
}

CO_DEFINE_TEXT_FORMS_1(bool, quillMessageHeaderNameEquals, struct quillMessageHeader const *, header, name)

// Lines.

int64_t quillMessageHeaderLinesLength(struct quillMessageHeader const *header) {
    CO_ASSERT_GIVEN(header);
    return header->lines.length();
}

struct coString *quillMessageHeaderLineAt(struct quillMessageHeader const *header, int64_t index) {
    CO_ASSERT_GIVEN(header);
    return header->lines.string(index);
}

struct coString *quillMessageHeaderLastLine(struct quillMessageHeader const *header) {
    int64_t const length = quillMessageHeaderLinesLength(header);
    return length > 0 ? quillMessageHeaderLineAt(header, length - 1) : nullptr;
}

struct coVector *quillMessageHeaderLinesVector(struct quillMessageHeader const *header) {
    CO_ASSERT_GIVEN(header);
    return header->lines.vector();
}

void quillMessageHeaderSetLinesVector(struct quillMessageHeader **header, struct coVector *lines) {
    CO_ASSERT_REFERENCE(header);
    CO_ASSERT_GIVEN(lines);
    CO_ASSERT(coVectorContainsOnly(lines, coStringSort()), "coVectorContainsOnly( lines, coStringSort() )");
    for (int64_t i = 0; i < lines->length; i++)
        CO_ASSERT(quillMessageHeaderLineOk(co::stringAt(lines, i)), "quillMessageHeaderLineOk( cos )");
    co::writable(header)->lines.set(lines);
}

void quillMessageHeaderSetLineAt(struct quillMessageHeader **header, int64_t index, struct coString *value) {
    CO_ASSERT_REFERENCE(header);
    CO_ASSERT_OK(quillMessageHeaderLineOk, value);
    coVectorSetStringAt(co::writable(header)->lines.writable(), index, value);
}

void quillMessageHeaderAppendLine(struct quillMessageHeader **header, struct coString *value) {
    CO_ASSERT_REFERENCE(header);
    CO_ASSERT_OK(quillMessageHeaderLineOk, value);
    coVectorAppendString(co::writable(header)->lines.writable(), value);
}

void quillMessageHeaderDelLineAt(struct quillMessageHeader **header, int64_t index) {
    CO_ASSERT_REFERENCE(header);
    coVectorDelAt(co::writable(header)->lines.writable(), index);
}

CO_DEFINE_TEXT_FORMS_2(void, quillMessageHeaderSetLineAt, struct quillMessageHeader **, header, int64_t, index, line)
CO_DEFINE_TEXT_FORMS_1(void, quillMessageHeaderAppendLine, struct quillMessageHeader **, header, line)

// The forms with a format: the last named argument is what the variable ones follow.
#define FORMATTED_LINE(last, ArgList, ...)                                                                             \
    va_list args;                                                                                                      \
    va_start(args, last);                                                                                              \
    co::Ref<coString> const line(coStringCreateFromFormat##ArgList(__VA_ARGS__, args));                                \
    va_end(args)

void quillMessageHeaderSetLineAtFormat(struct quillMessageHeader **header, int64_t index, struct coString const *format,
                                       ...) {
    FORMATTED_LINE(format, ArgList, format);
    quillMessageHeaderSetLineAt(header, index, line.get());
}

void quillMessageHeaderSetLineAtFormatCstr(struct quillMessageHeader **header, int64_t index, char const *format,
                                           int64_t length, ...) {
    FORMATTED_LINE(length, CstrArgList, format, length);
    quillMessageHeaderSetLineAt(header, index, line.get());
}

void quillMessageHeaderSetLineAtFormatWcstr(struct quillMessageHeader **header, int64_t index, wchar_t const *format,
                                            int64_t length, ...) {
    FORMATTED_LINE(length, WcstrArgList, format, length);
    quillMessageHeaderSetLineAt(header, index, line.get());
}

void quillMessageHeaderAppendLineFormat(struct quillMessageHeader **header, struct coString const *format, ...) {
    FORMATTED_LINE(format, ArgList, format);
    quillMessageHeaderAppendLine(header, line.get());
}

void quillMessageHeaderAppendLineFormatCstr(struct quillMessageHeader **header, char const *format, int64_t length,
                                            ...) {
    FORMATTED_LINE(length, CstrArgList, format, length);
    quillMessageHeaderAppendLine(header, line.get());
}

void quillMessageHeaderAppendLineFormatWcstr(struct quillMessageHeader **header, wchar_t const *format, int64_t length,
                                             ...) {
    FORMATTED_LINE(length, WcstrArgList, format, length);
    quillMessageHeaderAppendLine(header, line.get());
}

// Stores.

struct coStore *quillMessageHeaderStoreLines(struct quillMessageHeader const *header) {
    CO_ASSERT_GIVEN(header);
    coStore *store = coStoreCreate();
    co::Ref<coVector> const lines(header->lines.vector());
    for (int64_t i = 0; i < lines->length; i++)
        coStoreSetValueFormatCstr(&store, "%.*A", -1, co::stringAt(lines.get(), i), lines->length - 1, i);
    return store;
}

struct coStore *quillMessageHeaderStore(struct quillMessageHeader const *header) {
    CO_ASSERT_GIVEN(header);
    coStore *store = coStoreCreate();
    coStoreSetValue(&store, quill___CosName, header->name.get());
    co::Ref<coStore> const lines(quillMessageHeaderStoreLines(header));
    coStoreSetStore(&store, quill___CosLines, lines.get());
    return store;
}

struct quillMessageHeader *quillMessageHeaderTryRestore(struct coStore const *store) {
    CO_ASSERT_GIVEN(store);
    co::Ref<coString> const name(coStoreValue(store, quill___CosName));
    if (!name || !quillMessageHeaderNameOk(name.get())) return nullptr;
    co::Ref<coStore> const lines(coStoreStore(store, quill___CosLines));
    return quillMessageHeaderRestoreLines(name.get(), lines.get());
}

struct quillMessageHeader *quillMessageHeaderRestoreLines(struct coString *name, struct coStore const *store) {
    CO_ASSERT_OK(quillMessageHeaderNameOk, name);
    CO_ASSERT_GIVEN(store);
    struct quillMessageHeader *header = quillMessageHeaderCreate(name);
    for (int64_t i = 0; i < coStoreLength(store); i++) {
        co::Ref<coString> const line(coStoreValueAt(store, i));
        if (line && quillMessageHeaderLineOk(line.get())) quillMessageHeaderAppendLine(&header, line.get());
    }
    return header;
}

struct quillMessageHeader *quillMessageHeaderRestoreLinesCstr(char const *name, int64_t length,
                                                              struct coStore const *store) {
    return quillMessageHeaderRestoreLines(co::Text(name, length), store);
}

struct quillMessageHeader *quillMessageHeaderRestoreLinesWcstr(wchar_t const *name, int64_t length,
                                                               struct coStore const *store) {
    return quillMessageHeaderRestoreLines(co::Text(name, length), store);
}
