// What all headers with a single value have in common, once for all of them: the family, copy on write, the preconditions
// of setters, the order of comparison, conversions, and lines that nobody meant to write.

#include "single_headers.hpp"

#include <algorithm>
#include <cstdlib>
#include <random>
#include <support/cost.hpp>

using namespace test;

namespace {

class SingleHeaders : public testing::TestWithParam<SingleHeader> {
protected:
    SingleHeader const &header = GetParam();
    // A value with every part.
    co::Ref<coObj> hdr{header.decode(header.line)};

    static bool isText(Part const &part) { return part.kind == Part::Kind::text; }
    static bool mayBePiece(Part const &part) { return isText(part) || part.kind == Part::Kind::params; }

    // Texts and parameters that were read stand in the line that the object keeps: here each is set, so that it is an object.
    void setObjects() {
        for (Part const &part : header.parts)
            if (mayBePiece(part)) part.set(hdr.address(), part.get(hdr.get()));
    }

    // Where the objects of the parts are: behind the length of the line where something may be a piece of one, which takes
    // two words.
    std::vector<coObj *const *> slots(coObj const *obj) const {
        auto const *word = reinterpret_cast<coObj *const *>(obj + 1);
        word += std::any_of(header.parts.begin(), header.parts.end(), mayBePiece);
        std::vector<coObj *const *> found;
        for (Part const &part : header.parts) {
            if (part.isObject()) found.push_back(word);
            word += mayBePiece(part) ? 2 : 1;
        }
        return found;
    }

    // The one given, without its optional parts.
    co::Ref<coObj> bare() const {
        auto bare = own(header.createFrom(hdr.get()));
        for (Part const &part : header.parts) {
            if (part.del) part.del(bare.address());
            if (part.kind == Part::Kind::flag) part.set(bare.address(), "false");
            if (part.kind == Part::Kind::params) part.set(bare.address(), "");
        }
        return bare;
    }
};

std::string typeOf(testing::TestParamInfo<SingleHeader> const &info) { return info.param.type; }

INSTANTIATE_TEST_SUITE_P(Types, SingleHeaders, testing::ValuesIn(singleHeaders()), typeOf);

class SingleHeadersWithParams : public SingleHeaders {};

std::vector<SingleHeader> withParams() {
    std::vector<SingleHeader> headers;
    for (SingleHeader const &header : singleHeaders())
        if (header.parts.back().kind == Part::Kind::params) headers.push_back(header);
    return headers;
}

INSTANTIATE_TEST_SUITE_P(Types, SingleHeadersWithParams, testing::ValuesIn(withParams()), typeOf);

co::Ref<Message> request() { return own(quillMessageCreateRequestCstr(sip20().get(), "INVITE", -1, "sip:a@b", -1)); }

// The family.

TEST_P(SingleHeaders, HaveASort) {
    EXPECT_EQ(header.sortFunc(), header.record);
    EXPECT_EQ(coObjSort(hdr.get()), header.record);
    EXPECT_EQ(header.record->name, header.sort);
    EXPECT_EQ(header.record->module, &quill___module);
    EXPECT_EQ(header.record->freeFunc, header.freeFunc);
    EXPECT_EQ(header.record->compareFunc, header.compareFunc);
    EXPECT_EQ(header.obj(hdr.get()), hdr.get());
    EXPECT_EQ(header.from(hdr.get()), hdr.get());
    EXPECT_EQ(header.from(nullptr), nullptr);
    Str const other = str("text");
    EXPECT_ABORT(header.from(coStringObj(other)), header.unit, "!obj || coObjSort(obj)==&quill___sort_" + header.sort,
                 "stdfunc from");
}

TEST_P(SingleHeaders, CountReferences) {
    header.retain(hdr.get());
    EXPECT_EQ(count(hdr.get()), 2);
    header.release(hdr.get());
    EXPECT_EQ(count(hdr.get()), 1);
    EXPECT_ABORT(header.retain(nullptr), header.unit, "obj", "stdfunc retain");
    EXPECT_ABORT(header.release(nullptr), header.unit, "obj", "stdfunc release");
}

TEST_P(SingleHeaders, HaveTheirLineAsText) {
    EXPECT_EQ(taken(header.toString(hdr.get())), header.line);
    EXPECT_EQ(taken(coObjToString(hdr.get())), header.line);
    EXPECT_ABORT(header.toString(nullptr), header.unit, "obj", "stdfunc tostring");
}

TEST_P(SingleHeaders, CopiesShareTheirParts) {
    setObjects();
    auto const copy = own(header.createFrom(hdr.get()));
    EXPECT_NE(copy.get(), hdr.get());
    EXPECT_EQ(count(copy.get()), 1);
    EXPECT_EQ(count(hdr.get()), 1);
    EXPECT_EQ(header.describe(copy.get()), header.describe(hdr.get()));
    auto const given = slots(hdr.get());
    auto const copied = slots(copy.get());
    for (size_t i = 0; i < given.size(); i++) {
        EXPECT_EQ(*given[i], *copied[i]) << i;
        EXPECT_GE(count(*given[i]), 2) << i;
    }
    EXPECT_ABORT(header.createFrom(nullptr), header.unit, "source");
}

TEST_P(SingleHeaders, FreeingGivesUpPartsAndLeavesAllOnes) {
    setObjects();
    auto const copy = own(header.createFrom(hdr.get())); // keeps the parts alive
    coObj *freed = hdr.take();
    std::vector<std::pair<coObj *, int64_t>> parts;
    for (coObj *const *slot : slots(freed)) parts.emplace_back(*slot, count(*slot));
    header.freeFunc(freed);
    for (auto const &[part, before] : parts) EXPECT_EQ(count(part), before - !co::isImmortal(part));
    for (coObj *const *slot : slots(freed)) EXPECT_EQ(*slot, co::released<coObj>());
    std::free(freed);
}

TEST_P(SingleHeaders, CompareWithNullAborts) {
    EXPECT_ABORT(header.compare(nullptr, hdr.get()), header.unit, "objA", "stdfunc compare a");
    EXPECT_ABORT(header.compare(hdr.get(), nullptr), header.unit, "objB", "stdfunc compare b");
    EXPECT_ABORT(header.compareFunc(nullptr, hdr.get()), header.unit, "hdrA");
    EXPECT_ABORT(header.compareFunc(hdr.get(), nullptr), header.unit, "hdrB");
}

TEST_P(SingleHeaders, StartAndStop) {
    EXPECT_EQ(utf8(*header.name), header.field);
    auto const marker = reinterpret_cast<coString *>(~uintptr_t{0});
    header.shutdown();
    EXPECT_EQ(*header.name, marker);
    *header.name = nullptr;
    header.shutdown();
    EXPECT_EQ(*header.name, marker) << "also where there was none";
    header.startup();
    EXPECT_EQ(utf8(*header.name), header.field);
}

// Parts.

TEST_P(SingleHeaders, KeepWhatIsSet) {
    for (Part const &part : header.parts) {
        for (std::string const &value : part.good) {
            SCOPED_TRACE(part.name + " = " + value);
            coObj *const before = hdr.get();
            part.set(hdr.address(), value);
            EXPECT_EQ(hdr.get(), before) << "nobody else holds it";
            EXPECT_EQ(part.get(hdr.get()), value);
            EXPECT_TRUE(!part.has || part.has(hdr.get()));
            auto const again = header.decode(header.encoded(hdr.get()));
            ASSERT_TRUE(again) << header.encoded(hdr.get());
            EXPECT_EQ(header.describe(again.get()), header.describe(hdr.get()));
        }
    }
}

TEST_P(SingleHeaders, ReferToTheObjectsThatTheyGive) {
    setObjects();
    std::vector<int64_t> before;
    for (coObj *const *slot : slots(hdr.get())) before.push_back(count(*slot));
    for (Part const &part : header.parts) part.get(hdr.get());
    for (size_t i = 0; i < before.size(); i++)
        EXPECT_EQ(count(*slots(hdr.get())[i]), before[i]) << "the caller's reference was released by the test";
}

TEST_P(SingleHeaders, SettingCopiesWhatOthersHold) {
    for (Part const &part : header.parts) {
        SCOPED_TRACE(part.name);
        std::string const old = header.describe(hdr.get());
        std::string const was = part.get(hdr.get());
        std::string const value =
            *std::find_if(part.good.begin(), part.good.end(), [&](std::string const &other) { return other != was; });
        auto const other = own(co::retained(hdr.get()));
        part.set(hdr.address(), value);
        EXPECT_NE(hdr.get(), other.get());
        EXPECT_EQ(count(hdr.get()), 1);
        EXPECT_EQ(count(other.get()), 1);
        EXPECT_EQ(part.get(hdr.get()), value);
        EXPECT_EQ(header.describe(other.get()), old);
    }
}

TEST_P(SingleHeaders, DeletePartsThatMayBeAbsent) {
    for (Part const &part : header.parts) {
        if (!part.del) continue;
        SCOPED_TRACE(part.name);
        EXPECT_TRUE(part.has(hdr.get()));
        std::string const old = header.describe(hdr.get());
        auto other = own(co::retained(hdr.get()));
        part.del(hdr.address());
        EXPECT_NE(hdr.get(), other.get()) << "somebody else holds it";
        EXPECT_EQ(header.describe(other.get()), old);
        EXPECT_FALSE(part.has(hdr.get()));
        EXPECT_EQ(part.get(hdr.get()), "(absent)");

        coObj *const before = hdr.get();
        part.del(hdr.address());
        EXPECT_EQ(hdr.get(), before) << "nobody else holds it, and nothing is there";
        other.reset(co::retained(hdr.get()));
        part.del(hdr.address());
        EXPECT_NE(hdr.get(), other.get()) << "copied though nothing is there";
    }
}

TEST_P(SingleHeaders, CheckTheArgumentsOfTheirParts) {
    coObj *null = nullptr;
    for (Part const &part : header.parts) {
        SCOPED_TRACE(part.name);
        EXPECT_ABORT(part.get(nullptr), header.unit, "hdr");
        EXPECT_ABORT(part.set(nullptr, part.good.back()), header.unit, "hdr");
        EXPECT_ABORT(part.set(&null, part.good.back()), header.unit, "*hdr");
        for (std::string const &value : part.bad)
            EXPECT_ABORT(part.set(hdr.address(), value), header.unit, part.condition) << value;
        if (!part.optional) continue;
        EXPECT_ABORT(part.has(nullptr), header.unit, "hdr");
        EXPECT_ABORT(part.del(nullptr), header.unit, "hdr");
        EXPECT_ABORT(part.del(&null), header.unit, "*hdr");
    }
}

// Comparison.

TEST_P(SingleHeaders, CompareEachPart) {
    EXPECT_EQ(header.compare(hdr.get(), hdr.get()), 0);
    auto const same = header.decode(header.line);
    EXPECT_EQ(header.compare(hdr.get(), same.get()), 0);
    EXPECT_TRUE(header.equals(hdr.get(), same.get()));
    for (Part const &part : header.parts) {
        SCOPED_TRACE(part.name);
        auto less = own(header.createFrom(hdr.get()));
        auto more = own(header.createFrom(hdr.get()));
        for (size_t i = 0; i + 1 < part.good.size(); i++) {
            part.set(less.address(), part.good[i]);
            part.set(more.address(), part.good[i + 1]);
            EXPECT_EQ(header.compare(less.get(), more.get()), -1) << part.good[i];
            EXPECT_EQ(header.compare(more.get(), less.get()), 1) << part.good[i];
            EXPECT_FALSE(header.equals(less.get(), more.get()));
        }
        if (!part.del) continue;
        part.set(more.address(), part.good.front());
        part.del(less.address());
        EXPECT_EQ(header.compare(less.get(), more.get()), -1) << "absent comes first";
        EXPECT_EQ(header.compare(more.get(), less.get()), 1);
        part.del(more.address());
        EXPECT_EQ(header.compare(less.get(), more.get()), 0) << "absent is absent";
    }
}

TEST_P(SingleHeaders, CompareByTheFirstDifference) {
    for (size_t first = 0; first < header.parts.size(); first++) {
        auto less = own(header.createFrom(hdr.get()));
        auto more = own(header.createFrom(hdr.get()));
        for (size_t i = first; i < header.parts.size(); i++) {
            Part const &part = header.parts[i];
            part.set(less.address(), i == first ? part.good.front() : part.good.back());
            part.set(more.address(), i == first ? part.good.back() : part.good.front());
        }
        EXPECT_EQ(header.compare(less.get(), more.get()), -1) << header.parts[first].name;
        EXPECT_EQ(header.compare(more.get(), less.get()), 1) << header.parts[first].name;
    }
}

// Parameters.

std::string::size_type countOf(std::string const &text, std::string const &piece) {
    std::string::size_type n = 0;
    for (auto at = text.find(piece); at != std::string::npos; at = text.find(piece, at + piece.size())) n++;
    return n;
}

TEST_P(SingleHeaders, WriteALiftedParameterOnce) {
    for (Part const &part : header.parts) {
        if (part.param.empty()) continue;
        SCOPED_TRACE(part.param);
        std::string const name = ";" + part.param;
        Part const &params = header.parts.back();
        ASSERT_EQ(params.kind, Part::Kind::params);
        auto both = bare();
        std::string const value = header.encoded(both.get());
        params.set(both.address(), ";x=1" + name + "=generic;y");
        EXPECT_EQ(header.encoded(both.get()), value + ";x=1" + name + "=generic;y")
            << "as it is, the part not being set";

        part.set(both.address(), part.good.back());
        std::string const written = header.encoded(both.get());
        EXPECT_EQ(countOf(written, name), 1U) << written;
        EXPECT_EQ(countOf(written, "generic"), 0U) << written;
        EXPECT_TRUE(written.starts_with(value + name)) << written;
        EXPECT_TRUE(written.ends_with(";x=1;y")) << written;
        EXPECT_EQ(params.get(both.get()), ";x=1" + name + "=generic;y") << "writing changes nothing";
    }
}

TEST_P(SingleHeaders, WriteTheirPartsAlone) {
    auto const value = bare();
    std::string const line = header.encoded(value.get());
    EXPECT_TRUE(header.line.find(line) != std::string::npos) << line;
    auto const again = header.decode(line);
    ASSERT_TRUE(again);
    EXPECT_TRUE(header.equals(again.get(), value.get()));
}

TEST_P(SingleHeadersWithParams, RefuseASemicolonWithNothingBehindIt) {
    EXPECT_TRUE(header.decode(header.line + ";y"));
    EXPECT_TRUE(header.decode(header.line + " ; y = \"z\""));
    for (char const *rest : {";", ";;y", "; ", ";=1", ";y=", " y", ",y", ";y;", ";y z", ";\"y\""})
        EXPECT_FALSE(header.decode(header.line + rest)) << rest;
}

// Conversions.

TEST_P(SingleHeaders, EncodeOneLine) {
    auto const raw = own(header.encode(hdr.get()));
    EXPECT_TRUE(quillMessageHeaderNameEquals(raw.get(), *header.name));
    EXPECT_EQ(lines(raw.get()), "[" + header.line + "]");
    EXPECT_ABORT(header.encode(nullptr), header.unit, "hdr");
}

TEST_P(SingleHeaders, DecodeTheLastLine) {
    auto const last = own(header.tryDecode(test::header(header.field, {"\x01", header.line}).get()));
    ASSERT_TRUE(last);
    EXPECT_TRUE(header.equals(last.get(), hdr.get()));
    EXPECT_FALSE(own(header.tryDecode(test::header(header.field, {header.line, "\x01"}).get())));
    EXPECT_FALSE(own(header.tryDecode(test::header(header.field, {}).get()))) << "no lines";
}

TEST_P(SingleHeaders, DecodeTheirOwnNameOnly) {
    std::string upper = header.field;
    for (char &ch : upper) ch = static_cast<char>(std::toupper(ch));
    EXPECT_TRUE(own(header.tryDecode(test::header(upper, {header.line}).get())));
    auto const wrong = test::header("X-Other", {header.line});
    EXPECT_ABORT(header.tryDecode(wrong.get()), header.unit,
                 "quillMessageHeaderNameEquals( header, quill___Cos" + header.type + " )");
}

TEST_P(SingleHeaders, AreStoredAndRestored) {
    auto const store = own(header.store(hdr.get()));
    auto const raw = own(header.encode(hdr.get()));
    EXPECT_TRUE(coStoreEquals(store.get(), own(quillMessageHeaderStoreLines(raw.get())).get()));
    auto const restored = own(header.tryRestore(store.get()));
    ASSERT_TRUE(restored);
    EXPECT_TRUE(header.equals(restored.get(), hdr.get()));
    EXPECT_FALSE(own(header.tryRestore(own(coStoreCreate()).get()))) << "no lines";
    auto const bad = own(quillMessageHeaderStoreLines(test::header(header.field, {"\x01"}).get()));
    EXPECT_FALSE(own(header.tryRestore(bad.get())));
    EXPECT_ABORT(header.store(nullptr), header.unit, "hdr");
    EXPECT_ABORT(header.tryRestore(nullptr), header.unit, "store");
}

TEST_P(SingleHeaders, StandInMessages) {
    auto msg = request();
    EXPECT_FALSE(header.present(msg.get()));
    EXPECT_FALSE(own(header.tryDecodeFromMessage(msg.get()))) << "no such header";
    quillMessageSetHeader(msg.address(), test::header(header.field, {}).get());
    EXPECT_FALSE(own(header.tryDecodeFromMessage(msg.get()))) << "no lines";
    quillMessageSetHeader(msg.address(), test::header(header.field, {"\x01", "\x02"}).get());
    EXPECT_TRUE(header.present(msg.get()));
    EXPECT_FALSE(own(header.tryDecodeFromMessage(msg.get())));

    auto const other = own(co::retained(msg.get()));
    header.encodeToMessage(hdr.get(), msg.address());
    EXPECT_NE(msg.get(), other.get()) << "somebody else holds it";
    EXPECT_EQ(lines(own(quillMessageHeader(other.get(), *header.name)).get()), "[\x01][\x02]");
    EXPECT_EQ(lines(own(quillMessageHeader(msg.get(), *header.name)).get()), "[" + header.line + "]");
    auto const decoded = own(header.tryDecodeFromMessage(msg.get()));
    ASSERT_TRUE(decoded);
    EXPECT_TRUE(header.equals(decoded.get(), hdr.get()));

    header.removeFromMessage(msg.address());
    EXPECT_FALSE(header.present(msg.get()));
    header.removeFromMessage(msg.address());
    EXPECT_EQ(coVectorLength(own(quillMessageHeadersVector(msg.get())).get()), 0);
}

TEST_P(SingleHeaders, CheckTheMessage) {
    auto msg = request();
    Message *null = nullptr;
    EXPECT_ABORT(header.encodeToMessage(nullptr, msg.address()), header.unit, "hdr");
    EXPECT_ABORT(header.encodeToMessage(hdr.get(), nullptr), header.unit, "msg");
    EXPECT_ABORT(header.encodeToMessage(hdr.get(), &null), header.unit, "*msg");
    EXPECT_ABORT(header.tryDecodeFromMessage(nullptr), header.unit, "msg");
    EXPECT_ABORT(header.present(nullptr), "source/quill/quill_message", "msg");
    EXPECT_ABORT(header.removeFromMessage(nullptr), "source/quill/quill_message", "msg");
    EXPECT_ABORT(header.removeFromMessage(&null), "source/quill/quill_message", "*msg");
}

// Lines that nobody meant to write.

TEST_P(SingleHeaders, TakeNoControls) {
    for (char const *line : {"\x01", "\x7f", "a\rb", "a\nb", "1\x01", "a;x\r", "1;x=\"\n\""})
        EXPECT_FALSE(header.decode(line)) << line;
    for (char const *end : {"\x01", "\x7f", "\r", "\n"}) EXPECT_FALSE(header.decode(header.line + end));
}

TEST_P(SingleHeaders, TakeNoEmptyLineButForTexts) {
    EXPECT_EQ(static_cast<bool>(header.decode("")), header.type == "Organization" || header.type == "Subject");
}

TEST_P(SingleHeaders, SurviveEveryLine) {
    constexpr char32_t pieces[] = U"\0\t\r\n !\"%'()*+,-./019:;<=>?@AZ[\\]^_az{|}~\x7f\xa0é\u0660\u2028\U0001F600";
    std::u32string const line = wide(header.line);
    std::minstd_rand random(static_cast<uint32_t>(std::hash<std::string>()(header.type)));
    auto const below = [&](size_t n) { return std::uniform_int_distribution<size_t>(0, n - 1)(random); };
    int64_t decodedLines = 0;
    for (int i = 0; i < 4000; i++) {
        std::u32string text = line;
        for (size_t n = 1 + below(3); n > 0; n--) {
            size_t const at = below(text.size() + 1);
            char32_t const piece = pieces[below(std::size(pieces) - 1)];
            switch (below(4)) {
            case 0:
                text.insert(at, 1, piece);
                break;
            case 1:
                text.erase(at, 1 + below(4));
                break;
            case 2:
                if (at < text.size()) text[at] = piece;
                break;
            default:
                text.insert(at, text.substr(below(text.size() + 1), below(8)));
                break;
            }
        }
        if (text.find(U"\r\n") != std::u32string::npos) continue; // no line of a header
        auto raw = test::header(header.field, {});
        quillMessageHeaderAppendLine(raw.address(), Str(text));
        auto const once = own(header.tryDecode(raw.get()));
        if (!once) continue;
        decodedLines++;
        std::string const written = header.encoded(once.get());
        auto const again = header.decode(written);
        ASSERT_TRUE(again) << written;
        EXPECT_EQ(header.encoded(again.get()), written);
    }
    EXPECT_GT(decodedLines, 0);
    EXPECT_LT(decodedLines, 4000);
}

TEST_P(SingleHeaders, SurviveEveryBeginning) {
    std::u32string const line = wide(header.line);
    for (size_t length = 0; length < line.size(); length++) {
        auto raw = test::header(header.field, {});
        quillMessageHeaderAppendLine(raw.address(), Str(line.substr(0, length)));
        auto const once = own(header.tryDecode(raw.get()));
        EXPECT_TRUE(!once || header.decode(header.encoded(once.get()))) << length;
    }
}

TEST_P(SingleHeadersWithParams, CostWhatTheirLineIsLong) {
    expectLinear(header.type, 500, [&](size_t n) {
        std::string line = header.line;
        for (size_t i = 0; i < n; i++) line += ";p" + std::to_string(i) + header.line.substr(header.line.rfind(';'));
        return [this, raw = test::header(header.field, {line})] { EXPECT_TRUE(own(header.tryDecode(raw.get()))); };
    });
}

} // namespace
