#include "objects.hpp"

#include <co/co_store.h>
#include <quill/quill_field_name.hpp>
#include <support/cost.hpp>

using namespace test;

namespace {

constexpr char unit[] = "source/quill/quill_message_header";
char const *const nameOk = "quillMessageHeaderNameOk( name )";
char const *const lineOk = "quillMessageHeaderLineOk( value )";

std::string normal(std::string_view name) { return taken(quillMessageHeaderNameNormalize(str(name))); }

TEST(QuillMessageHeader, NormalizesNames) {
    struct {
        char const *name;
        char const *expected;
    } const rows[] = {
        // compact names (RFC 3261, 7.3.3, and extensions)
        {"a", "Accept-Contact"},
        {"u", "Allow-Events"},
        {"i", "Call-Id"},
        {"m", "Contact"},
        {"e", "Content-Encoding"},
        {"l", "Content-Length"},
        {"c", "Content-Type"},
        {"o", "Event"},
        {"f", "From"},
        {"y", "Identity"},
        {"n", "Identity-Info"},
        {"r", "Refer-To"},
        {"b", "Referred-By"},
        {"j", "Reject-Contact"},
        {"d", "Request-Disposition"},
        {"x", "Session-Expires"},
        {"s", "Subject"},
        {"k", "Supported"},
        {"t", "To"},
        {"v", "Via"},
        {"A", "Accept-Contact"},
        {"U", "Allow-Events"},
        {"I", "Call-Id"},
        {"M", "Contact"},
        {"E", "Content-Encoding"},
        {"L", "Content-Length"},
        {"C", "Content-Type"},
        {"O", "Event"},
        {"F", "From"},
        {"Y", "Identity"},
        {"N", "Identity-Info"},
        {"R", "Refer-To"},
        {"B", "Referred-By"},
        {"J", "Reject-Contact"},
        {"D", "Request-Disposition"},
        {"X", "Session-Expires"},
        {"S", "Subject"},
        {"K", "Supported"},
        {"T", "To"},
        {"V", "Via"},
        // one letter, but not compact
        {"g", "G"},
        {"h", "H"},
        {"p", "P"},
        {"q", "Q"},
        {"w", "W"},
        {"Z", "Z"},
        {"1", "1"},
        {"-", "-"},
        {"!", "!"},
        // known names
        {"call-id", "Call-Id"},
        {"CALL-ID", "Call-Id"},
        {"CSeq", "Cseq"},
        {"RAck", "Rack"},
        {"RSeq", "Rseq"},
        {"min-se", "Min-Se"},
        {"content-length", "Content-Length"},
        {"USER-to-user", "User-To-User"},
        {"p-asserted-identity", "P-Asserted-Identity"},
        // others
        {"WWW-AUTHENTICATE", "Www-Authenticate"},
        {"x-my-header", "X-My-Header"},
        {"v-a", "V-A"},
        {"vv", "Vv"},
        {"a--b", "A--B"},
        {"-x-", "-X-"},
        {"a.b_c", "A.b_c"},
        {"1a-2b-3c", "1a-2b-3c"},
        {"!a%b*c_d+e`f'g~H", "!a%b*c_d+e`f'g~h"},
    };
    for (auto const &row : rows) {
        EXPECT_EQ(normal(row.name), row.expected) << row.name;
        EXPECT_EQ(normal(normal(row.name)), row.expected) << "stays as it is";
        EXPECT_EQ(taken(quillMessageHeaderName(header(row.name, {}).get())), row.expected);
    }
}

TEST(QuillMessageHeader, KnownNamesAreShared) {
    static_assert(quill::knownFieldNameCount == 58 + 7);
    for (int i = 0; i < quill::knownFieldNameCount; i++) {
        std::string const name = utf8(quill::fieldNameAt(i));
        std::string upper = name;
        for (char &ch : upper) ch = static_cast<char>(std::toupper(ch));
        EXPECT_EQ(normal(upper), name);
        auto const shared = own(quillMessageHeaderNameNormalize(str(upper)));
        EXPECT_EQ(shared.get(), quill::fieldNameAt(i));
        // a name that differs in one letter is another one
        for (size_t at = 0; at < name.size(); at++) {
            std::string other = name;
            other[at] = other[at] == 'q' || other[at] == 'Q' ? '!' : 'q';
            EXPECT_EQ(quill::knownFieldName(std::string_view(other)), -1) << other;
        }
    }
}

TEST(QuillMessageHeader, NamesAreTokens) {
    for (char const *name : {"a", "Via", "x-y.z", "!%*_+`'~-.", "0"})
        EXPECT_TRUE(quillMessageHeaderNameOk(str(name))) << name;
    for (char const *name : {"", " ", "a b", " a", "a ", "a:", "a\t", "\"a\"", "a,b", "\u00E9", "a\u00E9", "a(b)"})
        EXPECT_FALSE(quillMessageHeaderNameOk(str(name))) << name;
    EXPECT_FALSE(quillMessageHeaderNameOk(str(std::string_view("a\0", 2))));
    EXPECT_ABORT(quillMessageHeaderNameOk(nullptr), unit, "name");
    EXPECT_ABORT(quillMessageHeaderNameNormalize(str("")), unit, nameOk);
}

TEST(QuillMessageHeader, LinesAreFreeOfCrLf) {
    for (char const *line : {"", " ", " a ", "\r", "\n", "\n\r", "a\rb", "a\nb", "\r \n", "\u20AC", "a:b"})
        EXPECT_TRUE(quillMessageHeaderLineOk(str(line))) << line;
    EXPECT_TRUE(quillMessageHeaderLineOk(str(std::string_view("\0", 1))));
    for (char const *line : {"\r\n", "a\r\n", "\r\nb", "a\r\nb", "\r\r\n", "\r\n\n"})
        EXPECT_FALSE(quillMessageHeaderLineOk(str(line))) << line;
    EXPECT_ABORT(quillMessageHeaderLineOk(nullptr), unit, "line");
}

TEST(QuillMessageHeader, LinesOfAllLengthsAreFreeOfCrLf) {
    for (size_t length = 2; length < 70; length++)
        for (size_t at = 0; at < length; at++) {
            std::string text(length, 'x');
            text[at] = '\r';
            EXPECT_TRUE(quillMessageHeaderLineOk(str(text))) << at << " of " << length;
            if (at + 1 == length) continue;
            text[at + 1] = '\n';
            EXPECT_FALSE(quillMessageHeaderLineOk(str(text))) << at << " of " << length;
        }
}

TEST(QuillMessageHeader, CreatesWithoutLines) {
    for (auto const &made :
         {own(quillMessageHeaderCreateCstr("call-IDx", 7)), own(quillMessageHeaderCreateCstr("i", -1)),
          own(quillMessageHeaderCreateWcstr(L"ix", 1)), own(quillMessageHeaderCreateWcstr(L"Call-id", -1)),
          own(quillMessageHeaderCreate(str("CALL-ID")))}) {
        EXPECT_EQ(taken(quillMessageHeaderName(made.get())), "Call-Id");
        EXPECT_EQ(quillMessageHeaderLinesLength(made.get()), 0);
        EXPECT_EQ(quillMessageHeaderLastLine(made.get()), nullptr);
        EXPECT_EQ(coVectorLength(own(quillMessageHeaderLinesVector(made.get())).get()), 0);
    }
    EXPECT_ABORT(quillMessageHeaderCreate(str("")), unit, nameOk);
    EXPECT_ABORT(quillMessageHeaderCreateCstr("a b", -1), unit, nameOk);
    EXPECT_ABORT(quillMessageHeaderCreateWcstr(L"a:", 2), unit, nameOk);
}

TEST(QuillMessageHeader, NamesAreEqualHoweverSpelt) {
    auto const via = header("Via", {});
    for (char const *name : {"v", "V", "VIA", "via", "Via", "vIA"})
        EXPECT_TRUE(quillMessageHeaderNameEquals(via.get(), str(name))) << name;
    for (char const *name : {"vi", "vias", "t", "w"}) EXPECT_FALSE(quillMessageHeaderNameEquals(via.get(), str(name)));
    EXPECT_TRUE(quillMessageHeaderNameEqualsCstr(via.get(), "vx", 1));
    EXPECT_FALSE(quillMessageHeaderNameEqualsCstr(via.get(), "vx", -1));
    EXPECT_TRUE(quillMessageHeaderNameEqualsWcstr(via.get(), L"VIA", -1));
    EXPECT_FALSE(quillMessageHeaderNameEqualsWcstr(via.get(), L"VIA", 2));
    EXPECT_ABORT(quillMessageHeaderNameEquals(nullptr, str("v")), unit, "header");
    EXPECT_ABORT(quillMessageHeaderNameEquals(via.get(), str("")), unit, nameOk);
}

struct Change {
    char const *why;
    void (*change)(Header **);
    char const *expected;
};

Change const changes[] = {
    {"name", [](Header **h) { quillMessageHeaderSetName(h, str("T")); }, "To[a][b]"},
    {"name, UTF-8", [](Header **h) { quillMessageHeaderSetNameCstr(h, "tx", 1); }, "To[a][b]"},
    {"name, wide", [](Header **h) { quillMessageHeaderSetNameWcstr(h, L"to", -1); }, "To[a][b]"},
    {"lines",
     [](Header **h) {
         quillMessageHeaderSetLinesVector(h,
                                          own(quillMessageHeaderLinesVector(header("x", {"1", "", "3"}).get())).get());
     },
     "Via[1][][3]"},
    {"no lines", [](Header **h) { quillMessageHeaderSetLinesVector(h, own(coVectorCreate()).get()); }, "Via"},
    {"line", [](Header **h) { quillMessageHeaderSetLineAt(h, 1, str("new")); }, "Via[a][new]"},
    {"line, UTF-8", [](Header **h) { quillMessageHeaderSetLineAtCstr(h, 0, "newer", 3); }, "Via[new][b]"},
    {"line, wide", [](Header **h) { quillMessageHeaderSetLineAtWcstr(h, 0, L"\u20AC", -1); }, "Via[\u20AC][b]"},
    {"line, format",
     [](Header **h) { quillMessageHeaderSetLineAtFormat(h, 0, str("%s-%03i"), str("x").get(), int64_t{7}); },
     "Via[x-007][b]"},
    {"line, UTF-8 format", [](Header **h) { quillMessageHeaderSetLineAtFormatCstr(h, 1, "%i%%", -1, int64_t{-5}); },
     "Via[a][-5%]"},
    {"line, wide format", [](Header **h) { quillMessageHeaderSetLineAtFormatWcstr(h, 1, L"%ixx", 2, int64_t{12}); },
     "Via[a][12]"},
    {"append", [](Header **h) { quillMessageHeaderAppendLine(h, str("")); }, "Via[a][b][]"},
    {"append, UTF-8", [](Header **h) { quillMessageHeaderAppendLineCstr(h, "\xC3\xA4", -1); }, "Via[a][b][\u00E4]"},
    {"append, wide", [](Header **h) { quillMessageHeaderAppendLineWcstr(h, L"cd", 1); }, "Via[a][b][c]"},
    {"append, format",
     [](Header **h) { quillMessageHeaderAppendLineFormat(h, str("<%~s>"), coStringCreateFromCstr("c", -1)); },
     "Via[a][b][<c>]"},
    {"append, UTF-8 format", [](Header **h) { quillMessageHeaderAppendLineFormatCstr(h, "%i", -1, int64_t{3}); },
     "Via[a][b][3]"},
    {"append, wide format", [](Header **h) { quillMessageHeaderAppendLineFormatWcstr(h, L"%i", -1, int64_t{4}); },
     "Via[a][b][4]"},
    {"delete the first", [](Header **h) { quillMessageHeaderDelLineAt(h, 0); }, "Via[b]"},
    {"delete the last", [](Header **h) { quillMessageHeaderDelLineAt(h, 1); }, "Via[a]"},
};

std::string text(Header const *header) { return taken(quillMessageHeaderName(header)) + lines(header); }

TEST(QuillMessageHeader, ChangesCopyOnWrite) {
    for (Change const &row : changes) {
        auto alone = header("v", {"a", "b"});
        Header const *before = alone.get();
        row.change(alone.address());
        EXPECT_EQ(alone.get(), before) << row.why;
        EXPECT_EQ(text(alone.get()), row.expected) << row.why;

        auto mine = header("v", {"a", "b"});
        auto const copy = own(quillMessageHeaderCreateFrom(mine.get()));
        auto const vector = own(quillMessageHeaderLinesVector(mine.get()));
        co::Ref<Header> const other(co::retained(mine.get()));
        row.change(mine.address());
        EXPECT_NE(mine.get(), other.get()) << row.why;
        EXPECT_EQ(count(other.get()), 1) << row.why;
        EXPECT_EQ(text(mine.get()), row.expected) << row.why;
        EXPECT_EQ(text(other.get()), "Via[a][b]") << row.why;
        EXPECT_EQ(text(copy.get()), "Via[a][b]") << row.why << ": the shared lines are not changed";
        EXPECT_EQ(taken(coVectorToString(vector.get())), "[a, b]") << row.why;
    }
}

TEST(QuillMessageHeader, ReadsLines) {
    auto const made = header("v", {"a", "", "c"});
    EXPECT_EQ(quillMessageHeaderLinesLength(made.get()), 3);
    EXPECT_EQ(taken(quillMessageHeaderLineAt(made.get(), 0)), "a");
    EXPECT_EQ(taken(quillMessageHeaderLineAt(made.get(), 1)), "");
    EXPECT_EQ(taken(quillMessageHeaderLastLine(made.get())), "c");
    for (int64_t index : {-1, 3}) {
        EXPECT_DEATH(quillMessageHeaderLineAt(made.get(), index), "abort: source/co/co_vector");
        Header *mine = made.get();
        EXPECT_DEATH(quillMessageHeaderSetLineAt(&mine, index, str("")), "abort: source/co/co_vector");
        EXPECT_DEATH(quillMessageHeaderDelLineAt(&mine, index), "abort: source/co/co_vector");
    }
}

TEST(QuillMessageHeader, Compares) {
    co::Ref<Header> const ascending[] = {
        header("Accept", {"z"}), header("v", {}),         header("v", {""}),
        header("v", {"a"}),      header("v", {"a", "b"}), header("v", {"b"}),
    };
    for (auto const &a : ascending)
        for (auto const &b : ascending) {
            int const order = quillMessageHeaderCompare(a.get(), b.get());
            EXPECT_EQ((order > 0) - (order < 0), (&a > &b) - (&a < &b)) << text(a.get()) << text(b.get());
        }
    EXPECT_TRUE(quillMessageHeaderEquals(header("v", {"x"}).get(), header("VIA", {"x"}).get()));
    EXPECT_FALSE(quillMessageHeaderEquals(header("v", {"x"}).get(), header("v", {"X"}).get()));
    coObj const *obj = quillMessageHeaderObj(ascending[0].get());
    EXPECT_ABORT(quill___MessageHeaderCompFunc(nullptr, obj), unit, "thisObj");
    EXPECT_ABORT(quill___MessageHeaderCompFunc(obj, nullptr), unit, "thatObj");
}

TEST(QuillMessageHeader, Asserts) {
    Header *null = nullptr;
    auto made = header("v", {"a"});
    auto const none = own(coVectorCreate());
    EXPECT_ABORT(quillMessageHeaderName(nullptr), unit, "header");
    EXPECT_ABORT(quillMessageHeaderLinesLength(nullptr), unit, "header");
    EXPECT_ABORT(quillMessageHeaderLineAt(nullptr, 0), unit, "header");
    EXPECT_ABORT(quillMessageHeaderLastLine(nullptr), unit, "header");
    EXPECT_ABORT(quillMessageHeaderLinesVector(nullptr), unit, "header");
    EXPECT_ABORT(quillMessageHeaderStore(nullptr), unit, "header");
    EXPECT_ABORT(quillMessageHeaderStoreLines(nullptr), unit, "header");
    EXPECT_ABORT(quillMessageHeaderSetName(nullptr, str("")), unit, "header");
    EXPECT_ABORT(quillMessageHeaderSetName(&null, str("")), unit, "*header");
    EXPECT_ABORT(quillMessageHeaderSetName(made.address(), str("")), unit, nameOk);
    EXPECT_ABORT(quillMessageHeaderSetLinesVector(nullptr, none.get()), unit, "header");
    EXPECT_ABORT(quillMessageHeaderSetLinesVector(&null, none.get()), unit, "*header");
    EXPECT_ABORT(quillMessageHeaderSetLineAt(nullptr, 0, str("\r\n")), unit, "header");
    EXPECT_ABORT(quillMessageHeaderSetLineAt(&null, 0, str("\r\n")), unit, "*header");
    EXPECT_ABORT(quillMessageHeaderSetLineAt(made.address(), 0, str("\r\n")), unit, lineOk);
    EXPECT_ABORT(quillMessageHeaderSetLineAtCstr(made.address(), 0, "\r\n", -1), unit, lineOk);
    EXPECT_ABORT(quillMessageHeaderSetLineAtWcstr(made.address(), 0, L"\r\n", -1), unit, lineOk);
    EXPECT_ABORT(quillMessageHeaderSetLineAtFormatCstr(made.address(), 0, "%s\n", -1, str("\r").get()), unit, lineOk);
    EXPECT_ABORT(quillMessageHeaderAppendLine(nullptr, str("\r\n")), unit, "header");
    EXPECT_ABORT(quillMessageHeaderAppendLine(&null, str("\r\n")), unit, "*header");
    EXPECT_ABORT(quillMessageHeaderAppendLine(made.address(), str("a\r\nb")), unit, lineOk);
    EXPECT_ABORT(quillMessageHeaderAppendLineCstr(made.address(), "\r\n", -1), unit, lineOk);
    EXPECT_ABORT(quillMessageHeaderAppendLineFormat(made.address(), str("\r\n")), unit, lineOk);
    EXPECT_ABORT(quillMessageHeaderDelLineAt(nullptr, 0), unit, "header");
    EXPECT_ABORT(quillMessageHeaderDelLineAt(&null, 0), unit, "*header");

    auto mixed = own(coVectorCreate());
    coVectorAppendString(mixed.address(), str("\r\n"));
    EXPECT_ABORT(quillMessageHeaderSetLinesVector(made.address(), mixed.get()), unit,
                 "quillMessageHeaderLineOk( cos )");
    coVectorAppend(mixed.address(), quillMessageHeaderObj(made.get()));
    EXPECT_ABORT(quillMessageHeaderSetLinesVector(made.address(), mixed.get()), unit,
                 "coVectorContainsOnly( lines, coStringSort() )");
}

TEST(QuillMessageHeader, StoresAndRestores) {
    auto lines = {"a", "", "c"};
    auto made = header("v", {});
    for (char const *line : lines) quillMessageHeaderAppendLineCstr(made.address(), line, -1);
    auto const store = own(quillMessageHeaderStore(made.get()));
    EXPECT_EQ(coStoreLength(store.get()), 2);
    EXPECT_EQ(taken(coStoreValue(store.get(), str("name"))), "Via");
    auto const sub = own(coStoreStore(store.get(), str("lines")));
    EXPECT_EQ(coStoreLength(sub.get()), 3);
    EXPECT_TRUE(quillMessageHeaderEquals(own(quillMessageHeaderTryRestore(store.get())).get(), made.get()));
    EXPECT_TRUE(coStoreEquals(sub.get(), own(quillMessageHeaderStoreLines(made.get())).get()));
    auto const other = own(quillMessageHeaderRestoreLinesCstr("tx", 1, sub.get()));
    EXPECT_EQ(text(other.get()), "To[a][][c]");
    EXPECT_EQ(text(own(quillMessageHeaderRestoreLinesWcstr(L"to", -1, sub.get())).get()), "To[a][][c]");
}

TEST(QuillMessageHeader, StoreKeysSortInTheOrderOfTheLines) {
    auto made = header("x", {});
    for (int64_t i = 0; i < 123; i++) quillMessageHeaderAppendLineFormatCstr(made.address(), "%i", -1, i);
    auto const store = own(quillMessageHeaderStoreLines(made.get()));
    EXPECT_EQ(taken(coStoreValue(store.get(), str("000"))), "0");
    EXPECT_EQ(taken(coStoreValue(store.get(), str("009"))), "9");
    EXPECT_EQ(taken(coStoreValue(store.get(), str("122"))), "122");
    auto const full = own(quillMessageHeaderStore(made.get()));
    EXPECT_TRUE(quillMessageHeaderEquals(own(quillMessageHeaderTryRestore(full.get())).get(), made.get()));
    auto const empty = own(quillMessageHeaderStore(header("x", {}).get()));
    EXPECT_EQ(text(own(quillMessageHeaderTryRestore(empty.get())).get()), "Session-Expires");
}

co::Ref<coStore> storeNamed(char const *name) {
    auto store = own(coStoreCreate());
    coStoreSetStore(store.address(), str("lines"), own(coStoreCreate()).get());
    if (name) coStoreSetValue(store.address(), str("name"), str(name));
    return store;
}

TEST(QuillMessageHeader, RestoresFromHostileStores) {
    EXPECT_EQ(quillMessageHeaderTryRestore(storeNamed(nullptr).get()), nullptr);
    for (char const *name : {"", "a b", "a:", "\u00E4", "v\r\n"})
        EXPECT_EQ(quillMessageHeaderTryRestore(storeNamed(name).get()), nullptr) << name;
    EXPECT_EQ(text(own(quillMessageHeaderTryRestore(storeNamed("i").get())).get()), "Call-Id");

    auto nested = own(coStoreCreate()); // a store where the name should be
    coStoreSetStore(nested.address(), str("name"), own(coStoreCreate()).get());
    EXPECT_EQ(quillMessageHeaderTryRestore(nested.get()), nullptr);

    auto bad = own(coStoreCreate());
    coStoreSetValue(bad.address(), str("z"), str("first"));
    coStoreSetValue(bad.address(), str("a"), str("no\r\nline"));
    coStoreSetStore(bad.address(), str("b"), own(coStoreCreate()).get());
    coStoreSetValue(bad.address(), str(""), str("second"));
    EXPECT_EQ(text(own(quillMessageHeaderRestoreLines(str("t"), bad.get())).get()), "To[first][second]");

    auto without = own(coStoreCreate());
    coStoreSetValue(without.address(), str("name"), str("v"));
    EXPECT_ABORT(quillMessageHeaderTryRestore(without.get()), unit, "store");
    coStoreSetValue(without.address(), str("lines"), str("text"));
    EXPECT_ABORT(quillMessageHeaderTryRestore(without.get()), unit, "store");
    EXPECT_ABORT(quillMessageHeaderTryRestore(nullptr), unit, "store");
    EXPECT_ABORT(quillMessageHeaderRestoreLines(str(""), nullptr), unit, nameOk);
    EXPECT_ABORT(quillMessageHeaderRestoreLines(str("v"), nullptr), unit, "store");
}

TEST(QuillMessageHeader, CostIsLinear) {
    expectLinear("a long name", 20000, [](size_t n) {
        return [name = str(repeated("aB-", n))] { taken(quillMessageHeaderNameNormalize(name)); };
    });
    expectLinear("lines one by one, stored and restored", 2000, [](size_t n) {
        return [n] {
            auto made = header("x", {});
            for (size_t i = 0; i < n; i++) quillMessageHeaderAppendLineCstr(made.address(), "line", -1);
            auto const store = own(quillMessageHeaderStore(made.get()));
            own(quillMessageHeaderTryRestore(store.get()));
        };
    });
}

} // namespace
