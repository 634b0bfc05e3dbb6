// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Velvetnook/Application/PrayerWatch.h"

#include "Velvetnook/Application/ApplicationModel.h"

#include <QCoreApplication>

#include <algorithm>
#include <array>

namespace Velvetnook
{

namespace
{

using KestCore::NextPrayer;
using KestCore::PrayerCalculator;

} // namespace

KestCore::Settings prayerSettings(const KestCore::Settings &all)
{
    return {all.lower_bound("prayer."), all.lower_bound("prayer/")};
}

// Nothing found (a polar day) is looked for again each time.
bool PrayerWatch::isKnown(const std::optional<Known> &known, Base::Instant after)
{
    return known && known->next && after >= known->since && after < known->next->at;
}

std::optional<NextPrayer> nextPrayerOf(const KestCore::PrayerInputs &place, Base::Instant after)
{
    auto found = PrayerCalculator::next(place, after);
    if (found && found->prayer == PrayerCore::Prayer::sunrise) {
        found = PrayerCalculator::next(place, found->at);
    }
    return found;
}

QString prayerName(PrayerCore::Prayer prayer)
{
    static constexpr std::array kNames{
        QT_TRANSLATE_NOOP("Prayer", "Fajr"),    QT_TRANSLATE_NOOP("Prayer", "Sunrise"),
        QT_TRANSLATE_NOOP("Prayer", "Dhuhr"),   QT_TRANSLATE_NOOP("Prayer", "Asr"),
        QT_TRANSLATE_NOOP("Prayer", "Maghrib"), QT_TRANSLATE_NOOP("Prayer", "Isha")};
    return QCoreApplication::translate("Prayer", kNames.at(static_cast<std::size_t>(prayer)));
}

PrayerWatch::PrayerWatch(ApplicationModel &model, QObject *parent)
    : QObject{parent}, m_model{model}, m_settings{prayerSettings(model.state().settings)},
      m_inputs{KestCore::prayerInputs(m_settings)}, m_seen{model.now()}
{
    connect(&model, &ApplicationModel::stateChanged, this, &PrayerWatch::followSettings);
    connect(&model.clock(), &DueClock::wallClockChanged, this, [this] {
        startFrom(m_model.now());
        emit timeCame();
    });
    // A place without times today may have them tomorrow.
    connect(&model, &ApplicationModel::calendarChanged, this, [this] {
        m_boundary.reset();
        emit timeCame();
    });
    model.clock().add(
        this,
        [this](Base::Instant) {
            if (!m_boundary) {
                m_boundary = nextBoundary();
            }
            return *m_boundary;
        },
        [this](Base::Instant now) {
            m_seen = now;
            m_boundary.reset();
            emit timeCame();
        });
}

void PrayerWatch::startFrom(Base::Instant now)
{
    m_next.reset();
    m_nextPrayer.reset();
    m_boundary.reset();
    m_seen = now;
}

void PrayerWatch::followSettings()
{
    KestCore::Settings settings = prayerSettings(m_model.state().settings);
    if (settings == m_settings) {
        return;
    }
    m_settings = std::move(settings);
    m_inputs = KestCore::prayerInputs(m_settings);
    startFrom(m_model.now());
    emit inputsChanged();
}

bool PrayerWatch::hasNoPlace() const
{
    return !m_settings.contains("prayer.latitude") && !m_settings.contains("prayer.longitude");
}

std::optional<NextPrayer> PrayerWatch::next(Base::Instant after) const
{
    if (!m_inputs) {
        return std::nullopt;
    }
    if (!m_next || !isKnown(m_next, after)) {
        m_next = {.since = after, .next = PrayerCalculator::next(*m_inputs, after)};
    }
    return m_next->next;
}

std::optional<NextPrayer> PrayerWatch::nextPrayer(Base::Instant after) const
{
    if (!m_inputs || isKnown(m_nextPrayer, after)) {
        return m_nextPrayer ? m_nextPrayer->next : std::nullopt;
    }
    const auto found = nextPrayerOf(*m_inputs, after);
    m_nextPrayer = {.since = after, .next = found};
    return found;
}

std::optional<NextPrayer> PrayerWatch::now(Base::Instant now) const
{
    if (!m_inputs) {
        return std::nullopt;
    }
    const auto last = PrayerCalculator::next(*m_inputs, now - kPrayerNowTime);
    const bool isNow = last && last->at <= now && last->prayer != PrayerCore::Prayer::sunrise;
    return isNow ? last : std::nullopt;
}

std::optional<Base::Instant> PrayerWatch::nextBoundary() const
{
    const auto coming = next(m_seen);
    const auto current = now(m_seen);
    std::optional<Base::Instant> boundary;
    if (current) {
        boundary = current->at + kPrayerNowTime;
    }
    if (coming) {
        boundary = std::min(boundary.value_or(coming->at), coming->at);
    }
    // The day of the place ends at its own midnight, which may be another than the user's.
    if (m_inputs) {
        const Base::Instant midnight = m_inputs->calendar.nextDateChange(m_seen);
        boundary = std::min(boundary.value_or(midnight), midnight);
    }
    return boundary;
}

} // namespace Velvetnook
