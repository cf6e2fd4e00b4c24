/// @file
/// Buffers: sequences of bytes. Setters are copy on write; appending is amortised constant, and dropping leading bytes
/// does not move the rest.
#ifndef CO_CO_BUFFER_H
#define CO_CO_BUFFER_H

#include <co/co_types.h>

CO_EXTERN_C_BEGIN

/// @name Object family
/// @{
CO_API struct coSort const *coBufferSort(void);
CO_API void coBufferRetain(struct coBuffer *obj);
CO_API void coBufferRelease(struct coBuffer *obj);
CO_API struct coObj *coBufferObj(struct coBuffer const *obj);
CO_API struct coBuffer *coBufferFrom(struct coObj const *obj);
/// The bytes in hexadecimal digits.
CO_API struct coString *coBufferToString(struct coBuffer const *obj);
/// Byte by byte; a beginning comes before the whole.
CO_API int coBufferCompare(struct coBuffer const *objA, struct coBuffer const *objB);
CO_API bool coBufferEquals(struct coBuffer const *objA, struct coBuffer const *objB);
/// @}

CO_API struct coBuffer *coBufferCreate(void);
CO_API struct coBuffer *coBufferCreateFromBytesCopy(uint8_t const *bytes, int64_t count);
CO_API int64_t coBufferLength(struct coBuffer const *buffer);
/// The bytes, valid while the buffer lives and is unchanged; may be null when there are none.
CO_API uint8_t const *coBufferBacking(struct coBuffer const *buffer);
/// How many bytes can be appended before memory is needed.
CO_API int64_t coBufferSpace(struct coBuffer const *buffer);
/// A new buffer of the @p count bytes from @p offset, which must lie within the buffer.
CO_API struct coBuffer *coBufferRead(struct coBuffer const *buffer, int64_t offset, int64_t count);

CO_API void coBufferAppend(struct coBuffer **buffer, struct coBuffer const *other);
CO_API void coBufferAppendByte(struct coBuffer **buffer, uint8_t byte);
CO_API void coBufferAppendBytes(struct coBuffer **buffer, uint8_t const *bytes, int64_t count);

/// @name Appending a part of another buffer: a range, its first or last bytes, everything but a range
/// @{
CO_API void coBufferAppendInner(struct coBuffer **buffer, struct coBuffer const *other, int64_t offset, int64_t count);
CO_API void coBufferAppendLeading(struct coBuffer **buffer, struct coBuffer const *other, int64_t count);
CO_API void coBufferAppendTrailing(struct coBuffer **buffer, struct coBuffer const *other, int64_t count);
CO_API void coBufferAppendOuter(struct coBuffer **buffer, struct coBuffer const *other, int64_t offset, int64_t count);
/// @}

CO_API void coBufferDelLeading(struct coBuffer **buffer, int64_t count);
/// Keeps the @p count bytes from @p offset and drops what is outside of them.
CO_API void coBufferDelOuter(struct coBuffer **buffer, int64_t offset, int64_t count);

CO_EXTERN_C_END

#endif
