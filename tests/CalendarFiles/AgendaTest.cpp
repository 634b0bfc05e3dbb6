// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "CalendarFiles/Agenda.h"

#include <fmt/format.h>
#include <gmock/gmock.h>

#include <chrono>

using namespace CalendarFiles;
using KestCore::Calendar;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;
using Lines = std::vector<std::string>;

namespace
{

EventParser &parser()
{
    static const auto opened = openEventParser();
    return *opened.value();
}

std::string calendarOf(const std::string &lines)
{
    std::string text = "BEGIN:VCALENDAR\nVERSION:2.0\n" + lines + "END:VCALENDAR\n";
    return text;
}

std::string eventOf(const std::string &lines)
{
    return calendarOf("BEGIN:VEVENT\nSUMMARY:E\n" + lines + "END:VEVENT\n");
}

Agenda agendaOf(const std::string &ics, const Calendar &viewer, const char *from, int days,
                Budget budget = {})
{
    const auto document = readCalendar(ics, parser());
    EXPECT_TRUE(document) << document.error().message;
    const auto noon = Base::fromIso8601(std::string{from} + "T12:00:00Z").value();
    const std::int64_t first = Calendar::inZone("UTC")->dayNumber(noon);
    Agenda agenda;
    addOccurrences(agenda, document.value_or(CalendarDocument{}), "c", parser(), viewer,
                   {.from = startOfDay(viewer, first), .to = startOfDay(viewer, first + days)},
                   budget);
    arrange(agenda);
    return agenda;
}

// Each event as "11-21 10:00-11:00 title"; whole days as "11-21..11-22 title".
Lines seen(const std::string &ics, const char *from, int days,
           const char *zone = "Europe/Berlin")
{
    const auto viewer = Calendar::inZone(zone).value();
    Lines lines;
    for (const Occurrence &event : agendaOf(ics, viewer, from, days).events) {
        const auto start = viewer.at(event.start);
        const auto end = viewer.at(event.end);
        if (event.isAllDay) {
            const auto last = viewer.at(event.end - Base::Seconds{1});
            lines.push_back(fmt::format("{:02}-{:02}..{:02}-{:02} {}", start.month, start.day,
                                        last.month, last.day, event.title));
        } else {
            lines.push_back(fmt::format("{:02}-{:02} {:02}:{:02}-{:02}:{:02} {}", start.month,
                                        start.day, start.hour, start.minute, end.hour,
                                        end.minute, event.title));
        }
    }
    return lines;
}

// Summer time as it would be made up: two hours ahead from May to September, else none.
constexpr const char *kOwnZone =
    "BEGIN:VTIMEZONE\nTZID:Mine\n"
    "BEGIN:STANDARD\nDTSTART:16010901T030000\nTZOFFSETFROM:+0200\nTZOFFSETTO:+0000\n"
    "RRULE:FREQ=YEARLY;BYMONTH=9;BYDAY=1SU\nEND:STANDARD\n"
    "BEGIN:DAYLIGHT\nDTSTART:16010501T020000\nTZOFFSETFROM:+0000\nTZOFFSETTO:+0200\n"
    "RRULE:FREQ=YEARLY;BYMONTH=5;BYDAY=1SU\nEND:DAYLIGHT\nEND:VTIMEZONE\n";

} // namespace

TEST(Agenda, ReadsEachWayToSayWhen)
{
    struct Case {
        const char *name;
        const char *event;
        Lines expected;
    };
    for (
        const auto &[name, event, expected] : std::vector<Case>{
            {"UTC",
             "DTSTART:20261121T090000Z\nDTEND:20261121T100000Z\n",
             {"11-21 10:00-11:00 E"}},
            {"Olson name",
             "DTSTART;TZID=Asia/Tokyo:20261121T090000\nDTEND;TZID=Asia/Tokyo:20261121T100000\n",
             {"11-21 01:00-02:00 E"}},
            {"Olson name behind a maker's",
             "DTSTART;TZID=/example.org/7/Asia/Tokyo:20261121T090000\nDURATION:PT15M\n",
             {"11-21 01:00-01:15 E"}},
            {"floating",
             "DTSTART:20261121T090000\nDURATION:PT1H30M\n",
             {"11-21 09:00-10:30 E"}},
            {"a zone that nobody knows",
             "DTSTART;TZID=Nowhere:20261121T090000\n",
             {"11-21 09:00-09:00 E"}},
            {"one day", "DTSTART;VALUE=DATE:20261121\n", {"11-21..11-21 E"}},
            {"days, the end not among them",
             "DTSTART;VALUE=DATE:20261120\nDTEND;VALUE=DATE:20261123\n",
             {"11-20..11-22 E"}},
            {"days by their length",
             "DTSTART;VALUE=DATE:20261120\nDURATION:P2D\n",
             {"11-20..11-21 E"}},
            {"a day of the calendar over the end of summer time",
             "DTSTART;TZID=Europe/Berlin:20261024T120000\nDURATION:P1D\nRDATE;TZID=Europe/"
             "Berlin:20261121T120000\n",
             {"11-21 12:00-12:00 E"}},
            {"began before",
             "DTSTART:20261119T230000Z\nDTEND:20261120T230100Z\n",
             {"11-20 00:00-00:01 E"}},
            {"ended as the day began",
             "DTSTART:20261119T220000Z\nDTEND:20261120T230000Z\n",
             {}},
            {"cancelled", "DTSTART:20261121T090000Z\nSTATUS:CANCELLED\n", {}},
            {"folded, and a mark within quotation",
             "DTSTART;X-NOTE=\"a:b\";TZID=Asia/\n Tokyo:2026112\n\t1T090000\n",
             {"11-21 01:00-01:00 E"}},
        }) {
        SCOPED_TRACE(name);
        EXPECT_EQ(seen(eventOf(event), "2026-11-21", 1), expected);
    }
}

TEST(Agenda, CountsOutSeries)
{
    struct Case {
        const char *name;
        const char *event;
        const char *from;
        int days;
        Lines expected;
    };
    for (const auto &[name, event, from, days, expected] : std::vector<Case>{
             {"keeps its hour over the end of summer time",
              "DTSTART;TZID=Europe/Berlin:20261022T090000\nRRULE:FREQ=DAILY\nDURATION:PT1H\n",
              "2026-10-24",
              2,
              {"10-24 09:00-10:00 E", "10-25 09:00-10:00 E"}},
             {"an hour that the clock skips, and one that it shows twice",
              "DTSTART;TZID=Europe/Berlin:20250330T023000\n"
              "RDATE;TZID=Europe/Berlin:20250329T023000\nDURATION:PT10M\n",
              "2025-03-29",
              2,
              {"03-29 02:30-02:40 E", "03-30 03:30-03:40 E"}},
             {"long after it began",
              "DTSTART:19700101T120000Z\nRRULE:FREQ=WEEKLY;INTERVAL=2\n",
              "2026-11-15",
              14,
              {"11-19 13:00-13:00 E"}},
             {"an end in UTC, the last date included",
              "DTSTART;TZID=America/New_York:20261120T200000\n"
              "RRULE:FREQ=DAILY;UNTIL=20261122T010000Z\n",
              "2026-11-20",
              9,
              {"11-21 02:00-02:00 E", "11-22 02:00-02:00 E"}},
             {"an end that is a date, that day included",
              "DTSTART:20261120T200000\nRRULE:FREQ=DAILY;UNTIL=20261121\n",
              "2026-11-20",
              9,
              {"11-20 20:00-20:00 E", "11-21 20:00-20:00 E"}},
             {"counted from its beginning",
              "DTSTART:20261118T080000\nRRULE:FREQ=DAILY;COUNT=4\n",
              "2026-11-20",
              9,
              {"11-20 08:00-08:00 E", "11-21 08:00-08:00 E"}},
             {"the last weekday of a month",
              "DTSTART:20260130T080000\n"
              "RRULE:FREQ=MONTHLY;BYDAY=MO,TU,WE,TH,FR;BYSETPOS=-1\n",
              "2026-10-25",
              40,
              {"10-30 08:00-08:00 E", "11-30 08:00-08:00 E"}},
             {"29 February",
              "DTSTART;VALUE=DATE:20240229\nRRULE:FREQ=YEARLY\n",
              "2027-01-01",
              800,
              {"02-29..02-29 E"}},
             {"dates left out, by instant and by day",
              "DTSTART:20261120T080000\nRRULE:FREQ=DAILY;COUNT=5\nEXDATE:20261121T080000\n"
              "EXDATE;VALUE=DATE:20261123\nEXDATE:20261122T080000,20261122T070000Z\n",
              "2026-11-20",
              9,
              {"11-20 08:00-08:00 E", "11-24 08:00-08:00 E"}},
             {"further dates, one with a length of its own",
              "DTSTART:20261120T080000\nDTEND:20261120T090000\n"
              "RDATE:20261122T080000,20261120T080000\n"
              "RDATE;VALUE=PERIOD:20261121T120000/20261121T120500\n",
              "2026-11-20",
              9,
              {"11-20 08:00-09:00 E", "11-21 12:00-12:05 E", "11-22 08:00-09:00 E"}},
             {"a long date that began before the days asked for",
              "DTSTART;VALUE=DATE:20260101\nDTEND;VALUE=DATE:20260111\n"
              "RRULE:FREQ=MONTHLY;BYMONTHDAY=15\n",
              "2026-11-23",
              1,
              {"11-15..11-24 E"}},
         }) {
        SCOPED_TRACE(name);
        EXPECT_EQ(seen(eventOf(event), from, days), expected);
    }
}

TEST(Agenda, FollowsTheFilesOwnZone)
{
    const std::string event = "BEGIN:VEVENT\nSUMMARY:E\nDTSTART;TZID=Mine:20260101T120000\n"
                              "RRULE:FREQ=MONTHLY\nEND:VEVENT\n";
    EXPECT_THAT(seen(calendarOf(kOwnZone + event), "2026-04-30", 125, "UTC"),
                ElementsAre("05-01 12:00-12:00 E", "06-01 10:00-10:00 E", "07-01 10:00-10:00 E",
                            "08-01 10:00-10:00 E", "09-01 10:00-10:00 E"));
}

TEST(Agenda, KeepsTheLastChangeOfAZoneWhoseSummerTimeIsOver)
{
    const std::string zone =
        "BEGIN:VTIMEZONE\nTZID:Old\n"
        "BEGIN:STANDARD\nDTSTART:19700901T000000\nTZOFFSETFROM:+0300\nTZOFFSETTO:+0200\n"
        "RRULE:FREQ=YEARLY;UNTIL=19800901T000000Z\nEND:STANDARD\n"
        "BEGIN:DAYLIGHT\nDTSTART:19700401T000000\nTZOFFSETFROM:+0200\nTZOFFSETTO:+0300\n"
        "RRULE:FREQ=YEARLY;COUNT=12\nEND:DAYLIGHT\nEND:VTIMEZONE\n";
    const std::string event =
        "BEGIN:VEVENT\nSUMMARY:E\nDTSTART;TZID=Old:20261121T120000\nEND:VEVENT\n";
    EXPECT_THAT(seen(calendarOf(zone + event), "2026-11-21", 1, "UTC"),
                ElementsAre("11-21 09:00-09:00 E"));
}

TEST(Agenda, LetsAnEventTakeThePlaceOfADate)
{
    const std::string series =
        "BEGIN:VEVENT\nUID:a\nSUMMARY:E\nDTSTART;TZID=Europe/Berlin:20261120T080000\n"
        "RRULE:FREQ=DAILY;COUNT=4\nEND:VEVENT\n";
    const std::string moved = "BEGIN:VEVENT\nUID:a\nSUMMARY:Moved\n"
                              "RECURRENCE-ID:20261121T070000Z\n"
                              "DTSTART:20261121T150000Z\nEND:VEVENT\n";
    const std::string movedAgain = "BEGIN:VEVENT\nUID:a\nSUMMARY:Again\nSEQUENCE:2\n"
                                   "RECURRENCE-ID:20261121T070000Z\n"
                                   "DTSTART:20261125T150000Z\nEND:VEVENT\n";
    const std::string called = "BEGIN:VEVENT\nUID:a\nSUMMARY:E\nSTATUS:CANCELLED\n"
                               "RECURRENCE-ID;TZID=Europe/Berlin:20261122T080000\n"
                               "DTSTART:20261122T070000Z\nEND:VEVENT\n";
    EXPECT_THAT(
        seen(calendarOf(series + moved + called), "2026-11-20", 9),
        ElementsAre("11-20 08:00-08:00 E", "11-21 16:00-16:00 Moved", "11-23 08:00-08:00 E"));
    EXPECT_THAT(seen(calendarOf(movedAgain + series + moved), "2026-11-20", 2),
                ElementsAre("11-20 08:00-08:00 E"));
}

TEST(Agenda, ShowsAnEventOverMidnightOnEachOfItsDays)
{
    const auto viewer = Calendar::inZone("Europe/Berlin").value();
    const auto agenda = agendaOf(
        calendarOf("BEGIN:VEVENT\nSUMMARY:Night\nDTSTART:20261120T220000Z\n"
                   "DTEND:20261121T030000Z\nEND:VEVENT\n"
                   "BEGIN:VEVENT\nSUMMARY:Day\nDTSTART;VALUE=DATE:20261121\nEND:VEVENT\n"
                   "BEGIN:VEVENT\nSUMMARY:To midnight\nDTSTART:20261121T220000Z\n"
                   "DTEND:20261121T230000Z\nEND:VEVENT\n"),
        viewer, "2026-11-20", 3);
    const auto days = agendaDays(agenda, agenda.events.front().firstDay, 3);
    std::vector<Lines> titles;
    for (const AgendaDay &day : days) {
        titles.emplace_back();
        for (const Occurrence &event : day.events) {
            titles.back().push_back(event.title);
        }
    }
    EXPECT_THAT(titles, ElementsAre(ElementsAre("Night"),
                                    ElementsAre("Day", "Night", "To midnight"), IsEmpty()));
    const auto next = nextEvent(agenda, Base::fromIso8601("2026-11-20T21:48:00Z").value());
    ASSERT_TRUE(next);
    EXPECT_EQ(next->title, "Night");
    EXPECT_FALSE(nextEvent(agenda, Base::fromIso8601("2026-11-21T22:00:00Z").value()));
}

TEST(Agenda, ShowsTheSameEventOfTwoFilesOnce)
{
    const auto viewer = Calendar::inZone("UTC").value();
    const std::string ics = eventOf("UID:a\nDTSTART:20261121T090000Z\n");
    auto agenda = agendaOf(ics, viewer, "2026-11-21", 1);
    agenda.events.push_back(agenda.events.front());
    agenda.events.push_back(agenda.events.front());
    agenda.events.back().title = "Another";
    arrange(agenda);
    EXPECT_THAT(agenda.events, SizeIs(2));
}

TEST(Agenda, RefusesRulesThatOnlyHostileFilesHave)
{
    const auto viewer = Calendar::inZone("UTC").value();
    std::string all;
    for (int at = 1; at < 60; ++at) {
        all += "," + std::to_string(at);
    }
    for (const std::string &rule :
         {std::string{"FREQ=SECONDLY;BYMONTH=2;BYMONTHDAY=30"}, std::string{"FREQ=MINUTELY"},
          "FREQ=DAILY;BYHOUR=1;BYMINUTE=0" + all + ";BYSECOND=0" + all}) {
        SCOPED_TRACE(rule);
        const auto agenda = agendaOf(eventOf("DTSTART:19000101T090000Z\nRRULE:" + rule + "\n"),
                                     viewer, "2026-11-21", 30);
        EXPECT_THAT(agenda.events, IsEmpty());
        EXPECT_EQ(agenda.broken, 1U);
    }
    // What may be and costs much is cut off, and that is told.
    const auto endless =
        agendaOf(eventOf("DTSTART:19000101T090000Z\nRRULE:FREQ=HOURLY;COUNT=2000000000\n"),
                 viewer, "2026-11-21", 30);
    EXPECT_FALSE(endless.isWhole);
    const auto never = agendaOf(
        eventOf("DTSTART:19000101T090000Z\nRRULE:FREQ=HOURLY;BYMONTH=2;BYMONTHDAY=30\n"),
        viewer, "2026-11-21", 30);
    EXPECT_TRUE(never.isWhole && never.events.empty());
    const auto many = agendaOf(eventOf("DTSTART:20260101T090000Z\nRRULE:FREQ=DAILY\n"), viewer,
                               "2026-11-21", 30, {.events = 7});
    EXPECT_FALSE(many.isWhole);
    EXPECT_THAT(many.events, SizeIs(7));
}
