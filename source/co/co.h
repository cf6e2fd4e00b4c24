/// @file
/// The base library, whole.
#ifndef CO_CO_H
#define CO_CO_H

#include <co/co_buffer.h>
#include <co/co_charset.h>
#include <co/co_dict.h>
#include <co/co_format.h>
#include <co/co_int.h>
#include <co/co_memory.h>
#include <co/co_object.h>
#include <co/co_store.h>
#include <co/co_string.h>
#include <co/co_time.h>
#include <co/co_types.h>
#include <co/co_unicode.h>
#include <co/co_vector.h>

#endif
