// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Velvetnook/Application/Alarms/TargetNotice.h"

#include "Velvetnook/Application/ApplicationModel.h"
#include "Velvetnook/Application/CounterSteps.h"
#include "Velvetnook/Application/Formatting.h"

#include <utility>

namespace Velvetnook
{

TargetNotice::TargetNotice(ApplicationModel &model, QObject *parent)
    : QObject{parent}, m_model{model}, m_sessionId{model.state().devotional.session.id},
      m_reached{model.state().devotional.session.completedTargets.size()}
{
    connect(&model, &ApplicationModel::stateChanged, this, &TargetNotice::follow);
}

void TargetNotice::follow()
{
    const KestCore::Session &session = m_model.state().devotional.session;
    const bool isSame = session.id == m_sessionId;
    const bool isReached = isSame && session.completedTargets.size() > m_reached;
    m_sessionId = session.id;
    m_reached = session.completedTargets.size();
    const bool isOver = !session.target || session.count < *session.target;
    if (isReached) {
        m_isTold = true;
        emit notificationWanted(request());
    } else if (m_isTold && (!isSame || isOver)) {
        m_isTold = false;
        emit notificationObsolete(kId);
    }
}

NotificationRequest TargetNotice::request() const
{
    const Formatting formatting{m_model};
    const KestCore::Phrase &phrase = selectedPhrase(m_model.state());
    const QString arabic = QString::fromStdString(phrase.arabic);
    const QString count = formatting.number(m_model.state().devotional.session.count);
    return {.id = kId,
            .title = tr("Target reached"),
            .body = tr("%1 · %2").arg(formatting.isRightToLeft() ? arabic : phraseTitle(phrase),
                                      count),
            .actions = {{.key = QStringLiteral("finish"), .label = tr("Finish")},
                        {.key = QStringLiteral("on"), .label = tr("Count on")}},
            .withSound = false}; // the counter plays its own
}

} // namespace Velvetnook
