// The Min-Se header field. Grammar and contract: quill_header_min_se.h.

#define CO_UNIT "source/quill/quill_header_min_se"

#include <quill/quill_header_min_se.h>
#include <quill/quill_params_header.hpp>

struct quillHeaderMinSe : co::WithLine {
    static constexpr auto &sort = quill___sort_QUILL_HEADER_MIN_SE;

    co::Int deltaSeconds; // never absent
    quill::ParamsSlot genericParams;

    static constexpr auto members() {
        return std::tuple(&quillHeaderMinSe::deltaSeconds, &quillHeaderMinSe::genericParams);
    }
    static constexpr auto comparison() { return members(); }
};

static constexpr std::tuple<> lifted;

QUILL_DEFINE_SECONDS_AND_PARAMS_HEADER(MinSe, MIN_SE, lifted)
