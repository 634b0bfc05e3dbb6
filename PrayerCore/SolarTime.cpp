// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "PrayerCore/SolarTime.h"

#include "PrayerCore/JulianDate.h"

#include <limits>

namespace PrayerCore
{

namespace
{

// The Sun's centre when its upper edge is seen on the horizon: refraction and semi-diameter.
constexpr Angle kSunriseAltitude{-50.0 / 60};
constexpr double kSineOfSunriseAltitude = -0.014543897651582656;

// What the Earth turns in a day of universal time, in degrees.
constexpr double kTurnInADay = 360.985647;

ThreePoints throughAngles(Angle previous, Angle angle, Angle next)
{
    return {angle.degrees, (angle - previous).unwound().degrees,
            (next - angle).unwound().degrees};
}

ThreePoints throughValues(Angle previous, Angle value, Angle next)
{
    return {value.degrees, (value - previous).degrees, (next - value).degrees};
}

double approximateTransit(const SolarCoordinates &solar, const Coordinates &place)
{
    const Angle west{-place.longitude};
    const Angle turn = solar.rightAscension + west - solar.apparentSiderealTime;
    return normalisedToScale(turn.degrees / 360, 1);
}

} // namespace

std::optional<Observer> observerAt(const Coordinates &coordinates)
{
    if (!isOnGlobe(coordinates)) {
        return std::nullopt;
    }
    const Angle latitude{coordinates.latitude};
    return Observer{.coordinates = coordinates,
                    .sineOfLatitude = sine(latitude),
                    .cosineOfLatitude = cosine(latitude)};
}

std::optional<SolarTime> SolarTime::make(std::chrono::year_month_day date,
                                         const Coordinates &coordinates)
{
    const std::optional<Observer> observer = observerAt(coordinates);
    if (!observer || !isInCalendar(date)) {
        return std::nullopt;
    }
    const double julianDay = julianDate(componentsOf(date));
    return SolarTime{date, *observer, solarCoordinates(julianDay - 1),
                     solarCoordinates(julianDay), solarCoordinates(julianDay + 1)};
}

SolarTime::SolarTime(std::chrono::sys_days date, const Observer &observer,
                     const SolarCoordinates &previous, const SolarCoordinates &solar,
                     const SolarCoordinates &next)
    : m_date(date), m_observer(observer), m_previous(previous), m_solar(solar), m_next(next),
      m_rightAscension(
          throughAngles(previous.rightAscension, solar.rightAscension, next.rightAscension)),
      m_declination(throughValues(previous.declination, solar.declination, next.declination)),
      m_sineOfDeclination(sine(solar.declination)),
      m_cosineOfDeclination(cosine(solar.declination)),
      m_approxTransit(approximateTransit(solar, observer.coordinates)),
      m_transit(correctedTransit())
{
    const double reach = reachOf(kSineOfSunriseAltitude);
    const double rise = m_approxTransit - reach;
    const double set = m_approxTransit + reach;
    const Sky skyAtRise = skyAt(rise);
    const Sky skyAtSet = skyAt(set);
    m_sunrise = corrected(rise, skyAtRise, kSunriseAltitude);
    m_sunset = corrected(set, skyAtSet, kSunriseAltitude);
}

double SolarTime::timeForAltitude(Angle altitude, Side side) const
{
    return timesForAltitudes(std::array{Crossing{altitude, side}}).front();
}

double SolarTime::timeForShadowLength(double shadowLength) const
{
    return timeForAltitude(altitudeForShadowLength(shadowLength), Side::afterTransit);
}

Angle SolarTime::altitudeForShadowLength(double shadowLength) const
{
    const Angle fromZenith{
        std::abs(m_observer.coordinates.latitude - m_solar.declination.degrees)};
    const double inverse = shadowLength + tangent(fromZenith);
    return Angle::fromRadians(std::atan(1 / inverse));
}

double SolarTime::correctedTransit() const
{
    const Angle west{-m_observer.coordinates.longitude};
    const Angle rightAscension = Angle{m_rightAscension.at(m_approxTransit)}.unwound();
    const Angle hourAngle =
        closestAngle(siderealTimeAt(m_approxTransit) - west - rightAscension);
    return (m_approxTransit + hourAngle.degrees / -360) * 24;
}

double SolarTime::reachOf(double sineOfAltitude) const
{
    const double cosineOfReach =
        (sineOfAltitude - m_observer.sineOfLatitude * m_sineOfDeclination) /
        (m_observer.cosineOfLatitude * m_cosineOfDeclination);
    const bool isReached = std::abs(cosineOfReach) <= 1;
    return isReached ? Angle::fromRadians(std::acos(cosineOfReach)).degrees / 360
                     : std::numeric_limits<double>::quiet_NaN();
}

SolarTime::Sky SolarTime::skyAt(double dayFraction) const
{
    const Angle west{-m_observer.coordinates.longitude};
    const Angle rightAscension = Angle{m_rightAscension.at(dayFraction)}.unwound();
    const Angle declination{m_declination.at(dayFraction)};
    const Angle hourAngle = siderealTimeAt(dayFraction) - west - rightAscension;
    return {.sineOfDeclination = sine(declination),
            .cosineOfDeclination = cosine(declination),
            .sineOfHourAngle = sine(hourAngle),
            .cosineOfHourAngle = cosine(hourAngle)};
}

double SolarTime::corrected(double dayFraction, const Sky &sky, Angle altitude) const
{
    const Angle reached = Angle::fromRadians(std::asin(
        m_observer.sineOfLatitude * sky.sineOfDeclination +
        m_observer.cosineOfLatitude * sky.cosineOfDeclination * sky.cosineOfHourAngle));
    const double correction =
        (reached - altitude).degrees /
        (360 * sky.cosineOfDeclination * m_observer.cosineOfLatitude * sky.sineOfHourAngle);
    return (dayFraction + correction) * 24;
}

Angle SolarTime::siderealTimeAt(double dayFraction) const
{
    return Angle{m_solar.apparentSiderealTime.degrees + kTurnInADay * dayFraction}.unwound();
}

} // namespace PrayerCore
