// Message fragments as their decoder and encoder see them.
#pragma once

#include <co/co_buffer.hpp>
#include <co/co_member.hpp>
#include <quill/quill_header_table.hpp>
#include <quill/quill_internal.h>
#include <quill/quill_status_code.h>
#include <string_view>

static_assert(QUILL_STATUS_CODE_INVALID == -1, "an absent integer is -1");

struct quillMessageFragment : coObj {
    static constexpr auto &sort = quill___sort_QUILL_MESSAGE_FRAGMENT;

    co::Slot<coString> requestMethod;
    co::Slot<coString> requestIri;
    co::Int responseStatusCode;
    co::Slot<coString> responseReasonPhrase;
    co::Slot<quillVersion> version; // present in requests and responses
    quill::HeaderTable headers;
    co::Slot<coBuffer> body;

    static constexpr auto members() {
        return std::tuple(&quillMessageFragment::requestMethod, &quillMessageFragment::requestIri,
                          &quillMessageFragment::responseStatusCode, &quillMessageFragment::responseReasonPhrase,
                          &quillMessageFragment::version, &quillMessageFragment::headers, &quillMessageFragment::body);
    }
};

namespace quill {

// The decoder on bytes: start line and headers. `contentLength` may be null.
struct quillMessageFragment *tryDecodeHeaders(std::string_view bytes, int64_t *contentLength);

// The headers of a message.
HeaderTable const &headersOf(struct quillMessage const *msg);

} // namespace quill
