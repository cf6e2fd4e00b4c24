#if defined(__GNUC__) && !defined(__clang__) // gcc 12 sees uninitialised members in copies of std::variant
#pragma GCC diagnostic ignored "-Wmaybe-uninitialized"
#endif

#include "parts.hpp"

#include "text.hpp"
#include <algorithm>
#include <quill/quill.h>
#include <stdexcept>
#include <type_traits>

namespace inspect {
namespace {

using Param = Owner<quillGenericParam, quillGenericParamRelease>;
using Params = Owner<quillGenericParams, quillGenericParamsRelease>;

/// Collects the parts that are there. Each text and collection given is an owned reference, null when it is absent;
/// an absent number is -1.
class Collect {
public:
    Collect &text(char const *name, coString *owned) {
        String const string(owned);
        if (string) parts.push_back({name, utf8(string.get())});
        return *this;
    }

    /// A text for which the library has null where the wire has a star.
    Collect &textOrStar(char const *name, coString *owned) {
        String const string(owned);
        parts.push_back({name, string ? utf8(string.get()) : "*"});
        return *this;
    }

    Collect &number(char const *name, int64_t number) {
        if (number >= 0) parts.push_back({name, number});
        return *this;
    }

    Collect &quality(int64_t thousandths) {
        if (thousandths >= 0) parts.push_back({"q", Quality{thousandths}});
        return *this;
    }

    Collect &flag(char const *name, bool isSet) {
        if (isSet) parts.push_back({name, true});
        return *this;
    }

    Collect &parameters(quillGenericParams *owned) {
        Params const params(owned);
        std::vector<Parameter> list;
        for (int64_t i = 0; i < quillGenericParamsLength(params.get()); i++) {
            Param const param(quillGenericParamsParamAt(params.get(), i));
            String const name(quillGenericParamName(param.get()));
            String const value(quillGenericParamValueNonNormalized(param.get()));
            String const wire(quillGenericParamToString(param.get()));
            list.push_back({utf8(name.get()), quillGenericParamValueType(param.get()),
                            value ? utf8(value.get()) : std::string(), utf8(wire.get())});
        }
        if (!list.empty()) parts.push_back({"parameters", std::move(list)});
        return *this;
    }

    operator Parts() { return std::move(parts); }

private:
    Parts parts;
};

// Values: the elements of lists.

Parts partsOf(quillVia const *via) {
    Version const version(quillViaVersion(via));
    Address const received(quillViaReceived(via));
    return Collect()
        .text("version", quillVersionToString(version.get()))
        .text("transport", quillViaTransport(via))
        .text("host", quillViaHost(via))
        .number("port", quillViaPort(via))
        .number("ttl", quillViaTtl(via))
        .text("maddr", quillViaMaddr(via))
        .text("received", received ? nxAddressToStringShrink(received.get()) : nullptr)
        .flag("rport", quillViaHasRportEmpty(via))
        .number("rport", quillViaRportNumeric(via))
        .text("branch", quillViaBranch(via))
        .parameters(quillViaGenericParams(via));
}

Parts partsOf(quillAccept const *accept) {
    return Collect()
        .textOrStar("media_type", quillAcceptMediaType(accept))
        .textOrStar("media_subtype", quillAcceptMediaSubtype(accept))
        .quality(quillAcceptQvalue(accept))
        .parameters(quillAcceptGenericParams(accept));
}

Parts partsOf(quillAcceptEncoding const *acceptEncoding) {
    return Collect()
        .textOrStar("content_coding", quillAcceptEncodingContentCoding(acceptEncoding))
        .quality(quillAcceptEncodingQvalue(acceptEncoding))
        .parameters(quillAcceptEncodingGenericParams(acceptEncoding));
}

Parts partsOf(quillAlertInfo const *alertInfo) {
    return Collect().text("iri", quillAlertInfoIri(alertInfo)).parameters(quillAlertInfoGenericParams(alertInfo));
}

Parts partsOf(quillCallInfo const *callInfo) {
    return Collect()
        .text("iri", quillCallInfoIri(callInfo))
        .text("purpose", quillCallInfoPurpose(callInfo))
        .parameters(quillCallInfoGenericParams(callInfo));
}

Parts partsOf(quillContact const *contact) {
    return Collect()
        .text("iri", quillContactIri(contact))
        .text("display_name", quillContactDisplayName(contact))
        .quality(quillContactQvalue(contact))
        .number("expires", quillContactExpires(contact))
        .text("rc", quillContactRc(contact))
        .text("mp", quillContactMp(contact))
        .text("np", quillContactNp(contact))
        .text("sip_instance", quillContactSipInstance(contact))
        .flag("sip_src", quillContactSipSrc(contact))
        .flag("sip_srs", quillContactSipSrs(contact))
        .parameters(quillContactGenericParams(contact));
}

Parts partsOf(quillDiversion const *diversion) {
    return Collect()
        .text("iri", quillDiversionIri(diversion))
        .text("display_name", quillDiversionDisplayName(diversion))
        .text("reason", quillDiversionReason(diversion))
        .number("counter", quillDiversionCounter(diversion))
        .number("limit", quillDiversionLimit(diversion))
        .text("privacy", quillDiversionPrivacy(diversion))
        .text("screen", quillDiversionScreen(diversion))
        .parameters(quillDiversionGenericParams(diversion));
}

Parts partsOf(quillErrorInfo const *errorInfo) {
    return Collect().text("iri", quillErrorInfoIri(errorInfo)).parameters(quillErrorInfoGenericParams(errorInfo));
}

Parts partsOf(quillHistoryInfo const *historyInfo) {
    return Collect()
        .text("iri", quillHistoryInfoIri(historyInfo))
        .text("display_name", quillHistoryInfoDisplayName(historyInfo))
        .text("index", quillHistoryInfoIndex(historyInfo))
        .text("rc", quillHistoryInfoRc(historyInfo))
        .text("mp", quillHistoryInfoMp(historyInfo))
        .text("np", quillHistoryInfoNp(historyInfo))
        .parameters(quillHistoryInfoGenericParams(historyInfo));
}

Parts partsOf(quillIdentityValue const *identityValue) {
    return Collect()
        .text("iri", quillIdentityValueIri(identityValue))
        .text("display_name", quillIdentityValueDisplayName(identityValue));
}

Parts partsOf(quillReason const *reason) {
    return Collect()
        .text("protocol", quillReasonProtocol(reason))
        .text("cause", quillReasonCause(reason))
        .text("text", quillReasonText(reason))
        .parameters(quillReasonGenericParams(reason));
}

Parts partsOf(quillRoute const *route) {
    return Collect()
        .text("iri", quillRouteIri(route))
        .text("display_name", quillRouteDisplayName(route))
        .parameters(quillRouteGenericParams(route));
}

Parts partsOf(quillUuiValue const *uuiValue) {
    return Collect()
        .text("uui_data", quillUuiValueUuiData(uuiValue))
        .text("encoding", quillUuiValueEncoding(uuiValue))
        .text("purpose", quillUuiValuePurpose(uuiValue))
        .text("content", quillUuiValueContent(uuiValue))
        .parameters(quillUuiValueGenericParams(uuiValue));
}

Parts partsOf(quillWarningValue const *warningValue) {
    return Collect()
        .number("warn_code", quillWarningValueWarnCode(warningValue))
        .text("warn_agent", quillWarningValueWarnAgent(warningValue))
        .text("warn_text", quillWarningValueWarnText(warningValue));
}

// Headers of one value.

Parts partsOf(quillHeaderCallId const *hdr) { return Collect().text("call_id", quillHeaderCallIdCallId(hdr)); }

Parts partsOf(quillHeaderContentDisposition const *hdr) {
    return Collect()
        .text("disposition_type", quillHeaderContentDispositionDispositionType(hdr))
        .text("handling", quillHeaderContentDispositionHandling(hdr))
        .parameters(quillHeaderContentDispositionGenericParams(hdr));
}

Parts partsOf(quillHeaderCseq const *hdr) {
    return Collect().number("number", quillHeaderCseqCseq(hdr)).text("method", quillHeaderCseqMethod(hdr));
}

Parts partsOf(quillHeaderDate const *hdr) {
    Time const time(quillHeaderDateTime(hdr));
    return Collect().text("date", coTimeToString(time.get()));
}

Parts partsOf(quillHeaderEvent const *hdr) {
    return Collect()
        .text("event_type", quillHeaderEventEventType(hdr))
        .text("id", quillHeaderEventId(hdr))
        .parameters(quillHeaderEventGenericParams(hdr));
}

Parts partsOf(quillHeaderExpires const *hdr) {
    return Collect().number("delta_seconds", quillHeaderExpiresDeltaSeconds(hdr));
}

Parts partsOf(quillHeaderFrom const *hdr) {
    return Collect()
        .text("iri", quillHeaderFromIri(hdr))
        .text("display_name", quillHeaderFromDisplayName(hdr))
        .text("tag", quillHeaderFromTag(hdr))
        .text("epid", quillHeaderFromEpid(hdr))
        .parameters(quillHeaderFromGenericParams(hdr));
}

Parts partsOf(quillHeaderMaxForwards const *hdr) {
    return Collect().number("max_forwards", quillHeaderMaxForwardsMaxForwards(hdr));
}

Parts partsOf(quillHeaderMinExpires const *hdr) {
    return Collect().number("delta_seconds", quillHeaderMinExpiresDeltaSeconds(hdr));
}

Parts partsOf(quillHeaderMinSe const *hdr) {
    return Collect()
        .number("delta_seconds", quillHeaderMinSeDeltaSeconds(hdr))
        .parameters(quillHeaderMinSeGenericParams(hdr));
}

Parts partsOf(quillHeaderOrganization const *hdr) {
    return Collect().text("organization", quillHeaderOrganizationOrganization(hdr));
}

Parts partsOf(quillHeaderPCalledPartyId const *hdr) {
    return Collect()
        .text("iri", quillHeaderPCalledPartyIdIri(hdr))
        .text("display_name", quillHeaderPCalledPartyIdDisplayName(hdr))
        .parameters(quillHeaderPCalledPartyIdGenericParams(hdr));
}

Parts partsOf(quillHeaderPriority const *hdr) {
    return Collect().text("priority_value", quillHeaderPriorityPriorityValue(hdr));
}

Parts partsOf(quillHeaderRack const *hdr) {
    return Collect()
        .number("response_number", quillHeaderRackResponseNum(hdr))
        .number("cseq_number", quillHeaderRackCseq(hdr))
        .text("method", quillHeaderRackMethod(hdr));
}

Parts partsOf(quillHeaderReferTo const *hdr) {
    return Collect()
        .text("iri", quillHeaderReferToIri(hdr))
        .text("display_name", quillHeaderReferToDisplayName(hdr))
        .parameters(quillHeaderReferToGenericParams(hdr));
}

Parts partsOf(quillHeaderReferredBy const *hdr) {
    return Collect()
        .text("iri", quillHeaderReferredByIri(hdr))
        .text("display_name", quillHeaderReferredByDisplayName(hdr))
        .text("cid", quillHeaderReferredByCid(hdr))
        .parameters(quillHeaderReferredByGenericParams(hdr));
}

Parts partsOf(quillHeaderRemotePartyId const *hdr) {
    return Collect()
        .text("iri", quillHeaderRemotePartyIdIri(hdr))
        .text("display_name", quillHeaderRemotePartyIdDisplayName(hdr))
        .parameters(quillHeaderRemotePartyIdGenericParams(hdr));
}

Parts partsOf(quillHeaderReplaces const *hdr) {
    return Collect()
        .text("call_id", quillHeaderReplacesCallId(hdr))
        .text("from_tag", quillHeaderReplacesFromTag(hdr))
        .text("to_tag", quillHeaderReplacesToTag(hdr))
        .flag("early_only", quillHeaderReplacesEarlyOnly(hdr))
        .parameters(quillHeaderReplacesGenericParams(hdr));
}

Parts partsOf(quillHeaderReplyTo const *hdr) {
    return Collect()
        .text("iri", quillHeaderReplyToIri(hdr))
        .text("display_name", quillHeaderReplyToDisplayName(hdr))
        .parameters(quillHeaderReplyToGenericParams(hdr));
}

Parts partsOf(quillHeaderRetryAfter const *hdr) {
    return Collect()
        .number("delta_seconds", quillHeaderRetryAfterDeltaSeconds(hdr))
        .number("duration", quillHeaderRetryAfterDuration(hdr))
        .parameters(quillHeaderRetryAfterGenericParams(hdr));
}

Parts partsOf(quillHeaderRseq const *hdr) {
    return Collect().number("response_number", quillHeaderRseqResponseNum(hdr));
}

Parts partsOf(quillHeaderServer const *hdr) { return Collect().text("server", quillHeaderServerServer(hdr)); }

Parts partsOf(quillHeaderSessionExpires const *hdr) {
    return Collect()
        .number("delta_seconds", quillHeaderSessionExpiresDeltaSeconds(hdr))
        .text("refresher", quillHeaderSessionExpiresRefresher(hdr))
        .parameters(quillHeaderSessionExpiresGenericParams(hdr));
}

Parts partsOf(quillHeaderSessionId const *hdr) {
    return Collect()
        .text("local_uuid", quillHeaderSessionIdLocalUuid(hdr))
        .text("remote_uuid", quillHeaderSessionIdRemoteUuid(hdr))
        .parameters(quillHeaderSessionIdGenericParams(hdr));
}

Parts partsOf(quillHeaderSubject const *hdr) { return Collect().text("subject", quillHeaderSubjectSubject(hdr)); }

Parts partsOf(quillHeaderSubscriptionState const *hdr) {
    return Collect()
        .text("substate_value", quillHeaderSubscriptionStateSubstateValue(hdr))
        .text("reason", quillHeaderSubscriptionStateReason(hdr))
        .number("expires", quillHeaderSubscriptionStateExpires(hdr))
        .number("retry_after", quillHeaderSubscriptionStateRetryAfter(hdr))
        .parameters(quillHeaderSubscriptionStateGenericParams(hdr));
}

Parts partsOf(quillHeaderTimestamp const *hdr) {
    return Collect().text("timestamp_value", quillHeaderTimestampTimestampValue(hdr));
}

Parts partsOf(quillHeaderTo const *hdr) {
    return Collect()
        .text("iri", quillHeaderToIri(hdr))
        .text("display_name", quillHeaderToDisplayName(hdr))
        .text("tag", quillHeaderToTag(hdr))
        .text("epid", quillHeaderToEpid(hdr))
        .parameters(quillHeaderToGenericParams(hdr));
}

Parts partsOf(quillHeaderUserAgent const *hdr) {
    return Collect().text("user_agent", quillHeaderUserAgentUserAgent(hdr));
}

// The shapes.

template <auto from> Value value(coObj const *object) { return partsOf(from(object)); }

template <auto from, auto length, auto tryDecodeAt, auto release> Value list(coObj const *object) {
    auto const *header = from(object);
    Elements elements;
    for (int64_t i = 0; i < length(header); i++) {
        auto *decoded = tryDecodeAt(header, i);
        Owner<std::remove_pointer_t<decltype(decoded)>, release> const element(decoded);
        elements.push_back(element ? Element(partsOf(element.get())) : Element());
    }
    return elements;
}

template <auto from, auto length, auto at> Value scalars(coObj const *object) {
    auto const *header = from(object);
    Elements elements;
    for (int64_t i = 0; i < length(header); i++) {
        String const element(at(header, i));
        elements.push_back(utf8(element.get()));
    }
    return elements;
}

template <auto from, auto vector> Value set(coObj const *object) {
    Vector const strings(vector(from(object)));
    Tokens tokens;
    for (int64_t i = 0; i < coVectorLength(strings.get()); i++) {
        String const token(coStringFrom(coVectorObjAt(strings.get(), i)));
        tokens.all.push_back(utf8(token.get()));
    }
    return tokens;
}

Value contacts(coObj const *object) {
    if (quillHeaderContactIsStarForm(quillHeaderContactFrom(object))) return Parts{{"star", true}};
    return list<quillHeaderContactFrom, quillHeaderContactContactsLength, quillHeaderContactTryDecodeContactAt,
                quillContactRelease>(object);
}

constexpr Reader table[] = {
    {"Accept", list<quillHeaderAcceptFrom, quillHeaderAcceptAcceptsLength, quillHeaderAcceptTryDecodeAcceptAt,
                    quillAcceptRelease>},
    {"AcceptEncoding", list<quillHeaderAcceptEncodingFrom, quillHeaderAcceptEncodingAcceptEncodingsLength,
                            quillHeaderAcceptEncodingTryDecodeAcceptEncodingAt, quillAcceptEncodingRelease>},
    {"AcceptResourcePriority",
     scalars<quillHeaderAcceptResourcePriorityFrom, quillHeaderAcceptResourcePriorityRvaluesLength,
             quillHeaderAcceptResourcePriorityRvalueAt>},
    {"AlertInfo", list<quillHeaderAlertInfoFrom, quillHeaderAlertInfoAlertInfosLength,
                       quillHeaderAlertInfoTryDecodeAlertInfoAt, quillAlertInfoRelease>},
    {"Allow", set<quillHeaderAllowFrom, quillHeaderAllowMethodsVector>},
    {"AllowEvents", set<quillHeaderAllowEventsFrom, quillHeaderAllowEventsEventTypesVector>},
    {"CallId", value<quillHeaderCallIdFrom>},
    {"CallInfo", list<quillHeaderCallInfoFrom, quillHeaderCallInfoCallInfosLength,
                      quillHeaderCallInfoTryDecodeCallInfoAt, quillCallInfoRelease>},
    {"Contact", contacts},
    {"ContentDisposition", value<quillHeaderContentDispositionFrom>},
    {"ContentEncoding", scalars<quillHeaderContentEncodingFrom, quillHeaderContentEncodingContentCodingsLength,
                                quillHeaderContentEncodingContentCodingAt>},
    {"Cseq", value<quillHeaderCseqFrom>},
    {"Date", value<quillHeaderDateFrom>},
    {"Diversion", list<quillHeaderDiversionFrom, quillHeaderDiversionDiversionsLength,
                       quillHeaderDiversionTryDecodeDiversionAt, quillDiversionRelease>},
    {"ErrorInfo", list<quillHeaderErrorInfoFrom, quillHeaderErrorInfoErrorInfosLength,
                       quillHeaderErrorInfoTryDecodeErrorInfoAt, quillErrorInfoRelease>},
    {"Event", value<quillHeaderEventFrom>},
    {"Expires", value<quillHeaderExpiresFrom>},
    {"From", value<quillHeaderFromFrom>},
    {"HistoryInfo", list<quillHeaderHistoryInfoFrom, quillHeaderHistoryInfoHistoryInfosLength,
                         quillHeaderHistoryInfoTryDecodeHistoryInfoAt, quillHistoryInfoRelease>},
    {"InReplyTo", set<quillHeaderInReplyToFrom, quillHeaderInReplyToCallIdsVector>},
    {"MaxForwards", value<quillHeaderMaxForwardsFrom>},
    {"MinExpires", value<quillHeaderMinExpiresFrom>},
    {"MinSe", value<quillHeaderMinSeFrom>},
    {"Organization", value<quillHeaderOrganizationFrom>},
    {"PAssertedIdentity", list<quillHeaderPAssertedIdentityFrom, quillHeaderPAssertedIdentityIdentityValuesLength,
                               quillHeaderPAssertedIdentityTryDecodeIdentityValueAt, quillIdentityValueRelease>},
    {"PCalledPartyId", value<quillHeaderPCalledPartyIdFrom>},
    {"PEarlyMedia",
     scalars<quillHeaderPEarlyMediaFrom, quillHeaderPEarlyMediaEmParamsLength, quillHeaderPEarlyMediaEmParamAt>},
    {"PPreferredIdentity", list<quillHeaderPPreferredIdentityFrom, quillHeaderPPreferredIdentityIdentityValuesLength,
                                quillHeaderPPreferredIdentityTryDecodeIdentityValueAt, quillIdentityValueRelease>},
    {"Priority", value<quillHeaderPriorityFrom>},
    {"Privacy", set<quillHeaderPrivacyFrom, quillHeaderPrivacyPrivValuesVector>},
    {"ProxyRequire", set<quillHeaderProxyRequireFrom, quillHeaderProxyRequireOptionTagsVector>},
    {"Rack", value<quillHeaderRackFrom>},
    {"Reason", list<quillHeaderReasonFrom, quillHeaderReasonReasonsLength, quillHeaderReasonTryDecodeReasonAt,
                    quillReasonRelease>},
    {"RecordRoute", list<quillHeaderRecordRouteFrom, quillHeaderRecordRouteRoutesLength,
                         quillHeaderRecordRouteTryDecodeRouteAt, quillRouteRelease>},
    {"ReferTo", value<quillHeaderReferToFrom>},
    {"ReferredBy", value<quillHeaderReferredByFrom>},
    {"RemotePartyId", value<quillHeaderRemotePartyIdFrom>},
    {"Replaces", value<quillHeaderReplacesFrom>},
    {"ReplyTo", value<quillHeaderReplyToFrom>},
    {"Require", set<quillHeaderRequireFrom, quillHeaderRequireOptionTagsVector>},
    {"ResourcePriority", scalars<quillHeaderResourcePriorityFrom, quillHeaderResourcePriorityRvaluesLength,
                                 quillHeaderResourcePriorityRvalueAt>},
    {"RetryAfter", value<quillHeaderRetryAfterFrom>},
    {"Route",
     list<quillHeaderRouteFrom, quillHeaderRouteRoutesLength, quillHeaderRouteTryDecodeRouteAt, quillRouteRelease>},
    {"Rseq", value<quillHeaderRseqFrom>},
    {"Server", value<quillHeaderServerFrom>},
    {"ServiceRoute", list<quillHeaderServiceRouteFrom, quillHeaderServiceRouteRoutesLength,
                          quillHeaderServiceRouteTryDecodeRouteAt, quillRouteRelease>},
    {"SessionExpires", value<quillHeaderSessionExpiresFrom>},
    {"SessionId", value<quillHeaderSessionIdFrom>},
    {"Subject", value<quillHeaderSubjectFrom>},
    {"SubscriptionState", value<quillHeaderSubscriptionStateFrom>},
    {"Supported", set<quillHeaderSupportedFrom, quillHeaderSupportedOptionTagsVector>},
    {"Timestamp", value<quillHeaderTimestampFrom>},
    {"To", value<quillHeaderToFrom>},
    {"Unsupported", set<quillHeaderUnsupportedFrom, quillHeaderUnsupportedOptionTagsVector>},
    {"UserAgent", value<quillHeaderUserAgentFrom>},
    {"UserToUser", list<quillHeaderUserToUserFrom, quillHeaderUserToUserUuiValuesLength,
                        quillHeaderUserToUserTryDecodeUuiValueAt, quillUuiValueRelease>},
    {"Via", list<quillHeaderViaFrom, quillHeaderViaViasLength, quillHeaderViaTryDecodeViaAt, quillViaRelease>},
    {"Warning", list<quillHeaderWarningFrom, quillHeaderWarningWarningsLength, quillHeaderWarningTryDecodeWarningAt,
                     quillWarningValueRelease>},
};

} // namespace

std::span<Reader const> readers() { return table; }

Value valueOf(quillTypedHeader const *kind, coObj const *object) {
    auto const *reader =
        std::find_if(std::begin(table), std::end(table), [&](Reader const &each) { return each.type == kind->type; });
    if (reader == std::end(table)) throw std::logic_error(std::string("no one can read a ") + kind->type);
    return reader->read(object);
}

} // namespace inspect
