// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Velvetnook/Platform/Tray.h"

#include <QString>

#include <vector>

namespace Velvetnook
{

class ApplicationModel;
class Formatting;
class PrayerWatch;

// "Asr at 13:48", or why nothing is known of prayer times.
QString nextPrayerLine(const ApplicationModel &model, const Formatting &formatting,
                       const PrayerWatch &prayers);

// What the tray's menu says now. Its keys are those of kDesktopActions, and "prayer" and
// "resume-reminders".
std::vector<TrayItem> trayMenu(const ApplicationModel &model, const Formatting &formatting,
                               const PrayerWatch &prayers);

} // namespace Velvetnook
