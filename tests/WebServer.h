// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Base/Http.h"
#include "tests/TemporaryFolder.h"
#include "tests/WebCertificates.h"

#include <atomic>
#include <chrono>
#include <condition_variable>
#include <cstdint>
#include <functional>
#include <list>
#include <map>
#include <mutex>
#include <optional>
#include <string>
#include <string_view>
#include <thread>
#include <vector>

// What the server was asked.
struct WebRequest {
    std::string method{};
    std::string path{};  // up to the question mark
    std::string query{}; // behind it
    std::vector<Base::HttpHeader> headers{};

    // The first value of that name, whatever its case; empty when there is none.
    std::string header(std::string_view name) const;
};

// What it answers, and how it misbehaves.
struct WebReply {
    enum class Way : std::uint8_t {
        whole,     // as a good server does
        dropped,   // the connection ends before the answer
        truncated, // the connection ends in the middle of the body
        endless,   // the body again and again, without a length
        dripping,  // one byte of the body every 20 ms
        silent,    // nothing at all, until the server stops
    };

    int status = 200;
    std::vector<Base::HttpHeader> headers{};
    std::string body{};
    std::optional<std::string> contentLength{}; // in place of the right one
    std::chrono::milliseconds delay{};
    Way way = Way::whole;
};

// A small web server on 127.0.0.1 for one test. It answers each path as it was told to, and 404
// elsewhere; each connection carries one exchange. At most kMostConnections are taken in its
// life, each for ten seconds of waiting at most, and an endless body ends after
// kLongestBody bytes: a fault of a test cannot run for ever.
class WebServer
{
public:
    enum class Security : std::uint8_t { plain, tls };
    using Handler = std::function<WebReply(const WebRequest &)>;

    static constexpr int kMostConnections = 20'000;
    static constexpr std::size_t kLongestBody = 256'000'000;

    explicit WebServer(Security security = Security::plain);
    ~WebServer();
    WebServer(const WebServer &) = delete;
    WebServer &operator=(const WebServer &) = delete;

    // Callable at any time. The handler runs on the server's threads.
    void on(const std::string &path, Handler handler);
    void on(const std::string &path, WebReply reply);

    // "http://127.0.0.1:PORT" or https, and the path behind it.
    std::string url(std::string_view path = "", std::string_view host = "127.0.0.1") const;
    // The authority's certificate for a client that is to trust a server with TLS.
    std::filesystem::path authorityFile() const;

    std::vector<WebRequest> requests() const; // so far, in the order in which they came
    std::size_t bytesSent() const { return m_bytesSent; }
    // Waits until so many requests have come, ten seconds at most.
    bool waitForRequests(std::size_t count) const;

private:
    class Connection;
    struct Worker {
        int socket = -1;
        std::atomic<bool> isDone{false};
        std::jthread thread{};
    };

    void accept(const std::stop_token &stop);
    void serve(Worker &worker, const std::stop_token &stop);
    WebReply replyTo(const WebRequest &request);
    void send(Connection &connection, const WebReply &reply, const std::stop_token &stop);
    // False when the server stops meanwhile.
    bool pause(std::chrono::milliseconds time, const std::stop_token &stop);

    TemporaryFolder m_folder;
    std::shared_ptr<SSL_CTX> m_tls; // null for plain HTTP
    int m_listener = -1;
    int m_port = 0;
    std::atomic<std::size_t> m_bytesSent{0};
    mutable std::mutex m_mutex;
    mutable std::condition_variable_any m_changed;
    std::map<std::string, Handler, std::less<>> m_handlers;
    std::vector<WebRequest> m_requests;
    std::list<Worker> m_workers;
    std::jthread m_acceptor; // last: it uses all of the above
};

// The bytes as a gzip file.
std::string gzip(std::string_view text);
