// Session identifiers. Grammar and contract: quill_sess_uuid.h.

#define CO_UNIT "source/quill/quill_sess_uuid"

#include <quill/quill_scalar.hpp>
#include <quill/quill_sess_uuid.h>

QUILL_DEFINE_TEXT_VALUE(SessUuid, sessUuid, quill___SkipSessUuid)

// Lives from start-up to shut-down.
constinit struct coString *quill___SessUuidNil = nullptr;

void quill___SessUuidStartup(void) { quill___SessUuidNil = co::makeString(U"00000000000000000000000000000000"); }

void quill___SessUuidShutdown(void) {
    if (quill___SessUuidNil) co::release(quill___SessUuidNil);
    quill___SessUuidNil = co::released<coString>();
}

struct coString *qiullSessUuidNil(void) {
    return co::retained(quill___SessUuidNil);
}

bool quillSessUuidIsNil(struct coString const *uuid) {
    CO_ASSERT_GIVEN(uuid);
    return coStringEquals(uuid, quill___SessUuidNil);
}
