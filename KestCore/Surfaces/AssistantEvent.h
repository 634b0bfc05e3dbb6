// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Base/Instant.h"
#include "KestCore/Vocabulary.h"

#include <cstdint>
#include <map>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

// What a coding assistant is doing, as its hooks tell the application.
namespace KestCore
{

enum class AssistantState : std::uint8_t {
    working,
    waiting, // for its user
    idle,    // nothing has happened for a while
    ended,
};
constexpr auto enumTexts(Of<AssistantState>)
{
    using enum AssistantState;
    return Base::EnumTexts<AssistantState, 4>{
        {{working, "working"}, {waiting, "waiting"}, {idle, "idle"}, {ended, "ended"}}};
}

// One event, without a word of what was said.
struct AssistantEvent {
    std::string tool{};
    std::string session{};
    AssistantState state{}; // never idle
    std::optional<std::string> folder{};

    bool operator==(const AssistantEvent &) const = default;
};
consteval auto jsonFields(Of<AssistantEvent>)
{
    using R = AssistantEvent;
    return std::tuple{json::Field{"tool", &R::tool}, json::Field{"session", &R::session},
                      json::Field{"state", &R::state}, json::Field{"folder", &R::folder}};
}
static_assert(json::coversAllMembers<AssistantEvent>());

// Whether a tool may be called so: up to 32 of a to z, 0 to 9 and hyphens.
bool isAssistantTool(std::string_view name);

// A name from a tool, such as that of a session or a model: printable, at most 80 characters.
std::string assistantName(std::string_view name);
// The last part of a path in the same way; empty when there is none.
std::string assistantFolder(std::string_view path);

// Fails with invalidData for what no hook of ours can have sent.
[[nodiscard]] Result<void> validate(const AssistantEvent &event);

// A session that is silent for so long is idle: a tool that was killed says nothing any more.
inline constexpr Base::Seconds kWorkingSilence{15 * 60};
inline constexpr Base::Seconds kWaitingSilence{12 * 60 * 60};
AssistantState stateAfter(AssistantState last, Base::Seconds silence);

struct AssistantSession {
    AssistantEvent last{};
    Base::Instant at{}; // when that came

    bool operator==(const AssistantSession &) const = default;
};

// The last state of each session, of the 64 that were heard of last.
class AssistantSessions
{
public:
    static constexpr std::size_t kMost = 64;

    // An event that ends a session removes it. False when nothing has changed but the time.
    bool take(const AssistantEvent &event, Base::Instant now);

    // As they are now, those that were heard of last first.
    std::vector<AssistantSession> at(Base::Instant now) const;

private:
    using Key = std::pair<std::string, std::string>; // tool and session

    std::map<Key, AssistantSession> m_sessions;
};

} // namespace KestCore
