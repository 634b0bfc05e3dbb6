// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "BrowserBridge/WebSocketFrames.h"

#include "BrowserBridge/DevTools.h"
#include "BrowserBridge/WebSocket.h"

#include <gmock/gmock.h>
#include <rapidcheck/gtest.h>

namespace BrowserBridgeTests
{

using namespace BrowserBridge;

namespace
{

using Messages = std::vector<Message>;

std::string bytes(std::string_view head, std::string_view payload = {})
{
    return std::string{head} + std::string{payload};
}

// What comes of the bytes, and the failure that ended it, if one did.
struct Read {
    Messages messages{};
    std::string failure{};

    bool operator==(const Read &) const = default;
};
Read readAll(std::string_view input, std::size_t step = 1)
{
    FrameReader reader;
    Read read;
    for (std::size_t at = 0; at < input.size(); at += step) {
        reader.add(input.substr(at, step));
        auto message = reader.next();
        for (; message && *message; message = reader.next()) {
            read.messages.push_back(**message);
        }
        if (!message) {
            read.failure = message.error().message;
            break;
        }
    }
    return read;
}

// As a server would send it: without the mask that only clients use.
std::string unmasked(std::string_view frame)
{
    const auto shortSize = static_cast<unsigned char>(frame[1]) & 0x7FU;
    const std::size_t longSize = shortSize == 127 ? 8 : 2;
    const std::size_t head = shortSize < 126 ? 2 : 2 + longSize;
    std::string sent{frame.substr(0, head)};
    sent[1] = static_cast<char>(shortSize);
    const std::string_view mask = frame.substr(head, 4);
    const std::string_view masked = frame.substr(head + 4);
    for (std::size_t at = 0; at < masked.size(); ++at) {
        sent += static_cast<char>(masked[at] ^ mask[at % 4]);
    }
    return sent;
}

} // namespace

TEST(WebSocketFrames, AreWrittenAsTheStandardShowsThem)
{
    EXPECT_EQ(encodeFrame(Opcode::text, "Hello", {'\x37', '\xfa', '\x21', '\x3d'}),
              "\x81\x85\x37\xfa\x21\x3d\x7f\x9f\x4d\x51\x58");
    EXPECT_EQ(encodeFrame(Opcode::pong, "", {}), bytes({"\x8A\x80\0\0\0\0", 6}));
    EXPECT_EQ(encodeFrame(Opcode::text, std::string(126, 'x'), {}).substr(0, 8),
              bytes({"\x81\xFE\x00\x7E\0\0\0\0", 8}));
    EXPECT_EQ(encodeFrame(Opcode::text, std::string(65'536, 'x'), {}).substr(0, 10),
              bytes({"\x81\xFF\0\0\0\0\0\x01\0\0", 10}));
    EXPECT_EQ(acceptFor("dGhlIHNhbXBsZSBub25jZQ=="), "s3pPLMBiTxaQ9kYGzzhZRbK+xOo=");
}

RC_GTEST_PROP(WebSocketFrames, AreReadAsTheyWereWritten, (std::vector<std::string> texts))
{
    std::string stream;
    Messages sent;
    for (std::string &text : texts) {
        const auto times = *rc::gen::element<std::size_t>(1, 1, 1, 700);
        for (const std::string one = text; text.size() < one.size() * times;) {
            text += one;
        }
        const FrameMask mask{*rc::gen::arbitrary<char>(), 'b', *rc::gen::arbitrary<char>(),
                             'd'};
        stream += unmasked(encodeFrame(Opcode::text, text, mask));
        sent.push_back({.opcode = Opcode::text, .payload = text});
    }
    const auto step = *rc::gen::element<std::size_t>(977, 100'000);
    RC_ASSERT((readAll(stream, step) == Read{.messages = sent}));
}

TEST(WebSocketFrames, ArePutTogetherFromFragments)
{
    const std::string stream = "\x01\x03one\x89\x02hi\x80\x05 two!\x82\x01z";
    const Messages expected{
        {Opcode::ping, "hi"}, {Opcode::text, "one two!"}, {Opcode::binary, "z"}};
    for (const std::size_t step : {1U, 2U, 3U, 100U}) {
        EXPECT_EQ(readAll(stream, step), (Read{.messages = expected}));
    }
}

TEST(WebSocketFrames, AreRefusedWhereTheyBreakTheProtocol)
{
    const std::string unknown = "The browser breaks the protocol: a frame of an unknown kind.";
    const std::string order = "The browser breaks the protocol: fragments out of order.";
    const std::string control = "The browser breaks the protocol: a long control frame.";
    const std::string longForm =
        "The browser breaks the protocol: a size in a longer form than it needs.";
    for (const auto &[input, failure] :
         std::initializer_list<std::pair<std::string, std::string>>{
             {bytes({"\xC1\x00", 2}), unknown},
             {bytes({"\x83\x00", 2}), unknown},
             {bytes({"\x8B\x00", 2}), unknown},
             {bytes({"\x81\x80", 2}), "The browser breaks the protocol: a masked frame."},
             {bytes({"\x80\x00", 2}), order},
             {bytes({"\x01\x00\x81\x00", 4}), order},
             {bytes({"\x09\x00", 2}), control},
             {bytes({"\x89\x7E\x00\x7E", 4}), control},
             {bytes({"\x81\x7E\x00\x7D", 4}), longForm},
             {bytes({"\x81\x7F\0\0\0\0\0\0\xFF\xFF", 10}), longForm},
             {bytes({"\x81\x7F\0\0\0\0\0\x3D\x09\x01", 10}),
              "The browser's answer is too large."},
             {bytes({"\x81\x7F\xFF\xFF\xFF\xFF\xFF\xFF\xFF\xFF", 10}),
              "The browser's answer is too large."},
         }) {
        EXPECT_EQ(readAll(input).failure, failure);
    }
}

TEST(WebSocketFrames, AreBoundedAllTogether)
{
    FrameReader reader;
    const std::string half(FrameReader::kLargestMessage / 2, 'x');
    const auto send = [&](char first) {
        std::string frame = encodeFrame(Opcode::text, half, {});
        frame[0] = first;
        reader.add(unmasked(frame));
        return reader.next();
    };
    EXPECT_TRUE(send('\x01').has_value());
    EXPECT_TRUE(send('\x00').has_value());
    reader.add(bytes({"\x80\x01", 2}));
    EXPECT_EQ(reader.next().error().message, "The browser's answer is too large.");
}

TEST(DebuggerPath, IsTakenOnlyFromThisComputerAndPort)
{
    const auto pathOf = [](const std::string &address) {
        return debuggerPath(R"({"Browser":"B","webSocketDebuggerUrl":")" + address + "\"}",
                            9222);
    };
    EXPECT_EQ(*pathOf("ws://127.0.0.1:9222/devtools/browser/1"), "/devtools/browser/1");
    EXPECT_EQ(*pathOf("ws://localhost:9222/x"), "/x");
    for (const char *address :
         {"ws://127.0.0.1:9223/x", "ws://127.0.0.1:92222/x", "ws://127.0.0.1:9222", "",
          "ws://10.0.0.1:9222/x", "ws://127.0.0.1:9222@example.org/x", "wss://127.0.0.1:9222/x",
          "http://127.0.0.1:9222/x", "ws://localhost.example:9222/x", "ws://127.0.0.1:9222/x y",
          "ws://127.0.0.1:9222/x\\r\\nHost: y"}) {
        EXPECT_EQ(pathOf(address).error().message,
                  "The browser names an address that is not its own port on this computer.")
            << address;
    }
    EXPECT_EQ(debuggerPath("{}", 9222).error().message,
              "What listens on the port is no browser.");
}

} // namespace BrowserBridgeTests
