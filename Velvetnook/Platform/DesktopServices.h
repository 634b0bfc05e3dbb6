// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Velvetnook/Application/ToolServices.h"

#include <QDBusConnection>

namespace Velvetnook
{

// The services of this computer. Nothing is loaded or asked until a tool needs it.
ToolServices desktopServices(const QDBusConnection &session);

} // namespace Velvetnook
