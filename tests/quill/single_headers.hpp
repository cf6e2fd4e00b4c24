// The typed headers that hold a single value, all under one interface: what they have in common is tested once for all
// of them, and their values are read and written as texts.
#pragma once

#include "objects.hpp"

#include <functional>
#include <ostream>
#include <vector>

namespace test {

// One part of a header's value, as a text: "(absent)", "true" and "false", decimal digits, a time as 2024-01-01T00:00:00Z,
// parameters as they are on the wire.
struct Part {
    enum class Kind { text, number, flag, time, params };

    std::string name; // in the functions
    Kind kind;
    bool optional;
    std::string condition;         // of the setter
    std::string param;             // which lifts it; empty for none
    std::vector<std::string> good; // ascending, kept as they are given
    std::vector<std::string> bad;
    std::function<std::string(coObj const *)> get;
    std::function<void(coObj **, std::string const &)> set;
    std::function<bool(coObj const *)> has; // these two of optional parts only
    std::function<void(coObj **)> del;

    bool isObject() const { return kind != Kind::number && kind != Kind::flag; }
};

struct SingleHeader {
    std::string type;  // in the functions
    std::string sort;  // its name
    std::string unit;  // in abort texts
    std::string field; // the static name
    std::string line;  // with every part, as it is written
    coSort const *record;
    coString **name;
    void (*startup)();
    void (*shutdown)();
    void (*freeFunc)(coObj *);
    coSort const *(*sortFunc)();
    void (*retain)(coObj *);
    void (*release)(coObj *);
    coObj *(*obj)(coObj const *);
    coObj *(*from)(coObj const *);
    coString *(*toString)(coObj const *);
    int (*compareFunc)(coObj const *, coObj const *);
    int (*compare)(coObj const *, coObj const *);
    bool (*equals)(coObj const *, coObj const *);
    coObj *(*createFrom)(coObj const *);
    Header *(*encode)(coObj const *);
    coObj *(*tryDecode)(Header const *);
    coStore *(*store)(coObj const *);
    coObj *(*tryRestore)(coStore const *);
    bool (*present)(Message const *);
    void (*encodeToMessage)(coObj const *, Message **);
    coObj *(*tryDecodeFromMessage)(Message const *);
    void (*removeFromMessage)(Message **);
    std::vector<Part> parts; // in the order of comparison, which is that of declaration

    // The value of one line; null where it does not decode.
    co::Ref<coObj> decode(std::string_view text) const;
    // Its line as it is written.
    std::string encoded(coObj const *hdr) const;
    // The parts that are there: "Iri=sip:a@b Tag=x"; "(null)" for null.
    std::string describe(coObj const *hdr) const;
};

inline void PrintTo(SingleHeader const &header, std::ostream *out) { *out << header.type; }

std::vector<SingleHeader> const &singleHeaders();
SingleHeader const &singleHeader(std::string_view type);

// A line and what comes of it.
struct Reading {
    char const *line;
    char const *parts;   // null where it does not decode
    char const *written; // null for the line itself
    char const *why;
};

// Each line of a header of this type is read so, written so, and read again from what is written.
void expectReadings(std::string_view type, std::vector<Reading> const &readings);

} // namespace test
