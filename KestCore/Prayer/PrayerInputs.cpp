// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "KestCore/Prayer/PrayerInputs.h"

#include "Base/Text.h"

#include <algorithm>
#include <cmath>
#include <optional>
#include <utility>

namespace KestCore
{

namespace
{

using PrayerCore::CalculationMethod;
using PrayerCore::HighLatitudeRule;
using PrayerCore::Madhab;

KestError needsLocation()
{
    return KestError::unavailable(
        "Allow location access to calculate prayer times for where you are.");
}

std::string_view valueOf(const Settings &settings, const std::string &key)
{
    const auto found = settings.find(key);
    return found == settings.end() ? std::string_view{} : std::string_view{found->second};
}

std::optional<double> degrees(std::string_view text, double furthest)
{
    const auto value = Base::numberFrom<double>(text);
    return value && std::abs(*value) <= furthest ? value : std::nullopt;
}

// One that would move a prayer by more than a day cannot be meant.
std::int64_t adjustment(const Settings &settings, std::string_view prayer)
{
    constexpr std::int64_t kMinutesOfDay = 1440;
    const auto minutes = Base::numberFrom<std::int64_t>(
        valueOf(settings, "prayer.adjust." + std::string{prayer}));
    return minutes && *minutes >= -kMinutesOfDay && *minutes <= kMinutesOfDay ? *minutes : 0;
}

CalculationMethod methodOfCountry(std::string_view country)
{
    using enum CalculationMethod;
    constexpr std::pair<std::string_view, CalculationMethod> kRows[] = {
        {"GB", moonsightingCommittee},
        {"US", moonsightingCommittee},
        {"CA", moonsightingCommittee},
        {"SA", ummAlQura},
        {"AE", dubai},
        {"QA", qatar},
        {"KW", kuwait},
        {"EG", egyptian},
        {"PK", karachi},
        {"SG", singapore},
        {"MY", singapore},
        {"ID", singapore},
        {"TR", turkey},
    };
    std::string upper{country};
    std::ranges::transform(upper, upper.begin(), [](char c) {
        return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
    });
    const auto *row = std::ranges::find(kRows, upper, [](const auto &r) { return r.first; });
    return row == std::end(kRows) ? muslimWorldLeague : row->second;
}

std::optional<CalculationMethod> chosenMethod(const Settings &settings)
{
    const std::string_view name = valueOf(settings, "prayer.method");
    if (name.empty() || name == "automatic") {
        return methodOfCountry(valueOf(settings, "prayer.country"));
    }
    const auto method = Base::fromText<CalculationMethod>(name);
    return method == CalculationMethod::other ? std::nullopt : method;
}

PrayerCore::CalculationParameters parametersFor(const Settings &settings,
                                                CalculationMethod method, double latitude)
{
    auto parameters = PrayerCore::parametersOf(method);
    parameters.madhab =
        valueOf(settings, "prayer.asr") == "hanafi" ? Madhab::hanafi : Madhab::shafi;
    parameters.highLatitudeRule =
        Base::fromText<HighLatitudeRule>(valueOf(settings, "prayer.highLatitude"))
            .value_or(PrayerCore::recommendedHighLatitudeRule(latitude));
    auto &adjustments = parameters.adjustments;
    adjustments.fajr = adjustment(settings, "fajr");
    adjustments.dhuhr = adjustment(settings, "dhuhr");
    adjustments.asr = adjustment(settings, "asr");
    adjustments.maghrib = adjustment(settings, "maghrib");
    adjustments.isha = adjustment(settings, "isha");
    return parameters;
}

} // namespace

Result<PrayerInputs> prayerInputs(const Settings &settings)
{
    const auto latitude = degrees(valueOf(settings, "prayer.latitude"), 90);
    const auto longitude = degrees(valueOf(settings, "prayer.longitude"), 180);
    const auto method = chosenMethod(settings);
    const std::string_view timeZone = valueOf(settings, "prayer.timezone");
    auto calendar = Calendar::inZone(timeZone);
    if (!latitude || !longitude || !method || !calendar) {
        return std::unexpected(needsLocation());
    }
    return PrayerInputs{.coordinates = {.latitude = *latitude, .longitude = *longitude},
                        .timeZone = std::string{timeZone},
                        .calendar = *std::move(calendar),
                        .parameters = parametersFor(settings, *method, *latitude)};
}

} // namespace KestCore
