// Status codes and their default reason phrases. Contract: quill_status_code.h.

#define CO_UNIT "source/quill/quill_status_code"

#include <quill/quill_code_text.hpp>
#include <quill/quill_scalar.hpp>
#include <quill/quill_status_code.h>

// RFC 3261, 21, and the extensions known when the texts were settled; later codes have none.
static constexpr quill::CodeText reasonPhrases[] = {
    {100, U"Trying"},
    {180, U"Ringing"},
    {181, U"Call is being forwarded"},
    {182, U"Queued"},
    {183, U"Session progress"},
    {200, U"OK"},
    {202, U"Accepted"},
    {300, U"Multiple choices"},
    {301, U"Moved permanently"},
    {302, U"Moved temporarily"},
    {305, U"Use proxy"},
    {380, U"Alternative service"},
    {400, U"Bad request"},
    {401, U"Unauthorized"},
    {402, U"Payment required"},
    {403, U"Forbidden"},
    {404, U"Not found"},
    {405, U"Method not allowed"},
    {406, U"Not acceptable"},
    {407, U"Proxy authentication required"},
    {408, U"Request timeout"},
    {409, U"Conflict"},
    {410, U"Gone"},
    {412, U"Length required"},
    {413, U"Request entity too large"},
    {414, U"Request-URI too long"},
    {415, U"Unsupported media type"},
    {416, U"Unsupported URI scheme"},
    {420, U"Bad extension"},
    {421, U"Extension required"},
    {422, U"Session interval too small"},
    {423, U"Interval too brief"},
    {424, U"Bad Location Information"},
    {429, U"Provide referrer identity"},
    {480, U"Temporarily not available"},
    {481, U"Call leg/transaction does not exist"},
    {482, U"Loop detected"},
    {483, U"Too many hops"},
    {484, U"Address incomplete"},
    {485, U"Ambiguous"},
    {486, U"Busy here"},
    {487, U"Request terminated"},
    {488, U"Not acceptable here"},
    {489, U"Bad event"},
    {491, U"Request pending"},
    {493, U"Undecipherable"},
    {500, U"Internal server error"},
    {501, U"Not implemented"},
    {502, U"Bad gateway"},
    {503, U"Service unavailable"},
    {504, U"Server timeout"},
    {505, U"SIP version not supported"},
    {513, U"Message too large"},
    {580, U"Precondition failed"},
    {600, U"Busy everywhere"},
    {603, U"Decline"},
    {604, U"Does not exist anywhere"},
    {606, U"Not acceptable"},
};
static_assert(quill::isOrdered(reasonPhrases));

QUILL_DEFINE_INTEGER_VALUE(StatusCode, statusCode, 100, 999)

static void assertOk(int64_t statusCode) { CO_ASSERT(quillStatusCodeOk(statusCode), "quillStatusCodeOk( sc )"); }

static bool isOfClass(int64_t statusCode, int64_t firstDigit) {
    assertOk(statusCode);
    return statusCode / 100 == firstDigit;
}

bool quillStatusCodeInformational(int64_t statusCode) { return isOfClass(statusCode, 1); }
bool quillStatusCodeSuccess(int64_t statusCode) { return isOfClass(statusCode, 2); }
bool quillStatusCodeRedirection(int64_t statusCode) { return isOfClass(statusCode, 3); }
bool quillStatusCodeClientError(int64_t statusCode) { return isOfClass(statusCode, 4); }
bool quillStatusCodeServerError(int64_t statusCode) { return isOfClass(statusCode, 5); }
bool quillStatusCodeGlobalFailure(int64_t statusCode) { return isOfClass(statusCode, 6); }

struct coString *quillStatusCodeReasonPhrase(int64_t statusCode) {
    assertOk(statusCode);
    struct coString *phrase = quill::textOfCode(reasonPhrases, statusCode);
    return phrase ? phrase : coStringCreateFromFormatCstr("Unknown reason \"%03i\"", -1, statusCode);
}
