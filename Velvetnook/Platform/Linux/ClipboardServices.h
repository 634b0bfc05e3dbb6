// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Velvetnook/Application/Clipboard/ClipboardDesktop.h"

class QObject;

namespace Velvetnook
{

// What the clipboard tool needs, as this session gives it. Nothing is begun before it is
// called.
ClipboardDesktop clipboardServices(QObject *owner);

} // namespace Velvetnook
