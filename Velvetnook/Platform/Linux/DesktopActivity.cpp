// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Velvetnook/Platform/Linux/DesktopActivity.h"

#include "Velvetnook/Platform/Xcb.h"

#include <xcb/screensaver.h>

namespace Velvetnook
{

DesktopActivity::DesktopActivity(Power *power, QObject *parent)
    : ScreenActivity{parent}, m_power{power}
{
    connect(&m_front, &ForegroundWatch::changed, this, &ScreenActivity::applicationChanged);
    if (m_power) {
        connect(power, &Power::lockedChanged, this, &ScreenActivity::lockedChanged);
        connect(power, &Power::suspending, this, &ScreenActivity::suspending);
        connect(power, &Power::resumed, this, &ScreenActivity::resumed);
    }
}

QString DesktopActivity::problem() const
{
    return Xcb::connection() == nullptr
               ? tr("This session does not tell which application is in front.")
               : QString{};
}

// "org.gnome.Nautilus" is called Nautilus, and "firefox" Firefox. Our own panel is no
// application that anybody works in, and it tells the server no name.
std::optional<KestCore::FocusedApplication> DesktopActivity::application() const
{
    const QStringList names = m_front.application();
    if (names.isEmpty()) {
        return std::nullopt;
    }
    const QString id = names.last();
    QString name = id.section(u'.', -1);
    if (name.isEmpty()) {
        name = id;
    }
    name[0] = name[0].toUpper();
    return KestCore::FocusedApplication{.id = id.toStdString(), .name = name.toStdString()};
}

std::optional<Base::Seconds> DesktopActivity::idle() const
{
    xcb_connection_t *server = Xcb::connection();
    if (server == nullptr) {
        return std::nullopt;
    }
    const auto *known = xcb_get_extension_data(server, &xcb_screensaver_id);
    if (known == nullptr || known->present == 0) {
        return std::nullopt;
    }
    const xcb_window_t root = xcb_setup_roots_iterator(xcb_get_setup(server)).data->root;
    const auto info = Xcb::reply(xcb_screensaver_query_info_reply, server,
                                 xcb_screensaver_query_info(server, root));
    if (!info) {
        return std::nullopt;
    }
    return Base::Seconds{info->ms_since_user_input / 1000.0};
}

} // namespace Velvetnook
