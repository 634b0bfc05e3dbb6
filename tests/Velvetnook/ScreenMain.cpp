// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include <QGuiApplication>

#include <gmock/gmock.h>

#include <cstdlib>

// The tests of what Qt does on a real X server: one application for all of them.
int main(int argc, char **argv)
{
    setenv("QT_QPA_PLATFORM", "xcb", 1);
    const QGuiApplication application{argc, argv};
    testing::InitGoogleMock(&argc, argv);
    return RUN_ALL_TESTS();
}
