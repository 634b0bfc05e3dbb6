// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Velvetnook/Platform/Capabilities.h"

namespace Velvetnook
{

// Asks the X server of $DISPLAY over a connection of its own, if there is one, and fills in
// what it says.
void askXServer(SessionFacts &facts);

} // namespace Velvetnook
