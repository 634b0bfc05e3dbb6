// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Velvetnook/Shell/Engine.h"

#include <QGuiApplication>
#include <QQuickWindow>

#include <gmock/gmock.h>

#include <cstdlib>

// The tests of what is drawn: one application for all of them, without a screen.
int main(int argc, char **argv)
{
    setenv("QT_QPA_PLATFORM", "offscreen", 1);
    QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
    Velvetnook::prepareText();
    const QGuiApplication application{argc, argv};
    testing::InitGoogleMock(&argc, argv);
    return RUN_ALL_TESTS();
}
