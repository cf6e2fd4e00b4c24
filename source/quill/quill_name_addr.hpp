// The address forms that values and header fields share (RFC 3261, 20 and 25.1).
//
//     name-addr = [ display-name ] LAQUOT addr-spec RAQUOT
//     addr-spec = URI without header parameters
#pragma once

#include <co/co_simd.hpp>
#include <loc/loc_iri.hpp>
#include <quill/quill_lifted.hpp>

namespace quill {

enum class Bare { allowed, refused }; // an addr-spec without brackets

struct Uri {
    co::Chars text;
    bool isPlain; // was seen to have no escapes, so that it is its own IRI
};

// An address as it is written.
struct NameAddr {
    co::Chars displayName; // empty where there is none
    co::Chars plainName;   // what it says where it says the same without quotes
    bool isNamePlain;      // or else it must be decoded
    Uri uri;
};

// How many code points at the start of the text the address takes; 0 where there is none, or none that can be an IRI.
int64_t measureNameAddr(co::Chars text, Bare bare, NameAddr *address);

// LAQUOT URI RAQUOT
int64_t takeBracketedUri(co::Chars text, Uri *uri);

// What a display name says that the scanner took.
coString *decodeDisplayName(co::Chars written);

// The URI in angle brackets.
void appendBracketedIri(coString **text, co::TextSlot const &iri);

// The display name in quotes and a space where there is one, and the URI in angle brackets always, so that what stands
// in it cannot be misread.
void appendNameAddr(coString **text, co::TextSlot const &displayName, co::TextSlot const &iri);

// What follows is for types with an IRI, generic parameters and, but for makeAddress, a display name among their members.

// A new value of an IRI that is known to be valid, without anything else.
template <class T> T *makeAddress(coString *iri) {
    T *value = co::make<T>();
    value->iri.set(iri);
    return value;
}

// Most URIs are their own IRIs.
template <class T> void keepIri(T *value, Uri const &uri) {
    if (uri.isPlain || !co::simd::contains(uri.text, U'%'))
        co::keep(value, &T::iri, uri.text);
    else
        value->iri.adopt(loc::makeIri(uri.text));
}

template <class T> void keepNameAddr(T *value, NameAddr const &address) {
    keepIri(value, address.uri);
    if (address.displayName.empty()) return;
    if (address.isNamePlain)
        co::keep(value, &T::displayName, address.plainName);
    else
        value->displayName.adopt(decodeDisplayName(address.displayName));
}

// The address at the start of the text into the value; how many code points it takes, 0 for none.
template <class T> int64_t takeNameAddr(T *value, co::Chars text, Bare bare) {
    NameAddr address;
    int64_t const count = measureNameAddr(text, bare, &address);
    if (count > 0) keepNameAddr(value, address);
    return count;
}

template <class T, class... Rows>
void appendAddress(coString **text, T const &value, std::tuple<Rows...> const &lifted) {
    appendNameAddr(text, value.displayName, value.iri);
    appendParams(text, value, lifted);
}

template <class T, class... Rows> coString *encodeAddress(T const &value, std::tuple<Rows...> const &lifted) {
    coString *text = coStringCreate();
    appendAddress(&text, value, lifted);
    return text;
}

// The address and the parameters at the start of the value's own line, which then goes on behind them. False where there
// is no address.
template <class T, class... Rows>
bool readAddress(T *value, co::Chars *line, Bare bare, std::tuple<Rows...> const &lifted) {
    int64_t const count = takeNameAddr(value, *line, bare);
    *line = count > 0 ? readParams(value, from(*line, count), lifted) : *line;
    return count > 0;
}

// Whether the whole line is such.
template <class T, class... Rows>
bool takeAddress(T *value, co::Chars line, Bare bare, std::tuple<Rows...> const &lifted) {
    return readAddress(value, &line, bare, lifted) && line.empty();
}

} // namespace quill
