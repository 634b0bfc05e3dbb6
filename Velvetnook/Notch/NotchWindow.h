// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Velvetnook/Platform/ForegroundWatch.h"

#include <QPointer>
#include <QQuickWindow>

class QQmlEngine;
class QScreen;

namespace Velvetnook
{

class ApplicationModel;
class NotchDriver;

// The window of the notch: the strip at the top edge of a screen that grows into the panel. It
// is no larger than what it shows, and the pointer meets only what is drawn.
//
// The window manager is left out of it (override-redirect). A managed window of the dock type
// would be moved and restacked by its rules: it would lie under the panel of the desktop, be
// pushed out of that panel's space, and every step of its growth would go through the manager
// and back. So the window raises itself and asks the server for the keyboard itself.
class NotchWindow : public QQuickWindow
{
    Q_OBJECT

public:
    NotchWindow(QQmlEngine &engine, ApplicationModel &model, NotchDriver &driver);
    ~NotchWindow() override;

    // Empty, or why there is nothing to show.
    QString problem() const { return m_problem; }
    // What it shows, for whoever compiles it ahead.
    static QUrl surface();
    // Shows itself, from now on whenever there is something to show.
    void begin();

protected:
    bool event(QEvent *event) override;

private slots:
    void place();

private:
    void watchDriver();
    void watchDesktop();
    void followForeground();
    void followScreen();
    void takeKeyboard();
    void giveKeyboardBack();
    void readPointer(const QEvent &event);
    void readKey() const;
    QRegion outline(const QSize &size) const;

    ApplicationModel &m_model;
    NotchDriver &m_driver;
    ForegroundWatch m_foreground;
    QPointer<QScreen> m_screen;
    std::unique_ptr<QQuickItem> m_surface;
    QString m_problem;
    QRegion m_outline;         // in pixels of the window
    quint32 m_focusBefore = 0; // who had the keyboard
    bool m_hasCompositor = false;
    bool m_hasBegun = false;
};

} // namespace Velvetnook
