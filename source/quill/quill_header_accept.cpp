// The Accept header field. Grammar and contract: quill_header_accept.h.

#define CO_UNIT "source/quill/quill_header_accept"

#include <quill/quill_header_accept.h>
#include <quill/quill_header_family.hpp>

// The scanner of a media range counts its parameters alone, so that an element is measured here:
//
//     ( "*" / m-type ) SLASH ( "*" / m-subtype ) *( SEMI generic-param ), "*" with "*" only
static int64_t measureElement(coChar const *chs, int64_t length) {
    co::Chars const text = co::chars(chs, length);
    int64_t const type = quill::measure(quill___SkipMediaType, text);
    int64_t at = type ? type : quill___SkipChar(chs, length, U'*');
    int64_t const slash = at ? quill::measure(quill___SkipSlash, quill::from(text, at)) : 0;
    if (slash == 0) return 0;
    at += slash;
    int64_t const subtype = quill::measure(quill___SkipMediaSubtype, quill::from(text, at));
    if (type == 0 && subtype > 0) return 0;
    int64_t const nameOrStar = subtype ? subtype : quill___SkipChar(chs + at, length - at, U'*');
    if (nameOrStar == 0) return 0;
    at += nameOrStar;
    return at + quill::measure(quill___SkipGenericParams, quill::from(text, at));
}

QUILL_DEFINE_VALUE_LIST_HEADER(Accept, ACCEPT, Accept, accept, measureElement)
