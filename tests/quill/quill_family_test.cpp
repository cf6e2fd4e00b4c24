// What every type of the module has in common, once for all of them.

#include "headers.hpp"
#include "values.hpp"

#include <cstdlib>
#include <fstream>
#include <map>
#include <regex>
#include <set>
#include <support/cost.hpp>
#include <vector>

#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
extern "C" int __sanitizer_get_ownership(void const volatile *mem); // of the sanitizers' allocator
#endif

extern "C" char const __executable_start; // of the linker: where the program's image begins and ends
extern "C" char const end;

using namespace test;

namespace {

struct Family {
    char const *name; // of the sort, which is also the struct's in the condition texts
    std::string unit;
    coSort const *record;
    coSort const *(*sort)();
    coObj *(*make)(); // an object with all members, always the same
    void (*retain)(coObj *);
    void (*release)(coObj *);
    coObj *(*obj)(coObj const *);
    coObj *(*from)(coObj const *);
    coString *(*toString)(coObj const *);
    int (*compare)(coObj const *, coObj const *);
    bool (*equals)(coObj const *, coObj const *);
    coObj *(*createFrom)(coObj const *); // null where the type is no value
    void (*freeFunc)(coObj *);
    coString *(*encode)(coObj const *);             // null where there is no text form
    bool isCompared;                                // by content, not by identity
    std::vector<size_t> slots;                      // which words after the object's header refer to objects
    std::vector<coObj *> (*members)(coObj const *); // owned references
};

#define FAMILY(Type, SORT, unit, make, createFrom, encode, isCompared, slots, ...)                                     \
    Family {                                                                                                           \
        "QUILL_" #SORT, std::string("source/quill/") + unit, &quill___sort_QUILL_##SORT, quill##Type##Sort, make,      \
            [](coObj *obj) { quill##Type##Retain(as<struct quill##Type>(obj)); },                                      \
            [](coObj *obj) { quill##Type##Release(as<struct quill##Type>(obj)); },                                     \
            [](coObj const *obj) { return quill##Type##Obj(as<struct quill##Type>(obj)); },                            \
            [](coObj const *obj) { return generic(quill##Type##From(obj)); },                                          \
            [](coObj const *obj) { return quill##Type##ToString(as<struct quill##Type>(obj)); },                       \
            [](coObj const *a, coObj const *b) {                                                                       \
                return quill##Type##Compare(as<struct quill##Type>(a), as<struct quill##Type>(b));                     \
            },                                                                                                         \
            [](coObj const *a, coObj const *b) {                                                                       \
                return quill##Type##Equals(as<struct quill##Type>(a), as<struct quill##Type>(b));                      \
            },                                                                                                         \
            createFrom, quill___##Type##FreeFunc, encode, isCompared, std::vector<size_t> slots, __VA_ARGS__           \
    }

#define CREATE_FROM(Type)                                                                                              \
    [](coObj const *source) { return generic(quill##Type##CreateFrom(as<struct quill##Type>(source))); }
#define ENCODE(Type) [](coObj const *obj) { return quill___##Type##Encode(as<struct quill##Type>(obj)); }
#define GET(Type, Member) generic(quill##Type##Member(as<struct quill##Type>(obj)))
#define LIST(...)                                                                                                      \
    { __VA_ARGS__ }

coObj *makeParams() {
    quillGenericParams *params = quillGenericParamsCreate();
    quillGenericParamsSetParamValueCstr(&params, "a", -1, 0, "1", -1);
    return generic(params);
}

coObj *makeAccept() {
    quillAccept *accept = quillAcceptCreate();
    quillAcceptSetMediaType(&accept, str("text"));
    quillAcceptSetMediaSubtype(&accept, str("plain"));
    quillAcceptSetQvalue(&accept, 500);
    co::Ref<coObj> const params(makeParams());
    quillAcceptSetGenericParams(&accept, as<quillGenericParams>(params.get()));
    return generic(accept);
}

coObj *makeFragment() {
    Fragment *frag = quillMessageFragmentCreateRequestCstr(sip20().get(), "INVITE", -1, "sip:a@b", -1);
    quillMessageFragmentSetHeader(&frag, header("v", {"x"}).get());
    quillMessageFragmentSetBody(&frag, buffer("abc").get());
    return generic(frag);
}

coObj *makeMessage() {
    co::Ref<coObj> const frag(makeFragment());
    return generic(quillMessageCreate(as<Fragment>(frag.get())));
}

coObj *makeStreamDecoder() {
    quillMessageStreamDecoder *decoder = quillMessageStreamDecoderCreate();
    quillMessageStreamDecoderWrite(decoder, buffer("INVITE sip:a SIP/2.0\r\nl: 9\r\n\r\nabc").get());
    quillMessageStreamDecoderRead(decoder); // a message is pending now
    return generic(decoder);
}

template <class T> coObj *make(std::string_view utf8) { return generic(decode<T>(utf8).take()); }

std::vector<coObj *> none(coObj const *) { return {}; }

// Whether a block of the heap begins there.
bool isOnHeap(char const *mem) {
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
    return __sanitizer_get_ownership(mem);
#else
    return sizeOf(mem) > 0;
#endif
}

// Whether a word of an object is a reference: neither a number nor what padding happens to hold.
bool isReference(uint64_t word) {
    if (word % 8 != 0 || word < uint64_t{1} << 32 || word >= uint64_t{1} << 47) return false;
    auto const *mem = reinterpret_cast<char const *>(word); // NOLINT(performance-no-int-to-ptr)
    bool const isStatic = mem >= &__executable_start && mem < &end;
    return isStatic || isOnHeap(mem);
}

std::vector<size_t> slotsOf(coObj const *obj) {
    auto const *words = reinterpret_cast<uint64_t const *>(obj + 1);
    size_t const length = (static_cast<size_t>(obj->itsSort->size) - sizeof(coObj)) / sizeof *words;
    std::vector<size_t> slots;
    for (size_t i = 0; i < length; i++)
        if (isReference(words[i])) slots.push_back(i);
    return slots;
}

std::vector<coObj *> allMembers(coObj const *obj) {
    auto *const *words = reinterpret_cast<coObj *const *>(obj + 1);
    std::vector<coObj *> members;
    for (size_t slot : slotsOf(obj)) members.push_back(co::retained(words[slot]));
    return members;
}

// A list's vector of strings and the many pieces of its lines; either may be null.
std::vector<coObj *> listMembers(coObj const *obj) {
    auto *const *words = reinterpret_cast<coObj *const *>(obj + 1);
    std::vector<coObj *> members;
    for (size_t slot : {size_t{1}, size_t{2}})
        if (words[slot]) members.push_back(co::retained(words[slot]));
    return members;
}

#define SLOTS_LIST LIST(1, 2), listMembers
#define SLOTS_SET LIST(), allMembers
#define SLOTS_VALUE LIST(), allMembers

// A typed header, made from the first of its field's samples.
#define HEADER(Type, SORT, name, shape, definition)                                                                    \
    FAMILY(                                                                                                            \
        Header##Type, HEADER_##SORT, unitOf(#Type),                                                                    \
        [] { return decode(typed(name), fieldOf(name).samples[0].lines).take(); }, CREATE_FROM(Header##Type), textOf,  \
        true, SLOTS_##shape),

std::string unitOf(char const *type) { return "quill_header_" + snake(type); }

// The samples have one line each.
coString *textOf(coObj const *hdr) {
    for (int64_t i = 0; i < quillTypedHeadersLength(); i++) {
        quillTypedHeader const *type = quillTypedHeaderAt(i);
        if (type->sort() != coObjSort(hdr)) continue;
        auto const raw = own(type->encode(hdr));
        EXPECT_EQ(quillMessageHeaderLinesLength(raw.get()), 1);
        return quillMessageHeaderLineAt(raw.get(), 0);
    }
    return nullptr;
}

std::vector<Family> families() {
    return {
        FAMILY(
            Version, VERSION, "quill_version", [] { return generic(quillVersionCreate(str("SIP"), str("3.0"))); },
            CREATE_FROM(Version), ENCODE(Version), true, LIST(0, 1),
            [](coObj const *obj) {
                return std::vector{GET(Version, ProtocolName), GET(Version, ProtocolVersion)};
            }),
        FAMILY(
            GenericParam, GENERIC_PARAM, "quill_generic_param",
            [] { return generic(quillGenericParamCreateWithValueCstr("a", -1, 0, "B", -1)); },
            CREATE_FROM(GenericParam), ENCODE(GenericParam), true, LIST(1, 4),
            [](coObj const *obj) {
                return std::vector{GET(GenericParam, Name), GET(GenericParam, ValueNonNormalized)};
            }),
        FAMILY(GenericParams, GENERIC_PARAMS, "quill_generic_params", makeParams, CREATE_FROM(GenericParams),
               ENCODE(GenericParams), true, LIST(0),
               [](coObj const *obj) {
                   return std::vector{generic(quillGenericParamsParamAt(as<quillGenericParams>(obj), 0))};
               }),
        FAMILY(Accept, ACCEPT, "quill_accept", makeAccept, CREATE_FROM(Accept), ENCODE(Accept), true, LIST(1, 3, 5),
               [](coObj const *obj) {
                   return std::vector{GET(Accept, MediaType), GET(Accept, MediaSubtype), GET(Accept, GenericParams)};
               }),
        FAMILY(
            Via, VIA, "quill_via", [] { return make<quillVia>("SIP/2.0/UDP h;maddr=m;received=::1;branch=b"); },
            CREATE_FROM(Via), ENCODE(Via), true, LIST(1, 2, 4, 8, 10, 13, 15),
            [](coObj const *obj) {
                return std::vector{GET(Via, Version),  GET(Via, Transport), GET(Via, Host),         GET(Via, Maddr),
                                   GET(Via, Received), GET(Via, Branch),    GET(Via, GenericParams)};
            }),
        FAMILY(
            Route, ROUTE, "quill_route", [] { return make<quillRoute>("A <sip:h>"); }, CREATE_FROM(Route),
            ENCODE(Route), true, LIST(1, 3, 5),
            [](coObj const *obj) {
                return std::vector{GET(Route, Iri), GET(Route, DisplayName), GET(Route, GenericParams)};
            }),
        FAMILY(
            Contact, CONTACT, "quill_contact",
            [] { return make<quillContact>("A <sip:h>;rc=1;mp=2;np=3;+sip.instance=\"<a>\""); }, CREATE_FROM(Contact),
            ENCODE(Contact), true, LIST(1, 3, 5, 9, 11, 13, 15),
            [](coObj const *obj) {
                return std::vector{GET(Contact, Iri),        GET(Contact, DisplayName), GET(Contact, GenericParams),
                                   GET(Contact, Rc),         GET(Contact, Mp),          GET(Contact, Np),
                                   GET(Contact, SipInstance)};
            }),
        FAMILY(
            Reason, REASON, "quill_reason", [] { return make<quillReason>("SIP;cause=1;text=\"a\""); },
            CREATE_FROM(Reason), ENCODE(Reason), true, LIST(1, 3, 5, 7),
            [](coObj const *obj) {
                return std::vector{GET(Reason, Protocol), GET(Reason, Cause), GET(Reason, Text),
                                   GET(Reason, GenericParams)};
            }),
        FAMILY(
            WarningValue, WARNING_VALUE, "quill_warning_value", [] { return make<quillWarningValue>("301 h \"a\""); },
            CREATE_FROM(WarningValue), ENCODE(WarningValue), true, LIST(2, 4),
            [](coObj const *obj) {
                return std::vector{GET(WarningValue, WarnAgent), GET(WarningValue, WarnText)};
            }),
        FAMILY(
            AlertInfo, ALERT_INFO, "quill_alert_info", [] { return make<quillAlertInfo>("<sip:h>"); },
            CREATE_FROM(AlertInfo), ENCODE(AlertInfo), true, LIST(1, 3),
            [](coObj const *obj) {
                return std::vector{GET(AlertInfo, Iri), GET(AlertInfo, GenericParams)};
            }),
        FAMILY(
            ErrorInfo, ERROR_INFO, "quill_error_info", [] { return make<quillErrorInfo>("<sip:h>"); },
            CREATE_FROM(ErrorInfo), ENCODE(ErrorInfo), true, LIST(1, 3),
            [](coObj const *obj) {
                return std::vector{GET(ErrorInfo, Iri), GET(ErrorInfo, GenericParams)};
            }),
        FAMILY(
            CallInfo, CALL_INFO, "quill_call_info", [] { return make<quillCallInfo>("<sip:h>;purpose=icon"); },
            CREATE_FROM(CallInfo), ENCODE(CallInfo), true, LIST(1, 3, 5),
            [](coObj const *obj) {
                return std::vector{GET(CallInfo, Iri), GET(CallInfo, Purpose), GET(CallInfo, GenericParams)};
            }),
        FAMILY(
            IdentityValue, IDENTITY_VALUE, "quill_identity_value", [] { return make<quillIdentityValue>("A <sip:h>"); },
            CREATE_FROM(IdentityValue), ENCODE(IdentityValue), true, LIST(1, 3),
            [](coObj const *obj) {
                return std::vector{GET(IdentityValue, Iri), GET(IdentityValue, DisplayName)};
            }),
        FAMILY(
            Diversion, DIVERSION, "quill_diversion",
            [] { return make<quillDiversion>("A <sip:h>;reason=a;privacy=b;screen=c"); }, CREATE_FROM(Diversion),
            ENCODE(Diversion), true, LIST(1, 3, 5, 9, 11, 13),
            [](coObj const *obj) {
                return std::vector{GET(Diversion, Iri),     GET(Diversion, DisplayName), GET(Diversion, Reason),
                                   GET(Diversion, Privacy), GET(Diversion, Screen),      GET(Diversion, GenericParams)};
            }),
        FAMILY(
            HistoryInfo, HISTORY_INFO, "quill_history_info",
            [] { return make<quillHistoryInfo>("A <sip:h>;index=1;rc=1;mp=2;np=3"); }, CREATE_FROM(HistoryInfo),
            ENCODE(HistoryInfo), true, LIST(1, 3, 5, 7, 9, 11, 13),
            [](coObj const *obj) {
                return std::vector{GET(HistoryInfo, Iri),          GET(HistoryInfo, DisplayName),
                                   GET(HistoryInfo, Index),        GET(HistoryInfo, Rc),
                                   GET(HistoryInfo, Mp),           GET(HistoryInfo, Np),
                                   GET(HistoryInfo, GenericParams)};
            }),
        FAMILY(
            AcceptEncoding, ACCEPT_ENCODING, "quill_accept_encoding", [] { return make<quillAcceptEncoding>("gzip"); },
            CREATE_FROM(AcceptEncoding), ENCODE(AcceptEncoding), true, LIST(1, 3),
            [](coObj const *obj) {
                return std::vector{GET(AcceptEncoding, ContentCoding), GET(AcceptEncoding, GenericParams)};
            }),
        FAMILY(
            UuiValue, UUI_VALUE, "quill_uui_value",
            [] { return make<quillUuiValue>("a;encoding=b;purpose=c;content=d"); }, CREATE_FROM(UuiValue),
            ENCODE(UuiValue), true, LIST(1, 3, 5, 7, 9),
            [](coObj const *obj) {
                return std::vector{GET(UuiValue, UuiData), GET(UuiValue, Encoding), GET(UuiValue, Purpose),
                                   GET(UuiValue, Content), GET(UuiValue, GenericParams)};
            }),
        FAMILY(
            MessageHeader, MESSAGE_HEADER, "quill_message_header",
            [] {
                return generic(header("v", {"x", "y"}).take());
            },
            CREATE_FROM(MessageHeader), nullptr, true, LIST(0, 1),
            [](coObj const *obj) {
                return std::vector{GET(MessageHeader, Name), GET(MessageHeader, LinesVector)};
            }),
        FAMILY(MessageFragment, MESSAGE_FRAGMENT, "quill_message_fragment", makeFragment, CREATE_FROM(MessageFragment),
               nullptr, false, LIST(0, 1, 3, 4, 5, 6),
               [](coObj const *obj) {
                   return std::vector{GET(MessageFragment, RequestMethod), GET(MessageFragment, RequestIri),
                                      GET(MessageFragment, Version), GET(MessageFragment, Body),
                                      generic(quillMessageFragmentHeaderCstr(as<Fragment>(obj), "Via", -1))};
               }),
        FAMILY(Message, MESSAGE, "quill_message", makeMessage, CREATE_FROM(Message), nullptr, false, LIST(0),
               [](coObj const *obj) { return std::vector{generic(quillMessageFragment(as<Message>(obj)))}; }),
        FAMILY(MessageStreamDecoder, MESSAGE_STREAM_DECODER, "quill_message_stream_decoder", makeStreamDecoder, nullptr,
               nullptr, false, LIST(1, 2), none),
        QUILL_TYPED_HEADERS(HEADER)};
}

class QuillFamily : public testing::TestWithParam<Family> {
protected:
    // No member of these refers to an object: they are integers, or texts that were read and stand in the line that the
    // object keeps.
    bool isWithoutObjects() const {
        static std::set<std::string> const names{
            "QUILL_HEADER_CALL_ID",     "QUILL_HEADER_CSEQ",   "QUILL_HEADER_EXPIRES",   "QUILL_HEADER_MAX_FORWARDS",
            "QUILL_HEADER_MIN_EXPIRES", "QUILL_HEADER_MIN_SE", "QUILL_HEADER_RACK",      "QUILL_HEADER_RETRY_AFTER",
            "QUILL_HEADER_RSEQ",        "QUILL_HEADER_SERVER", "QUILL_HEADER_TIMESTAMP", "QUILL_HEADER_USER_AGENT"};
        return names.contains(family.name);
    }
    Family const &family = GetParam();
    co::Ref<coObj> obj{family.make()};
    co::Ref<coObj> same{family.make()};
};

// Types whose objects are values, which are copied.
class QuillValueFamily : public QuillFamily {};

std::vector<Family> values() {
    std::vector<Family> values;
    for (Family const &family : families())
        if (family.createFrom) values.push_back(family);
    return values;
}

void PrintTo(Family const &family, std::ostream *out) { *out << family.name; }

std::string nameOf(testing::TestParamInfo<Family> const &info) { return info.param.name; }

INSTANTIATE_TEST_SUITE_P(Sorts, QuillFamily, testing::ValuesIn(families()), nameOf);
INSTANTIATE_TEST_SUITE_P(Sorts, QuillValueFamily, testing::ValuesIn(values()), nameOf);

TEST_P(QuillFamily, HasASortRecord) {
    coSort const *sort = family.sort();
    EXPECT_EQ(sort, family.record);
    EXPECT_EQ(coObjSort(obj.get()), sort);
    EXPECT_STREQ(sort->name, family.name);
    EXPECT_EQ(sort->module, &quill___module);
    EXPECT_EQ(sort->freeFunc, family.freeFunc);
    EXPECT_EQ(sort->compareFunc != nullptr, family.isCompared);
    EXPECT_EQ(sort->toStringFunc != nullptr, family.encode != nullptr);
    for (void const *slot : sort->reserved) EXPECT_EQ(slot, nullptr);
    EXPECT_EQ(coObjSort(sort), &co___sort_CO_SORT);
    EXPECT_EQ(sort->count.load(), 1);
}

TEST_P(QuillFamily, CountsReferences) {
    EXPECT_EQ(count(obj.get()), 1);
    family.retain(obj.get());
    EXPECT_EQ(count(obj.get()), 2);
    family.retain(obj.get());
    family.release(obj.get());
    EXPECT_EQ(count(obj.get()), 2);
    family.release(obj.get());
    EXPECT_EQ(count(obj.get()), 1);
    EXPECT_ABORT(family.retain(nullptr), family.unit, "obj", "stdfunc retain");
    EXPECT_ABORT(family.release(nullptr), family.unit, "obj", "stdfunc release");
}

TEST_P(QuillFamily, ConvertsToObjectsAndBack) {
    EXPECT_EQ(family.obj(obj.get()), obj.get());
    EXPECT_EQ(family.obj(nullptr), nullptr);
    EXPECT_EQ(family.from(family.obj(obj.get())), obj.get());
    EXPECT_EQ(count(obj.get()), 1) << "the reference is borrowed";
    EXPECT_EQ(family.from(nullptr), nullptr);
    Str const other = str("text");
    EXPECT_ABORT(family.from(coStringObj(other)), family.unit,
                 std::string("!obj || coObjSort(obj)==&quill___sort_") + family.name, "stdfunc from");
}

TEST_P(QuillFamily, HasAText) {
    std::string const text = taken(family.toString(obj.get()));
    if (family.encode) {
        EXPECT_EQ(text, taken(family.encode(obj.get())));
        EXPECT_NE(text, "");
    } else {
        EXPECT_THAT(text, testing::MatchesRegex(std::string("<") + family.name + " 0x[0-9a-f]+>"));
    }
    EXPECT_EQ(taken(coObjToString(obj.get())), text);
    EXPECT_ABORT(family.toString(nullptr), family.unit, "obj", "stdfunc tostring");
}

TEST_P(QuillFamily, Compares) {
    EXPECT_EQ(family.compare(obj.get(), obj.get()), 0);
    EXPECT_TRUE(family.equals(obj.get(), obj.get()));
    int const order = family.compare(obj.get(), same.get());
    EXPECT_EQ(order == 0, family.isCompared);
    EXPECT_EQ(family.compare(same.get(), obj.get()), -order);
    EXPECT_EQ(family.equals(obj.get(), same.get()), family.isCompared);
    EXPECT_EQ(coObjCompare(obj.get(), same.get()), order);
    EXPECT_ABORT(family.compare(nullptr, obj.get()), family.unit, "objA", "stdfunc compare a");
    EXPECT_ABORT(family.compare(obj.get(), nullptr), family.unit, "objB", "stdfunc compare b");
    EXPECT_ABORT(family.equals(nullptr, obj.get()), "source/co/co_object", "objA");
}

TEST_P(QuillValueFamily, CopiesShareTheirMembers) {
    co::Ref<coObj> const copy(family.createFrom(obj.get()));
    EXPECT_NE(copy.get(), obj.get());
    EXPECT_EQ(count(copy.get()), 1);
    EXPECT_EQ(count(obj.get()), 1);
    EXPECT_EQ(family.equals(obj.get(), copy.get()), family.isCompared);
    std::vector<coObj *> const members = family.members(obj.get());
    std::vector<coObj *> const copied = family.members(copy.get());
    ASSERT_EQ(members.size(), copied.size());
    for (size_t i = 0; i < members.size(); i++) {
        bool const isText = coObjSort(members[i]) == coStringSort(); // made for the asker where it stands in the line
        EXPECT_TRUE(members[i] == copied[i] || (isText && coObjCompare(members[i], copied[i]) == 0)) << i;
    }
    for (coObj *member : members) coObjRelease(member);
    for (coObj *member : copied) coObjRelease(member);
    EXPECT_ABORT(family.createFrom(nullptr), family.unit, "source");
}

TEST_P(QuillFamily, FreeingGivesUpMembersAndLeavesAllOnes) {
    std::vector<size_t> const slots = family.slots.empty() ? slotsOf(obj.get()) : family.slots;
    EXPECT_EQ(slots.empty(), isWithoutObjects());
    std::vector<coObj *> const members = family.members(obj.get());
    std::map<coObj *, int64_t> counts; // some may be one object
    for (coObj *member : members) counts[member] = count(member);

    coObj *freed = obj.take();
    family.freeFunc(freed);
    auto const *words = reinterpret_cast<uint64_t const *>(freed + 1);
    for (size_t slot : slots) EXPECT_EQ(words[slot], ~uint64_t{0}) << "word " << slot;
    std::free(freed);

    for (auto [member, before] : counts) { // a member that was found has lost at least the reference of its slot
        bool const hasLost = (family.slots.empty() || family.members == listMembers) && !co::isImmortal(member);
        EXPECT_LE(count(member), before - hasLost);
    }
    for (coObj *member : members) coObjRelease(member);
}

// The declarations of the sorts are the list that this one is held against: none can be forgotten.
TEST(QuillFamilies, AreTestedWithoutAnyLeftOut) {
    std::ifstream file(QUILL_INTERNAL_H);
    std::string const text{std::istreambuf_iterator<char>(file), {}};
    std::regex const declaration("extern struct coSort const quill___sort_(\\w+);");
    std::set<std::string> declared;
    for (std::sregex_iterator each(text.begin(), text.end(), declaration), end; each != end; ++each)
        declared.insert((*each)[1]);
    std::set<std::string> tested;
    for (Family const &family : families()) tested.insert(family.name);
    EXPECT_EQ(tested, declared);
    EXPECT_EQ(tested.size(), size_t(quillTypedHeadersLength()) + 13 + 8);
    EXPECT_EQ(families().size(), 79u);
}

} // namespace
