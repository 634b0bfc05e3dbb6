// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "KestCore/Clipboard/ClipboardPayload.h"
#include "KestCore/Devotional/Content.h"
#include "KestCore/Models/NativeState.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

// The JSON documents that commands answer with. Scripts rely on their shapes: only add.
namespace Cli
{

namespace json = Base::json;
using Base::Of;
using Base::Result;

// Of show and select.
struct ShowAnswer {
    KestCore::Phrase phrase{};
    KestCore::Session session{};
    std::int64_t revision{};
};
consteval auto jsonFields(Of<ShowAnswer>)
{
    using R = ShowAnswer;
    return std::tuple{json::Field{"phrase", &R::phrase}, json::Field{"session", &R::session},
                      json::Field{"revision", &R::revision}};
}
static_assert(json::coversAllMembers<ShowAnswer>());

// Of count, undo, target, pause, finish and reset.
struct CountAnswer {
    std::int64_t count{};
    std::optional<std::int64_t> target{};
    bool targetReached{}; // by this command
    bool paused{};
    std::int64_t revision{};
};
consteval auto jsonFields(Of<CountAnswer>)
{
    using R = CountAnswer;
    return std::tuple{json::Field{"count", &R::count}, json::Field{"target", &R::target},
                      json::Field{"targetReached", &R::targetReached},
                      json::Field{"paused", &R::paused}, json::Field{"revision", &R::revision}};
}
static_assert(json::coversAllMembers<CountAnswer>());

// Of backup export and backup import.
struct BackupAnswer {
    std::int64_t records{};
    std::int64_t revision{};
};
consteval auto jsonFields(Of<BackupAnswer>)
{
    return std::tuple{json::Field{"records", &BackupAnswer::records},
                      json::Field{"revision", &BackupAnswer::revision}};
}
static_assert(json::coversAllMembers<BackupAnswer>());

// One timer, of every timer command.
struct TimerAnswer {
    std::string id{};
    std::string title{};
    std::string mode{};
    double remaining{}; // seconds left, or counted by a stopwatch
    bool running{};
    bool ended{};
    std::optional<std::string> deadline{}; // while a countdown runs
};
consteval auto jsonFields(Of<TimerAnswer>)
{
    using R = TimerAnswer;
    return std::tuple{json::Field{"id", &R::id},
                      json::Field{"title", &R::title},
                      json::Field{"mode", &R::mode},
                      json::Field{"remaining", &R::remaining},
                      json::Field{"running", &R::running},
                      json::Field{"ended", &R::ended},
                      json::Field{"deadline", &R::deadline}};
}
static_assert(json::coversAllMembers<TimerAnswer>());

// Of convert.
struct ConvertAnswer {
    std::string category{};
    std::string result{}; // in the user's locale
    std::string from{};   // unit ids
    std::string to{};
};
consteval auto jsonFields(Of<ConvertAnswer>)
{
    using R = ConvertAnswer;
    return std::tuple{json::Field{"category", &R::category}, json::Field{"result", &R::result},
                      json::Field{"from", &R::from}, json::Field{"to", &R::to}};
}
static_assert(json::coversAllMembers<ConvertAnswer>());

// Of every clipboard command but show: a list of these.
struct ClipboardAnswer {
    std::string id{};
    KestCore::ClipboardKind kind{};
    std::string createdAt{};
    std::int64_t byteCount{};
    bool favourite{};
    std::string display{}; // no credential, cut where it is long
};
consteval auto jsonFields(Of<ClipboardAnswer>)
{
    using R = ClipboardAnswer;
    return std::tuple{json::Field{"id", &R::id},
                      json::Field{"kind", &R::kind},
                      json::Field{"createdAt", &R::createdAt},
                      json::Field{"byteCount", &R::byteCount},
                      json::Field{"favourite", &R::favourite},
                      json::Field{"display", &R::display}};
}
static_assert(json::coversAllMembers<ClipboardAnswer>());

// One finding of doctor.
struct Finding {
    enum class State : std::uint8_t { full, degraded, off };

    std::string check{};
    State state{};
    std::string detail{};
    std::optional<std::string> advice{}; // the way out
};
constexpr auto enumTexts(Of<Finding::State>)
{
    using enum Finding::State;
    return Base::EnumTexts<Finding::State, 3>{
        {{full, "full"}, {degraded, "degraded"}, {off, "off"}}};
}
consteval auto jsonFields(Of<Finding>)
{
    using R = Finding;
    return std::tuple{json::Field{"check", &R::check}, json::Field{"state", &R::state},
                      json::Field{"detail", &R::detail}, json::Field{"advice", &R::advice}};
}
static_assert(json::coversAllMembers<Finding>());

} // namespace Cli
