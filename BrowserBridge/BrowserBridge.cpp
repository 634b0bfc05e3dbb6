// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "BrowserBridge/BrowserBridge.h"

#include <algorithm>

namespace BrowserBridge
{

namespace
{

constexpr std::chrono::seconds kPatience{10};
constexpr std::int64_t kScriptPatience = 4'000; // milliseconds, so that its failure is heard of

KestError unreadable()
{
    return KestError::invalidData("The browser's answer cannot be read.");
}

KestError refused()
{
    return KestError::unavailable("The browser refuses to do this in the tab.");
}

// Not the browser's own pages, such as its settings.
bool isWebPage(std::string_view url)
{
    constexpr std::string_view kSchemes[] = {"http://", "https://", "file://", "about:blank"};
    return std::ranges::any_of(
        kSchemes, [&](std::string_view scheme) { return url.starts_with(scheme); });
}

} // namespace

KestError tabGone()
{
    return KestError::unavailable("The connected tab is not open any more. Connect another, or "
                                  "disconnect it.");
}

Result<Bridge> Bridge::open(std::uint16_t port)
{
    const Deadline deadline = std::chrono::steady_clock::now() + kPatience;
    KEST_TRY(auto connection, Loopback::connect(port, deadline));
    KEST_TRY(const std::string version, get(connection, "/json/version"));
    KEST_TRY(const std::string path, debuggerPath(version, port));
    KEST_TRY(auto socket, WebSocket::open(port, path, deadline));
    Bridge bridge{std::move(socket)};
    KEST_TRY(auto contexts, bridge.call<Contexts>("Target.getBrowserContexts"));
    if (!contexts.defaultBrowserContextId) {
        return std::unexpected(KestError::unavailable(
            "This browser does not tell which windows are private; a newer one does."));
    }
    bridge.m_ordinary = *std::move(contexts.defaultBrowserContextId);
    return bridge;
}

// What else comes, such as news of targets, is passed over.
Result<std::string> Bridge::answerTo(std::int64_t id)
{
    while (true) {
        KEST_TRY(const std::string text, m_socket.receiveText());
        const json::PaddedText document{std::string_view{text}};
        const auto answer = json::decode<Answer>(document);
        if (!answer) {
            return std::unexpected(unreadable());
        }
        if (answer->id == id) {
            const auto &result = answer->result;
            return result ? Result<std::string>{std::string{result->text}}
                          : std::unexpected(refused());
        }
    }
}

template <class Outcome>
Result<Outcome> Bridge::call(std::string method, CallParameters parameters,
                             std::optional<std::string> session)
{
    const Call call{.id = ++m_calls,
                    .method = std::move(method),
                    .params = std::move(parameters),
                    .sessionId = std::move(session)};
    KEST_TRY(const std::string text, json::encode(call));
    KEST_CHECK(m_socket.sendText(text));
    KEST_TRY(const std::string result, answerTo(call.id));
    auto outcome = json::decode<Outcome>(std::string_view{result});
    return outcome ? std::move(outcome) : std::unexpected(unreadable());
}

Result<std::vector<BrowserTab>> Bridge::tabs()
{
    KEST_TRY(auto targets, call<Targets>("Target.getTargets"));
    std::vector<BrowserTab> tabs;
    for (Target &target : targets.targetInfos) {
        if (target.type == "page" && target.browserContextId == m_ordinary &&
            isWebPage(target.url)) {
            tabs.push_back({.id = std::move(target.targetId),
                            .title = std::move(target.title),
                            .url = std::move(target.url)});
        }
    }
    return tabs;
}

Result<bool> Bridge::hasTab(const std::string &tab)
{
    KEST_TRY(const auto open, tabs());
    return std::ranges::find(open, tab, &BrowserTab::id) != open.end();
}

Result<std::string> Bridge::evaluate(const std::string &tab, std::string expression)
{
    KEST_TRY(const bool isOpen, hasTab(tab));
    if (!isOpen) {
        return std::unexpected(tabGone());
    }
    KEST_TRY(auto attached,
             call<Attached>("Target.attachToTarget", {.targetId = tab, .flatten = true}));
    const auto evaluated = call<Evaluated>("Runtime.evaluate",
                                           {.expression = std::move(expression),
                                            .returnByValue = true,
                                            .userGesture = true,
                                            .timeout = kScriptPatience},
                                           std::move(attached.sessionId));
    if (evaluated) {
        return evaluated->result.value;
    }
    // A page may answer with something that is no text.
    return evaluated.error().kind == KestError::Kind::invalidData
               ? std::unexpected(KestError::invalidData("Invalid playback details."))
               : std::unexpected(evaluated.error());
}

Result<std::optional<KestCore::BrowserPlayback>>
Bridge::run(const std::string &tab, const KestCore::BrowserPlaybackScript::Action &action)
{
    KEST_TRY(const std::string response,
             evaluate(tab, KestCore::BrowserPlaybackScript::javaScript(action)));
    return KestCore::BrowserPlayback::parse(response);
}

} // namespace BrowserBridge
