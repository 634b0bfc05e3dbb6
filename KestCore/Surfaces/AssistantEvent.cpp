// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "KestCore/Surfaces/AssistantEvent.h"

#include "Base/Text.h"

#include <algorithm>

namespace KestCore
{

namespace
{

constexpr std::size_t kLongestTool = 32;
constexpr std::size_t kLongestName = 80;

} // namespace

bool isAssistantTool(std::string_view name)
{
    return !name.empty() && name.size() <= kLongestTool &&
           std::ranges::all_of(name, [](char c) {
               return (c >= 'a' && c <= 'z') || (c >= '0' && c <= '9') || c == '-';
           });
}

std::string assistantName(std::string_view name)
{
    // Nearly all are plain words, and the logs have hundreds of thousands of them.
    const auto isPlain = [](char c) { return c > ' ' && c < '\x7F'; };
    if (name.size() <= kLongestName && std::ranges::all_of(name, isPlain)) {
        return std::string{name};
    }
    // Not all of a megabyte is made printable for the sake of its beginning.
    const std::string clean = Base::printable(name.substr(0, 8 * kLongestName));
    return std::string{
        Base::trimmed(Base::firstCharacters(Base::trimmed(clean), kLongestName))};
}

std::string assistantFolder(std::string_view path)
{
    while (path.ends_with('/')) {
        path.remove_suffix(1);
    }
    return assistantName(path.substr(path.rfind('/') + 1));
}

Result<void> validate(const AssistantEvent &event)
{
    const bool isClean = !event.session.empty() &&
                         event.session == assistantName(event.session) &&
                         (!event.folder || *event.folder == assistantFolder(*event.folder));
    if (!isAssistantTool(event.tool) || !isClean || event.state == AssistantState::idle) {
        return std::unexpected(KestError::invalidData("This is no event of an assistant"));
    }
    return {};
}

AssistantState stateAfter(AssistantState last, Base::Seconds silence)
{
    using enum AssistantState;
    const bool isIdle = (last == working && silence >= kWorkingSilence) ||
                        (last == waiting && silence >= kWaitingSilence);
    return isIdle ? idle : last;
}

bool AssistantSessions::take(const AssistantEvent &event, Base::Instant now)
{
    const Key key{event.tool, event.session};
    if (event.state == AssistantState::ended) {
        return m_sessions.erase(key) > 0;
    }
    const auto [place, isNew] = m_sessions.try_emplace(key);
    const AssistantState before = stateAfter(place->second.last.state, now - place->second.at);
    const bool isChanged =
        isNew || before != event.state || place->second.last.folder != event.folder;
    place->second = {.last = event, .at = now};
    if (m_sessions.size() > kMost) {
        const auto heardAt = [](const auto &entry) { return entry.second.at; };
        m_sessions.erase(std::ranges::min_element(m_sessions, {}, heardAt));
    }
    return isChanged;
}

std::vector<AssistantSession> AssistantSessions::at(Base::Instant now) const
{
    std::vector<AssistantSession> sessions;
    for (const auto &[key, session] : m_sessions) {
        sessions.push_back(session);
        sessions.back().last.state = stateAfter(session.last.state, now - session.at);
    }
    std::ranges::stable_sort(sessions, std::ranges::greater{}, &AssistantSession::at);
    return sessions;
}

} // namespace KestCore
