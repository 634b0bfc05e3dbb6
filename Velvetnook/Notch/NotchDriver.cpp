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
#include <utility>

namespace Velvetnook
{

using KestCore::InteractionState;

NotchDriver::NotchDriver(ApplicationModel &model, App &app, SteadyTime steady, QObject *parent)
    : EdgeDriver{model, std::move(steady), parent}, m_app{app}
{
    connect(&model, &ApplicationModel::choicesChanged, this, &NotchDriver::settle);
    PanelViewModel *panel = app.panel();
    connect(panel, &PanelViewModel::openWanted, this, &NotchDriver::open);
    connect(panel, &PanelViewModel::closeWanted, this, &NotchDriver::close);
    connect(panel, &PanelViewModel::toggleWanted, this, &NotchDriver::toggle);
    connect(panel, &PanelViewModel::dialogDepthChanged, this, &NotchDriver::followDialogs);
    model.clock().add(
        this, [this](Base::Instant) { return notchPausedUntil(m_model); },
        [this](Base::Instant) { settle(); });
    rest();
    settle();
}

QString NotchDriver::state() const { return fromView(Base::textOf(m_notch.state)); }

bool NotchDriver::compactWhenIdle() const
{
    return m_model.setting("notch.compactWhenIdle") != "false";
}

int NotchDriver::dialogDepth() const { return m_app.panel()->dialogDepth(); }

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

void NotchDriver::drag(bool isInside)
{
    m_isDragComing = isInside && (m_isDragComing || !isOpen());
    pointer(isInside, isInside && isOpen());
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

// Brings the resting state in line with what is wanted of it. A panel that was opened by a
// command stays open before a full screen too.
void NotchDriver::adjust()
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
}

void NotchDriver::tellViews()
{
    const bool open = isOpen();
    if (open && std::exchange(m_isDragComing, false) && isToolOn(m_model.state(), "shelf")) {
        m_app.panel()->openTool(QStringLiteral("shelf"));
    }
    m_app.panel()->setOpen(open);
    m_app.strip()->setPanelOpen(open);
    m_app.strip()->setVisible(m_notch.state == InteractionState::compact ||
                              m_notch.state == InteractionState::hoverOpening);
}

} // namespace Velvetnook
