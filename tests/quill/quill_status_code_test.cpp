// Status codes: classes and default reason phrases. The range: quill_integer_values_test.cpp.
#include <map>
#include <quill/quill_status_code.h>
#include <support/text.hpp>

static std::map<int64_t, std::string> const phrases = {
    {100, "Trying"},
    {180, "Ringing"},
    {181, "Call is being forwarded"},
    {182, "Queued"},
    {183, "Session progress"},
    {200, "OK"},
    {202, "Accepted"},
    {300, "Multiple choices"},
    {301, "Moved permanently"},
    {302, "Moved temporarily"},
    {305, "Use proxy"},
    {380, "Alternative service"},
    {400, "Bad request"},
    {401, "Unauthorized"},
    {402, "Payment required"},
    {403, "Forbidden"},
    {404, "Not found"},
    {405, "Method not allowed"},
    {406, "Not acceptable"},
    {407, "Proxy authentication required"},
    {408, "Request timeout"},
    {409, "Conflict"},
    {410, "Gone"},
    {412, "Length required"},
    {413, "Request entity too large"},
    {414, "Request-URI too long"},
    {415, "Unsupported media type"},
    {416, "Unsupported URI scheme"},
    {420, "Bad extension"},
    {421, "Extension required"},
    {422, "Session interval too small"},
    {423, "Interval too brief"},
    {424, "Bad Location Information"},
    {429, "Provide referrer identity"},
    {480, "Temporarily not available"},
    {481, "Call leg/transaction does not exist"},
    {482, "Loop detected"},
    {483, "Too many hops"},
    {484, "Address incomplete"},
    {485, "Ambiguous"},
    {486, "Busy here"},
    {487, "Request terminated"},
    {488, "Not acceptable here"},
    {489, "Bad event"},
    {491, "Request pending"},
    {493, "Undecipherable"},
    {500, "Internal server error"},
    {501, "Not implemented"},
    {502, "Bad gateway"},
    {503, "Service unavailable"},
    {504, "Server timeout"},
    {505, "SIP version not supported"},
    {513, "Message too large"},
    {580, "Precondition failed"},
    {600, "Busy everywhere"},
    {603, "Decline"},
    {604, "Does not exist anywhere"},
    {606, "Not acceptable"},
};

TEST(StatusCode, HasItsReasonPhrase) {
    ASSERT_EQ(phrases.size(), 58u);
    for (auto const &[code, phrase] : phrases) EXPECT_EQ(test::taken(quillStatusCodeReasonPhrase(code)), phrase);
}

TEST(StatusCode, NamesItselfWhereItHasNone) {
    for (int64_t code = 100; code <= 999; code++) {
        if (phrases.contains(code)) continue;
        EXPECT_EQ(test::taken(quillStatusCodeReasonPhrase(code)), "Unknown reason \"" + std::to_string(code) + "\"");
    }
}

TEST(StatusCode, GivesAPhraseOfItsOwnEachTime) {
    co::Ref<coString> const once(quillStatusCodeReasonPhrase(200));
    co::Ref<coString> const twice(quillStatusCodeReasonPhrase(200));
    EXPECT_NE(once.get(), twice.get());
    EXPECT_EQ(test::count(once.get()), 1);
}

namespace {

struct Class {
    char const *name;
    bool (*test)(int64_t);
    int64_t first;
};

constexpr Class classes[] = {
    {"informational", quillStatusCodeInformational, 100}, {"success", quillStatusCodeSuccess, 200},
    {"redirection", quillStatusCodeRedirection, 300},     {"client error", quillStatusCodeClientError, 400},
    {"server error", quillStatusCodeServerError, 500},    {"global failure", quillStatusCodeGlobalFailure, 600},
};

} // namespace

TEST(StatusCode, IsOfOneClassOfAHundredUpTo699AndOfNoneBeyond) {
    for (auto const &[name, isOfClass, first] : classes) {
        for (int64_t code = 100; code <= 999; code++)
            EXPECT_EQ(isOfClass(code), code >= first && code < first + 100) << name << ' ' << code;
    }
}

TEST(StatusCode, IsInvalidWhereThereIsNone) {
    EXPECT_EQ(QUILL_STATUS_CODE_INVALID, -1);
    EXPECT_FALSE(quillStatusCodeOk(QUILL_STATUS_CODE_INVALID));
}

TEST(StatusCode, MustBeValid) {
    for (int64_t const wrong : {INT64_MIN, int64_t{QUILL_STATUS_CODE_INVALID}, int64_t{99}, int64_t{1000}, INT64_MAX}) {
        EXPECT_ABORT(quillStatusCodeReasonPhrase(wrong), "source/quill/quill_status_code", "quillStatusCodeOk( sc )");
        for (auto const &[name, isOfClass, first] : classes)
            EXPECT_ABORT(isOfClass(wrong), "source/quill/quill_status_code", "quillStatusCodeOk( sc )");
    }
}
