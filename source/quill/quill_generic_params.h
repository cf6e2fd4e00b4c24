/// @file
/// The parameters of a value that this library does not interpret, at most one of each name, in the order in which the
/// names came (RFC 3261, 7.3.1).
///
///     *( SEMI generic-param )
///
/// Names are compared without regard to letter case. Object family, members, ownership, null and failure:
/// docs/conventions.md.
#ifndef QUILL_QUILL_GENERIC_PARAMS_H
#define QUILL_QUILL_GENERIC_PARAMS_H

#include <quill/quill_types.h>

CO_EXTERN_C_BEGIN

/// @name Object family
/// The order of the parameters does not matter to comparison.
/// @{
QUILL_API struct coSort const *quillGenericParamsSort(void);
QUILL_API void quillGenericParamsRetain(struct quillGenericParams *obj);
QUILL_API void quillGenericParamsRelease(struct quillGenericParams *obj);
QUILL_API struct coObj *quillGenericParamsObj(struct quillGenericParams const *params);
QUILL_API struct quillGenericParams *quillGenericParamsFrom(struct coObj const *obj);
QUILL_API struct coString *quillGenericParamsToString(struct quillGenericParams const *obj);
QUILL_API int quillGenericParamsCompare(struct quillGenericParams const *objA, struct quillGenericParams const *objB);
QUILL_API bool quillGenericParamsEquals(struct quillGenericParams const *objA, struct quillGenericParams const *objB);
QUILL_API struct quillGenericParams *quillGenericParamsCreateFrom(struct quillGenericParams const *source);
/// @}

QUILL_API struct quillGenericParams *quillGenericParamsCreate(void);

/// @name By position
/// The index must lie within the length.
/// @{
QUILL_API int64_t quillGenericParamsLength(struct quillGenericParams const *params);
QUILL_API struct quillGenericParam *quillGenericParamsParamAt(struct quillGenericParams const *params, int64_t index);
QUILL_API int64_t quillGenericParamsParamValueTypeAt(struct quillGenericParams const *params, int64_t index);
QUILL_API struct coString *quillGenericParamsParamValueNormalizedAt(struct quillGenericParams const *params,
                                                                    int64_t index);
QUILL_API struct coString *quillGenericParamsParamValueNonNormalizedAt(struct quillGenericParams const *params,
                                                                       int64_t index);
/// @}

/// @name All at once
/// @{
QUILL_API struct coVector *quillGenericParamsParamsVector(struct quillGenericParams const *params);
/// Replaces all; of two parameters of one name the later counts. Every element must be a quillGenericParam.
QUILL_API void quillGenericParamsSetParamsVector(struct quillGenericParams **params, struct coVector const *vector);
/// @}

/// @name By name
/// @{
/// Null when there is none of the name.
QUILL_API struct quillGenericParam *quillGenericParamsParam(struct quillGenericParams const *params,
                                                            struct coString const *name);
QUILL_API struct quillGenericParam *quillGenericParamsParamCstr(struct quillGenericParams const *params,
                                                                char const *name, int64_t length);
QUILL_API struct quillGenericParam *quillGenericParamsParamWcstr(struct quillGenericParams const *params,
                                                                 wchar_t const *name, int64_t length);
QUILL_API bool quillGenericParamsHasParam(struct quillGenericParams const *params, struct coString const *name);
QUILL_API bool quillGenericParamsHasParamCstr(struct quillGenericParams const *params, char const *name,
                                              int64_t length);
QUILL_API bool quillGenericParamsHasParamWcstr(struct quillGenericParams const *params, wchar_t const *name,
                                               int64_t length);
/// Takes the place of a parameter of the same name.
QUILL_API void quillGenericParamsSetParam(struct quillGenericParams **params, struct quillGenericParam *param);
QUILL_API void quillGenericParamsDelParam(struct quillGenericParams **params, struct coString const *name);
QUILL_API void quillGenericParamsDelParamCstr(struct quillGenericParams **params, char const *name, int64_t length);
QUILL_API void quillGenericParamsDelParamWcstr(struct quillGenericParams **params, wchar_t const *name, int64_t length);
/// @}

/// @name The value of a parameter by name
/// The getters' parameter must be there.
/// @{
QUILL_API int64_t quillGenericParamsParamValueType(struct quillGenericParams const *params,
                                                   struct coString const *name);
QUILL_API int64_t quillGenericParamsParamValueTypeCstr(struct quillGenericParams const *params, char const *name,
                                                       int64_t length);
QUILL_API int64_t quillGenericParamsParamValueTypeWcstr(struct quillGenericParams const *params, wchar_t const *name,
                                                        int64_t length);
QUILL_API struct coString *quillGenericParamsParamValueNormalized(struct quillGenericParams const *params,
                                                                  struct coString const *name);
QUILL_API struct coString *quillGenericParamsParamValueNormalizedCstr(struct quillGenericParams const *params,
                                                                      char const *name, int64_t length);
QUILL_API struct coString *quillGenericParamsParamValueNormalizedWcstr(struct quillGenericParams const *params,
                                                                       wchar_t const *name, int64_t length);
QUILL_API struct coString *quillGenericParamsParamValueNonNormalized(struct quillGenericParams const *params,
                                                                     struct coString const *name);
QUILL_API struct coString *quillGenericParamsParamValueNonNormalizedCstr(struct quillGenericParams const *params,
                                                                         char const *name, int64_t length);
QUILL_API struct coString *quillGenericParamsParamValueNonNormalizedWcstr(struct quillGenericParams const *params,
                                                                          wchar_t const *name, int64_t length);
QUILL_API void quillGenericParamsSetParamValue(struct quillGenericParams **params, struct coString *name, int64_t type,
                                               struct coString *value);
QUILL_API void quillGenericParamsSetParamValueCstr(struct quillGenericParams **params, char const *name,
                                                   int64_t nameLength, int64_t type, char const *value,
                                                   int64_t valueLength);
QUILL_API void quillGenericParamsSetParamValueWcstr(struct quillGenericParams **params, wchar_t const *name,
                                                    int64_t nameLength, int64_t type, wchar_t const *value,
                                                    int64_t valueLength);
/// @}

CO_EXTERN_C_END

#endif
