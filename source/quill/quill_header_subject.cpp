// The Subject header field. Grammar and contract: quill_header_subject.h.

#define CO_UNIT "source/quill/quill_header_subject"

#include <quill/quill_header_family.hpp>
#include <quill/quill_header_subject.h>
#include <quill/quill_subject.h>

QUILL_DEFINE_NORMAL_TEXT_HEADER(Subject, SUBJECT, Subject, subject)
