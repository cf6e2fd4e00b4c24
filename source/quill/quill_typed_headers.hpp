// The typed headers, in the order in which the module starts them: the name in the functions, the sort, the field's name,
// the shape, and where the field is defined. Nothing else lists them by hand.
#pragma once

#define QUILL_TYPED_HEADERS(X)                                                                                         \
    X(AcceptEncoding, ACCEPT_ENCODING, "Accept-Encoding", LIST, "RFC 3261, 20.2")                                      \
    X(AcceptResourcePriority, ACCEPT_RESOURCE_PRIORITY, "Accept-Resource-Priority", LIST, "RFC 4412, 3.2")             \
    X(Accept, ACCEPT, "Accept", LIST, "RFC 3261, 20.1")                                                                \
    X(AlertInfo, ALERT_INFO, "Alert-Info", LIST, "RFC 3261, 20.4")                                                     \
    X(AllowEvents, ALLOW_EVENTS, "Allow-Events", SET, "RFC 6665, 8.2.2")                                               \
    X(Allow, ALLOW, "Allow", SET, "RFC 3261, 20.5")                                                                    \
    X(CallId, CALL_ID, "Call-Id", VALUE, "RFC 3261, 20.8")                                                             \
    X(CallInfo, CALL_INFO, "Call-Info", LIST, "RFC 3261, 20.9")                                                        \
    X(Contact, CONTACT, "Contact", LIST, "RFC 3261, 20.10")                                                            \
    X(ContentDisposition, CONTENT_DISPOSITION, "Content-Disposition", VALUE, "RFC 3261, 20.11")                        \
    X(ContentEncoding, CONTENT_ENCODING, "Content-Encoding", LIST, "RFC 3261, 20.12")                                  \
    X(Cseq, CSEQ, "Cseq", VALUE, "RFC 3261, 20.16")                                                                    \
    X(Date, DATE, "Date", VALUE, "RFC 3261, 20.17")                                                                    \
    X(Diversion, DIVERSION, "Diversion", LIST, "RFC 5806, 3")                                                          \
    X(ErrorInfo, ERROR_INFO, "Error-Info", LIST, "RFC 3261, 20.18")                                                    \
    X(Event, EVENT, "Event", VALUE, "RFC 6665, 8.2.1")                                                                 \
    X(Expires, EXPIRES, "Expires", VALUE, "RFC 3261, 20.19")                                                           \
    X(From, FROM, "From", VALUE, "RFC 3261, 20.20")                                                                    \
    X(HistoryInfo, HISTORY_INFO, "History-Info", LIST, "RFC 7044, 5")                                                  \
    X(InReplyTo, IN_REPLY_TO, "In-Reply-To", SET, "RFC 3261, 20.21")                                                   \
    X(MaxForwards, MAX_FORWARDS, "Max-Forwards", VALUE, "RFC 3261, 20.22")                                             \
    X(MinExpires, MIN_EXPIRES, "Min-Expires", VALUE, "RFC 3261, 20.23")                                                \
    X(MinSe, MIN_SE, "Min-Se", VALUE, "RFC 4028, 5")                                                                   \
    X(Organization, ORGANIZATION, "Organization", VALUE, "RFC 3261, 20.25")                                            \
    X(PAssertedIdentity, P_ASSERTED_IDENTITY, "P-Asserted-Identity", LIST, "RFC 3325, 9.1")                            \
    X(PCalledPartyId, P_CALLED_PARTY_ID, "P-Called-Party-Id", VALUE, "RFC 7315, 4.2")                                  \
    X(PEarlyMedia, P_EARLY_MEDIA, "P-Early-Media", LIST, "RFC 5009, 8")                                                \
    X(PPreferredIdentity, P_PREFERRED_IDENTITY, "P-Preferred-Identity", LIST, "RFC 3325, 9.2")                         \
    X(Priority, PRIORITY, "Priority", VALUE, "RFC 3261, 20.26")                                                        \
    X(Privacy, PRIVACY, "Privacy", SET, "RFC 3323, 4.2")                                                               \
    X(ProxyRequire, PROXY_REQUIRE, "Proxy-Require", SET, "RFC 3261, 20.29")                                            \
    X(Rack, RACK, "Rack", VALUE, "RFC 3262, 7.2")                                                                      \
    X(Reason, REASON, "Reason", LIST, "RFC 3326, 2")                                                                   \
    X(RecordRoute, RECORD_ROUTE, "Record-Route", LIST, "RFC 3261, 20.30")                                              \
    X(ReferTo, REFER_TO, "Refer-To", VALUE, "RFC 3515, 2.1")                                                           \
    X(ReferredBy, REFERRED_BY, "Referred-By", VALUE, "RFC 3892, 3")                                                    \
    X(RemotePartyId, REMOTE_PARTY_ID, "Remote-Party-Id", VALUE, "draft-ietf-sip-privacy-04, 5.1")                      \
    X(Replaces, REPLACES, "Replaces", VALUE, "RFC 3891, 6.1")                                                          \
    X(ReplyTo, REPLY_TO, "Reply-To", VALUE, "RFC 3261, 20.31")                                                         \
    X(Require, REQUIRE, "Require", SET, "RFC 3261, 20.32")                                                             \
    X(ResourcePriority, RESOURCE_PRIORITY, "Resource-Priority", LIST, "RFC 4412, 3.1")                                 \
    X(RetryAfter, RETRY_AFTER, "Retry-After", VALUE, "RFC 3261, 20.33")                                                \
    X(Route, ROUTE, "Route", LIST, "RFC 3261, 20.34")                                                                  \
    X(Rseq, RSEQ, "Rseq", VALUE, "RFC 3262, 7.1")                                                                      \
    X(Server, SERVER, "Server", VALUE, "RFC 3261, 20.35")                                                              \
    X(ServiceRoute, SERVICE_ROUTE, "Service-Route", LIST, "RFC 3608, 5")                                               \
    X(SessionId, SESSION_ID, "Session-Id", VALUE, "RFC 7989, 5")                                                       \
    X(SessionExpires, SESSION_EXPIRES, "Session-Expires", VALUE, "RFC 4028, 4")                                        \
    X(Subject, SUBJECT, "Subject", VALUE, "RFC 3261, 20.36")                                                           \
    X(SubscriptionState, SUBSCRIPTION_STATE, "Subscription-State", VALUE, "RFC 6665, 8.2.3")                           \
    X(Supported, SUPPORTED, "Supported", SET, "RFC 3261, 20.37")                                                       \
    X(Timestamp, TIMESTAMP, "Timestamp", VALUE, "RFC 3261, 20.38")                                                     \
    X(To, TO, "To", VALUE, "RFC 3261, 20.39")                                                                          \
    X(Unsupported, UNSUPPORTED, "Unsupported", SET, "RFC 3261, 20.40")                                                 \
    X(UserAgent, USER_AGENT, "User-Agent", VALUE, "RFC 3261, 20.41")                                                   \
    X(UserToUser, USER_TO_USER, "User-to-User", LIST, "RFC 7433, 4")                                                   \
    X(Via, VIA, "Via", LIST, "RFC 3261, 20.42")                                                                        \
    X(Warning, WARNING, "Warning", LIST, "RFC 3261, 20.43")
