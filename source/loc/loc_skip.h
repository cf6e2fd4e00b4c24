/// @file
/// Scanners for IRIs, IP addresses and ports: each returns how many code points at the start of the text form what it
/// looks for, 0 where none do. None reads beyond the text, allocates or keeps a state.
#ifndef LOC_LOC_SKIP_H
#define LOC_LOC_SKIP_H

#include <co/co_types.h>

CO_EXTERN_C_BEGIN

/// An IRI with its scheme (RFC 3987, 2.2), as much of the text as can be one:
///
///     IRI = scheme ":" ihier-part [ "?" iquery ] [ "#" ifragment ]
///
/// - Something must follow the colon; `sip:` alone is no IRI, `http:?q` is one.
/// - A percent sign without two hexadecimal digits behind it ends the IRI, like every character that no part of an IRI
///   may hold: blanks, controls, `<`, `>`, `"`, a backslash, braces, a second `#`, U+FFFD.
/// - Authority and path are not told apart: any number of `@`, `:` and empty segments may stand in both, and a port is
///   not looked at. Brackets hold an IPv6 address where an authority's host begins, and end the IRI elsewhere.
/// - Characters for private use belong to the query alone. Bidirectional formatting characters are accepted as they
///   come.
///
/// Two rules more for `sip` and `sips`, in any letter case, whose grammar (RFC 3261, 25.1) allows other characters and
/// whose addresses stand in comma-separated lists:
///
/// - Brackets are allowed everywhere.
/// - A comma belongs to the user part only, that is before the first `@`, and with no more than one colon (that of a
///   password) between the scheme and that `@`; any other comma ends the IRI. `sip:a@h,sip:b@h` begins with the IRI
///   `sip:a@h`, `sip:a,b@h` is one.
CO_API int64_t loc___SkipIri(coChar const *chs, int64_t length);

/// Four decimal octets without leading zeros.
CO_API int64_t loc___SkipIpV4Address(coChar const *chs, int64_t length);

/// RFC 4291, 2.2: no brackets, no zone.
CO_API int64_t loc___SkipIpV6Address(coChar const *chs, int64_t length);

/// One or more digits, of whatever value.
CO_API int64_t loc___SkipPort(coChar const *chs, int64_t length);

CO_EXTERN_C_END

#endif
