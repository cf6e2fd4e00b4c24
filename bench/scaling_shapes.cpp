#include "objects.hpp"
#include "scaling.hpp"

#include <algorithm>

using namespace bench;
using scaling::Rule;
using scaling::Shape;
using scaling::Work;

namespace {

// Texts

template <class Piece> std::string joined(int64_t n, Piece const &piece) {
    std::string all;
    for (int64_t i = 0; i < n; i++) all += piece(i);
    return all;
}

std::string number(int64_t i) { return std::to_string(i); }

std::string repeated(int64_t n, std::string_view piece) {
    return joined(n, [&](int64_t) { return piece; });
}

std::string request(std::string const &lines, std::string const &iri = "sip:bjorn@fjord.example.com") {
    return "INVITE " + iri +
           " SIP/2.0\r\nVia: SIP/2.0/UDP ws7.hamn.example.org;branch=z9hG4bK776\r\nMax-Forwards: 70\r\n"
           "From: <sip:astrid@hamn.example.org>;tag=1928301774\r\nTo: <sip:bjorn@fjord.example.com>\r\n"
           "Call-ID: a84b4c76e66710@ws7\r\nCSeq: 314159 INVITE\r\n" +
           lines + "Content-Length: 0\r\n\r\n";
}

// The i-th of 65,536 names that a hash without a secret does not tell apart: each is 16 times one or the other of two
// texts with the same hash.
template <char const *zero, char const *one> std::string colliding(int64_t i) {
    std::string name;
    for (int bit = 0; bit < 16; bit++) name += (i >> bit & 1) ? one : zero;
    return name;
}
constexpr char sumA[] = "ab", sumB[] = "ba";         // the sum of the characters
constexpr char times31A[] = "an", times31B[] = "c0"; // 97 * 31 + 110 == 99 * 31 + 48
constexpr char times33A[] = "az", times33B[] = "c8"; // 97 * 33 + 122 == 99 * 33 + 56

using Name = std::string (*)(int64_t i);
struct Names {
    char const *suffix;
    Name name;
} constexpr manyNames[] = {
    {"", [](int64_t i) { return "x-" + number(i); }},
    {" of one sum", colliding<sumA, sumB>},
    {" of one hash by 31", colliding<times31A, times31B>},
    {" of one hash by 33", colliding<times33A, times33B>},
};

std::vector<std::string> textsOf(Names const &names, int64_t n) {
    std::vector<std::string> texts;
    for (int64_t i = 0; i < n; i++) texts.push_back(names.name(i));
    return texts;
}

// Works on a message

Work decodeOf(std::string const &bytes) {
    return [buffer = std::shared_ptr<coBuffer>(bufferOf(bytes))] { decoded(buffer.get()); };
}

// Decodes, does something to the message, encodes.
template <class Use> Work useOf(std::string const &bytes, Use const &use) {
    return [buffer = std::shared_ptr<coBuffer>(bufferOf(bytes)), use] {
        quillMessage *message = decoded(buffer.get()).release();
        use(&message);
        encodedLength(message);
        quillMessageRelease(message);
    };
}

// Reads a header as what its type makes of it, and writes that.
void rewrite(quillTypedHeader const *type, quillMessage **message) {
    auto const header = held(given(type->tryDecodeFromMessage(*message), type->name), coObjRelease);
    type->encodeToMessage(header.get(), message);
}

template <class H, class Element> struct List {
    H *(*decode)(quillMessage const *);
    void (*release)(H *);
    int64_t (*length)(H const *);
    Element *(*at)(H const *, int64_t);
    void (*releaseElement)(Element *);

    Held<H> of(quillMessage const *message) const { return held(given(decode(message), "a header"), release); }
    void read(H const *header, int64_t index) const { held(given(at(header, index), "an element"), releaseElement); }
    void readAll(H const *header) const {
        for (int64_t i = 0; i < length(header); i++) read(header, i);
    }
};

constexpr List<quillHeaderVia, quillVia> vias{quillHeaderViaTryDecodeFromMessage, quillHeaderViaRelease,
                                              quillHeaderViaViasLength, quillHeaderViaTryDecodeViaAt, quillViaRelease};
constexpr List<quillHeaderRoute, quillRoute> routes{quillHeaderRouteTryDecodeFromMessage, quillHeaderRouteRelease,
                                                    quillHeaderRouteRoutesLength, quillHeaderRouteTryDecodeRouteAt,
                                                    quillRouteRelease};
constexpr List<quillHeaderContact, quillContact> contacts{quillHeaderContactTryDecodeFromMessage,
                                                          quillHeaderContactRelease, quillHeaderContactContactsLength,
                                                          quillHeaderContactTryDecodeContactAt, quillContactRelease};
constexpr List<quillHeaderAllow, coString> methods{quillHeaderAllowTryDecodeFromMessage, quillHeaderAllowRelease,
                                                   quillHeaderAllowMethodsLength, quillHeaderAllowMethodAt,
                                                   coStringRelease};
constexpr List<quillGenericParams, quillGenericParam> params{
    nullptr, quillGenericParamsRelease, quillGenericParamsLength, quillGenericParamsParamAt, quillGenericParamRelease};
constexpr List<struct quillMessageHeader, coString> lines{
    nullptr, quillMessageHeaderRelease, quillMessageHeaderLinesLength, quillMessageHeaderLineAt, coStringRelease};

// Texts of messages

std::string via(int64_t i) { return "SIP/2.0/UDP h" + number(i) + ".example.org;branch=z9hG4bK" + number(i); }
std::string param(int64_t i) { return ";p" + number(i) + "=v" + number(i); }

std::string viaLines(int64_t n) {
    return joined(n, [](int64_t i) { return "Via: " + via(i) + "\r\n"; });
}
std::string viaElements(int64_t n) {
    return "Via: " + via(0) + joined(n - 1, [](int64_t i) { return "," + via(i + 1); }) + "\r\n";
}
std::string routeLines(int64_t n) {
    return joined(n, [](int64_t i) { return "Route: <sip:h" + number(i) + ".example.org;lr>\r\n"; });
}
std::string allowTokens(int64_t n) {
    return "Allow: A" + joined(n - 1, [](int64_t i) { return ", A" + number(i); }) + "\r\n";
}
std::string escapesInParameter(int64_t n) { return "Contact: <sip:a@b.example>;x=\"" + repeated(n, "\\a") + "\"\r\n"; }
std::string contactParams(int64_t n) { return "Contact: <sip:astrid@ws7.example.org>" + joined(n, param) + "\r\n"; }

// A shape of the lines of one typed header.
struct Typed {
    char const *name;
    char const *header;
    std::string (*lines)(int64_t n);
    bool limited = true; // not where elements are long
} constexpr typedShapes[] = {
    {"Via lines", "Via", viaLines},
    {"Via elements of one line", "Via", viaElements},
    {"Route lines", "Route", routeLines},
    {"parameters of one Contact", "Contact", contactParams},
    {"parameters of one From", "From",
     [](int64_t n) { return "From: <sip:astrid@hamn.example.org>" + joined(n, param) + "\r\n"; }},
    {"folds of one Subject", "Subject", [](int64_t n) { return "Subject: a" + repeated(n, "\r\n b") + "\r\n"; }},
    {"escapes in a display name", "From",
     [](int64_t n) { return "From: \"" + repeated(n, "\\a") + "\" <sip:a@b.example>;tag=1\r\n"; }},
    {"escapes in a parameter", "Contact", escapesInParameter},
    {"nested comments of Server", "Server",
     [](int64_t n) { return "Server: a " + repeated(n, "(") + repeated(n, ")") + "\r\n"; }},
    {"nested comments of User-Agent", "User-Agent",
     [](int64_t n) { return "User-Agent: a " + repeated(n, "(a") + repeated(n, ")") + "\r\n"; }},
    {"nested comments of Retry-After", "Retry-After",
     [](int64_t n) { return "Retry-After: 60 " + repeated(n, "(") + repeated(n, ")") + "\r\n"; }},
    {"tokens of Allow", "Allow", allowTokens},
    {"tokens of Allow of one hash by 31", "Allow",
     [](int64_t n) {
         return "Allow: A" + joined(n - 1, [](int64_t i) { return "," + colliding<times31A, times31B>(i); }) + "\r\n";
     },
     false},
    {"tokens of Supported", "Supported",
     [](int64_t n) { return "Supported: a" + joined(n - 1, [](int64_t i) { return ",a" + number(i); }) + "\r\n"; }},
};

using Shapes = std::vector<Shape>;

void addTyped(Shapes &all) {
    for (Typed const &row : typedShapes) {
        all.push_back(
            {row.name, "decode", Rule::linear, true, [row](int64_t n) { return decodeOf(request(row.lines(n))); }});
        all.push_back({row.name, "decode, type, encode", Rule::linear, row.limited, [row](int64_t n) {
                           auto const *type = quillTypedHeaderOf(stringOf(row.header).get());
                           return useOf(request(row.lines(n)), [type](quillMessage **msg) { rewrite(type, msg); });
                       }});
    }
}

void addUntyped(Shapes &all) {
    auto const lineOfOneName = [](int64_t i) { return "X-Line: value " + number(i) + "\r\n"; };
    all.push_back({"lines of one name", "decode", Rule::linear, true,
                   [=](int64_t n) { return decodeOf(request(joined(n, lineOfOneName))); }});
    all.push_back({"lines of one name", "decode, read, encode", Rule::linear, true, [=](int64_t n) {
                       return useOf(request(joined(n, lineOfOneName)), [](quillMessage **msg) {
                           auto const header = held(quillMessageHeaderCstr(*msg, "x-line", -1), lines.release);
                           lines.readAll(header.get());
                       });
                   }});
    for (Names const &names : manyNames) {
        auto const line = [names](int64_t i) { return names.name(i) + ": a\r\n"; };
        bool const plain = !*names.suffix; // the others are long
        all.push_back({std::string("names") + names.suffix, "decode", Rule::linear, plain,
                       [=](int64_t n) { return decodeOf(request(joined(n, line))); }});
        all.push_back(
            {std::string("names") + names.suffix, "decode, find, encode", Rule::linear, plain, [=](int64_t n) {
                 return useOf(request(joined(n, line)), [texts = textsOf(names, n)](quillMessage **msg) {
                     for (std::string const &name : texts)
                         if (!quillMessageHasHeaderCstr(*msg, name.c_str(), -1)) given<int>(nullptr, "a name");
                 });
             }});
    }
    auto const iri = [](int64_t n) { return request("", "sip:bjorn@fjord.example.com" + joined(n, param)); };
    all.push_back(
        {"parameters of the request IRI", "decode", Rule::linear, true, [=](int64_t n) { return decodeOf(iri(n)); }});
    all.push_back({"parameters of the request IRI", "decode, encode", Rule::linear, true,
                   [=](int64_t n) { return useOf(iri(n), [](quillMessage **) {}); }});
}

// The header and its elements as values: an object and its strings for each. A header of a short line has read its first
// element already, so both together are what reading costs.
void addElements(Shapes &all) {
    auto const add = [&all](char const *name, std::string (*text)(int64_t), auto const &list) {
        all.push_back({name, "as values", Rule::linear, false, [text, &list](int64_t n) {
                           auto const message = std::shared_ptr(decoded(bufferOf(request(text(n))).get()));
                           return [message, &list] { list.readAll(list.of(message.get()).get()); };
                       }});
    };
    add("Via elements of one line", viaElements, vias);
    add("Route lines", routeLines, routes);
    add("escapes in a parameter", escapesInParameter, contacts);
    all.push_back({"parameters of one Contact", "the value and its parameters", Rule::linear, false, [](int64_t n) {
                       auto const message = decoded(bufferOf(request(contactParams(n))).get());
                       auto const header = std::shared_ptr(contacts.of(message.get()));
                       return [header] {
                           auto const contact = held(contacts.at(header.get(), 0), quillContactRelease);
                           auto const read = held(quillContactGenericParams(contact.get()), quillGenericParamsRelease);
                           params.readAll(read.get());
                       };
                   }});
}

// Changes through the interface

std::shared_ptr<quillMessage> messageOfNames(int64_t n) {
    auto const line = [](int64_t i) { return "X-" + number(i) + ": a\r\n"; };
    return decoded(bufferOf(request(joined(n, line))).get());
}

void addDeletions(Shapes &all) {
    auto const deletions = [&all](char const *work, bool shared, bool backwards) {
        all.push_back({"header deletions", work, Rule::linear, shared, [=](int64_t n) {
                           std::vector<std::string> names;
                           for (int64_t i = 0; i < n; i++) names.push_back("X-" + number(i));
                           if (backwards) std::reverse(names.begin(), names.end());
                           auto const delAll = [names](quillMessage **msg) {
                               for (std::string const &name : names) quillMessageDelHeaderCstr(msg, name.c_str(), -1);
                           };
                           auto const message = messageOfNames(n);
                           if (!shared) {
                               auto const bytes = held(quillMessageEncode(message.get()), coBufferRelease);
                               return useOf({reinterpret_cast<char const *>(coBufferBacking(bytes.get())),
                                             static_cast<size_t>(coBufferLength(bytes.get()))},
                                            delAll);
                           }
                           return Work([=] {
                               quillMessageRetain(message.get());
                               quillMessage *mine = message.get();
                               delAll(&mine);
                               quillMessageRelease(mine);
                           });
                       }});
    };
    deletions("decode, delete, encode", false, false);
    deletions("decode, delete from the end, encode", false, true);
    deletions("from a shared message", true, false);
    deletions("from the end of a shared message", true, true);
}

void addHeadersSet(Shapes &all) {
    all.push_back({"headers set", "one by one", Rule::linear, false, [](int64_t n) {
                       auto const headers =
                           std::shared_ptr(held(quillMessageHeadersVector(messageOfNames(n).get()), coVectorRelease));
                       return [headers] {
                           auto const empty = decoded(bufferOf(request("")).get());
                           quillMessage *message = quillMessageCreateFrom(empty.get());
                           for (int64_t i = 0; i < coVectorLength(headers.get()); i++) {
                               auto const header = held(coVectorObjAt(headers.get(), i), coObjRelease);
                               quillMessageSetHeader(&message, quillMessageHeaderFrom(header.get()));
                           }
                           quillMessageRelease(message);
                       };
                   }});
    all.push_back({"lines of one name", "appended", Rule::linear, true, [](int64_t n) {
                       auto const line = std::shared_ptr(stringOf("a line"));
                       return [n, line] {
                           struct quillMessageHeader *header = quillMessageHeaderCreateCstr("X-Line", -1);
                           for (int64_t i = 0; i < n; i++) quillMessageHeaderAppendLine(&header, line.get());
                           quillMessageHeaderRelease(header);
                       };
                   }});
}

quillGenericParams *paramsOf(std::vector<std::string> const &names) {
    quillGenericParams *all = quillGenericParamsCreate();
    for (std::string const &name : names)
        quillGenericParamsSetParamValueCstr(&all, name.c_str(), -1, QUILL_GENERIC_PARAM_VALUE_TYPE_TOKEN, "a", -1);
    return all;
}

void addParams(Shapes &all) {
    for (Names const &names : manyNames) {
        std::string const name = std::string("parameters") + names.suffix;
        bool const plain = !*names.suffix;
        all.push_back({name, "set one by one", Rule::linear, plain, [=](int64_t n) {
                           return [texts = textsOf(names, n)] { quillGenericParamsRelease(paramsOf(texts)); };
                       }});
        all.push_back({name, "200 of them found by name", Rule::constant, false, [=](int64_t n) {
                           auto const texts = textsOf(names, n);
                           auto const found = std::shared_ptr(held(paramsOf(texts), quillGenericParamsRelease));
                           std::vector<std::shared_ptr<coString>> keys;
                           for (int64_t i = 0; i < 200; i++)
                               keys.emplace_back(stringOf(texts[static_cast<size_t>(i * n / 200)]));
                           return [=] {
                               for (auto const &key : keys)
                                   if (!quillGenericParamsHasParam(found.get(), key.get()))
                                       given<int>(nullptr, "a name");
                           };
                       }});
        all.push_back({name, "deleted from a shared set", Rule::linear, plain, [=](int64_t n) {
                           return [texts = textsOf(names, n),
                                   shared =
                                       std::shared_ptr(held(paramsOf(textsOf(names, n)), quillGenericParamsRelease))] {
                               quillGenericParamsRetain(shared.get());
                               quillGenericParams *mine = shared.get();
                               for (std::string const &text : texts)
                                   quillGenericParamsDelParamCstr(&mine, text.c_str(), -1);
                               quillGenericParamsRelease(mine);
                           };
                       }});
    }
}

void addLists(Shapes &all) {
    auto const build = [&all](char const *work, void (*put)(quillHeaderVia **, quillVia const *)) {
        all.push_back({"Via elements", work, Rule::linear, false, [put](int64_t n) {
                           auto const header = vias.of(decoded(bufferOf(request("")).get()).get());
                           auto const element = std::shared_ptr(held(vias.at(header.get(), 0), quillViaRelease));
                           return [=] {
                               quillHeaderVia *mine = quillHeaderViaCreate();
                               for (int64_t i = 0; i < n; i++) put(&mine, element.get());
                               quillHeaderViaRelease(mine);
                           };
                       }});
    };
    build("appended", quillHeaderViaAppendVia);
    build("prepended", quillHeaderViaPrependVia);
    all.push_back({"Via elements", "deleted from the front", Rule::linear, true, [](int64_t n) {
                       auto const header =
                           std::shared_ptr(vias.of(decoded(bufferOf(request(viaLines(n))).get()).get()));
                       return [header] {
                           quillHeaderViaRetain(header.get());
                           quillHeaderVia *mine = header.get();
                           while (quillHeaderViaViasLength(mine) > 0) quillHeaderViaDelViaAt(&mine, 0);
                           quillHeaderViaRelease(mine);
                       };
                   }});
    all.push_back({"tokens of Allow", "set and deleted one by one", Rule::linear, false, [](int64_t n) {
                       std::vector<std::shared_ptr<coString>> tokens;
                       for (int64_t i = 0; i < n; i++) tokens.emplace_back(stringOf("A" + number(i)));
                       return [tokens] {
                           quillHeaderAllow *mine = quillHeaderAllowCreate();
                           for (auto const &token : tokens) quillHeaderAllowSetMethod(&mine, token.get());
                           for (auto const &token : tokens) quillHeaderAllowDelMethod(&mine, token.get());
                           quillHeaderAllowRelease(mine);
                       };
                   }});
}

// The first, the middle and the last element of a list, which is as dear in a long list as in a short one.
void addPositions(Shapes &all) {
    auto const add = [&all](char const *name, auto const &list, auto const &make) {
        all.push_back({name, "one of them by its position", Rule::constant, false, [make, &list](int64_t n) {
                           auto const header = std::shared_ptr(make(n));
                           int64_t const length = list.length(header.get());
                           if (length < n) given<int>(nullptr, "an element");
                           return [=, &list] {
                               for (int64_t index : {int64_t{0}, length / 2, length - 1})
                                   list.read(header.get(), index);
                           };
                       }});
    };
    auto const ofLines = [](auto const &list, std::string (*text)(int64_t)) {
        return [&list, text](int64_t n) { return list.of(decoded(bufferOf(request(text(n))).get()).get()); };
    };
    add("Via lines", vias, ofLines(vias, viaLines));
    add("Via elements of one line", vias, ofLines(vias, viaElements));
    add("tokens of Allow", methods, ofLines(methods, allowTokens));
    add("parameters", params,
        [](int64_t n) { return held(paramsOf(textsOf(manyNames[0], n)), quillGenericParamsRelease); });
    add("lines of one name", lines, [](int64_t n) {
        auto const message = decoded(bufferOf(request(viaLines(n))).get());
        return held(quillMessageHeaderCstr(message.get(), "Via", -1), lines.release);
    });
}

// Streams

void addStreams(Shapes &all) {
    auto const add = [&all](char const *name, char const *work, Rule rule, int64_t pieceLength, auto const &text,
                            auto const &messages) {
        all.push_back({name, work, rule, false, [=](int64_t n) {
                           return [=, bytes = std::shared_ptr(bufferOf(text(n)))] {
                               auto const decoder =
                                   held(quillMessageStreamDecoderCreate(), quillMessageStreamDecoderRelease);
                               if (decodeStream(decoder.get(), bytes.get(), pieceLength) != messages(n))
                                   given<int>(nullptr, "a message of the stream");
                           };
                       }});
    };
    auto const many = [](int64_t n) { return repeated(n, request("Subject: a\r\n")); };
    auto const longOne = [](int64_t n) { return request(repeated(n, "X-Line: a\r\n")); };
    add("messages of a stream", "in one write", Rule::even, INT64_MAX / 2, many, [](int64_t n) { return n; });
    add("lines of a stream's message", "in one write", Rule::linear, INT64_MAX / 2, longOne, [](int64_t) { return 1; });
    add("lines of a stream's message", "64 bytes a write", Rule::linear, 64, longOne, [](int64_t) { return 1; });
    add("lines of a stream's message", "one byte a write", Rule::linear, 1, longOne, [](int64_t) { return 1; });
}

} // namespace

Shapes scaling::allShapes() {
    Shapes all;
    addUntyped(all);
    addTyped(all);
    addElements(all);
    addDeletions(all);
    addHeadersSet(all);
    addParams(all);
    addLists(all);
    addPositions(all);
    addStreams(all);
    return all;
}

Shapes scaling::badShapes() {
    auto const spend = [](int64_t units) { // time, without a heap
        for (int64_t i = 0; i < units; i++) __asm__ volatile("" ::: "memory");
    };
    auto const hold = [](int64_t bytes) { coMemFree(coMemAllocN(bytes, 1)); };
    return {
        {"quadratic", "time", Rule::linear, false, [=](int64_t n) { return [=] { spend(n * n); }; }},
        {"quadratic", "memory", Rule::linear, false, [=](int64_t n) { return [=] { hold(n * n / 10); }; }},
        {"linear", "at a position", Rule::constant, false, [=](int64_t n) { return [=] { spend(n * 1000); }; }},
        {"quadratic", "messages", Rule::even, false, [=](int64_t n) { return [=] { spend(n * n); }; }},
        {"linear", "slow", Rule::linear, true, [=](int64_t n) { return [=] { spend(n * 50000); }; }},
    };
}
