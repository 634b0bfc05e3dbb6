// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Velvetnook/Platform/ForegroundWatch.h"

#include <QGuiApplication>
#include <QSocketNotifier>

#include <algorithm>
#include <utility>

namespace Velvetnook
{

namespace
{

constexpr std::uint32_t kEvents =
    XCB_EVENT_MASK_PROPERTY_CHANGE | XCB_EVENT_MASK_STRUCTURE_NOTIFY;

} // namespace

ForegroundWatch::ForegroundWatch(QObject *parent) : QObject{parent}
{
    if (Xcb::connection() != nullptr) {
        connectToServer();
    }
}

ForegroundWatch::~ForegroundWatch() { delete m_notifier; }

void ForegroundWatch::connectToServer()
{
    int screen = 0;
    m_server.reset(xcb_connect(nullptr, &screen));
    if (xcb_connection_has_error(m_server.get()) != 0) {
        m_server.reset();
        return;
    }
    auto roots = xcb_setup_roots_iterator(xcb_get_setup(m_server.get()));
    for (; screen > 0 && roots.rem > 1; --screen) {
        xcb_screen_next(&roots);
    }
    m_root = roots.data->root;
    m_activeWindow = Xcb::atom(m_server.get(), "_NET_ACTIVE_WINDOW");
    m_windowState = Xcb::atom(m_server.get(), "_NET_WM_STATE");
    m_fullScreen = Xcb::atom(m_server.get(), "_NET_WM_STATE_FULLSCREEN");
    follow(m_root, kEvents);
    m_notifier = new QSocketNotifier{xcb_get_file_descriptor(m_server.get()),
                                     QSocketNotifier::Read, this};
    connect(m_notifier, &QSocketNotifier::activated, this, &ForegroundWatch::readEvents);
    look();
}

void ForegroundWatch::setScreen(const QRect &screen)
{
    m_screen = screen;
    look();
}

void ForegroundWatch::follow(xcb_window_t window, std::uint32_t events)
{
    xcb_change_window_attributes(m_server.get(), window, XCB_CW_EVENT_MASK, &events);
    xcb_flush(m_server.get());
}

void ForegroundWatch::readEvents()
{
    const bool isNews = takeNews(xcb_poll_for_event);
    if (xcb_connection_has_error(m_server.get()) != 0) {
        m_notifier->setEnabled(false); // the server is gone, and Qt will see it as well
        return;
    }
    if (isNews) {
        look();
    }
}

bool ForegroundWatch::takeNews(xcb_generic_event_t *(*poll)(xcb_connection_t *))
{
    bool isNews = false;
    while (const Xcb::Owned<xcb_generic_event_t> event{poll(m_server.get())}) {
        const auto kind = event->response_type & 0x7f;
        if (kind == XCB_PROPERTY_NOTIFY) {
            const auto *change =
                reinterpret_cast<const xcb_property_notify_event_t *>(event.get());
            isNews = isNews || change->atom == m_activeWindow || change->atom == m_windowState;
        } else if (kind == XCB_UNMAP_NOTIFY || kind == XCB_DESTROY_NOTIFY ||
                   kind == XCB_CONFIGURE_NOTIFY) {
            isNews = true;
        }
    }
    return isNews;
}

bool ForegroundWatch::isOnScreen(xcb_window_t window) const
{
    const auto size = Xcb::reply(xcb_get_geometry_reply, m_server.get(),
                                 xcb_get_geometry(m_server.get(), window));
    const auto place =
        Xcb::reply(xcb_translate_coordinates_reply, m_server.get(),
                   xcb_translate_coordinates(m_server.get(), window, m_root, 0, 0));
    return size && place &&
           QRect{place->dst_x, place->dst_y, size->width, size->height}.intersects(m_screen);
}

bool ForegroundWatch::fillsScreen(xcb_window_t window) const
{
    const auto looks = Xcb::reply(xcb_get_window_attributes_reply, m_server.get(),
                                  xcb_get_window_attributes(m_server.get(), window));
    if (!looks || looks->map_state != XCB_MAP_STATE_VIEWABLE) {
        return false;
    }
    const auto states = Xcb::values(m_server.get(), window, m_windowState);
    return std::ranges::find(states, m_fullScreen) != states.end();
}

void ForegroundWatch::look()
{
    if (!m_server) {
        return;
    }
    const auto active = Xcb::values(m_server.get(), m_root, m_activeWindow);
    const xcb_window_t front = active.empty() ? XCB_NONE : active.front();
    const bool isOtherFront = front != m_front;
    if (isOtherFront) {
        if (m_front != XCB_NONE && m_front != m_covering) {
            follow(m_front, 0);
        }
        m_front = front;
        if (front != XCB_NONE) {
            follow(front, kEvents);
        }
    }
    // A film goes on filling its screen while the user works on another one.
    if (front != XCB_NONE && front != m_covering && isOnScreen(front)) {
        if (m_covering != XCB_NONE) {
            follow(m_covering, 0);
        }
        m_covering = front;
    }
    // Events that came along with the answers are in our memory now: the socket that wakes us
    // will not tell of them.
    if (takeNews(xcb_poll_for_queued_event)) {
        QMetaObject::invokeMethod(this, &ForegroundWatch::look, Qt::QueuedConnection);
    }
    tell(front, isOtherFront);
}

void ForegroundWatch::tell(xcb_window_t front, bool isOtherFront)
{
    const bool isFullScreen = m_covering != XCB_NONE && fillsScreen(m_covering);
    QStringList application;
    if (front != XCB_NONE) {
        const QString names = QString::fromUtf8(
            QByteArray::fromStdString(Xcb::text(m_server.get(), front, XCB_ATOM_WM_CLASS)));
        application = names.split(QChar{u'\0'}, Qt::SkipEmptyParts);
    }
    const bool isOther = isFullScreen != m_isFullScreen || application != m_application;
    m_isFullScreen = isFullScreen;
    m_application = std::move(application);
    if (isOther) {
        emit changed();
    }
    if (isOtherFront) {
        emit restacked();
    }
}

} // namespace Velvetnook
