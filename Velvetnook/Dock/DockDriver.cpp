// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Velvetnook/Dock/DockDriver.h"

#include "Velvetnook/Application/ViewModels/DockViewModel.h"

#include <chrono>
#include <utility>

namespace Velvetnook
{

namespace
{

constexpr std::chrono::milliseconds kHidingGrace{350};

} // namespace

DockDriver::DockDriver(ApplicationModel &model, DockViewModel &dock, SteadyTime steady,
                       QObject *parent)
    : EdgeDriver{model, std::move(steady), parent}, m_dock{dock}
{
    for (QTimer *const timer : {&m_turnTimer, &m_hidingTimer}) {
        timer->setSingleShot(true);
        timer->setTimerType(Qt::PreciseTimer);
    }
    m_hidingTimer.setInterval(kHidingGrace);
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
    connect(&dock, &DockViewModel::dialogDepthChanged, this, &DockDriver::followDialogs);
    rest();
}

bool DockDriver::opensByHover() const { return m_dock.opensByHover(); }

int DockDriver::dialogDepth() const { return m_dock.dialogDepth(); }

void DockDriver::pointer(bool isInside, bool isPressed)
{
    if (isInside) {
        m_hidingTimer.stop();
        m_dock.setNear(true);
    } else if (m_dock.hides()) {
        m_hidingTimer.start();
    }
    EdgeDriver::pointer(isInside, isPressed);
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
    const bool wasOpening = m_notch.state == KestCore::InteractionState::hoverOpening;
    EdgeDriver::passTime();
    if (wasOpening && isOpen() && m_pointed >= 0) {
        m_dock.select(m_pointed);
    }
}

// A panel that was opened by hand stays open before a full screen too.
void DockDriver::adjust()
{
    if (m_isFullScreen && !(isOpen() && m_notch.keyboardSticky)) {
        m_notch.suppress();
    } else if (!m_isFullScreen && isSuppressed()) {
        m_notch.reset(true);
    }
}

void DockDriver::tellViews()
{
    const bool open = isOpen();
    if (!open) {
        m_turnTimer.stop();
    }
    m_dock.setOpen(open);
}

} // namespace Velvetnook
