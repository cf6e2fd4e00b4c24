// One value of an Error-Info header field. Grammar and contract: quill_error_info.h.

#define CO_UNIT "source/quill/quill_error_info"

#include <quill/quill_error_info.h>
#include <quill/quill_info.hpp>

struct quillErrorInfo : co::WithLine {
    static constexpr auto &sort = quill___sort_QUILL_ERROR_INFO;

    co::TextSlot iri; // never null
    quill::ParamsSlot genericParams;

    static constexpr auto members() { return std::tuple(&quillErrorInfo::iri, &quillErrorInfo::genericParams); }
    static constexpr auto comparison() { return members(); }
};

QUILL_DEFINE_INFO(ErrorInfo, ERROR_INFO, errorInfo)
