// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "KestCore/Prayer/PrayerCalculator.h"

#include <QObject>
#include <QString>

#include <optional>

namespace Velvetnook
{

class ApplicationModel;

inline constexpr Base::Seconds kPrayerNowTime{600}; // so long a prayer counts as now

// "Fajr", in the language of the interface.
QString prayerName(PrayerCore::Prayer prayer);

// What was chosen for the tool, of all settings.
KestCore::Settings prayerSettings(const KestCore::Settings &all);

// The first prayer after `after`; sunrise is none.
std::optional<KestCore::NextPrayer> nextPrayerOf(const KestCore::PrayerInputs &place,
                                                 Base::Instant after);

// The prayer times of the place in the settings, and word of when what they say changes. Works
// nothing out until it is asked.
class PrayerWatch : public QObject
{
    Q_OBJECT

public:
    explicit PrayerWatch(ApplicationModel &model, QObject *parent = nullptr);

    // Fails as prayerInputs does.
    const Base::Result<KestCore::PrayerInputs> &inputs() const { return m_inputs; }
    // Whether nothing at all was said of a place yet.
    bool hasNoPlace() const;

    // The first time after `after`, sunrise included.
    std::optional<KestCore::NextPrayer> next(Base::Instant after) const;
    // The same without sunrise, which is no prayer.
    std::optional<KestCore::NextPrayer> nextPrayer(Base::Instant after) const;
    // The last prayer (not sunrise) of the ten minutes before `now`.
    std::optional<KestCore::NextPrayer> now(Base::Instant now) const;

signals:
    // Other places or rules were chosen.
    void inputsChanged();
    // A time has come, the ten minutes after it are over, or another day has begun there.
    void timeCame();

private:
    // An answer holds until its time has come.
    struct Known {
        Base::Instant since{};
        std::optional<KestCore::NextPrayer> next{};
    };

    static bool isKnown(const std::optional<Known> &known, Base::Instant after);
    void followSettings();
    void startFrom(Base::Instant now);
    std::optional<Base::Instant> nextBoundary() const;

    ApplicationModel &m_model;
    KestCore::Settings m_settings{}; // those of the tool
    Base::Result<KestCore::PrayerInputs> m_inputs;
    mutable std::optional<Known> m_next{};
    mutable std::optional<Known> m_nextPrayer{};
    Base::Instant m_seen{}; // when the boundaries were told last
    mutable std::optional<std::optional<Base::Instant>> m_boundary{}; // the next, once known
};

} // namespace Velvetnook
