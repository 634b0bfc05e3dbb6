// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include <QCoreApplication>

#include <gmock/gmock.h>

// The tests of what needs an event loop: one application for all of them.
int main(int argc, char **argv)
{
    const QCoreApplication application{argc, argv};
    testing::InitGoogleMock(&argc, argv);
    return RUN_ALL_TESTS();
}
