// The address forms that values and header fields share. Contract: quill_name_addr.hpp.

#define CO_UNIT "source/quill/quill_name_addr"

#include <co/co_assert.hpp>
#include <loc/loc_iri.h>
#include <loc/loc_iri.hpp>
#include <loc/loc_skip.hpp>
#include <quill/quill_display_name.h>
#include <quill/quill_name_addr.hpp>
#include <quill/quill_skip.h>

namespace quill {

int64_t takeBracketedUri(co::Chars text, Uri *uri) {
    int64_t const opening = matched(rules::laquot(text));
    if (opening == 0) return 0;
    co::Chars const rest = from(text, opening);
    int64_t const length = loc::iriLengthInAddress(rest, loc::noChar, &uri->isPlain);
    uri->text = upTo(rest, length);
    int64_t const closing = length ? matched(rules::raquot(from(rest, length))) : 0;
    return closing ? opening + length + closing : 0;
}

// A display name as most are: one in quotes without escapes, or one token, before a bracket. How many code points it is
// with the blanks behind it, 0 where it is anything else, or none.
static int64_t measureUsualName(co::Chars text, co::Chars *plain) {
    bool const isQuoted = text.starts_with(U'"');
    co::Chars const name = from(text, isQuoted);
    *plain = upTo(name, isQuoted ? rules::qdtexts(name) : matched(rules::token(name)));
    co::Chars const rest = from(name, co::length(*plain));
    if (isQuoted ? !rest.starts_with(U'"') : plain->empty()) return 0;
    int64_t const length = co::length(*plain) + 2 * isQuoted;
    int64_t const blanks = rules::sws(from(text, length));
    return from(text, length + blanks).starts_with(U'<') ? length + blanks : 0;
}

static int64_t measureName(co::Chars text, NameAddr *address) {
    int64_t const usual = measureUsualName(text, &address->plainName);
    address->isNamePlain = usual > 0;
    return usual > 0 ? usual : measure(quill___SkipDisplayName, text);
}

int64_t measureNameAddr(co::Chars text, Bare bare, NameAddr *address) {
    int64_t const displayName = text.starts_with(U'<') ? 0 : measureName(text, address);
    address->displayName = upTo(text, displayName);
    co::Chars const rest = from(text, displayName);
    if (rules::laquot(rest) > 0) {
        int64_t const brackets = takeBracketedUri(rest, &address->uri);
        return brackets ? displayName + brackets : 0;
    }
    if (bare == Bare::refused) return 0;
    address->displayName = {};
    int64_t const uri = loc::iriLengthInAddress(text, U';', &address->uri.isPlain);
    address->uri.text = upTo(text, uri);
    return uri;
}

coString *decodeDisplayName(co::Chars written) {
    coString *displayName = quill___DisplayNameTryDecode(written.data(), co::length(written));
    CO_ASSERT(displayName, "displayName"); // what the scanner takes can be read
    return displayName;
}

void appendBracketedIri(coString **text, co::TextSlot const &iri) {
    co::Ref<coString> const kept(iri.retained());
    co::Ref<coString> const cos(locTryConvertToUri(kept.get()));
    CO_ASSERT(cos, "cos");
    co::append(text, U"<");
    co::append(text, cos->view());
    co::append(text, U">");
}

void appendNameAddr(coString **text, co::TextSlot const &displayName, co::TextSlot const &iri) {
    if (co::Ref<coString> const kept{displayName.retained()}) {
        co::Ref<coString> const quoted(quill___DisplayNameEncode(kept.get()));
        co::append(text, quoted->view());
        co::append(text, U" ");
    }
    appendBracketedIri(text, iri);
}

} // namespace quill
