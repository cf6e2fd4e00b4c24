// Messages among threads: what several hold is read by all of them, and changed by none.

#include <quill/quill.h>
#include <support/text.hpp>
#include <thread>
#include <vector>

using namespace test;

namespace {

constexpr char request[] = "INVITE sip:bob@example.org SIP/2.0\r\n"
                           "Via: SIP/2.0/UDP 192.0.2.1:5060;branch=z9hG4bK1\r\n"
                           "From: \"Alice\" <sip:alice@example.com>;tag=1\r\n"
                           "To: <sip:bob@example.org>\r\n"
                           "Call-ID: 1@192.0.2.1\r\n"
                           "CSeq: 1 INVITE\r\n"
                           "Max-Forwards: 70\r\n"
                           "X-Other: a\r\n"
                           "Content-Length: 0\r\n\r\n";

template <class Work> void inThreads(Work const &work) {
    std::vector<std::thread> threads;
    for (int i = 0; i < 4; i++) threads.emplace_back(work);
    for (std::thread &each : threads) each.join();
}

std::string branchOf(quillMessage const *msg) {
    co::Ref<quillHeaderVia> const vias(quillHeaderViaTryDecodeFromMessage(msg));
    co::Ref<quillVia> const via(quillHeaderViaTryDecodeViaAt(vias.get(), 0));
    return taken(quillViaBranch(via.get()));
}

TEST(Threads, DecodeAndEncodeTheirOwnMessages) {
    inThreads([] {
        for (int i = 0; i < 200; i++) {
            co::Ref<quillMessage> const msg(quillMessageTryDecode(buffer(request).get()));
            EXPECT_EQ(branchOf(msg.get()), "z9hG4bK1");
            EXPECT_FALSE(takenBytes(quillMessageEncode(msg.get())).empty());
        }
    });
}

TEST(Threads, ReadOneMessage) {
    co::Ref<quillMessage> const msg(quillMessageTryDecode(buffer(request).get()));
    inThreads([&] {
        for (int i = 0; i < 200; i++) {
            EXPECT_EQ(branchOf(msg.get()), "z9hG4bK1");
            co::Ref<coVector> const headers(quillMessageHeadersVector(msg.get()));
            EXPECT_EQ(coVectorLength(headers.get()), 8);
            EXPECT_EQ(taken(quillMessageRequestMethod(msg.get())), "INVITE");
        }
    });
    EXPECT_EQ(count(msg.get()), 1);
}

TEST(Threads, ChangeTheirOwnCopies) {
    co::Ref<quillMessage> const msg(quillMessageTryDecode(buffer(request).get()));
    inThreads([&] {
        for (int i = 0; i < 200; i++) {
            quillMessage *mine = co::retained(msg.get());
            co::Ref<quillHeaderMaxForwards> const hops(quillHeaderMaxForwardsCreate(i % 256));
            quillHeaderMaxForwardsEncodeToMessage(hops.get(), &mine);
            quillMessageDelHeaderCstr(&mine, "X-Other", -1);
            EXPECT_FALSE(quillMessageHasHeaderCstr(mine, "X-Other", -1));
            co::Ref<quillHeaderMaxForwards> const read(quillHeaderMaxForwardsTryDecodeFromMessage(mine));
            EXPECT_EQ(quillHeaderMaxForwardsMaxForwards(read.get()), i % 256);
            quillMessageRelease(mine);
        }
    });
    EXPECT_EQ(count(msg.get()), 1);
    EXPECT_TRUE(quillMessageHasHeaderCstr(msg.get(), "X-Other", -1));
}

} // namespace
