// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "BrowserBridge/BrowserBridge.h"

#include <fmt/format.h>
#include <gmock/gmock.h>

#include <netinet/in.h>
#include <sys/socket.h>
#include <unistd.h>

#include <functional>
#include <thread>

namespace BrowserBridgeTests
{

using namespace BrowserBridge;

namespace
{

// A program on the port that answers as it is told: `http` to the first connection, and on the
// second `handshake` and then, to every frame, the next of `frames`. What it was sent is kept.
class FakeBrowser
{
public:
    std::string http{};
    std::function<std::string(const std::string &key)> handshake = [](const std::string &key) {
        return "HTTP/1.1 101 Yes\r\nsec-websocket-accept: " + acceptFor(key) + "\r\n\r\n";
    };
    std::vector<std::string> frames{};
    std::string received{};

    FakeBrowser()
    {
        sockaddr_in address{};
        address.sin_family = AF_INET;
        address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
        socklen_t size = sizeof address;
        auto *const generic = reinterpret_cast<sockaddr *>(&address);
        if (bind(m_listener.get(), generic, size) != 0 || listen(m_listener.get(), 2) != 0 ||
            getsockname(m_listener.get(), generic, &size) != 0) {
            throw std::runtime_error("no port");
        }
        m_port = ntohs(address.sin_port);
        http = version(fmt::format("ws://127.0.0.1:{}/devtools", m_port));
    }
    ~FakeBrowser() { stop(); }
    FakeBrowser(const FakeBrowser &) = delete;
    FakeBrowser &operator=(const FakeBrowser &) = delete;

    static std::string answer(std::string_view body)
    {
        return fmt::format("HTTP/1.1 200 OK\r\nContent-Length: {}\r\n\r\n{}", body.size(),
                           body);
    }
    static std::string version(std::string_view address)
    {
        return answer(fmt::format(R"({{"webSocketDebuggerUrl":"{}"}})", address));
    }

    std::uint16_t port() const { return m_port; }
    // The message that opening a bridge to it comes to; "open" for none.
    std::string open()
    {
        m_thread = std::thread{[this] { serve(); }};
        std::string outcome;
        {
            const auto bridge = Bridge::open(m_port);
            outcome = bridge ? "open" : bridge.error().message;
        }
        stop();
        return outcome;
    }

private:
    void stop()
    {
        shutdown(m_listener.get(), SHUT_RDWR);
        if (m_thread.joinable()) {
            m_thread.join();
        }
    }
    static void say(const Base::FileDescriptor &to, std::string_view text)
    {
        EXPECT_EQ(send(to.get(), text.data(), text.size(), MSG_NOSIGNAL),
                  static_cast<ssize_t>(text.size()));
    }
    static std::string hear(const Base::FileDescriptor &from)
    {
        std::array<char, 4'096> bytes{};
        const ssize_t got = recv(from.get(), bytes.data(), bytes.size(), 0);
        return {bytes.data(), static_cast<std::size_t>(std::max<ssize_t>(got, 0))};
    }
    void serve()
    {
        const Base::FileDescriptor first{accept(m_listener.get(), nullptr, nullptr)};
        received = hear(first);
        say(first, http);
        shutdown(first.get(), SHUT_WR);
        const Base::FileDescriptor second{accept(m_listener.get(), nullptr, nullptr)};
        if (!second.isOpen()) {
            return;
        }
        const std::string request = hear(second);
        constexpr std::string_view kName = "Sec-WebSocket-Key: ";
        const std::size_t begin = request.find(kName) + kName.size();
        say(second, handshake(request.substr(begin, request.find('\r', begin) - begin)));
        for (const std::string &frame : frames) {
            received = hear(second);
            say(second, frame);
        }
        received = hear(second);
    }

    Base::FileDescriptor m_listener{socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0)};
    std::uint16_t m_port{};
    std::thread m_thread;
};

constexpr const char *kNoBrowser = "What listens on the port is no browser.";

std::string messageTo(const std::function<void(FakeBrowser &)> &prepare)
{
    FakeBrowser browser;
    prepare(browser);
    const std::string port = std::to_string(browser.port());
    std::string outcome = browser.open();
    const std::size_t at = outcome.find(port);
    return at == std::string::npos ? outcome : outcome.replace(at, port.size(), "PORT");
}

// One whole text as a server sends it.
std::string text(std::string_view payload)
{
    return std::string{"\x81"} + static_cast<char>(payload.size()) + std::string{payload};
}

const std::string kContexts = text(R"({"id":1,"result":{"defaultBrowserContextId":"C"}})");

} // namespace

TEST(FakeBrowser, IsSeenThroughBeforeItIsDriven)
{
    struct Case {
        const char *name;
        std::function<void(FakeBrowser &)> prepare;
        std::string message;
    };
    const std::string foreign =
        "The browser names an address that is not its own port on this computer.";
    for (const auto &[name, prepare, message] : {
             Case{"says nothing", [](auto &b) { b.http = ""; },
                  "The browser on port PORT does not answer."},
             Case{"no HTTP", [](auto &b) { b.http = "220 mail\r\n\r\n"; }, kNoBrowser},
             Case{"404",
                  [](auto &b) { b.http = "HTTP/1.1 404 No\r\nContent-Length: 0\r\n\r\n"; },
                  kNoBrowser},
             Case{"no length", [](auto &b) { b.http = "HTTP/1.1 200 OK\r\n\r\n{}"; },
                  kNoBrowser},
             Case{"a wrong length",
                  [](auto &b) { b.http = "HTTP/1.1 200 OK\r\nContent-Length: -1\r\n\r\n{}"; },
                  kNoBrowser},
             Case{
                 "a huge body",
                 [](auto &b) { b.http = "HTTP/1.1 200 OK\r\nContent-Length: 65537\r\n\r\n{}"; },
                 kNoBrowser},
             Case{"a huge head",
                  [](auto &b) { b.http = "HTTP/1.1 200 OK\r\nA: " + std::string(20'000, 'x'); },
                  kNoBrowser},
             Case{"cut off",
                  [](auto &b) { b.http = "HTTP/1.1 200 OK\r\nContent-Length: 9\r\n\r\n{}"; },
                  "The browser on port PORT does not answer."},
             Case{"another page", [](auto &b) { b.http = b.answer("[]"); }, kNoBrowser},
             Case{"another host", [](auto &b) { b.http = b.version("ws://example.org:80/x"); },
                  foreign},
             Case{"another port", [](auto &b) { b.http = b.version("ws://127.0.0.1:1/x"); },
                  foreign},
             Case{"a handshake that anybody could have sent",
                  [](auto &b) {
                      b.handshake = [](const auto &) {
                          return "HTTP/1.1 101 Yes\r\nSec-WebSocket-Accept: x\r\n\r\n";
                      };
                  },
                  "The browser does not let itself be driven."},
             Case{"no handshake",
                  [](auto &b) {
                      b.handshake = [](const auto &) { return "HTTP/1.1 403 No\r\n\r\n"; };
                  },
                  "The browser does not let itself be driven."},
             Case{"no word of private windows",
                  [](auto &b) { b.frames = {text(R"({"id":1,"result":{}})")}; },
                  "This browser does not tell which windows are private; a newer one does."},
             Case{"an error", [](auto &b) { b.frames = {text(R"({"id":1,"error":{}})")}; },
                  "The browser refuses to do this in the tab."},
             Case{"no JSON", [](auto &b) { b.frames = {text("hello")}; },
                  "The browser's answer cannot be read."},
             Case{"a goodbye", [](auto &b) { b.frames = {"\x88\x02\x03\xe8"}; },
                  "The browser has closed the connection."},
             Case{"events, a pong and half an answer before the answer",
                  [](auto &b) {
                      b.frames = {text(R"({"method":"x","params":{}})") + "\x8A\x01x" +
                                  text(R"({"id":7,"result":{}})") + kContexts};
                  },
                  "open"},
         }) {
        EXPECT_EQ(messageTo(prepare), message) << name;
    }
}

TEST(FakeBrowser, HearsItsPingAndNothingOfOthers)
{
    FakeBrowser browser;
    browser.frames = {"\x89\x02hi", kContexts};
    EXPECT_EQ(browser.open(), "open");
    FakeBrowser curious;
    curious.frames = {"\x89\x02hi"};
    curious.handshake = [](const std::string &key) {
        return "HTTP/1.1 101 Yes\r\nSec-WebSocket-Accept: " + acceptFor(key) + "\r\n\r\n";
    };
    EXPECT_EQ(curious.open(),
              fmt::format("The browser on port {} does not answer.", curious.port()));
    ASSERT_EQ(curious.received.size(), 8U); // the pong
    EXPECT_EQ(static_cast<unsigned char>(curious.received[0]), 0x8AU);
    EXPECT_EQ(curious.received[6] ^ curious.received[2], 'h');
    EXPECT_EQ(curious.received[7] ^ curious.received[3], 'i');
}

TEST(FakeBrowser, IsMissedWhereNobodyListens)
{
    std::uint16_t port = 0;
    {
        const FakeBrowser gone;
        port = gone.port();
    }
    EXPECT_EQ(Bridge::open(port).error().message,
              fmt::format("No browser that may be driven listens on port {}.", port));
}

} // namespace BrowserBridgeTests
