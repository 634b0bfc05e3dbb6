// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Velvetnook/Application/LocalDay.h"

#include "Base/Text.h"
#include "KestCore/Prayer/PrayerCalculator.h"
#include "Velvetnook/Application/ApplicationModel.h"
#include "Velvetnook/Application/Formatting.h"

#include <QCoreApplication>
#include <QLocale>

namespace Velvetnook
{

namespace
{

int qtWeekday(const KestCore::LocalTime &local)
{
    return local.weekday == 0 ? 7 : local.weekday;
}

QString translated(const char *text)
{
    return QCoreApplication::translate("Velvetnook::LocalDay", text);
}

} // namespace

QString weekdayText(Base::Instant instant, const KestCore::Calendar &calendar,
                    const Formatting &formatting)
{
    return formatting.locale().standaloneDayName(qtWeekday(calendar.at(instant)));
}

QString weekdayLetter(Base::Instant instant, const KestCore::Calendar &calendar,
                      const Formatting &formatting)
{
    return formatting.locale().standaloneDayName(qtWeekday(calendar.at(instant)),
                                                 QLocale::NarrowFormat);
}

QString dayText(Base::Instant instant, const ApplicationModel &model,
                const Formatting &formatting)
{
    const auto &calendar = model.calendar();
    const std::int64_t age = calendar.dayNumber(model.now()) - calendar.dayNumber(instant);
    if (age == 0) {
        return translated(QT_TRANSLATE_NOOP("Velvetnook::LocalDay", "Today"));
    }
    if (age == 1) {
        return translated(QT_TRANSLATE_NOOP("Velvetnook::LocalDay", "Yesterday"));
    }
    const int year = calendar.at(instant).year;
    if (year == calendar.at(model.now()).year) {
        return formatting.date(instant);
    }
    return QStringLiteral("%1 %2").arg(formatting.date(instant),
                                       formatting.digits(QString::number(year)));
}

QString momentText(Base::Instant instant, const ApplicationModel &model,
                   const Formatting &formatting)
{
    const auto &calendar = model.calendar();
    if (calendar.dayNumber(instant) == calendar.dayNumber(model.now())) {
        return formatting.time(instant);
    }
    return translated(QT_TRANSLATE_NOOP("Velvetnook::LocalDay", "%1, %2"))
        .arg(formatting.date(instant), formatting.time(instant));
}

Base::Instant instantOf(std::int64_t day, int minute, const KestCore::Calendar &calendar,
                        Base::Instant near)
{
    const Base::Seconds local{static_cast<double>(day) * 86'400.0 + minute * 60.0};
    Base::Instant found{local - calendar.offsetAt(near).ahead};
    found = Base::Instant{local - calendar.offsetAt(found).ahead};
    return found;
}

std::optional<Base::Instant> endOfPause(const ApplicationModel &model)
{
    const auto until = model.state().devotional.pausedUntil;
    if (!until || Base::fromMilliseconds1970(*until) <= model.now()) {
        return std::nullopt;
    }
    return Base::fromMilliseconds1970(*until);
}

QString wordingOf(const Formatting &formatting)
{
    constexpr Base::Instant kAfternoon{Base::Seconds{50'000.0}};
    return formatting.date(kAfternoon) + formatting.time(kAfternoon);
}

QString islamicDateText(const ApplicationModel &model, const Formatting &formatting)
{
    const auto offset = Base::numberFrom<int>(model.setting("prayer.islamicDayOffset"));
    const std::int64_t day = model.calendar().dayNumber(model.now()) + offset.value_or(0);
    const std::chrono::sys_days date{std::chrono::days{day}};
    return formatting.islamicDate(KestCore::PrayerCalculator::islamicDate(date));
}

} // namespace Velvetnook
