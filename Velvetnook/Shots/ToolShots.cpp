// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Velvetnook/Application/App.h"
#include "Velvetnook/Shots/Shot.h"

namespace Velvetnook
{

std::vector<Shot> toolShots() { return {}; }

} // namespace Velvetnook
