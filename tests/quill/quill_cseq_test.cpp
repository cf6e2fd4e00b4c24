// Sequence numbers: the end of their range. The range itself is in quill_integer_values_test.cpp.
#include <quill/quill_cseq.h>
#include <support/text.hpp>

TEST(Cseq, CanBeIncrementedUpToTheLast) {
    for (int64_t const cseq : {0, 1, 2147483547, 2147483646}) EXPECT_TRUE(quillCseqIncrementOk(cseq)) << cseq;
    EXPECT_FALSE(quillCseqIncrementOk(2147483647));
}

TEST(Cseq, IsScarceWhenLessThanAHundredAreLeft) {
    for (int64_t const cseq : {0, 1, 2147483546, 2147483547}) EXPECT_FALSE(quillCseqScarce(cseq)) << cseq;
    for (int64_t const cseq : {2147483548, 2147483549, 2147483646, 2147483647})
        EXPECT_TRUE(quillCseqScarce(cseq)) << cseq;
}

TEST(Cseq, MustBeValid) {
    for (int64_t const wrong : {INT64_MIN, int64_t{-1}, int64_t{2147483648}, INT64_MAX}) {
        EXPECT_ABORT(quillCseqIncrementOk(wrong), "source/quill/quill_cseq", "quillCseqOk( cseq )");
        EXPECT_ABORT(quillCseqScarce(wrong), "source/quill/quill_cseq", "quillCseqOk( cseq )");
    }
}
