// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Velvetnook/Platform/ForegroundWatch.h"

#include <QPointer>
#include <QQuickWindow>

#include <memory>

class QQmlEngine;
class QScreen;

namespace Velvetnook
{

class ApplicationModel;
class DockDriver;
class DockViewModel;

// The window of the dock: the tab at an edge of a screen, and the panel beside it while it is
// open. Like the notch it goes round the window manager, is no larger than what it shows, and
// meets the pointer only where something is drawn.
class DockWindow : public QQuickWindow
{
    Q_OBJECT

public:
    DockWindow(QQmlEngine &engine, ApplicationModel &model, DockViewModel &dock,
               DockDriver &driver);
    ~DockWindow() override;
    DockWindow(const DockWindow &) = delete;
    DockWindow &operator=(const DockWindow &) = delete;

    // Empty, or why there is nothing to show.
    QString problem() const { return m_problem; }
    void begin();

protected:
    bool event(QEvent *event) override;

private slots:
    void place();

private:
    void watch();
    void followScreen();
    void tellScreen();
    bool isPanelDrawn() const;
    QRectF sensor() const;
    QRectF wanted() const;
    QRegion outline(const QPointF &origin) const;
    void tellPointer();
    void takeKeyboard();
    void giveKeyboardBack();
    void readPointer(const QEvent &event);
    void readKey() const;

    ApplicationModel &m_model;
    DockViewModel &m_dock;
    DockDriver &m_driver;
    ForegroundWatch m_foreground;
    QPointer<QScreen> m_screen;
    std::unique_ptr<QQuickItem> m_surface;
    QString m_problem;
    QString m_edge;            // that the content keeps to
    QRegion m_outline;         // in pixels of the window
    quint32 m_focusBefore = 0; // who had the keyboard
    bool m_hasCompositor = false;
    bool m_hasBegun = false;
};

} // namespace Velvetnook
