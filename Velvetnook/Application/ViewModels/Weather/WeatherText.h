// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "KestCore/Clients/WeatherPresentation.h"

#include <QString>
#include <QVariantList>

#include <optional>
#include <string_view>

// A forecast as it is shown.
namespace Velvetnook
{

class Formatting;

QString skyWords(std::string_view code);
// Of our own set of icons.
QString skyIcon(std::string_view code);
QString degreesText(double celsius, const Formatting &formatting);
QString windWords(std::optional<double> kilometresPerHour, const Formatting &formatting);
QString rainWords(std::optional<double> millimetres, const Formatting &formatting);
QString humidityWords(std::optional<double> percent, const Formatting &formatting);

// The columns of the chart, from now on: {label, value, y, rain}. `y` is where the line passes,
// 0 at the warmest and 1 at the coldest, smoothed as the line is; `rain` the share of a bar's
// height. Every second one has its label and value.
QVariantList hourColumns(const KestCore::WeatherView &view, const KestCore::Calendar &calendar,
                         const Formatting &formatting);
// {label, icon, words, high, low}.
QVariantList dayColumns(const KestCore::WeatherView &view, Base::Instant now,
                        const KestCore::Calendar &calendar, const Formatting &formatting);

} // namespace Velvetnook
