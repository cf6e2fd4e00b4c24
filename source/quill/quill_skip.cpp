// The scanners of SIP's grammar. Contract: quill_skip.h; what rules are and are made of: quill_skip.hpp.

#define CO_UNIT "source/quill/quill_skip"

#include <co/co_assert.hpp>
#include <co/co_ip.hpp>
#include <co/co_simd.hpp>
#include <loc/loc_skip.h>
#include <loc/loc_skip.hpp>
#include <quill/quill_skip.h>
#include <quill/quill_skip.hpp>

using namespace quill;
using namespace quill::rules;

// A production: its rule under a type of its own, which keeps the types of larger rules short.
#define QUILL_RULE(production, ...)                                                                                    \
    static constexpr auto production = [](Chars text) -> int64_t { return (__VA_ARGS__)(text); };

// A scanner from a rule.
#define QUILL_DEFINE_SKIP(Name, rule)                                                                                  \
    int64_t quill___Skip##Name(coChar const *chs, int64_t length) {                                                    \
        CO_ASSERT_TEXT(chs, length);                                                                                   \
        return matched(rule(co::chars(chs, length)));                                                                  \
    }

// A scanner that is another one by name.
#define QUILL_DEFINE_SKIP_AS(Name, other)                                                                              \
    int64_t quill___Skip##Name(coChar const *chs, int64_t length) { return other(chs, length); }

// Characters

#define QUILL_ASSERT_CHAR(ch) CO_ASSERT(CO_CHAR_OK(ch), "CO_CHAR_OK( " #ch " )")

#define QUILL_ASSERT_SKIPPED(skipChs, skipLength)                                                                      \
    do {                                                                                                               \
        CO_ASSERT((skipLength) >= 0, "skipLength >= 0");                                                               \
        CO_ASSERT((skipChs) || (skipLength) == 0, "skipChs || skipLength == 0");                                       \
    } while (false)

int64_t quill___SkipChar(coChar const *chs, int64_t length, coChar ch) {
    CO_ASSERT_TEXT(chs, length);
    QUILL_ASSERT_CHAR(ch);
    return matched(oneOf(ch)(co::chars(chs, length)));
}

int64_t quill___SkipChars(coChar const *chs, int64_t length, coChar const *skipChs, int64_t skipLength) {
    CO_ASSERT_TEXT(chs, length);
    QUILL_ASSERT_SKIPPED(skipChs, skipLength);
    return matched(exactPrefix(co::chars(chs, length), co::chars(skipChs, skipLength)));
}

int64_t quill___SkipCharsAsciiCaseFold(coChar const *chs, int64_t length, coChar const *skipChs, int64_t skipLength) {
    CO_ASSERT_TEXT(chs, length);
    QUILL_ASSERT_SKIPPED(skipChs, skipLength);
    return matched(foldedPrefix(co::chars(chs, length), co::chars(skipChs, skipLength)));
}

// Blanks and separators

QUILL_DEFINE_SKIP(Sws, sws)
QUILL_DEFINE_SKIP_AS(Lws, quill___SkipSws)

int64_t quill___SkipSwsCharSws(coChar const *chs, int64_t length, coChar ch) {
    CO_ASSERT_TEXT(chs, length);
    QUILL_ASSERT_CHAR(ch);
    return matched(swsCharSws(ch)(co::chars(chs, length)));
}

int64_t quill___SkipSwsChar(coChar const *chs, int64_t length, coChar ch) {
    CO_ASSERT_TEXT(chs, length);
    QUILL_ASSERT_CHAR(ch);
    return matched(swsChar(ch)(co::chars(chs, length)));
}

int64_t quill___SkipCharSws(coChar const *chs, int64_t length, coChar ch) {
    CO_ASSERT_TEXT(chs, length);
    QUILL_ASSERT_CHAR(ch);
    return matched(charSws(ch)(co::chars(chs, length)));
}

QUILL_DEFINE_SKIP(Hcolon, colon)
QUILL_DEFINE_SKIP(Colon, colon)
QUILL_DEFINE_SKIP(Comma, comma)
QUILL_DEFINE_SKIP(Equal, equal)
QUILL_DEFINE_SKIP(Semi, semi)
QUILL_DEFINE_SKIP(Slash, slash)
QUILL_DEFINE_SKIP(Star, star)
QUILL_DEFINE_SKIP(Lparen, lparen)
QUILL_DEFINE_SKIP(Rparen, rparen)
QUILL_DEFINE_SKIP(Laquot, laquot)
QUILL_DEFINE_SKIP(Ldquot, ldquot)
QUILL_DEFINE_SKIP(Raquot, raquot)
QUILL_DEFINE_SKIP(Rdquot, rdquot)

// Runs of one class

QUILL_DEFINE_SKIP(Token, token)

// token-nodot = 1*( alphanum / "-" / "!" / "%" / "*" / "_" / "+" / "`" / "'" / "~" )
QUILL_RULE(tokenNodot, run(isTokenNodot))
QUILL_DEFINE_SKIP(TokenNodot, tokenNodot)

// atom = 1*( alphanum / "-" / "!" / "%" / "*" / "_" / "+" / "`" / "'" / "~" )
QUILL_RULE(atom, run(isAtom))
QUILL_DEFINE_SKIP(Atom, atom)

// word = 1*( token's characters / "(" / ")" / "<" / ">" / ":" / "\" / DQUOTE / "/" / "[" / "]" / "?" / "{" / "}" )
QUILL_RULE(word, runOfMostly<co::HostportChars>(isWord))
QUILL_DEFINE_SKIP(Word, word)

QUILL_DEFINE_SKIP(Digits, digits)

QUILL_DEFINE_SKIP(Branch, longToken)
QUILL_DEFINE_SKIP_AS(ContentCoding, quill___SkipToken)
QUILL_DEFINE_SKIP_AS(DispositionType, quill___SkipToken)
QUILL_DEFINE_SKIP_AS(EmParam, quill___SkipToken)
QUILL_DEFINE_SKIP_AS(EventReasonValue, quill___SkipToken)
QUILL_DEFINE_SKIP_AS(Handling, quill___SkipToken)
QUILL_DEFINE_SKIP_AS(MessageHeaderName, quill___SkipToken)
QUILL_DEFINE_SKIP_AS(Method, quill___SkipToken)
QUILL_DEFINE_SKIP_AS(OptionTag, quill___SkipToken)
QUILL_DEFINE_SKIP_AS(PriorityValue, quill___SkipToken)
QUILL_DEFINE_SKIP_AS(PrivValue, quill___SkipToken)
QUILL_DEFINE_SKIP_AS(ProtocolName, quill___SkipToken)
QUILL_DEFINE_SKIP_AS(ProtocolVersion, quill___SkipToken)
QUILL_DEFINE_SKIP_AS(Pseudonym, quill___SkipToken)
QUILL_DEFINE_SKIP_AS(Purpose, quill___SkipToken)
QUILL_DEFINE_SKIP_AS(ReasonProtocol, quill___SkipToken)
QUILL_DEFINE_SKIP_AS(SubstateValue, quill___SkipToken)
QUILL_DEFINE_SKIP(Tag, longToken)
QUILL_DEFINE_SKIP_AS(Transport, quill___SkipToken)

QUILL_DEFINE_SKIP_AS(DeltaSeconds, quill___SkipDigits)
QUILL_DEFINE_SKIP_AS(ReasonCause, quill___SkipDigits)
QUILL_DEFINE_SKIP_AS(Ttl, quill___SkipDigits)

QUILL_DEFINE_SKIP_AS(ReasonText, quill___SkipQuotedString)
QUILL_DEFINE_SKIP_AS(WarnText, quill___SkipQuotedString)

// Dotted runs

// dot-atom = atom *( "." atom )
QUILL_RULE(dotAtom, sequence(atom, repeated(oneOf(U'.'), atom)))
QUILL_DEFINE_SKIP(DotAtom, dotAtom)

// event-type = token-nodot *( "." token-nodot )
QUILL_RULE(eventType, sequence(tokenNodot, repeated(oneOf(U'.'), tokenNodot)))
QUILL_DEFINE_SKIP(EventType, eventType)

// r-value = token-nodot "." token-nodot
QUILL_RULE(rvalue, sequence(tokenNodot, oneOf(U'.'), tokenNodot))
QUILL_DEFINE_SKIP(Rvalue, rvalue)

// Texts

static constexpr auto isLineEnd = [](coChar ch) { return ch == CO_CHAR_CARRIAGE_RETURN || ch == CO_CHAR_LINE_FEED; };

// quoted-pair = "\" (%x00-09 / %x0B-0C / %x0E-7F), and what is beyond US-ASCII
static constexpr auto quotedPair = [](Chars text) -> int64_t {
    return text.size() >= 2 && text[0] == U'\\' && !isLineEnd(text[1]) ? 2 : noMatch;
};

// quoted-string = SWS DQUOTE *( qdtext / quoted-pair ) DQUOTE
QUILL_RULE(quotedString, sequence(ldquot, repeated(firstOf(qdtexts, quotedPair)), oneOf(U'"')))
QUILL_DEFINE_SKIP(QuotedString, quotedString)

// comment = LPAREN *( ctext / quoted-pair / comment ) RPAREN
static constexpr auto isCtext = [](coChar ch) {
    return isLws(ch) || (ch > U' ' && ch != 127 && ch != U'(' && ch != U')' && ch != U'\\');
};
static constexpr auto comment = [](Chars text) {
    constexpr auto content = firstOf(run(isCtext), quotedPair);
    int64_t at = lparen(text);
    for (int64_t depth = 1; at > 0 && depth > 0;) {
        Chars const rest = from(text, at);
        bool const opens = oneOf(U'(')(rest) > 0;
        bool const closes = oneOf(U')')(rest) > 0;
        int64_t const length = opens ? lparen(rest) : closes ? rparen(rest) : content(rest);
        depth += opens - closes;
        at = length < 0 ? noMatch : at + length;
    }
    return at;
};
QUILL_DEFINE_SKIP(Comment, comment)

// TEXT-UTF8-TRIM = 1*TEXT-UTF8char *( *LWS TEXT-UTF8char )
QUILL_RULE(textUtf8Chars, run([](coChar ch) { return ch > U' ' && ch != 127; }))
QUILL_RULE(textUtf8Trim, sequence(textUtf8Chars, repeated(lws, textUtf8Chars)))
QUILL_DEFINE_SKIP(Organization, textUtf8Trim)
QUILL_DEFINE_SKIP(Subject, textUtf8Trim)

// display-name = quoted-string / *( token LWS )
QUILL_RULE(displayName, firstOf(quotedString, repeated(token, sws)))
QUILL_DEFINE_SKIP(DisplayName, displayName)

// Escaped runs

// user = 1*( unreserved / escaped / user-unreserved )
QUILL_RULE(user, escapedRun(isUnreserved | isUserUnreserved))
QUILL_DEFINE_SKIP(User, user)

// password = *( unreserved / escaped / "&" / "=" / "+" / "$" / "," )
static constexpr auto isPasswordChar = [](coChar ch) {
    return isUnreserved(ch) || ch == U'&' || ch == U'=' || ch == U'+' || ch == U'$' || ch == U',';
};
QUILL_RULE(password, escapedRun(isPasswordChar))
QUILL_DEFINE_SKIP(Password, password)

// pvalue = 1*( param-unreserved / unreserved / escaped )
QUILL_RULE(pvalue, escapedRun([](coChar ch) { return isParamChar(ch) && ch != U'%'; }))
QUILL_DEFINE_SKIP(Pvalue, pvalue)

// uric = reserved / unreserved / escaped
QUILL_RULE(uric, escapedRun(isReserved | isUnreserved))
QUILL_DEFINE_SKIP(Uric, uric)

// Hosts and ports

// domainlabel = alphanum / alphanum *( alphanum / "-" ) alphanum
QUILL_RULE(labelPart, some(escapedRun(isAlphanum)))
QUILL_RULE(domainLabel, sequence(labelPart, repeated(run([](coChar ch) { return ch == U'-'; }), labelPart)))
QUILL_DEFINE_SKIP(DomainLabel, domainLabel)

// hostname = domainlabel *( "." domainlabel ) [ "." ], in one pass: a label begins and ends with an alphanum or an escape,
// so a dot or a hyphen may follow one of them alone, a hyphen another hyphen too. What is left open at the end, hyphens
// but not the dot, doesn't count.
static int64_t hostnameLength(Chars text, bool *isOrdinary) {
    constexpr size_t shortLabel = 63;
    size_t const usual = co::simd::dottedRun<co::AlphanumChars>(text);
    bool const mayGoOn = usual < text.size() && (text[usual] == U'-' || text[usual] == U'%');
    if (usual > 0 && !mayGoOn) { // of letters and digits alone
        if (isOrdinary) *isOrdinary = usual <= shortLabel;
        return static_cast<int64_t>(usual);
    }
    size_t closed = 0; // behind the last label that ends well
    bool hasEscapes = false;
    bool hasTwoHyphens = false;
    for (size_t at = 0;; at++) {
        auto const alphanums = static_cast<size_t>(span(from(text, static_cast<int64_t>(at)), isAlphanum));
        at += alphanums;
        if (alphanums > 0) closed = at;
        if (at == text.size()) break;
        if (text[at] == U'-' && at > 0 && text[at - 1] != U'.') {
            hasTwoHyphens = hasTwoHyphens || text[at - 1] == U'-';
        } else if (text[at] == U'%' && co::beginsWithEscape(from(text, static_cast<int64_t>(at)))) {
            at += 2;
            closed = at + 1;
            hasEscapes = true;
        } else if (text[at] != U'.' || closed != at || at == 0) {
            break;
        }
    }
    if (closed > 0 && closed < text.size() && text[closed] == U'.') closed++;
    if (isOrdinary) *isOrdinary = closed <= shortLabel && !hasEscapes && !hasTwoHyphens;
    return nonEmpty(static_cast<int64_t>(closed));
}

static constexpr auto hostname = [](Chars text) { return hostnameLength(text, nullptr); };
QUILL_DEFINE_SKIP(Hostname, hostname)

static constexpr auto ipV4Address = [](Chars text) { return nonEmpty(co::ipv4Length(text)); };
QUILL_DEFINE_SKIP_AS(IpV4Address, loc___SkipIpV4Address)

static constexpr auto ipV6Address = [](Chars text) { return nonEmpty(co::ipv6Length(text)); };
QUILL_DEFINE_SKIP_AS(IpV6Address, loc___SkipIpV6Address)

QUILL_RULE(port, digits)
QUILL_DEFINE_SKIP_AS(Port, loc___SkipPort)

// IPv6reference = "[" IPv6address "]"
QUILL_RULE(ipV6Reference, sequence(oneOf(U'['), ipV6Address, oneOf(U']')))
QUILL_DEFINE_SKIP(IpV6Reference, ipV6Reference)

// host = hostname / IPv4address / IPv6reference, the longest of them. What is an IPv4address is a hostname as well, and an
// IPv6reference begins like no other.
int64_t quill::hostLength(Chars text, bool *isOrdinary) {
    if (isOrdinary) *isOrdinary = false;
    return text.starts_with(U'[') ? ipV6Reference(text) : hostnameLength(text, isOrdinary);
}

static constexpr auto host = [](Chars text) { return hostLength(text); };
QUILL_DEFINE_SKIP(Host, host)

// hostport = host [ ":" port ]
QUILL_RULE(hostPort, sequence(host, optional(oneOf(U':'), port)))
QUILL_DEFINE_SKIP(HostPort, hostPort)

// Parameters

// generic-param = token [ EQUAL ( token / host / quoted-string ) ]
QUILL_RULE(genericParam, sequence(token, given(equal, firstOf(token, host, quotedString))))
QUILL_DEFINE_SKIP(GenericParam, genericParam)

// *( SEMI generic-param )
QUILL_RULE(genericParams, repeated(semi, genericParam))
QUILL_DEFINE_SKIP(GenericParams, genericParams)

// via-received = "received" EQUAL ( IPv6address / IPv4address )
QUILL_RULE(viaReceived, sequence(name(U"received"), equal, firstOf(ipV4Address, ipV6Address)))
QUILL_DEFINE_SKIP(ViaReceived, viaReceived)

// via-params = via-received / generic-param
QUILL_RULE(viaParams, firstOf(viaReceived, genericParam))
QUILL_DEFINE_SKIP(ViaParams, viaParams)

// URIs and addresses

static constexpr auto uri = [](Chars text) { return nonEmpty(loc::iriLength(text)); };
QUILL_DEFINE_SKIP_AS(Uri, loc___SkipIri)

// addr-spec, before the first ";"
static constexpr auto addrSpec = [](Chars text) { return nonEmpty(loc::iriLength(text, U';')); };
QUILL_DEFINE_SKIP(AddrSpec, addrSpec)

// name-addr = [ display-name ] LAQUOT addr-spec RAQUOT
QUILL_RULE(nameAddr, sequence(optional(displayName), laquot, uri, raquot))
QUILL_DEFINE_SKIP(NameAddr, nameAddr)

// contact-param = ( name-addr / addr-spec ) *( SEMI generic-param )
QUILL_RULE(contact, sequence(firstOf(nameAddr, addrSpec), genericParams))
QUILL_DEFINE_SKIP(Contact, contact)

// route-param, diversion-params, hi-entry = name-addr *( SEMI generic-param )
QUILL_RULE(route, sequence(nameAddr, genericParams))
QUILL_DEFINE_SKIP(Route, route)
QUILL_DEFINE_SKIP(Diversion, route)
QUILL_DEFINE_SKIP(HistoryInfo, route)

// PAssertedID-value = name-addr / addr-spec
QUILL_RULE(identityValue, firstOf(nameAddr, addrSpec))
QUILL_DEFINE_SKIP(IdentityValue, identityValue)

// alert-param, info, error-uri = LAQUOT absoluteURI RAQUOT *( SEMI generic-param )
QUILL_RULE(bracketedUri, sequence(laquot, uri, raquot, genericParams))
QUILL_DEFINE_SKIP(AlertInfo, bracketedUri)
QUILL_DEFINE_SKIP(CallInfo, bracketedUri)
QUILL_DEFINE_SKIP(ErrorInfo, bracketedUri)

// "<" instance-val ">"; instance-val = 1*uric
QUILL_RULE(sipInstance, sequence(oneOf(U'<'), some(uric), oneOf(U'>')))
QUILL_DEFINE_SKIP(SipInstance, sipInstance)

// Via and version

QUILL_DEFINE_SKIP(Version, version)

// via-parm = sent-protocol LWS sent-by *( SEMI via-params )
// sent-protocol = protocol-name SLASH protocol-version SLASH transport
// sent-by = host [ COLON port ]
QUILL_RULE(sentProtocol, sequence(version, slash, token))
QUILL_RULE(sentBy, sequence(host, given(colon, port)))
QUILL_RULE(via, sequence(sentProtocol, lws, sentBy, repeated(semi, viaParams)))
QUILL_DEFINE_SKIP(Via, via)

// Media and content

// m-type, m-subtype = token, but not "*"
static constexpr auto mediaName = [](Chars text) {
    int64_t const length = token(text);
    return length == 1 && text[0] == U'*' ? noMatch : length;
};
QUILL_DEFINE_SKIP(MediaType, mediaName)
QUILL_DEFINE_SKIP(MediaSubtype, mediaName)

// media-range = "*" SLASH "*" / m-type SLASH ( "*" / m-subtype ). What begins with "*" is no named type here.
QUILL_RULE(asterisk, oneOf(U'*'))
static constexpr auto notAsterisk = [](Chars text) -> int64_t { return asterisk(text) > 0 ? noMatch : 0; };
QUILL_RULE(mediaRange, firstOf(sequence(asterisk, slash, asterisk),
                               sequence(notAsterisk, mediaName, slash, firstOf(asterisk, mediaName))))

// accept-range = media-range *( SEMI generic-param ), the parameters alone being counted
static constexpr auto accept = [](Chars text) {
    int64_t const range = mediaRange(text);
    return range < 0 ? noMatch : genericParams(from(text, range));
};
QUILL_DEFINE_SKIP(Accept, accept)

// encoding = ( content-coding / "*" ) *( SEMI generic-param ); the asterisk is a token, too
QUILL_RULE(tokenWithParams, sequence(token, genericParams))
QUILL_DEFINE_SKIP(AcceptEncoding, tokenWithParams)

// reason-value = protocol *( SEMI generic-param )
QUILL_DEFINE_SKIP(Reason, tokenWithParams)

// diversion-privacy, diversion-reason, diversion-screen: token / quoted-string
QUILL_RULE(tokenOrQuoted, firstOf(token, quotedString))
QUILL_DEFINE_SKIP(DiversionPrivacy, tokenOrQuoted)
QUILL_DEFINE_SKIP(DiversionReason, tokenOrQuoted)
QUILL_DEFINE_SKIP(DiversionScreen, tokenOrQuoted)

// uui-value = ( token / quoted-string ) *( SEMI generic-param )
QUILL_RULE(uuiValue, sequence(tokenOrQuoted, genericParams))
QUILL_DEFINE_SKIP(UuiValue, uuiValue)

// Identifiers and numbers

// callid = word [ "@" word ]
QUILL_RULE(callId, sequence(word, given(oneOf(U'@'), word)))
QUILL_DEFINE_SKIP(CallId, callId)

// sip-clean-msg-id = dot-atom "@" ( dot-atom / host )
QUILL_RULE(sipCleanMsgId, sequence(dotAtom, oneOf(U'@'), longestOf(dotAtom, host)))
QUILL_DEFINE_SKIP(SipCleanMsgId, sipCleanMsgId)

// 1*16( token's characters )
QUILL_RULE(epid, within(16, token))
QUILL_DEFINE_SKIP(Epid, epid)

// sess-uuid = 32( DIGIT / %x61-7A )
QUILL_RULE(sessUuid, exactly(32, within(32, run([](coChar ch) { return isDigit(ch) || (ch >= U'a' && ch <= U'z'); }))))
QUILL_DEFINE_SKIP(SessUuid, sessUuid)

// 1*2DIGIT
QUILL_RULE(twoDigits, within(2, digits))
QUILL_DEFINE_SKIP(DiversionCounter, twoDigits)
QUILL_DEFINE_SKIP(DiversionLimit, twoDigits)

// warn-code = 3DIGIT, and no digit behind them
QUILL_RULE(warnCode, exactly(3, digits))
QUILL_DEFINE_SKIP(WarnCode, warnCode)

// index-val = number *( "." number ); number = "0" / %x31-39 *DIGIT
static constexpr auto indexNumber = [](Chars text) {
    int64_t const length = digits(text);
    return length > 1 && text[0] == U'0' ? noMatch : length;
};
QUILL_RULE(historyInfoIndex, sequence(indexNumber, repeatedGiven(oneOf(U'.'), indexNumber)))
QUILL_DEFINE_SKIP(HistoryInfoIndex, historyInfoIndex)

// qvalue = ( "0" [ "." 0*3DIGIT ] ) / ( "1" [ "." 0*3( "0" ) ] )
QUILL_RULE(zeros, run([](coChar ch) { return ch == U'0'; }))
QUILL_RULE(qvalue, firstOf(sequence(oneOf(U'0'), optional(oneOf(U'.'), optional(within(3, digits)))),
                           sequence(oneOf(U'1'), optional(oneOf(U'.'), optional(within(3, zeros))))))
QUILL_DEFINE_SKIP(Qvalue, qvalue)

// 1*DIGIT [ "." *DIGIT ] [ LWS [ delay ] ]; delay = 1*DIGIT [ "." *DIGIT ]
QUILL_RULE(decimal, sequence(digits, optional(oneOf(U'.'), optional(digits))))
QUILL_RULE(timestampValue, sequence(decimal, optional(lws, optional(decimal))))
QUILL_DEFINE_SKIP(TimestampValue, timestampValue)

// "uas" / "uac"
QUILL_RULE(refresher, firstOf(name(U"uas"), name(U"uac")))
QUILL_DEFINE_SKIP(Refresher, refresher)

// Products and warnings

// server-val = product / comment; product = token [ SLASH product-version ]
QUILL_RULE(serverVal, firstOf(sequence(token, given(slash, token)), comment))
QUILL_DEFINE_SKIP(ServerVal, serverVal)

// Server, User-Agent = server-val *( LWS server-val ). A comment takes the blanks behind it, which then are the LWS.
static constexpr auto server = [](Chars text) {
    int64_t at = serverVal(text);
    while (at > 0) {
        bool const endsInBlank = isLws(text[static_cast<size_t>(at) - 1]);
        int64_t const blanks = sws(from(text, at));
        if (blanks == 0 && !endsInBlank) break;
        int64_t const length = serverVal(from(text, at + blanks));
        if (length < 0) return blanks == 0 ? at : noMatch;
        at += blanks + length;
    }
    return at;
};
QUILL_DEFINE_SKIP(Server, server)
QUILL_DEFINE_SKIP(UserAgent, server)

// warn-agent = hostport / pseudonym
QUILL_RULE(warnAgent, firstOf(hostPort, token))
QUILL_DEFINE_SKIP(WarnAgent, warnAgent)

// warning-value = warn-code LWS warn-agent LWS warn-text
QUILL_RULE(warningValue, sequence(warnCode, lws, warnAgent, lws, quotedString))
QUILL_DEFINE_SKIP(WarningValue, warningValue)

// Dates

// Which of the names the text begins with, -1 for none.
static int64_t indexOfName(Chars text, Chars const *names, int64_t count) {
    for (int64_t i = 0; i < count; i++) {
        if (exactPrefix(text, names[i]) > 0) return i;
    }
    return -1;
}

int64_t quill___SkipWkday(coChar const *chs, int64_t length, int64_t *index) {
    static constexpr Chars names[] = {U"Mon", U"Tue", U"Wed", U"Thu", U"Fri", U"Sat", U"Sun"};
    CO_ASSERT_TEXT(chs, length);
    int64_t const found = indexOfName(co::chars(chs, length), names, 7);
    if (found < 0) return 0;
    if (index) *index = found;
    return 3;
}

int64_t quill___SkipMonth(coChar const *chs, int64_t length, int64_t *index) {
    static constexpr Chars names[] = {U"Jan", U"Feb", U"Mar", U"Apr", U"May", U"Jun",
                                      U"Jul", U"Aug", U"Sep", U"Oct", U"Nov", U"Dec"};
    CO_ASSERT_TEXT(chs, length);
    int64_t const found = indexOfName(co::chars(chs, length), names, 12);
    if (found < 0) return 0;
    if (index) *index = found + 1;
    return 3;
}
