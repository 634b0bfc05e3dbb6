// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Base/Json.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

// The few documents of the DevTools protocol that a bridge to a tab exchanges.
namespace BrowserBridge
{

namespace json = Base::json;
using Base::KestError;
using Base::Of;
using Base::Result;

// Where a browser is driven: the answer to GET /json/version.
struct Version {
    std::string webSocketDebuggerUrl{};
};
consteval auto jsonFields(Of<Version>)
{
    return std::tuple{json::Field{"webSocketDebuggerUrl", &Version::webSocketDebuggerUrl}};
}
static_assert(json::coversAllMembers<Version>());

// The path of that address. Fails with unavailable for any but ws:// at this computer's own
// address and this very port, since whoever listens there could send us anywhere.
[[nodiscard]] Result<std::string> debuggerPath(std::string_view versionDocument,
                                               std::uint16_t port);

// What a call takes; each method takes some of it.
struct CallParameters {
    std::optional<std::string> targetId{};
    std::optional<bool> flatten{};
    std::optional<std::string> expression{};
    std::optional<bool> returnByValue{};
    std::optional<bool> userGesture{};     // without one a page may not begin to play
    std::optional<std::int64_t> timeout{}; // milliseconds
};
consteval auto jsonFields(Of<CallParameters>)
{
    using R = CallParameters;
    return std::tuple{json::Field{"targetId", &R::targetId},
                      json::Field{"flatten", &R::flatten},
                      json::Field{"expression", &R::expression},
                      json::Field{"returnByValue", &R::returnByValue},
                      json::Field{"userGesture", &R::userGesture},
                      json::Field{"timeout", &R::timeout}};
}
static_assert(json::coversAllMembers<CallParameters>());

struct Call {
    std::int64_t id{};
    std::string method{};
    CallParameters params{};
    std::optional<std::string> sessionId{}; // of the tab it is for; absent: the browser
};
consteval auto jsonFields(Of<Call>)
{
    return std::tuple{json::Field{"id", &Call::id}, json::Field{"method", &Call::method},
                      json::Field{"params", &Call::params},
                      json::Field{"sessionId", &Call::sessionId}};
}
static_assert(json::coversAllMembers<Call>());

// The groups that windows are in. Each private window is in another than the default one.
struct Contexts {
    std::optional<std::string> defaultBrowserContextId{};
};
consteval auto jsonFields(Of<Contexts>)
{
    return std::tuple{
        json::Field{"defaultBrowserContextId", &Contexts::defaultBrowserContextId}};
}
static_assert(json::coversAllMembers<Contexts>());

struct Target {
    std::string targetId{};
    std::string type{};
    std::string title{};
    std::string url{};
    std::optional<std::string> browserContextId{};
};
consteval auto jsonFields(Of<Target>)
{
    using R = Target;
    return std::tuple{json::Field{"targetId", &R::targetId}, json::Field{"type", &R::type},
                      json::Field{"title", &R::title}, json::Field{"url", &R::url},
                      json::Field{"browserContextId", &R::browserContextId}};
}
static_assert(json::coversAllMembers<Target>());

struct Targets {
    std::vector<Target> targetInfos{};
};
consteval auto jsonFields(Of<Targets>)
{
    return std::tuple{json::Field{"targetInfos", &Targets::targetInfos}};
}
static_assert(json::coversAllMembers<Targets>());

struct Attached {
    std::string sessionId{};
};
consteval auto jsonFields(Of<Attached>)
{
    return std::tuple{json::Field{"sessionId", &Attached::sessionId}};
}
static_assert(json::coversAllMembers<Attached>());

// What an expression came to, when that is a text.
struct Evaluated {
    struct Value {
        std::string type{};
        std::string value{};
    };

    Value result{};
};
consteval auto jsonFields(Of<Evaluated::Value>)
{
    return std::tuple{json::Field{"type", &Evaluated::Value::type},
                      json::Field{"value", &Evaluated::Value::value}};
}
consteval auto jsonFields(Of<Evaluated>)
{
    return std::tuple{json::Field{"result", &Evaluated::result}};
}
static_assert(json::coversAllMembers<Evaluated::Value>());
static_assert(json::coversAllMembers<Evaluated>());

// An answer to a call has the call's number; an event has none.
struct Answer {
    std::optional<std::int64_t> id{};
    std::optional<json::RawJson> result{};
    std::optional<json::RawJson> error{};
};
consteval auto jsonFields(Of<Answer>)
{
    return std::tuple{json::Field{"id", &Answer::id}, json::Field{"result", &Answer::result},
                      json::Field{"error", &Answer::error}};
}
static_assert(json::coversAllMembers<Answer>());

} // namespace BrowserBridge
