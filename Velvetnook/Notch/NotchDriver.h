// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "KestCore/Surfaces/NotchInteraction.h"

#include <QObject>
#include <QString>
#include <QStringList>
#include <QTimer>

#include <functional>

namespace Velvetnook
{

class App;
class ApplicationModel;

// Feeds the notch's state machine with what happens at the window and shows its state to QML.
// At rest it has no timer: one runs only while an opening or closing delay does, and the clock
// of the application ends a pause.
class NotchDriver : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QString state READ state NOTIFY changed)
    Q_PROPERTY(bool isOpen READ isOpen NOTIFY changed)
    Q_PROPERTY(bool isPressed READ isPressed NOTIFY changed)
    Q_PROPERTY(bool isPrepared READ isPrepared NOTIFY changed) // the panel may be made

public:
    // Seconds on a scale that never goes back.
    using SteadyTime = std::function<double()>;

    NotchDriver(ApplicationModel &model, App &app, SteadyTime steady,
                QObject *parent = nullptr);

    QString state() const;
    bool isOpen() const;
    bool isSuppressed() const;
    bool isSticky() const { return m_notch.keyboardSticky; }
    bool isPressed() const { return m_isPressed && !isOpen(); }
    bool isPrepared() const { return m_isPrepared; }

    // One observation of the pointer; a drag counts as pressed.
    void pointer(bool isInside, bool isPressed);
    // Something that is dragged comes in or goes: it opens a closed panel on the shelf, which
    // is where it can be put down.
    void drag(bool isInside);
    void open(bool isSticky);
    Q_INVOKABLE void close();
    void toggle();
    // Makes an open panel stay, as when the user types in it.
    void makeSticky();
    // The keyboard has gone to another application: nothing holds the panel any more.
    void release();
    void setForeground(bool isFullScreen, const QStringList &application);
    // Nothing else is to be done, so the panel can be made before it is wanted.
    void prepare();

signals:
    void changed();
    void opened(bool isSticky);
    void closed();

private:
    double openDelay() const;
    bool compactWhenIdle() const;
    bool wantsSuppression() const;
    bool isResting() const;
    void observe();
    void followDialogs();
    void settle();
    void passTime();
    void setTimer();
    void announce();

    ApplicationModel &m_model;
    App &m_app;
    SteadyTime m_steady;
    KestCore::NotchInteraction m_notch;
    QTimer m_timer;
    bool m_isInside = false;
    bool m_isPressed = false;
    bool m_isDragComing = false; // over the closed notch
    bool m_isPrepared = false;
    bool m_wasOpen = false;
    bool m_isFullScreen = false;
    QStringList m_application;
};

} // namespace Velvetnook
