// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Velvetnook/Application/PrayerTable.h"

#include "Base/Text.h"
#include "Velvetnook/Application/ApplicationModel.h"
#include "Velvetnook/Application/Formatting.h"

#include <QDate>
#include <QVariantMap>

namespace Velvetnook
{

namespace
{

namespace chrono = std::chrono;
using KestCore::LocalDate;

QDate qtDate(LocalDate date)
{
    return {static_cast<int>(date.year()),
            static_cast<int>(static_cast<unsigned>(date.month())),
            static_cast<int>(static_cast<unsigned>(date.day()))};
}

} // namespace

PrayerTable::PrayerTable(const ApplicationModel &model, const Formatting &formatting,
                         const KestCore::PrayerInputs &inputs)
    : m_model{model}, m_formatting{formatting}, m_inputs{inputs}
{
}

QVariantList PrayerTable::week(LocalDate first) const { return rows(first, 7); }

QVariantList PrayerTable::month(LocalDate first) const
{
    const LocalDate begin{first.year() / first.month() / 1};
    const LocalDate last{first.year() / first.month() / chrono::last};
    return rows(begin, static_cast<int>(static_cast<unsigned>(last.day())));
}

QString PrayerTable::weekTitle(LocalDate first) const
{
    const LocalDate last{chrono::sys_days{first} + chrono::days{6}};
    const QLocale locale = m_formatting.locale();
    const QString from = locale.toString(qtDate(first), QStringLiteral("d MMMM"));
    const QString to = locale.toString(qtDate(last), QStringLiteral("d MMMM yyyy"));
    return m_formatting.digits(QStringLiteral("%1 – %2").arg(from, to));
}

QString PrayerTable::monthTitle(LocalDate first) const
{
    return m_formatting.digits(
        m_formatting.locale().toString(qtDate(first), QStringLiteral("MMMM yyyy")));
}

QString PrayerTable::islamicText(LocalDate date) const
{
    const auto offset = Base::numberFrom<int>(m_model.setting("prayer.islamicDayOffset"));
    const chrono::sys_days shifted = chrono::sys_days{date} + chrono::days{offset.value_or(0)};
    return m_formatting.islamicDate(KestCore::PrayerCalculator::islamicDate(shifted));
}

QVariantList PrayerTable::rows(LocalDate first, int count) const
{
    const LocalDate today = KestCore::PrayerCalculator::today(m_inputs, m_model.now());
    QVariantList rows;
    for (const KestCore::PrayerDay &day :
         KestCore::PrayerCalculator::days(m_inputs, first, count)) {
        rows.append(row(day, today));
    }
    return rows;
}

QVariantMap PrayerTable::row(const KestCore::PrayerDay &day, LocalDate today) const
{
    QVariantList times;
    for (const auto &[prayer, text] : enumTexts(Base::Of<PrayerCore::Prayer>{})) {
        const auto at = day.times ? PrayerCore::instantOf(*day.times, prayer) : std::nullopt;
        times.append(at ? m_formatting.timeIn(m_inputs.calendar, *at) : QStringLiteral("—"));
    }
    const QLocale locale = m_formatting.locale();
    const QString label = locale.toString(qtDate(day.date), QStringLiteral("ddd d"));
    return {{QStringLiteral("day"), m_formatting.digits(label)},
            {QStringLiteral("islamic"), islamicText(day.date).section(u' ', 0, -2)},
            {QStringLiteral("isToday"), day.date == today},
            {QStringLiteral("hasTimes"), day.times.has_value()},
            {QStringLiteral("times"), times}};
}

} // namespace Velvetnook
