// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Velvetnook/Edge/EdgeDriver.h"

#include <QString>
#include <QStringList>

namespace Velvetnook
{

class App;

// Feeds the notch's state machine with what happens at the window and shows its state to QML.
// The clock of the application ends a pause.
class NotchDriver final : public EdgeDriver
{
    Q_OBJECT
    Q_PROPERTY(QString state READ state NOTIFY changed)
    Q_PROPERTY(bool isOpen READ isOpen NOTIFY changed)
    Q_PROPERTY(bool isPressed READ isPressed NOTIFY changed)
    Q_PROPERTY(bool isPrepared READ isPrepared NOTIFY changed) // the panel may be made

public:
    NotchDriver(ApplicationModel &model, App &app, SteadyTime steady,
                QObject *parent = nullptr);

    QString state() const;
    bool isPressed() const { return m_isPressed && !isOpen(); }
    bool isPrepared() const { return m_isPrepared; }

    // Something that is dragged comes in or goes: it opens a closed panel on the shelf, which
    // is where it can be put down.
    void drag(bool isInside);
    void setForeground(bool isFullScreen, const QStringList &application);
    // Nothing else is to be done, so the panel can be made before it is wanted.
    void prepare();

private:
    bool compactWhenIdle() const override;
    int dialogDepth() const override;
    void adjust() override;
    void tellViews() override;
    bool wantsSuppression() const;

    App &m_app;
    bool m_isDragComing = false; // over the closed notch
    bool m_isPrepared = false;
    bool m_isFullScreen = false;
    QStringList m_application;
};

} // namespace Velvetnook
