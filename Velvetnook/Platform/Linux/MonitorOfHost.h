// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Velvetnook/Application/Monitor/MonitorTools.h"

namespace Velvetnook
{

// Samples this machine; the history lies in the application's data folder.
MonitorTools monitorOfHost(const std::filesystem::path &dataFolder);

} // namespace Velvetnook
