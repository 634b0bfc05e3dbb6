// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "KestCore/Surfaces/AssistantEvent.h"

#include <QObject>

#include <functional>
#include <vector>

namespace Velvetnook
{

// What coding assistants are doing, as their hooks told. Lives in memory only.
class AssistantActivity : public QObject
{
    Q_OBJECT

public:
    explicit AssistantActivity(std::function<Base::Instant()> clock, QObject *parent = nullptr);

    void take(const KestCore::AssistantEvent &event);

    // As they are now: one that is silent for long becomes idle without a signal.
    std::vector<KestCore::AssistantSession> sessions() const;

signals:
    void changed();

private:
    std::function<Base::Instant()> m_clock;
    KestCore::AssistantSessions m_sessions;
};

} // namespace Velvetnook
