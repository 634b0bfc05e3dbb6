// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Velvetnook/Platform/Xcb.h"

#include <QObject>
#include <QRect>
#include <QStringList>

class QSocketNotifier;

namespace Velvetnook
{

// Knows which application is in front and whether it fills a screen, from what the window
// manager writes on its windows. It sleeps until that changes. Has a connection of its own to
// the X server, so that what it listens to is nobody else's business; without a server it says
// that nothing is in front.
class ForegroundWatch : public QObject
{
    Q_OBJECT

public:
    explicit ForegroundWatch(QObject *parent = nullptr);
    ~ForegroundWatch() override;
    ForegroundWatch(const ForegroundWatch &) = delete;
    ForegroundWatch &operator=(const ForegroundWatch &) = delete;

    // In pixels of the server. A window that fills another screen is not asked about.
    void setScreen(const QRect &screen);
    bool isFullScreen() const { return m_isFullScreen; }
    // The names that the application in front gives itself.
    QStringList application() const { return m_application; }

signals:
    void changed();
    // Another window came to the front.
    void restacked();

private:
    void connectToServer();
    void readEvents();
    // Whether one of the events that `poll` hands out may have changed what is known.
    bool takeNews(xcb_generic_event_t *(*poll)(xcb_connection_t *));
    void look();
    void tell(xcb_window_t front, bool isOtherFront);
    void follow(xcb_window_t window, std::uint32_t events);
    bool fillsScreen(xcb_window_t window) const;
    bool isOnScreen(xcb_window_t window) const;

    struct Disconnect {
        void operator()(xcb_connection_t *server) const { xcb_disconnect(server); }
    };
    std::unique_ptr<xcb_connection_t, Disconnect> m_server;
    QSocketNotifier *m_notifier = nullptr;
    xcb_window_t m_root = 0;
    xcb_atom_t m_activeWindow = 0;
    xcb_atom_t m_windowState = 0;
    xcb_atom_t m_fullScreen = 0;
    QRect m_screen;
    xcb_window_t m_front = 0;    // has the keyboard
    xcb_window_t m_covering = 0; // was the last one in front on our screen
    bool m_isFullScreen = false;
    QStringList m_application;
};

} // namespace Velvetnook
