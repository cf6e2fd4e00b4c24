// Header fields that hold one address: an IRI with an optional display name, and parameters.
//
//     ( name-addr / addr-spec ) *( SEMI parameter )
#pragma once

#include <quill/quill_display_name.h>
#include <quill/quill_epid.h>
#include <quill/quill_header_family.hpp>
#include <quill/quill_iri.h>
#include <quill/quill_name_addr.hpp>
#include <quill/quill_tag.h>

// The accessors of the parts that all of them have; the unit's struct has `iri`, `displayName` and `genericParams`.
#define QUILL_DEFINE_ADDRESS_MEMBERS(Type)                                                                             \
    CO_DEFINE_STRING_MEMBER(quillHeader##Type, hdr, Iri, iri, quillIriOk, iri, co::asGiven)                            \
    CO_DEFINE_OPTIONAL_STRING_MEMBER(quillHeader##Type, hdr, DisplayName, displayName, quillDisplayNameOk,             \
                                     displayName, co::asGiven)                                                         \
    CO_DEFINE_OBJECT_MEMBER(quillHeader##Type, hdr, GenericParams, genericParams, quillGenericParams, genericParams)   \
    struct quillHeader##Type *quillHeader##Type##Create(struct coString *iri) {                                        \
        CO_ASSERT_OK(quillIriOk, iri);                                                                                 \
        return quill::makeAddress<struct quillHeader##Type>(iri);                                                      \
    }

// Its codec, over the table of its lifted parameters.
#define QUILL_DEFINE_ADDRESS_CODEC(Type, lifted)                                                                       \
    static void appendValue(coString **text, struct quillHeader##Type const *hdr) {                                    \
        quill::appendAddress(text, *hdr, lifted);                                                                      \
    }                                                                                                                  \
    static bool readValue(struct quillHeader##Type *hdr, co::Chars line) {                                             \
        return quill::takeAddress(hdr, line, quill::Bare::allowed, lifted);                                            \
    }

// All of a header field that lifts no parameter.
#define QUILL_DEFINE_ADDRESS_HEADER(Type, SORT)                                                                        \
    struct quillHeader##Type : co::WithLine {                                                                          \
        static constexpr auto &sort = quill___sort_QUILL_HEADER_##SORT;                                                \
        co::TextSlot iri; /* never null */                                                                             \
        co::TextSlot displayName;                                                                                      \
        quill::ParamsSlot genericParams;                                                                               \
        static constexpr auto members() {                                                                              \
            return std::tuple(&quillHeader##Type::iri, &quillHeader##Type::displayName,                                \
                              &quillHeader##Type::genericParams);                                                      \
        }                                                                                                              \
        static constexpr auto comparison() { return members(); }                                                       \
    };                                                                                                                 \
    QUILL_DEFINE_LINE_HEADER(Type, SORT)                                                                               \
    QUILL_DEFINE_ADDRESS_MEMBERS(Type)                                                                                 \
    static constexpr std::tuple<> nothingLifted;                                                                       \
    QUILL_DEFINE_ADDRESS_CODEC(Type, nothingLifted)

// From and To: an end of a dialog, and a new one made from the other.
//
//     spec = ( name-addr / addr-spec ) *( SEMI ( tag-param / "epid" EQUAL token / generic-param ) )
#define QUILL_DEFINE_DIALOG_END_HEADER(Type, SORT, Other)                                                              \
    struct quillHeader##Type : co::WithLine {                                                                          \
        static constexpr auto &sort = quill___sort_QUILL_HEADER_##SORT;                                                \
        co::TextSlot iri; /* never null */                                                                             \
        co::TextSlot displayName;                                                                                      \
        co::TextSlot tag;                                                                                              \
        co::TextSlot epid;                                                                                             \
        quill::ParamsSlot genericParams;                                                                               \
        static constexpr auto members() {                                                                              \
            return std::tuple(&quillHeader##Type::iri, &quillHeader##Type::displayName, &quillHeader##Type::tag,       \
                              &quillHeader##Type::epid, &quillHeader##Type::genericParams);                            \
        }                                                                                                              \
        static constexpr auto comparison() { return members(); }                                                       \
    };                                                                                                                 \
    static constexpr std::tuple lifted{                                                                                \
        quill::TextParam{U"tag", quill___SkipTag, &quillHeader##Type::tag},                                            \
        quill::TextParam{U"epid", quill___SkipEpid, &quillHeader##Type::epid},                                         \
    };                                                                                                                 \
    QUILL_DEFINE_LINE_HEADER(Type, SORT)                                                                               \
    QUILL_DEFINE_ADDRESS_MEMBERS(Type)                                                                                 \
    QUILL_DEFINE_ADDRESS_CODEC(Type, lifted)                                                                           \
    CO_DEFINE_OPTIONAL_STRING_MEMBER(quillHeader##Type, hdr, Tag, tag, quillTagOk, tag, co::asGiven)                   \
    CO_DEFINE_OPTIONAL_STRING_MEMBER(quillHeader##Type, hdr, Epid, epid, quillEpidOk, epid, co::asGiven)               \
    struct quillHeader##Type *quillHeader##Type##CreateFromHeader##Other(                                              \
        struct quillHeader##Other const *hdr##Other) {                                                                 \
        CO_ASSERT_GIVEN(hdr##Other);                                                                                   \
        co::Ref<coString> const iri(quillHeader##Other##Iri(hdr##Other));                                              \
        auto *hdr = quillHeader##Type##Create(iri.get());                                                              \
        hdr->displayName.adopt(quillHeader##Other##DisplayName(hdr##Other));                                           \
        hdr->tag.adopt(quillHeader##Other##Tag(hdr##Other));                                                           \
        hdr->epid.adopt(quillHeader##Other##Epid(hdr##Other));                                                         \
        hdr->genericParams.adopt(quillHeader##Other##GenericParams(hdr##Other));                                       \
        return hdr;                                                                                                    \
    }
