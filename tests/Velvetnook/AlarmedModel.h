// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "RunningModel.h"
#include "Velvetnook/Application/Alarms.h"

#include <QSignalSpy>

#include <string>
#include <vector>

// A running model with its alarms, and what they wanted shown.
class AlarmedModel : public RunningModel
{
public:
    explicit AlarmedModel(const Prepare &prepare = {}) : RunningModel{prepare} { start(); }

    // As when the program starts: the alarms begin anew.
    void start()
    {
        m_alarms.emplace(model());
        QObject::connect(&*m_alarms, &Velvetnook::Alarms::notificationWanted, &model(),
                         [this](const Velvetnook::NotificationRequest &request) {
                             shown.push_back(formatting().time(model().now()).toStdString() +
                                             " " + request.id.toStdString());
                             requests.push_back(request);
                         });
        rest();
    }

    Velvetnook::Alarms &alarms() { return *m_alarms; }

    // Until the alarms have nothing more to do now.
    void rest()
    {
        for (int round = 0; round < 4; ++round) {
            settle();
        }
    }
    void go(Base::Seconds seconds)
    {
        pass(seconds);
        rest();
    }
    // Minute by minute.
    void live(int minutes)
    {
        for (int minute = 0; minute < minutes; ++minute) {
            go(Base::Seconds{60});
        }
    }
    // Another time on the clock, or another zone: what the system tells the clock.
    void setClock(Base::Seconds step)
    {
        pass(step);
        emit model().clock().wallClockChanged();
        model().clock().reschedule();
        rest();
    }
    std::vector<std::string> taken() { return std::exchange(shown, {}); }

    std::vector<std::string> shown{}; // the local time and the id
    std::vector<Velvetnook::NotificationRequest> requests{};

private:
    std::optional<Velvetnook::Alarms> m_alarms;
};

inline constexpr Base::Seconds kMinute{60};
inline constexpr Base::Seconds kHour{3600};
