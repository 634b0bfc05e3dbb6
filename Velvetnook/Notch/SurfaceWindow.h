// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QQuickView>
#include <QSize>
#include <QString>

namespace Velvetnook
{

// An ordinary window round one surface, such as the settings.
class SurfaceWindow : public QQuickView
{
    Q_OBJECT

public:
    // `surface` names Surfaces/<surface>Surface.qml. A smallest size makes it resizable; one
    // without is as large as its surface and draws its own edge.
    SurfaceWindow(QQmlEngine &engine, const QString &surface, QSize smallest = {});

    // Shows it, in front of the others and with the keyboard.
    void present();
};

} // namespace Velvetnook
