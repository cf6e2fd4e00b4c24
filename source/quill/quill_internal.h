/// @file
/// What the library's units share among themselves, and its tests see: codecs of values, sort records, start-up and
/// shut-down, static objects. Not installed, not exported.
#ifndef QUILL_QUILL_INTERNAL_H
#define QUILL_QUILL_INTERNAL_H

#include <quill/quill_types.h>

CO_EXTERN_C_BEGIN

// quill_module
bool quill___ModuleStartup(void);
void quill___ModuleShutdown(void);
extern struct coModule quill___module;
extern struct coModuleRecord const quill___module_record;
extern char const *const quill___module_version_string;

// quill_message_header
int quill___MessageHeaderCompFunc(struct coObj const *thisObj, struct coObj const *thatObj);
void quill___MessageHeaderFreeFunc(struct coObj *obj);
void quill___MessageHeaderStartup(void);
void quill___MessageHeaderShutdown(void);
extern struct coSort const quill___sort_QUILL_MESSAGE_HEADER;
extern struct coString *quill___CosName;
extern struct coString *quill___CosLines;
extern struct coString *quill___CosAcceptContact;
extern struct coString *quill___CosContentType;
extern struct coString *quill___CosIdentity;
extern struct coString *quill___CosIdentityInfo;
extern struct coString *quill___CosRejectContact;
extern struct coString *quill___CosRequestDisposition;

// quill_message_fragment
void quill___MessageFragmentFreeFunc(struct coObj *obj);
void quill___MessageFragmentStartup(void);
void quill___MessageFragmentShutdown(void);
extern struct coSort const quill___sort_QUILL_MESSAGE_FRAGMENT;
extern struct coString *quill___CosContentLength;

// quill_message_fragment_decode
struct coString *quill___MessageFragmentDecodeTrim(struct coString const *cos);
bool quill___MessageFragmentDecodeHeader(struct quillMessageFragment **frag, struct coString const *cos);

// quill_message_fragment_encode
void quill___MessageFragmentEncodeAppendUtf8(struct coBuffer **buf, struct coString const *cos);
void quill___MessageFragmentEncodeContentLength(struct coBuffer **buf, int64_t contentLength);
extern uint8_t const quill___BytesCrLf[2];
extern uint8_t const quill___BytesColonSpace[2];

// quill_message
void quill___MessageFreeFunc(struct coObj *obj);
extern struct coSort const quill___sort_QUILL_MESSAGE;

// quill_message_stream_decoder
void quill___MessageStreamDecoderFreeFunc(struct coObj *obj);
extern struct coSort const quill___sort_QUILL_MESSAGE_STREAM_DECODER;

// quill_diversion_privacy
struct coString *quill___DiversionPrivacyEncode(struct coString *diversionPrivacy);
struct coString *quill___DiversionPrivacyTryDecode(coChar const *chs, int64_t length);

// quill_diversion_reason
struct coString *quill___DiversionReasonEncode(struct coString *diversionReason);
struct coString *quill___DiversionReasonTryDecode(coChar const *chs, int64_t length);

// quill_diversion_screen
struct coString *quill___DiversionScreenEncode(struct coString *diversionScreen);
struct coString *quill___DiversionScreenTryDecode(coChar const *chs, int64_t length);

// quill_host
struct coString *quill___HostEncode(struct coString *host);
struct coString *quill___HostTryDecode(coChar const *chs, int64_t length);

// quill_ttl
struct coString *quill___TtlEncode(int64_t ttl);
int64_t quill___TtlTryDecode(coChar const *chs, int64_t length);

// quill_port
struct coString *quill___PortEncode(int64_t port);
int64_t quill___PortTryDecode(coChar const *chs, int64_t length);

// quill_delta_seconds
struct coString *quill___DeltaSecondsEncode(int64_t deltaSeconds);
int64_t quill___DeltaSecondsTryDecode(coChar const *chs, int64_t length);

// quill_diversion_counter
struct coString *quill___DiversionCounterEncode(int64_t diversionCounter);
int64_t quill___DiversionCounterTryDecode(coChar const *chs, int64_t length);

// quill_diversion_limit
struct coString *quill___DiversionLimitEncode(int64_t diversionLimit);
int64_t quill___DiversionLimitTryDecode(coChar const *chs, int64_t length);

// quill_qvalue
struct coString *quill___QvalueEncode(int64_t qvalue);
int64_t quill___QvalueTryDecode(coChar const *chs, int64_t length);

// quill_reason_phrase
struct coString *quill___ReasonPhraseEncode(struct coString const *reasonPhrase);
struct coString *quill___ReasonPhraseDecode(coChar const *chs, int64_t length);

// quill_warn_code
struct coString *quill___WarnCodeEncode(int64_t warnCode);
int64_t quill___WarnCodeDecode(coChar const *chs, int64_t length);

// quill_quotable_string
struct coString *quill___QuotableStringEncode(struct coString const *quotableString);
struct coString *quill___QuotableStringTryDecode(coChar const *chs, int64_t length);

// quill_display_name
struct coString *quill___DisplayNameEncode(struct coString const *displayName);
struct coString *quill___DisplayNameTryDecode(coChar const *chs, int64_t length);

// quill_sess_uuid
void quill___SessUuidStartup(void);
void quill___SessUuidShutdown(void);
extern struct coString *quill___SessUuidNil;

// quill_generic_param
struct coString *quill___GenericParamEncode(struct quillGenericParam const *genericParam);
struct quillGenericParam *quill___GenericParamTryDecode(coChar const *chs, int64_t length);
int quill___GenericParamCompareFunc(struct coObj const *objA, struct coObj const *objB);
void quill___GenericParamFreeFunc(struct coObj *obj);
struct coString *quill___GenericParamToStringFunc(struct coObj const *obj);
extern struct coSort const quill___sort_QUILL_GENERIC_PARAM;

// quill_generic_params
struct coString *quill___GenericParamsEncode(struct quillGenericParams const *genericParams);
struct quillGenericParams *quill___GenericParamsTryDecode(coChar const *chs, int64_t length);
int quill___GenericParamsCompareFunc(struct coObj const *objA, struct coObj const *objB);
void quill___GenericParamsFreeFunc(struct coObj *obj);
struct coString *quill___GenericParamsToStringFunc(struct coObj const *obj);
extern struct coSort const quill___sort_QUILL_GENERIC_PARAMS;

// quill_version
struct coString *quill___VersionEncode(struct quillVersion const *version);
struct quillVersion *quill___VersionTryDecode(coChar const *chs, int64_t length);
int quill___VersionCompareFunc(struct coObj const *objA, struct coObj const *objB);
void quill___VersionFreeFunc(struct coObj *obj);
struct coString *quill___VersionToStringFunc(struct coObj const *obj);
extern struct coSort const quill___sort_QUILL_VERSION;
void quill___VersionStartup(void);
void quill___VersionShutdown(void);
extern struct quillVersion *quill___VersionSip20;

// quill_accept
struct coString *quill___AcceptEncode(struct quillAccept const *accept);
struct quillAccept *quill___AcceptTryDecode(coChar const *chs, int64_t length);
int quill___AcceptCompareFunc(struct coObj const *objA, struct coObj const *objB);
void quill___AcceptFreeFunc(struct coObj *obj);
struct coString *quill___AcceptToStringFunc(struct coObj const *obj);
extern struct coSort const quill___sort_QUILL_ACCEPT;

// quill_via
struct coString *quill___ViaEncode(struct quillVia const *via);
struct quillVia *quill___ViaTryDecode(coChar const *chs, int64_t length);
int quill___ViaCompareFunc(struct coObj const *objA, struct coObj const *objB);
void quill___ViaFreeFunc(struct coObj *obj);
struct coString *quill___ViaToStringFunc(struct coObj const *obj);
extern struct coSort const quill___sort_QUILL_VIA;
void quill___ViaStartup(void);
void quill___ViaShutdown(void);

// quill_route
struct coString *quill___RouteEncode(struct quillRoute const *route);
struct quillRoute *quill___RouteTryDecode(coChar const *chs, int64_t length);
int quill___RouteCompareFunc(struct coObj const *objA, struct coObj const *objB);
void quill___RouteFreeFunc(struct coObj *obj);
struct coString *quill___RouteToStringFunc(struct coObj const *obj);
extern struct coSort const quill___sort_QUILL_ROUTE;

// quill_contact
struct coString *quill___ContactEncode(struct quillContact const *contact);
struct quillContact *quill___ContactTryDecode(coChar const *chs, int64_t length);
int quill___ContactCompareFunc(struct coObj const *objA, struct coObj const *objB);
void quill___ContactFreeFunc(struct coObj *obj);
struct coString *quill___ContactToStringFunc(struct coObj const *obj);
extern struct coSort const quill___sort_QUILL_CONTACT;

// quill_reason
struct coString *quill___ReasonEncode(struct quillReason const *reason);
struct quillReason *quill___ReasonTryDecode(coChar const *chs, int64_t length);
int quill___ReasonCompareFunc(struct coObj const *objA, struct coObj const *objB);
void quill___ReasonFreeFunc(struct coObj *obj);
struct coString *quill___ReasonToStringFunc(struct coObj const *obj);
extern struct coSort const quill___sort_QUILL_REASON;

// quill_warning_value
struct coString *quill___WarningValueEncode(struct quillWarningValue const *warningValue);
struct quillWarningValue *quill___WarningValueTryDecode(coChar const *chs, int64_t length);
int quill___WarningValueCompareFunc(struct coObj const *objA, struct coObj const *objB);
void quill___WarningValueFreeFunc(struct coObj *obj);
struct coString *quill___WarningValueToStringFunc(struct coObj const *obj);
extern struct coSort const quill___sort_QUILL_WARNING_VALUE;

// quill_alert_info
struct coString *quill___AlertInfoEncode(struct quillAlertInfo const *alertInfo);
struct quillAlertInfo *quill___AlertInfoTryDecode(coChar const *chs, int64_t length);
int quill___AlertInfoCompareFunc(struct coObj const *objA, struct coObj const *objB);
void quill___AlertInfoFreeFunc(struct coObj *obj);
struct coString *quill___AlertInfoToStringFunc(struct coObj const *obj);
extern struct coSort const quill___sort_QUILL_ALERT_INFO;

// quill_error_info
struct coString *quill___ErrorInfoEncode(struct quillErrorInfo const *errorInfo);
struct quillErrorInfo *quill___ErrorInfoTryDecode(coChar const *chs, int64_t length);
int quill___ErrorInfoCompareFunc(struct coObj const *objA, struct coObj const *objB);
void quill___ErrorInfoFreeFunc(struct coObj *obj);
struct coString *quill___ErrorInfoToStringFunc(struct coObj const *obj);
extern struct coSort const quill___sort_QUILL_ERROR_INFO;

// quill_call_info
struct coString *quill___CallInfoEncode(struct quillCallInfo const *callInfo);
struct quillCallInfo *quill___CallInfoTryDecode(coChar const *chs, int64_t length);
int quill___CallInfoCompareFunc(struct coObj const *objA, struct coObj const *objB);
void quill___CallInfoFreeFunc(struct coObj *obj);
struct coString *quill___CallInfoToStringFunc(struct coObj const *obj);
extern struct coSort const quill___sort_QUILL_CALL_INFO;

// quill_identity_value
struct coString *quill___IdentityValueEncode(struct quillIdentityValue const *identityValue);
struct quillIdentityValue *quill___IdentityValueTryDecode(coChar const *chs, int64_t length);
int quill___IdentityValueCompareFunc(struct coObj const *objA, struct coObj const *objB);
void quill___IdentityValueFreeFunc(struct coObj *obj);
struct coString *quill___IdentityValueToStringFunc(struct coObj const *obj);
extern struct coSort const quill___sort_QUILL_IDENTITY_VALUE;

// quill_diversion
struct coString *quill___DiversionEncode(struct quillDiversion const *diversion);
struct quillDiversion *quill___DiversionTryDecode(coChar const *chs, int64_t length);
int quill___DiversionCompareFunc(struct coObj const *objA, struct coObj const *objB);
void quill___DiversionFreeFunc(struct coObj *obj);
struct coString *quill___DiversionToStringFunc(struct coObj const *obj);
extern struct coSort const quill___sort_QUILL_DIVERSION;

// quill_history_info
struct coString *quill___HistoryInfoEncode(struct quillHistoryInfo const *historyInfo);
struct quillHistoryInfo *quill___HistoryInfoTryDecode(coChar const *chs, int64_t length);
int quill___HistoryInfoCompareFunc(struct coObj const *objA, struct coObj const *objB);
void quill___HistoryInfoFreeFunc(struct coObj *obj);
struct coString *quill___HistoryInfoToStringFunc(struct coObj const *obj);
extern struct coSort const quill___sort_QUILL_HISTORY_INFO;

// quill_accept_encoding
struct coString *quill___AcceptEncodingEncode(struct quillAcceptEncoding const *acceptEncoding);
struct quillAcceptEncoding *quill___AcceptEncodingTryDecode(coChar const *chs, int64_t length);
int quill___AcceptEncodingCompareFunc(struct coObj const *objA, struct coObj const *objB);
void quill___AcceptEncodingFreeFunc(struct coObj *obj);
struct coString *quill___AcceptEncodingToStringFunc(struct coObj const *obj);
extern struct coSort const quill___sort_QUILL_ACCEPT_ENCODING;

// quill_uui_value
struct coString *quill___UuiValueEncode(struct quillUuiValue const *uuiValue);
struct quillUuiValue *quill___UuiValueTryDecode(coChar const *chs, int64_t length);
int quill___UuiValueCompareFunc(struct coObj const *objA, struct coObj const *objB);
void quill___UuiValueFreeFunc(struct coObj *obj);
struct coString *quill___UuiValueToStringFunc(struct coObj const *obj);
extern struct coSort const quill___sort_QUILL_UUI_VALUE;
void quill___UuiValueStartup(void);
void quill___UuiValueShutdown(void);
extern struct coString *quill___UuiValueEncoding;
extern struct coString *quill___UuiValuePurpose;
extern struct coString *quill___UuiValueContent;

// quill_header_accept
void quill___HeaderAcceptStartup(void);
void quill___HeaderAcceptShutdown(void);
int quill___HeaderAcceptCompareFunc(struct coObj const *objA, struct coObj const *objB);
void quill___HeaderAcceptFreeFunc(struct coObj *obj);
struct coString *quill___HeaderAcceptToStringFunc(struct coObj const *obj);
extern struct coString *quill___CosAccept;
extern struct coSort const quill___sort_QUILL_HEADER_ACCEPT;

// quill_header_accept_encoding
void quill___HeaderAcceptEncodingStartup(void);
void quill___HeaderAcceptEncodingShutdown(void);
int quill___HeaderAcceptEncodingCompareFunc(struct coObj const *objA, struct coObj const *objB);
void quill___HeaderAcceptEncodingFreeFunc(struct coObj *obj);
struct coString *quill___HeaderAcceptEncodingToStringFunc(struct coObj const *obj);
extern struct coString *quill___CosAcceptEncoding;
extern struct coSort const quill___sort_QUILL_HEADER_ACCEPT_ENCODING;

// quill_header_alert_info
void quill___HeaderAlertInfoStartup(void);
void quill___HeaderAlertInfoShutdown(void);
int quill___HeaderAlertInfoCompareFunc(struct coObj const *objA, struct coObj const *objB);
void quill___HeaderAlertInfoFreeFunc(struct coObj *obj);
struct coString *quill___HeaderAlertInfoToStringFunc(struct coObj const *obj);
extern struct coString *quill___CosAlertInfo;
extern struct coSort const quill___sort_QUILL_HEADER_ALERT_INFO;

// quill_header_call_info
void quill___HeaderCallInfoStartup(void);
void quill___HeaderCallInfoShutdown(void);
int quill___HeaderCallInfoCompareFunc(struct coObj const *objA, struct coObj const *objB);
void quill___HeaderCallInfoFreeFunc(struct coObj *obj);
struct coString *quill___HeaderCallInfoToStringFunc(struct coObj const *obj);
extern struct coString *quill___CosCallInfo;
extern struct coSort const quill___sort_QUILL_HEADER_CALL_INFO;

// quill_header_contact
void quill___HeaderContactStartup(void);
void quill___HeaderContactShutdown(void);
int quill___HeaderContactCompareFunc(struct coObj const *objA, struct coObj const *objB);
void quill___HeaderContactFreeFunc(struct coObj *obj);
struct coString *quill___HeaderContactToStringFunc(struct coObj const *obj);
extern struct coString *quill___CosContact;
extern struct coSort const quill___sort_QUILL_HEADER_CONTACT;

// quill_header_diversion
void quill___HeaderDiversionStartup(void);
void quill___HeaderDiversionShutdown(void);
int quill___HeaderDiversionCompareFunc(struct coObj const *objA, struct coObj const *objB);
void quill___HeaderDiversionFreeFunc(struct coObj *obj);
struct coString *quill___HeaderDiversionToStringFunc(struct coObj const *obj);
extern struct coString *quill___CosDiversion;
extern struct coSort const quill___sort_QUILL_HEADER_DIVERSION;

// quill_header_error_info
void quill___HeaderErrorInfoStartup(void);
void quill___HeaderErrorInfoShutdown(void);
int quill___HeaderErrorInfoCompareFunc(struct coObj const *objA, struct coObj const *objB);
void quill___HeaderErrorInfoFreeFunc(struct coObj *obj);
struct coString *quill___HeaderErrorInfoToStringFunc(struct coObj const *obj);
extern struct coString *quill___CosErrorInfo;
extern struct coSort const quill___sort_QUILL_HEADER_ERROR_INFO;

// quill_header_history_info
void quill___HeaderHistoryInfoStartup(void);
void quill___HeaderHistoryInfoShutdown(void);
int quill___HeaderHistoryInfoCompareFunc(struct coObj const *objA, struct coObj const *objB);
void quill___HeaderHistoryInfoFreeFunc(struct coObj *obj);
struct coString *quill___HeaderHistoryInfoToStringFunc(struct coObj const *obj);
extern struct coString *quill___CosHistoryInfo;
extern struct coSort const quill___sort_QUILL_HEADER_HISTORY_INFO;

// quill_header_p_asserted_identity
void quill___HeaderPAssertedIdentityStartup(void);
void quill___HeaderPAssertedIdentityShutdown(void);
int quill___HeaderPAssertedIdentityCompareFunc(struct coObj const *objA, struct coObj const *objB);
void quill___HeaderPAssertedIdentityFreeFunc(struct coObj *obj);
struct coString *quill___HeaderPAssertedIdentityToStringFunc(struct coObj const *obj);
extern struct coString *quill___CosPAssertedIdentity;
extern struct coSort const quill___sort_QUILL_HEADER_P_ASSERTED_IDENTITY;

// quill_header_p_preferred_identity
void quill___HeaderPPreferredIdentityStartup(void);
void quill___HeaderPPreferredIdentityShutdown(void);
int quill___HeaderPPreferredIdentityCompareFunc(struct coObj const *objA, struct coObj const *objB);
void quill___HeaderPPreferredIdentityFreeFunc(struct coObj *obj);
struct coString *quill___HeaderPPreferredIdentityToStringFunc(struct coObj const *obj);
extern struct coString *quill___CosPPreferredIdentity;
extern struct coSort const quill___sort_QUILL_HEADER_P_PREFERRED_IDENTITY;

// quill_header_reason
void quill___HeaderReasonStartup(void);
void quill___HeaderReasonShutdown(void);
int quill___HeaderReasonCompareFunc(struct coObj const *objA, struct coObj const *objB);
void quill___HeaderReasonFreeFunc(struct coObj *obj);
struct coString *quill___HeaderReasonToStringFunc(struct coObj const *obj);
extern struct coString *quill___CosReason;
extern struct coSort const quill___sort_QUILL_HEADER_REASON;

// quill_header_record_route
void quill___HeaderRecordRouteStartup(void);
void quill___HeaderRecordRouteShutdown(void);
int quill___HeaderRecordRouteCompareFunc(struct coObj const *objA, struct coObj const *objB);
void quill___HeaderRecordRouteFreeFunc(struct coObj *obj);
struct coString *quill___HeaderRecordRouteToStringFunc(struct coObj const *obj);
extern struct coString *quill___CosRecordRoute;
extern struct coSort const quill___sort_QUILL_HEADER_RECORD_ROUTE;

// quill_header_route
void quill___HeaderRouteStartup(void);
void quill___HeaderRouteShutdown(void);
int quill___HeaderRouteCompareFunc(struct coObj const *objA, struct coObj const *objB);
void quill___HeaderRouteFreeFunc(struct coObj *obj);
struct coString *quill___HeaderRouteToStringFunc(struct coObj const *obj);
extern struct coString *quill___CosRoute;
extern struct coSort const quill___sort_QUILL_HEADER_ROUTE;

// quill_header_service_route
void quill___HeaderServiceRouteStartup(void);
void quill___HeaderServiceRouteShutdown(void);
int quill___HeaderServiceRouteCompareFunc(struct coObj const *objA, struct coObj const *objB);
void quill___HeaderServiceRouteFreeFunc(struct coObj *obj);
struct coString *quill___HeaderServiceRouteToStringFunc(struct coObj const *obj);
extern struct coString *quill___CosServiceRoute;
extern struct coSort const quill___sort_QUILL_HEADER_SERVICE_ROUTE;

// quill_header_user_to_user
void quill___HeaderUserToUserStartup(void);
void quill___HeaderUserToUserShutdown(void);
int quill___HeaderUserToUserCompareFunc(struct coObj const *objA, struct coObj const *objB);
void quill___HeaderUserToUserFreeFunc(struct coObj *obj);
struct coString *quill___HeaderUserToUserToStringFunc(struct coObj const *obj);
extern struct coString *quill___CosUserToUser;
extern struct coSort const quill___sort_QUILL_HEADER_USER_TO_USER;

// quill_header_via
void quill___HeaderViaStartup(void);
void quill___HeaderViaShutdown(void);
int quill___HeaderViaCompareFunc(struct coObj const *objA, struct coObj const *objB);
void quill___HeaderViaFreeFunc(struct coObj *obj);
struct coString *quill___HeaderViaToStringFunc(struct coObj const *obj);
extern struct coString *quill___CosVia;
extern struct coSort const quill___sort_QUILL_HEADER_VIA;

// quill_header_warning
void quill___HeaderWarningStartup(void);
void quill___HeaderWarningShutdown(void);
int quill___HeaderWarningCompareFunc(struct coObj const *objA, struct coObj const *objB);
void quill___HeaderWarningFreeFunc(struct coObj *obj);
struct coString *quill___HeaderWarningToStringFunc(struct coObj const *obj);
extern struct coString *quill___CosWarning;
extern struct coSort const quill___sort_QUILL_HEADER_WARNING;

// quill_header_accept_resource_priority
void quill___HeaderAcceptResourcePriorityStartup(void);
void quill___HeaderAcceptResourcePriorityShutdown(void);
int quill___HeaderAcceptResourcePriorityCompareFunc(struct coObj const *objA, struct coObj const *objB);
void quill___HeaderAcceptResourcePriorityFreeFunc(struct coObj *obj);
struct coString *quill___HeaderAcceptResourcePriorityToStringFunc(struct coObj const *obj);
extern struct coString *quill___CosAcceptResourcePriority;
extern struct coSort const quill___sort_QUILL_HEADER_ACCEPT_RESOURCE_PRIORITY;

// quill_header_resource_priority
void quill___HeaderResourcePriorityStartup(void);
void quill___HeaderResourcePriorityShutdown(void);
int quill___HeaderResourcePriorityCompareFunc(struct coObj const *objA, struct coObj const *objB);
void quill___HeaderResourcePriorityFreeFunc(struct coObj *obj);
struct coString *quill___HeaderResourcePriorityToStringFunc(struct coObj const *obj);
extern struct coString *quill___CosResourcePriority;
extern struct coSort const quill___sort_QUILL_HEADER_RESOURCE_PRIORITY;

// quill_header_p_early_media
void quill___HeaderPEarlyMediaStartup(void);
void quill___HeaderPEarlyMediaShutdown(void);
int quill___HeaderPEarlyMediaCompareFunc(struct coObj const *objA, struct coObj const *objB);
void quill___HeaderPEarlyMediaFreeFunc(struct coObj *obj);
struct coString *quill___HeaderPEarlyMediaToStringFunc(struct coObj const *obj);
extern struct coString *quill___CosPEarlyMedia;
extern struct coSort const quill___sort_QUILL_HEADER_P_EARLY_MEDIA;

// quill_header_content_encoding
void quill___HeaderContentEncodingStartup(void);
void quill___HeaderContentEncodingShutdown(void);
int quill___HeaderContentEncodingCompareFunc(struct coObj const *objA, struct coObj const *objB);
void quill___HeaderContentEncodingFreeFunc(struct coObj *obj);
struct coString *quill___HeaderContentEncodingToStringFunc(struct coObj const *obj);
extern struct coString *quill___CosContentEncoding;
extern struct coSort const quill___sort_QUILL_HEADER_CONTENT_ENCODING;

// quill_header_allow
void quill___HeaderAllowStartup(void);
void quill___HeaderAllowShutdown(void);
int quill___HeaderAllowCompareFunc(struct coObj const *objA, struct coObj const *objB);
void quill___HeaderAllowFreeFunc(struct coObj *obj);
struct coString *quill___HeaderAllowToStringFunc(struct coObj const *obj);
extern struct coString *quill___CosAllow;
extern struct coSort const quill___sort_QUILL_HEADER_ALLOW;

// quill_header_allow_events
void quill___HeaderAllowEventsStartup(void);
void quill___HeaderAllowEventsShutdown(void);
int quill___HeaderAllowEventsCompareFunc(struct coObj const *objA, struct coObj const *objB);
void quill___HeaderAllowEventsFreeFunc(struct coObj *obj);
struct coString *quill___HeaderAllowEventsToStringFunc(struct coObj const *obj);
extern struct coString *quill___CosAllowEvents;
extern struct coSort const quill___sort_QUILL_HEADER_ALLOW_EVENTS;

// quill_header_in_reply_to
void quill___HeaderInReplyToStartup(void);
void quill___HeaderInReplyToShutdown(void);
int quill___HeaderInReplyToCompareFunc(struct coObj const *objA, struct coObj const *objB);
void quill___HeaderInReplyToFreeFunc(struct coObj *obj);
struct coString *quill___HeaderInReplyToToStringFunc(struct coObj const *obj);
extern struct coString *quill___CosInReplyTo;
extern struct coSort const quill___sort_QUILL_HEADER_IN_REPLY_TO;

// quill_header_privacy
void quill___HeaderPrivacyStartup(void);
void quill___HeaderPrivacyShutdown(void);
int quill___HeaderPrivacyCompareFunc(struct coObj const *objA, struct coObj const *objB);
void quill___HeaderPrivacyFreeFunc(struct coObj *obj);
struct coString *quill___HeaderPrivacyToStringFunc(struct coObj const *obj);
extern struct coString *quill___CosPrivacy;
extern struct coSort const quill___sort_QUILL_HEADER_PRIVACY;

// quill_header_proxy_require
void quill___HeaderProxyRequireStartup(void);
void quill___HeaderProxyRequireShutdown(void);
int quill___HeaderProxyRequireCompareFunc(struct coObj const *objA, struct coObj const *objB);
void quill___HeaderProxyRequireFreeFunc(struct coObj *obj);
struct coString *quill___HeaderProxyRequireToStringFunc(struct coObj const *obj);
extern struct coString *quill___CosProxyRequire;
extern struct coSort const quill___sort_QUILL_HEADER_PROXY_REQUIRE;

// quill_header_require
void quill___HeaderRequireStartup(void);
void quill___HeaderRequireShutdown(void);
int quill___HeaderRequireCompareFunc(struct coObj const *objA, struct coObj const *objB);
void quill___HeaderRequireFreeFunc(struct coObj *obj);
struct coString *quill___HeaderRequireToStringFunc(struct coObj const *obj);
extern struct coString *quill___CosRequire;
extern struct coSort const quill___sort_QUILL_HEADER_REQUIRE;

// quill_header_supported
void quill___HeaderSupportedStartup(void);
void quill___HeaderSupportedShutdown(void);
int quill___HeaderSupportedCompareFunc(struct coObj const *objA, struct coObj const *objB);
void quill___HeaderSupportedFreeFunc(struct coObj *obj);
struct coString *quill___HeaderSupportedToStringFunc(struct coObj const *obj);
extern struct coString *quill___CosSupported;
extern struct coSort const quill___sort_QUILL_HEADER_SUPPORTED;

// quill_header_unsupported
void quill___HeaderUnsupportedStartup(void);
void quill___HeaderUnsupportedShutdown(void);
int quill___HeaderUnsupportedCompareFunc(struct coObj const *objA, struct coObj const *objB);
void quill___HeaderUnsupportedFreeFunc(struct coObj *obj);
struct coString *quill___HeaderUnsupportedToStringFunc(struct coObj const *obj);
extern struct coString *quill___CosUnsupported;
extern struct coSort const quill___sort_QUILL_HEADER_UNSUPPORTED;

// quill_header_call_id
void quill___HeaderCallIdStartup(void);
void quill___HeaderCallIdShutdown(void);
int quill___HeaderCallIdCompareFunc(struct coObj const *objA, struct coObj const *objB);
void quill___HeaderCallIdFreeFunc(struct coObj *obj);
struct coString *quill___HeaderCallIdToStringFunc(struct coObj const *obj);
extern struct coString *quill___CosCallId;
extern struct coSort const quill___sort_QUILL_HEADER_CALL_ID;

// quill_header_content_disposition
void quill___HeaderContentDispositionStartup(void);
void quill___HeaderContentDispositionShutdown(void);
int quill___HeaderContentDispositionCompareFunc(struct coObj const *objA, struct coObj const *objB);
void quill___HeaderContentDispositionFreeFunc(struct coObj *obj);
struct coString *quill___HeaderContentDispositionToStringFunc(struct coObj const *obj);
extern struct coString *quill___CosContentDisposition;
extern struct coSort const quill___sort_QUILL_HEADER_CONTENT_DISPOSITION;

// quill_header_cseq
void quill___HeaderCseqStartup(void);
void quill___HeaderCseqShutdown(void);
int quill___HeaderCseqCompareFunc(struct coObj const *objA, struct coObj const *objB);
void quill___HeaderCseqFreeFunc(struct coObj *obj);
struct coString *quill___HeaderCseqToStringFunc(struct coObj const *obj);
extern struct coString *quill___CosCseq;
extern struct coSort const quill___sort_QUILL_HEADER_CSEQ;

// quill_header_date
void quill___HeaderDateStartup(void);
void quill___HeaderDateShutdown(void);
int quill___HeaderDateCompareFunc(struct coObj const *objA, struct coObj const *objB);
void quill___HeaderDateFreeFunc(struct coObj *obj);
struct coString *quill___HeaderDateToStringFunc(struct coObj const *obj);
extern struct coString *quill___CosDate;
extern struct coSort const quill___sort_QUILL_HEADER_DATE;

// quill_header_event
void quill___HeaderEventStartup(void);
void quill___HeaderEventShutdown(void);
int quill___HeaderEventCompareFunc(struct coObj const *objA, struct coObj const *objB);
void quill___HeaderEventFreeFunc(struct coObj *obj);
struct coString *quill___HeaderEventToStringFunc(struct coObj const *obj);
extern struct coString *quill___CosEvent;
extern struct coSort const quill___sort_QUILL_HEADER_EVENT;

// quill_header_expires
void quill___HeaderExpiresStartup(void);
void quill___HeaderExpiresShutdown(void);
int quill___HeaderExpiresCompareFunc(struct coObj const *objA, struct coObj const *objB);
void quill___HeaderExpiresFreeFunc(struct coObj *obj);
struct coString *quill___HeaderExpiresToStringFunc(struct coObj const *obj);
extern struct coString *quill___CosExpires;
extern struct coSort const quill___sort_QUILL_HEADER_EXPIRES;

// quill_header_from
void quill___HeaderFromStartup(void);
void quill___HeaderFromShutdown(void);
int quill___HeaderFromCompareFunc(struct coObj const *objA, struct coObj const *objB);
void quill___HeaderFromFreeFunc(struct coObj *obj);
struct coString *quill___HeaderFromToStringFunc(struct coObj const *obj);
extern struct coString *quill___CosFrom;
extern struct coSort const quill___sort_QUILL_HEADER_FROM;

// quill_header_max_forwards
void quill___HeaderMaxForwardsStartup(void);
void quill___HeaderMaxForwardsShutdown(void);
int quill___HeaderMaxForwardsCompareFunc(struct coObj const *objA, struct coObj const *objB);
void quill___HeaderMaxForwardsFreeFunc(struct coObj *obj);
struct coString *quill___HeaderMaxForwardsToStringFunc(struct coObj const *obj);
extern struct coString *quill___CosMaxForwards;
extern struct coSort const quill___sort_QUILL_HEADER_MAX_FORWARDS;

// quill_header_min_expires
void quill___HeaderMinExpiresStartup(void);
void quill___HeaderMinExpiresShutdown(void);
int quill___HeaderMinExpiresCompareFunc(struct coObj const *objA, struct coObj const *objB);
void quill___HeaderMinExpiresFreeFunc(struct coObj *obj);
struct coString *quill___HeaderMinExpiresToStringFunc(struct coObj const *obj);
extern struct coString *quill___CosMinExpires;
extern struct coSort const quill___sort_QUILL_HEADER_MIN_EXPIRES;

// quill_header_min_se
void quill___HeaderMinSeStartup(void);
void quill___HeaderMinSeShutdown(void);
int quill___HeaderMinSeCompareFunc(struct coObj const *objA, struct coObj const *objB);
void quill___HeaderMinSeFreeFunc(struct coObj *obj);
struct coString *quill___HeaderMinSeToStringFunc(struct coObj const *obj);
extern struct coString *quill___CosMinSe;
extern struct coSort const quill___sort_QUILL_HEADER_MIN_SE;

// quill_header_organization
void quill___HeaderOrganizationStartup(void);
void quill___HeaderOrganizationShutdown(void);
int quill___HeaderOrganizationCompareFunc(struct coObj const *objA, struct coObj const *objB);
void quill___HeaderOrganizationFreeFunc(struct coObj *obj);
struct coString *quill___HeaderOrganizationToStringFunc(struct coObj const *obj);
extern struct coString *quill___CosOrganization;
extern struct coSort const quill___sort_QUILL_HEADER_ORGANIZATION;

// quill_header_p_called_party_id
void quill___HeaderPCalledPartyIdStartup(void);
void quill___HeaderPCalledPartyIdShutdown(void);
int quill___HeaderPCalledPartyIdCompareFunc(struct coObj const *objA, struct coObj const *objB);
void quill___HeaderPCalledPartyIdFreeFunc(struct coObj *obj);
struct coString *quill___HeaderPCalledPartyIdToStringFunc(struct coObj const *obj);
extern struct coString *quill___CosPCalledPartyId;
extern struct coSort const quill___sort_QUILL_HEADER_P_CALLED_PARTY_ID;

// quill_header_priority
void quill___HeaderPriorityStartup(void);
void quill___HeaderPriorityShutdown(void);
int quill___HeaderPriorityCompareFunc(struct coObj const *objA, struct coObj const *objB);
void quill___HeaderPriorityFreeFunc(struct coObj *obj);
struct coString *quill___HeaderPriorityToStringFunc(struct coObj const *obj);
extern struct coString *quill___CosPriority;
extern struct coSort const quill___sort_QUILL_HEADER_PRIORITY;

// quill_header_rack
void quill___HeaderRackStartup(void);
void quill___HeaderRackShutdown(void);
int quill___HeaderRackCompareFunc(struct coObj const *objA, struct coObj const *objB);
void quill___HeaderRackFreeFunc(struct coObj *obj);
struct coString *quill___HeaderRackToStringFunc(struct coObj const *obj);
extern struct coString *quill___CosRack;
extern struct coSort const quill___sort_QUILL_HEADER_RACK;

// quill_header_refer_to
void quill___HeaderReferToStartup(void);
void quill___HeaderReferToShutdown(void);
int quill___HeaderReferToCompareFunc(struct coObj const *objA, struct coObj const *objB);
void quill___HeaderReferToFreeFunc(struct coObj *obj);
struct coString *quill___HeaderReferToToStringFunc(struct coObj const *obj);
extern struct coString *quill___CosReferTo;
extern struct coSort const quill___sort_QUILL_HEADER_REFER_TO;

// quill_header_referred_by
void quill___HeaderReferredByStartup(void);
void quill___HeaderReferredByShutdown(void);
int quill___HeaderReferredByCompareFunc(struct coObj const *objA, struct coObj const *objB);
void quill___HeaderReferredByFreeFunc(struct coObj *obj);
struct coString *quill___HeaderReferredByToStringFunc(struct coObj const *obj);
extern struct coString *quill___CosReferredBy;
extern struct coSort const quill___sort_QUILL_HEADER_REFERRED_BY;

// quill_header_remote_party_id
void quill___HeaderRemotePartyIdStartup(void);
void quill___HeaderRemotePartyIdShutdown(void);
int quill___HeaderRemotePartyIdCompareFunc(struct coObj const *objA, struct coObj const *objB);
void quill___HeaderRemotePartyIdFreeFunc(struct coObj *obj);
struct coString *quill___HeaderRemotePartyIdToStringFunc(struct coObj const *obj);
extern struct coString *quill___CosRemotePartyId;
extern struct coSort const quill___sort_QUILL_HEADER_REMOTE_PARTY_ID;

// quill_header_replaces
void quill___HeaderReplacesStartup(void);
void quill___HeaderReplacesShutdown(void);
int quill___HeaderReplacesCompareFunc(struct coObj const *objA, struct coObj const *objB);
void quill___HeaderReplacesFreeFunc(struct coObj *obj);
struct coString *quill___HeaderReplacesToStringFunc(struct coObj const *obj);
extern struct coString *quill___CosReplaces;
extern struct coSort const quill___sort_QUILL_HEADER_REPLACES;

// quill_header_reply_to
void quill___HeaderReplyToStartup(void);
void quill___HeaderReplyToShutdown(void);
int quill___HeaderReplyToCompareFunc(struct coObj const *objA, struct coObj const *objB);
void quill___HeaderReplyToFreeFunc(struct coObj *obj);
struct coString *quill___HeaderReplyToToStringFunc(struct coObj const *obj);
extern struct coString *quill___CosReplyTo;
extern struct coSort const quill___sort_QUILL_HEADER_REPLY_TO;

// quill_header_retry_after
void quill___HeaderRetryAfterStartup(void);
void quill___HeaderRetryAfterShutdown(void);
int quill___HeaderRetryAfterCompareFunc(struct coObj const *objA, struct coObj const *objB);
void quill___HeaderRetryAfterFreeFunc(struct coObj *obj);
struct coString *quill___HeaderRetryAfterToStringFunc(struct coObj const *obj);
extern struct coString *quill___CosRetryAfter;
extern struct coSort const quill___sort_QUILL_HEADER_RETRY_AFTER;

// quill_header_rseq
void quill___HeaderRseqStartup(void);
void quill___HeaderRseqShutdown(void);
int quill___HeaderRseqCompareFunc(struct coObj const *objA, struct coObj const *objB);
void quill___HeaderRseqFreeFunc(struct coObj *obj);
struct coString *quill___HeaderRseqToStringFunc(struct coObj const *obj);
extern struct coString *quill___CosRseq;
extern struct coSort const quill___sort_QUILL_HEADER_RSEQ;

// quill_header_server
void quill___HeaderServerStartup(void);
void quill___HeaderServerShutdown(void);
int quill___HeaderServerCompareFunc(struct coObj const *objA, struct coObj const *objB);
void quill___HeaderServerFreeFunc(struct coObj *obj);
struct coString *quill___HeaderServerToStringFunc(struct coObj const *obj);
extern struct coString *quill___CosServer;
extern struct coSort const quill___sort_QUILL_HEADER_SERVER;

// quill_header_session_expires
void quill___HeaderSessionExpiresStartup(void);
void quill___HeaderSessionExpiresShutdown(void);
int quill___HeaderSessionExpiresCompareFunc(struct coObj const *objA, struct coObj const *objB);
void quill___HeaderSessionExpiresFreeFunc(struct coObj *obj);
struct coString *quill___HeaderSessionExpiresToStringFunc(struct coObj const *obj);
extern struct coString *quill___CosSessionExpires;
extern struct coSort const quill___sort_QUILL_HEADER_SESSION_EXPIRES;

// quill_header_session_id
void quill___HeaderSessionIdStartup(void);
void quill___HeaderSessionIdShutdown(void);
int quill___HeaderSessionIdCompareFunc(struct coObj const *objA, struct coObj const *objB);
void quill___HeaderSessionIdFreeFunc(struct coObj *obj);
struct coString *quill___HeaderSessionIdToStringFunc(struct coObj const *obj);
extern struct coString *quill___CosSessionId;
extern struct coSort const quill___sort_QUILL_HEADER_SESSION_ID;

// quill_header_subject
void quill___HeaderSubjectStartup(void);
void quill___HeaderSubjectShutdown(void);
int quill___HeaderSubjectCompareFunc(struct coObj const *objA, struct coObj const *objB);
void quill___HeaderSubjectFreeFunc(struct coObj *obj);
struct coString *quill___HeaderSubjectToStringFunc(struct coObj const *obj);
extern struct coString *quill___CosSubject;
extern struct coSort const quill___sort_QUILL_HEADER_SUBJECT;

// quill_header_subscription_state
void quill___HeaderSubscriptionStateStartup(void);
void quill___HeaderSubscriptionStateShutdown(void);
int quill___HeaderSubscriptionStateCompareFunc(struct coObj const *objA, struct coObj const *objB);
void quill___HeaderSubscriptionStateFreeFunc(struct coObj *obj);
struct coString *quill___HeaderSubscriptionStateToStringFunc(struct coObj const *obj);
extern struct coString *quill___CosSubscriptionState;
extern struct coSort const quill___sort_QUILL_HEADER_SUBSCRIPTION_STATE;

// quill_header_timestamp
void quill___HeaderTimestampStartup(void);
void quill___HeaderTimestampShutdown(void);
int quill___HeaderTimestampCompareFunc(struct coObj const *objA, struct coObj const *objB);
void quill___HeaderTimestampFreeFunc(struct coObj *obj);
struct coString *quill___HeaderTimestampToStringFunc(struct coObj const *obj);
extern struct coString *quill___CosTimestamp;
extern struct coSort const quill___sort_QUILL_HEADER_TIMESTAMP;

// quill_header_to
void quill___HeaderToStartup(void);
void quill___HeaderToShutdown(void);
int quill___HeaderToCompareFunc(struct coObj const *objA, struct coObj const *objB);
void quill___HeaderToFreeFunc(struct coObj *obj);
struct coString *quill___HeaderToToStringFunc(struct coObj const *obj);
extern struct coString *quill___CosTo;
extern struct coSort const quill___sort_QUILL_HEADER_TO;

// quill_header_user_agent
void quill___HeaderUserAgentStartup(void);
void quill___HeaderUserAgentShutdown(void);
int quill___HeaderUserAgentCompareFunc(struct coObj const *objA, struct coObj const *objB);
void quill___HeaderUserAgentFreeFunc(struct coObj *obj);
struct coString *quill___HeaderUserAgentToStringFunc(struct coObj const *obj);
extern struct coString *quill___CosUserAgent;
extern struct coSort const quill___sort_QUILL_HEADER_USER_AGENT;

CO_EXTERN_C_END

#endif
