/// @file
/// The registry of the typed headers: what each is called, where it is defined, and how to read and write it without
/// naming its type. It lists the 58 in the order in which the module starts them.
#ifndef QUILL_QUILL_TYPED_HEADER_H
#define QUILL_QUILL_TYPED_HEADER_H

#include <quill/quill_types.h>

CO_EXTERN_C_BEGIN

/// @name Shapes
/// @{
/// An ordered list of elements, each a value or a scalar.
#define QUILL_TYPED_HEADER_LIST 0
/// A set of distinct tokens.
#define QUILL_TYPED_HEADER_SET 1
/// One value of one or more parts.
#define QUILL_TYPED_HEADER_VALUE 2
/// @}

/// What the registry says of one typed header; constant, valid while the library is loaded. Objects are those of
/// `sort`, given and returned as generic ones; ownership and failure are those of the functions of the type.
struct quillTypedHeader {
    /// The name in the functions: "CallId" of quillHeaderCallIdCreate.
    char const *type;
    /// The field's name: "Call-Id", "User-to-User".
    char const *name;
    /// One of the shapes.
    int64_t shape;
    /// Where the field is defined: "RFC 3261, 20.8".
    char const *definition;
    struct coSort const *(*sort)(void);
    struct quillMessageHeader *(*encode)(struct coObj const *obj);
    struct coObj *(*tryDecode)(struct quillMessageHeader const *header);
    struct coStore *(*store)(struct coObj const *obj);
    struct coObj *(*tryRestore)(struct coStore const *store);
    struct coObj *(*createFrom)(struct coObj const *source);
    bool (*presentInMessage)(struct quillMessage const *msg);
    void (*encodeToMessage)(struct coObj const *obj, struct quillMessage **msg);
    struct coObj *(*tryDecodeFromMessage)(struct quillMessage const *msg);
    void (*removeFromMessage)(struct quillMessage **msg);
};

/// 58.
QUILL_API int64_t quillTypedHeadersLength(void);
/// The typed header at a position, borrowed; the index must lie within the length.
QUILL_API struct quillTypedHeader const *quillTypedHeaderAt(int64_t index);
/// The typed header of a field, whatever the spelling of its name, borrowed; null when it is none of them. The name must
/// be a token.
QUILL_API struct quillTypedHeader const *quillTypedHeaderOf(struct coString const *name);

CO_EXTERN_C_END

#endif
