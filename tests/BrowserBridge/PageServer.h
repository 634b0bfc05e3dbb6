// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Base/File.h"

#include <openssl/ssl.h>

#include <cstdint>
#include <map>
#include <memory>
#include <mutex>
#include <string>
#include <thread>
#include <vector>

namespace BrowserBridgeTests
{

// Serves pages over HTTPS on 127.0.0.1, under a certificate of its own that a browser must be
// told to put up with. Sites that insist on HTTPS can so be played under their own names.
class PageServer
{
public:
    PageServer();
    ~PageServer();
    PageServer(const PageServer &) = delete;
    PageServer &operator=(const PageServer &) = delete;

    std::uint16_t port() const { return m_port; }
    // The path under which a page is served from now on. Its script can make media, and
    // `window.ready` says that it has run to the end.
    std::string add(const std::string &title, const std::string &body,
                    const std::string &script);

private:
    struct Free {
        void operator()(SSL_CTX *context) const { SSL_CTX_free(context); }
        void operator()(SSL *connection) const { SSL_free(connection); }
    };

    void serve(const std::stop_token &stop);
    void answer(const Base::FileDescriptor &socket);
    std::string pageFor(const std::string &request);

    std::unique_ptr<SSL_CTX, Free> m_context;
    Base::FileDescriptor m_listener;
    std::uint16_t m_port{};
    std::mutex m_mutex;
    std::map<std::string, std::string> m_pages; // by path
    std::jthread m_thread;
};

} // namespace BrowserBridgeTests
