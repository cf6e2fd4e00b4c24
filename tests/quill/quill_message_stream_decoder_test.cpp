#include "objects.hpp"

#include <co/co_buffer.hpp>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <quill/quill_message_stream_decoder.h>
#include <support/cost.hpp>
#include <vector>

using namespace test;
using namespace std::string_view_literals;

namespace {

constexpr char unit[] = "source/quill/quill_message_stream_decoder";

class Stream {
public:
    bool write(std::string_view bytes) { return quillMessageStreamDecoderWrite(get(), buffer(bytes).get()); }
    co::Ref<Message> read() { return own(quillMessageStreamDecoderRead(get())); }
    std::string show() { return describe(read().get()); }
    bool error() const { return quillMessageStreamDecoderError(decoder.get()); }
    int64_t length() const { return quillMessageStreamDecoderLength(decoder.get()); }
    quillMessageStreamDecoder *get() const { return decoder.get(); }

    // All that can be read now.
    void readAll(std::vector<std::string> *messages) {
        while (auto const msg = read()) messages->push_back(describe(msg.get()));
    }

private:
    co::Ref<quillMessageStreamDecoder> decoder{quillMessageStreamDecoderCreate()};
};

char const request[] = "INVITE sip:a@b SIP/2.0\r\nv: x\r\nl: 3\r\n\r\nabc";
char const response[] = "SIP/2.0 200 OK\r\nl: 0\r\n\r\n";
char const requestText[] = "INVITE sip:a@b SIP/2.0\nVia=[x]\nContent-Length=[3]\nbody=[abc]";
char const responseText[] = "SIP/2.0 200 [OK]\nContent-Length=[0]\nbody=[]";

TEST(QuillMessageStreamDecoder, IsEmptyAtFirst) {
    Stream stream;
    EXPECT_FALSE(stream.error());
    EXPECT_EQ(stream.length(), 0);
    EXPECT_GE(quillMessageStreamDecoderSpace(stream.get()), 0);
    EXPECT_EQ(stream.show(), "(null)");
    EXPECT_FALSE(stream.error());
}

TEST(QuillMessageStreamDecoder, ReadsOneMessageAfterTheOther) {
    Stream stream;
    EXPECT_TRUE(stream.write(std::string(request) + response + request));
    EXPECT_EQ(stream.show(), requestText);
    EXPECT_EQ(stream.show(), responseText) << "a length of 0 gives an empty body";
    EXPECT_EQ(stream.show(), requestText);
    EXPECT_EQ(stream.show(), "(null)");
    EXPECT_EQ(stream.length(), 0);
    EXPECT_FALSE(stream.error());
}

TEST(QuillMessageStreamDecoder, MessagesAreTheReadersOwn) {
    Stream stream;
    stream.write(request);
    auto msg = stream.read();
    EXPECT_EQ(count(msg.get()), 1);
    Message const *identity = msg.get();
    quillMessageSetBody(msg.address(), buffer("x").get());
    EXPECT_EQ(msg.get(), identity);
}

TEST(QuillMessageStreamDecoder, SkipsKeepAlives) {
    for (std::string_view between : {"\r\n"sv, "\r\n\r\n"sv, "\r\n\r\n\r\n"sv, "\r\n\r\n\r\n\r\n\r\n"sv}) {
        Stream stream;
        EXPECT_TRUE(stream.write(between));
        EXPECT_EQ(stream.show(), "(null)");
        EXPECT_EQ(stream.length(), 0);
        EXPECT_TRUE(stream.write(std::string(between) + request + std::string(between) + response));
        EXPECT_EQ(stream.show(), requestText);
        EXPECT_EQ(stream.show(), responseText);
        EXPECT_FALSE(stream.error());
    }
    Stream stream;
    stream.write("\r");
    EXPECT_EQ(stream.show(), "(null)");
    EXPECT_EQ(stream.length(), 1) << "half a keep-alive stays";
    stream.write("\n\r");
    EXPECT_EQ(stream.show(), "(null)");
    EXPECT_EQ(stream.length(), 1);
    stream.write("\n" + std::string(request));
    EXPECT_EQ(stream.show(), requestText);
    Stream lone;
    lone.write("\n\r\n" + std::string(request));
    EXPECT_EQ(lone.show(), "(null)");
    EXPECT_TRUE(lone.error()) << "a lone LF is no keep-alive";
}

TEST(QuillMessageStreamDecoder, KeepAlivesSplitAtEveryPlace) {
    std::string const bytes = "\r\n\r\n" + std::string(request) + "\r\n\r\n\r\n\r\n" + response + "\r\n\r\n";
    for (size_t first = 0; first <= bytes.size(); first++)
        for (size_t second : {first, first + 1, first + 2, first + 3, bytes.size()}) {
            second = std::min(second, bytes.size());
            Stream stream;
            std::vector<std::string> messages;
            std::string_view const view = bytes;
            for (auto piece : {view.substr(0, first), view.substr(first, second - first), view.substr(second)}) {
                stream.write(piece);
                stream.readAll(&messages);
            }
            EXPECT_EQ(messages, (std::vector<std::string>{requestText, responseText})) << first << " " << second;
            EXPECT_FALSE(stream.error());
        }
}

TEST(QuillMessageStreamDecoder, ErrorsAreForGood) {
    struct {
        std::string_view bytes;
        char const *why;
    } const rows[] = {
        {"INVITE sip:a@b SIP/2.0\r\n\r\n", "no Content-Length, although there is no body"},
        {"INVITE sip:a@b SIP/2.0\r\nl: x\r\n\r\n", "no number"},
        {"INVITE sip:a@b SIP/2.0\r\nl: -1\r\n\r\n", "negative"},
        {"INVITE sip:a@b SIP/2.0\r\nl: 9223372036854775808\r\n\r\n", "beyond 64 bits"},
        {"INVITE sip:a@b SIP/2.0\r\nl:\r\n\r\n", "empty"},
        {"v: a\r\nl: 0\r\n\r\n", "no start line"},
        {"INVITE sip:a@b SIP/2.0\r\nx\r\nl: 0\r\n\r\n", "no colon"},
        {"INVITE a SIP/2.0\r\nl: 0\r\n\r\n", "no URI"},
        {"SIP/2.0 99 x\r\nl: 0\r\n\r\n", "no status code"},
        {"SIP/2.0 200 \xFF\r\nl: 0\r\n\r\n", "no UTF-8"},
        {" \r\n\r\n", "nothing at all"},
    };
    for (auto const &row : rows) {
        Stream stream;
        std::string const bytes = std::string(row.bytes) + "more";
        EXPECT_TRUE(stream.write(bytes));
        EXPECT_FALSE(stream.error());
        EXPECT_EQ(stream.show(), "(null)") << row.why;
        EXPECT_TRUE(stream.error()) << row.why;
        EXPECT_EQ(stream.length(), static_cast<int64_t>(bytes.size())) << "the bytes stay";
        EXPECT_FALSE(stream.write(request));
        EXPECT_FALSE(quillMessageStreamDecoderWriteLeading(stream.get(), buffer("ab").get(), 1));
        EXPECT_FALSE(quillMessageStreamDecoderWriteTrailing(stream.get(), buffer("ab").get(), 1));
        EXPECT_FALSE(quillMessageStreamDecoderWriteInner(stream.get(), buffer("ab").get(), 0, 1));
        EXPECT_FALSE(quillMessageStreamDecoderWriteOuter(stream.get(), buffer("ab").get(), 0, 1));
        EXPECT_EQ(stream.length(), static_cast<int64_t>(bytes.size()));
        EXPECT_EQ(stream.show(), "(null)");
        EXPECT_TRUE(stream.error());
    }
    Stream stream; // what came before is not lost
    stream.write(std::string(request) + "x\r\n\r\n" + request);
    EXPECT_EQ(stream.show(), requestText);
    EXPECT_FALSE(stream.error());
    EXPECT_EQ(stream.show(), "(null)");
    EXPECT_TRUE(stream.error());
}

TEST(QuillMessageStreamDecoder, WaitsWithoutTheEndOfTheHeaders) {
    Stream stream;
    stream.write("this is no message, but no empty line has come");
    EXPECT_EQ(stream.show(), "(null)");
    EXPECT_FALSE(stream.error());
    stream.write("\r\n\r");
    EXPECT_EQ(stream.show(), "(null)");
    EXPECT_FALSE(stream.error());
    stream.write("\n");
    EXPECT_EQ(stream.show(), "(null)");
    EXPECT_TRUE(stream.error());
}

TEST(QuillMessageStreamDecoder, WritesParts) {
    Stream stream;
    auto const bytes = buffer("SIP/2.0 200 OK\r\nl: 2\r\n\r\nab");
    int64_t const length = coBufferLength(bytes.get());
    EXPECT_TRUE(quillMessageStreamDecoderWriteLeading(stream.get(), bytes.get(), 5));
    EXPECT_EQ(stream.length(), 5);
    EXPECT_TRUE(quillMessageStreamDecoderWriteInner(stream.get(), bytes.get(), 5, 10));
    EXPECT_EQ(stream.length(), 15);
    EXPECT_TRUE(quillMessageStreamDecoderWriteTrailing(stream.get(), bytes.get(), length - 15));
    EXPECT_EQ(stream.length(), length);
    EXPECT_EQ(stream.show(), "SIP/2.0 200 [OK]\nContent-Length=[2]\nbody=[ab]");
    EXPECT_TRUE(
        quillMessageStreamDecoderWriteOuter(stream.get(), buffer("SIP/2.0 xxx200 OK\r\nl: 0\r\n\r\n").get(), 8, 3));
    EXPECT_EQ(stream.show(), responseText);
    EXPECT_TRUE(quillMessageStreamDecoderWrite(stream.get(), buffer("").get()));
    EXPECT_EQ(stream.length(), 0);
    EXPECT_EQ(count(bytes.get()), 1);
    for (int64_t bad : {int64_t{-1}, length + 1, INT64_MAX}) {
        EXPECT_DEATH(quillMessageStreamDecoderWriteLeading(stream.get(), bytes.get(), bad),
                     "abort: source/co/co_buffer");
        EXPECT_DEATH(quillMessageStreamDecoderWriteTrailing(stream.get(), bytes.get(), bad),
                     "abort: source/co/co_buffer");
        EXPECT_DEATH(quillMessageStreamDecoderWriteInner(stream.get(), bytes.get(), 1, bad),
                     "abort: source/co/co_buffer");
        EXPECT_DEATH(quillMessageStreamDecoderWriteOuter(stream.get(), bytes.get(), bad, 1),
                     "abort: source/co/co_buffer");
    }
}

TEST(QuillMessageStreamDecoder, AHugeLengthOnlyWaits) {
    for (char const *length : {"1000000000000", "9223372036854775807", "9223372036854775800"}) {
        Stream stream;
        std::string const bytes = "INVITE sip:a@b SIP/2.0\r\nl: " + std::string(length) + "\r\n\r\nabc";
        EXPECT_TRUE(stream.write(bytes));
        int64_t const before = heapBytes();
        EXPECT_EQ(stream.show(), "(null)");
        EXPECT_LT(heapBytes() - before, 10000) << "nothing is allocated for what has not come";
        EXPECT_FALSE(stream.error());
        EXPECT_TRUE(stream.write("more"));
        EXPECT_EQ(stream.show(), "(null)");
        EXPECT_FALSE(stream.error());
        EXPECT_EQ(stream.length(), static_cast<int64_t>(bytes.size()) + 4);
    }
}

TEST(QuillMessageStreamDecoder, SpaceIsTheBuffers) {
    Stream stream;
    stream.write(std::string(100, 'x'));
    int64_t const space = quillMessageStreamDecoderSpace(stream.get());
    if (space > 0) {
        stream.write("x");
        EXPECT_EQ(quillMessageStreamDecoderSpace(stream.get()), space - 1);
    }
    EXPECT_GE(space, 0);
}

// Its bytes stay where they are until more come.
TEST(QuillMessageStreamDecoder, SharesALongBuffer) {
    std::string const both = std::string(request) + response;
    std::string text;
    size_t pairs = 0;
    for (; text.size() < static_cast<size_t>(co::longBuffer); pairs++) text += both;
    auto written = buffer(text + std::string(request).substr(0, 20));
    Stream stream;
    ASSERT_TRUE(quillMessageStreamDecoderWrite(stream.get(), written.get()));
    EXPECT_EQ(count(written.get()), 2);
    EXPECT_EQ(stream.length(), coBufferLength(written.get()));
    EXPECT_EQ(quillMessageStreamDecoderSpace(stream.get()), 0);
    EXPECT_EQ(stream.show(), requestText);
    coBufferDelLeading(written.address(), coBufferLength(written.get())); // the writer goes on with it
    coBufferAppendBytes(written.address(), reinterpret_cast<uint8_t const *>(request) + 20, sizeof request - 1 - 20);

    std::vector<std::string> messages;
    stream.readAll(&messages);
    EXPECT_EQ(messages.size(), 2 * pairs - 1);
    EXPECT_EQ(stream.length(), 20);
    ASSERT_TRUE(quillMessageStreamDecoderWrite(stream.get(), written.get()));
    EXPECT_EQ(count(written.get()), 1);
    stream.readAll(&messages);
    ASSERT_EQ(messages.size(), 2 * pairs);
    for (size_t i = 0; i < messages.size(); i++) ASSERT_EQ(messages[i], i % 2 ? requestText : responseText) << i;
    EXPECT_EQ(stream.length(), 0);
    EXPECT_FALSE(stream.error());
}

// What waits is in front of it.
TEST(QuillMessageStreamDecoder, CopiesALongBufferBehindWhatWaits) {
    std::string text(request);
    while (text.size() < 2 * static_cast<size_t>(co::longBuffer)) text += text;
    auto const written = buffer(text.substr(1));
    Stream stream;
    stream.write("I");
    ASSERT_TRUE(quillMessageStreamDecoderWrite(stream.get(), written.get()));
    EXPECT_EQ(count(written.get()), 1);
    std::vector<std::string> messages;
    stream.readAll(&messages);
    EXPECT_EQ(messages, std::vector<std::string>(text.size() / (sizeof request - 1), requestText));
}

TEST(QuillMessageStreamDecoder, Asserts) {
    auto const bytes = buffer("ab");
    EXPECT_ABORT(quillMessageStreamDecoderError(nullptr), unit, "decoder");
    EXPECT_ABORT(quillMessageStreamDecoderLength(nullptr), unit, "decoder");
    EXPECT_ABORT(quillMessageStreamDecoderSpace(nullptr), unit, "decoder");
    EXPECT_ABORT(quillMessageStreamDecoderRead(nullptr), unit, "decoder");
    EXPECT_ABORT(quillMessageStreamDecoderWrite(nullptr, bytes.get()), unit, "decoder");
    EXPECT_ABORT(quillMessageStreamDecoderWriteLeading(nullptr, bytes.get(), 0), unit, "decoder");
    EXPECT_ABORT(quillMessageStreamDecoderWriteTrailing(nullptr, bytes.get(), 0), unit, "decoder");
    EXPECT_ABORT(quillMessageStreamDecoderWriteInner(nullptr, bytes.get(), 0, 0), unit, "decoder");
    EXPECT_ABORT(quillMessageStreamDecoderWriteOuter(nullptr, bytes.get(), 0, 0), unit, "decoder");
    Stream stream;
    EXPECT_ABORT(quillMessageStreamDecoderWrite(stream.get(), nullptr), unit, "buffer");
}

// A stream says what datagrams say, in whatever pieces it comes.

std::vector<std::string> samples() {
    std::vector<std::string> texts = {
        request,
        response,
        "SIP/2.0 200 OK\r\nl: 8\r\n\r\n\r\n\r\n\r\n\r\n",
        "A b:c SIP/2.0\r\ns: a\r\n \r\n\tb\r\nl: 1\r\nContent-Length:\r\n 2\r\n\r\n\r\n",
        "A sip:\u00E4 SIP/2.0\r\ns: \u20AC\r\nl: 4\r\n\r\n\xFF\xFE\xFD\xFC",
        "SIP/2.0 200 \r\r\nl: 1\r\n\r\nx",
    };
    for (auto const &entry : std::filesystem::directory_iterator(SAMPLES_DIR)) {
        if (entry.path().extension() != ".sip") continue;
        std::ifstream file(entry.path(), std::ios::binary);
        texts.emplace_back(std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>());
    }
    return texts;
}

// What a datagram of the text says; "(null)" where it is no message or no stream message.
std::string ofDatagram(std::string_view bytes) {
    auto const msg = own(quillMessageTryDecode(buffer(bytes).get()));
    if (!msg || !quillMessageHasHeaderCstr(msg.get(), "l", -1)) return "(null)";
    std::string text = describe(msg.get());
    return quillMessageHasBody(msg.get()) ? text : text + "\nbody=[]";
}

// Writes of many lengths end before, within and behind the end of the headers, and what looks like it.
TEST(QuillMessageStreamDecoder, FindsTheEndOfTheHeadersInAnyPieces) {
    constexpr size_t steps[] = {1, 2, 3, 4, 5, 15, 16, 17, 18, 19, 20, 63, 64, 65, 67, 80};
    for (size_t fill = 0; fill < 70; fill++) {
        std::string const value = "a\n\r\r\n b\n" + std::string(fill, 'x');
        std::string const bytes = "A b:c SIP/2.0\r\nl: 0\r\ns: " + value + "\r\n\r\n";
        Stream whole;
        whole.write(bytes);
        std::string const expected = whole.show();
        EXPECT_EQ(expected.find("(null)"), std::string::npos);
        for (size_t const step : steps) {
            Stream stream;
            std::vector<std::string> messages;
            for (size_t at = 0; at < bytes.size(); at += step) {
                EXPECT_TRUE(messages.empty()) << fill << " " << step;
                stream.write(std::string_view(bytes).substr(at, step));
                stream.readAll(&messages);
            }
            EXPECT_EQ(messages, std::vector<std::string>{expected}) << fill << " " << step;
        }
    }
}

TEST(QuillMessageStreamDecoder, SaysWhatDatagramsSay) {
    size_t compared = 0;
    for (std::string const &bytes : samples()) {
        std::string const expected = ofDatagram(bytes);
        if (expected == "(null)") continue;
        compared++;
        std::string_view const view = bytes;
        for (size_t at = 0; at <= bytes.size(); at++) {
            Stream stream;
            stream.write(view.substr(0, at));
            std::string first = stream.show();
            stream.write(view.substr(at));
            EXPECT_EQ(first == "(null)" ? stream.show() : first, expected) << at << "\n" << bytes;
        }
        Stream stream;
        std::vector<std::string> messages;
        for (char byte : bytes) {
            stream.write({&byte, 1});
            stream.readAll(&messages);
        }
        ASSERT_EQ(messages.size(), 1u) << bytes;
        EXPECT_EQ(messages[0], expected);
        EXPECT_EQ(stream.length(), 0);
    }
    EXPECT_GT(compared, 15u);
}

TEST(QuillMessageStreamDecoder, ReadsTheKeepAliveSample) {
    std::ifstream file(SAMPLES_DIR "/keepalive.stream", std::ios::binary);
    std::string const bytes{std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
    ASSERT_FALSE(bytes.empty());
    Stream whole;
    whole.write(bytes);
    std::vector<std::string> expected;
    whole.readAll(&expected);
    EXPECT_GE(expected.size(), 2u);
    for (size_t step : {1u, 2u, 3u, 7u, 100u}) {
        Stream stream;
        std::vector<std::string> messages;
        for (size_t at = 0; at < bytes.size(); at += step) {
            stream.write(std::string_view(bytes).substr(at, step));
            stream.readAll(&messages);
        }
        EXPECT_EQ(messages, expected) << step;
    }
}

TEST(QuillMessageStreamDecoder, CostIsLinear) {
    expectLinear("messages in one write", 1000, [](size_t n) {
        return [bytes = repeated(request, n), n] {
            Stream stream;
            stream.write(bytes);
            size_t read = 0;
            while (stream.read()) read++;
            EXPECT_EQ(read, n);
        };
    });
    expectLinear("one-byte writes", 1000, [](size_t n) {
        return [bytes = "A b:c SIP/2.0\r\ns: " + std::string(n, 'x') + "\r\nl: " + std::to_string(n) + "\r\n\r\n" +
                        std::string(n, 'y')] {
            Stream stream;
            size_t read = 0;
            for (char byte : bytes) {
                stream.write({&byte, 1});
                if (stream.read()) read++;
            }
            EXPECT_EQ(read, 1u);
        };
    });
    for (std::string_view piece : {"\r\n"sv, "\r"sv, "\r\n\r"sv, "x"sv, "x\r\n"sv})
        expectLinear("no end", 2000, [&](size_t n) {
            return [n, piece = buffer(piece)] {
                Stream stream;
                for (size_t i = 0; i < n; i++) {
                    quillMessageStreamDecoderWrite(stream.get(), piece.get());
                    stream.read();
                }
            };
        });
}

} // namespace
