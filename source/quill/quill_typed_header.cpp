// The registry of the typed headers. Contract: quill_typed_header.h.

#define CO_UNIT "source/quill/quill_typed_header"

#include <co/co_assert.hpp>
#include <iterator>
#include <quill/quill.h>
#include <quill/quill_field_name.hpp>
#include <quill/quill_typed_headers.hpp>

namespace {

constexpr int64_t shapeLIST = QUILL_TYPED_HEADER_LIST;
constexpr int64_t shapeSET = QUILL_TYPED_HEADER_SET;
constexpr int64_t shapeVALUE = QUILL_TYPED_HEADER_VALUE;

// A type's function, with its objects given as generic ones. `From` refuses those of another sort.
template <auto Function, auto From> auto given(coObj const *obj) { return Function(From(obj)); }

template <auto Function, auto From> void givenWithMessage(coObj const *obj, struct quillMessage **msg) {
    Function(From(obj), msg);
}

// The same with objects returned.
template <auto Function, auto Obj, class Source> coObj *returned(Source const *source) { return Obj(Function(source)); }

template <auto Function, auto Obj, auto From> coObj *givenAndReturned(coObj const *obj) {
    return Obj(Function(From(obj)));
}

#define TYPED_HEADER(Type, SORT, fieldName, headerShape, where)                                                        \
    quillTypedHeader{                                                                                                  \
        .type = #Type,                                                                                                 \
        .name = fieldName,                                                                                             \
        .shape = shape##headerShape,                                                                                   \
        .definition = where,                                                                                           \
        .sort = quillHeader##Type##Sort,                                                                               \
        .encode = given<quillHeader##Type##Encode, quillHeader##Type##From>,                                           \
        .tryDecode = returned<quillHeader##Type##TryDecode, quillHeader##Type##Obj>,                                   \
        .store = given<quillHeader##Type##Store, quillHeader##Type##From>,                                             \
        .tryRestore = returned<quillHeader##Type##TryRestore, quillHeader##Type##Obj>,                                 \
        .createFrom =                                                                                                  \
            givenAndReturned<quillHeader##Type##CreateFrom, quillHeader##Type##Obj, quillHeader##Type##From>,          \
        .presentInMessage = quillHeader##Type##PresentInMessage,                                                       \
        .encodeToMessage = givenWithMessage<quillHeader##Type##EncodeToMessage, quillHeader##Type##From>,              \
        .tryDecodeFromMessage = returned<quillHeader##Type##TryDecodeFromMessage, quillHeader##Type##Obj>,             \
        .removeFromMessage = quillHeader##Type##RemoveFromMessage,                                                     \
    },
constexpr quillTypedHeader typedHeaders[] = {QUILL_TYPED_HEADERS(TYPED_HEADER)};
#undef TYPED_HEADER

constexpr int64_t typedHeadersLength = std::size(typedHeaders);

} // namespace

int64_t quillTypedHeadersLength(void) { return typedHeadersLength; }

struct quillTypedHeader const *quillTypedHeaderAt(int64_t index) {
    CO_ASSERT(index >= 0 && index < typedHeadersLength, "index >= 0 && index < quillTypedHeadersLength()");
    return &typedHeaders[index];
}

// The known names begin with those of the typed headers, in the same order.
struct quillTypedHeader const *quillTypedHeaderOf(struct coString const *name) {
    CO_ASSERT_OK(quillMessageHeaderNameOk, name);
    int const known = quill::knownFieldName(name->view());
    return known >= 0 && known < typedHeadersLength ? &typedHeaders[known] : nullptr;
}
