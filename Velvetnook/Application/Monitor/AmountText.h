// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "MonitorCore/MonitorSnapshot.h"

#include <QString>

namespace Velvetnook
{

class Formatting;

// What people call a metric of the machine, such as "Memory in use".
QString metricTitle(MonitorCore::MetricID metric);

// "18%", "84.2%": with so many decimals.
QString percentText(const Formatting &formatting, double percent, int decimals);
// "9.4 GB" and "214 GB": as many digits as tell something.
QString bytesText(const Formatting &formatting, double bytes);
QString rateText(const Formatting &formatting, double bytesPerSecond);
// The same without its unit, which is the one of the rate beside it.
QString rateNumber(const Formatting &formatting, double bytesPerSecond, double beside);
// "3 d 4 h", "4 h 12 min", "12 min".
QString spanText(const Formatting &formatting, double seconds);
// In the unit of the metric.
QString amountText(const Formatting &formatting, double value, MonitorCore::MetricUnit unit);

// Why a reading has no number; empty where it has one.
QString missingText(const Formatting &formatting, const MonitorCore::MetricReading &reading);

} // namespace Velvetnook
