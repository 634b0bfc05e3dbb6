// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "RunningModel.h"

namespace
{

using KestCore::Settings;

Base::Instant at(const char *text) { return Base::fromIso8601(text).value(); }

class FormattingTest : public testing::Test
{
protected:
    const Velvetnook::Formatting &with(const Settings &settings)
    {
        m_running.change([&](KestCore::NativeState &state) { state.settings = settings; });
        return m_running.formatting();
    }

private:
    RunningModel m_running;
};

const Settings kEnglish{{"appearance.language", "en"}, {"appearance.clock", "24"}};
const Settings kArabic{{"appearance.language", "ar"}, {"appearance.clock", "24"}};

Settings plus(Settings settings, const char *key, const char *value)
{
    settings[key] = value;
    return settings;
}

TEST_F(FormattingTest, WritesNumbersWithTheChosenDigitsAndTheirSeparators)
{
    struct Case {
        const char *name;
        Settings settings;
        qlonglong value;
        const char *whole;
        const char *decimal; // of a thousandth of the value, with two places
    };
    for (const auto &[name, settings, value, whole, decimal] : {
             Case{"English", kEnglish, 1234567, "1,234,567", "1,234.57"},
             Case{"Arabic", kArabic, 1234567, "١٬٢٣٤٬٥٦٧", "١٬٢٣٤٫٥٧"},
             Case{"English with Arabic digits", plus(kEnglish, "appearance.digits", "arabic"),
                  1234567, "١٬٢٣٤٬٥٦٧", "١٬٢٣٤٫٥٧"},
             Case{"Arabic with Latin digits", plus(kArabic, "appearance.digits", "latin"),
                  1234567, "1,234,567", "1,234.57"},
             Case{"nothing", kEnglish, 0, "0", "0.00"},
             Case{"less than nothing", kEnglish, -1234, "-1,234", "-1.23"},
         }) {
        SCOPED_TRACE(name);
        const auto &format = with(settings);
        EXPECT_EQ(format.number(value).toStdString(), whole);
        EXPECT_EQ(format.decimal(static_cast<double>(value) / 1000, 2).toStdString(), decimal);
    }
}

TEST_F(FormattingTest, ReadsTheClockOfTheUsersZoneWithTwelveOrTwentyFourHours)
{
    const Settings twelve = plus(kEnglish, "appearance.clock", "12");
    struct Case {
        const char *name;
        Settings settings;
        const char *instant;
        const char *text;
    };
    for (const auto &[name, settings, instant, text] : {
             Case{"afternoon", kEnglish, "2025-11-14T13:06:40Z", "13:06"},
             Case{"midnight", kEnglish, "2025-11-14T00:00:00Z", "00:00"},
             Case{"summer time", kEnglish, "2025-07-01T23:30:00Z", "00:30"},
             Case{"12 h, midnight", twelve, "2025-11-14T00:05:00Z", "12:05 am"},
             Case{"12 h, before noon", twelve, "2025-11-14T11:59:59Z", "11:59 am"},
             Case{"12 h, noon", twelve, "2025-11-14T12:00:00Z", "12:00 pm"},
             Case{"12 h, one", twelve, "2025-11-14T13:00:00Z", "1:00 pm"},
             Case{"Arabic digits", kArabic, "2025-11-14T13:06:40Z", "١٣:٠٦"},
         }) {
        SCOPED_TRACE(name);
        EXPECT_EQ(with(settings).time(at(instant)).toStdString(), text);
    }
}

TEST_F(FormattingTest, NamesDaysAndMonthsInTheLanguage)
{
    const auto friday = at("2025-11-14T13:06:00Z");
    EXPECT_EQ(with(kEnglish).date(friday).toStdString(), "Friday 14 November");
    EXPECT_EQ(with(kArabic).date(friday).toStdString(), "الجمعة، ١٤ نوفمبر");
    struct Case {
        KestCore::IslamicDate date;
        const char *english;
        const char *arabic;
    };
    for (const auto &[date, english, arabic] : {
             Case{{1, 1, 1447}, "1 Muharram 1447", "١ محرم ١٤٤٧"},
             Case{{23, 5, 1447}, "23 Jumada I 1447", "٢٣ جمادى الأولى ١٤٤٧"},
             Case{{30, 12, 1447}, "30 Dhu al-Hijja 1447", "٣٠ ذو الحجة ١٤٤٧"},
         }) {
        EXPECT_EQ(with(kEnglish).islamicDate(date).toStdString(), english);
        EXPECT_EQ(with(kArabic).islamicDate(date).toStdString(), arabic);
    }
}

TEST_F(FormattingTest, RoundsWhatIsLeftUpAndChangesItsUnitsAtTheirBounds)
{
    struct Case {
        double seconds;
        const char *duration;
        const char *remaining;
    };
    const auto &format = with(kEnglish);
    for (const auto &[seconds, duration, remaining] : {
             Case{-3, "0:00", "0 s"},
             Case{0, "0:00", "0 s"},
             Case{0.2, "0:01", "1 s"},
             Case{59, "0:59", "59 s"},
             Case{60, "1:00", "1 min"},
             Case{61, "1:01", "2 min"},
             Case{3599.5, "1:00:00", "60 min"},
             Case{3723, "1:02:03", "63 min"},
             Case{5400, "1:30:00", "90 min"},
             Case{5401, "1:30:01", "1 h 31"},
             Case{11100, "3:05:00", "3 h 05"},
         }) {
        SCOPED_TRACE(seconds);
        EXPECT_EQ(format.duration(seconds).toStdString(), duration);
        EXPECT_EQ(format.remaining(seconds).toStdString(), remaining);
    }
}

} // namespace
