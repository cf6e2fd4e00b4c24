// The Content-Disposition header field. Grammar and contract: quill_header_content_disposition.h.

#define CO_UNIT "source/quill/quill_header_content_disposition"

#include <quill/quill_disposition_type.h>
#include <quill/quill_handling.h>
#include <quill/quill_header_content_disposition.h>
#include <quill/quill_params_header.hpp>

struct quillHeaderContentDisposition : co::WithLine {
    static constexpr auto &sort = quill___sort_QUILL_HEADER_CONTENT_DISPOSITION;

    co::TextSlot dispositionType; // never null, lower case
    co::TextSlot handling;        // lower case
    quill::ParamsSlot genericParams;

    static constexpr auto members() {
        return std::tuple(&quillHeaderContentDisposition::dispositionType, &quillHeaderContentDisposition::handling,
                          &quillHeaderContentDisposition::genericParams);
    }
    static constexpr auto comparison() { return members(); }
};

static constexpr std::tuple lifted{
    quill::TextParam{U"handling", quill___SkipHandling, &quillHeaderContentDisposition::handling,
                     quillHandlingNormalize},
};

QUILL_DEFINE_TEXT_AND_PARAMS_HEADER(ContentDisposition, CONTENT_DISPOSITION, DispositionType, dispositionType,
                                    quillDispositionTypeOk, quill___SkipDispositionType, quillDispositionTypeNormalize,
                                    lifted)
CO_DEFINE_OPTIONAL_STRING_MEMBER(quillHeaderContentDisposition, hdr, Handling, handling, quillHandlingOk, handling,
                                 quillHandlingNormalize)
