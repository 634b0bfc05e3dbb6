// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "KestCore/Media/BrowserPlaybackScript.h"

#include <fmt/format.h>

#include <algorithm>
#include <array>
#include <cmath>

namespace KestCore
{

namespace
{

constexpr std::array<std::string_view, 4> kBrowsers{
    "ai.perplexity.comet",
    "com.google.Chrome",
    "com.microsoft.edgemac",
    "com.brave.Browser",
};

// Code points, not UTF-16 units, are cut and counted. Half a surrogate pair, which a page may
// have put into its own title, could not be sent as UTF-8 and becomes U+FFFD.
constexpr std::string_view kPrologue = R"JS((() => {
const media = [...document.querySelectorAll("video, audio")].filter(e => e.readyState > 0);
const m = media.find(e => !e.paused && !e.ended) ?? media.find(e => e.currentTime > 0) ?? media[0];
if(!m) return "null";
const metadata = navigator.mediaSession?.metadata;
const hosts = ["www.youtube.com", "youtube.com", "music.youtube.com"];
const button = selector => {
  const b = hosts.includes(location.hostname) ? document.querySelector(selector) : null;
  const usable = b && !b.disabled && b.getAttribute("aria-disabled") !== "true"
    && b.getClientRects().length > 0;
  return usable ? b : null;
};
const next = button(".ytp-next-button");
const previous = button(".ytp-prev-button");
const canSeek = m.seekable.length > 0 && Number.isFinite(m.duration) && m.duration > 0;
const cut = text => [...String(text).slice(0, 600)].slice(0, 300).join("")
  .replace(/\p{Surrogate}/gu, "\ufffd");
const seconds = value => Number.isFinite(value) ? Math.max(0, value) : 0;
)JS";

constexpr std::string_view kEpilogue = R"JS(
return JSON.stringify({
  title: cut(metadata?.title || document.title || "Browser playback"),
  artist: cut(metadata?.artist || ""),
  playing: !m.paused && !m.ended,
  position: seconds(m.currentTime),
  duration: seconds(m.duration),
  volume: m.volume,
  canSeek,
  canNext: next !== null,
  canPrevious: previous !== null
});
})())JS";

// Of -0 as well: "-0" would be sound, but nobody means it.
double atLeastZero(double value) { return value > 0 ? value : 0.0; }

std::string commandFor(const BrowserPlaybackScript::Action &action)
{
    using Kind = BrowserPlaybackScript::Action::Kind;
    switch (action.kind) {
    case Kind::seek:
        return std::isfinite(action.value)
                   ? fmt::format("if(canSeek) m.currentTime = Math.max(m.seekable.start(0), "
                                 "Math.min(m.seekable.end(m.seekable.length-1), {}));",
                                 atLeastZero(action.value))
                   : "";
    case Kind::volume:
        return std::isfinite(action.value)
                   ? fmt::format("m.volume = {};", std::min(atLeastZero(action.value), 1.0))
                   : "";
    case Kind::playPause:
        return "if(m.paused) { m.play().catch(()=>{}); } else { m.pause(); }";
    case Kind::next:
        return "if(next) next.click();";
    case Kind::previous:
        return "if(previous) previous.click();";
    case Kind::read:
        break;
    }
    return "";
}

// As a literal of AppleScript, in which only these two characters have a meaning.
std::string appleLiteral(std::string_view text)
{
    std::string literal = "\"";
    for (const char c : text) {
        if (c == '\\' || c == '"') {
            literal += '\\';
        }
        literal += c;
    }
    literal += '"';
    return literal;
}

// Gives `w` and `t`. A private window has another mode, and is left alone.
std::string tabClause(const std::optional<BrowserPlaybackTarget> &target)
{
    constexpr std::string_view kOnlyNormal =
        "\n    if mode of w is not \"normal\" then return {}";
    if (target) {
        return fmt::format("set w to first window whose id is {}{}\n"
                           "    set t to first tab of w whose id is {}",
                           appleLiteral(target->window), kOnlyNormal,
                           appleLiteral(target->tab));
    }
    return fmt::format("if (count of windows) is 0 then return {{}}\n"
                       "    set w to front window{}\n"
                       "    set t to active tab of w",
                       kOnlyNormal);
}

} // namespace

std::string BrowserPlaybackScript::javaScript(const Action &action)
{
    std::string script{kPrologue};
    script += commandFor(action);
    script += kEpilogue;
    return script;
}

Result<std::string>
BrowserPlaybackScript::browserScript(std::string_view browser,
                                     const std::optional<BrowserPlaybackTarget> &target,
                                     std::string_view javaScript)
{
    if (std::ranges::find(kBrowsers, browser) == kBrowsers.end()) {
        return std::unexpected(KestError::unavailable("Unsupported browser."));
    }
    return fmt::format("with timeout of 5 seconds\n"
                       "  tell application id \"{}\"\n"
                       "    {}\n"
                       "    set payload to execute t javascript {}\n"
                       "    return {{id of w as text, id of t as text, payload}}\n"
                       "  end tell\n"
                       "end timeout",
                       browser, tabClause(target), appleLiteral(javaScript));
}

KestError BrowserPlaybackScript::refusal()
{
    return KestError::unavailable(
        "Browser access is unavailable. Enable View \u2192 Developer \u2192 Allow JavaScript "
        "from Apple Events in your browser, then connect a playing tab. Also check macOS "
        "Automation access.");
}

} // namespace KestCore
