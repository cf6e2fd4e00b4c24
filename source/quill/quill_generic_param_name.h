/// @file
/// The name of a generic parameter: a token, kept in lower case (RFC 3261, 25.1).
#ifndef QUILL_QUILL_GENERIC_PARAM_NAME_H
#define QUILL_QUILL_GENERIC_PARAM_NAME_H

#include <quill/quill_types.h>

CO_EXTERN_C_BEGIN

/// Whether the text is a token; the empty text is none.
QUILL_API bool quillGenericParamNameOk(struct coString const *name);
QUILL_API bool quillGenericParamNameOkCstr(char const *name, int64_t length);
QUILL_API bool quillGenericParamNameOkWcstr(wchar_t const *name, int64_t length);

/// The name in lower case. The text must be a token.
QUILL_API struct coString *quillGenericParamNameNormalize(struct coString const *name);
QUILL_API struct coString *quillGenericParamNameNormalizeCstr(char const *name, int64_t length);
QUILL_API struct coString *quillGenericParamNameNormalizeWcstr(wchar_t const *name, int64_t length);

CO_EXTERN_C_END

#endif
