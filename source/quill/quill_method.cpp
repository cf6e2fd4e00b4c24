// Methods (RFC 3261, 7.1), whose letter case counts. Contracts: quill_method.h, quill_method.hpp.

#define CO_UNIT "source/quill/quill_method"

#include <iterator>
#include <quill/quill_family.hpp>
#include <quill/quill_method.h>
#include <quill/quill_method.hpp>
#include <quill/quill_scalar.hpp>

QUILL_DEFINE_TEXT_VALUE(Method, method, quill___SkipMethod)

namespace {

// The registered ones (RFC 3261, 27.4), what is sent most first.
constexpr std::string_view texts[] = {"INVITE", "ACK",    "BYE",       "CANCEL", "REGISTER", "OPTIONS", "PRACK",
                                      "NOTIFY", "UPDATE", "SUBSCRIBE", "INFO",   "MESSAGE",  "REFER",   "PUBLISH"};

coString *methods[std::size(texts)];

} // namespace

namespace quill {

coString *knownMethod(std::string_view text) {
    for (size_t i = 0; i < std::size(texts); i++)
        if (texts[i] == text) return methods[i];
    return nullptr;
}

void startMethods() {
    for (size_t i = 0; i < std::size(texts); i++) startShared(&methods[i], co::makeStringFromUtf8(texts[i]));
}

void stopMethods() {
    for (coString *&method : methods) stopShared(&method);
}

} // namespace quill
