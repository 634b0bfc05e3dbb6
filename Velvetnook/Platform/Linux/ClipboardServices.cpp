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
    desktop.applications = &runningNames;
    if (XPaste::isPossible()) {
        desktop.paste = [paste = new XPaste{owner}] { paste->begin(); };
    }
    return desktop;
}

} // namespace Velvetnook
