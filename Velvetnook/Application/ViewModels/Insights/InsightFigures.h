// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "KestCore/Clients/InsightReport.h"

#include <QString>
#include <QVariantList>

#include <string>
#include <vector>

// A report as it is shown.
namespace Velvetnook
{

class ApplicationModel;
class Formatting;

// The periods to choose from: {value, label}.
QVariantList insightPeriods(const Formatting &formatting);

// The currencies that a report of payments tells of, in its order; none of one about visitors.
std::vector<std::string> currenciesOf(const KestCore::InsightReport &report);

// The figure that the view is about: {label, value}.
QVariantMap headlineOf(const KestCore::InsightReport &report, const std::string &currency,
                       const Formatting &formatting);
// {label, value, detail}, of one currency where there are several.
QVariantList figuresOf(const KestCore::InsightReport &report, const std::string &currency,
                       const Formatting &formatting);
// {share, isLast, spoken}: at most kMostBars, of neighbours that were added up.
inline constexpr std::size_t kMostBars = 46;
QVariantList barsOf(const KestCore::InsightReport &report, const std::string &currency,
                    const ApplicationModel &model, const Formatting &formatting);
QString noticeOf(const KestCore::InsightReport &report);
// What came lately, and where visitors were and came from: {title, rows: {label, value}}.
QVariantList listsOf(const KestCore::InsightReport &report, const ApplicationModel &model,
                     const Formatting &formatting);

} // namespace Velvetnook
