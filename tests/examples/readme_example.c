#include <quill/quill.h>
#include <stdio.h>

static char const request[] = "OPTIONS sip:carol@chicago.example SIP/2.0\r\n"
                              "v: SIP/2.0/UDP pc33.atlanta.example;branch=z9hG4bKhjhs8ass877\r\n"
                              "max-forwards: 70\r\n"
                              "f: Alice <sip:alice@atlanta.example>;tag=1928301774\r\n"
                              "t: <sip:carol@chicago.example>\r\n"
                              "i: a84b4c76e66710\r\n"
                              "CSeq: 63104 OPTIONS\r\n\r\n";

int main(void) {
    coModuleLoad(quillModule());
    struct coBuffer *datagram = coBufferCreateFromBytesCopy((uint8_t const *)request, sizeof request - 1);
    struct quillMessage *message = quillMessageTryDecode(datagram); // null for what is no SIP message
    coBufferRelease(datagram);
    if (!message) return 1;

    struct quillHeaderMaxForwards *hops = quillHeaderMaxForwardsTryDecodeFromMessage(message); // null: absent or bad
    if (!hops) return 1;
    quillHeaderMaxForwardsSetMaxForwards(&hops, quillHeaderMaxForwardsMaxForwards(hops) - 1);
    quillHeaderMaxForwardsEncodeToMessage(hops, &message);
    quillHeaderMaxForwardsRelease(hops);

    struct coBuffer *bytes = quillMessageEncode(message);
    fwrite(coBufferBacking(bytes), 1, (size_t)coBufferLength(bytes), stdout);
    coBufferRelease(bytes);
    quillMessageRelease(message);
    coModuleUnload(quillModule());
    return 0;
}
