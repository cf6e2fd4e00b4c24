// The Priority header field. Grammar and contract: quill_header_priority.h.

#define CO_UNIT "source/quill/quill_header_priority"

#include <quill/quill_header_family.hpp>
#include <quill/quill_header_priority.h>
#include <quill/quill_priority_value.h>

QUILL_DEFINE_NORMAL_TEXT_HEADER(Priority, PRIORITY, PriorityValue, priorityValue)

// The values that the RFC names.

static void setValue(struct quillHeaderPriority **hdr, co::Chars text) {
    co::Ref<coString> const value(co::makeString(text));
    quillHeaderPrioritySetPriorityValue(hdr, value.get());
}

static struct quillHeaderPriority *createWithValue(co::Chars text) {
    co::Ref<coString> const value(co::makeString(text));
    return quillHeaderPriorityCreate(value.get());
}

#define QUILL_DEFINE_NAMED_PRIORITY(Name, text)                                                                        \
    struct quillHeaderPriority *quillHeaderPriorityCreate##Name(void) {                                                \
        return createWithValue(text);                                                                                  \
    }                                                                                                                  \
    bool quillHeaderPriorityIs##Name(struct quillHeaderPriority const *hdr) {                                          \
        CO_ASSERT_GIVEN(hdr);                                                                                          \
        return co::equal(hdr->priorityValue.view(), text);                                                             \
    }                                                                                                                  \
    void quillHeaderPrioritySet##Name(struct quillHeaderPriority **hdr) { setValue(hdr, text); }

QUILL_DEFINE_NAMED_PRIORITY(Emergency, U"emergency")
QUILL_DEFINE_NAMED_PRIORITY(Urgent, U"urgent")
QUILL_DEFINE_NAMED_PRIORITY(Normal, U"normal")
QUILL_DEFINE_NAMED_PRIORITY(NonUrgent, U"non-urgent")
