// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Velvetnook/Dock/DockDriver.h"

#include "Base/Text.h"
#include "Velvetnook/Application/ApplicationModel.h"
#include "Velvetnook/Application/ViewModels/DockViewModel.h"

#include <algorithm>
#include <chrono>
#include <cmath>
#include <utility>

namespace Velvetnook
{

using KestCore::InteractionState;

namespace
{

constexpr double kUsualOpenDelay = 0.18;
constexpr std::chrono::milliseconds kHidingGrace{350};

} // namespace

DockDriver::DockDriver(ApplicationModel &model, DockViewModel &dock, SteadyTime steady,
                       QObject *parent)
    : QObject{parent}, m_model{model}, m_dock{dock}, m_steady{std::move(steady)}
{
    for (QTimer *const timer : {&m_timer, &m_turnTimer, &m_hidingTimer}) {
        timer->setSingleShot(true);
        timer->setTimerType(Qt::PreciseTimer);
    }
    m_hidingTimer.setInterval(kHidingGrace);
    connect(&m_timer, &QTimer::timeout, this, &DockDriver::passTime);
    connect(&m_turnTimer, &QTimer::timeout, this, [this] { m_dock.select(m_pointed); });
    connect(&m_hidingTimer, &QTimer::timeout, this, [this] {
        m_dock.setNear(false);
        emit changed();
    });
    connect(&dock, &DockViewModel::openWanted, this, &DockDriver::open);
    connect(&dock, &DockViewModel::closeWanted, this, &DockDriver::close);
    connect(&dock, &DockViewModel::toggleWanted, this, &DockDriver::toggle);
    connect(&dock, &DockViewModel::activated, this, &DockDriver::activate);
    connect(&dock, &DockViewModel::pointed, this, &DockDriver::point);
    connect(&dock, &DockViewModel::dialogDepthChanged, this, [this] {
        if (isOpen()) {
            observe();
        }
    });
    m_notch.reset(true);
    m_notch.pointer(false, false, m_steady(), openDelay());
}

bool DockDriver::isOpen() const
{
    return m_notch.state == InteractionState::expanded ||
           m_notch.state == InteractionState::interacting ||
           m_notch.state == InteractionState::closing;
}

bool DockDriver::isSuppressed() const { return m_notch.state == InteractionState::suppressed; }

bool DockDriver::isResting() const
{
    return m_notch.state == InteractionState::compact ||
           m_notch.state == InteractionState::hoverOpening;
}

// The one delay of all that opens by itself.
double DockDriver::openDelay() const
{
    return Base::numberFrom<double>(m_model.setting("notch.openDelay"))
        .value_or(kUsualOpenDelay);
}

void DockDriver::pointer(bool isInside, bool isPressed)
{
    m_isInside = isInside;
    m_isPressed = isPressed;
    if (isInside) {
        m_hidingTimer.stop();
        m_dock.setNear(true);
    } else if (m_dock.hides()) {
        m_hidingTimer.start();
    }
    observe();
}

// While a dialog is open over the panel, or beside it, the pointer may be anywhere. At rest the
// pointer matters only to a dock that opens by hovering.
void DockDriver::observe()
{
    const bool isHeld = isOpen() && m_dock.dialogDepth() > 0;
    const bool isSeen = m_isInside && (isOpen() || m_dock.opensByHover());
    m_notch.pointer(isSeen || isHeld, m_isPressed, m_steady(), openDelay());
    settle();
}

void DockDriver::dragEntered()
{
    m_isInside = true;
    m_isPressed = true;
    m_dock.setNear(true);
    if (!isOpen()) {
        m_notch.open(false);
    }
    observe();
}

void DockDriver::open(bool isSticky)
{
    m_notch.open(isSticky || m_notch.keyboardSticky);
    settle();
    if (!m_notch.keyboardSticky) {
        observe(); // closes by itself when the pointer is not here
    }
}

void DockDriver::close()
{
    if (isOpen()) {
        m_notch.reset(true);
        settle();
    }
}

void DockDriver::toggle()
{
    if (isOpen()) {
        close();
    } else {
        open(true);
    }
}

void DockDriver::makeSticky()
{
    if (isOpen() && !m_notch.keyboardSticky) {
        m_notch.open(true);
        settle();
    }
}

void DockDriver::release()
{
    if (isOpen() && m_notch.keyboardSticky && m_dock.dialogDepth() == 0) {
        m_notch.open(false);
        observe();
    }
}

void DockDriver::setFullScreen(bool isFullScreen)
{
    m_isFullScreen = isFullScreen;
    settle();
}

// A second press on the open slot closes; one that only keeps what hovering has opened does
// not.
void DockDriver::activate(int workspace)
{
    if (isOpen() && m_notch.keyboardSticky && workspace == m_dock.current()) {
        close();
        return;
    }
    m_turnTimer.stop();
    m_dock.select(workspace);
    m_isPressed = false;
    open(true);
}

void DockDriver::point(int workspace)
{
    m_pointed = workspace;
    const bool turns =
        isOpen() && m_dock.opensByHover() && workspace >= 0 && workspace != m_dock.current();
    if (turns) {
        m_turnTimer.start(static_cast<int>(openDelay() * 1000));
    } else {
        m_turnTimer.stop();
    }
}

void DockDriver::passTime()
{
    if (m_notch.state == InteractionState::hoverOpening) {
        observe();
        if (isOpen() && m_pointed >= 0) {
            m_dock.select(m_pointed);
        }
    } else {
        m_notch.tick(true, m_steady());
        settle();
    }
}

// A panel that was opened by hand stays open before a full screen too.
void DockDriver::settle()
{
    if (m_isFullScreen && !(isOpen() && m_notch.keyboardSticky)) {
        m_notch.suppress();
    } else if (!m_isFullScreen && isSuppressed()) {
        m_notch.reset(true);
    }
    if (!m_isInside && isResting()) {
        m_notch.pointer(false, m_isPressed, m_steady(), openDelay());
    }
    setTimer();
    announce();
}

void DockDriver::setTimer()
{
    if (!m_notch.deadline) {
        m_timer.stop();
        return;
    }
    const double wait = std::max(*m_notch.deadline - m_steady(), 0.0);
    m_timer.start(static_cast<int>(std::ceil(wait * 1000)));
}

void DockDriver::announce()
{
    const bool open = isOpen();
    if (!open) {
        m_turnTimer.stop();
    }
    m_dock.setOpen(open);
    emit changed();
    if (std::exchange(m_wasOpen, open) != open) {
        if (open) {
            emit opened(m_notch.keyboardSticky);
        } else {
            emit closed();
        }
    }
}

} // namespace Velvetnook
