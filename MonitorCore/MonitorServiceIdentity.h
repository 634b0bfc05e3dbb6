// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

namespace MonitorCore
{

// The names by which the monitor's helper services are known.
namespace MonitorServiceIdentity
{

inline constexpr std::string_view kMonitorHelper = "app.kest.native.monitor-helper";
inline constexpr std::string_view kMonitorHelperDefinition =
    "app.kest.native.monitor-helper.plist";
inline constexpr std::string_view kMonitorAudio = "app.kest.native.monitor-audio";

// What a helper demands of a program that connects to it, where the platform signs its code.
// %TEAM% stands for the signing team of the build; a build without one accepts nobody.
inline constexpr std::string_view kClientRequirement =
    "anchor apple generic and certificate leaf[subject.OU] = \"%TEAM%\" and (identifier "
    "\"app.kest.native\" or identifier \"app.kest.native.rc\")";

} // namespace MonitorServiceIdentity

inline constexpr std::string_view kWorkQueueLabel = "Velvetnook.SystemMonitor";
// Inside the application's data folder.
inline constexpr std::string_view kHistoryPath = "Monitor/history.sqlite";
// The name offered for the monitor view as an image.
inline constexpr std::string_view kImageName = "Velvetnook-System-Monitor.png";

} // namespace MonitorCore
