// One value of an Alert-Info header field. Grammar and contract: quill_alert_info.h.

#define CO_UNIT "source/quill/quill_alert_info"

#include <quill/quill_alert_info.h>
#include <quill/quill_info.hpp>

struct quillAlertInfo : co::WithLine {
    static constexpr auto &sort = quill___sort_QUILL_ALERT_INFO;

    co::TextSlot iri; // never null
    quill::ParamsSlot genericParams;

    static constexpr auto members() { return std::tuple(&quillAlertInfo::iri, &quillAlertInfo::genericParams); }
    static constexpr auto comparison() { return members(); }
};

QUILL_DEFINE_INFO(AlertInfo, ALERT_INFO, alertInfo)
