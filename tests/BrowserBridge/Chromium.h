// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "tests/TemporaryFolder.h"

#include <sys/types.h>

#include <cstdint>
#include <string>

namespace BrowserBridgeTests
{

// A headless browser with a fresh profile that can reach nothing but 127.0.0.1, which also
// answers for the names of the sites that the tests play. It ends with the test.
class Chromium
{
public:
    Chromium();
    ~Chromium();
    Chromium(const Chromium &) = delete;
    Chromium &operator=(const Chromium &) = delete;

    static bool isInstalled();

    std::uint16_t port() const { return m_port; }
    // The id of a new tab on this page, once the page says that it is ready.
    std::string openTab(const std::string &url);
    // The same in a private window, which nothing waits for.
    std::string openPrivateTab(const std::string &url);
    void closeTab(const std::string &tab);

private:
    void start();
    void stop() const;
    bool readPort();
    // The first text under this key in the browser's answer; empty: it has none.
    std::string call(const std::string &method, const std::string &parameters,
                     const std::string &key);

    TemporaryFolder m_profile;
    pid_t m_process{};
    std::uint16_t m_port{};
    std::string m_path;
};

} // namespace BrowserBridgeTests
