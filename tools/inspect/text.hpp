// Text from the library and from senders, made fit for output.
#ifndef QUILL_INSPECT_TEXT_HPP
#define QUILL_INSPECT_TEXT_HPP

#include <co/co_types.h>
#include <string>
#include <string_view>

struct quillMessage;

namespace inspect {

/// False for what could command a terminal or disguise the text around it: controls (C0, DEL, C1), the marks that
/// change the direction of text, line and paragraph separators and the byte order mark.
bool isPlain(coChar ch);

void appendUtf8(std::string &text, coChar ch);

std::string utf8(coString const *string);

/// The text with U+FFFD for whatever is not valid UTF-8, as can be in a file's name.
std::string repaired(std::string_view bytes);

/// For a terminal: whatever is not plain shows as `\u{1B}`.
std::string shown(coString const *string);
std::string shown(std::string_view bytes);

/// "SIP/2.0" of a message.
std::string versionText(quillMessage const *message);

} // namespace inspect

#endif
