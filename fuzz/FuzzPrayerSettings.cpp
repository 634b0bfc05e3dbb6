// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "KestCore/Prayer/PrayerCalculator.h"

#include <chrono>
#include <cstdlib>
#include <string>
#include <string_view>

namespace
{

using KestCore::PrayerCalculator;

// Lines of "key=value", the key without its "prayer.".
KestCore::Settings settingsFrom(std::string_view text)
{
    KestCore::Settings settings;
    while (!text.empty()) {
        const std::string_view line = text.substr(0, text.find('\n'));
        text.remove_prefix(std::min(text.size(), line.size() + 1));
        const auto equals = line.find('=');
        if (equals != std::string_view::npos) {
            settings["prayer." + std::string{line.substr(0, equals)}] = line.substr(equals + 1);
        }
    }
    return settings;
}

std::uint32_t checksum(const std::uint8_t *data, std::size_t size)
{
    std::uint32_t sum = 2'166'136'261U;
    for (std::size_t at = 0; at < size; ++at) {
        sum = (sum ^ data[at]) * 16'777'619U;
    }
    return sum;
}

} // namespace

// Whatever the settings say, a date from 1900 to 2200 gets finite times near to it or none.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const auto inputs =
        KestCore::prayerInputs(settingsFrom({reinterpret_cast<const char *>(data), size}));
    if (!inputs) {
        return 0;
    }
    // Of the 110,000 dates, one that depends on the input.
    const std::chrono::sys_days first{
        std::chrono::days{-25'567 + static_cast<int>(checksum(data, size) % 109'938)}};
    for (const auto &day : PrayerCalculator::days(*inputs, first, 2)) {
        if (!day.times) {
            continue;
        }
        const Base::Instant noon = Base::fromSeconds1970(
            static_cast<double>(std::chrono::sys_days{day.date}.time_since_epoch().count()) *
                86'400.0 +
            43'200.0);
        for (const auto &[prayer, text] : enumTexts(Base::Of<PrayerCore::Prayer>{})) {
            const auto at = PrayerCore::instantOf(*day.times, prayer);
            if (at && !(std::abs((*at - noon).count()) < 4 * 86'400.0)) {
                std::abort();
            }
        }
    }
    return 0;
}
