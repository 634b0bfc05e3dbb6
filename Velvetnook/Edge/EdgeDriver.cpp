// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Velvetnook/Edge/EdgeDriver.h"

#include "Velvetnook/Application/NotchChoices.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace Velvetnook
{

using KestCore::InteractionState;

EdgeDriver::EdgeDriver(ApplicationModel &model, SteadyTime steady, QObject *parent)
    : QObject{parent}, m_model{model}, m_steady{std::move(steady)}, m_timer{this}
{
    m_timer.setSingleShot(true);
    m_timer.setTimerType(Qt::PreciseTimer);
    connect(&m_timer, &QTimer::timeout, this, &EdgeDriver::passTime);
}

void EdgeDriver::rest()
{
    m_notch.reset(compactWhenIdle());
    m_notch.pointer(false, false, m_steady(), openDelay());
}

bool EdgeDriver::isOpen() const
{
    return m_notch.state == InteractionState::expanded ||
           m_notch.state == InteractionState::interacting ||
           m_notch.state == InteractionState::closing;
}

bool EdgeDriver::isSuppressed() const { return m_notch.state == InteractionState::suppressed; }

bool EdgeDriver::isResting() const { return !isOpen() && !isSuppressed(); }

// The one delay of all that opens by itself.
double EdgeDriver::openDelay() const { return openDelayOf(m_model); }

void EdgeDriver::pointer(bool isInside, bool isPressed)
{
    m_isInside = isInside;
    m_isPressed = isPressed;
    observe();
}

// While a dialog is open over the panel, or beside it, the pointer may be anywhere. At rest the
// pointer matters only to what opens by hovering.
void EdgeDriver::observe()
{
    const bool isHeld = isOpen() && dialogDepth() > 0;
    const bool isSeen = m_isInside && (isOpen() || opensByHover());
    m_notch.pointer(isSeen || isHeld, m_isPressed, m_steady(), openDelay());
    settle();
}

void EdgeDriver::followDialogs()
{
    if (isOpen()) {
        observe();
    }
}

void EdgeDriver::open(bool isSticky)
{
    m_notch.open(isSticky || m_notch.keyboardSticky);
    settle();
    if (!m_notch.keyboardSticky) {
        observe(); // closes by itself when the pointer is not here
    }
}

void EdgeDriver::close()
{
    if (isOpen()) {
        m_notch.reset(compactWhenIdle());
        settle();
    }
}

void EdgeDriver::toggle()
{
    if (isOpen()) {
        close();
    } else {
        open(true);
    }
}

void EdgeDriver::makeSticky()
{
    if (isOpen() && !m_notch.keyboardSticky) {
        m_notch.open(true);
        settle();
    }
}

void EdgeDriver::release()
{
    if (isOpen() && m_notch.keyboardSticky && dialogDepth() == 0) {
        m_notch.open(false);
        observe();
    }
}

void EdgeDriver::passTime()
{
    if (m_notch.state == InteractionState::hoverOpening) {
        observe();
    } else {
        m_notch.tick(compactWhenIdle(), m_steady());
        settle();
    }
}

void EdgeDriver::settle()
{
    adjust();
    if (!m_isInside && isResting()) {
        // What was closed under a pointer that is elsewhere may open again.
        m_notch.pointer(false, m_isPressed, m_steady(), openDelay());
    }
    setTimer();
    const bool open = isOpen();
    tellViews();
    emit changed();
    if (std::exchange(m_wasOpen, open) != open) {
        if (open) {
            emit opened(m_notch.keyboardSticky);
        } else {
            emit closed();
        }
    }
}

void EdgeDriver::setTimer()
{
    if (!m_notch.deadline) {
        m_timer.stop();
        return;
    }
    const double wait = std::max(*m_notch.deadline - m_steady(), 0.0);
    m_timer.start(static_cast<int>(std::ceil(wait * 1000)));
}

} // namespace Velvetnook
