// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "tests/EndToEnd/Program.h"
#include "tests/TemporaryFolder.h"

#include <gmock/gmock.h>

#include <fstream>

using testing::AllOf;
using testing::HasSubstr;
using testing::StartsWith;

namespace
{

void write(const std::filesystem::path &file, const std::string &text)
{
    std::ofstream{file} << text;
}

} // namespace

TEST(CalendarCommand, ShowsTheMonthAndWhatIsPlanned)
{
    const TemporaryFolder folder;
    const std::string file = (folder.path() / "work.ics").string();
    write(file, "BEGIN:VCALENDAR\nBEGIN:VEVENT\nSUMMARY:Night\x1B[2J shift\nLOCATION:Room 4\n"
                "DTSTART:20261120T220000\nDTEND:20261121T030000\nEND:VEVENT\n"
                "BEGIN:VEVENT\nSUMMARY:Holiday\nDTSTART;VALUE=DATE:20261121\nEND:VEVENT\n"
                "BEGIN:VEVENT\nSUMMARY:No start\nEND:VEVENT\nEND:VCALENDAR\n");
    EXPECT_THAT(runKest(folder.path(), {"calendar", "agenda"}).out,
                StartsWith("No calendar is there yet"));
    EXPECT_EQ(runKest(folder.path(), {"calendar", "add", file}).status, 0);
    EXPECT_EQ(runKest(folder.path(), {"calendar", "add", file}).err,
              "kest: That calendar is there already\n");
    const auto agenda =
        runKest(folder.path(), {"calendar", "agenda", "--date", "2026-11-20", "--days", "3"});
    EXPECT_THAT(agenda.out, StartsWith("Friday 20 November 2026 · 10 Jumada al-Akhira 1448\n"
                                       "  22:00–  Night·[2J shift  Room 4  work\n"
                                       "Saturday 21 November 2026 · 11 Jumada al-Akhira 1448\n"
                                       "  all day  Holiday                  work\n"
                                       "  –03:00   Night·[2J shift  Room 4  work\n"));
    EXPECT_EQ(agenda.err, "kest: " + file + ": 1 event could not be read.\n");
    EXPECT_THAT(runKest(folder.path(), {"calendar", "--year", "2026", "--month", "11"}).out,
                AllOf(StartsWith("November 2026\n21 Jumada al-Ula 1448 to 20 Jumada al-"),
                      HasSubstr("20 10 *"), HasSubstr("22 12")));
    EXPECT_THAT(
        runKest(folder.path(), {"--json", "calendar", "--year", "2026", "--month", "11"}).out,
        HasSubstr(R"({"date":"2026-11-21","islamicDate":{"day":11,"month":6,"year":1448},)"
                  R"("inMonth":true,"today":)"));
    EXPECT_THAT(runKest(folder.path(), {"--json", "calendar", "sources"}).out,
                HasSubstr(R"("files":1,"events":2,"broken":1,"problems":[]}])"));
    EXPECT_EQ(runKest(folder.path(), {"calendar", "remove", file}).status, 0);
    EXPECT_EQ(runKest(folder.path(), {"calendar", "remove", file}).status, 1);
    write(file, "not one");
    EXPECT_EQ(runKest(folder.path(), {"calendar", "add", file}).err,
              "kest: " + file + ": it is no calendar.\n");
}

TEST(UsageCommand, SaysThatNothingIsCountedUnasked)
{
    const TemporaryFolder folder;
    EXPECT_THAT(runKest(folder.path(), {"usage"}).out, StartsWith("Screen time is off: "));
    runKest(folder.path(), {"settings", "set", "screen-time.enabled", "true"});
    EXPECT_THAT(runKest(folder.path(), {"usage", "--days", "2"}).out,
                HasSubstr("\nIn all 0 min\n"));
    EXPECT_THAT(runKest(folder.path(), {"--json", "usage", "--days", "2"}).out,
                AllOf(StartsWith(R"({"enabled":true,"days":[{"date":")"),
                      HasSubstr(R"("change":null,"applications":[]}],"seconds":0)")));
    EXPECT_EQ(runKest(folder.path(), {"usage", "--days", "2", "--week"}).status, 2);
}
