// The address forms that values and header fields share. Contract: quill_name_addr.hpp.

#define CO_UNIT "source/quill/quill_name_addr"

#include <co/co_assert.hpp>
#include <loc/loc_iri.h>
#include <loc/loc_iri.hpp>
#include <quill/quill_name_addr.hpp>
#include <quill/quill_skip.h>

namespace quill {

int64_t takeBracketedIri(co::Chars text, co::Ref<coString> *iri) {
    Reader reader{text};
    reader.take(quill___SkipLaquot);
    co::Chars const uri = reader.take(quill___SkipUri);
    reader.take(quill___SkipRaquot);
    if (reader.failed) return 0;
    iri->reset(loc::makeIri(uri)); // what the scanner takes is an IRI
    return co::length(text) - co::length(reader.rest);
}

int64_t takeNameAddr(co::Chars text, Bare bare, NameAddr *address) {
    int64_t const displayName = measure(quill___SkipDisplayName, text);
    co::Chars const rest = from(text, displayName);
    bool const bracketed = measure(quill___SkipLaquot, rest) > 0;
    if (bracketed && displayName > 0) {
        address->displayName.reset(quill___DisplayNameTryDecode(text.data(), displayName));
        CO_ASSERT(address->displayName, "displayName"); // what the scanner takes can be read
        int64_t const brackets = takeBracketedIri(rest, &address->iri);
        return brackets ? displayName + brackets : 0;
    }
    if (bracketed) return takeBracketedIri(rest, &address->iri);
    if (bare == Bare::refused) return 0;
    int64_t const uri = measure(quill___SkipAddrSpec, text);
    if (uri > 0) address->iri.reset(loc::makeIri(upTo(text, uri)));
    return uri;
}

void appendBracketedIri(coString **text, coString const *iri) {
    co::Ref<coString> const cos(locTryConvertToUri(iri));
    CO_ASSERT(cos, "cos");
    co::append(text, U"<");
    co::append(text, cos->view());
    co::append(text, U">");
}

void appendNameAddr(coString **text, coString const *displayName, coString const *iri) {
    if (displayName) {
        co::Ref<coString> const quoted(quill___DisplayNameEncode(displayName));
        co::append(text, quoted->view());
        co::append(text, U" ");
    }
    appendBracketedIri(text, iri);
}

} // namespace quill
