// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace KestCore
{
struct Timer;
}

namespace Velvetnook
{

class Formatting;

// What the tool is called in the language of the interface. The catalogue's own title for a
// tool that has no translation, and nothing for one that nobody knows.
QString toolTitle(const QString &id);
// What it is for, likewise.
QString toolSummary(const QString &id);

// What a timer is called: its own title, or the one that it was given, translated and with the
// number that tells it from others.
QString timerTitle(const KestCore::Timer &timer, const Formatting &formatting);

} // namespace Velvetnook
