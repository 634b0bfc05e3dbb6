// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Velvetnook/Application/Monitor/AmountText.h"

#include "Velvetnook/Application/Formatting.h"

#include <QCoreApplication>

#include <algorithm>
#include <array>
#include <cmath>

namespace Velvetnook
{

namespace
{

using MonitorCore::MetricID;
using MonitorCore::MetricState;
using MonitorCore::MetricUnit;

class Amounts
{
    Q_DECLARE_TR_FUNCTIONS(Amounts)
};

// In the order of the enumeration.
constexpr std::array kTitles{QT_TRANSLATE_NOOP("Amounts", "Processor"),
                             QT_TRANSLATE_NOOP("Amounts", "Processor, programs"),
                             QT_TRANSLATE_NOOP("Amounts", "Processor, system"),
                             QT_TRANSLATE_NOOP("Amounts", "Processor, idle"),
                             QT_TRANSLATE_NOOP("Amounts", "Memory in use"),
                             QT_TRANSLATE_NOOP("Amounts", "Memory installed"),
                             QT_TRANSLATE_NOOP("Amounts", "Memory pressure"),
                             QT_TRANSLATE_NOOP("Amounts", "Memory wired"),
                             QT_TRANSLATE_NOOP("Amounts", "Memory compressed"),
                             QT_TRANSLATE_NOOP("Amounts", "Disk free"),
                             QT_TRANSLATE_NOOP("Amounts", "Disk size"),
                             QT_TRANSLATE_NOOP("Amounts", "Disk read"),
                             QT_TRANSLATE_NOOP("Amounts", "Disk write"),
                             QT_TRANSLATE_NOOP("Amounts", "Download"),
                             QT_TRANSLATE_NOOP("Amounts", "Upload"),
                             QT_TRANSLATE_NOOP("Amounts", "Battery"),
                             QT_TRANSLATE_NOOP("Amounts", "Battery health"),
                             QT_TRANSLATE_NOOP("Amounts", "Battery left"),
                             QT_TRANSLATE_NOOP("Amounts", "Graphics"),
                             QT_TRANSLATE_NOOP("Amounts", "Graphics memory"),
                             QT_TRANSLATE_NOOP("Amounts", "Processor temperature"),
                             QT_TRANSLATE_NOOP("Amounts", "Graphics temperature"),
                             QT_TRANSLATE_NOOP("Amounts", "Fan"),
                             QT_TRANSLATE_NOOP("Amounts", "Power"),
                             QT_TRANSLATE_NOOP("Amounts", "Energy impact")};
static_assert(kTitles.size() == enumTexts(Base::Of<MetricID>{}).size());

constexpr std::array kBytes{
    QT_TRANSLATE_NOOP("Amounts", "%1 B"),  QT_TRANSLATE_NOOP("Amounts", "%1 kB"),
    QT_TRANSLATE_NOOP("Amounts", "%1 MB"), QT_TRANSLATE_NOOP("Amounts", "%1 GB"),
    QT_TRANSLATE_NOOP("Amounts", "%1 TB"), QT_TRANSLATE_NOOP("Amounts", "%1 PB")};

constexpr double kStep = 1000;
constexpr std::size_t kGiga = 3;

// In which of them it has one to three digits before the point.
std::size_t unitFor(double bytes)
{
    std::size_t unit = 0;
    while (std::abs(bytes) >= 999.5 && unit + 1 < kBytes.size()) {
        bytes /= kStep;
        ++unit;
    }
    return unit;
}

} // namespace

QString metricTitle(MetricID metric)
{
    return Amounts::tr(kTitles.at(static_cast<std::size_t>(metric)));
}

QString percentText(const Formatting &formatting, double percent, int decimals)
{
    return Amounts::tr("%1%", "percent").arg(formatting.decimal(percent, decimals));
}

QString bytesText(const Formatting &formatting, double bytes)
{
    const std::size_t unit = unitFor(bytes);
    const double amount = bytes / std::pow(kStep, static_cast<double>(unit));
    const bool isWhole = std::abs(amount - std::round(amount)) < 0.05;
    const bool isLarge = std::abs(amount) >= (unit >= kGiga ? 99.95 : 9.95);
    const bool hasTenths = unit > 1 && !isWhole && !isLarge;
    return Amounts::tr(kBytes.at(unit)).arg(formatting.decimal(amount, hasTenths ? 1 : 0));
}

QString rateText(const Formatting &formatting, double bytesPerSecond)
{
    const QString number = rateNumber(formatting, bytesPerSecond, bytesPerSecond);
    return Amounts::tr("%1/s", "12.1 MB a second")
        .arg(Amounts::tr(kBytes.at(unitFor(bytesPerSecond))).arg(number));
}

QString rateNumber(const Formatting &formatting, double bytesPerSecond, double beside)
{
    const std::size_t unit = unitFor(beside);
    const double amount = bytesPerSecond / std::pow(kStep, static_cast<double>(unit));
    const bool hasTenths = unit > 1 && std::abs(amount) < 99.95;
    return formatting.decimal(amount, hasTenths ? 1 : 0);
}

QString spanText(const Formatting &formatting, double seconds)
{
    constexpr double kMost = 1e12; // a number from elsewhere may fit no integer
    constexpr qint64 kDay = 1'440;
    const auto minutes = static_cast<qint64>(std::clamp(seconds, 0.0, kMost) / 60);
    if (minutes >= kDay) {
        return Amounts::tr("%1 d %2 h", "days and hours")
            .arg(formatting.number(minutes / kDay), formatting.number(minutes / 60 % 24));
    }
    if (minutes >= 60) {
        return Amounts::tr("%1 h %2 min")
            .arg(formatting.number(minutes / 60), formatting.number(minutes % 60));
    }
    return Amounts::tr("%1 min").arg(formatting.number(minutes));
}

QString amountText(const Formatting &formatting, double value, MetricUnit unit)
{
    switch (unit) {
    case MetricUnit::percent:
        return percentText(formatting, value, std::abs(value) < 9.95 ? 1 : 0);
    case MetricUnit::bytes:
        return bytesText(formatting, value);
    case MetricUnit::bytesPerSecond:
        return rateText(formatting, value);
    case MetricUnit::minutes:
        return spanText(formatting, 60 * value);
    case MetricUnit::celsius:
        return Amounts::tr("%1 °C").arg(formatting.decimal(value, 0));
    case MetricUnit::rpm:
        return Amounts::tr("%1 rpm", "turns a minute").arg(formatting.decimal(value, 0));
    case MetricUnit::watts:
        return Amounts::tr("%1 W", "watts").arg(formatting.decimal(value, 1));
    case MetricUnit::level:
    case MetricUnit::score:
        break;
    }
    return formatting.decimal(value, 1);
}

QString missingText(const Formatting &formatting, const MonitorCore::MetricReading &reading)
{
    switch (reading.state) {
    case MetricState::warmingUp:
        return Amounts::tr("Warming up");
    case MetricState::stale:
        return Amounts::tr("No reading since %1").arg(formatting.time(reading.timestamp));
    case MetricState::unsupported:
        return Amounts::tr("Not on this computer");
    case MetricState::permissionRequired:
        return Amounts::tr("Not permitted");
    case MetricState::available:
        break;
    }
    return reading.value ? QString{} : Amounts::tr("Warming up");
}

} // namespace Velvetnook
