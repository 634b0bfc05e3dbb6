// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Velvetnook/Dock/DockKeeper.h"

#include "Velvetnook/Application/App.h"
#include "Velvetnook/Application/ApplicationModel.h"
#include "Velvetnook/Application/ViewModels/DockViewModel.h"
#include "Velvetnook/Dock/DockDriver.h"
#include "Velvetnook/Dock/DockWindow.h"
#include "Velvetnook/Platform/Linux/ApplicationLauncher.h"

#include <QGuiApplication>

#include <cstdio>
#include <utility>

namespace Velvetnook
{

DockKeeper::DockKeeper(QQmlEngine &engine, ApplicationModel &model, App &app,
                       std::function<double()> steady, QObject *parent)
    : QObject{parent}, m_engine{engine}, m_model{model}, m_app{app}, m_steady{std::move(steady)}
{
    connect(&model, &ApplicationModel::companionChanged, this, &DockKeeper::follow);
    if (model.companion().dock.enabled) {
        make(); // at once: who has asked for it may open it next
    }
}

DockKeeper::~DockKeeper() { drop(); }

// When the present event is over: it may have come from the window that goes.
void DockKeeper::follow()
{
    if (m_model.companion().dock.enabled == (m_window != nullptr) ||
        std::exchange(m_isFollowing, true)) {
        return;
    }
    QMetaObject::invokeMethod(
        this,
        [this] {
            m_isFollowing = false;
            const bool isWanted = m_model.companion().dock.enabled;
            m_hasFailed = m_hasFailed && isWanted;
            if (isWanted && m_window == nullptr && !m_hasFailed) {
                make();
            } else if (!isWanted) {
                drop();
            }
        },
        Qt::QueuedConnection);
}

void DockKeeper::make()
{
    // Elsewhere no window can be put at an edge; the settings say so.
    if (QGuiApplication::platformName() == QLatin1String{"wayland"}) {
        return;
    }
    DockViewModel *const dock = m_app.dock();
    m_launcher = std::make_unique<ApplicationLauncher>(MonitorLinux::appPlacesOfUser());
    dock->setDesktop(m_launcher->desktop());
    m_driver = std::make_unique<DockDriver>(m_model, *dock, m_steady);
    m_window = std::make_unique<DockWindow>(m_engine, m_model, *dock, *m_driver);
    if (!m_window->problem().isEmpty()) {
        std::fprintf(stderr, "velvetnook: %s\n", qPrintable(m_window->problem()));
        m_hasFailed = true; // until it is turned off and on again
        drop();
        return;
    }
    m_window->begin();
}

void DockKeeper::drop()
{
    if (m_driver) {
        m_driver->close();
        m_app.dock()->setDesktop({});
    }
    m_window.reset();
    m_driver.reset();
    m_launcher.reset();
}

} // namespace Velvetnook
