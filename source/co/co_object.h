/// @file
/// Objects, sorts and modules.
///
/// An object is reference-counted and belongs to a sort, its static type descriptor. Objects are values: once a second
/// holder has a reference, an object is not changed any more; a setter gives its caller a private copy first.
/// Ownership, null, failure and threads: docs/conventions.md.
#ifndef CO_CO_OBJECT_H
#define CO_CO_OBJECT_H

#include <co/co_types.h>

CO_EXTERN_C_BEGIN

/// True for every code point, surrogates included; `ch` is not negative.
#define CO_CHAR_OK(ch) ((ch) <= 0x10FFFF)
#define CO_FALSE 0
#define CO_CHAR_CARRIAGE_RETURN 13
#define CO_CHAR_LINE_FEED 10

/// A new object of @p size bytes, its header included, zeroed, with a count of 1.
CO_API struct coObj *co___ObjCreate(int64_t size, struct coSort const *sort);

/// Runs the sort's free function and frees the memory. Called when a count falls to 0.
CO_API void co___ObjFree(struct coObj *obj);

/// Writes one line with message (may be null), unit, line and condition to standard error and ends the process.
CO_NORETURN CO_API void co___Abort(char const *message, char const *file, int64_t line, char const *condition);

/// The object's sort, borrowed.
CO_API struct coSort const *coObjSort(struct coObj const *obj);

/// One more reference.
CO_API void coObjRetain(struct coObj *obj);

/// One reference less; the last one frees the object.
CO_API void coObjRelease(struct coObj *obj);

/// A total order: by the name of the sort first, then by the sort's compare function, or by address where it has none.
CO_API int coObjCompare(struct coObj const *objA, struct coObj const *objB);

/// The object's text, or the name of its sort and its address in angle brackets where the sort has no text form.
CO_API struct coString *coObjToString(struct coObj const *obj);

/// Starts a module: runs its start-up when it is loaded for the first time. Loads are counted; single-threaded.
CO_API void coModuleLoad(struct coModule *module);

/// Stops a module: runs its shut-down when the last load is undone. Single-threaded.
CO_API void coModuleUnload(struct coModule *module);

CO_EXTERN_C_END

#endif
