/// @file
/// The value of a generic parameter, of one of three kinds (RFC 3261, 25.1).
///
///     gen-value = token / host / quoted-string
#ifndef QUILL_QUILL_GENERIC_PARAM_VALUE_H
#define QUILL_QUILL_GENERIC_PARAM_VALUE_H

#include <quill/quill_types.h>

CO_EXTERN_C_BEGIN

/// A token, kept as it is given; its normal form is in lower case.
#define QUILL_GENERIC_PARAM_VALUE_TYPE_TOKEN 0
/// A host; in practice a bracketed IPv6 reference, since other hosts are tokens too and tokens are tried first.
#define QUILL_GENERIC_PARAM_VALUE_TYPE_HOST 1
/// A quoted string, kept as the text between the quotes.
#define QUILL_GENERIC_PARAM_VALUE_TYPE_QUOTED_STRING 2

#define QUILL_GENERIC_PARAM_VALUE_TYPE_OK(type) ((type) >= 0 && (type) <= 2)

/// Whether the text is a value of the type. The type must be one of the three.
QUILL_API bool quillGenericParamValueOk(int64_t type, struct coString const *value);
QUILL_API bool quillGenericParamValueOkCstr(int64_t type, char const *value, int64_t length);
QUILL_API bool quillGenericParamValueOkWcstr(int64_t type, wchar_t const *value, int64_t length);

/// The value in its normal form: tokens in lower case, others as they are. A token must be one.
QUILL_API struct coString *quillGenericParamValueNormalize(int64_t type, struct coString *value);
QUILL_API struct coString *quillGenericParamValueNormalizeCstr(int64_t type, char const *value, int64_t length);
QUILL_API struct coString *quillGenericParamValueNormalizeWcstr(int64_t type, wchar_t const *value, int64_t length);

CO_EXTERN_C_END

#endif
