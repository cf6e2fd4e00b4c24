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

int64_t takeBracketedUri(co::Chars text, co::Chars *uri) {
    Reader reader{text};
    reader.take(rules::laquot);
    *uri = reader.take([](co::Chars rest) { return loc::iriLength(rest); });
    reader.take(rules::raquot);
    return reader.failed ? 0 : co::length(text) - co::length(reader.rest);
}

int64_t measureNameAddr(co::Chars text, Bare bare, NameAddr *address) {
    int64_t const displayName = measure(quill___SkipDisplayName, text);
    co::Chars const rest = from(text, displayName);
    if (rules::laquot(rest) > 0) {
        address->displayName = upTo(text, displayName);
        int64_t const brackets = takeBracketedUri(rest, &address->uri);
        return brackets ? displayName + brackets : 0;
    }
    if (bare == Bare::refused) return 0;
    int64_t const uri = measure(quill___SkipAddrSpec, text);
    address->uri = upTo(text, uri);
    return uri;
}

coString *decodeDisplayName(co::Chars written) {
    coString *displayName = quill___DisplayNameTryDecode(written.data(), co::length(written));
    CO_ASSERT(displayName, "displayName"); // what the scanner takes can be read
    return displayName;
}

// In quotes without escapes, or one token: several have their blanks between them made one each.
bool isPlainDisplayName(co::Chars written, co::Chars *plain) {
    co::Chars const text = written.substr(static_cast<size_t>(rules::sws(written)));
    if (text.starts_with(U'"')) {
        *plain = text.substr(1, text.size() - 2);
        return text.find(U'\\') == co::Chars::npos;
    }
    *plain = upTo(text, matched(rules::token(text)));
    co::Chars const behind = from(text, co::length(*plain));
    return rules::sws(behind) == co::length(behind);
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
