// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Velvetnook/Notch/NotchDriver.h"

#include "Base/Text.h"
#include "Velvetnook/Application/App.h"
#include "Velvetnook/Application/ApplicationModel.h"
#include "Velvetnook/Application/NotchChoices.h"
#include "Velvetnook/Application/QtText.h"
#include "Velvetnook/Application/ToolChoice.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace Velvetnook
{

using KestCore::InteractionState;

NotchDriver::NotchDriver(ApplicationModel &model, App &app, SteadyTime steady, QObject *parent)
    : QObject{parent}, m_model{model}, m_app{app}, m_steady{std::move(steady)}, m_timer{this}
{
    m_timer.setSingleShot(true);
    m_timer.setTimerType(Qt::PreciseTimer);
    connect(&m_timer, &QTimer::timeout, this, &NotchDriver::passTime);
    connect(&model, &ApplicationModel::choicesChanged, this, &NotchDriver::settle);
    PanelViewModel *panel = app.panel();
    connect(panel, &PanelViewModel::openWanted, this, &NotchDriver::open);
    connect(panel, &PanelViewModel::closeWanted, this, &NotchDriver::close);
    connect(panel, &PanelViewModel::toggleWanted, this, &NotchDriver::toggle);
    connect(panel, &PanelViewModel::dialogDepthChanged, this, &NotchDriver::followDialogs);
    model.clock().add(
        this, [this](Base::Instant) { return notchPausedUntil(m_model); },
        [this](Base::Instant) { settle(); });
    m_notch.reset(compactWhenIdle());
    m_notch.pointer(false, false, m_steady(), openDelay());
    settle();
}

QString NotchDriver::state() const { return fromView(Base::textOf(m_notch.state)); }

bool NotchDriver::isOpen() const
{
    return m_notch.state == InteractionState::expanded ||
           m_notch.state == InteractionState::interacting ||
           m_notch.state == InteractionState::closing;
}

bool NotchDriver::isSuppressed() const { return m_notch.state == InteractionState::suppressed; }

bool NotchDriver::isResting() const
{
    return m_notch.state == InteractionState::hidden ||
           m_notch.state == InteractionState::compact ||
           m_notch.state == InteractionState::hoverOpening;
}

double NotchDriver::openDelay() const { return openDelayOf(m_model); }

bool NotchDriver::compactWhenIdle() const
{
    return m_model.setting("notch.compactWhenIdle") != "false";
}

bool NotchDriver::wantsSuppression() const
{
    if (m_isFullScreen || notchPausedUntil(m_model)) {
        return true;
    }
    return std::ranges::any_of(
        Base::split(m_model.setting("notch.exclusions"), ','), [this](std::string_view piece) {
            const QString excluded = fromView(piece).trimmed();
            return !excluded.isEmpty() && m_application.contains(excluded, Qt::CaseInsensitive);
        });
}

void NotchDriver::pointer(bool isInside, bool isPressed)
{
    m_isInside = isInside;
    m_isPressed = isPressed;
    observe();
}

void NotchDriver::drag(bool isInside)
{
    m_isDragComing = isInside && (m_isDragComing || !isOpen());
    pointer(isInside, isInside && isOpen());
}

// While a dialog is open over the panel, or beside it, the pointer may be anywhere.
void NotchDriver::observe()
{
    const bool isHeld = isOpen() && m_app.panel()->dialogDepth() > 0;
    m_notch.pointer(m_isInside || isHeld, m_isPressed, m_steady(), openDelay());
    settle();
}

void NotchDriver::followDialogs()
{
    if (isOpen()) {
        observe();
    }
}

void NotchDriver::open(bool isSticky)
{
    m_notch.open(isSticky || m_notch.keyboardSticky);
    settle();
    if (!m_notch.keyboardSticky) {
        observe(); // closes by itself when the pointer is not here
    }
}

void NotchDriver::close()
{
    if (isOpen()) {
        m_notch.reset(compactWhenIdle());
        settle();
    }
}

void NotchDriver::toggle()
{
    if (isOpen()) {
        close();
    } else {
        open(true);
    }
}

void NotchDriver::makeSticky()
{
    if (isOpen() && !m_notch.keyboardSticky) {
        m_notch.open(true);
        settle();
    }
}

void NotchDriver::release()
{
    if (isOpen() && m_notch.keyboardSticky && m_app.panel()->dialogDepth() == 0) {
        m_notch.open(false);
        observe();
    }
}

void NotchDriver::setForeground(bool isFullScreen, const QStringList &application)
{
    m_isFullScreen = isFullScreen;
    m_application = application;
    settle();
}

void NotchDriver::prepare()
{
    if (!std::exchange(m_isPrepared, true)) {
        emit changed();
    }
}

void NotchDriver::passTime()
{
    if (m_notch.state == InteractionState::hoverOpening) {
        observe();
    } else {
        m_notch.tick(compactWhenIdle(), m_steady());
        settle();
    }
}

// Brings the resting state in line with what is wanted of it. A panel that was opened by a
// command stays open before a full screen too.
void NotchDriver::settle()
{
    const bool isHoverOpen = isOpen() && !m_notch.keyboardSticky && !m_isPressed;
    if (wantsSuppression()) {
        if (isResting() || (isHoverOpen && m_isFullScreen)) {
            m_notch.suppress();
        }
    } else if (const auto other =
                   compactWhenIdle() ? InteractionState::hidden : InteractionState::compact;
               isSuppressed() || (m_notch.state == other && !m_isInside)) {
        m_notch.reset(compactWhenIdle());
    }
    if (!m_isInside && isResting()) {
        // What was closed under a pointer that is elsewhere may open again.
        m_notch.pointer(false, m_isPressed, m_steady(), openDelay());
    }
    setTimer();
    announce();
}

void NotchDriver::setTimer()
{
    if (!m_notch.deadline) {
        m_timer.stop();
        return;
    }
    const double wait = std::max(*m_notch.deadline - m_steady(), 0.0);
    m_timer.start(static_cast<int>(std::ceil(wait * 1000)));
}

void NotchDriver::announce()
{
    const bool open = isOpen();
    if (open && std::exchange(m_isDragComing, false) && isToolOn(m_model.state(), "shelf")) {
        m_app.panel()->openTool(QStringLiteral("shelf"));
    }
    m_app.panel()->setOpen(open);
    m_app.strip()->setPanelOpen(open);
    m_app.strip()->setVisible(m_notch.state == InteractionState::compact ||
                              m_notch.state == InteractionState::hoverOpening);
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
