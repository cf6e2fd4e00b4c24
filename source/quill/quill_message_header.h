/// @file
/// A raw header: a header field's name and its values as they stand on the wire, one line for each occurrence of the
/// field (RFC 3261, 7.3).
///
/// Names are kept in a normal form: compact names are expanded (7.3.3), and the letters are lower case but for the first
/// one and those after a hyphen: Call-Id, Cseq, Www-Authenticate. All comparisons and the wire use that form.
///
/// Object family, members, ownership, null and failure: docs/conventions.md.
#ifndef QUILL_QUILL_MESSAGE_HEADER_H
#define QUILL_QUILL_MESSAGE_HEADER_H

#include <quill/quill_types.h>

CO_EXTERN_C_BEGIN

/// @name Object family
/// Compared by name, then lines. There is no text form.
/// @{
QUILL_API struct coSort const *quillMessageHeaderSort(void);
QUILL_API void quillMessageHeaderRetain(struct quillMessageHeader *obj);
QUILL_API void quillMessageHeaderRelease(struct quillMessageHeader *obj);
QUILL_API struct coObj *quillMessageHeaderObj(struct quillMessageHeader const *header);
QUILL_API struct quillMessageHeader *quillMessageHeaderFrom(struct coObj const *obj);
QUILL_API struct coString *quillMessageHeaderToString(struct quillMessageHeader const *obj);
QUILL_API int quillMessageHeaderCompare(struct quillMessageHeader const *objA, struct quillMessageHeader const *objB);
QUILL_API bool quillMessageHeaderEquals(struct quillMessageHeader const *objA, struct quillMessageHeader const *objB);
QUILL_API struct quillMessageHeader *quillMessageHeaderCreateFrom(struct quillMessageHeader const *source);
/// @}

/// @name What a name and a line may be
/// @{
/// Whether the text is a token; the empty text is none.
QUILL_API bool quillMessageHeaderNameOk(struct coString const *name);
/// The normal form of a name: `v` gives Via, `CALL-ID` gives Call-Id. The text must be a token.
QUILL_API struct coString *quillMessageHeaderNameNormalize(struct coString const *name);
/// Whether the text is free of CR LF; a lone CR or LF, blanks at the ends and the empty text are fine.
QUILL_API bool quillMessageHeaderLineOk(struct coString const *line);
/// @}

/// A header without lines. The name must be a token; it is normalised.
/// @{
QUILL_API struct quillMessageHeader *quillMessageHeaderCreate(struct coString *name);
QUILL_API struct quillMessageHeader *quillMessageHeaderCreateCstr(char const *name, int64_t length);
QUILL_API struct quillMessageHeader *quillMessageHeaderCreateWcstr(wchar_t const *name, int64_t length);
/// @}

/// @name Name
/// @{
QUILL_API struct coString *quillMessageHeaderName(struct quillMessageHeader const *header);
/// Whether the header bears this name, however it is spelt. The text must be a token.
QUILL_API bool quillMessageHeaderNameEquals(struct quillMessageHeader const *header, struct coString const *name);
QUILL_API bool quillMessageHeaderNameEqualsCstr(struct quillMessageHeader const *header, char const *name,
                                                int64_t length);
QUILL_API bool quillMessageHeaderNameEqualsWcstr(struct quillMessageHeader const *header, wchar_t const *name,
                                                 int64_t length);
QUILL_API void quillMessageHeaderSetName(struct quillMessageHeader **header, struct coString *name);
QUILL_API void quillMessageHeaderSetNameCstr(struct quillMessageHeader **header, char const *name, int64_t length);
QUILL_API void quillMessageHeaderSetNameWcstr(struct quillMessageHeader **header, wchar_t const *name, int64_t length);
/// @}

/// @name Lines
/// An index must lie within the length; a line must pass quillMessageHeaderLineOk. The `Format` forms make the line from
/// a format, whose directives are listed in co_string.h.
/// @{
QUILL_API int64_t quillMessageHeaderLinesLength(struct quillMessageHeader const *header);
QUILL_API struct coString *quillMessageHeaderLineAt(struct quillMessageHeader const *header, int64_t index);
/// The last line; null when there is none.
QUILL_API struct coString *quillMessageHeaderLastLine(struct quillMessageHeader const *header);
QUILL_API struct coVector *quillMessageHeaderLinesVector(struct quillMessageHeader const *header);
/// Replaces all lines. Every element must be a string and a line.
QUILL_API void quillMessageHeaderSetLinesVector(struct quillMessageHeader **header, struct coVector *lines);
QUILL_API void quillMessageHeaderSetLineAt(struct quillMessageHeader **header, int64_t index, struct coString *line);
QUILL_API void quillMessageHeaderSetLineAtCstr(struct quillMessageHeader **header, int64_t index, char const *line,
                                               int64_t length);
QUILL_API void quillMessageHeaderSetLineAtWcstr(struct quillMessageHeader **header, int64_t index, wchar_t const *line,
                                                int64_t length);
QUILL_API void quillMessageHeaderSetLineAtFormat(struct quillMessageHeader **header, int64_t index,
                                                 struct coString const *format, ...);
QUILL_API void quillMessageHeaderSetLineAtFormatCstr(struct quillMessageHeader **header, int64_t index,
                                                     char const *format, int64_t length, ...);
QUILL_API void quillMessageHeaderSetLineAtFormatWcstr(struct quillMessageHeader **header, int64_t index,
                                                      wchar_t const *format, int64_t length, ...);
QUILL_API void quillMessageHeaderAppendLine(struct quillMessageHeader **header, struct coString *line);
QUILL_API void quillMessageHeaderAppendLineCstr(struct quillMessageHeader **header, char const *line, int64_t length);
QUILL_API void quillMessageHeaderAppendLineWcstr(struct quillMessageHeader **header, wchar_t const *line,
                                                 int64_t length);
QUILL_API void quillMessageHeaderAppendLineFormat(struct quillMessageHeader **header, struct coString const *format,
                                                  ...);
QUILL_API void quillMessageHeaderAppendLineFormatCstr(struct quillMessageHeader **header, char const *format,
                                                      int64_t length, ...);
QUILL_API void quillMessageHeaderAppendLineFormatWcstr(struct quillMessageHeader **header, wchar_t const *format,
                                                       int64_t length, ...);
QUILL_API void quillMessageHeaderDelLineAt(struct quillMessageHeader **header, int64_t index);
/// @}

/// @name Stores
/// @{
/// The name under "name" and the lines in a store under "lines".
QUILL_API struct coStore *quillMessageHeaderStore(struct quillMessageHeader const *header);
/// The lines alone, under keys that sort in their order.
QUILL_API struct coStore *quillMessageHeaderStoreLines(struct quillMessageHeader const *header);
/// Null when the store has no "name" or one that is no token. There must be a store under "lines".
QUILL_API struct quillMessageHeader *quillMessageHeaderTryRestore(struct coStore const *store);
/// A header of the name with the lines of a store; what is no line there is left out.
QUILL_API struct quillMessageHeader *quillMessageHeaderRestoreLines(struct coString *name, struct coStore const *store);
QUILL_API struct quillMessageHeader *quillMessageHeaderRestoreLinesCstr(char const *name, int64_t length,
                                                                        struct coStore const *store);
QUILL_API struct quillMessageHeader *quillMessageHeaderRestoreLinesWcstr(wchar_t const *name, int64_t length,
                                                                         struct coStore const *store);
/// @}

CO_EXTERN_C_END

#endif
