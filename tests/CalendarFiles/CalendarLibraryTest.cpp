// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "CalendarFiles/CalendarLibrary.h"

#include "tests/TemporaryFolder.h"

#include <gmock/gmock.h>

#include <sys/stat.h>

#include <fstream>

using namespace CalendarFiles;
using testing::ElementsAre;
using testing::EndsWith;
using testing::SizeIs;

namespace
{

void write(const std::filesystem::path &file, const std::string &text)
{
    std::ofstream{file, std::ios::binary} << text;
}

std::string event(const std::string &title)
{
    return "BEGIN:VEVENT\r\nUID:" + title + "\r\nDTSTART:20261121T090000Z\r\nSUMMARY:" + title +
           "\r\nEND:VEVENT\r\n";
}

std::string calendar(const std::string &events)
{
    return "BEGIN:VCALENDAR\r\n" + events + "END:VCALENDAR\r\n";
}

std::vector<std::string> titles(CalendarLibrary &library)
{
    const auto at = Base::fromIso8601("2026-11-21T00:00:00Z").value();
    std::vector<std::string> titles;
    for (const auto &found : library
                                 .agenda(KestCore::Calendar::inZone("UTC").value(),
                                         {.from = at, .to = at + std::chrono::days{1}})
                                 .events) {
        titles.push_back(found.calendar + "/" + found.title);
    }
    return titles;
}

} // namespace

TEST(CalendarLibrary, ReadsAgainOnlyWhatHasChanged)
{
    const TemporaryFolder folder;
    const auto below = folder.path() / "work" / "deeper";
    std::filesystem::create_directories(below);
    write(folder.path() / "one.ics", calendar(event("a")));
    write(folder.path() / "work" / "two.ICS", calendar("X-WR-CALNAME:Club\r\n" + event("b")));
    write(below / "three.ics", calendar(event("c")));
    write(below / "notes.txt", calendar(event("no")));
    auto library = CalendarLibrary::open().value();
    const std::vector<std::string> sources{(folder.path() / "one.ics").string(),
                                           folder.path().string()};
    EXPECT_EQ(library.refresh(sources), 3U);
    EXPECT_THAT(titles(library), ElementsAre("one/a", "Club/b", "deeper/c"));
    EXPECT_EQ(library.refresh(sources), 0U);
    EXPECT_THAT(titles(library), SizeIs(3));

    write(below / "new", calendar(event("d")));
    std::filesystem::rename(below / "new", below / "three.ics");
    std::filesystem::remove(folder.path() / "work" / "two.ICS");
    EXPECT_EQ(library.refresh(sources), 1U);
    EXPECT_THAT(titles(library), ElementsAre("one/a", "deeper/d"));
}

TEST(CalendarLibrary, NamesWhatItCannotRead)
{
    const TemporaryFolder folder;
    const auto path = [&](const char *name) { return (folder.path() / name).string(); };
    write(path("text.ics"), "nothing of the kind");
    write(path("half.ics"), "BEGIN:VCALENDAR\n" + event("whole") +
                                "BEGIN:VEVENT\nSUMMARY:no start\nEND:VEVENT\n"
                                "BEGIN:VEVENT\nDTSTART:20261399T990000Z\nEND:VEVENT\n"
                                "BEGIN:VEVENT\nDTSTART:20261121T090000Z\nRRULE:FREQ=BOGUS\n"
                                "END:VEVENT\n"
                                "BEGIN:VEVENT\nDTSTART:20261121T090000Z\n"
                                "DTEND:20261121T080000Z\nEND:VEVENT\n"
                                "BEGIN:VEVENT\nDTSTART:20261121T0900");
    ASSERT_EQ(mkfifo(path("pipe.ics").c_str(), 0600), 0);
    auto library = CalendarLibrary::open().value();
    library.refresh({path("text.ics"), path("half.ics"), path("pipe.ics"), path("none.ics")});
    const auto &reports = library.reports();
    ASSERT_THAT(reports, SizeIs(4));
    EXPECT_THAT(reports[0].problems, ElementsAre(EndsWith("text.ics: it is no calendar.")));
    EXPECT_EQ(reports[1].events, 1U);
    EXPECT_EQ(reports[1].broken, 5U);
    EXPECT_THAT(reports[1].problems, SizeIs(0));
    EXPECT_THAT(reports[2].problems, ElementsAre(EndsWith("pipe.ics: it is no file.")));
    EXPECT_THAT(reports[3].problems, ElementsAre(EndsWith("none.ics: it is not there.")));
    EXPECT_THAT(titles(library), ElementsAre("half/whole"));
}

TEST(CalendarLibrary, BoundsWhatAFileMayCost)
{
    const TemporaryFolder folder;
    const std::string file = (folder.path() / "a.ics").string();
    std::string deep = "BEGIN:VCALENDAR\n";
    for (int at = 0; at < 100'000; ++at) {
        deep += "BEGIN:VEVENT\nBEGIN:VALARM\n";
    }
    auto library = CalendarLibrary::open().value();
    write(file, deep);
    library.refresh({file});
    EXPECT_THAT(titles(library), SizeIs(0));

    std::string many;
    for (int at = 0; at < 20'010; ++at) {
        many += event(std::to_string(at));
    }
    write(file, calendar(many));
    library.refresh({file});
    EXPECT_EQ(library.reports()[0].events, 20'000U);
    EXPECT_THAT(library.reports()[0].problems,
                ElementsAre(EndsWith("a.ics: only 20,000 events were read.")));

    write(file, calendar("BEGIN:VEVENT\nDTSTART:20261121T090000Z\nSUMMARY:" +
                         std::string(100'000, 'x') + "\nEND:VEVENT\n" +
                         "BEGIN:VEVENT\nDTSTART:20261121T090000Z\nDESCRIPTION:" +
                         std::string(100'000, 'x') + "\nSUMMARY:kept\nEND:VEVENT\n"));
    library.refresh({file});
    EXPECT_EQ(library.reports()[0].broken, 1U);
    EXPECT_THAT(titles(library), ElementsAre("a/kept"));
    write(file, std::string(16'000'001, ' '));
    library.refresh({file});
    EXPECT_THAT(library.reports()[0].problems,
                ElementsAre(EndsWith("a.ics: it is larger than 16 MB.")));
}
