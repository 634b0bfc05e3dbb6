// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Velvetnook/Platform/OverlayWindow.h"

#include "Velvetnook/Application/App.h"
#include "Velvetnook/Application/ApplicationModel.h"
#include "Velvetnook/Application/Screens.h"
#include "Velvetnook/Application/ViewModels/OverlayViewModel.h"
#include "Velvetnook/Platform/WindowShape.h"

#include <QGuiApplication>
#include <QQuickItem>
#include <QScreen>

#include <cmath>

namespace Velvetnook
{

namespace
{

constexpr int kRadius = 17;
constexpr int kFillet = 9;

} // namespace

OverlayWindow::OverlayWindow(QQmlEngine &engine, App &app, const ApplicationModel &model)
    : m_engine{engine}, m_app{app}, m_model{model}
{
    connect(app.overlay(), &OverlayViewModel::shownChanged, this, &OverlayWindow::follow);
}

OverlayWindow::~OverlayWindow() = default;

bool OverlayWindow::prepare()
{
    if (m_view) {
        return m_view->rootObject() != nullptr;
    }
    m_view = std::make_unique<QQuickView>(&m_engine, nullptr);
    m_view->setFlags(Qt::ToolTip | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint |
                     Qt::BypassWindowManagerHint | Qt::WindowTransparentForInput |
                     Qt::WindowDoesNotAcceptFocus | Qt::NoDropShadowWindowHint);
    m_view->setColor(Qt::transparent);
    m_view->setTitle(QStringLiteral("Velvetnook levels"));
    m_view->setSource(
        QUrl{QStringLiteral("qrc:/Velvetnook/Shell/Surfaces/OverlaySurface.qml")});
    return m_view->rootObject() != nullptr;
}

void OverlayWindow::follow()
{
    const bool isWanted = m_app.overlay()->isShown();
    m_app.strip()->setLent(isWanted);
    if (!isWanted) {
        if (m_view) {
            m_view->hide();
        }
        return;
    }
    QScreen *screen = chosenScreen(m_model.state().displayID);
    if (screen == nullptr || !prepare()) {
        return;
    }
    const QSize size = m_view->initialSize();
    const QRect place = screen->geometry();
    m_view->setScreen(screen);
    m_view->setGeometry({{place.x() + (place.width() - size.width()) / 2, place.y()}, size});
    m_view->create();
    // Without a compositor what is not the body must not be drawn at all.
    const auto scaled = [scale = m_view->devicePixelRatio()](int length) {
        return static_cast<int>(std::lround(length * scale));
    };
    const QRect body{scaled(kFillet), 0, scaled(size.width() - 2 * kFillet),
                     scaled(size.height())};
    if (!hasCompositor()) {
        setWindowOutline(*m_view, hangingOutline(body, scaled(kRadius), scaled(kFillet)),
                         false);
    }
    m_view->show();
    raiseAboveAll(*m_view);
}

} // namespace Velvetnook
