// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "BrowserBridge/DevTools.h"
#include "BrowserBridge/WebSocket.h"
#include "KestCore/Media/BrowserPlayback.h"
#include "KestCore/Media/BrowserPlaybackScript.h"

#include <optional>
#include <string>
#include <vector>

namespace BrowserBridge
{

struct BrowserTab {
    std::string id{};
    std::string title{};
    std::string url{};

    bool operator==(const BrowserTab &) const = default;
};

// What is said of a tab that is connected and was closed, or moved to a private window.
KestError tabGone();

// Drives a browser that its user started for it, with --remote-debugging-port. Only tabs of
// ordinary windows are seen: no private window, nothing of the browser's own surface. All calls
// together end within ten seconds.
class Bridge
{
public:
    // Fails with unavailable when no browser listens on that port of this computer, or one
    // that does not tell private windows from others.
    [[nodiscard]] static Result<Bridge> open(std::uint16_t port);

    [[nodiscard]] Result<std::vector<BrowserTab>> tabs();
    [[nodiscard]] Result<bool> hasTab(const std::string &tab);
    // Runs the action's script in the tab; nothing when there is no medium on the page. Fails
    // with unavailable when the tab is gone or does not answer, and as BrowserPlayback::parse.
    [[nodiscard]] Result<std::optional<KestCore::BrowserPlayback>>
    run(const std::string &tab, const KestCore::BrowserPlaybackScript::Action &action);
    // The text that the expression comes to on that page.
    [[nodiscard]] Result<std::string> evaluate(const std::string &tab, std::string expression);

private:
    explicit Bridge(WebSocket socket) : m_socket(std::move(socket)) {}

    template <class Outcome>
    [[nodiscard]] Result<Outcome> call(std::string method, CallParameters parameters = {},
                                       std::optional<std::string> session = {});
    [[nodiscard]] Result<std::string> answerTo(std::int64_t id);

    WebSocket m_socket;
    std::string m_ordinary; // the group of the windows that are not private
    std::int64_t m_calls{};
};

} // namespace BrowserBridge
