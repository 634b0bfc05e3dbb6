// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "tests/BrowserBridge/PageServer.h"

#include <fmt/format.h>
#include <openssl/evp.h>
#include <openssl/x509.h>

#include <netinet/in.h>
#include <poll.h>
#include <sys/socket.h>

#include <array>
#include <csignal>
#include <stdexcept>

namespace BrowserBridgeTests
{

namespace
{

// A tone of this many seconds is made on the page itself, so that it can be sought at once.
constexpr const char *kMediaScript = R"JS(
function wav(seconds) {
  const size = seconds * 8000, bytes = new DataView(new ArrayBuffer(44 + size));
  const text = (at, s) => [...s].forEach((c, i) => bytes.setUint8(at + i, c.charCodeAt(0)));
  text(0, "RIFF"); bytes.setUint32(4, 36 + size, true); text(8, "WAVEfmt ");
  bytes.setUint32(16, 16, true); bytes.setUint16(20, 1, true); bytes.setUint16(22, 1, true);
  bytes.setUint32(24, 8000, true); bytes.setUint32(28, 8000, true);
  bytes.setUint16(32, 1, true); bytes.setUint16(34, 8, true);
  text(36, "data"); bytes.setUint32(40, size, true);
  for (let i = 0; i < size; ++i) bytes.setUint8(44 + i, 128 + (i % 20 < 10 ? 20 : -20));
  return URL.createObjectURL(new Blob([bytes], {type: "audio/wav"}));
}
const happens = (target, name) =>
  new Promise(resolve => target.addEventListener(name, resolve, {once: true}));
async function addAudio(seconds, position = 0) {
  const audio = document.createElement("audio");
  document.body.append(audio);
  audio.src = wav(seconds);
  await happens(audio, "canplaythrough");
  if (position) { audio.currentTime = position; await happens(audio, "seeked"); }
  return audio;
}
async function addLiveVideo() {
  const canvas = document.createElement("canvas"), video = document.createElement("video");
  const draw = () => canvas.getContext("2d").fillRect(Math.random() * 9, 0, 9, 9);
  draw(); setInterval(draw, 50);
  video.muted = true;
  video.srcObject = canvas.captureStream(20);
  document.body.append(video);
  await video.play();
  return video;
}
)JS";

// A key and a certificate that signs itself.
void certify(SSL_CTX *context)
{
    EVP_PKEY *const key = EVP_EC_gen("P-256");
    X509 *const certificate = X509_new();
    ASN1_INTEGER_set(X509_get_serialNumber(certificate), 1);
    X509_gmtime_adj(X509_getm_notBefore(certificate), -3'600);
    X509_gmtime_adj(X509_getm_notAfter(certificate), 86'400);
    X509_set_pubkey(certificate, key);
    X509_sign(certificate, key, EVP_sha256());
    const bool isUsed = SSL_CTX_use_certificate(context, certificate) == 1 &&
                        SSL_CTX_use_PrivateKey(context, key) == 1;
    X509_free(certificate);
    EVP_PKEY_free(key);
    if (!isUsed) {
        throw std::runtime_error("no certificate");
    }
}

} // namespace

PageServer::PageServer()
    : m_context(SSL_CTX_new(TLS_server_method())),
      m_listener(socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0))
{
    std::signal(SIGPIPE, SIG_IGN); // a browser closes what it does not want any more
    certify(m_context.get());
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    socklen_t size = sizeof address;
    auto *const generic = reinterpret_cast<sockaddr *>(&address);
    if (bind(m_listener.get(), generic, size) != 0 || listen(m_listener.get(), 64) != 0 ||
        getsockname(m_listener.get(), generic, &size) != 0) {
        throw std::runtime_error("no port");
    }
    m_port = ntohs(address.sin_port);
    m_thread = std::jthread{[this](const std::stop_token &stop) { serve(stop); }};
}

PageServer::~PageServer()
{
    m_thread.request_stop();
    shutdown(m_listener.get(), SHUT_RDWR);
}

std::string PageServer::add(const std::string &title, const std::string &body,
                            const std::string &script)
{
    const std::lock_guard lock{m_mutex};
    const std::string path = fmt::format("/{}", m_pages.size());
    m_pages[path] = fmt::format("<!doctype html><meta charset=utf-8><title>{}</title><body>{}"
                                "<script>{}\n(async () => {{ {}; window.ready = true; }})()"
                                "</script>",
                                title, body, kMediaScript, script);
    return path;
}

// A browser opens connections that it may never use: each has a thread of its own, and each
// ends by itself.
void PageServer::serve(const std::stop_token &stop)
{
    std::vector<std::jthread> answering;
    while (!stop.stop_requested()) {
        Base::FileDescriptor socket{accept(m_listener.get(), nullptr, nullptr)};
        if (socket.isOpen()) {
            answering.emplace_back([this, taken = std::move(socket)] { answer(taken); });
        }
    }
}

void PageServer::answer(const Base::FileDescriptor &socket)
{
    const timeval patience{.tv_sec = 3, .tv_usec = 0};
    setsockopt(socket.get(), SOL_SOCKET, SO_RCVTIMEO, &patience, sizeof patience);
    setsockopt(socket.get(), SOL_SOCKET, SO_SNDTIMEO, &patience, sizeof patience);
    const std::unique_ptr<SSL, Free> connection{SSL_new(m_context.get())};
    SSL_set_fd(connection.get(), socket.get());
    std::array<char, 16'384> request{};
    if (SSL_accept(connection.get()) != 1) {
        return;
    }
    const int got =
        SSL_read(connection.get(), request.data(), static_cast<int>(request.size()));
    if (got > 0) {
        const std::string page = pageFor({request.data(), static_cast<std::size_t>(got)});
        SSL_write(connection.get(), page.data(), static_cast<int>(page.size()));
        SSL_shutdown(connection.get());
    }
}

std::string PageServer::pageFor(const std::string &request)
{
    const std::lock_guard lock{m_mutex};
    const std::size_t begin = request.find(' ') + 1;
    const auto page = m_pages.find(request.substr(begin, request.find(' ', begin) - begin));
    const std::string body = page == m_pages.end() ? "" : page->second;
    return fmt::format("HTTP/1.1 {}\r\nContent-Type: text/html; charset=utf-8\r\n"
                       "Content-Length: {}\r\nConnection: close\r\n\r\n{}",
                       page == m_pages.end() ? "404 Not Found" : "200 OK", body.size(), body);
}

} // namespace BrowserBridgeTests
