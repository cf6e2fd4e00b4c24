/// @file
/// One parameter that this library does not interpret (RFC 3261, 25.1).
///
///     generic-param = token [ EQUAL gen-value ]
///
/// Object family, members, ownership, null and failure: docs/conventions.md.
#ifndef QUILL_QUILL_GENERIC_PARAM_H
#define QUILL_QUILL_GENERIC_PARAM_H

#include <quill/quill_types.h>

CO_EXTERN_C_BEGIN

/// @name Object family
/// Compared by name, then kind of value (none first), then normal form of the value: tokens without regard to letter
/// case, hosts and quoted strings with it.
/// @{
QUILL_API struct coSort const *quillGenericParamSort(void);
QUILL_API void quillGenericParamRetain(struct quillGenericParam *obj);
QUILL_API void quillGenericParamRelease(struct quillGenericParam *obj);
QUILL_API struct coObj *quillGenericParamObj(struct quillGenericParam const *param);
QUILL_API struct quillGenericParam *quillGenericParamFrom(struct coObj const *obj);
QUILL_API struct coString *quillGenericParamToString(struct quillGenericParam const *obj);
QUILL_API int quillGenericParamCompare(struct quillGenericParam const *objA, struct quillGenericParam const *objB);
QUILL_API bool quillGenericParamEquals(struct quillGenericParam const *objA, struct quillGenericParam const *objB);
QUILL_API struct quillGenericParam *quillGenericParamCreateFrom(struct quillGenericParam const *source);
/// @}

/// @name Creation
/// @{
/// A parameter without value.
QUILL_API struct quillGenericParam *quillGenericParamCreate(struct coString *name);
QUILL_API struct quillGenericParam *quillGenericParamCreateCstr(char const *name, int64_t length);
QUILL_API struct quillGenericParam *quillGenericParamCreateWcstr(wchar_t const *name, int64_t length);
QUILL_API struct quillGenericParam *quillGenericParamCreateWithValue(struct coString *name, int64_t type,
                                                                     struct coString *value);
QUILL_API struct quillGenericParam *quillGenericParamCreateWithValueCstr(char const *name, int64_t nameLength,
                                                                         int64_t type, char const *value,
                                                                         int64_t valueLength);
QUILL_API struct quillGenericParam *quillGenericParamCreateWithValueWcstr(wchar_t const *name, int64_t nameLength,
                                                                          int64_t type, wchar_t const *value,
                                                                          int64_t valueLength);
/// @}

/// @name Name: a token, kept in lower case
/// @{
QUILL_API struct coString *quillGenericParamName(struct quillGenericParam const *param);
QUILL_API void quillGenericParamSetName(struct quillGenericParam **param, struct coString *name);
QUILL_API void quillGenericParamSetNameCstr(struct quillGenericParam **param, char const *name, int64_t length);
QUILL_API void quillGenericParamSetNameWcstr(struct quillGenericParam **param, wchar_t const *name, int64_t length);
/// @}

/// @name Value: optional
/// Types: quill_generic_param_value.h.
/// @{
QUILL_API bool quillGenericParamHasValue(struct quillGenericParam const *param);
/// -1 without a value.
QUILL_API int64_t quillGenericParamValueType(struct quillGenericParam const *param);
/// The value's normal form; null without a value.
QUILL_API struct coString *quillGenericParamValueNormalized(struct quillGenericParam const *param);
/// The value as it was given or decoded; null without a value.
QUILL_API struct coString *quillGenericParamValueNonNormalized(struct quillGenericParam const *param);
QUILL_API void quillGenericParamSetValue(struct quillGenericParam **param, int64_t type, struct coString *value);
QUILL_API void quillGenericParamSetValueCstr(struct quillGenericParam **param, int64_t type, char const *value,
                                             int64_t length);
QUILL_API void quillGenericParamSetValueWcstr(struct quillGenericParam **param, int64_t type, wchar_t const *value,
                                              int64_t length);
QUILL_API void quillGenericParamDelValue(struct quillGenericParam **param);
/// Replaces the value by its normal form.
QUILL_API void quillGenericParamNormalizeValue(struct quillGenericParam **param);
/// @}

CO_EXTERN_C_END

#endif
