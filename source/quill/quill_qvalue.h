/// @file
/// Weights (RFC 3261, 25.1), in thousandths: 0.5 is 500.
///
///     qvalue = ( "0" [ "." 0*3DIGIT ] ) / ( "1" [ "." 0*3("0") ] )
#ifndef QUILL_QUILL_QVALUE_H
#define QUILL_QUILL_QVALUE_H

#include <quill/quill_types.h>

CO_EXTERN_C_BEGIN

/// 0 to 1000.
QUILL_API bool quillQvalueOk(int64_t qvalue);

CO_EXTERN_C_END

#endif
