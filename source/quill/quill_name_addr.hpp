// The address forms that values and header fields share (RFC 3261, 20 and 25.1).
//
//     name-addr = [ display-name ] LAQUOT addr-spec RAQUOT
//     addr-spec = URI without header parameters
#pragma once

#include <quill/quill_lifted.hpp>

namespace quill {

struct NameAddr {
    co::Ref<coString> iri;
    co::Ref<coString> displayName; // null where there is none
};

enum class Bare { allowed, refused }; // an addr-spec without brackets

// How many code points at the start of the text the address takes; 0 where there is none, or none that can be an IRI.
int64_t takeNameAddr(co::Chars text, Bare bare, NameAddr *address);

// LAQUOT URI RAQUOT
int64_t takeBracketedIri(co::Chars text, co::Ref<coString> *iri);

// The URI in angle brackets.
void appendBracketedIri(coString **text, coString const *iri);

// The display name in quotes and a space where there is one, and the URI in angle brackets always, so that what stands
// in it cannot be misread.
void appendNameAddr(coString **text, coString const *displayName, coString const *iri);

// What follows is for types with an IRI, generic parameters and, but for makeAddress, a display name among their members.

// A new value of an IRI that is known to be valid, without anything else.
template <class T> T *makeAddress(coString *iri) {
    T *value = co::make<T>();
    value->iri.set(iri);
    value->genericParams.set(noGenericParams());
    return value;
}

template <class T, class... Rows>
void appendAddress(coString **text, T const &value, std::tuple<Rows...> const &lifted) {
    appendNameAddr(text, value.displayName.get(), value.iri.get());
    appendParams(text, value, lifted);
}

template <class T, class... Rows> coString *encodeAddress(T const &value, std::tuple<Rows...> const &lifted) {
    coString *text = coStringCreate();
    appendAddress(&text, value, lifted);
    return text;
}

// A new value from its address and parameters, or null.
template <class T, class... Rows> T *tryDecodeAddress(co::Chars text, Bare bare, std::tuple<Rows...> const &lifted) {
    NameAddr address;
    int64_t const count = takeNameAddr(text, bare, &address);
    if (count == 0) return nullptr;
    co::Ref<T> value(makeAddress<T>(address.iri.get()));
    value->displayName.adopt(address.displayName.take());
    return takeParams(value.get(), from(text, count), lifted) ? value.take() : nullptr;
}

} // namespace quill
