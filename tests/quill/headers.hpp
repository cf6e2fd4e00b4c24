// The typed headers as tests see them: samples of every field, and short ways to decode and to print.
#pragma once

#include "objects.hpp"

#include <quill/quill.h>
#include <quill/quill_typed_headers.hpp>
#include <string>
#include <vector>

namespace test {

template <class T> T *as(coObj const *obj) { return reinterpret_cast<T *>(const_cast<coObj *>(obj)); }
template <class T> coObj *generic(T const *obj) { return co::header(obj); }

// One change through a reference, which may be null.
template <class T, class Change> void change(coObj **reference, Change const &doIt) {
    if (!reference) return doIt(static_cast<T **>(nullptr));
    T *typed = as<T>(*reference);
    doIt(&typed);
    *reference = generic(typed);
}

using Lines = std::vector<std::string>;

struct Sample {
    Lines lines;
    Lines written = {}; // what decoding and encoding makes of them; the same where nothing is said

    Lines const &encoded() const { return written.empty() ? lines : written; }
};

// What a field can look like on the wire, and what it can't.
struct Field {
    std::string name;
    std::vector<Sample> samples;
    Lines broken;
};

// One for each typed header, in alphabetical order.
std::vector<Field> const &fields();
Field const &fieldOf(std::string_view name);

quillTypedHeader const *typed(std::string_view name);

co::Ref<Header> rawHeader(std::string_view name, Lines const &lines);
Lines linesOf(Header const *header);
co::Ref<coObj> decode(quillTypedHeader const *type, Lines const &lines); // null where they don't decode
Lines encode(quillTypedHeader const *type, coObj const *hdr);

// "quill_header_p_early_media" of "PEarlyMedia", and with the same words "P_EARLY_MEDIA".
std::string snake(std::string_view camel);
std::string upper(std::string text);

} // namespace test

// The lists of values: the name in the functions, the one that clears, the element's noun, its type, and the unit and
// the parameter that refuse null.
#define QUILL_VALUE_LISTS(X)                                                                                           \
    X(Accept, ClearAccepts, Accept, Accept, "accept")                                                                  \
    X(AcceptEncoding, ClearAcceptEncodings, AcceptEncoding, AcceptEncoding, "acceptEncoding")                          \
    X(AlertInfo, ClearAlertInfos, AlertInfo, AlertInfo, "alertInfo")                                                   \
    X(CallInfo, ClearCallInfos, CallInfo, CallInfo, "callInfo")                                                        \
    X(Contact, Clear, Contact, Contact, "contact")                                                                     \
    X(Diversion, ClearDiversions, Diversion, Diversion, "diversion")                                                   \
    X(ErrorInfo, ClearErrorInfos, ErrorInfo, ErrorInfo, "errorInfo")                                                   \
    X(HistoryInfo, ClearHistoryInfos, HistoryInfo, HistoryInfo, "historyInfo")                                         \
    X(PAssertedIdentity, ClearIdentityValues, IdentityValue, IdentityValue, "identityValue")                           \
    X(PPreferredIdentity, ClearIdentityValues, IdentityValue, IdentityValue, "identityValue")                          \
    X(Reason, ClearReasons, Reason, Reason, "reason")                                                                  \
    X(RecordRoute, ClearRoutes, Route, Route, "route")                                                                 \
    X(Route, ClearRoutes, Route, Route, "route")                                                                       \
    X(ServiceRoute, ClearRoutes, Route, Route, "route")                                                                \
    X(UserToUser, ClearUuiValues, UuiValue, UuiValue, "uuiValue")                                                      \
    X(Via, ClearVias, Via, Via, "via")                                                                                 \
    X(Warning, WarningsClear, Warning, WarningValue, "warningValue")

// The lists of scalars: the name in the functions, the element's noun, the parameter's name.
#define QUILL_SCALAR_LISTS(X)                                                                                          \
    X(AcceptResourcePriority, Rvalue, rvalue)                                                                          \
    X(ContentEncoding, ContentCoding, contentCoding)                                                                   \
    X(PEarlyMedia, EmParam, emParam)                                                                                   \
    X(ResourcePriority, Rvalue, rvalue)

// The sets, with and without text forms.
#define QUILL_TEXT_SETS(X)                                                                                             \
    X(Allow, Method, method)                                                                                           \
    X(AllowEvents, EventType, eventType)                                                                               \
    X(Privacy, PrivValue, privValue)                                                                                   \
    X(ProxyRequire, OptionTag, optionTag)                                                                              \
    X(Require, OptionTag, optionTag)                                                                                   \
    X(Supported, OptionTag, optionTag)

#define QUILL_OTHER_SETS(X)                                                                                            \
    X(InReplyTo, CallId, callId)                                                                                       \
    X(Unsupported, OptionTag, optionTag)
