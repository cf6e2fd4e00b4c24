// Weights in thousandths. Grammar and contract: quill_qvalue.h.

#define CO_UNIT "source/quill/quill_qvalue"

#include <quill/quill_qvalue.h>
#include <quill/quill_scalar.hpp>

QUILL_DEFINE_INTEGER_VALUE(Qvalue, qvalue, 0, 1000)

// Always with three decimals.
struct coString *quill___QvalueEncode(int64_t qvalue) {
    CO_ASSERT_OK(quillQvalueOk, qvalue);
    auto const digit = [qvalue](int64_t unit) { return U'0' + static_cast<coChar>(qvalue / unit % 10); };
    coChar const text[] = {digit(1000), U'.', digit(100), digit(10), digit(1)};
    return co::makeString({text, std::size(text)});
}

// No text at all counts as 0; missing decimals do so, too.
int64_t quill___QvalueTryDecode(coChar const *chs, int64_t length) {
    CO_ASSERT_TEXT(chs, length);
    if (length == 0) return 0;
    if (chs[0] != U'0' && chs[0] != U'1') return -1;
    bool const isOne = chs[0] == U'1';
    if (length == 1) return isOne ? 1000 : 0;
    if (length > 5 || chs[1] != U'.') return -1;

    coChar const highest = isOne ? U'0' : U'9';
    int64_t qvalue = isOne;
    for (int64_t i = 2; i < 5; i++) {
        coChar const decimal = i < length ? chs[i] : U'0';
        if (decimal < U'0' || decimal > highest) return -1;
        qvalue = qvalue * 10 + static_cast<int64_t>(decimal - U'0');
    }
    return qvalue;
}
