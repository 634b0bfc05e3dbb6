// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "KestCore/Clients/InsightReport.h"

#include <string>
#include <string_view>

// How the figures of a report read.
namespace KestCore
{

// "12,345".
std::string countText(double count);

// The value of one of a report's rows: an amount of money, a share, a length of time, a count,
// or that it is unavailable.
std::string metricText(const InsightMetric &metric);

// The value of a point; its series tells whether it is money.
std::string pointText(const InsightPoint &point);

// The title of a series of points, such as "Gross payments, USD".
std::string seriesTitle(std::string_view series);

} // namespace KestCore
