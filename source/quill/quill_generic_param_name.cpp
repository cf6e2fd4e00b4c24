// The name of a generic parameter. Contract: quill_generic_param_name.h.

#define CO_UNIT "source/quill/quill_generic_param_name"

#include <co/co_family.hpp>
#include <quill/quill_generic_param_name.h>
#include <quill/quill_token.h>

bool quillGenericParamNameOk(struct coString const *name) {
    CO_ASSERT_GIVEN(name);
    return quillTokenOk(name);
}

struct coString *quillGenericParamNameNormalize(struct coString const *name) {
    return quillTokenNormalize(name);
}

CO_DEFINE_TEXT_FORMS(bool, quillGenericParamNameOk, name)
CO_DEFINE_TEXT_FORMS(struct coString *, quillGenericParamNameNormalize, name)
