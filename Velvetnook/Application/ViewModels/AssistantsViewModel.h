// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "KestCore/Registry/Availability.h"
#include "Velvetnook/Application/AssistantActivity.h"
#include "Velvetnook/Application/ViewModels/Assistants/HookConnections.h"
#include "Velvetnook/Application/ViewModels/Assistants/LogReader.h"

#include <QObject>
#include <QVariantList>

#include <optional>

namespace Velvetnook
{

class ApplicationModel;
class Formatting;
struct WaitingAssistant;

// What coding assistants have used and which of them works or waits: from the logs that they
// leave in the user's home, read only while the view is open, and from their hooks where the
// user has connected them.
class AssistantsViewModel : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QString availability READ availability NOTIFY changed)
    // [{title, span, figure, unit, note, foot, value: 0 to 1 or -1, isHigh, spoken}]
    Q_PROPERTY(QVariantList cards READ cards NOTIFY changed)
    // [{title, what, note, tone, spoken}]
    Q_PROPERTY(QVariantList sessions READ sessions NOTIFY changed)
    Q_PROPERTY(QString footer READ footer NOTIFY changed)
    Q_PROPERTY(bool saysWaiting READ saysWaiting WRITE setSaysWaiting NOTIFY choicesChanged)
    Q_PROPERTY(Velvetnook::HookConnections *connections READ connections CONSTANT)

public:
    AssistantsViewModel(ApplicationModel &model, const Formatting &formatting,
                        QObject *parent = nullptr);

    QString availability() const;
    QVariantList cards() const { return m_cards; }
    QVariantList sessions() const { return m_sessions; }
    QString footer() const;
    bool saysWaiting() const;
    void setSaysWaiting(bool says);
    HookConnections *connections() { return &m_connections; }

    // What a hook has told.
    void take(const KestCore::AssistantEvent &event) { m_activity.take(event); }
    // Who asked for the user last, unless they have looked here since.
    std::optional<WaitingAssistant> waiting() const;

    // A view came into sight, or has left it: the next may come before the last has gone.
    Q_INVOKABLE void enter();
    Q_INVOKABLE void leave();

signals:
    void changed();
    void choicesChanged();
    void waitingChanged();

private:
    void refresh();
    std::vector<Assistants::LoggedSession> merged() const;
    std::vector<Assistants::LoggedSession> chosen() const;
    QVariantMap cardOf(const Assistants::ToolUse &use, const Assistants::Limit &limit) const;
    QVariantMap cardOf(const Assistants::ToolUse &use) const;
    QVariantMap rowOf(const Assistants::LoggedSession &session) const;
    QString spanOf(const std::optional<double> &minutes) const;
    QString moment(Base::Instant at) const;
    QString tokens(const Assistants::TokenCounts &counts) const;
    QString titleOf(const std::string &tool) const;
    bool isShown() const { return m_viewers > 0; }
    Base::Instant now() const;

    ApplicationModel &m_model;
    const Formatting &m_formatting;
    AssistantActivity m_activity;
    HookConnections m_connections;
    LogReader m_logs;
    QVariantList m_cards;
    QVariantList m_sessions;
    std::optional<Base::Instant> m_lookedAt;
    int m_viewers = 0;
};

} // namespace Velvetnook
