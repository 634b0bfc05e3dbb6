// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "MonitorCore/Collector.h"
#include "MonitorCore/ProcessIndex.h"

#include <string_view>

namespace MonitorCore
{

// Why a process may be neither quit nor killed.
enum class ActionRefusal : std::uint8_t {
    gone,         // it has ended, and its number may be another process's by now
    system,       // the first process
    kernelThread, // no process at all
    otherUser,
    ourselves, // this program, or one that it runs under
    session,   // the user would be logged out
};

constexpr auto enumTexts(Of<ActionRefusal>)
{
    using enum ActionRefusal;
    return Base::EnumTexts<ActionRefusal, 6>{{
        {gone, "This process has ended already."},
        {system, "The system cannot run without this process."},
        {kernelThread, "This is a part of the system's kernel."},
        {otherUser, "This process belongs to another user."},
        {ourselves, "Velvetnook itself runs under this process."},
        {session, "Your session would end with this process."},
    }};
}

// Decides what may be ended, on the grounds of one fresh sample, which must outlive this. Who
// then acts must hold on to the very process (a pidfd) and look at its start once more, as a
// number is free again as soon as its process has gone.
//
// The leaders of a session are: the leader of the one that this program runs in; the first
// process of the user in a login session, below the one of the system that logged them in;
// what systemd keeps as the essential part of a desktop (session.slice); the user's manager
// and the message bus. A shell in a terminal leads a session too, and may be ended.
class ProcessActionPolicy
{
public:
    // `self` is the number of the process that acts, `user` of whom it acts for.
    ProcessActionPolicy(const RawSample &sample, std::int32_t self, std::uint32_t user);

    // None when the process may be ended.
    std::optional<ActionRefusal> refusal(const ProcessKey &process) const;

    // An application is ended whole or not at all. Processes of it that have gone, and what
    // other users run of it, count only when nothing else is left.
    std::optional<ActionRefusal> refusal(const std::vector<ProcessKey> &application) const;

private:
    bool isOurs(std::int32_t pid) const;
    bool keepsSession(std::size_t at) const;
    const ProcessOrigin &originAt(std::size_t at) const;

    const RawSample &m_sample;
    ProcessIndex m_index;
    std::uint32_t m_user;
    std::int32_t m_sessionLeader{};     // of our own session; 0: unknown
    std::vector<std::int32_t> m_line{}; // ourselves, our parent, its parent and so on
};

} // namespace MonitorCore
