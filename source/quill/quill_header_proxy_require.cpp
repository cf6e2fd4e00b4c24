// The Proxy-Require header field. Grammar and contract: quill_header_proxy_require.h.

#define CO_UNIT "source/quill/quill_header_proxy_require"

#include <quill/quill_header_family.hpp>
#include <quill/quill_header_proxy_require.h>
#include <quill/quill_option_tag.h>

QUILL_DEFINE_SET_HEADER(ProxyRequire, PROXY_REQUIRE, OptionTag, optionTag, quill___SkipOptionTag, co::asciiLower,
                        quill___SkipComma, U",")
QUILL_DEFINE_SET_TEXT_FORMS(ProxyRequire, OptionTag, optionTag)
