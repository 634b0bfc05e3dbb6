// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Velvetnook/Shots/Shot.h"

namespace Velvetnook
{

std::vector<Shot> shelfShots() { return {}; }

} // namespace Velvetnook
