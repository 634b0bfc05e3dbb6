// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "bench/Velvetnook/Suites.h"

#include <QGuiApplication>
#include <QQuickWindow>

#include <algorithm>
#include <cstdlib>

// VelvetnookBench: how long the application takes to answer a hand. On the X server of DISPLAY.
int main(int argc, char **argv)
{
    setenv("QT_QPA_PLATFORM", "xcb", 1);
    QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
    const QGuiApplication application{argc, argv};
    std::vector<Bench::Row> rows = Velvetnook::paletteSuite();
    const auto more = Velvetnook::clickSuite();
    rows.insert(rows.end(), more.begin(), more.end());
    Bench::print(rows);
    return std::ranges::all_of(rows, &Bench::Row::met) ? 0 : 1;
}
