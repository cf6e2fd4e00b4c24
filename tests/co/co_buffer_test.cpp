#include <co/co_buffer.hpp>
#include <random>
#include <support/growth.hpp>
#include <support/text.hpp>

using test::buffer;
using test::bytes;
using test::taken;
using test::takenBytes;

namespace {

constexpr char const *unit = "source/co/co_buffer";

uint8_t const *data(std::string const &text) { return reinterpret_cast<uint8_t const *>(text.data()); }
int64_t length(std::string const &text) { return static_cast<int64_t>(text.size()); }

TEST(Buffer, HoldsACopyOfItsBytes) {
    std::string text("a\0\xFF", 3);
    co::Ref<coBuffer> const copy = buffer(text);
    text[0] = 'b';
    EXPECT_EQ(bytes(copy.get()), std::string("a\0\xFF", 3));
    EXPECT_EQ(coBufferLength(copy.get()), 3);
    EXPECT_EQ(takenBytes(coBufferCreate()), "");
    EXPECT_EQ(takenBytes(coBufferCreateFromBytesCopy(nullptr, 0)), "");
}

TEST(Buffer, IsWrittenInHexadecimal) {
    EXPECT_EQ(taken(coBufferToString(buffer(std::string("\0\x0F\xA0\xFF", 4)).get())), "000fa0ff");
    EXPECT_EQ(taken(coBufferToString(buffer("").get())), "");
}

TEST(Buffer, ComparesByteByByte) {
    struct {
        std::string a, b;
        int expected;
    } const rows[] = {{"", "", 0},    {"", "a", -1},        {"a", "ab", -1},
                      {"b", "ab", 1}, {"\x7F", "\x80", -1}, {std::string("a\0b", 3), std::string("a\0c", 3), -1}};
    for (auto const &row : rows) {
        EXPECT_EQ(coBufferCompare(buffer(row.a).get(), buffer(row.b).get()), row.expected);
        EXPECT_EQ(coBufferCompare(buffer(row.b).get(), buffer(row.a).get()), -row.expected);
        EXPECT_EQ(coBufferEquals(buffer(row.a).get(), buffer(row.b).get()), row.expected == 0);
    }
}

TEST(Buffer, ReadsAndAppendsParts) {
    co::Ref<coBuffer> const digits = buffer("0123456789");
    EXPECT_EQ(takenBytes(coBufferRead(digits.get(), 2, 3)), "234");
    EXPECT_EQ(takenBytes(coBufferRead(digits.get(), 10, 0)), "");
    EXPECT_EQ(takenBytes(coBufferRead(digits.get(), 0, 10)), "0123456789");
    co::Ref<coBuffer> all(coBufferCreate());
    coBufferAppendInner(all.address(), digits.get(), 4, 2);
    coBufferAppendByte(all.address(), '|');
    coBufferAppendLeading(all.address(), digits.get(), 3);
    coBufferAppendByte(all.address(), '|');
    coBufferAppendTrailing(all.address(), digits.get(), 2);
    coBufferAppendByte(all.address(), '|');
    coBufferAppendOuter(all.address(), digits.get(), 2, 6);
    coBufferAppendByte(all.address(), '|');
    coBufferAppendBytes(all.address(), data("xyz"), 2);
    coBufferAppendBytes(all.address(), nullptr, 0);
    coBufferAppend(all.address(), buffer("!").get());
    EXPECT_EQ(bytes(all.get()), "45|012|89|0189|xy!");
}

TEST(Buffer, AppendsItselfAndPartsOfItself) {
    struct {
        std::function<void(coBuffer **)> append;
        char const *expected, *why;
    } const rows[] = {
        {[](coBuffer **b) { coBufferAppend(b, *b); }, "01230123", "whole"},
        {[](coBuffer **b) { coBufferAppendInner(b, *b, 1, 2); }, "012312", "inner"},
        {[](coBuffer **b) { coBufferAppendLeading(b, *b, 3); }, "0123012", "leading"},
        {[](coBuffer **b) { coBufferAppendTrailing(b, *b, 3); }, "0123123", "trailing"},
        {[](coBuffer **b) { coBufferAppendOuter(b, *b, 1, 2); }, "012303", "outer"},
        {[](coBuffer **b) { coBufferAppendBytes(b, coBufferBacking(*b) + 2, 2); }, "012323", "bytes"},
    };
    for (auto const &row : rows) {
        SCOPED_TRACE(row.why);
        co::Ref<coBuffer> alone = buffer("0123");
        row.append(alone.address());
        EXPECT_EQ(bytes(alone.get()), row.expected);

        co::Ref<coBuffer> const other = buffer("0123");
        co::Ref<coBuffer> shared(co::retained(other.get()));
        row.append(shared.address());
        EXPECT_EQ(bytes(shared.get()), row.expected);
        EXPECT_EQ(bytes(other.get()), "0123");

        co::Ref<coBuffer> moved = buffer("##########0123"); // room in front, into which the bytes are moved
        coBufferDelLeading(moved.address(), 10);
        row.append(moved.address());
        EXPECT_EQ(bytes(moved.get()), row.expected);
    }
}

TEST(Buffer, KeepsARange) {
    co::Ref<coBuffer> b = buffer("0123456789");
    coBufferDelLeading(b.address(), 0);
    EXPECT_EQ(bytes(b.get()), "0123456789");
    coBufferDelOuter(b.address(), 2, 5);
    EXPECT_EQ(bytes(b.get()), "23456");
    coBufferDelLeading(b.address(), 4);
    EXPECT_EQ(bytes(b.get()), "6");
    coBufferDelOuter(b.address(), 1, 0);
    EXPECT_EQ(bytes(b.get()), "");
}

TEST(Buffer, DroppingDoesNotMoveTheRest) {
    co::Ref<coBuffer> b = buffer("0123456789");
    uint8_t const *const backing = coBufferBacking(b.get());
    coBufferDelLeading(b.address(), 3);
    EXPECT_EQ(coBufferBacking(b.get()), backing + 3);
    coBufferDelOuter(b.address(), 1, 2);
    EXPECT_EQ(coBufferBacking(b.get()), backing + 4);
}

// Random operations beside a string of the standard library; the space that is announced is there.
TEST(Buffer, BehavesLikeItsModel) {
    std::mt19937 random(1);
    for (int round = 0; round < 300; round++) {
        co::Ref<coBuffer> b(round % 2 ? coBufferCreate() : co::makeBuffer(64));
        std::string model;
        for (int step = 0; step < 200; step++) {
            std::string const text(random() % 40, static_cast<char>('a' + step % 26));
            size_t const offset = random() % (model.size() + 1);
            size_t const count = random() % (model.size() - offset + 1);
            auto const at = static_cast<int64_t>(offset);
            auto const many = static_cast<int64_t>(count);
            std::string const whole = model;
            co::Ref<coBuffer> const held(random() % 8 ? nullptr : co::retained(b.get()));
            bool const ownsSpace = !held && coBufferSpace(b.get()) >= length(text);
            uint8_t const *const memory = b->bytes;
            switch (random() % 9) {
            case 0:
                coBufferAppend(b.address(), buffer(text).get()), model += text;
                break;
            case 1:
                coBufferAppendBytes(b.address(), data(text), length(text)), model += text;
                break;
            case 2:
                coBufferAppendByte(b.address(), 'x'), model += 'x';
                break;
            case 3:
                co::append(b.address(), text), model += text;
                break;
            case 4:
                if (model.size() < 2000) coBufferAppend(b.address(), b.get()), model += whole;
                break;
            case 5:
                if (model.size() < 2000)
                    coBufferAppendInner(b.address(), b.get(), at, many), model += whole.substr(offset, count);
                break;
            case 6:
                if (model.size() < 2000)
                    coBufferAppendOuter(b.address(), b.get(), at, many),
                        model += whole.substr(0, offset) + whole.substr(offset + count);
                break;
            case 7:
                coBufferDelLeading(b.address(), at), model.erase(0, offset);
                break;
            default:
                coBufferDelOuter(b.address(), at, many), model = whole.substr(offset, count);
            }
            bool const grewByText = model == whole + text;
            ASSERT_EQ(bytes(b.get()), model);
            ASSERT_EQ(coBufferLength(b.get()), length(model));
            ASSERT_TRUE(!ownsSpace || !grewByText || b->bytes == memory) << "memory was taken although there was space";
            ASSERT_EQ(held ? bytes(held.get()) : whole, whole);
            ASSERT_GE(coBufferSpace(b.get()), 0);
            ASSERT_EQ(taken(coBufferToString(b.get())).size(), 2 * model.size());
        }
    }
}

std::string longText() {
    std::string text(static_cast<size_t>(co::longBuffer) + 1000, '\0');
    for (size_t i = 0; i < text.size(); i++) text[i] = static_cast<char>(i * 31 % 251);
    return text;
}

TEST(Buffer, ALongOneLendsItsBytes) {
    std::string const text = longText();
    co::Ref<coBuffer> lender = buffer(text);
    uint8_t const *const backing = coBufferBacking(lender.get());
    co::Ref<coBuffer> borrower(co::retained(lender.get()));
    coBufferDelLeading(borrower.address(), 10);
    EXPECT_EQ(coBufferBacking(borrower.get()), backing + 10);
    EXPECT_EQ(bytes(borrower.get()), text.substr(10));
    EXPECT_EQ(coBufferSpace(borrower.get()), 0);
    coBufferDelLeading(borrower.address(), 10);
    EXPECT_EQ(coBufferBacking(borrower.get()), backing + 20);
    EXPECT_EQ(bytes(lender.get()), text);

    coBufferAppendByte(lender.address(), 'x');
    EXPECT_NE(coBufferBacking(lender.get()), backing) << "its bytes are borrowed";
    EXPECT_EQ(bytes(lender.get()), text + 'x');
    EXPECT_EQ(bytes(borrower.get()), text.substr(20));

    co::Ref<coBuffer> second(co::retained(borrower.get()));
    coBufferDelOuter(second.address(), 1, co::longBuffer);
    borrower.reset(nullptr);
    EXPECT_EQ(coBufferBacking(second.get()), backing + 21);
    coBufferAppendByte(second.address(), 'x');
    EXPECT_NE(coBufferBacking(second.get()), backing + 21);
    EXPECT_EQ(bytes(second.get()), text.substr(21, co::longBuffer) + 'x');
    EXPECT_GT(coBufferSpace(second.get()), 0);
}

TEST(Buffer, AnEmptyOneBorrowsALongPart) {
    std::string const text = longText();
    co::Ref<coBuffer> const lender = buffer(text);
    auto const expectBorrowed = [&](coBuffer *empty, int64_t offset, int64_t count,
                                    void (*append)(coBuffer **, coBuffer *)) {
        co::Ref<coBuffer> b(empty);
        append(b.address(), lender.get());
        EXPECT_EQ(coBufferBacking(b.get()), coBufferBacking(lender.get()) + offset);
        EXPECT_EQ(bytes(b.get()), text.substr(static_cast<size_t>(offset), static_cast<size_t>(count)));
        coBufferAppendByte(b.address(), 'x');
        EXPECT_EQ(coBufferLength(b.get()), count + 1);
        EXPECT_EQ(lender->count, 1);
    };
    constexpr int64_t most = co::longBuffer;
    expectBorrowed(coBufferCreate(), 0, length(text), [](coBuffer **b, coBuffer *from) { coBufferAppend(b, from); });
    expectBorrowed(co::makeBuffer(100), 0, most,
                   [](coBuffer **b, coBuffer *from) { coBufferAppendLeading(b, from, most); });
    expectBorrowed(coBufferCreate(), length(text) - most, most,
                   [](coBuffer **b, coBuffer *from) { coBufferAppendTrailing(b, from, most); });
    expectBorrowed(coBufferCreate(), 3, most,
                   [](coBuffer **b, coBuffer *from) { coBufferAppendInner(b, from, 3, most); });
}

TEST(Buffer, AnEmptySharedOneIsLeftToItsHolders) {
    co::Ref<coBuffer> const source = buffer(longText());
    co::Ref<coBuffer> b(coBufferCreate());
    co::Ref<coBuffer> const other(co::retained(b.get()));
    coBufferAppend(b.address(), source.get());
    EXPECT_EQ(bytes(other.get()), "");
    EXPECT_EQ(other->count, 1);
    EXPECT_EQ(source->count, 2);
}

TEST(Buffer, WhatNeedsNoBytesGivesThemBack) {
    co::Ref<coBuffer> const lender = buffer(longText());
    co::Ref<coBuffer> borrower(co::retained(lender.get()));
    coBufferDelLeading(borrower.address(), 1);
    EXPECT_EQ(lender->count, 2);
    coBufferDelLeading(borrower.address(), coBufferLength(borrower.get()));
    EXPECT_EQ(lender->count, 1);
    EXPECT_EQ(bytes(borrower.get()), "");
    coBufferAppendByte(borrower.address(), 'x');
    EXPECT_EQ(bytes(borrower.get()), "x");
}

// So that little does not keep much alive.
TEST(Buffer, LessThanHalfIsCopied) {
    std::string const text = longText() + longText() + longText();
    co::Ref<coBuffer> const lender = buffer(text);
    for (int64_t kept : {co::longBuffer, length(text) / 2 - 1, length(text) / 2}) {
        co::Ref<coBuffer> part(co::retained(lender.get()));
        coBufferDelOuter(part.address(), 5, kept);
        EXPECT_EQ(bytes(part.get()), text.substr(5, static_cast<size_t>(kept)));
        EXPECT_EQ(lender->count, kept == length(text) / 2 ? 2 : 1);
    }
}

TEST(Buffer, AShortPartIsCopied) {
    co::Ref<coBuffer> const lender = buffer(longText());
    co::Ref<coBuffer> part(co::retained(lender.get()));
    coBufferDelOuter(part.address(), 5, co::longBuffer - 1);
    EXPECT_EQ(lender->count, 1);
    co::Ref<coBuffer> empty(coBufferCreate());
    coBufferAppendLeading(empty.address(), lender.get(), co::longBuffer - 1);
    EXPECT_EQ(lender->count, 1);
    EXPECT_EQ(coBufferLength(empty.get()), co::longBuffer - 1);
}

// Parts of a lender behind those that are borrowed, too.
TEST(Buffer, LongOnesBehaveLikeTheirModels) {
    struct {
        co::Ref<coBuffer> buffer;
        std::string model;
    } all[3];
    std::string const text = longText();
    co::Ref<coBuffer> const source = buffer(text);
    std::mt19937 random(1);
    auto const below = [&](size_t limit) { return random() % (limit + 1); };
    for (int step = 0; step < 400; step++) {
        auto &[b, model] = all[below(2)];
        auto const &[other, otherModel] = all[below(2)];
        if (!b || model.size() > 3 * text.size()) {
            b.reset(co::retained(source.get()));
            model = text;
        }
        size_t const offset = below(std::min<size_t>(model.size(), 300));
        size_t const count = model.size() - offset - below(std::min<size_t>(model.size() - offset, 300));
        auto const at = static_cast<int64_t>(offset);
        auto const many = static_cast<int64_t>(count);
        switch (random() % 6) {
        case 0:
            coBufferDelLeading(b.address(), at), model.erase(0, offset);
            break;
        case 1:
            coBufferDelOuter(b.address(), at, many), model = model.substr(offset, count);
            break;
        case 2:
            coBufferAppendBytes(b.address(), data("abc"), 3), model += "abc";
            break;
        case 3:
            if (other) b.reset(co::retained(other.get())), model = otherModel;
            break;
        case 4:
            coBufferAppendInner(b.address(), source.get(), length(text) - 500, 500),
                model += text.substr(text.size() - 500);
            break;
        case 5:
            coBufferAppendOuter(b.address(), source.get(), 100, length(text) - 200);
            model += text.substr(0, 100) + text.substr(text.size() - 100);
            break;
        }
        for (auto const &[held, expected] : all) ASSERT_TRUE(!held || held->view() == expected) << step;
    }
    EXPECT_EQ(source->view(), text);
}

TEST(Buffer, SpaceIsWhatCanBeAppendedInPlace) {
    co::Ref<coBuffer> b(coBufferCreate());
    EXPECT_EQ(coBufferSpace(b.get()), 0);
    coBufferAppendByte(b.address(), 'a');
    int64_t const space = coBufferSpace(b.get());
    ASSERT_GT(space, 0);
    uint8_t const *const backing = coBufferBacking(b.get());
    for (int64_t i = 0; i < space; i++) coBufferAppendByte(b.address(), 'b');
    EXPECT_EQ(coBufferBacking(b.get()), backing);
    EXPECT_EQ(coBufferSpace(b.get()), 0);
    coBufferDelLeading(b.address(), coBufferLength(b.get()));
    EXPECT_EQ(coBufferSpace(b.get()), space + 1);
    co::Ref<coBuffer> const other(co::retained(b.get()));
    EXPECT_EQ(coBufferSpace(b.get()), 0); // shared: any addition needs a copy
}

TEST(Buffer, InternalAppendSpaceIsFilledByTheCaller) {
    co::Ref<coBuffer> b(co::makeBuffer(2));
    EXPECT_EQ(coBufferSpace(b.get()), 2);
    uint8_t *room = co::appendSpace(b.address(), 3);
    for (int i = 0; i < 3; i++) *room++ = data("abc")[i];
    b->length += 3;
    EXPECT_EQ(b->view(), "abc");
}

// A stream: much comes in at once and is used up in small pieces, while more comes in.
TEST(Buffer, StreamIsLinear) {
    EXPECT_LT(test::growth(20000,
                           [](int64_t size) {
                               co::Ref<coBuffer> b(coBufferCreate());
                               for (int64_t i = 0; i < size; i++)
                                   coBufferAppendBytes(b.address(), data("0123456789"), 10);
                               for (int64_t i = 0; i < size; i++) {
                                   coBufferDelLeading(b.address(), 10);
                                   coBufferAppendBytes(b.address(), data("012345"), 6);
                               }
                           }),
              test::linear);
}

TEST(Buffer, FullBufferUsedAsAQueueIsLinear) {
    EXPECT_LT(test::growth(20000,
                           [](int64_t size) {
                               co::Ref<coBuffer> b = buffer(std::string(static_cast<size_t>(size), 'a'));
                               for (int64_t i = 0; i < size; i++) {
                                   coBufferDelLeading(b.address(), 1);
                                   coBufferAppendByte(b.address(), 'b');
                               }
                           }),
              test::linear);
}

TEST(Buffer, RoomInFrontIsUsedAgain) {
    co::Ref<coBuffer> b = buffer("0123456789");
    uint8_t const *const backing = coBufferBacking(b.get());
    coBufferDelLeading(b.address(), 4);
    EXPECT_EQ(coBufferSpace(b.get()), 0); // more would have to be moved than has been dropped
    coBufferDelLeading(b.address(), 1);
    EXPECT_EQ(coBufferSpace(b.get()), 5);
    coBufferAppendBytes(b.address(), data("abcde"), 5);
    EXPECT_EQ(bytes(b.get()), "56789abcde");
    EXPECT_EQ(coBufferBacking(b.get()), backing);
}

TEST(Buffer, QueueDoesNotGrowWithWhatHasPassed) {
    co::Ref<coBuffer> b(coBufferCreate());
    for (int i = 0; i < 100000; i++) {
        coBufferAppendBytes(b.address(), data("0123456789"), 10);
        coBufferDelLeading(b.address(), 10 - (i < 10));
    }
    EXPECT_EQ(coBufferLength(b.get()), 10);
    EXPECT_LT(b->capacity, 200);
}

TEST(Buffer, BrokenPreconditionsAbort) {
    co::Ref<coBuffer> three = buffer("abc");
    coBuffer *b = three.get();
    coBuffer *none = nullptr;
    char const *const offset = "offset >= 0 && offset <= coBufferLength( buffer )";
    char const *const range = "count >= 0 && count <= coBufferLength( buffer ) - offset";
    char const *const offsetOfOther = "offset >= 0 && offset <= coBufferLength( other )";
    char const *const rangeOfOther = "count >= 0 && count <= coBufferLength( other ) - offset";
    char const *const countOfOther = "count >= 0 && count <= coBufferLength( other )";
    EXPECT_ABORT(coBufferCreateFromBytesCopy(nullptr, 1), unit, "bytes || count == 0");
    EXPECT_ABORT(coBufferCreateFromBytesCopy(data(""), -1), unit, "count >= 0");
    EXPECT_ABORT(coBufferLength(nullptr), unit, "buffer");
    EXPECT_ABORT(coBufferBacking(nullptr), unit, "buffer");
    EXPECT_ABORT(coBufferSpace(nullptr), unit, "buffer");
    EXPECT_ABORT(coBufferRead(nullptr, 0, 0), unit, "buffer");
    EXPECT_ABORT(coBufferRead(b, 4, 0), unit, offset);
    EXPECT_ABORT(coBufferRead(b, -1, 0), unit, offset);
    EXPECT_ABORT(coBufferRead(b, 1, 3), unit, range);
    EXPECT_ABORT(coBufferRead(b, 1, INT64_MAX), unit, range);
    EXPECT_ABORT(coBufferRead(b, 1, -1), unit, range);
    EXPECT_ABORT(coBufferAppend(nullptr, b), unit, "buffer");
    EXPECT_ABORT(coBufferAppend(&none, b), unit, "*buffer");
    EXPECT_ABORT(coBufferAppend(&b, nullptr), unit, "other");
    EXPECT_ABORT(coBufferAppendByte(&none, 0), unit, "*buffer");
    EXPECT_ABORT(coBufferAppendBytes(&none, data("a"), 1), unit, "*buffer");
    EXPECT_ABORT(coBufferAppendBytes(&b, nullptr, 1), unit, "bytes || count == 0");
    EXPECT_ABORT(coBufferAppendBytes(&b, data("a"), -1), unit, "count >= 0");
    EXPECT_ABORT(coBufferAppendInner(&none, b, 0, 0), unit, "*buffer");
    EXPECT_ABORT(coBufferAppendInner(&b, nullptr, 0, 0), unit, "other");
    EXPECT_ABORT(coBufferAppendInner(&b, b, 4, 0), unit, offsetOfOther);
    EXPECT_ABORT(coBufferAppendInner(&b, b, 2, 2), unit, rangeOfOther);
    EXPECT_ABORT(coBufferAppendLeading(&b, nullptr, 0), unit, "other");
    EXPECT_ABORT(coBufferAppendLeading(&b, b, 4), unit, countOfOther);
    EXPECT_ABORT(coBufferAppendLeading(&b, b, -1), unit, countOfOther);
    EXPECT_ABORT(coBufferAppendTrailing(&b, b, 4), unit, countOfOther);
    EXPECT_ABORT(coBufferAppendTrailing(&none, b, 0), unit, "*buffer");
    EXPECT_ABORT(coBufferAppendOuter(&b, b, 4, 0), unit, offsetOfOther);
    EXPECT_ABORT(coBufferAppendOuter(&b, b, 2, 2), unit, rangeOfOther);
    EXPECT_ABORT(coBufferAppendOuter(&none, b, 0, 0), unit, "*buffer");
    EXPECT_ABORT(coBufferDelLeading(nullptr, 0), unit, "buffer");
    EXPECT_ABORT(coBufferDelLeading(&none, 0), unit, "*buffer");
    EXPECT_ABORT(coBufferDelLeading(&b, 4), unit, "count >= 0 && count <= coBufferLength( *buffer )");
    EXPECT_ABORT(coBufferDelLeading(&b, -1), unit, "count >= 0 && count <= coBufferLength( *buffer )");
    EXPECT_ABORT(coBufferDelOuter(&b, 4, 0), unit, offset);
    EXPECT_ABORT(coBufferDelOuter(&b, 1, 3), unit, range);
}

} // namespace
