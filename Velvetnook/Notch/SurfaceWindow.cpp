// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Velvetnook/Notch/SurfaceWindow.h"

#include "Velvetnook/Platform/WindowShape.h"

#include <QQuickItem>
#include <QScreen>

namespace Velvetnook
{

SurfaceWindow::SurfaceWindow(QQmlEngine &engine, const QString &surface, QSize smallest)
    : QQuickView{&engine, nullptr}
{
    const bool isFixed = smallest.isEmpty();
    setResizeMode(SizeRootObjectToView);
    setInitialProperties({{QStringLiteral("framed"), isFixed}});
    setSource(
        QUrl{QStringLiteral("qrc:/Velvetnook/Shell/Surfaces/%1Surface.qml").arg(surface)});
    if (isFixed) {
        setFlags(Qt::Dialog | Qt::FramelessWindowHint);
        setColor(Qt::transparent);
    } else {
        setMinimumSize(smallest);
    }
    if (rootObject() == nullptr) {
        return; // the view has said why
    }
    const QSizeF size{rootObject()->implicitWidth(), rootObject()->implicitHeight()};
    resize(size.toSize());
    if (isFixed) {
        setMinimumSize(size.toSize());
        setMaximumSize(size.toSize());
    }
    if (rootObject()->metaObject()->indexOfSignal("closeWanted()") != -1) {
        connect(rootObject(), SIGNAL(closeWanted()), this, SLOT(close()));
    }
}

void SurfaceWindow::present()
{
    if (!isVisible() && rootObject() != nullptr) {
        const QRect area = screen()->availableGeometry();
        setPosition(area.center() - QPoint{width() / 2, height() / 2});
        // Where nothing mixes windows, the corners outside the round ones would be black.
        const bool needsOutline = color().alpha() == 0 && !hasCompositor();
        setMask(needsOutline ? roundOutline(size(), rootObject()->property("radius").toInt())
                             : QRegion{});
        show();
    }
    raise();
    requestActivate();
}

} // namespace Velvetnook
