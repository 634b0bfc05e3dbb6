// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Velvetnook/Platform/Xcb.h"

#include <QGuiApplication>

namespace Velvetnook::Xcb
{

xcb_connection_t *connection()
{
    auto *x11 = qGuiApp == nullptr
                    ? nullptr
                    : qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
    return x11 == nullptr ? nullptr : x11->connection();
}

} // namespace Velvetnook::Xcb
