// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Velvetnook/Application/SunPath.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace Velvetnook
{

namespace
{

using PrayerCore::Prayer;

constexpr double kHeight = 0.62; // of the sun at its highest over the horizon
constexpr Base::Seconds kBefore{51 * 60.0};
constexpr Base::Seconds kAfter{57 * 60.0};
constexpr double kHalfDay = 12 * 3600.0;
constexpr int kSteps = 60;

// A cosine whose zero is the horizon, one at the transit.
class Course
{
public:
    explicit Course(const PrayerCore::PrayerTimes &times)
        : m_start{times.fajr - kBefore}, m_length{times.isha + kAfter - m_start},
          m_transit{times.sunrise + (times.maghrib - times.sunrise) / 2},
          m_horizon{cosine(times.sunrise)}
    {
        const double deepest = std::min(rise(times.fajr), rise(times.isha));
        const double room = SunPath::kLowest - SunPath::kHorizon;
        if (-deepest * kHeight > room) {
            m_depth = room / (-deepest * kHeight);
        }
    }

    QPointF at(Base::Instant instant) const
    {
        const double rose = rise(instant);
        return {(instant - m_start) / m_length,
                SunPath::kHorizon - kHeight * (rose < 0 ? rose * m_depth : rose)};
    }

private:
    double cosine(Base::Instant instant) const
    {
        const double angle = (instant - m_transit).count() / kHalfDay;
        return std::cos(std::clamp(angle, -1.0, 1.0) * std::numbers::pi);
    }
    double rise(Base::Instant instant) const
    {
        return (cosine(instant) - m_horizon) / std::max(1 - m_horizon, 1e-6);
    }

    Base::Instant m_start;
    Base::Seconds m_length;
    Base::Instant m_transit;
    double m_horizon;
    double m_depth = 1; // what the night is flattened by, so that it stays in the picture
};

QList<QPointF> piece(const Course &course, Base::Instant from, Base::Instant to)
{
    QList<QPointF> points;
    if (from < to) {
        for (int step = 0; step <= kSteps; ++step) {
            points.append(course.at(from + (to - from) * step / kSteps));
        }
    }
    return points;
}

} // namespace

SunPath sunPathOf(const PrayerCore::PrayerTimes &times, Base::Instant now)
{
    const Course course{times};
    const Base::Instant turn = std::max(times.fajr, std::min(now, times.isha));
    SunPath path{.gone = piece(course, times.fajr, turn),
                 .coming = piece(course, turn, times.isha)};
    if (now >= times.fajr && now <= times.isha) {
        path.sun = course.at(now);
    }
    for (const auto &[prayer, text] : enumTexts(Base::Of<Prayer>{})) {
        if (const auto at = PrayerCore::instantOf(times, prayer)) {
            path.marks.at(static_cast<std::size_t>(prayer)) = course.at(*at);
        }
    }
    return path;
}

} // namespace Velvetnook
