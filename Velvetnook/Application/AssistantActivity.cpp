// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Velvetnook/Application/AssistantActivity.h"

#include <utility>

namespace Velvetnook
{

AssistantActivity::AssistantActivity(std::function<Base::Instant()> clock, QObject *parent)
    : QObject{parent}, m_clock{std::move(clock)}
{
}

void AssistantActivity::take(const KestCore::AssistantEvent &event)
{
    if (m_sessions.take(event, m_clock())) {
        emit changed();
    }
}

std::vector<KestCore::AssistantSession> AssistantActivity::sessions() const
{
    return m_sessions.at(m_clock());
}

} // namespace Velvetnook
