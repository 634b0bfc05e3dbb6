// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "KestCore/Prayer/PrayerCalculator.h"
#include "Velvetnook/Application/NotificationRequest.h"
#include "Velvetnook/Application/PrayerWatch.h"

#include <QObject>

#include <optional>

namespace Velvetnook
{

class ApplicationModel;

// Tells that a prayer's time has come, where the user wants that. Of the times that were slept
// through only the prayer that is in progress is told, once.
class PrayerAlarm : public QObject
{
    Q_OBJECT

public:
    explicit PrayerAlarm(ApplicationModel &model, QObject *parent = nullptr);

signals:
    void notificationWanted(const Velvetnook::NotificationRequest &request);

private:
    void startFrom(Base::Instant now);
    void followSettings();
    void followClock();
    void ring(Base::Instant now);
    NotificationRequest request(const KestCore::NextPrayer &prayer) const;

    ApplicationModel &m_model;
    PrayerWatch m_watch;
    bool m_isOn = false;
    Base::Instant m_since{}; // what came until here was told, or is not to be
    std::optional<KestCore::NextPrayer> m_told{};
};

} // namespace Velvetnook
