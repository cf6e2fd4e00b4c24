// The value of a generic parameter. Contract: quill_generic_param_value.h.

#define CO_UNIT "source/quill/quill_generic_param_value"

#include <co/co_family.hpp>
#include <quill/quill_generic_param_value.h>
#include <quill/quill_host.h>
#include <quill/quill_quotable_string.h>
#include <quill/quill_token.h>

static void assertTypeAndValue(int64_t type, coString const *value) {
    CO_ASSERT(QUILL_GENERIC_PARAM_VALUE_TYPE_OK(type), "QUILL_GENERIC_PARAM_VALUE_TYPE_OK( type )");
    CO_ASSERT_GIVEN(value);
}

bool quillGenericParamValueOk(int64_t type, struct coString const *value) {
    assertTypeAndValue(type, value);
    switch (type) {
    case QUILL_GENERIC_PARAM_VALUE_TYPE_HOST:
        return quillHostOk(value);
    case QUILL_GENERIC_PARAM_VALUE_TYPE_QUOTED_STRING:
        return quillQuotableStringOk(value);
    default:
        return quillTokenOk(value);
    }
}

struct coString *quillGenericParamValueNormalize(int64_t type, struct coString *value) {
    assertTypeAndValue(type, value);
    return type == QUILL_GENERIC_PARAM_VALUE_TYPE_TOKEN ? quillTokenNormalize(value) : co::retained(value);
}

CO_DEFINE_TEXT_FORMS_1(bool, quillGenericParamValueOk, int64_t, type, value)
CO_DEFINE_TEXT_FORMS_1(struct coString *, quillGenericParamValueNormalize, int64_t, type, value)
