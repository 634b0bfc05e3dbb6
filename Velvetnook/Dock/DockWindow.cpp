// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Velvetnook/Dock/DockWindow.h"

#include "Velvetnook/Application/ApplicationModel.h"
#include "Velvetnook/Application/Screens.h"
#include "Velvetnook/Application/ViewModels/DockViewModel.h"
#include "Velvetnook/Dock/DockDriver.h"
#include "Velvetnook/Platform/WindowShape.h"
#include "Velvetnook/Shell/Theme.h"

#include <QEvent>
#include <QGuiApplication>
#include <QMouseEvent>
#include <QQmlComponent>
#include <QQuickItem>
#include <QScreen>

#include <algorithm>
#include <cmath>
#include <utility>

namespace Velvetnook
{

namespace
{

constexpr double kSensor = 4; // deep, at the edge, where the tab hides
constexpr int kRadius = 24;
constexpr double kCallout = 14;

QRect pixels(const QScreen &screen)
{
    const QSizeF size = QSizeF{screen.size()} * screen.devicePixelRatio();
    return {screen.geometry().topLeft(), size.toSize()};
}

Qt::Edge edgeOf(const QString &name)
{
    if (name == QLatin1String{"left"}) {
        return Qt::LeftEdge;
    }
    return name == QLatin1String{"bottom"} ? Qt::BottomEdge : Qt::RightEdge;
}

QRect scaled(const QRectF &rect, double scale)
{
    return QRectF{rect.topLeft() * scale, rect.size() * scale}.toRect();
}

QRegion roundRegion(const QRect &rect, double scale)
{
    return roundOutline(rect.size(), static_cast<int>(std::lround(kRadius * scale)))
        .translated(rect.topLeft());
}

} // namespace

DockWindow::DockWindow(QQmlEngine &engine, ApplicationModel &model, DockViewModel &dock,
                       DockDriver &driver)
    : m_model{model}, m_dock{dock}, m_driver{driver}
{
    setTitle(QStringLiteral("Velvetnook Dock"));
    setFlags(Qt::Tool | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint |
             Qt::BypassWindowManagerHint | Qt::NoDropShadowWindowHint);
    setColor(Qt::transparent);
    m_hasCompositor = hasCompositor();
    QQmlComponent component{&engine,
                            QStringLiteral("qrc:/Velvetnook/Shell/Surfaces/DockSurface.qml")};
    QObject *made =
        component.createWithInitialProperties({{QStringLiteral("hasShadow"), m_hasCompositor}});
    m_surface.reset(qobject_cast<QQuickItem *>(made));
    if (m_surface == nullptr) {
        m_problem = component.errorString();
        delete made;
        return;
    }
    m_surface->setParentItem(contentItem());
    connect(m_surface.get(), SIGNAL(placeWanted()), this, SLOT(place()));
    watch();
}

// The surface may close a dialog of its own while it goes, and that would place the window.
DockWindow::~DockWindow()
{
    disconnect(&m_driver, nullptr, this, nullptr);
    disconnect(&m_dock, nullptr, this, nullptr);
    m_surface.reset();
}

void DockWindow::watch()
{
    connect(&m_driver, &DockDriver::changed, this, &DockWindow::place);
    connect(&m_dock, &DockViewModel::placeChanged, this, &DockWindow::place);
    connect(&m_driver, &DockDriver::opened, this, [this](bool isSticky) {
        place();
        if (isSticky) {
            takeKeyboard();
            if (!geometry().contains(QCursor::pos())) { // by a key, and not by the pointer
                QMetaObject::invokeMethod(m_surface.get(), "focusPanel");
            }
        }
    });
    connect(&m_driver, &DockDriver::closed, this, &DockWindow::giveKeyboardBack);
    connect(this, &QWindow::activeChanged, this, [this] {
        if (!isActive()) {
            m_driver.release();
            m_driver.setFullScreen(m_foreground.isFullScreen());
        }
    });
    connect(&m_foreground, &ForegroundWatch::changed, this, [this] {
        if (!isActive()) {
            m_driver.setFullScreen(m_foreground.isFullScreen());
        }
    });
    connect(&m_foreground, &ForegroundWatch::restacked, this, [this] { raiseAboveAll(*this); });
    connect(&m_model, &ApplicationModel::choicesChanged, this, &DockWindow::followScreen);
    connect(qGuiApp, &QGuiApplication::screenAdded, this, &DockWindow::followScreen);
    connect(qGuiApp, &QGuiApplication::screenRemoved, this, &DockWindow::followScreen);
    connect(qGuiApp, &QGuiApplication::primaryScreenChanged, this, &DockWindow::followScreen);
}

void DockWindow::begin()
{
    create();
    m_hasBegun = true;
    followScreen();
    m_driver.setFullScreen(m_foreground.isFullScreen());
}

void DockWindow::followScreen()
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
        connect(screen, &QScreen::geometryChanged, this, &DockWindow::tellScreen);
        connect(screen, &QScreen::availableGeometryChanged, this, &DockWindow::tellScreen);
    }
    tellScreen();
}

void DockWindow::tellScreen()
{
    m_foreground.setScreen(pixels(*m_screen));
    const QRect screen = m_screen->geometry();
    m_dock.setScreen(screen.size(),
                     m_screen->availableGeometry().translated(-screen.topLeft()));
    place();
}

bool DockWindow::isPanelDrawn() const
{
    return m_dock.isOpen() || m_surface->property("isPanelDrawn").toBool();
}

// Where a tab that hides is brought out.
QRectF DockWindow::sensor() const
{
    QRectF tab = m_dock.tab();
    if (m_dock.edge() == QLatin1String{"left"}) {
        tab.setWidth(kSensor);
    } else if (m_dock.edge() == QLatin1String{"bottom"}) {
        tab.setTop(tab.bottom() - kSensor);
    } else {
        tab.setLeft(tab.right() - kSensor);
    }
    return tab;
}

// On the screen, with the middle of the tab always in the middle along its edge: what was drawn
// keeps its place there while the window grows. Open, it has room for the panel beside any
// slot, so that it stands still under the pointer that goes from one to the other.
QRectF DockWindow::wanted() const
{
    const bool isTabDrawn = m_dock.isTabShown() || m_surface->property("isTabDrawn").toBool();
    if (!isTabDrawn && !isPanelDrawn()) {
        return sensor();
    }
    const QRectF tab = m_dock.tab();
    QRectF all = isPanelDrawn() ? tab.united(m_dock.panel()) : tab;
    const double around = m_hasCompositor ? Theme::shadowReach(QStringLiteral("floating")) : 1;
    all.adjust(-around, -around, around, around);
    const QPointF middle = tab.center();
    const QSizeF screen = m_dock.screenSize();
    const QSizeF room = isPanelDrawn() ? tab.size() + m_dock.panel().size() : tab.size();
    if (m_dock.edge() == QLatin1String{"bottom"}) {
        const double half = room.width() / 2 + around;
        all.setLeft(middle.x() - half);
        all.setRight(middle.x() + half);
        all.setBottom(std::min(all.bottom(), screen.height()));
    } else {
        const double half = room.height() / 2 + around;
        all.setTop(middle.y() - half);
        all.setBottom(middle.y() + half);
        all.setLeft(std::max(all.left(), 0.0));
        all.setRight(std::min(all.right(), screen.width()));
    }
    return all;
}

QRegion DockWindow::outline(const QPointF &origin) const
{
    const double scale = devicePixelRatio();
    if (!m_dock.isTabShown() && !isPanelDrawn()) {
        return scaled(sensor().translated(-origin), scale);
    }
    const QRectF tab = m_dock.tab().translated(-origin);
    const Qt::Edge atEdge = edgeOf(m_dock.edge());
    QRectF drawn = tab.adjusted(-1, -1, 1, 1);
    if (!m_dock.isFloating()) { // its corners at the edge are square
        const auto over = static_cast<double>(kRadius);
        drawn.adjust(atEdge == Qt::LeftEdge ? -over : 0, 0, atEdge == Qt::RightEdge ? over : 0,
                     atEdge == Qt::BottomEdge ? over : 0);
    }
    QRegion region = roundRegion(scaled(drawn, scale), scale);
    if (!isPanelDrawn()) {
        return region;
    }
    QRectF body = m_dock.panel().translated(-origin);
    QPolygonF callout;
    const double along = m_dock.pointerShare();
    if (atEdge == Qt::BottomEdge) {
        body.setHeight(body.height() - kCallout);
        const QPointF at{body.left() + along * body.width(), body.bottom()};
        callout << at + QPointF{-10, 0} << at + QPointF{0, 12} << at + QPointF{10, 0};
    } else {
        const bool isLeft = atEdge == Qt::LeftEdge;
        const double y = body.top() + along * body.height();
        body.adjust(isLeft ? kCallout : 0, 0, isLeft ? 0 : -kCallout, 0);
        const double x = isLeft ? body.left() : body.right();
        callout << QPointF{x, y - 10} << QPointF{x + (isLeft ? -12 : 12), y}
                << QPointF{x, y + 10};
    }
    region += roundRegion(scaled(body.adjusted(-1, -1, 1, 1), scale), scale);
    for (QPointF &corner : callout) {
        corner *= scale;
    }
    return region + QRegion{callout.toPolygon()};
}

void DockWindow::place()
{
    if (!m_hasBegun || !m_screen) {
        return;
    }
    if (m_edge != m_dock.edge()) {
        m_edge = m_dock.edge();
        keepContentAtEdge(*this, edgeOf(m_edge));
    }
    const QRect onScreen = wanted().toAlignedRect();
    const QRect rect = onScreen.translated(m_screen->geometry().topLeft());
    if (rect != geometry()) {
        setGeometry(rect);
        m_surface->setSize(rect.size());
        m_surface->setProperty("origin", QPointF{onScreen.topLeft()});
        tellPointer();
    }
    if (const QRegion region = outline(onScreen.topLeft()); region != m_outline) {
        m_outline = region;
        setWindowOutline(*this, region, m_hasCompositor);
    }
    const bool isWanted = !m_driver.isSuppressed();
    if (isWanted != isVisible()) {
        setVisible(isWanted);
    }
}

// The window has moved under the pointer, of which the server tells nothing: what is under it
// now would be known only when it moves.
void DockWindow::tellPointer()
{
    const QPoint at = QCursor::pos();
    if (isVisible() && geometry().contains(at) &&
        QGuiApplication::mouseButtons() == Qt::NoButton) {
        QCoreApplication::postEvent(
            this, new QMouseEvent{QEvent::MouseMove, at - position(), at, Qt::NoButton,
                                  Qt::NoButton, QGuiApplication::keyboardModifiers()});
    }
}

void DockWindow::takeKeyboard()
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

void DockWindow::giveKeyboardBack()
{
    if (isActive()) {
        giveFocusTo(std::exchange(m_focusBefore, 0));
    }
}

void DockWindow::readPointer(const QEvent &event)
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
        m_driver.dragEntered();
        break;
    case QEvent::DragLeave:
    case QEvent::Drop:
        m_driver.pointer(event.type() == QEvent::Drop, false);
        break;
    default:
        break;
    }
}

// What is being written must not go away because the pointer does.
void DockWindow::readKey() const
{
    const QQuickItem *focus = activeFocusItem();
    if (focus != nullptr && focus->inherits("QQuickTextInput")) {
        m_driver.makeSticky();
    }
}

bool DockWindow::event(QEvent *event)
{
    const bool isDone = QQuickWindow::event(event);
    readPointer(*event);
    if (event->type() == QEvent::KeyPress) {
        readKey();
    }
    return isDone;
}

} // namespace Velvetnook
