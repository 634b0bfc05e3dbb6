// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Velvetnook/Notch/NotchWindow.h"

#include "Velvetnook/Application/ApplicationModel.h"
#include "Velvetnook/Application/Screens.h"
#include "Velvetnook/Notch/NotchDriver.h"
#include "Velvetnook/Platform/WindowShape.h"

#include <QEvent>
#include <QGuiApplication>
#include <QMouseEvent>
#include <QQmlComponent>
#include <QQuickItem>
#include <QScreen>

#include <cmath>
#include <utility>

namespace Velvetnook
{

namespace
{

QRect pixels(const QScreen &screen)
{
    const QSizeF size = QSizeF{screen.size()} * screen.devicePixelRatio();
    return {screen.geometry().topLeft(), size.toSize()};
}

} // namespace

NotchWindow::NotchWindow(QQmlEngine &engine, ApplicationModel &model, NotchDriver &driver)
    : m_model{model}, m_driver{driver}
{
    setTitle(QStringLiteral("Velvetnook"));
    setFlags(Qt::Tool | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint |
             Qt::BypassWindowManagerHint | Qt::NoDropShadowWindowHint);
    setColor(Qt::transparent);
    m_hasCompositor = hasCompositor();
    QQmlComponent component{&engine,
                            QStringLiteral("qrc:/Velvetnook/Shell/Surfaces/NotchSurface.qml")};
    QObject *made = component.createWithInitialProperties(
        {{QStringLiteral("driver"), QVariant::fromValue<QObject *>(&driver)},
         {QStringLiteral("hasShadow"), m_hasCompositor}});
    m_surface.reset(qobject_cast<QQuickItem *>(made));
    if (m_surface == nullptr) {
        m_problem = component.errorString();
        delete made;
        return;
    }
    m_surface->setParentItem(contentItem());
    connect(m_surface.get(), SIGNAL(placeWanted()), this, SLOT(place()));
    watchDriver();
    watchDesktop();
}

// The surface may close a dialog of its own while it goes, and that would place the window.
NotchWindow::~NotchWindow()
{
    disconnect(&m_driver, nullptr, this, nullptr);
    m_surface.reset();
}

QUrl NotchWindow::surface()
{
    return QUrl{QStringLiteral("qrc:/Velvetnook/Shell/Surfaces/NotchSurface.qml")};
}

void NotchWindow::watchDriver()
{
    connect(&m_driver, &NotchDriver::changed, this, &NotchWindow::place);
    connect(&m_driver, &NotchDriver::opened, this, [this](bool isSticky) {
        place();
        if (isSticky) {
            takeKeyboard();
        }
    });
    connect(&m_driver, &NotchDriver::closed, this, &NotchWindow::giveKeyboardBack);
    connect(this, &QWindow::activeChanged, this, [this] {
        if (!isActive()) {
            m_driver.release();
            followForeground();
        } else if (!m_driver.isOpen()) {
            giveKeyboardBack(); // from the palette, which was opened in the panel
        }
    });
}

void NotchWindow::watchDesktop()
{
    connect(&m_foreground, &ForegroundWatch::changed, this, &NotchWindow::followForeground);
    connect(&m_foreground, &ForegroundWatch::restacked, this, [this] { raiseAboveAll(*this); });
    connect(&m_model, &ApplicationModel::choicesChanged, this, &NotchWindow::followScreen);
    connect(qGuiApp, &QGuiApplication::screenAdded, this, &NotchWindow::followScreen);
    connect(qGuiApp, &QGuiApplication::screenRemoved, this, &NotchWindow::followScreen);
    connect(qGuiApp, &QGuiApplication::primaryScreenChanged, this, &NotchWindow::followScreen);
}

void NotchWindow::begin()
{
    create();
    keepContentAtTopCentre(*this);
    m_hasBegun = true;
    followScreen();
    followForeground();
}

// While the panel itself has the keyboard no application is in front: that is no news.
void NotchWindow::followForeground()
{
    if (!isActive() || !m_foreground.application().isEmpty()) {
        m_driver.setForeground(m_foreground.isFullScreen(), m_foreground.application());
    }
}

void NotchWindow::followScreen()
{
    QScreen *screen = chosenScreen(m_model.state().displayID);
    if (!m_hasBegun || screen == nullptr) {
        return;
    }
    if (screen != m_screen) {
        if (m_screen) {
            disconnect(m_screen.data(), nullptr, this, nullptr);
        }
        m_screen = screen;
        setScreen(screen);
        connect(screen, &QScreen::geometryChanged, this, [this] {
            m_foreground.setScreen(pixels(*m_screen));
            place();
        });
        m_foreground.setScreen(pixels(*screen));
    }
    place();
}

QRegion NotchWindow::outline(const QSize &size) const
{
    const auto scaled = [scale = devicePixelRatio()](double length) {
        return static_cast<int>(std::lround(length * scale));
    };
    const QSizeF body = m_surface->property("bodySize").toSizeF();
    const QRect inWindow{scaled((size.width() - body.width()) / 2), 0, scaled(body.width()),
                         scaled(body.height())};
    if (m_driver.state() == QLatin1String{"hidden"}) {
        // Where nothing mixes windows even the sensor is seen: one row of it is enough.
        return QRect{inWindow.x(), 0, inWindow.width(),
                     m_hasCompositor ? inWindow.height() : 1};
    }
    return hangingOutline(inWindow, scaled(m_surface->property("bodyRadius").toDouble()),
                          scaled(m_surface->property("bodyFillet").toDouble()));
}

// Puts the window round what the surface shows at this moment.
void NotchWindow::place()
{
    if (!m_hasBegun || !m_screen) {
        return;
    }
    const QSize size = m_surface->property("windowSize").toSizeF().toSize();
    const QRect screen = m_screen->geometry();
    const QRect wanted{{screen.x() + (screen.width() - size.width()) / 2, screen.y()}, size};
    if (wanted != geometry()) {
        setGeometry(wanted);
        m_surface->setSize(size);
    }
    if (const QRegion region = outline(size); region != m_outline) {
        m_outline = region;
        setWindowOutline(*this, region, m_hasCompositor);
    }
    const bool isWanted = !m_driver.isSuppressed();
    if (isWanted != isVisible()) {
        setVisible(isWanted);
    }
}

void NotchWindow::takeKeyboard()
{
    if (!isActive()) {
        m_focusBefore = focusedWindow();
        raiseAboveAll(*this);
        // Qt asks in the name of the last event that it saw: for the server that may be long
        // ago, and then it is not heard.
        giveFocusTo(static_cast<quint32>(winId()));
        requestActivate();
    }
}

void NotchWindow::giveKeyboardBack()
{
    if (isActive()) {
        giveFocusTo(std::exchange(m_focusBefore, 0));
    }
}

void NotchWindow::readPointer(const QEvent &event)
{
    switch (event.type()) {
    case QEvent::Enter:
        m_driver.pointer(true, false);
        break;
    case QEvent::Leave:
        // While a button is down, something is being dragged out of the panel.
        m_driver.pointer(false, QGuiApplication::mouseButtons() != Qt::NoButton);
        break;
    case QEvent::MouseButtonPress:
        m_driver.pointer(true, true);
        if (m_driver.isOpen()) {
            takeKeyboard();
        }
        break;
    case QEvent::MouseButtonRelease: {
        const auto &mouse = static_cast<const QMouseEvent &>(event);
        const QPointF at = mouse.position() * devicePixelRatio();
        m_driver.pointer(m_outline.contains(at.toPoint()), mouse.buttons() != Qt::NoButton);
        break;
    }
    case QEvent::DragEnter:
        m_driver.drag(true);
        break;
    case QEvent::DragLeave:
        m_driver.drag(false);
        break;
    case QEvent::Drop:
        m_driver.drag(false);
        m_driver.pointer(true, false);
        break;
    default:
        break;
    }
}

// What is being written must not go away because the pointer does.
void NotchWindow::readKey() const
{
    const QQuickItem *focus = activeFocusItem();
    if (focus != nullptr &&
        (focus->inherits("QQuickTextInput") || focus->inherits("QQuickTextEdit"))) {
        m_driver.makeSticky();
    }
}

bool NotchWindow::event(QEvent *event)
{
    const bool isDone = QQuickWindow::event(event);
    readPointer(*event);
    if (event->type() == QEvent::KeyPress) {
        readKey();
    }
    return isDone;
}

} // namespace Velvetnook
