// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

namespace CLI
{
class App;
}

namespace Cli
{

struct Session;

// usage: the time at the screen.
void addUsageCommand(CLI::App &program, Session &session);

} // namespace Cli
