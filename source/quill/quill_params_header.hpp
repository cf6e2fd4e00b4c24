// Header fields that hold one value and parameters.
//
//     value *( SEMI parameter )
//
// The unit's struct has its lifted parameters and `genericParams`; `lifted` is their table.
#pragma once

#include <quill/quill_delta_seconds.h>
#include <quill/quill_header_family.hpp>

// The value is a text: `skip` measures it, `normalize` gives it as it is kept.
#define QUILL_DEFINE_TEXT_AND_PARAMS_HEADER(Type, SORT, Part, part, ok, skip, normalize, lifted)                       \
    QUILL_DEFINE_LINE_HEADER(Type, SORT)                                                                               \
    CO_DEFINE_STRING_MEMBER(quillHeader##Type, hdr, Part, part, ok, part, normalize)                                   \
    CO_DEFINE_OBJECT_MEMBER(quillHeader##Type, hdr, GenericParams, genericParams, quillGenericParams, genericParams)   \
    struct quillHeader##Type *quillHeader##Type##Create(struct coString *part) {                                       \
        CO_ASSERT_OK(ok, part);                                                                                        \
        auto *hdr = co::make<struct quillHeader##Type>();                                                              \
        hdr->part.adopt(normalize(part));                                                                              \
        return hdr;                                                                                                    \
    }                                                                                                                  \
    static void appendValue(coString **text, struct quillHeader##Type const *hdr) {                                    \
        co::append(text, hdr->part.view());                                                                            \
        quill::appendParams(text, *hdr, lifted);                                                                       \
    }                                                                                                                  \
    static bool readValue(struct quillHeader##Type *hdr, co::Chars line) {                                             \
        int64_t const count = quill::measure(skip, line);                                                              \
        if (count == 0) return false;                                                                                  \
        quill::keep(hdr, &quillHeader##Type::part, quill::upTo(line, count), normalize);                               \
        return quill::takeParams(hdr, quill::from(line, count), lifted);                                               \
    }

// The value is a number of seconds.
#define QUILL_DEFINE_SECONDS_AND_PARAMS_HEADER(Type, SORT, lifted)                                                     \
    QUILL_DEFINE_SECONDS_AND_PARAMS_MEMBERS(Type, SORT, lifted)                                                        \
    static bool readValue(struct quillHeader##Type *hdr, co::Chars line) {                                             \
        return quill::readSeconds(hdr, &line) && quill::takeParams(hdr, line, lifted);                                 \
    }

// The same, but for decoding.
#define QUILL_DEFINE_SECONDS_AND_PARAMS_MEMBERS(Type, SORT, lifted)                                                    \
    QUILL_DEFINE_LINE_HEADER(Type, SORT)                                                                               \
    CO_DEFINE_INT_MEMBER(quillHeader##Type, hdr, DeltaSeconds, deltaSeconds, quillDeltaSecondsOk, deltaSeconds)        \
    CO_DEFINE_OBJECT_MEMBER(quillHeader##Type, hdr, GenericParams, genericParams, quillGenericParams, genericParams)   \
    struct quillHeader##Type *quillHeader##Type##Create(int64_t deltaSeconds) {                                        \
        CO_ASSERT_OK(quillDeltaSecondsOk, deltaSeconds);                                                               \
        auto *hdr = co::make<struct quillHeader##Type>();                                                              \
        hdr->deltaSeconds.set(deltaSeconds);                                                                           \
        return hdr;                                                                                                    \
    }                                                                                                                  \
    static void appendValue(coString **text, struct quillHeader##Type const *hdr) {                                    \
        quill::appendDecimal(text, hdr->deltaSeconds.get());                                                           \
        quill::appendParams(text, *hdr, lifted);                                                                       \
    }

namespace quill {

// delta-seconds at the start of a header's line, which then goes on behind them. False where there are none.
template <class T> bool readSeconds(T *hdr, co::Chars *line) {
    int64_t seconds;
    int64_t const digits = takeDecimal(*line, quillDeltaSecondsOk, &seconds);
    *line = from(*line, digits);
    hdr->deltaSeconds.set(seconds);
    return digits > 0 && hdr->deltaSeconds;
}

// A parameter that is a number of seconds.
template <class T> constexpr IntParam<T> secondsParam(co::Chars name, co::Int T::*field) {
    return {name, quill___SkipDeltaSeconds, quill___DeltaSecondsTryDecode, quill___DeltaSecondsEncode, field};
}

} // namespace quill
