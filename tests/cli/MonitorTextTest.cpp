// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "cli/MonitorText.h"

#include "cli/BrailleChart.h"
#include "cli/MonitorRows.h"

#include <gmock/gmock.h>

#include <limits>

using namespace Cli;
using MonitorCore::MetricUnit;
using testing::ElementsAre;

namespace
{

TEST(AmountText, KeepsTheDigitsThatTellSomething)
{
    struct Case {
        double value;
        MetricUnit unit;
        const char *text;
    };
    for (const auto &[value, unit, text] : {
             Case{0, MetricUnit::bytes, "0 B"},
             Case{999.4, MetricUnit::bytes, "999 B"},
             Case{999.5, MetricUnit::bytes, "1.0 kB"},
             Case{99'949, MetricUnit::bytes, "99.9 kB"},
             Case{99'951, MetricUnit::bytes, "100 kB"},
             Case{999'499, MetricUnit::bytes, "999 kB"},
             Case{12.13e6, MetricUnit::bytesPerSecond, "12.1 MB/s"},
             Case{5e18, MetricUnit::bytes, "5000 PB"},
             Case{9.94, MetricUnit::percent, "9.9 %"},
             Case{9.96, MetricUnit::percent, "10 %"},
             Case{185, MetricUnit::minutes, "3 h 05 min"},
             Case{1565, MetricUnit::minutes, "1 d 2 h"},
             Case{10.04, MetricUnit::watts, "10.0 W"},
         }) {
        EXPECT_EQ(amountText(value, unit), text);
    }
    EXPECT_EQ(readingText({.unit = MetricUnit::watts,
                           .state = MonitorCore::MetricState::permissionRequired}),
              "not permitted");
}

TEST(Texts, FitTheirCells)
{
    EXPECT_EQ(fitted("Ärger", 7), "Ärger  ");
    EXPECT_EQ(fitted("Ärger", 5), "Ärger");
    EXPECT_EQ(fitted("Ärger", 3), "Är…");
    EXPECT_EQ(fitted("Ärger", 0), "");
    EXPECT_EQ(fitted("計算機", 7), "計算機 ");
    EXPECT_EQ(fitted("計算機", 4), "計… ");
    EXPECT_EQ(fitted("e\u0301te\u0301", 4), "e\u0301te\u0301 ");
    EXPECT_EQ(barText(0.5, 4), "━━──");
    EXPECT_EQ(barText(7, 2), "━━");
    EXPECT_EQ(barText(std::numeric_limits<double>::quiet_NaN(), 2), "──");
    const std::vector<double> past{9, 0, 1, 50, 100, 200};
    EXPECT_EQ(sparkline(past, 100, 5), " ▁▄██");
    EXPECT_EQ(sparkline(past, 0, 8), "        ");
}

TEST(BrailleChart, RaisesEachColumnToItsValue)
{
    EXPECT_THAT(brailleChart({1, 1, 0.5, std::nullopt, 0, 0.25}, 1), ElementsAre("⣿⡄⣀"));
    EXPECT_THAT(brailleChart({1, 0.5, 0.625}, 2), ElementsAre("⡇⡀", "⣿⡇"));
    EXPECT_THAT(brailleChart({std::numeric_limits<double>::quiet_NaN(), 9}, 1),
                ElementsAre("⢸"));
    EXPECT_THAT(brailleChart({}, 1), ElementsAre(""));
}

TEST(RoundLimit, IsTheNextNumberThatReadsWell)
{
    for (const auto &[value, limit] : {std::pair{0.0, 1.0},
                                       {-3.0, 1.0},
                                       {1.0, 1.0},
                                       {1.01, 2.0},
                                       {37.0, 50.0},
                                       {501.0, 1000.0},
                                       {3e9, 5e9},
                                       {0.012, 0.02}}) {
        EXPECT_DOUBLE_EQ(roundLimit(value), limit) << value;
    }
}

TEST(UsageRows, SortsFindsAndKeepsStill)
{
    MonitorCore::MonitorSnapshot snapshot;
    const auto process = [](std::int32_t pid, const char *name, double cpu) {
        return MonitorCore::ProcessSample{
            .key = {.pid = pid, .start = 1}, .name = name, .cpu = cpu};
    };
    snapshot.apps = {{.id = "b", .name = "Beta", .cpu = 5, .memory = 10},
                     {.id = "a",
                      .name = "alpha",
                      .processes = {process(2, "one", 1), process(1, "two", 2)},
                      .cpu = 5,
                      .memory = 30},
                     {.id = "c", .name = "gamma", .cpu = 9, .memory = 20}};
    const auto ids = [&](RowKind kind, RowOrder order, const char *filter) {
        std::vector<std::string> found;
        for (const UsageRow &row : usageRows(snapshot, kind, order, filter)) {
            found.push_back(row.id);
        }
        return found;
    };
    EXPECT_THAT(ids(RowKind::application, RowOrder::cpu, ""), ElementsAre("c", "b", "a"));
    EXPECT_THAT(ids(RowKind::application, RowOrder::memory, ""), ElementsAre("a", "c", "b"));
    EXPECT_THAT(ids(RowKind::application, RowOrder::memory, "BET"), ElementsAre("b"));
    EXPECT_THAT(ids(RowKind::process, RowOrder::cpu, ""), ElementsAre("1:1", "2:1"));
    EXPECT_THAT(ids(RowKind::process, RowOrder::name, ""), ElementsAre("2:1", "1:1"));
}

} // namespace
