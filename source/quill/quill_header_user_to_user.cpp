// The User-to-User header field. Grammar and contract: quill_header_user_to_user.h.

#define CO_UNIT "source/quill/quill_header_user_to_user"

#include <quill/quill_header_family.hpp>
#include <quill/quill_header_user_to_user.h>

QUILL_DEFINE_VALUE_LIST_HEADER(UserToUser, USER_TO_USER, UuiValue, uuiValue, quill___SkipUuiValue)
