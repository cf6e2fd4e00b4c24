#include "objects.hpp"

namespace test {

co::Ref<Header> header(std::string_view name, std::initializer_list<std::string_view> lines) {
    auto header = own(quillMessageHeaderCreate(str(name)));
    for (std::string_view line : lines) quillMessageHeaderAppendLine(header.address(), str(line));
    return header;
}

std::string lines(Header const *header) {
    if (!header) return "(null)";
    std::string text;
    for (int64_t i = 0; i < quillMessageHeaderLinesLength(header); i++)
        text += "[" + taken(quillMessageHeaderLineAt(header, i)) + "]";
    return text;
}

std::string describe(Fragment const *frag) {
    if (!frag) return "(null)";
    std::string text = "-";
    if (auto const version = own(quillMessageFragmentVersion(frag))) {
        std::string const versionText = taken(quillVersionToString(version.get()));
        if (quillMessageFragmentIsRequest(frag))
            text = taken(quillMessageFragmentRequestMethod(frag)) + " " + taken(quillMessageFragmentRequestIri(frag)) +
                   " " + versionText;
        else
            text = versionText + " " + std::to_string(quillMessageFragmentResponseStatusCode(frag)) + " [" +
                   taken(quillMessageFragmentResponseReasonPhrase(frag)) + "]";
    }
    auto const headers = own(quillMessageFragmentHeadersVector(frag));
    for (int64_t i = 0; i < coVectorLength(headers.get()); i++) {
        auto const header = own(quillMessageHeaderFrom(coVectorObjAt(headers.get(), i)));
        text += "\n" + taken(quillMessageHeaderName(header.get())) + "=" + lines(header.get());
    }
    if (auto const body = own(quillMessageFragmentBody(frag))) text += "\nbody=[" + bytes(body.get()) + "]";
    return text;
}

std::string describe(Message const *msg) { return msg ? describe(own(quillMessageFragment(msg)).get()) : "(null)"; }

std::string decoded(std::string_view bytes) {
    return describe(own(quillMessageFragmentTryDecode(buffer(bytes).get())).get());
}

std::string encoded(Fragment const *frag) { return takenBytes(quillMessageFragmentEncode(frag)); }

} // namespace test
