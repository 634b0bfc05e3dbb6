// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Velvetnook/Application/Alarms/PrayerAlarm.h"

#include "Base/EnumText.h"
#include "Velvetnook/Application/ApplicationModel.h"
#include "Velvetnook/Application/Formatting.h"

#include <algorithm>

namespace Velvetnook
{

namespace
{

constexpr Base::Seconds kDay{86'400};
// A clock that is set back by more was wrong before, and what came then counts for nothing.
constexpr Base::Seconds kSmallStep{3600};

} // namespace

PrayerAlarm::PrayerAlarm(ApplicationModel &model, QObject *parent)
    : QObject{parent}, m_model{model}, m_watch{model},
      m_isOn{model.isOn("prayer.notifications")}, m_since{model.now()}
{
    connect(&model, &ApplicationModel::stateChanged, this, &PrayerAlarm::followSettings);
    connect(&m_watch, &PrayerWatch::inputsChanged, this, [this] { m_since = m_model.now(); });
    connect(&model.clock(), &DueClock::wallClockChanged, this, &PrayerAlarm::followClock);
    model.clock().add(
        this,
        [this](Base::Instant) -> std::optional<Base::Instant> {
            const auto next = m_isOn ? m_watch.nextPrayer(m_since) : std::nullopt;
            return next ? std::optional{next->at} : std::nullopt;
        },
        [this](Base::Instant now) { ring(now); });
}

void PrayerAlarm::followSettings()
{
    const bool isOn = m_model.isOn("prayer.notifications");
    if (isOn && !m_isOn) {
        m_since = m_model.now();
    }
    m_isOn = isOn;
}

void PrayerAlarm::followClock()
{
    const Base::Instant now = m_model.now();
    if (m_since <= now) {
        return;
    }
    m_since = now;
    if (m_told && m_told->at - now > kSmallStep) {
        m_told.reset();
    }
}

void PrayerAlarm::ring(Base::Instant now)
{
    std::optional<KestCore::NextPrayer> last;
    for (auto next = m_watch.next(std::max(m_since, now - kDay)); next && next->at <= now;
         next = m_watch.next(next->at)) {
        last = next;
    }
    m_since = now;
    if (last && last->prayer != PrayerCore::Prayer::sunrise && last != m_told) {
        m_told = last;
        emit notificationWanted(request(*last));
    }
}

NotificationRequest PrayerAlarm::request(const KestCore::NextPrayer &prayer) const
{
    const Formatting formatting{m_model};
    const auto &inputs = m_watch.inputs();
    const QString time =
        inputs ? formatting.timeIn(inputs->calendar, prayer.at) : formatting.time(prayer.at);
    const std::string_view id = Base::textOf(prayer.prayer);
    return {.id = QStringLiteral("prayer-%1")
                      .arg(QLatin1String{id.data(), static_cast<int>(id.size())}),
            .title = tr("%1 · %2").arg(prayerName(prayer.prayer), time),
            .body = tr("Calculated prayer time. Check your local timetable."),
            .actions = {{.key = QStringLiteral("open"), .label = tr("Prayer times")}},
            .withSound = m_model.state().devotional.preferences.soundEnabled &&
                         m_model.isOn("prayer.sound")};
}

} // namespace Velvetnook
