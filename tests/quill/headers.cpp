#include "headers.hpp"

#include <algorithm>

namespace test {

std::vector<Field> const &fields() {
    static std::vector<Field> const all = {
        {"Accept",
         {{{"text/plain"}},
          {{"text/plain, text/*;q=0.5;level=1", "*/*"}, {"text/plain", "text/*;q=0.5;level=1", "*/*"}}},
         {"text", "*/plain", "text/plain,", "text/plain;"}},
        {"Accept-Encoding", {{{"gzip"}}, {{"gzip;q=0.500,*;q=0.1"}, {"gzip;q=0.500", "*;q=0.1"}}}, {"@", "gzip,,x"}},
        {"Accept-Resource-Priority",
         {{{"dsn.flash"}}, {{"dsn.flash,q735.0"}, {"dsn.flash", "q735.0"}}},
         {"dsn", "dsn."}},
        {"Alert-Info",
         {{{"<http://a.example/ring>;x=1"}}, {{"<http://a>", "<http://b>"}}},
         {"http://a", "<>", "<http://a"}},
        {"Allow",
         {{{"INVITE,ACK"}}, {{"INVITE", "INVITE, ACK", "invite"}, {"INVITE,ACK,invite"}}},
         {"INVITE ACK", "@"}},
        {"Allow-Events", {{{"presence"}}, {{"presence, message-summary.x"}, {"presence,message-summary.x"}}}, {"a;b"}},
        {"Call-Id", {{{"a84b4c76e66710@pc33.example"}}, {{"x", "y"}, {"y"}}}, {"", "a b", "a@b@c"}},
        {"Call-Info", {{{"<http://a.example/x.jpg>;purpose=icon"}}}, {"icon"}},
        {"Contact",
         {{{"<sip:a@b.example>;q=0.500;expires=60"}},
          {{"*"}},
          {{"\"A, B\" <sip:a@b>,sip:c@d;q=1"}, {"\"A, B\" <sip:a@b>", "sip:c@d;q=1"}}},
         {"*, <sip:a@b>", "<sip:a@b>, *", "**", "<sip:a@b"}},
        {"Content-Disposition",
         {{{"session"}}, {{"Session; Handling=Optional;x"}, {"session;handling=optional;x"}}},
         {"", ";"}},
        {"Content-Encoding", {{{"gzip"}}, {{"GZIP, tar", "x"}, {"gzip,tar,x"}}}, {"g zip", "gzip;"}},
        {"Cseq",
         {{{"4711 INVITE"}}, {{"1   ACK"}, {"1 ACK"}}},
         {"INVITE", "1INVITE", "1 ", "99999999999999999999 ACK"}},
        {"Date",
         {{{"Mon, 01 Jan 2024 00:00:00 GMT"}}},
         {"Tue, 01 Jan 2024 00:00:00 GMT", "Mon, 01 Jan 2024 00:00:00 UTC"}},
        {"Diversion", {{{"<sip:a@b>;reason=user-busy;counter=2;x=1"}}}, {"a", "<sip:a@b>;;"}},
        {"Error-Info", {{{"<sip:sorry@a.example>"}}}, {"sip:sorry@a.example"}},
        {"Event", {{{"presence;x=\"y\""}}, {{"dialog;ID=7;x=y"}, {"dialog;id=7;x=y"}}}, {";id=1", "a b"}},
        {"Expires", {{{"3600"}}, {{"0007"}, {"7"}}}, {"", "x", "-1", "1 "}},
        {"From",
         {{{"\"Anna Bell\" <sip:anna@a.example>;tag=x1;epid=e;y=\"z\""}}, {{"sip:a@b;Tag=1"}, {"<sip:a@b>;tag=1"}}},
         {"", "anna", "<sip:a@b", "<sip:a@b>;"}},
        {"History-Info",
         {{{"<sip:a@b>;index=1"}},
          {{"<sip:a@b>;index=1,<sip:c@d>;index=1.1;rc=1", "<sip:e@f>"},
           {"<sip:a@b>;index=1", "<sip:c@d>;index=1.1;rc=1", "<sip:e@f>"}}},
         {"index=1"}},
        {"In-Reply-To", {{{"a@b,c"}}, {{"A", "a, A"}, {"A,a"}}}, {"a b"}},
        {"Max-Forwards", {{{"70"}}}, {"", "a", "-1"}},
        {"Min-Expires", {{{"40"}}}, {"", "a"}},
        {"Min-Se", {{{"90;x=y"}}}, {"", ";x", "90;"}},
        {"Organization", {{{"Boxes by Bob"}}}, {}},
        {"P-Asserted-Identity",
         {{{"\"Anna\" <sip:anna@a.example>"}}, {{"<sip:a@b>, <tel:+1>"}, {"<sip:a@b>", "<tel:+1>"}}},
         {"a"}},
        {"P-Called-Party-Id", {{{"<sip:a@b>;x=\"1\""}}, {{"sip:a@b"}, {"<sip:a@b>"}}}, {"a"}},
        {"P-Early-Media", {{{"sendrecv"}}, {{"supported, gated"}, {"supported", "gated"}}}, {"a;b"}},
        {"P-Preferred-Identity", {{{"<sip:a@b>"}}}, {"a"}},
        {"Priority", {{{"emergency"}}, {{"Non-Urgent"}, {"non-urgent"}}}, {"", "a b"}},
        {"Privacy", {{{"header;id"}}, {{"Header; ID", "user"}, {"header;id;user"}}}, {"header,id", "id;", ";id"}},
        {"Proxy-Require", {{{"sec-agree"}}, {{"Foo, foo,BAR"}, {"foo,bar"}}}, {"a b"}},
        {"Rack", {{{"776656 1 INVITE"}}}, {"1 INVITE", "1 1INVITE", "a 1 INVITE"}},
        {"Reason",
         {{{"Q.850;cause=16;text=\"Terminated\""}}, {{"SIP;cause=200,x"}, {"SIP;cause=200", "x"}}},
         {";cause=1"}},
        {"Record-Route",
         {{{"<sip:p1;lr>"}}, {{"<sip:p1;lr>,<sip:p2;lr>;x"}, {"<sip:p1;lr>", "<sip:p2;lr>;x"}}},
         {"sip:p1"}},
        {"Refer-To", {{{"<sip:a@b?Replaces=x>;y=\"z\""}}, {{"sip:a@b"}, {"<sip:a@b>"}}}, {"a", "<sip:a@b>;"}},
        {"Referred-By", {{{"\"R\" <sip:r@b>;cid=\"2UWQFN309shb3@r.example\";x=\"y\""}}}, {"a"}},
        {"Remote-Party-Id", {{{"\"A\" <sip:a@b>;party=\"calling\""}}}, {"a"}},
        {"Replaces",
         {{{"98asjd8@x;from-tag=7;to-tag=8;early-only;x=\"1\""}},
          {{"a;To-Tag=1;from-tag=2"}, {"a;from-tag=2;to-tag=1"}},
          {{"a;early-only=1"}}},
         {"", ";to-tag=1"}},
        {"Reply-To", {{{"<sip:bob@biloxi.example>;x=\"1\""}}}, {"bob"}},
        {"Require", {{{"100rel"}}, {{"100REL,100rel"}, {"100rel"}}}, {"100rel,"}},
        {"Resource-Priority", {{{"wps.3"}}, {{"wps.3, dsn.flash"}, {"wps.3", "dsn.flash"}}}, {"wps"}},
        {"Retry-After",
         {{{"120;duration=3600;x"}}, {{"18000 (in a meeting);duration=1"}, {"18000;duration=1"}}},
         {"x", "1 x"}},
        {"Route", {{{"<sip:p1;lr>;x=1"}}}, {"p1", "<sip:p1;lr>,"}},
        {"Rseq", {{{"988789"}}}, {"", "a"}},
        {"Server", {{{"HomeServer v2"}}, {{"a/1 (x, y) b"}}}, {"a/1 ", ""}},
        {"Service-Route", {{{"<sip:p2.home.example;lr>"}}}, {"p2"}},
        {"Session-Expires", {{{"4000;refresher=uac;x=1"}}, {{"1;Refresher=UAS"}, {"1;refresher=uas"}}}, {"", "1;"}},
        {"Session-Id",
         {{{"ab30317f1a784dc48ff824d0d3715d86;remote=47755a9de7794ba387653f2099600ef2;x=\"1\""}}},
         {"ab30317f", ""}},
        {"Subject", {{{"Need more boxes"}}}, {}},
        {"Subscription-State",
         {{{"terminated;reason=timeout;expires=1;retry-after=2;x=1"}}, {{"Active; Expires=9"}, {"active;expires=9"}}},
         {"", ";reason=x"}},
        {"Supported", {{{"100rel"}}, {{"Timer, 100rel", "timer"}, {"timer,100rel"}}}, {"100rel;x"}},
        {"Timestamp", {{{"54"}}, {{"54.25 0.5"}}}, {"", "a"}},
        {"To", {{{"\"B\" <sip:b@a.example>;tag=287447;epid=1;x=\"\""}}}, {"", "b"}},
        {"Unsupported", {{{"100rel"}}, {{"FOO, bar"}, {"foo,bar"}}}, {","}},
        {"User-Agent", {{{"Softphone Beta1.5"}}}, {"", "a/1 "}},
        {"User-to-User",
         {{{"00C81031323334353637383930;encoding=hex;purpose=isdn-uui;content=isdn-uui;x=1"}},
          {{"56a390f3d2b7310023a;encoding=hex, 00"}, {"56a390f3d2b7310023a;encoding=hex", "00"}}},
         {";x"}},
        {"Via",
         {{{"SIP/2.0/UDP pc33.example:5060;ttl=1;maddr=192.0.2.2;received=192.0.2.1;branch=z9hG4bKx;rport=1;y"}},
          {{"SIP/2.0/TCP a, SIP/2.0/TLS [2001:db8::1]:5061;rport"},
           {"SIP/2.0/TCP a", "SIP/2.0/TLS [2001:db8::1]:5061;rport"}}},
         {"SIP/2.0/UDP", "SIP/2.0 a"}},
        {"Warning",
         {{{"307 isi.example \"Session parameter 'foo' not understood\""}},
          {{"370 a \"x, y\",399 b:5060 \"\\\"z\\\"\""}, {"370 a \"x, y\"", "399 b:5060 \"\\\"z\\\"\""}}},
         {"307 a", "30 a \"x\""}},
    };
    return all;
}

Field const &fieldOf(std::string_view name) {
    for (Field const &field : fields())
        if (field.name == name) return field;
    ADD_FAILURE() << "no samples of " << name;
    std::abort();
}

quillTypedHeader const *typed(std::string_view name) { return quillTypedHeaderOf(str(name)); }

co::Ref<Header> rawHeader(std::string_view name, Lines const &lines) {
    auto header = own(quillMessageHeaderCreate(str(name)));
    for (std::string const &line : lines) quillMessageHeaderAppendLine(header.address(), str(line));
    return header;
}

Lines linesOf(Header const *header) {
    Lines lines;
    for (int64_t i = 0; i < quillMessageHeaderLinesLength(header); i++)
        lines.push_back(taken(quillMessageHeaderLineAt(header, i)));
    return lines;
}

co::Ref<coObj> decode(quillTypedHeader const *type, Lines const &lines) {
    return own(type->tryDecode(rawHeader(type->name, lines).get()));
}

Lines encode(quillTypedHeader const *type, coObj const *hdr) { return linesOf(own(type->encode(hdr)).get()); }

std::string snake(std::string_view camel) {
    std::string words;
    for (char ch : camel) {
        bool const isUpper = ch >= 'A' && ch <= 'Z';
        if (isUpper && !words.empty()) words += '_';
        words += isUpper ? static_cast<char>(ch - 'A' + 'a') : ch;
    }
    return words;
}

std::string upper(std::string text) {
    std::transform(text.begin(), text.end(), text.begin(), [](unsigned char ch) { return std::toupper(ch); });
    return text;
}

} // namespace test
