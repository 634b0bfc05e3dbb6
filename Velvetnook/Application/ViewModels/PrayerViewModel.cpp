// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Velvetnook/Application/ViewModels/PrayerViewModel.h"

#include "PrayerCore/Qibla.h"
#include "Velvetnook/Application/ApplicationModel.h"
#include "Velvetnook/Application/EngineText.h"
#include "Velvetnook/Application/Formatting.h"
#include "Velvetnook/Application/PrayerTable.h"

#include <QStringList>
#include <QVariantMap>

#include <algorithm>
#include <cmath>

namespace Velvetnook
{

namespace
{

using KestCore::PrayerCalculator;
using PrayerCore::Prayer;

} // namespace

PrayerViewModel::PrayerViewModel(ApplicationModel &model, const Formatting &formatting,
                                 QObject *parent)
    : QObject{parent}, m_model{model}, m_formatting{formatting}, m_watch{model}
{
    followFocus();
    const auto follow = [this] { refresh(); };
    connect(&m_watch, &PrayerWatch::timeCame, this, follow);
    connect(&m_watch, &PrayerWatch::inputsChanged, this, follow);
    connect(&model, &ApplicationModel::choicesChanged, this, follow);
    connect(&model, &ApplicationModel::recordsChanged, this, follow);
    connect(&model, &ApplicationModel::companionChanged, this, &PrayerViewModel::focusChanged);
    connect(&model, &ApplicationModel::calendarChanged, this, follow);
    connect(&formatting, &Formatting::wordsChanged, this, follow);
    // Counted from what is shown: a tick that was overtaken by another event still comes.
    model.clock().add(
        this,
        [this](Base::Instant) { return m_watched ? nextTick(moment().now) : std::nullopt; },
        [this](Base::Instant) { tick(); });
}

void PrayerViewModel::setWatched(bool watched)
{
    if (m_watched != watched) {
        m_watched = watched;
        emit watchedChanged();
        refresh();
        m_model.clock().reschedule();
    }
}

void PrayerViewModel::refresh()
{
    m_moment.reset();
    followFocus();
    emit changed();
    emit ticked();
    emit arcChanged();
    emit focusChanged();
    if (m_page != u"day") {
        emit pageChanged();
    }
}

// Of a minute, or of a second in the last one: the sun goes on and the countdown down.
void PrayerViewModel::tick()
{
    m_moment.reset();
    const auto coming = next();
    emit ticked();
    if (!coming || (coming->at - m_model.now()).count() >= 60) {
        emit arcChanged();
    }
}

std::optional<Base::Instant> PrayerViewModel::nextTick(Base::Instant shown) const
{
    const auto coming = m_watch.next(shown);
    if (!coming) {
        return std::nullopt; // tomorrow asks again
    }
    // The instant at which the number that is rounded up becomes the next lower one.
    const double left = (coming->at - shown).count();
    const double unit = left > 60 ? 60 : 1;
    const double steps = std::ceil(left / unit) - 1;
    return coming->at - Base::Seconds{std::max(steps, 0.0) * unit};
}

const PrayerViewModel::Moment &PrayerViewModel::moment() const
{
    const Base::Instant now = m_model.now();
    const bool isStale = m_moment && !m_watched && now != m_moment->now;
    if (m_moment && !isStale) {
        return *m_moment;
    }
    m_moment = Moment{.now = now};
    if (const auto &inputs = m_watch.inputs()) {
        m_moment->day = PrayerCalculator::comingDays(*inputs, now, 1).front();
        m_moment->next = m_watch.next(now);
        if (m_moment->day.times) {
            m_moment->path = sunPathOf(*m_moment->day.times, now);
        }
    }
    return *m_moment;
}

QString PrayerViewModel::message() const
{
    const auto &inputs = m_watch.inputs();
    if (inputs) {
        return hasTimes() ? QString{}
                          : tr("There are no times to calculate for this date here: the Sun "
                               "does not rise or set as usual, or the place skipped the date. "
                               "Follow your local authority.");
    }
    return m_watch.hasNoPlace()
               ? tr("Add a location to see your next prayer. You can set it manually.")
               : engineText(inputs.error().message);
}

QString PrayerViewModel::note() const
{
    return tr("Calculated prayer time. Check your local timetable.");
}

QString PrayerViewModel::islamicDate() const
{
    const auto &inputs = m_watch.inputs();
    return inputs ? PrayerTable{m_model, m_formatting, *inputs}.islamicText(today().date)
                  : QString{};
}

QString PrayerViewModel::timeText(Base::Instant at) const
{
    const auto &inputs = m_watch.inputs();
    return inputs ? m_formatting.timeIn(inputs->calendar, at) : m_formatting.time(at);
}

QString PrayerViewModel::nextLabel() const
{
    const auto coming = next();
    // Sunrise is no prayer: it ends the time of one.
    return coming && coming->prayer == Prayer::sunrise ? tr("Next") : tr("Next prayer");
}

QString PrayerViewModel::nextName() const
{
    const auto coming = next();
    return coming ? prayerName(coming->prayer) : QString{};
}

QString PrayerViewModel::nextTime() const
{
    const auto coming = next();
    return coming ? timeText(coming->at) : QString{};
}

QString PrayerViewModel::countdown() const
{
    const auto coming = next();
    if (!coming) {
        return {};
    }
    const auto left = m_formatting.countdown((coming->at - moment().now).count());
    return left.rest.isEmpty() ? left.first
                               : QStringLiteral("%1:%2").arg(left.first, left.rest);
}

QString PrayerViewModel::countdownUnit() const
{
    const auto coming = next();
    if (!coming) {
        return {};
    }
    switch (m_formatting.countdown((coming->at - moment().now).count()).unit) {
    case Countdown::Unit::seconds:
        return tr("s", "seconds until a prayer");
    case Countdown::Unit::minutes:
        return tr("min", "minutes until a prayer");
    case Countdown::Unit::hours:
        break;
    }
    return tr("h", "hours until a prayer");
}

QString PrayerViewModel::spoken() const
{
    const auto coming = next();
    return coming ? tr("%1 at %2, in %3")
                        .arg(nextName(), nextTime(),
                             m_formatting.remaining((coming->at - moment().now).count()))
                  : message();
}

QString PrayerViewModel::toneOf(Prayer prayer) const
{
    const Moment &shown = moment();
    const auto &times = shown.day.times;
    const auto at = times ? PrayerCore::instantOf(*times, prayer) : std::nullopt;
    if (!at) {
        return QStringLiteral("past");
    }
    if (shown.next && shown.next->at == *at && shown.next->prayer == prayer) {
        return QStringLiteral("next");
    }
    if (*at > shown.now) {
        return QStringLiteral("coming");
    }
    const bool isCurrent =
        PrayerCore::prayerInProgress(*times, shown.now) == prayer && prayer != Prayer::sunrise;
    return isCurrent ? QStringLiteral("current") : QStringLiteral("past");
}

QVariantList PrayerViewModel::cells() const
{
    const auto &times = today().times;
    QVariantList cells;
    for (const auto &[prayer, text] : enumTexts(Base::Of<Prayer>{})) {
        const auto at = times ? PrayerCore::instantOf(*times, prayer) : std::nullopt;
        const QString time = at ? timeText(*at) : QStringLiteral("—");
        cells.append(QVariantMap{{QStringLiteral("name"), prayerName(prayer)},
                                 {QStringLiteral("time"), time},
                                 {QStringLiteral("tone"), toneOf(prayer)},
                                 {QStringLiteral("spoken"),
                                  at ? QStringLiteral("%1 %2").arg(prayerName(prayer), time)
                                     : tr("%1, no time today").arg(prayerName(prayer))}});
    }
    return cells;
}

QVariantList PrayerViewModel::arcMarks() const
{
    const SunPath &shown = path();
    QVariantList marks;
    for (const auto &[prayer, text] : enumTexts(Base::Of<Prayer>{})) {
        const auto &at = shown.marks.at(static_cast<std::size_t>(prayer));
        const QString tone = toneOf(prayer);
        if (at) {
            marks.append(
                QVariantMap{{QStringLiteral("x"), at->x()},
                            {QStringLiteral("y"), at->y()},
                            {QStringLiteral("isPast"), tone == u"past" || tone == u"current"},
                            {QStringLiteral("isNext"), tone == u"next"}});
        }
    }
    return marks;
}

double PrayerViewModel::qibla() const
{
    const auto &inputs = m_watch.inputs();
    const auto found = inputs ? PrayerCore::qibla(inputs->coordinates) : std::nullopt;
    return found ? found->direction.degrees : 0;
}

QString PrayerViewModel::qiblaText() const
{
    return QStringLiteral("%1°").arg(m_formatting.decimal(qibla(), 1));
}

QString PrayerViewModel::qiblaSpoken() const
{
    return tr("Qibla %1 degrees from north").arg(m_formatting.decimal(qibla(), 1));
}

} // namespace Velvetnook
