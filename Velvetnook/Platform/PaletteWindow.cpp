// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Velvetnook/Platform/PaletteWindow.h"

#include "Velvetnook/Application/App.h"
#include "Velvetnook/Platform/WindowShape.h"
#include "Velvetnook/Platform/Xcb.h"

#include <QCursor>
#include <QGuiApplication>
#include <QQuickItem>
#include <QScreen>

#include <algorithm>

namespace Velvetnook
{

namespace
{

constexpr int kWidth = 640;
constexpr double kTopShare = 0.14;
constexpr int kLeastTop = 88;
constexpr int kRadius = 22;

int topOn(const QScreen &screen)
{
    return std::max(kLeastTop, static_cast<int>(screen.geometry().height() * kTopShare));
}

// Where the user looks is where the pointer is.
QScreen *screenInSight()
{
    QScreen *screen = QGuiApplication::screenAt(QCursor::pos());
    return screen == nullptr ? QGuiApplication::primaryScreen() : screen;
}

} // namespace

PaletteWindow::PaletteWindow(QQmlEngine &engine, App &app)
    : QQuickView{&engine, nullptr}, m_app{app}
{
    const Qt::WindowFlags besides =
        Xcb::connection() == nullptr ? Qt::WindowStaysOnTopHint : Qt::BypassWindowManagerHint;
    setFlags(Qt::Tool | Qt::FramelessWindowHint | besides);
    setColor(Qt::transparent);
    setResizeMode(SizeRootObjectToView);
    setTitle(QStringLiteral("Velvetnook"));
    const auto *palette = app.palette();
    connect(palette, &PaletteViewModel::openWanted, this, &PaletteWindow::open);
    connect(palette, &PaletteViewModel::closeWanted, this, &PaletteWindow::close);
    connect(palette, &PaletteViewModel::toggleWanted, this, &PaletteWindow::toggle);
    connect(this, &QWindow::activeChanged, this, &PaletteWindow::followFocus);
}

bool PaletteWindow::prepare()
{
    if (rootObject() != nullptr) {
        return true;
    }
    setSource(QUrl{QStringLiteral("qrc:/Velvetnook/Shell/Surfaces/PaletteStage.qml")});
    if (rootObject() == nullptr) {
        return false;
    }
    place(); // tells it how high it may become, on which its height depends
    connect(rootObject(), SIGNAL(surfaceHeightChanged()), this, SLOT(place()));
    connect(rootObject(), SIGNAL(dismissed()), this, SLOT(close()));
    m_app.palette()->begin();
    create();
    return true;
}

void PaletteWindow::place()
{
    const QScreen *in = screen();
    const QRect area = in->geometry();
    const int top = topOn(*in);
    rootObject()->setProperty("isWholeScreen", m_isWholeScreen);
    rootObject()->setProperty("surfaceTop", m_isWholeScreen ? top : 0);
    rootObject()->setProperty("maximumHeight", area.height() - top - kRadius);
    if (m_isWholeScreen) {
        setMask({});
        setGeometry(area);
        return;
    }
    const int height = rootObject()->property("surfaceHeight").toInt();
    setGeometry(area.x() + (area.width() - kWidth) / 2, area.y() + top, kWidth, height);
    setMask(roundOutline(size(), kRadius));
}

void PaletteWindow::open()
{
    if (isVisible() || !prepare()) {
        return;
    }
    m_app.palette()->begin();
    m_before = focusedWindow();
    m_isWholeScreen = hasCompositor();
    setScreen(screenInSight());
    place();
    rootObject()->setProperty("isOpen", true);
    show();
    raiseAboveAll(*this);
    if (Xcb::connection() == nullptr) {
        requestActivate();
    } else {
        giveFocusTo(static_cast<std::uint32_t>(winId()));
    }
}

void PaletteWindow::close()
{
    if (isVisible()) {
        const std::uint32_t before = m_before;
        const bool hasKeyboard = focusedWindow() == static_cast<std::uint32_t>(winId());
        hideWindow();
        if (hasKeyboard) {
            giveFocusTo(before);
        }
    }
}

void PaletteWindow::toggle()
{
    if (isVisible()) {
        close();
    } else {
        open();
    }
}

// Another window was chosen: the palette goes, and leaves the keyboard there. Where it was
// opened again at once, the news of its first closing comes only now, and is none.
void PaletteWindow::followFocus()
{
    if (isVisible() && !isActive() && focusedWindow() != static_cast<quint32>(winId())) {
        hideWindow();
    }
}

void PaletteWindow::hideWindow()
{
    m_before = 0;
    hide();
    rootObject()->setProperty("isOpen", false);
}

} // namespace Velvetnook
