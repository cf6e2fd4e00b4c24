// Case mapping of code points. Contracts: co_unicode.h, co_unicode.hpp.

#define CO_UNIT "source/co/co_unicode"

#include <algorithm>
#include <co/co_assert.hpp>
#include <co/co_unicode.hpp>
#include <co/co_unicode_tables.hpp>
#include <iterator>

using namespace co::unicode;

static SimpleCase simpleCase(coChar ch) {
    if (ch >= simpleCaseEnd) return simpleCases[0];
    coChar const block = simpleCaseBlocks[ch >> simpleCaseShift];
    return simpleCases[simpleCaseValues[block << simpleCaseShift | (ch & ((1 << simpleCaseShift) - 1))]];
}

coChar co::simpleUpperBeyondAscii(coChar ch) { return ch + static_cast<coChar>(simpleCase(ch).toUpper); }

coChar co::simpleLowerBeyondAscii(coChar ch) { return ch + static_cast<coChar>(simpleCase(ch).toLower); }

coChar const *co___UnicodeUpperCaseDbLookup(coChar ch, int64_t *count) {
    CO_ASSERT_GIVEN(count);
    auto const *full = std::lower_bound(std::begin(fullUpperCases), std::end(fullUpperCases), ch,
                                        [](FullUpperCase const &entry, coChar wanted) { return entry.from < wanted; });
    if (full != std::end(fullUpperCases) && full->from == ch) {
        *count = full->count;
        return full->to;
    }
    coChar const upper = co::simpleUpper(ch);
    *count = upper != ch;
    return upper == ch ? nullptr : std::lower_bound(std::begin(upperCases), std::end(upperCases), upper);
}
