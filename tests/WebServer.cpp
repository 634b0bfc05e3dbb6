// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "tests/WebServer.h"

#include "Base/File.h"
#include "Base/Text.h"

#include <arpa/inet.h>
#include <netinet/in.h>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>
#include <zlib.h>

#include <algorithm>
#include <csignal>
#include <fstream>
#include <stdexcept>

namespace
{

using namespace std::chrono_literals;

constexpr auto kPatience = 10s;
constexpr std::size_t kLongestHead = 64'000;

void blockPipeSignals()
{
    sigset_t signals;
    sigemptyset(&signals);
    sigaddset(&signals, SIGPIPE);
    pthread_sigmask(SIG_BLOCK, &signals, nullptr);
}

void require(bool holds)
{
    if (!holds) {
        throw std::runtime_error("the web server of the tests could not start");
    }
}

std::optional<WebRequest> parseHead(std::string_view head)
{
    WebRequest request;
    const auto lines = Base::split(head, '\n');
    const auto words = Base::split(lines.front(), ' ');
    if (words.size() != 3) {
        return std::nullopt;
    }
    request.method = words[0];
    const std::size_t mark = std::min(words[1].find('?'), words[1].size());
    request.path = words[1].substr(0, mark);
    request.query = words[1].substr(std::min(mark + 1, words[1].size()));
    for (const std::string_view line : lines) {
        if (const std::size_t colon = line.find(':'); colon != std::string_view::npos) {
            request.headers.push_back(
                {.name = std::string{line.substr(0, colon)},
                 .value = std::string{Base::trimmed(line.substr(colon + 1))}});
        }
    }
    return request;
}

std::string headOf(const WebReply &reply)
{
    std::string head = "HTTP/1.1 " + std::to_string(reply.status) + " Of the tests\r\n";
    for (const auto &[name, value] : reply.headers) {
        head.append(name).append(": ").append(value).append("\r\n");
    }
    // Neither has a body, whatever the length says.
    const bool hasBody = reply.status != 304 && reply.status != 204;
    if (reply.way != WebReply::Way::endless && hasBody) {
        head.append("Content-Length: ")
            .append(reply.contentLength.value_or(std::to_string(reply.body.size())))
            .append("\r\n");
    }
    return head + "Connection: close\r\n\r\n";
}

} // namespace

std::string WebRequest::header(std::string_view name) const
{
    const auto found = std::ranges::find_if(headers, [&](const Base::HttpHeader &header) {
        return Base::lowerAscii(header.name) == Base::lowerAscii(name);
    });
    return found == headers.end() ? std::string{} : found->value;
}

// One accepted socket, with TLS over it or without. Every wait on it ends in bounded time.
class WebServer::Connection
{
public:
    Connection(int socket, SSL_CTX *tls) : m_socket(socket)
    {
        const timeval patience{.tv_sec = kPatience.count(), .tv_usec = 0};
        setsockopt(socket, SOL_SOCKET, SO_RCVTIMEO, &patience, sizeof patience);
        setsockopt(socket, SOL_SOCKET, SO_SNDTIMEO, &patience, sizeof patience);
        if (tls != nullptr) {
            m_tls.reset(SSL_new(tls));
            SSL_set_fd(m_tls.get(), socket);
            m_isOpen = SSL_accept(m_tls.get()) == 1;
        }
    }

    std::optional<WebRequest> receive()
    {
        std::string head;
        while (m_isOpen && head.size() < kLongestHead) {
            char buffer[4096];
            const auto size = m_tls ? SSL_read(m_tls.get(), buffer, sizeof buffer)
                                    : recv(m_socket, buffer, sizeof buffer, 0);
            if (size <= 0) {
                break;
            }
            head.append(buffer, static_cast<std::size_t>(size));
            if (head.find("\r\n\r\n") != std::string::npos) {
                return parseHead(head);
            }
        }
        return std::nullopt;
    }

    // How much of it left; 0 when the other side is gone.
    std::size_t send(std::string_view bytes)
    {
        if (bytes.empty() || !m_isOpen) {
            return 0;
        }
        const auto size =
            m_tls ? SSL_write(m_tls.get(), bytes.data(), static_cast<int>(bytes.size()))
                  : ::send(m_socket, bytes.data(), bytes.size(), MSG_NOSIGNAL);
        m_isOpen = size > 0;
        return m_isOpen ? static_cast<std::size_t>(size) : 0;
    }

    bool sendAll(std::string_view bytes)
    {
        while (!bytes.empty()) {
            const std::size_t size = send(bytes);
            if (size == 0) {
                return false;
            }
            bytes.remove_prefix(size);
        }
        return true;
    }

    // Says that all was sent, and waits for the other side to have read it: closing at once
    // could take back what is still on its way.
    void finish()
    {
        if (m_tls && m_isOpen) {
            SSL_shutdown(m_tls.get());
        }
        shutdown(m_socket, SHUT_WR);
        char rest[4096];
        while (recv(m_socket, rest, sizeof rest, 0) > 0) {
        }
    }

private:
    int m_socket;
    std::unique_ptr<SSL, void (*)(SSL *)> m_tls{nullptr, SSL_free};
    bool m_isOpen = true;
};

WebServer::WebServer(Security security)
{
    if (security == Security::tls) {
        const WebCertificates certificates;
        m_tls = certificates.serverContext();
        std::ofstream{authorityFile()} << certificates.authority();
    }
    m_listener = socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    auto *plain = reinterpret_cast<sockaddr *>(&address);
    socklen_t size = sizeof address;
    require(m_listener >= 0 && bind(m_listener, plain, size) == 0 &&
            listen(m_listener, SOMAXCONN) == 0 && getsockname(m_listener, plain, &size) == 0);
    m_port = ntohs(address.sin_port);
    m_acceptor = std::jthread{[this](const std::stop_token &stop) { accept(stop); }};
}

WebServer::~WebServer()
{
    m_acceptor.request_stop();
    shutdown(m_listener, SHUT_RDWR);
    m_acceptor.join();
    close(m_listener);
    {
        const std::lock_guard lock{m_mutex};
        for (Worker &worker : m_workers) {
            worker.thread.request_stop();
            if (!worker.isDone) {
                shutdown(worker.socket, SHUT_RDWR);
            }
        }
    }
    m_workers.clear();
}

void WebServer::on(const std::string &path, Handler handler)
{
    const std::lock_guard lock{m_mutex};
    m_handlers.insert_or_assign(path, std::move(handler));
}

void WebServer::on(const std::string &path, WebReply reply)
{
    on(path, [reply = std::move(reply)](const WebRequest &) { return reply; });
}

std::string WebServer::url(std::string_view path, std::string_view host) const
{
    std::string text = m_tls ? "https://" : "http://";
    return text.append(host).append(":").append(std::to_string(m_port)).append(path);
}

std::filesystem::path WebServer::authorityFile() const
{
    return m_folder.path() / "authority.pem";
}

std::vector<WebRequest> WebServer::requests() const
{
    const std::lock_guard lock{m_mutex};
    return m_requests;
}

bool WebServer::waitForRequests(std::size_t count) const
{
    std::unique_lock lock{m_mutex};
    return m_changed.wait_for(lock, kPatience, [&] { return m_requests.size() >= count; });
}

void WebServer::accept(const std::stop_token &stop)
{
    for (int taken = 0; taken < kMostConnections && !stop.stop_requested(); ++taken) {
        const int socket = accept4(m_listener, nullptr, nullptr, SOCK_CLOEXEC);
        if (socket < 0) {
            return;
        }
        const std::lock_guard lock{m_mutex};
        std::erase_if(m_workers, [](const Worker &worker) { return worker.isDone.load(); });
        Worker &worker = m_workers.emplace_back();
        worker.socket = socket;
        worker.thread = std::jthread{[this, &worker](const std::stop_token &workerStop) {
            blockPipeSignals();
            serve(worker, workerStop);
        }};
    }
}

void WebServer::serve(Worker &worker, const std::stop_token &stop)
{
    {
        Connection connection{worker.socket, m_tls.get()};
        if (const auto request = connection.receive()) {
            send(connection, replyTo(*request), stop);
        }
    }
    const std::lock_guard lock{m_mutex}; // the destructor shuts only sockets that are open
    close(worker.socket);
    worker.isDone = true;
}

WebReply WebServer::replyTo(const WebRequest &request)
{
    Handler handler;
    {
        const std::lock_guard lock{m_mutex};
        m_requests.push_back(request);
        if (const auto found = m_handlers.find(request.path); found != m_handlers.end()) {
            handler = found->second;
        }
    }
    m_changed.notify_all();
    return handler ? handler(request) : WebReply{.status = 404};
}

void WebServer::send(Connection &connection, const WebReply &reply, const std::stop_token &stop)
{
    using enum WebReply::Way;
    if (reply.way == silent) {
        pause(kPatience * 10, stop);
    }
    if (reply.way == silent || reply.way == dropped || !pause(reply.delay, stop)) {
        return;
    }
    bool isHeard = connection.sendAll(headOf(reply));
    const std::string_view body = reply.body;
    switch (reply.way) {
    case truncated:
        connection.sendAll(body.substr(0, body.size() / 2));
        return;
    case endless:
        for (std::size_t sent = 0; isHeard && sent < kLongestBody && !stop.stop_requested();) {
            const std::size_t size = connection.send(body);
            isHeard = size > 0;
            sent += size;
            m_bytesSent += size;
        }
        return;
    case dripping:
        for (std::size_t at = 0; isHeard && at < body.size() && pause(20ms, stop); ++at) {
            isHeard = connection.sendAll(body.substr(at, 1));
        }
        return;
    default:
        m_bytesSent += connection.sendAll(body) ? body.size() : 0;
        connection.finish();
    }
}

bool WebServer::pause(std::chrono::milliseconds time, const std::stop_token &stop)
{
    std::unique_lock lock{m_mutex};
    m_changed.wait_for(lock, stop, time, [] { return false; });
    return !stop.stop_requested();
}

std::string gzip(std::string_view text)
{
    constexpr int kGzip = 15 + 16; // the largest window, with gzip's own head
    constexpr int kMemory = 8;
    z_stream stream{};
    require(deflateInit2(&stream, Z_BEST_SPEED, Z_DEFLATED, kGzip, kMemory,
                         Z_DEFAULT_STRATEGY) == Z_OK);
    std::string packed(deflateBound(&stream, text.size()), '\0');
    stream.next_in = reinterpret_cast<Bytef *>(const_cast<char *>(text.data()));
    stream.avail_in = static_cast<uInt>(text.size());
    stream.next_out = reinterpret_cast<Bytef *>(packed.data());
    stream.avail_out = static_cast<uInt>(packed.size());
    require(deflate(&stream, Z_FINISH) == Z_STREAM_END);
    packed.resize(stream.total_out);
    deflateEnd(&stream);
    return packed;
}
