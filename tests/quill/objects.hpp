// Short ways to the objects of messages, and their contents as one text.
#pragma once

#include <quill/quill_generic_param.h>
#include <quill/quill_generic_param_value.h>
#include <quill/quill_generic_params.h>
#include <quill/quill_internal.h>
#include <quill/quill_message.h>
#include <quill/quill_message_fragment.h>
#include <quill/quill_message_header.h>
#include <quill/quill_version.h>
#include <support/text.hpp>

namespace test {

using Header = struct quillMessageHeader;
using Fragment = struct quillMessageFragment;
using Message = struct quillMessage;

template <class T> co::Ref<T> own(T *obj) { return co::Ref<T>(obj); }

inline co::Ref<quillVersion> sip20() { return own(quillVersionCreateSip20()); }

// A raw header of a name with lines.
co::Ref<Header> header(std::string_view name, std::initializer_list<std::string_view> lines);

// The lines in brackets: "[a][b]".
std::string lines(Header const *header);

// Start line, headers and body, one a line: "INVITE sip:a@b SIP/2.0", "SIP/2.0 200 [OK]" or "-"; "Via=[a][b]";
// "body=[…]". "(null)" for null.
std::string describe(Fragment const *frag);
std::string describe(Message const *msg);

// The same of a decoded text.
std::string decoded(std::string_view bytes);

// The bytes that are written.
std::string encoded(Fragment const *frag);

} // namespace test
