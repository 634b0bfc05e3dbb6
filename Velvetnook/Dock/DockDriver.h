// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "KestCore/Surfaces/NotchInteraction.h"

#include <QObject>
#include <QTimer>

#include <functional>

namespace Velvetnook
{

class ApplicationModel;
class DockViewModel;

// Decides when the dock's panel opens and closes and when a tab that hides comes out, by the
// rules of the notch. At rest it has no timer running.
class DockDriver : public QObject
{
    Q_OBJECT

public:
    // Seconds on a scale that never goes back.
    using SteadyTime = std::function<double()>;

    DockDriver(ApplicationModel &model, DockViewModel &dock, SteadyTime steady,
               QObject *parent = nullptr);

    bool isOpen() const;
    bool isSticky() const { return m_notch.keyboardSticky; }
    bool isSuppressed() const;

    // One observation of the pointer; a drag counts as pressed.
    void pointer(bool isInside, bool isPressed);
    // Something is dragged over it: it opens at once.
    void dragEntered();
    void open(bool isSticky);
    void close();
    void toggle();
    // Makes an open panel stay, as when the user types in it.
    void makeSticky();
    // The keyboard has gone to another application: nothing holds the panel any more.
    void release();
    void setFullScreen(bool isFullScreen);

signals:
    void changed();
    void opened(bool isSticky);
    void closed();

private:
    double openDelay() const;
    bool isResting() const;
    void activate(int workspace);
    void point(int workspace);
    void observe();
    void settle();
    void passTime();
    void setTimer();
    void announce();

    ApplicationModel &m_model;
    DockViewModel &m_dock;
    SteadyTime m_steady;
    KestCore::NotchInteraction m_notch;
    QTimer m_timer;       // of the delay that runs
    QTimer m_turnTimer;   // until the pointer has rested on another slot
    QTimer m_hidingTimer; // until a tab that hides goes
    int m_pointed = -1;   // the slot under the pointer
    bool m_isInside = false;
    bool m_isPressed = false;
    bool m_wasOpen = false;
    bool m_isFullScreen = false;
};

} // namespace Velvetnook
