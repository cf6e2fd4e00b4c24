/// @file
/// The scanners of SIP's grammar, one for each production (RFC 3261, 25.1, where no other RFC is named).
///
/// Each returns how many code points at the start of the text form its production, 0 where none do. None reads beyond
/// `chs[length]`, allocates or keeps a state, and each is linear in the text. Matching is greedy and never goes back;
/// an alternative is the first branch that matches anything, in the order of the ABNF given here. Names of tokens are
/// not looked at: a production that lists some and a token takes any token.
///
/// Text comes here unfolded: LWS and SWS are runs of SP and HTAB, and CR and LF are never blanks.
///
/// Preconditions: `length` is not negative, and `chs` is given unless it is 0; a literal character passes CO_CHAR_OK.
#ifndef QUILL_QUILL_SKIP_H
#define QUILL_QUILL_SKIP_H

#include <quill/quill_types.h>

CO_EXTERN_C_BEGIN

/// @name Characters
/// @{
/// The one character @p ch.
QUILL_API int64_t quill___SkipChar(coChar const *chs, int64_t length, coChar ch);
/// The given sequence; an empty one matches nothing.
QUILL_API int64_t quill___SkipChars(coChar const *chs, int64_t length, coChar const *skipChs, int64_t skipLength);
/// The same, `A`-`Z` on either side being taken for `a`-`z`.
QUILL_API int64_t quill___SkipCharsAsciiCaseFold(coChar const *chs, int64_t length, coChar const *skipChs,
                                                 int64_t skipLength);
/// @}

/// @name Blanks and separators
/// @{
/// SWS = [ LWS ], as a run of any number of blanks
QUILL_API int64_t quill___SkipSws(coChar const *chs, int64_t length);
/// LWS = 1*WSP. The same scanner as SWS: a production that requires LWS tests for 0.
QUILL_API int64_t quill___SkipLws(coChar const *chs, int64_t length);
/// SWS ch SWS
QUILL_API int64_t quill___SkipSwsCharSws(coChar const *chs, int64_t length, coChar ch);
/// SWS ch
QUILL_API int64_t quill___SkipSwsChar(coChar const *chs, int64_t length, coChar ch);
/// ch SWS
QUILL_API int64_t quill___SkipCharSws(coChar const *chs, int64_t length, coChar ch);
/// HCOLON = *( SP / HTAB ) ":" SWS
QUILL_API int64_t quill___SkipHcolon(coChar const *chs, int64_t length);
/// COLON = SWS ":" SWS
QUILL_API int64_t quill___SkipColon(coChar const *chs, int64_t length);
/// COMMA = SWS "," SWS
QUILL_API int64_t quill___SkipComma(coChar const *chs, int64_t length);
/// EQUAL = SWS "=" SWS
QUILL_API int64_t quill___SkipEqual(coChar const *chs, int64_t length);
/// SEMI = SWS ";" SWS
QUILL_API int64_t quill___SkipSemi(coChar const *chs, int64_t length);
/// SLASH = SWS "/" SWS
QUILL_API int64_t quill___SkipSlash(coChar const *chs, int64_t length);
/// STAR = SWS "*" SWS
QUILL_API int64_t quill___SkipStar(coChar const *chs, int64_t length);
/// LPAREN = SWS "(" SWS
QUILL_API int64_t quill___SkipLparen(coChar const *chs, int64_t length);
/// RPAREN = SWS ")" SWS
QUILL_API int64_t quill___SkipRparen(coChar const *chs, int64_t length);
/// LAQUOT = SWS "<"
QUILL_API int64_t quill___SkipLaquot(coChar const *chs, int64_t length);
/// LDQUOT = SWS DQUOTE
QUILL_API int64_t quill___SkipLdquot(coChar const *chs, int64_t length);
/// RAQUOT = ">" SWS
QUILL_API int64_t quill___SkipRaquot(coChar const *chs, int64_t length);
/// RDQUOT = DQUOTE SWS
QUILL_API int64_t quill___SkipRdquot(coChar const *chs, int64_t length);
/// @}

/// @name Runs of one class
/// @{
/// token = 1*( alphanum / "-" / "." / "!" / "%" / "*" / "_" / "+" / "`" / "'" / "~" )
QUILL_API int64_t quill___SkipToken(coChar const *chs, int64_t length);
/// token-nodot = 1*( alphanum / "-" / "!" / "%" / "*" / "_" / "+" / "`" / "'" / "~" ) (RFC 6665, 8.4)
QUILL_API int64_t quill___SkipTokenNodot(coChar const *chs, int64_t length);
/// atom, of the characters of token-nodot (RFC 2822, 3.2.4, as far as a token can hold it)
QUILL_API int64_t quill___SkipAtom(coChar const *chs, int64_t length);
/// word = 1*( alphanum / "-" / "." / "!" / "%" / "*" / "_" / "+" / "`" / "'" / "~" / "(" / ")" / "<" / ">" / ":" /
/// "\" / DQUOTE / "/" / "[" / "]" / "?" / "{" / "}" )
QUILL_API int64_t quill___SkipWord(coChar const *chs, int64_t length);
/// 1*DIGIT
QUILL_API int64_t quill___SkipDigits(coChar const *chs, int64_t length);
/// @}

/// @name Tokens under their productions' names
/// @{
/// via-branch = "branch" EQUAL token: the token
QUILL_API int64_t quill___SkipBranch(coChar const *chs, int64_t length);
/// content-coding = token
QUILL_API int64_t quill___SkipContentCoding(coChar const *chs, int64_t length);
/// disp-type = "render" / "session" / "icon" / "alert" / disp-extension-token
QUILL_API int64_t quill___SkipDispositionType(coChar const *chs, int64_t length);
/// em-param = "sendrecv" / "sendonly" / "recvonly" / "inactive" / "gated" / "supported" / token (RFC 5009)
QUILL_API int64_t quill___SkipEmParam(coChar const *chs, int64_t length);
/// event-reason-value = "deactivated" / "probation" / "rejected" / "timeout" / "giveup" / "noresource" / "invariant" /
/// event-reason-extension (RFC 6665, 8.4)
QUILL_API int64_t quill___SkipEventReasonValue(coChar const *chs, int64_t length);
/// handling-param = "handling" EQUAL ( "optional" / "required" / other-handling ): the token
QUILL_API int64_t quill___SkipHandling(coChar const *chs, int64_t length);
/// header-name = token
QUILL_API int64_t quill___SkipMessageHeaderName(coChar const *chs, int64_t length);
/// Method = INVITEm / ACKm / OPTIONSm / BYEm / CANCELm / REGISTERm / extension-method
QUILL_API int64_t quill___SkipMethod(coChar const *chs, int64_t length);
/// option-tag = token
QUILL_API int64_t quill___SkipOptionTag(coChar const *chs, int64_t length);
/// priority-value = "emergency" / "urgent" / "normal" / "non-urgent" / other-priority
QUILL_API int64_t quill___SkipPriorityValue(coChar const *chs, int64_t length);
/// priv-value = "header" / "session" / "user" / "none" / "critical" / token (RFC 3323, 4.2)
QUILL_API int64_t quill___SkipPrivValue(coChar const *chs, int64_t length);
/// protocol-name = "SIP" / token
QUILL_API int64_t quill___SkipProtocolName(coChar const *chs, int64_t length);
/// protocol-version = token
QUILL_API int64_t quill___SkipProtocolVersion(coChar const *chs, int64_t length);
/// pseudonym = token
QUILL_API int64_t quill___SkipPseudonym(coChar const *chs, int64_t length);
/// info-param = ( "purpose" EQUAL ( "icon" / "info" / "card" / token ) ) / generic-param: the token
QUILL_API int64_t quill___SkipPurpose(coChar const *chs, int64_t length);
/// protocol = "SIP" / "Q.850" / token (RFC 3326, 2)
QUILL_API int64_t quill___SkipReasonProtocol(coChar const *chs, int64_t length);
/// substate-value = "active" / "pending" / "terminated" / extension-substate (RFC 6665, 8.4)
QUILL_API int64_t quill___SkipSubstateValue(coChar const *chs, int64_t length);
/// tag-param = "tag" EQUAL token: the token
QUILL_API int64_t quill___SkipTag(coChar const *chs, int64_t length);
/// transport = "UDP" / "TCP" / "TLS" / "SCTP" / other-transport
QUILL_API int64_t quill___SkipTransport(coChar const *chs, int64_t length);
/// @}

/// @name Digits and quoted strings under their productions' names
/// @{
/// delta-seconds = 1*DIGIT
QUILL_API int64_t quill___SkipDeltaSeconds(coChar const *chs, int64_t length);
/// cause = 1*DIGIT (RFC 3326, 2)
QUILL_API int64_t quill___SkipReasonCause(coChar const *chs, int64_t length);
/// ttl = 1*3DIGIT; any number of them here, the value being what limits it
QUILL_API int64_t quill___SkipTtl(coChar const *chs, int64_t length);
/// reason-text = "text" EQUAL quoted-string: the quoted string (RFC 3326, 2)
QUILL_API int64_t quill___SkipReasonText(coChar const *chs, int64_t length);
/// warn-text = quoted-string
QUILL_API int64_t quill___SkipWarnText(coChar const *chs, int64_t length);
/// @}

/// @name Dotted runs
/// @{
/// dot-atom = atom *( "." atom ). A dot without an atom behind it is left.
QUILL_API int64_t quill___SkipDotAtom(coChar const *chs, int64_t length);
/// event-type = token-nodot *( "." token-nodot ) (RFC 6665, 8.4). A dot without a token behind it is left.
QUILL_API int64_t quill___SkipEventType(coChar const *chs, int64_t length);
/// r-value = namespace "." r-priority, both token-nodot (RFC 4412, 3.1)
QUILL_API int64_t quill___SkipRvalue(coChar const *chs, int64_t length);
/// @}

/// @name Texts
/// @{
/// quoted-string = SWS DQUOTE *( qdtext / quoted-pair ) DQUOTE. Anything but CR and LF may be quoted, and be escaped.
QUILL_API int64_t quill___SkipQuotedString(coChar const *chs, int64_t length);
/// comment = LPAREN *( ctext / quoted-pair / comment ) RPAREN, to any depth
QUILL_API int64_t quill___SkipComment(coChar const *chs, int64_t length);
/// Organization = [ TEXT-UTF8-TRIM ]; TEXT-UTF8-TRIM = 1*TEXT-UTF8char *( *LWS TEXT-UTF8char ). No control is a member,
/// every code point beyond US-ASCII is.
QUILL_API int64_t quill___SkipOrganization(coChar const *chs, int64_t length);
/// Subject = [ TEXT-UTF8-TRIM ]
QUILL_API int64_t quill___SkipSubject(coChar const *chs, int64_t length);
/// display-name = quoted-string / *( token LWS ). Blanks behind the last token are taken, behind the quoted string not.
QUILL_API int64_t quill___SkipDisplayName(coChar const *chs, int64_t length);
/// @}

/// @name Escaped runs
/// escaped = "%" HEXDIG HEXDIG; any other `%` ends the run. 0 is a match, too.
/// @{
/// user = 1*( unreserved / escaped / user-unreserved )
QUILL_API int64_t quill___SkipUser(coChar const *chs, int64_t length);
/// password = *( unreserved / escaped / "&" / "=" / "+" / "$" / "," )
QUILL_API int64_t quill___SkipPassword(coChar const *chs, int64_t length);
/// pvalue = 1*( param-unreserved / unreserved / escaped ); param-unreserved = "[" / "]" / "/" / ":" / "&" / "+" / "$"
QUILL_API int64_t quill___SkipPvalue(coChar const *chs, int64_t length);
/// *uric; uric = reserved / unreserved / escaped
QUILL_API int64_t quill___SkipUric(coChar const *chs, int64_t length);
/// @}

/// @name Hosts and ports
/// @{
/// domainlabel = alphanum / alphanum *( alphanum / "-" ) alphanum, an escape counting as alphanum. Hyphens at the end
/// are left.
QUILL_API int64_t quill___SkipDomainLabel(coChar const *chs, int64_t length);
/// hostname = domainlabel *( "." domainlabel ) [ "." ]. The last label may begin with a digit.
QUILL_API int64_t quill___SkipHostname(coChar const *chs, int64_t length);
/// IPv4address: loc_skip.h
QUILL_API int64_t quill___SkipIpV4Address(coChar const *chs, int64_t length);
/// IPv6address, without brackets: loc_skip.h
QUILL_API int64_t quill___SkipIpV6Address(coChar const *chs, int64_t length);
/// port = 1*DIGIT
QUILL_API int64_t quill___SkipPort(coChar const *chs, int64_t length);
/// IPv6reference = "[" IPv6address "]"
QUILL_API int64_t quill___SkipIpV6Reference(coChar const *chs, int64_t length);
/// host = hostname / IPv4address / IPv6reference, whichever is longest
QUILL_API int64_t quill___SkipHost(coChar const *chs, int64_t length);
/// hostport = host [ ":" port ]. A colon without a port behind it is left.
QUILL_API int64_t quill___SkipHostPort(coChar const *chs, int64_t length);
/// @}

/// @name URIs and addresses
/// @{
/// A URI of any scheme, characters beyond US-ASCII allowed: loc___SkipIri of loc_skip.h
QUILL_API int64_t quill___SkipUri(coChar const *chs, int64_t length);
/// addr-spec = SIP-URI / SIPS-URI / absoluteURI, before the first ";": what follows a bare address are parameters of
/// the header (RFC 3261, 20.10).
QUILL_API int64_t quill___SkipAddrSpec(coChar const *chs, int64_t length);
/// name-addr = [ display-name ] LAQUOT addr-spec RAQUOT
QUILL_API int64_t quill___SkipNameAddr(coChar const *chs, int64_t length);
/// contact-param = ( name-addr / addr-spec ) *( SEMI generic-param )
QUILL_API int64_t quill___SkipContact(coChar const *chs, int64_t length);
/// route-param = name-addr *( SEMI generic-param )
QUILL_API int64_t quill___SkipRoute(coChar const *chs, int64_t length);
/// diversion-params = name-addr *( SEMI generic-param ) (RFC 5806)
QUILL_API int64_t quill___SkipDiversion(coChar const *chs, int64_t length);
/// hi-entry = name-addr *( SEMI generic-param ) (RFC 7044, 5)
QUILL_API int64_t quill___SkipHistoryInfo(coChar const *chs, int64_t length);
/// PAssertedID-value = name-addr / addr-spec (RFC 3325, 9.1)
QUILL_API int64_t quill___SkipIdentityValue(coChar const *chs, int64_t length);
/// alert-param = LAQUOT absoluteURI RAQUOT *( SEMI generic-param )
QUILL_API int64_t quill___SkipAlertInfo(coChar const *chs, int64_t length);
/// info = LAQUOT absoluteURI RAQUOT *( SEMI generic-param )
QUILL_API int64_t quill___SkipCallInfo(coChar const *chs, int64_t length);
/// error-uri = LAQUOT absoluteURI RAQUOT *( SEMI generic-param )
QUILL_API int64_t quill___SkipErrorInfo(coChar const *chs, int64_t length);
/// "<" instance-val ">", without blanks; instance-val = 1*uric (RFC 5626, 10)
QUILL_API int64_t quill___SkipSipInstance(coChar const *chs, int64_t length);
/// @}

/// @name Parameters
/// @{
/// generic-param = token [ EQUAL ( token / host / quoted-string ) ]. EQUAL without a value behind it is no match.
QUILL_API int64_t quill___SkipGenericParam(coChar const *chs, int64_t length);
/// *( SEMI generic-param ). A SEMI without a parameter behind it is left.
QUILL_API int64_t quill___SkipGenericParams(coChar const *chs, int64_t length);
/// via-received = "received" EQUAL ( IPv6address / IPv4address )
QUILL_API int64_t quill___SkipViaReceived(coChar const *chs, int64_t length);
/// via-params = via-received / generic-param
QUILL_API int64_t quill___SkipViaParams(coChar const *chs, int64_t length);
/// @}

/// @name Via and version
/// @{
/// protocol-name SLASH protocol-version
QUILL_API int64_t quill___SkipVersion(coChar const *chs, int64_t length);
/// via-parm = protocol-name SLASH protocol-version SLASH transport LWS host [ COLON port ] *( SEMI via-params ). COLON
/// without a port behind it is no match.
QUILL_API int64_t quill___SkipVia(coChar const *chs, int64_t length);
/// @}

/// @name Media and content
/// @{
/// m-type = token; `*` is none.
QUILL_API int64_t quill___SkipMediaType(coChar const *chs, int64_t length);
/// m-subtype = token; `*` is none.
QUILL_API int64_t quill___SkipMediaSubtype(coChar const *chs, int64_t length);
/// accept-range = ( "*" SLASH "*" / m-type SLASH ( "*" / m-subtype ) ) *( SEMI generic-param ).
///
/// The result is the length of the parameters alone: 0 for a range without any.
QUILL_API int64_t quill___SkipAccept(coChar const *chs, int64_t length);
/// encoding = ( content-coding / "*" ) *( SEMI generic-param )
QUILL_API int64_t quill___SkipAcceptEncoding(coChar const *chs, int64_t length);
/// reason-value = protocol *( SEMI generic-param ) (RFC 3326, 2)
QUILL_API int64_t quill___SkipReason(coChar const *chs, int64_t length);
/// uui-value = ( token / quoted-string ) *( SEMI generic-param ) (RFC 7433, 4.1)
QUILL_API int64_t quill___SkipUuiValue(coChar const *chs, int64_t length);
/// diversion-privacy = "privacy" EQUAL ( "full" / "name" / "uri" / "off" / token / quoted-string ): the value
/// (RFC 5806)
QUILL_API int64_t quill___SkipDiversionPrivacy(coChar const *chs, int64_t length);
/// diversion-reason = "reason" EQUAL ( "unknown" / "user-busy" / … / token / quoted-string ): the value (RFC 5806)
QUILL_API int64_t quill___SkipDiversionReason(coChar const *chs, int64_t length);
/// diversion-screen = "screen" EQUAL ( "yes" / "no" / token / quoted-string ): the value (RFC 5806)
QUILL_API int64_t quill___SkipDiversionScreen(coChar const *chs, int64_t length);
/// @}

/// @name Identifiers and numbers
/// @{
/// callid = word [ "@" word ]. "@" without a word behind it is no match.
QUILL_API int64_t quill___SkipCallId(coChar const *chs, int64_t length);
/// sip-clean-msg-id = dot-atom "@" ( dot-atom / host ), the longer of both; without its quotes (RFC 3892)
QUILL_API int64_t quill___SkipSipCleanMsgId(coChar const *chs, int64_t length);
/// The value of an "epid" parameter: the first 16 characters of a token.
QUILL_API int64_t quill___SkipEpid(coChar const *chs, int64_t length);
/// sess-uuid = 32( DIGIT / %x61-7A ), the first 32 characters (RFC 7989, 5, but with the whole alphabet)
QUILL_API int64_t quill___SkipSessUuid(coChar const *chs, int64_t length);
/// diversion-counter = "counter" EQUAL 1*2DIGIT: the first two digits (RFC 5806)
QUILL_API int64_t quill___SkipDiversionCounter(coChar const *chs, int64_t length);
/// diversion-limit = "limit" EQUAL 1*2DIGIT: the first two digits (RFC 5806)
QUILL_API int64_t quill___SkipDiversionLimit(coChar const *chs, int64_t length);
/// warn-code = 3DIGIT. A longer run of digits is no match.
QUILL_API int64_t quill___SkipWarnCode(coChar const *chs, int64_t length);
/// index-val = number *( "." number ); number = "0" / %x31-39 *DIGIT (RFC 7044, 5). Any other number, or a dot without
/// one, is no match.
QUILL_API int64_t quill___SkipHistoryInfoIndex(coChar const *chs, int64_t length);
/// qvalue = ( "0" [ "." 0*3DIGIT ] ) / ( "1" [ "." 0*3( "0" ) ] )
QUILL_API int64_t quill___SkipQvalue(coChar const *chs, int64_t length);
/// 1*DIGIT [ "." *DIGIT ] [ LWS [ delay ] ]; delay = 1*DIGIT [ "." *DIGIT ]
QUILL_API int64_t quill___SkipTimestampValue(coChar const *chs, int64_t length);
/// refresher-param = "refresher" EQUAL ( "uas" / "uac" ): the value, in any letter case (RFC 4028, 4)
QUILL_API int64_t quill___SkipRefresher(coChar const *chs, int64_t length);
/// @}

/// @name Products and warnings
/// @{
/// server-val = product / comment; product = token [ SLASH product-version ]. SLASH without a version behind it is
/// no match.
QUILL_API int64_t quill___SkipServerVal(coChar const *chs, int64_t length);
/// Server = server-val *( LWS server-val ). Blanks without a product behind them are no match, but for those that
/// belong to a comment; these may be the LWS before a product.
QUILL_API int64_t quill___SkipServer(coChar const *chs, int64_t length);
/// User-Agent = server-val *( LWS server-val ), as in Server
QUILL_API int64_t quill___SkipUserAgent(coChar const *chs, int64_t length);
/// warn-agent = hostport / pseudonym
QUILL_API int64_t quill___SkipWarnAgent(coChar const *chs, int64_t length);
/// warning-value = warn-code LWS warn-agent LWS warn-text
QUILL_API int64_t quill___SkipWarningValue(coChar const *chs, int64_t length);
/// @}

/// @name Dates
/// Case-sensitive. @p index, where given, is written on a match only.
/// @{
/// wkday = "Mon" / "Tue" / "Wed" / "Thu" / "Fri" / "Sat" / "Sun", counted from 0
QUILL_API int64_t quill___SkipWkday(coChar const *chs, int64_t length, int64_t *index);
/// month = "Jan" / "Feb" / "Mar" / "Apr" / "May" / "Jun" / "Jul" / "Aug" / "Sep" / "Oct" / "Nov" / "Dec", counted
/// from 1
QUILL_API int64_t quill___SkipMonth(coChar const *chs, int64_t length, int64_t *index);
/// @}

CO_EXTERN_C_END

#endif
