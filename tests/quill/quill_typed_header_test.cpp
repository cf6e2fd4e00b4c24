// The registry, and through it what all typed headers have in common.

#include "headers.hpp"

#include <algorithm>
#include <set>

using namespace test;

namespace {

struct Expected {
    char const *type, *sort, *name;
    int64_t shape;
};

#define EXPECTED(Type, SORT, name, shape, definition) {#Type, "QUILL_HEADER_" #SORT, name, QUILL_TYPED_HEADER_##shape},
Expected const expected[] = {QUILL_TYPED_HEADERS(EXPECTED)};

std::vector<quillTypedHeader const *> types() {
    std::vector<quillTypedHeader const *> all;
    for (int64_t i = 0; i < quillTypedHeadersLength(); i++) all.push_back(quillTypedHeaderAt(i));
    return all;
}

TEST(QuillTypedHeaders, ListsAllInOrder) {
    ASSERT_EQ(quillTypedHeadersLength(), 58);
    for (int64_t i = 0; i < 58; i++) {
        quillTypedHeader const *type = quillTypedHeaderAt(i);
        EXPECT_STREQ(type->type, expected[i].type);
        EXPECT_STREQ(type->name, expected[i].name);
        EXPECT_STREQ(type->sort()->name, expected[i].sort);
        EXPECT_EQ(type->sort()->name, "QUILL_HEADER_" + upper(snake(type->type)));
        EXPECT_EQ(type->shape, expected[i].shape);
        EXPECT_THAT(type->definition, testing::MatchesRegex("(RFC [0-9]{4}|draft-[a-z0-9-]+), [0-9.]+"));
    }
    EXPECT_ABORT(quillTypedHeaderAt(-1), "source/quill/quill_typed_header",
                 "index >= 0 && index < quillTypedHeadersLength()");
    EXPECT_ABORT(quillTypedHeaderAt(58), "source/quill/quill_typed_header",
                 "index >= 0 && index < quillTypedHeadersLength()");
}

TEST(QuillTypedHeaders, HaveSoManyOfEachShape) {
    int64_t count[3] = {};
    for (quillTypedHeader const *type : types()) count[type->shape]++;
    EXPECT_EQ(count[QUILL_TYPED_HEADER_LIST], 21);
    EXPECT_EQ(count[QUILL_TYPED_HEADER_SET], 8);
    EXPECT_EQ(count[QUILL_TYPED_HEADER_VALUE], 29);

#define TYPE_1(Type, ...) #Type,
    std::set<std::string> const lists{QUILL_VALUE_LISTS(TYPE_1) QUILL_SCALAR_LISTS(TYPE_1)};
    std::set<std::string> const sets{QUILL_TEXT_SETS(TYPE_1) QUILL_OTHER_SETS(TYPE_1)};
    for (quillTypedHeader const *type : types()) {
        EXPECT_EQ(lists.contains(type->type), type->shape == QUILL_TYPED_HEADER_LIST) << type->type;
        EXPECT_EQ(sets.contains(type->type), type->shape == QUILL_TYPED_HEADER_SET) << type->type;
    }
}

TEST(QuillTypedHeaders, HaveSamples) {
    std::set<std::string> names;
    for (quillTypedHeader const *type : types()) names.insert(type->name);
    std::set<std::string> sampled;
    for (Field const &field : fields()) sampled.insert(field.name);
    EXPECT_EQ(sampled, names);
    EXPECT_EQ(fields().size(), 58u);
}

TEST(QuillTypedHeaders, AreFoundByCompactNames) {
    struct {
        char const *letter, *name;
    } const compact[] = {{"u", "Allow-Events"}, {"i", "Call-Id"},
                         {"m", "Contact"},      {"e", "Content-Encoding"},
                         {"o", "Event"},        {"f", "From"},
                         {"r", "Refer-To"},     {"b", "Referred-By"},
                         {"s", "Subject"},      {"x", "Session-Expires"},
                         {"k", "Supported"},    {"t", "To"},
                         {"v", "Via"},          {"V", "Via"}};
    for (auto [letter, name] : compact) {
        ASSERT_NE(typed(letter), nullptr) << letter;
        EXPECT_STREQ(typed(letter)->name, name);
    }
    // Fields without a type of their own, whether known or not.
    for (char const *name :
         {"l", "c", "a", "Content-Length", "Content-Type", "Identity", "X-Unknown", "q", "Vi", "Viaa"})
        EXPECT_EQ(typed(name), nullptr) << name;
    EXPECT_ABORT(typed(""), "source/quill/quill_typed_header", "quillMessageHeaderNameOk( name )");
    EXPECT_ABORT(typed("a b"), "source/quill/quill_typed_header", "quillMessageHeaderNameOk( name )");
    EXPECT_ABORT(quillTypedHeaderOf(nullptr), "source/quill/quill_message_header", "name");
}

class QuillTypedHeader : public testing::TestWithParam<quillTypedHeader const *> {
protected:
    quillTypedHeader const *type = GetParam();
    Field const &field = fieldOf(type->name);
    std::string unit = "source/quill/quill_header_" + snake(type->type);
    co::Ref<coObj> sample() const { return decode(type, field.samples[0].lines); }
    co::Ref<Message> message = own(quillMessageCreate(fragment().get()));

    static co::Ref<Fragment> fragment() {
        return own(quillMessageFragmentCreateRequestCstr(sip20().get(), "INVITE", -1, "sip:a@b", -1));
    }
    void put(Lines const &lines) { quillMessageSetHeader(message.address(), rawHeader(type->name, lines).get()); }
};

std::string nameOf(testing::TestParamInfo<quillTypedHeader const *> const &info) { return info.param->type; }

INSTANTIATE_TEST_SUITE_P(All, QuillTypedHeader, testing::ValuesIn(types()), nameOf);

TEST_P(QuillTypedHeader, IsFoundInAnySpelling) {
    std::string name = type->name;
    EXPECT_EQ(typed(name), type);
    EXPECT_EQ(typed(upper(name)), type);
    std::transform(name.begin(), name.end(), name.begin(), [](unsigned char ch) { return std::tolower(ch); });
    EXPECT_EQ(typed(name), type);
    EXPECT_EQ(typed(name + "x"), nullptr);
    EXPECT_EQ(typed(name + "-"), nullptr);
}

TEST_P(QuillTypedHeader, DecodesAndEncodesSamples) {
    for (Sample const &each : field.samples) {
        auto const hdr = decode(type, each.lines);
        ASSERT_TRUE(hdr) << testing::PrintToString(each.lines);
        EXPECT_EQ(coObjSort(hdr.get()), type->sort());
        EXPECT_EQ(count(hdr.get()), 1);
        EXPECT_EQ(encode(type, hdr.get()), each.encoded());

        auto const again = decode(type, each.encoded());
        ASSERT_TRUE(again);
        EXPECT_EQ(coObjCompare(hdr.get(), again.get()), 0);
        auto const raw = own(type->encode(hdr.get()));
        EXPECT_TRUE(quillMessageHeaderNameEquals(raw.get(), str(type->name)));
    }
}

TEST_P(QuillTypedHeader, RefusesWhatIsBroken) {
    for (std::string const &line : field.broken) EXPECT_FALSE(decode(type, {line})) << line;
    EXPECT_FALSE(decode(type, {})) << "no lines";
}

TEST_P(QuillTypedHeader, TextIsThatOfTheLines) {
    for (Sample const &each : field.samples) {
        auto const hdr = decode(type, each.lines);
        auto const raw = own(type->encode(hdr.get()));
        auto const lines = own(quillMessageHeaderLinesVector(raw.get()));
        std::string const text = taken(coObjToString(hdr.get()));
        EXPECT_EQ(text, each.encoded().size() == 1 ? each.encoded()[0] : taken(coVectorToString(lines.get())));
    }
}

TEST_P(QuillTypedHeader, StoresItsLines) {
    for (Sample const &each : field.samples) {
        auto const hdr = decode(type, each.lines);
        auto const store = own(type->store(hdr.get()));
        ASSERT_EQ(coStoreLength(store.get()), static_cast<int64_t>(each.encoded().size()));
        for (size_t i = 0; i < each.encoded().size(); i++)
            EXPECT_EQ(taken(coStoreValueAt(store.get(), static_cast<int64_t>(i))), each.encoded()[i]);
        auto const restored = own(type->tryRestore(store.get()));
        ASSERT_TRUE(restored);
        EXPECT_EQ(coObjCompare(hdr.get(), restored.get()), 0);
    }
    EXPECT_FALSE(own(type->tryRestore(own(coStoreCreate()).get()))) << "an empty store";
    for (std::string const &line : field.broken) {
        auto const store = own(quillMessageHeaderStoreLines(rawHeader(type->name, {line}).get()));
        EXPECT_FALSE(own(type->tryRestore(store.get()))) << line;
    }
}

TEST_P(QuillTypedHeader, GoesIntoMessagesAndOut) {
    EXPECT_FALSE(type->presentInMessage(message.get()));
    EXPECT_FALSE(own(type->tryDecodeFromMessage(message.get()))) << "absent";
    type->removeFromMessage(message.address());
    EXPECT_FALSE(type->presentInMessage(message.get())) << "an absent one is no fault";

    for (Sample const &each : field.samples) {
        auto const hdr = decode(type, each.lines);
        type->encodeToMessage(hdr.get(), message.address());
        EXPECT_TRUE(type->presentInMessage(message.get()));
        auto const raw = own(quillMessageHeader(message.get(), str(type->name)));
        EXPECT_EQ(linesOf(raw.get()), each.encoded()) << "the one before is replaced";
        auto const back = own(type->tryDecodeFromMessage(message.get()));
        ASSERT_TRUE(back);
        EXPECT_EQ(coObjCompare(hdr.get(), back.get()), 0);
    }
    type->removeFromMessage(message.address());
    EXPECT_FALSE(type->presentInMessage(message.get()));
}

TEST_P(QuillTypedHeader, ChangesNoMessageThatSomebodyElseHolds) {
    auto const held = co::Ref<Message>(co::retained(message.get()));
    type->encodeToMessage(sample().get(), message.address());
    EXPECT_NE(message.get(), held.get());
    EXPECT_FALSE(type->presentInMessage(held.get()));

    auto const full = co::Ref<Message>(co::retained(message.get()));
    type->removeFromMessage(message.address());
    EXPECT_TRUE(type->presentInMessage(full.get()));
    EXPECT_FALSE(type->presentInMessage(message.get()));
}

TEST_P(QuillTypedHeader, AMessageWithAnythingElseIsLeftAsItIs) {
    std::vector<Lines> wrong{{}};
    for (std::string const &line : field.broken) wrong.push_back({line});
    for (Lines const &lines : wrong) {
        put(lines);
        std::string const before = describe(message.get());
        EXPECT_TRUE(type->presentInMessage(message.get()));
        EXPECT_FALSE(own(type->tryDecodeFromMessage(message.get()))) << testing::PrintToString(lines);
        EXPECT_EQ(describe(message.get()), before);
    }
}

TEST_P(QuillTypedHeader, IsFoundInReceivedMessages) {
    std::string wire = "OPTIONS sip:a@b SIP/2.0\r\n";
    for (std::string const &line : field.samples[0].lines) wire += upper(type->name) + " :\t" + line + " \r\n";
    auto const received = own(quillMessageTryDecode(buffer(wire + "\r\n").get()));
    ASSERT_TRUE(received);
    auto const hdr = own(type->tryDecodeFromMessage(received.get()));
    ASSERT_TRUE(hdr);
    EXPECT_EQ(coObjCompare(hdr.get(), sample().get()), 0);
}

TEST_P(QuillTypedHeader, ASingleValueIsTheLastLine) {
    if (type->shape != QUILL_TYPED_HEADER_VALUE) return; // the others add up
    for (Sample const &each : field.samples) {
        Lines lines{"\x01 never a value"};
        lines.insert(lines.end(), each.lines.begin(), each.lines.end());
        auto const hdr = decode(type, lines);
        ASSERT_TRUE(hdr);
        EXPECT_EQ(encode(type, hdr.get()), each.encoded());
        lines = each.lines;
        lines.push_back(field.broken.empty() ? "" : field.broken[0]);
        EXPECT_EQ(bool(decode(type, lines)), field.broken.empty());
    }
}

TEST_P(QuillTypedHeader, ListsAndSetsReadAllLines) {
    if (type->shape == QUILL_TYPED_HEADER_VALUE) return;
    for (std::string const &line : field.broken) EXPECT_FALSE(decode(type, {field.samples[0].lines[0], line})) << line;
    Lines const lines{"", field.samples[0].lines[0], ""};
    auto const hdr = decode(type, lines);
    ASSERT_TRUE(hdr) << "empty lines are skipped";
    EXPECT_EQ(encode(type, hdr.get()), field.samples[0].encoded());
    auto const empty = decode(type, {""});
    ASSERT_TRUE(empty);
    EXPECT_EQ(encode(type, empty.get()), Lines{});
    EXPECT_EQ(taken(coObjToString(empty.get())), "");
    EXPECT_FALSE(decode(type, encode(type, empty.get())));
}

TEST_P(QuillTypedHeader, CopiesShare) {
    auto const hdr = sample();
    auto const copy = own(type->createFrom(hdr.get()));
    EXPECT_NE(copy.get(), hdr.get());
    EXPECT_EQ(coObjCompare(copy.get(), hdr.get()), 0);
    EXPECT_EQ(count(copy.get()), 1);
}

TEST_P(QuillTypedHeader, Orders) {
    auto const hdr = sample();
    for (Sample const &each : field.samples) {
        auto const other = decode(type, each.lines);
        int const order = coObjCompare(hdr.get(), other.get());
        EXPECT_EQ(coObjCompare(other.get(), hdr.get()), -order);
        EXPECT_EQ(order == 0, each.encoded() == field.samples[0].encoded());
    }
}

TEST_P(QuillTypedHeader, Preconditions) {
    auto const hdr = sample();
    std::string const other = type->name == std::string("Via") ? "Route" : "Via";
    EXPECT_ABORT(type->tryDecode(rawHeader(other, {"x"}).get()), unit,
                 "quillMessageHeaderNameEquals( header, quill___Cos" + std::string(type->type) + " )");
    EXPECT_ABORT(type->tryDecode(nullptr), "source/quill/quill_message_header", "header");
    EXPECT_ABORT(type->encode(nullptr), unit, "hdr");
    EXPECT_ABORT(type->store(nullptr), unit, "hdr");
    EXPECT_ABORT(type->tryRestore(nullptr), unit, "store");
    EXPECT_ABORT(type->createFrom(nullptr), unit, "source");
    EXPECT_ABORT(type->encodeToMessage(nullptr, message.address()), unit, "hdr");
    EXPECT_ABORT(type->encodeToMessage(hdr.get(), nullptr), unit, "msg");
    Message *none = nullptr;
    EXPECT_ABORT(type->encodeToMessage(hdr.get(), &none), unit, "*msg");
    EXPECT_ABORT(type->tryDecodeFromMessage(nullptr), unit, "msg");
    EXPECT_ABORT(type->encode(coStringObj(str("x"))), unit,
                 "!obj || coObjSort(obj)==&quill___sort_" + std::string(type->sort()->name), "stdfunc from");
}

} // namespace
