// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "MonitorCore/CounterRate.h"
#include "MonitorCore/MonitorPreferences.h"
#include "MonitorCore/MonitorSnapshot.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

using namespace MonitorCore;

namespace
{

constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr double kNan = std::numeric_limits<double>::quiet_NaN();

TEST(CounterRate, GivesARateOnlyForTrustworthyNeighbours)
{
    struct Case {
        const char *name;
        std::uint64_t counter;
        double time;
        std::optional<double> rate;
    };
    for (const auto &[name, counter, time, rate] : {
             Case{"two seconds later", 3000, 12, 1000.0},
             Case{"no traffic", 1000, 12, 0.0},
             Case{"went backwards", 999, 12, std::nullopt},
             Case{"gap of 90 seconds", 1900, 100, 10.0},
             Case{"longer gap", 1900, 100.001, std::nullopt},
             Case{"same time", 2000, 10, std::nullopt},
             Case{"clock stepped back", 2000, 9, std::nullopt},
             Case{"no time", 2000, kNan, std::nullopt},
             Case{"endless time", 2000, kInfinity, std::nullopt},
         }) {
        SCOPED_TRACE(name);
        CounterRate counterRate;
        EXPECT_EQ(counterRate.update(1000, 10), std::nullopt);
        EXPECT_EQ(counterRate.update(counter, time), rate);
        // Whatever it said, the next one is measured from here.
        const auto next = counterRate.update(counter + 500, time + 2);
        EXPECT_EQ(next, std::isfinite(time) ? std::optional{250.0} : std::nullopt);
    }
}

TEST(CounterRate, IsExactForTheLargestCounters)
{
    CounterRate counterRate;
    counterRate.update(std::numeric_limits<std::uint64_t>::max() - 10, 1);
    EXPECT_EQ(counterRate.update(std::numeric_limits<std::uint64_t>::max(), 2), 10.0);
}

TEST(InterfaceRates, AddUpWhatIsPhysicalAndMeasured)
{
    InterfaceRates rates;
    EXPECT_EQ(rates.update({{"eth0", 100, 10, true}, {"lo", 5, 5, false}}, 10), NetworkRates{});
    EXPECT_EQ(rates.update({{"eth0", 300, 10, true}, {"wlan0", 7'000, 9, true}}, 12),
              (NetworkRates{.download = 100, .upload = 0}));
    // A reset of one direction leaves the other alone.
    EXPECT_EQ(rates.update({{"eth0", 0, 30, true}, {"wlan0", 7'100, 9, true}}, 14),
              (NetworkRates{.download = 50, .upload = 10}));
    EXPECT_EQ(rates.update({{"lo", 50'000, 50'000, false}}, 16), NetworkRates{});
    EXPECT_FALSE(rates.rates.contains("lo"));
}

TEST(InterfaceRates, RememberAnAbsentInterfaceFor90Seconds)
{
    InterfaceRates rates;
    rates.update({{"usb0", 0, 0, true}}, 0);
    rates.update({}, 90);
    EXPECT_TRUE(rates.rates.contains("usb0"));
    EXPECT_EQ(rates.update({{"usb0", 900, 0, true}}, 90).download, 10.0);
    rates.update({}, kNan);
    EXPECT_TRUE(rates.rates.contains("usb0"));
    rates.update({}, 180.5);
    EXPECT_TRUE(rates.rates.empty());
}

TEST(MonitorPreferences, AreMendedWhereTheyMakeNoSense)
{
    struct Case {
        const char *name;
        void (*change)(MonitorPreferences &);
        bool (*isMended)(const MonitorPreferences &);
    };
    using P = MonitorPreferences;
    for (const auto &[name, change, isMended] : {
             Case{"14 days", [](P &p) { p.retentionDays = 14; },
                  [](const P &p) { return p.retentionDays == 30; }},
             Case{"7 days", [](P &p) { p.retentionDays = 7; },
                  [](const P &p) { return p.retentionDays == 7; }},
             Case{"1 day", [](P &p) { p.retentionDays = 1; },
                  [](const P &p) { return p.retentionDays == 1; }},
             Case{"low threshold", [](P &p) { p.cpuThreshold = 5; },
                  [](const P &p) { return p.cpuThreshold == 10; }},
             Case{"high threshold", [](P &p) { p.cpuThreshold = 25'000; },
                  [](const P &p) { return p.cpuThreshold == 10'000; }},
             Case{"endless threshold", [](P &p) { p.cpuThreshold = kInfinity; },
                  [](const P &p) { return p.cpuThreshold == 80; }},
             Case{"short duration", [](P &p) { p.cpuDuration = 30; },
                  [](const P &p) { return p.cpuDuration == 60; }},
             Case{"long duration", [](P &p) { p.cpuDuration = 7'200; },
                  [](const P &p) { return p.cpuDuration == 3'600; }},
             Case{"no duration", [](P &p) { p.cpuDuration = kNan; },
                  [](const P &p) { return p.cpuDuration == 600; }},
             Case{"small growth", [](P &p) { p.memoryGrowthBytes = 1'000; },
                  [](const P &p) { return p.memoryGrowthBytes == 268'435'456; }},
             Case{"large growth", [](P &p) { p.memoryGrowthBytes = 1e15; },
                  [](const P &p) { return p.memoryGrowthBytes == 1e15; }},
             Case{"no growth", [](P &p) { p.memoryGrowthBytes = kNan; },
                  [](const P &p) { return p.memoryGrowthBytes == 1'073'741'824; }},
             Case{"negative rate", [](P &p) { p.diskThreshold = -5; },
                  [](const P &p) { return p.diskThreshold == 0; }},
             Case{"endless rate", [](P &p) { p.networkThreshold = kInfinity; },
                  [](const P &p) { return p.networkThreshold == 0; }},
             Case{
                 "words", [](P &p) { p.pinMetric = "gpu", p.menuStyle = "bars"; },
                 [](const P &p) { return p.pinMetric == "combined" && p.menuStyle == "icon"; }},
             Case{"known words", [](P &p) { p.pinMetric = "battery", p.menuStyle = "stacked"; },
                  [](const P &p) {
                      return p.pinMetric == "battery" && p.menuStyle == "stacked";
                  }},
             Case{"menu metric stays", [](P &p) { p.menuMetric = "gpu"; },
                  [](const P &p) { return p.menuMetric == "gpu"; }},
         }) {
        MonitorPreferences preferences;
        change(preferences);
        EXPECT_TRUE(isMended(normalised(preferences))) << name;
    }
    EXPECT_EQ(normalised({}), MonitorPreferences{});
}

TEST(MonitorPreferences, NeedEveryKeyInTheirDocument)
{
    const std::string document =
        R"({"historyEnabled":true,"historyPaused":false,"retentionDays":14,)"
        R"("alertsEnabled":true,"cpuThreshold":5,"cpuDuration":600,)"
        R"("memoryGrowthBytes":1073741824,"diskThreshold":0,"networkThreshold":0,)"
        R"("excludedApps":["a","b"],"pinMetric":"combined","menuStyle":"dial",)"
        R"("menuMetric":"cpu"})";
    const auto preferences = json::decode<MonitorPreferences>(std::string_view{document});
    ASSERT_TRUE(preferences) << preferences.error().message;
    EXPECT_EQ(preferences->menuStyle, "dial"); // mending is a step of its own
    EXPECT_EQ(json::encode(*preferences), document);
    constexpr std::size_t kKeys = 13;
    std::size_t keys = 0;
    std::apply(
        [&](const auto &...field) {
            for (const std::string_view key : {field.name...}) {
                std::string without = document;
                without.replace(without.find('"' + std::string{key} + '"') + 1, 1, "_");
                EXPECT_FALSE(json::decode<MonitorPreferences>(std::string_view{without}))
                    << key;
                ++keys;
            }
        },
        jsonFields(Base::Of<MonitorPreferences>{}));
    EXPECT_EQ(keys, kKeys);
}

TEST(MetricReading, NeedsAUnitButNoValue)
{
    const std::string document = R"({"unit":"percent","source":"/proc/stat",)"
                                 R"("state":"warmingUp","timestamp":0})";
    const auto reading = json::decode<MetricReading>(std::string_view{document});
    ASSERT_TRUE(reading);
    EXPECT_EQ(reading->value, std::nullopt);
    EXPECT_EQ(json::encode(*reading), document);
    EXPECT_FALSE(json::decode<MetricReading>(std::string_view{
        R"({"value":1,"source":"/proc/stat","state":"available","timestamp":0})"}));
}

} // namespace
