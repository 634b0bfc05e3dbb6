// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "KestCore/Prayer/PrayerCalculator.h"
#include "KestCore/Tools/Units.h"
#include "Velvetnook/Application/ApplicationModel.h"
#include "Velvetnook/Application/Formatting.h"
#include "Velvetnook/Application/Palette/PaletteText.h"
#include "Velvetnook/Application/PrayerWatch.h"

#include <QDate>
#include <QLocale>

#include <algorithm>
#include <array>

// What the palette says of times and numbers.
namespace Velvetnook
{

namespace
{

constexpr std::array kPrayers{PrayerCore::Prayer::fajr,    PrayerCore::Prayer::sunrise,
                              PrayerCore::Prayer::dhuhr,   PrayerCore::Prayer::asr,
                              PrayerCore::Prayer::maghrib, PrayerCore::Prayer::isha};

// The units that people want to see beside the one that they asked for, the first the most.
constexpr std::array<std::array<const char *, 4>, 7> kWanted{{
    {"m", "ft", "km", "mi"},
    {"kg", "lb", "g", "oz"},
    {"°C", "°F", "K", ""},
    {"m²", "acre", "ft²", "km²"},
    {"L", "US gal", "mL", "UK gal"},
    {"km/h", "mph", "m/s", "kn"},
    {"MB", "MiB", "GB", "B"},
}};
constexpr std::size_t kOthers = 2;

} // namespace

std::vector<PaletteMoment> momentsOfToday(const ApplicationModel &model)
{
    const auto inputs = KestCore::prayerInputs(model.state().settings);
    if (!inputs) {
        return {};
    }
    std::vector<PaletteMoment> moments;
    const auto days = KestCore::PrayerCalculator::comingDays(*inputs, model.now(), 1);
    const auto times = days.empty() ? std::nullopt : days.front().times;
    if (!times) {
        return {};
    }
    for (const PrayerCore::Prayer prayer : kPrayers) {
        if (const auto at = PrayerCore::instantOf(*times, prayer)) {
            moments.push_back({.id = std::string{Base::textOf(prayer)},
                               .title = prayerName(prayer),
                               .at = *at});
        }
    }
    return moments;
}

QString PaletteText::nextPrayer() const
{
    const auto inputs = KestCore::prayerInputs(m_model.state().settings);
    if (!inputs) {
        return {};
    }
    const auto next = nextPrayerOf(*inputs, m_model.now());
    return next ? paletteTr(QT_TRANSLATE_NOOP("Palette", "%1 in %2"))
                      .arg(prayerName(next->prayer),
                           m_formatting.remaining((next->at - m_model.now()).count()))
                : QString{};
}

// The weekday in the last week, else the date.
QString PaletteText::day(double milliseconds) const
{
    constexpr double kDayMs = 24.0 * 60 * 60 * 1000;
    const double age = Base::milliseconds1970(m_model.now()) - milliseconds;
    const auto local = m_model.calendar().at(Base::fromMilliseconds1970(milliseconds));
    const QDate date{local.year, local.month, local.day};
    const bool isRecent = age >= 0 && age < 6 * kDayMs;
    return m_formatting.digits(m_formatting.locale().toString(
        date, isRecent ? QStringLiteral("ddd") : QStringLiteral("d MMM")));
}

std::vector<KestCore::UnitConversion> conversionsFor(const KestCore::UnitConversion &typed)
{
    std::vector<KestCore::UnitConversion> list{typed};
    for (const auto &category : kWanted) {
        const auto *first = KestCore::Units::find(category.front());
        if (first == nullptr || first->category != typed.category) {
            continue;
        }
        for (const char *unit : category) {
            const bool isNew = *unit != '\0' && unit != typed.from && unit != typed.to;
            if (isNew && list.size() <= kOthers) {
                list.push_back(typed);
                list.back().to = unit;
            }
        }
    }
    return list;
}

QString resultOf(const KestCore::UnitConversion &conversion, const Formatting &formatting)
{
    const auto number =
        KestCore::Units::resultText(conversion, formatting.locale().name().toStdString());
    return number ? formatting.digits(QString::fromStdString(*number)) + u' ' +
                        QString::fromStdString(conversion.to)
                  : QString{};
}

} // namespace Velvetnook
