// What the Subject header field holds (RFC 3261, 20.36). Contract: quill_subject.h.

#define CO_UNIT "source/quill/quill_subject"

#include <quill/quill_subject.h>
#include <quill/quill_text_trim.hpp>

bool quillSubjectOk(struct coString const *subject) {
    CO_ASSERT_GIVEN(subject);
    return quill::isTextUtf8(quill___SkipSubject, subject->view());
}

struct coString *quillSubjectNormalize(struct coString const *subject) {
    CO_ASSERT_GIVEN(subject);
    struct coString *normal = quill::trimmed(subject);
    CO_ASSERT_SAYING("subject invalid", normal, "quillSubjectOk( subject )");
    return normal;
}
