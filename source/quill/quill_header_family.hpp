// Typed headers: what all of them share, and the three shapes they come in. A header's unit says its shape, its element
// and its names; what is irregular it writes out.
//
// A list keeps the text of each element and decodes an element when it is asked for. A set keeps distinct tokens. A
// single value keeps its parts. All of them read the lines of the raw header of their name and write such a header.
#pragma once

#include <co/co_dict.hpp>
#include <co/co_store.h>
#include <co/co_vector.hpp>
#include <quill/quill_elements.hpp>
#include <quill/quill_family.hpp>
#include <quill/quill_lifted.hpp>
#include <quill/quill_message.h>
#include <quill/quill_message_fragment.hpp>
#include <quill/quill_message_header.h>
#include <quill/quill_message_header.hpp>
#include <quill/quill_readers.hpp>
#include <quill/quill_scalar.hpp>
#include <quill/quill_typed_headers.hpp>

namespace quill {

// The names of the fields, from the one list.
namespace field {
#define QUILL_FIELD(Type, SORT, name, shape, definition) inline constexpr char const Type[] = name;
QUILL_TYPED_HEADERS(QUILL_FIELD)
#undef QUILL_FIELD
} // namespace field

// The numbers of these names (quill_field_name.hpp).
namespace known {
#define QUILL_FIELD(Type, SORT, name, shape, definition) Type,
enum : int { QUILL_TYPED_HEADERS(QUILL_FIELD) };
#undef QUILL_FIELD
} // namespace known

inline constexpr int64_t usualValueLength = 32; // of a single value that is written

// Of the text of a value: what was read from a line mostly becomes one of that length again.
template <class H> int64_t roomForValue(H const *hdr) {
    if constexpr (std::is_base_of_v<co::WithLine, H>) return std::max(usualValueLength, hdr->lineLength);
    return usualValueLength;
}

// A raw header of the typed header of a number (known::Type), with one line, which is taken over.
struct quillMessageHeader *makeHeaderOfLine(int known, coString *line);

// No line is the empty text, one line itself, more the text of their vector.
coString *textOfLines(struct quillMessageHeader const *header);

// Reads elements between separators off a line, which may be empty: `take` has the element at the start of the text and
// says how many code points it is, 0 for none. False where the line is anything else.
template <class Take> bool readElementsOf(co::Chars line, Scanner separator, Take take) {
    while (!line.empty()) {
        int64_t const count = take(line);
        if (count == 0) return false;
        line = from(line, count);
        if (line.empty()) break;
        int64_t const between = measure(separator, line);
        line = from(line, between);
        if (between == 0 || line.empty()) return false; // something else, or nothing behind a separator
    }
    return true;
}

// The same of all lines.
template <class Take> bool readElements(Lines &lines, Scanner separator, Take take) {
    for (co::Chars line; lines.next(&line);)
        if (!readElementsOf(line, separator, take)) return false;
    return true;
}

// A header of a sort, all zero but for a line that it keeps, behind so many other code points: the last line, or the only
// one, which pieces can point into. Null where there is no such line. Never written out where it is called: nearly all
// headers are made here, so that it stays in the processor's cache.
enum class Wanted { last, only };
[[gnu::noinline]] co::WithLine *makeWithLine(coSort const *sort, LineSource source, Wanted wanted, int64_t before,
                                             co::Chars *line);

// Lists

// What a list is. One that has more derives from it too, with a members() of its own.
struct ListHeader : co::WithLine {
    Elements elements;
    static constexpr auto members() { return std::tuple(&ListHeader::elements); }
    static constexpr auto comparison() { return members(); }
    void onElement() {} // is called when an element is put in
};

// A new list of the sort, whose members are absent when they are zero, of all that the lines hold, with the value of the
// first element where its kind is given. Null where a line is anything else.
ListHeader *tryMakeList(coSort const *sort, LineSource source, Scanner element, ValueKind const *kind);

template <class H> H *tryDecodeList(LineSource source, Scanner element, ValueKind const *kind = nullptr) {
    return static_cast<H *>(tryMakeList(&H::sort, source, element, kind));
}

// `normalize` gives an element as it is kept.
template <class H> H *tryDecodeList(LineSource source, Scanner element, Normalizer normalize) {
    Lines lines(source);
    if (lines.count() == 0) return nullptr;
    co::Ref<H> hdr(co::make<H>());
    auto const take = [&](co::Chars text) {
        int64_t const count = measure(element, text);
        if (count == 0) return count;
        co::Ref<coString> const found(co::makeString(upTo(text, count)));
        co::appendTaken(hdr->elements.writable(), co::header(normalize(found.get())));
        return count;
    };
    return readElements(lines, quill___SkipComma, take) ? hdr.take() : nullptr;
}

// A raw header with a line for each element.
struct quillMessageHeader *makeHeaderOf(int known, ListHeader const *list);

template <class H> void clearList(H **hdr) { co::writable(hdr)->elements.clear(); }

template <class H> void deleteElement(H **hdr, int64_t index) {
    coVectorDelAt(co::writable(hdr)->elements.writable(), index);
}

// Where an element can be put in.
template <class H> coVector **placeOfElements(H **hdr) {
    H *own = co::writable(hdr);
    own->onElement();
    return own->elements.writable();
}

// They take the element over.
template <class H> void setElement(H **hdr, int64_t index, coString *taken) {
    co::Ref<coString> const element(taken);
    coVectorSetStringAt(placeOfElements(hdr), index, element.get());
}
template <class H> void prependElement(H **hdr, coString *taken) {
    co::Ref<coString> const element(taken);
    coVectorPrependString(placeOfElements(hdr), element.get());
}
template <class H> void appendElement(H **hdr, coString *taken) {
    co::appendTaken(placeOfElements(hdr), co::header(taken));
}
template <class H> void insertElement(H **hdr, int64_t index, coString *taken) {
    co::Ref<coString> const element(taken);
    coVectorInsertString(placeOfElements(hdr), index, element.get());
}

// The value that one element holds, or null: an object of the caller's own each time.
template <class T>
T *tryDecodeElement(ListHeader const *hdr, int64_t index, T *(*tryDecode)(coChar const *, int64_t),
                    std::type_identity_t<T *(*)(T const *)> createFrom) {
    coObj const *first = hdr->elements.first();
    if (createFrom && first && index == 0) return createFrom(reinterpret_cast<T const *>(first));
    co::Chars const text = hdr->elements.view(index);
    return tryDecode(text.data(), co::length(text));
}

// Sets

struct SetHeader : coObj {
    co::Slot<coDict> tokens; // never null; each key is its own value
    static constexpr auto members() { return std::tuple(&SetHeader::tokens); }
    static constexpr auto comparison() { return members(); }
};

template <class H> H *makeSet() {
    H *hdr = co::make<H>();
    hdr->tokens.adopt(coDictCreate());
    return hdr;
}

// These take a token in its normal form over.
template <class H> void addToken(H *own, coString *taken) {
    co::setTaken(own->tokens.address(), taken, co::header(co::retained(taken)));
}
template <class H> void deleteToken(H *own, coString *taken) {
    co::Ref<coString> const token(taken);
    coDictDelStringKey(own->tokens.address(), token.get());
}
inline bool hasToken(SetHeader const *hdr, coString *taken) {
    co::Ref<coString> const token(taken);
    return coDictHasStringKey(hdr->tokens.get(), token.get());
}

// `map` gives each character of a token as it is kept.
template <class H, co::CharMap map> H *tryDecodeSet(LineSource source, Scanner token, Scanner separator) {
    Lines lines(source);
    if (lines.count() == 0) return nullptr;
    co::Ref<H> hdr(makeSet<H>());
    auto const take = [&](co::Chars text) {
        int64_t const count = measure(token, text);
        if (count == 0) return count;
        coString *found = makeMapped<map>(upTo(text, count));
        co::retainOwn(found); // it is key and value
        co::setTaken(hdr->tokens.address(), found, co::header(found));
        return count;
    };
    return readElements(lines, separator, take) ? hdr.take() : nullptr;
}

// Calls `set` with the text of each object of a vector.
template <class H> void setEach(H **hdr, coVector const *vec, void (*set)(H **, coString *)) {
    for (int64_t i = 0; i < vec->length; i++) {
        co::Ref<coString> const text(coObjToString(vec->at(i)));
        set(hdr, text.get());
    }
}

// All texts of a vector, or keys of a dictionary, on one line; no line where there are none.
struct quillMessageHeader *makeHeaderOfJoined(int known, coVector const *texts, co::Chars delimiter);
struct quillMessageHeader *makeHeaderOfJoined(int known, coDict const *keys, co::Chars delimiter);

// The value that the last line holds as a whole, or null.
template <class H> H *tryReadLast(LineSource source, bool (*read)(H *, co::Chars)) {
    co::Chars line;
    co::WithLine *const zeroed = makeWithLine(&H::sort, source, Wanted::last, 0, &line);
    if (!zeroed) return nullptr;
    co::Ref<H> hdr(co::initMembers<H>(zeroed, zeroed->lineLength));
    return read(hdr.get(), line) ? hdr.take() : nullptr;
}

inline void appendDecimal(coString **text, int64_t value) { co::appendInt(text, value, 10, 0, false, co::Case::lower); }

} // namespace quill

// What every header has: its name, family, copy, comparison, text, stores and its place in messages. The shape defines
// Encode, and what reads the lines of a raw header, or those of a message straight from its received bytes:
//
//     static struct quillHeader<Type> *tryDecodeLines(quill::LineSource source);
#define QUILL_DEFINE_HEADER(Type, SORT)                                                                                \
    struct coString *quill___Cos##Type;                                                                                \
    void quill___Header##Type##Startup(void) {                                                                         \
        quill::start(&quill___Cos##Type, coStringCreateFromCstr(quill::field::Type, -1));                              \
    }                                                                                                                  \
    void quill___Header##Type##Shutdown(void) { quill::stop(&quill___Cos##Type); }                                     \
    QUILL_DEFINE_SORT(Header##Type, HEADER_##SORT, quill___Header##Type##CompareFunc,                                  \
                      quill___Header##Type##ToStringFunc)                                                              \
    QUILL_DEFINE_CREATE_FROM(Header##Type)                                                                             \
    QUILL_DEFINE_COMPARE(Header##Type, hdrA, hdrB)                                                                     \
    struct coString *quill___Header##Type##ToStringFunc(struct coObj const *obj) {                                     \
        co::Ref<struct quillMessageHeader> const header(quillHeader##Type##Encode(quillHeader##Type##From(obj)));      \
        return quill::textOfLines(header.get());                                                                       \
    }                                                                                                                  \
    struct coStore *quillHeader##Type##Store(struct quillHeader##Type const *hdr) {                                    \
        co::Ref<struct quillMessageHeader> const header(quillHeader##Type##Encode(hdr));                               \
        return quillMessageHeaderStoreLines(header.get());                                                             \
    }                                                                                                                  \
    struct quillHeader##Type *quillHeader##Type##TryRestore(struct coStore const *store) {                             \
        CO_ASSERT_GIVEN(store);                                                                                        \
        co::Ref<struct quillMessageHeader> const header(quillMessageHeaderRestoreLines(quill___Cos##Type, store));     \
        return quillHeader##Type##TryDecode(header.get());                                                             \
    }                                                                                                                  \
    bool quillHeader##Type##PresentInMessage(struct quillMessage const *msg) {                                         \
        return quillMessageHasHeader(msg, quill___Cos##Type);                                                          \
    }                                                                                                                  \
    void quillHeader##Type##EncodeToMessage(struct quillHeader##Type const *hdr, struct quillMessage **msg) {          \
        CO_ASSERT_GIVEN(hdr);                                                                                          \
        CO_ASSERT_REFERENCE(msg);                                                                                      \
        co::Ref<struct quillMessageHeader> const header(quillHeader##Type##Encode(hdr));                               \
        quillMessageSetHeader(msg, header.get());                                                                      \
    }                                                                                                                  \
    static struct quillHeader##Type *tryDecodeLines(quill::LineSource source);                                         \
    struct quillHeader##Type *quillHeader##Type##TryDecode(struct quillMessageHeader const *header) {                  \
        CO_ASSERT(quillMessageHeaderNameEquals(header, quill___Cos##Type),                                             \
                  "quillMessageHeaderNameEquals( header, quill___Cos" #Type " )");                                     \
        return tryDecodeLines(quill::LineSource(header));                                                              \
    }                                                                                                                  \
    struct quillHeader##Type *quillHeader##Type##TryDecodeFromMessage(struct quillMessage const *msg) {                \
        CO_ASSERT_GIVEN(msg);                                                                                          \
        return tryDecodeLines({quill::headersOf(msg), quill::known::Type});                                            \
    }                                                                                                                  \
    void quillHeader##Type##RemoveFromMessage(struct quillMessage **msg) {                                             \
        quillMessageDelHeader(msg, quill___Cos##Type);                                                                 \
    }

// A single value. The unit defines, besides the struct and its members,
//
//     static void appendValue(coString **text, struct quillHeader<Type> const *hdr);
//     static struct quillHeader<Type> *tryDecodeValue(co::Chars line);
#define QUILL_DEFINE_VALUE_HEADER(Type, SORT)                                                                          \
    QUILL_DEFINE_HEADER(Type, SORT)                                                                                    \
    QUILL_DEFINE_VALUE_HEADER_ENCODE(Type)                                                                             \
    static struct quillHeader##Type *tryDecodeValue(co::Chars line);                                                   \
    static struct quillHeader##Type *tryDecodeLines(quill::LineSource source) {                                        \
        quill::Lines lines(source);                                                                                    \
        co::Chars line;                                                                                                \
        return lines.last(&line) ? tryDecodeValue(line) : nullptr;                                                     \
    }

#define QUILL_DEFINE_VALUE_HEADER_ENCODE(Type)                                                                         \
    static void appendValue(coString **text, struct quillHeader##Type const *hdr);                                     \
    struct quillMessageHeader *quillHeader##Type##Encode(struct quillHeader##Type const *hdr) {                        \
        CO_ASSERT_GIVEN(hdr);                                                                                          \
        coString *line = co::makeString(quill::roomForValue(hdr));                                                     \
        appendValue(&line, hdr);                                                                                       \
        return quill::makeHeaderOfLine(quill::known::Type, line);                                                      \
    }

// A single value that keeps the line it is read from. The unit defines, besides the struct and its members, appendValue
// and
//
//     static bool readValue(struct quillHeader<Type> *hdr, co::Chars line);
//
// which reads the header's own line into a header that has nothing yet, and says whether it is one.
#define QUILL_DEFINE_LINE_HEADER(Type, SORT)                                                                           \
    QUILL_DEFINE_HEADER(Type, SORT)                                                                                    \
    QUILL_DEFINE_VALUE_HEADER_ENCODE(Type)                                                                             \
    static bool readValue(struct quillHeader##Type *hdr, co::Chars line);                                              \
    static struct quillHeader##Type *tryDecodeLines(quill::LineSource source) {                                        \
        return quill::tryReadLast<struct quillHeader##Type>(source, readValue);                                        \
    }

// A list: the struct, its creation, and what all lists have.
#define QUILL_DEFINE_LIST_OBJECT(Type, SORT)                                                                           \
    struct quillHeader##Type : quill::ListHeader {                                                                     \
        static constexpr auto &sort = quill___sort_QUILL_HEADER_##SORT;                                                \
    };                                                                                                                 \
    QUILL_DEFINE_HEADER(Type, SORT)                                                                                    \
    QUILL_DEFINE_LIST_CREATE(Type)

#define QUILL_DEFINE_LIST_CREATE(Type)                                                                                 \
    struct quillHeader##Type *quillHeader##Type##Create(void) {                                                        \
        return co::make<struct quillHeader##Type>();                                                                   \
    }

// One line for each element on writing; any number of elements on a line on reading.
#define QUILL_DEFINE_LIST_ENCODE(Type)                                                                                 \
    struct quillMessageHeader *quillHeader##Type##Encode(struct quillHeader##Type const *hdr) {                        \
        CO_ASSERT_GIVEN(hdr);                                                                                          \
        return quill::makeHeaderOf(quill::known::Type, hdr);                                                           \
    }

#define QUILL_DEFINE_LIST_CODEC(Type, skip)                                                                            \
    QUILL_DEFINE_LIST_ENCODE(Type)                                                                                     \
    static struct quillHeader##Type *tryDecodeLines(quill::LineSource source) {                                        \
        return quill::tryDecodeList<struct quillHeader##Type>(source, skip);                                           \
    }

#define QUILL_DEFINE_LIST_CLEAR(Type, Clear)                                                                           \
    void quillHeader##Type##Clear(struct quillHeader##Type **hdr) {                                                    \
        CO_ASSERT_REFERENCE(hdr);                                                                                      \
        quill::clearList(hdr);                                                                                         \
    }

#define QUILL_DEFINE_LIST_LENGTH_AND_DEL(Type, Element)                                                                \
    int64_t quillHeader##Type##Element##sLength(struct quillHeader##Type const *hdr) {                                 \
        CO_ASSERT_GIVEN(hdr);                                                                                          \
        return hdr->elements.count();                                                                                  \
    }                                                                                                                  \
    void quillHeader##Type##Del##Element##At(struct quillHeader##Type **hdr, int64_t index) {                          \
        CO_ASSERT_REFERENCE(hdr);                                                                                      \
        quill::deleteElement(hdr, index);                                                                              \
    }

// The operations that put an element in. `Value` is what the interface takes, `text` makes the element's text of it,
// with the value's own assertions.
#define QUILL_DEFINE_LIST_SETTERS(Type, Element, Value, value, text)                                                   \
    void quillHeader##Type##Set##Element##At(struct quillHeader##Type **hdr, int64_t index, Value value) {             \
        CO_ASSERT_REFERENCE(hdr);                                                                                      \
        quill::setElement(hdr, index, text(value));                                                                    \
    }                                                                                                                  \
    void quillHeader##Type##Prepend##Element(struct quillHeader##Type **hdr, Value value) {                            \
        CO_ASSERT_REFERENCE(hdr);                                                                                      \
        quill::prependElement(hdr, text(value));                                                                       \
    }                                                                                                                  \
    void quillHeader##Type##Append##Element(struct quillHeader##Type **hdr, Value value) {                             \
        CO_ASSERT_REFERENCE(hdr);                                                                                      \
        quill::appendElement(hdr, text(value));                                                                        \
    }                                                                                                                  \
    void quillHeader##Type##Insert##Element(struct quillHeader##Type **hdr, int64_t index, Value value) {              \
        CO_ASSERT_REFERENCE(hdr);                                                                                      \
        quill::insertElement(hdr, index, text(value));                                                                 \
    }

// A list of quill<Value>: an element is encoded when it is put in and decoded each time it is asked for, or copied with
// `createFrom` where it was read with the header, nullptr where that never is.
#define QUILL_DEFINE_VALUE_LIST_ACCESS(Type, Element, Value, value, createFrom)                                        \
    QUILL_DEFINE_LIST_LENGTH_AND_DEL(Type, Element)                                                                    \
    struct quill##Value *quillHeader##Type##TryDecode##Element##At(struct quillHeader##Type const *hdr,                \
                                                                   int64_t index) {                                    \
        CO_ASSERT_GIVEN(hdr);                                                                                          \
        return quill::tryDecodeElement(hdr, index, quill___##Value##TryDecode, createFrom);                            \
    }                                                                                                                  \
    QUILL_DEFINE_LIST_SETTERS(Type, Element, struct quill##Value const *, value, quill___##Value##Encode)

// A list of which the first element is read with the header.
#define QUILL_DEFINE_READ_VALUE_LIST_HEADER(Type, SORT, Element, value, skip, kind)                                    \
    QUILL_DEFINE_LIST_OBJECT(Type, SORT)                                                                               \
    QUILL_DEFINE_LIST_ENCODE(Type)                                                                                     \
    static struct quillHeader##Type *tryDecodeLines(quill::LineSource source) {                                        \
        return quill::tryDecodeList<struct quillHeader##Type>(source, skip, &kind);                                    \
    }                                                                                                                  \
    QUILL_DEFINE_LIST_CLEAR(Type, Clear##Element##s)                                                                   \
    QUILL_DEFINE_VALUE_LIST_ACCESS(Type, Element, Element, value, quill##Element##CreateFrom)

#define QUILL_DEFINE_VALUE_LIST_HEADER(Type, SORT, Element, value, skip)                                               \
    QUILL_DEFINE_LIST_OBJECT(Type, SORT)                                                                               \
    QUILL_DEFINE_LIST_CODEC(Type, skip)                                                                                \
    QUILL_DEFINE_LIST_CLEAR(Type, Clear##Element##s)                                                                   \
    QUILL_DEFINE_VALUE_LIST_ACCESS(Type, Element, Element, value, nullptr)

// A list of scalars: an element is its text. `normalize` gives it as it is kept, co::asGiven where that is itself.
#define QUILL_DEFINE_SCALAR_LIST_ACCESS(Type, Element, value, normalize)                                               \
    static coString *checked(coString *value) {                                                                        \
        CO_ASSERT_OK(quill##Element##Ok, value);                                                                       \
        return normalize(value);                                                                                       \
    }                                                                                                                  \
    QUILL_DEFINE_LIST_LENGTH_AND_DEL(Type, Element)                                                                    \
    struct coString *quillHeader##Type##Element##At(struct quillHeader##Type const *hdr, int64_t index) {              \
        CO_ASSERT_GIVEN(hdr);                                                                                          \
        return hdr->elements.string(index);                                                                            \
    }                                                                                                                  \
    QUILL_DEFINE_LIST_SETTERS(Type, Element, struct coString *, value, checked)

#define QUILL_DEFINE_SCALAR_LIST_HEADER(Type, SORT, Element, value, skip)                                              \
    QUILL_DEFINE_LIST_OBJECT(Type, SORT)                                                                               \
    QUILL_DEFINE_LIST_CODEC(Type, skip)                                                                                \
    QUILL_DEFINE_LIST_CLEAR(Type, Clear##Element##s)                                                                   \
    QUILL_DEFINE_SCALAR_LIST_ACCESS(Type, Element, value, co::asGiven)

// A set of tokens on one line. `map` gives each character of a token as it is kept.
#define QUILL_DEFINE_SET_HEADER(Type, SORT, Token, token, skip, map, separator, delimiter)                             \
    struct quillHeader##Type : quill::SetHeader {                                                                      \
        static constexpr auto &sort = quill___sort_QUILL_HEADER_##SORT;                                                \
    };                                                                                                                 \
    QUILL_DEFINE_HEADER(Type, SORT)                                                                                    \
    struct quillHeader##Type *quillHeader##Type##Create(void) {                                                        \
        return quill::makeSet<struct quillHeader##Type>();                                                             \
    }                                                                                                                  \
    struct quillMessageHeader *quillHeader##Type##Encode(struct quillHeader##Type const *hdr) {                        \
        CO_ASSERT_GIVEN(hdr);                                                                                          \
        return quill::makeHeaderOfJoined(quill::known::Type, hdr->tokens.get(), delimiter);                            \
    }                                                                                                                  \
    static struct quillHeader##Type *tryDecodeLines(quill::LineSource source) {                                        \
        return quill::tryDecodeSet<struct quillHeader##Type, map>(source, skip, separator);                            \
    }                                                                                                                  \
    QUILL_DEFINE_SET_ACCESS(Type, Token, token, map)

#define QUILL_DEFINE_SET_ACCESS(Type, Token, token, map)                                                               \
    void quillHeader##Type##Clear##Token##s(struct quillHeader##Type **hdr) {                                          \
        CO_ASSERT_REFERENCE(hdr);                                                                                      \
        coDictClear(co::writable(hdr)->tokens.address());                                                              \
    }                                                                                                                  \
    int64_t quillHeader##Type##Token##sLength(struct quillHeader##Type const *hdr) {                                   \
        CO_ASSERT_GIVEN(hdr);                                                                                          \
        return coDictLength(hdr->tokens.get());                                                                        \
    }                                                                                                                  \
    struct coString *quillHeader##Type##Token##At(struct quillHeader##Type const *hdr, int64_t index) {                \
        CO_ASSERT_GIVEN(hdr);                                                                                          \
        return coDictKeyAt(hdr->tokens.get(), index);                                                                  \
    }                                                                                                                  \
    struct coVector *quillHeader##Type##Token##sVector(struct quillHeader##Type const *hdr) {                          \
        CO_ASSERT_GIVEN(hdr);                                                                                          \
        return coDictKeysVector(hdr->tokens.get());                                                                    \
    }                                                                                                                  \
    bool quillHeader##Type##Has##Token(struct quillHeader##Type const *hdr, struct coString const *token) {            \
        CO_ASSERT_GIVEN(hdr);                                                                                          \
        CO_ASSERT_OK(quill##Token##Ok, token);                                                                         \
        return quill::hasToken(hdr, quill::mapEach<map>(token));                                                       \
    }                                                                                                                  \
    void quillHeader##Type##Set##Token(struct quillHeader##Type **hdr, struct coString *token) {                       \
        CO_ASSERT_REFERENCE(hdr);                                                                                      \
        CO_ASSERT_OK(quill##Token##Ok, token);                                                                         \
        quill::addToken(co::writable(hdr), quill::mapEach<map>(token));                                                \
    }                                                                                                                  \
    void quillHeader##Type##Set##Token##sVector(struct quillHeader##Type **hdr, struct coVector const *vec) {          \
        CO_ASSERT_REFERENCE(hdr);                                                                                      \
        CO_ASSERT_GIVEN(vec);                                                                                          \
        quillHeader##Type##Clear##Token##s(hdr);                                                                       \
        quill::setEach(hdr, vec, quillHeader##Type##Set##Token);                                                       \
    }                                                                                                                  \
    void quillHeader##Type##Del##Token(struct quillHeader##Type **hdr, struct coString const *token) {                 \
        CO_ASSERT_REFERENCE(hdr);                                                                                      \
        CO_ASSERT_OK(quill##Token##Ok, token);                                                                         \
        quill::deleteToken(co::writable(hdr), quill::mapEach<map>(token));                                             \
    }

#define QUILL_DEFINE_SET_TEXT_FORMS(Type, Token, token)                                                                \
    CO_DEFINE_TEXT_FORMS_1(bool, quillHeader##Type##Has##Token, struct quillHeader##Type const *, hdr, token)          \
    CO_DEFINE_TEXT_FORMS_1(void, quillHeader##Type##Set##Token, struct quillHeader##Type **, hdr, token)               \
    CO_DEFINE_TEXT_FORMS_1(void, quillHeader##Type##Del##Token, struct quillHeader##Type **, hdr, token)

// A single value that is one text: the object, and what is common to both ways of reading it.
#define QUILL_DEFINE_TEXT_HEADER_OBJECT(Type, SORT, part)                                                              \
    struct quillHeader##Type : co::WithLine {                                                                          \
        static constexpr auto &sort = quill___sort_QUILL_HEADER_##SORT;                                                \
        co::TextSlot part; /* never null */                                                                            \
        static constexpr auto members() { return std::tuple(&quillHeader##Type::part); }                               \
        static constexpr auto comparison() { return members(); }                                                       \
    };

#define QUILL_DEFINE_TEXT_HEADER_ACCESS(Type, Part, part, normalize)                                                   \
    CO_DEFINE_STRING_MEMBER(quillHeader##Type, hdr, Part, part, quill##Part##Ok, part, normalize)                      \
    struct quillHeader##Type *quillHeader##Type##Create(struct coString *part) {                                       \
        CO_ASSERT_OK(quill##Part##Ok, part);                                                                           \
        auto *hdr = co::make<struct quillHeader##Type>();                                                              \
        hdr->part.adopt(normalize(part));                                                                              \
        return hdr;                                                                                                    \
    }                                                                                                                  \
    static void appendValue(coString **text, struct quillHeader##Type const *hdr) {                                    \
        co::append(text, hdr->part.view());                                                                            \
    }

// The scanner takes the whole line, which is kept as it is given.
#define QUILL_DEFINE_TEXT_HEADER(Type, SORT, Part, part)                                                               \
    QUILL_DEFINE_TEXT_HEADER_OBJECT(Type, SORT, part)                                                                  \
    QUILL_DEFINE_LINE_HEADER(Type, SORT)                                                                               \
    QUILL_DEFINE_TEXT_HEADER_ACCESS(Type, Part, part, co::asGiven)                                                     \
    static bool readValue(struct quillHeader##Type *hdr, co::Chars line) {                                             \
        if (!quill::isWhole(quill___Skip##Part, line)) return false;                                                   \
        co::keep(hdr, &quillHeader##Type::part, line);                                                                 \
        return true;                                                                                                   \
    }

// The validator takes the whole line, which is kept in its normal form.
#define QUILL_DEFINE_NORMAL_TEXT_HEADER(Type, SORT, Part, part)                                                        \
    QUILL_DEFINE_TEXT_HEADER_OBJECT(Type, SORT, part)                                                                  \
    QUILL_DEFINE_VALUE_HEADER(Type, SORT)                                                                              \
    QUILL_DEFINE_TEXT_HEADER_ACCESS(Type, Part, part, quill##Part##Normalize)                                          \
    static struct quillHeader##Type *tryDecodeValue(co::Chars line) {                                                  \
        co::Ref<coString> const text(co::makeString(line));                                                            \
        return quill##Part##Ok(text.get()) ? quillHeader##Type##Create(text.get()) : nullptr;                          \
    }

// A single value that is one decimal integer.
#define QUILL_DEFINE_INTEGER_HEADER(Type, SORT, Part, part)                                                            \
    struct quillHeader##Type : coObj {                                                                                 \
        static constexpr auto &sort = quill___sort_QUILL_HEADER_##SORT;                                                \
        co::Int part;                                                                                                  \
        static constexpr auto members() { return std::tuple(&quillHeader##Type::part); }                               \
        static constexpr auto comparison() { return members(); }                                                       \
    };                                                                                                                 \
    QUILL_DEFINE_VALUE_HEADER(Type, SORT)                                                                              \
    CO_DEFINE_INT_MEMBER(quillHeader##Type, hdr, Part, part, quill##Part##Ok, part)                                    \
    struct quillHeader##Type *quillHeader##Type##Create(int64_t part) {                                                \
        CO_ASSERT_OK(quill##Part##Ok, part);                                                                           \
        auto *hdr = co::make<struct quillHeader##Type>();                                                              \
        hdr->part.set(part);                                                                                           \
        return hdr;                                                                                                    \
    }                                                                                                                  \
    static void appendValue(coString **text, struct quillHeader##Type const *hdr) {                                    \
        quill::appendDecimal(text, hdr->part.get());                                                                   \
    }                                                                                                                  \
    static struct quillHeader##Type *tryDecodeValue(co::Chars line) {                                                  \
        int64_t const value = quill::decodeDecimal(line.data(), co::length(line), quill##Part##Ok);                    \
        return value < 0 ? nullptr : quillHeader##Type##Create(value);                                                 \
    }
