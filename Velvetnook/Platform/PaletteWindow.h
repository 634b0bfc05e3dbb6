// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QQuickView>

#include <cstdint>

namespace Velvetnook
{

class App;

// The window of the palette. Made once and hidden, so that showing it is only that. On an X
// server it goes round the window manager: it is above everything and has the keyboard at
// once, and gives it back to the window that had it.
class PaletteWindow : public QQuickView
{
    Q_OBJECT

public:
    PaletteWindow(QQmlEngine &engine, App &app);

    // Loads what it shows. False when that fails.
    bool prepare();

public slots:
    void open();
    void close();
    void toggle();

private slots:
    void place();

private:
    void followFocus();
    void hideWindow();

    App &m_app;
    std::uint32_t m_before = 0; // the window that had the keyboard
    bool m_isWholeScreen = false;
};

} // namespace Velvetnook
