// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Velvetnook/Application/ViewModels/UnitsViewModel.h"

#include "tests/Velvetnook/RunningModel.h"

#include <QSignalSpy>

namespace
{

using namespace Velvetnook;

TEST(UnitsViewModel, ReadsNumbersAndWholeConversions)
{
    RunningModel running;
    UnitsViewModel units{running.model(), running.formatting()};
    struct Case {
        const char *line;
        const char *from;
        const char *to;
        const char *result;
        const char *refusal;
    };
    for (const auto &[line, from, to, result, refusal] : {
             Case{"1", "m", "km", "0.001", ""},
             Case{" 2500 ", "m", "km", "2.5", ""},
             Case{"٢٥٠٠٫٥", "m", "km", "2.5005", ""},
             Case{"−40 °C in °F", "°C", "°F", "-40", ""},
             Case{"100 celsius to fahrenheit", "°C", "°F", "212", ""},
             Case{"", "m", "km", "", ""}, // nothing is no fault
             Case{"1e400", "m", "km", "", "Choose compatible units and a finite number"},
             Case{"5 kg to mi", "kg", "mi", "", "Choose compatible units and a finite number"},
             Case{"two", "m", "km", "", "Choose compatible units and a finite number"},
         }) {
        SCOPED_TRACE(line);
        units.setText(QString::fromUtf8(line));
        EXPECT_EQ(units.from(), QString::fromUtf8(from));
        EXPECT_EQ(units.to(), QString::fromUtf8(to));
        EXPECT_EQ(units.result(), QString::fromUtf8(result));
        EXPECT_EQ(units.refusal(), QString::fromUtf8(refusal));
    }
}

TEST(UnitsViewModel, AFinishedConversionSetsTheUnitsAndARefusedOneStays)
{
    RunningModel running;
    UnitsViewModel units{running.model(), running.formatting()};
    QSignalSpy lists{&units, &UnitsViewModel::unitsChanged};
    units.setText("3 miles to km");
    units.accept();
    EXPECT_EQ(units.text(), "3");
    EXPECT_EQ(units.from(), "mi");
    units.swap();
    EXPECT_EQ(units.result(), "1.86411357671");
    EXPECT_EQ(lists.size(), 0); // the choices of a category that stays are not told anew

    units.setText("5 kg to mi");
    units.accept();
    EXPECT_EQ(units.text(), "5 kg to mi");
    units.setText("7");
    units.setTo("kg"); // of another category
    EXPECT_EQ(units.to(), "mi");
    units.setCategory("Temperature");
    EXPECT_EQ(units.result(), "44.6");
    units.setCategory("No such category");
    EXPECT_EQ(units.category(), "Temperature");
}

TEST(UnitsViewModel, WhatStoodThereComesBackWithTheLastConversions)
{
    RunningModel running;
    {
        UnitsViewModel units{running.model(), running.formatting()};
        for (const char *line : {"1 m to km", "2 m to km", "3 m to km", "4 m to km",
                                 "5 m to km", "2 m to km", "6 m to km"}) {
            units.setText(line);
            EXPECT_TRUE(units.copy());
        }
        units.setText("no number");
        EXPECT_FALSE(units.copy());
        units.setText("1 GiB to MB");
    }
    running.restart();
    UnitsViewModel units{running.model(), running.formatting()};
    EXPECT_EQ(units.text(), "1");
    EXPECT_EQ(units.result(), "1073.741824");
    ASSERT_EQ(units.recent().size(), 5);
    units.recall(2); // each stands there once, the last one first
    EXPECT_EQ(units.text(), "2");
    units.recall(5);
    EXPECT_EQ(units.text(), "2");
}

TEST(UnitsViewModel, ADamagedSettingReadsAsTheDefault)
{
    RunningModel running;
    for (const char *damaged :
         {"{", R"({"category":"Length","from":"kg","to":"km","text":"1"})"}) {
        running.model().changeSetting("units.conversion", damaged);
        running.model().changeSetting("units.recent", damaged);
        running.settle();
        const UnitsViewModel units{running.model(), running.formatting()};
        EXPECT_EQ(units.from(), "m");
        EXPECT_TRUE(units.recent().isEmpty());
    }
}

} // namespace
