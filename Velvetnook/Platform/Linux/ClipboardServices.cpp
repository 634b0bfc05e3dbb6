// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Velvetnook/Platform/Linux/ClipboardServices.h"

#include "SecretService/SecretService.h"
#include "Velvetnook/Platform/Linux/XApplications.h"
#include "Velvetnook/Platform/Linux/XClipboardWatch.h"
#include "Velvetnook/Platform/Linux/XPaste.h"

namespace Velvetnook
{

namespace
{

QStringList runningNames()
{
    xcb_connection_t *server = Xcb::connection();
    QStringList names;
    if (server != nullptr) {
        const xcb_window_t root = xcb_setup_roots_iterator(xcb_get_setup(server)).data->root;
        for (const std::string &name : runningApplications(server, root)) {
            names.push_back(QString::fromStdString(name));
        }
    }
    return names;
}

// The windows of one connection have the first part of their number in common.
bool isOurs()
{
    xcb_connection_t *server = Xcb::connection();
    const auto owner =
        Xcb::reply(xcb_get_selection_owner_reply, server,
                   xcb_get_selection_owner(server, Xcb::atom(server, "CLIPBOARD")));
    const auto *setup = xcb_get_setup(server);
    return owner && owner->owner != XCB_WINDOW_NONE &&
           (owner->owner & ~setup->resource_id_mask) == setup->resource_id_base;
}

} // namespace

ClipboardDesktop clipboardServices(QObject *owner)
{
    ClipboardDesktop desktop;
    desktop.openKeyring = [](bool mayAsk, const std::stop_token &stop) {
        return Keyring::open(mayAsk ? Keyring::Prompts::allowed : Keyring::Prompts::never,
                             stop);
    };
    if (Xcb::connection() == nullptr) {
        return desktop; // nobody but the program in front is told of what is copied
    }
    desktop.watch = &XClipboardWatch::begin;
    desktop.isOurs = &isOurs;
    desktop.applications = &runningNames;
    if (XPaste::isPossible()) {
        desktop.paste = [paste = new XPaste{owner}] { paste->begin(); };
    }
    return desktop;
}

} // namespace Velvetnook
