/// @file
/// Frames messages on a stream connection (RFC 3261, 18.3): bytes are written as they arrive, messages are read as they
/// become complete.
///
/// A decoder is no value: it is changed in place, and belongs to one thread at a time. Content-Length is mandatory on a
/// stream. What is no message puts the decoder into error for good: nothing can be read or written any more, and the
/// bytes stay as they are. CR LF before a message is skipped (keep-alives, RFC 5626, 3.5.1).
#ifndef QUILL_QUILL_MESSAGE_STREAM_DECODER_H
#define QUILL_QUILL_MESSAGE_STREAM_DECODER_H

#include <quill/quill_types.h>

CO_EXTERN_C_BEGIN

/// @name Object family
/// Compared by identity. There is no text form.
/// @{
QUILL_API struct coSort const *quillMessageStreamDecoderSort(void);
QUILL_API void quillMessageStreamDecoderRetain(struct quillMessageStreamDecoder *obj);
QUILL_API void quillMessageStreamDecoderRelease(struct quillMessageStreamDecoder *obj);
QUILL_API struct coObj *quillMessageStreamDecoderObj(struct quillMessageStreamDecoder const *decoder);
QUILL_API struct quillMessageStreamDecoder *quillMessageStreamDecoderFrom(struct coObj const *obj);
QUILL_API struct coString *quillMessageStreamDecoderToString(struct quillMessageStreamDecoder const *obj);
QUILL_API int quillMessageStreamDecoderCompare(struct quillMessageStreamDecoder const *objA,
                                               struct quillMessageStreamDecoder const *objB);
QUILL_API bool quillMessageStreamDecoderEquals(struct quillMessageStreamDecoder const *objA,
                                               struct quillMessageStreamDecoder const *objB);
/// @}

QUILL_API struct quillMessageStreamDecoder *quillMessageStreamDecoderCreate(void);

/// Whether the stream is broken.
QUILL_API bool quillMessageStreamDecoderError(struct quillMessageStreamDecoder const *decoder);
/// How many bytes wait.
QUILL_API int64_t quillMessageStreamDecoderLength(struct quillMessageStreamDecoder const *decoder);
/// How many more bytes can be written without memory being needed.
QUILL_API int64_t quillMessageStreamDecoderSpace(struct quillMessageStreamDecoder const *decoder);

/// @name Writing
/// A buffer, or a part of one: its first or last bytes, a range, everything but a range. False, and nothing is taken,
/// when the stream is broken. 1 MB or more may be shared with the buffer, which is then copied when it is changed.
/// @{
QUILL_API bool quillMessageStreamDecoderWrite(struct quillMessageStreamDecoder *decoder, struct coBuffer const *buffer);
QUILL_API bool quillMessageStreamDecoderWriteLeading(struct quillMessageStreamDecoder *decoder,
                                                     struct coBuffer const *buffer, int64_t count);
QUILL_API bool quillMessageStreamDecoderWriteTrailing(struct quillMessageStreamDecoder *decoder,
                                                      struct coBuffer const *buffer, int64_t count);
QUILL_API bool quillMessageStreamDecoderWriteInner(struct quillMessageStreamDecoder *decoder,
                                                   struct coBuffer const *buffer, int64_t offset, int64_t count);
QUILL_API bool quillMessageStreamDecoderWriteOuter(struct quillMessageStreamDecoder *decoder,
                                                   struct coBuffer const *buffer, int64_t offset, int64_t count);
/// @}

/// The next complete message, or null: then either more bytes are needed or the stream is broken. To be called until it
/// returns null.
QUILL_API struct quillMessage *quillMessageStreamDecoderRead(struct quillMessageStreamDecoder *decoder);

CO_EXTERN_C_END

#endif
