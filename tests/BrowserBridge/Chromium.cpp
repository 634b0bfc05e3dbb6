// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "tests/BrowserBridge/Chromium.h"

#include "Base/Text.h"
#include "BrowserBridge/BrowserBridge.h"

#include <fmt/format.h>

#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <csignal>
#include <stdexcept>
#include <thread>

namespace BrowserBridgeTests
{

using namespace std::chrono_literals;

namespace
{

constexpr const char *kProgram = "/usr/bin/chromium";
// The look-alike page answers under its host name; nothing else of the web is found.
constexpr const char *kHostRules =
    "--host-resolver-rules=MAP *youtube.com 127.0.0.1, MAP * ~NOTFOUND, EXCLUDE 127.0.0.1";

// Long enough for a busy machine; nothing is measured by it.
template <class Condition>
bool waitFor(const Condition &condition)
{
    const auto end = std::chrono::steady_clock::now() + 90s;
    while (!condition()) {
        if (std::chrono::steady_clock::now() > end) {
            return false;
        }
        std::this_thread::sleep_for(50ms);
    }
    return true;
}

} // namespace

bool Chromium::isInstalled() { return access(kProgram, X_OK) == 0; }

Chromium::Chromium()
{
    start();
    if (!waitFor([this] { return readPort(); })) {
        stop();
        throw std::runtime_error("the browser did not start: " +
                                 Base::readFile(m_profile.path() / "log").value_or(""));
    }
}

Chromium::~Chromium() { stop(); }

// Its whole group, as it is several processes.
void Chromium::stop() const
{
    kill(-m_process, SIGKILL);
    waitpid(m_process, nullptr, 0);
}

void Chromium::start()
{
    const std::string log = m_profile.path() / "log";
    std::vector<std::string> arguments{kProgram,
                                       "--headless=new",
                                       "--no-sandbox",
                                       "--disable-gpu",
                                       "--disable-dev-shm-usage",
                                       "--remote-debugging-port=0",
                                       "--user-data-dir=" + (m_profile.path() / "p").string(),
                                       "--no-first-run",
                                       "--disable-background-networking",
                                       "--disable-component-update",
                                       "--disable-sync",
                                       "--ignore-certificate-errors",
                                       "--disable-breakpad",
                                       kHostRules,
                                       "about:blank"};
    std::vector<char *> argv;
    for (std::string &argument : arguments) {
        argv.push_back(argument.data());
    }
    argv.push_back(nullptr);
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_addopen(&actions, STDOUT_FILENO, log.c_str(), O_WRONLY | O_CREAT,
                                     0600);
    posix_spawn_file_actions_adddup2(&actions, STDOUT_FILENO, STDERR_FILENO);
    posix_spawnattr_t attributes;
    posix_spawnattr_init(&attributes);
    posix_spawnattr_setflags(&attributes, POSIX_SPAWN_SETPGROUP);
    const int code =
        posix_spawn(&m_process, kProgram, &actions, &attributes, argv.data(), environ);
    posix_spawnattr_destroy(&attributes);
    posix_spawn_file_actions_destroy(&actions);
    if (code != 0) {
        throw std::runtime_error("the browser cannot be started");
    }
}

// The browser writes the port that it has chosen, and the path, into its profile.
bool Chromium::readPort()
{
    const auto text = Base::readFile(m_profile.path() / "p" / "DevToolsActivePort");
    const std::string content = text.value_or("");
    const auto lines = Base::split(content, '\n');
    if (lines.size() < 2) {
        return false;
    }
    m_port = Base::numberFrom<std::uint16_t>(lines[0]).value_or(0);
    m_path = lines[1];
    return m_port != 0 && !m_path.empty();
}

std::string Chromium::call(const std::string &method, const std::string &parameters,
                           const std::string &key)
{
    const auto deadline = std::chrono::steady_clock::now() + 60s;
    auto socket = BrowserBridge::WebSocket::open(m_port, m_path, deadline);
    if (!socket || !socket->sendText(fmt::format(R"({{"id":1,"method":"{}","params":{}}})",
                                                 method, parameters))) {
        throw std::runtime_error("the browser does not listen");
    }
    while (true) {
        const std::string text = socket->receiveText().value();
        if (!text.contains(R"("id":1)")) {
            continue;
        }
        const std::string mark = "\"" + key + "\":\"";
        const std::size_t at = text.find(mark);
        const std::string found = at == std::string::npos ? "" : text.substr(at + mark.size());
        return found.substr(0, found.find('"'));
    }
}

std::string Chromium::openTab(const std::string &url)
{
    std::string tab =
        call("Target.createTarget", fmt::format(R"({{"url":"{}"}})", url), "targetId");
    const auto isReady = [&] {
        auto bridge = BrowserBridge::Bridge::open(m_port);
        return bridge && bridge->evaluate(tab, "String(window.ready)") == "true";
    };
    if (!waitFor(isReady)) {
        throw std::runtime_error("the page is not ready: " + url);
    }
    return tab;
}

std::string Chromium::openPrivateTab(const std::string &url)
{
    const std::string context = call("Target.createBrowserContext", "{}", "browserContextId");
    return call("Target.createTarget",
                fmt::format(R"({{"url":"{}","browserContextId":"{}"}})", url, context),
                "targetId");
}

void Chromium::closeTab(const std::string &tab)
{
    call("Target.closeTarget", fmt::format(R"({{"targetId":"{}"}})", tab), "success");
}

} // namespace BrowserBridgeTests
