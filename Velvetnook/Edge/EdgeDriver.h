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

// Feeds the state machine of a panel at a screen's edge with the pointer, the commands and the
// time. At rest it has no timer: one runs only while an opening or closing delay does.
class EdgeDriver : public QObject
{
    Q_OBJECT

public:
    // Seconds on a scale that never goes back.
    using SteadyTime = std::function<double()>;

    bool isOpen() const;
    bool isSticky() const { return m_notch.keyboardSticky; }
    bool isSuppressed() const;

    // One observation of the pointer; a drag counts as pressed.
    virtual void pointer(bool isInside, bool isPressed);
    void open(bool isSticky);
    Q_INVOKABLE void close();
    void toggle();
    // Makes an open panel stay, as when the user types in it.
    void makeSticky();
    // The keyboard has gone to another application: nothing holds the panel any more.
    void release();

signals:
    void changed();
    void opened(bool isSticky);
    void closed();

protected:
    EdgeDriver(ApplicationModel &model, SteadyTime steady, QObject *parent);

    // Whether something is shown at rest.
    virtual bool compactWhenIdle() const { return true; }
    virtual bool opensByHover() const { return true; }
    // Of the dialogs that are open over the panel, or beside it.
    virtual int dialogDepth() const = 0;
    // Brings the state in line with what is wanted besides the pointer.
    virtual void adjust() = 0;
    // Tells the view models, before anybody else hears of it.
    virtual void tellViews() = 0;
    // The delay that ran is over.
    virtual void passTime();

    // Begins, with the pointer elsewhere.
    void rest();
    double openDelay() const;
    bool isResting() const;
    // Lets the state machine see the pointer where it was last.
    void observe();
    void followDialogs();
    void settle();

    // NOLINTBEGIN(misc-non-private-member-variables-in-classes): the two edges steer with them
    ApplicationModel &m_model;
    KestCore::NotchInteraction m_notch;
    bool m_isInside = false;
    bool m_isPressed = false;
    // NOLINTEND(misc-non-private-member-variables-in-classes)

private:
    void setTimer();

    SteadyTime m_steady;
    QTimer m_timer; // of the delay that runs
    bool m_wasOpen = false;
};

} // namespace Velvetnook
