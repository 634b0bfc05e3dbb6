// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "KestCore/Tools/CalendarSources.h"
#include "RunningModel.h"
#include "Velvetnook/Application/EventWatch.h"
#include "Velvetnook/Application/ToolChoice.h"
#include "Velvetnook/Application/ViewModels/CalendarPageViewModel.h"

#include <QAbstractItemModelTester>
#include <QSignalSpy>

#include <filesystem>
#include <fstream>

// The calendar over real files.
namespace
{

using namespace Velvetnook;
namespace fs = std::filesystem;

class CalendarViewTest : public testing::Test
{
protected:
    CalendarViewTest()
    {
        calendar =
            std::make_unique<CalendarPageViewModel>(running.model(), running.formatting());
        testers.emplace_back(std::make_unique<QAbstractItemModelTester>(
            calendar->days(), QAbstractItemModelTester::FailureReportingMode::Fatal));
        testers.emplace_back(std::make_unique<QAbstractItemModelTester>(
            calendar->events(), QAbstractItemModelTester::FailureReportingMode::Fatal));
        QObject::connect(calendar.get(), &CalendarPageViewModel::told,
                         [this](const QString &, const auto &way) { undo = way; });
    }

    std::string file(const char *name) const { return running.path(name); }
    // Events as "20251114T150000 Title".
    std::string put(const char *name, const std::vector<std::string> &events) const
    {
        std::ofstream out{file(name)};
        out << "BEGIN:VCALENDAR\r\nVERSION:2.0\r\n";
        int count = 0;
        for (const std::string &event : events) {
            out << "BEGIN:VEVENT\r\nUID:" << name << ++count
                << "\r\nDTSTART:" << event.substr(0, 15)
                << "\r\nDURATION:PT1H\r\nSUMMARY:" << event.substr(16) << "\r\nEND:VEVENT\r\n";
        }
        out << "END:VCALENDAR\r\n";
        return file(name);
    }
    void add(const std::string &path)
    {
        running.change([&path](KestCore::NativeState &state) {
            ASSERT_TRUE(KestCore::addCalendarSource(state.settings, path));
        });
    }
    bool shows(const QStringList &titles) const
    {
        return RunningModel::waitUntil([&] {
            QStringList shown;
            for (const EventRow &row : calendar->eventList()) {
                shown << row.title;
            }
            return calendar->availability() != u"loading" && shown == titles;
        });
    }
    const DayCell *chosen() const
    {
        const auto &rows = calendar->dayRows();
        const auto found = std::ranges::find(rows, true, &DayCell::isChosen);
        return found == rows.end() ? nullptr : &*found;
    }
    // Waits for what was asked of the store on the way of an answer.
    QString refusalOf(const std::string &typed)
    {
        calendar->addSource(QString::fromStdString(typed));
        EXPECT_TRUE(RunningModel::waitUntil([this] { return !calendar->isAdding(); }));
        return calendar->refusal();
    }

    RunningModel running;
    std::unique_ptr<CalendarPageViewModel> calendar;
    std::vector<std::unique_ptr<QAbstractItemModelTester>> testers;
    std::function<void()> undo;
};

TEST_F(CalendarViewTest, MovesThroughTheMonths)
{
    struct Step {
        std::function<void(CalendarPageViewModel &)> go;
        const char *month;
        const char *day;
        int weeks;
    };
    const Step kSteps[]{
        {[](auto &) {}, "November 2025", "14", 5},
        {[](auto &view) { view.move(-14); }, "October 2025", "31", 5},
        {[](auto &view) { view.moveMonths(-2); }, "August 2025", "31", 5},
        {[](auto &view) { view.moveMonths(-6); }, "February 2025", "28", 5},
        {[](auto &view) { view.moveMonths(12); }, "February 2026", "28", 5},
        {[](auto &view) { view.move(1); }, "March 2026", "1", 6},
        {[](auto &view) { view.choose(0); }, "February 2026", "23", 5},
        {[](auto &view) { view.choose(99); }, "February 2026", "23", 5},
        {[](auto &view) { view.moveMonths(-12 * 127); }, "February 2026", "23", 5},
        {[](auto &view) { view.goToday(); }, "November 2025", "14", 5},
    };
    for (const Step &step : kSteps) {
        step.go(*calendar);
        EXPECT_EQ(calendar->month(), step.month);
        EXPECT_EQ(calendar->weeks(), step.weeks) << step.month;
        ASSERT_NE(chosen(), nullptr) << step.month;
        EXPECT_EQ(chosen()->day, step.day) << step.month;
    }
    EXPECT_TRUE(chosen()->isToday);
    EXPECT_EQ(calendar->islamicDate(), "23 Jumada I 1447");
    EXPECT_EQ(chosen()->islamic, "23");
    EXPECT_EQ(calendar->availability(), "unconfigured");
}

TEST_F(CalendarViewTest, FollowsTheDayUnlessAnotherIsChosen)
{
    calendar->setShown(true);
    running.settle();
    running.pass(Base::Seconds{12 * 3600.0});
    EXPECT_EQ(chosen()->day, "15");
    EXPECT_TRUE(chosen()->isToday);
    calendar->move(3);
    running.pass(Base::Seconds{24 * 3600.0});
    EXPECT_EQ(chosen()->day, "18");
}

TEST_F(CalendarViewTest, ShowsTheDayAsItGoesBy)
{
    add(put("a.ics", {"20251114T100000 Past", "20251114T123000 Now", "20251114T150000 Next",
                      "20251114T190000 Later"}));
    EXPECT_EQ(calendar->availability(), "loading");
    calendar->setShown(true);
    ASSERT_TRUE(shows({"Past", "Now", "Next", "Later"}));
    const auto marks = [this] {
        std::string all;
        for (const EventRow &row : calendar->eventList()) {
            all += row.isPast ? 'p' : row.isNow ? 'n' : row.isNext ? 'x' : '.';
        }
        return all;
    };
    EXPECT_EQ(marks(), "pnx.");
    EXPECT_EQ(calendar->eventList().at(2).trailing, "in 1 h 54");
    EXPECT_TRUE(chosen()->isBusy);
    running.settle();
    running.pass(Base::Seconds{60});
    EXPECT_EQ(calendar->eventList().at(2).trailing, "in 1 h 53");
    running.pass(Base::Seconds{2 * 3600.0});
    EXPECT_TRUE(RunningModel::waitUntil([&] { return marks() == "ppnx"; }));
    calendar->move(1);
    EXPECT_EQ(calendar->availability(), "empty");
    EXPECT_FALSE(chosen()->isBusy);
}

TEST_F(CalendarViewTest, FollowsTheFilesWhileItIsShown)
{
    const std::string path = put("a.ics", {"20251114T150000 One"});
    add(path);
    calendar->setShown(true);
    ASSERT_TRUE(shows({"One"}));
    put("b.ics", {"20251114T150000 Two"});
    fs::rename(file("b.ics"), path);
    EXPECT_TRUE(shows({"Two"}));
    std::ofstream{path} << "nonsense";
    EXPECT_TRUE(shows({}));
    EXPECT_FALSE(calendar->problem().isEmpty());
    EXPECT_FALSE(calendar->sourceList().front().problem.isEmpty());
    calendar->setShown(false);
    put("a.ics", {"20251114T150000 Three"});
    calendar->setShown(true);
    EXPECT_TRUE(shows({"Three"}));
    EXPECT_TRUE(calendar->problem().isEmpty());
}

// The answers for the months that were passed by come later.
TEST_F(CalendarViewTest, ShowsTheMonthThatWasAskedForLast)
{
    add(put("a.ics", {"20251114T150000 Here", "20260114T150000 There"}));
    calendar->setShown(true);
    for (int month = 0; month < 6; ++month) {
        calendar->moveMonths(1);
    }
    for (int month = 0; month < 4; ++month) {
        calendar->moveMonths(-1);
    }
    EXPECT_EQ(calendar->month(), "January 2026");
    EXPECT_TRUE(shows({"There"}));
}

TEST_F(CalendarViewTest, TakesOnlyWhatIsACalendar)
{
    std::ofstream{file("text.txt")} << "not a calendar";
    fs::create_directory(file("folder"));
    for (const std::string &typed :
         {std::string{"a.ics"}, std::string{"   "}, file("none.ics"), file("text.txt")}) {
        EXPECT_NE(refusalOf(typed), "") << typed;
    }
    EXPECT_EQ(calendar->sourceCount(), 0);
    const std::string path = put("a.ics", {"20251114T150000 One"});
    EXPECT_EQ(refusalOf(" " + path + " "), "");
    EXPECT_EQ(refusalOf(file("folder/")), "");
    EXPECT_NE(refusalOf(file("folder")), "") << "it is there already";
    EXPECT_EQ(calendar->sourceCount(), 2);
    calendar->addSourceUrl(QUrl{"https://example.org/a.ics"});
    EXPECT_NE(calendar->refusal(), "");

    calendar->setShown(true);
    ASSERT_TRUE(shows({"One"}));
    calendar->removeSource(QString::fromStdString(path));
    running.settle();
    EXPECT_TRUE(shows({}));
    EXPECT_TRUE(fs::exists(path));
    const QString refusal = refusalOf("not whole");
    ASSERT_NE(refusal, "");
    QSignalSpy added{calendar.get(), &CalendarPageViewModel::added};
    undo();
    running.settle();
    EXPECT_TRUE(shows({"One"}));
    EXPECT_EQ(added.count(), 0) << "that would clear what is typed";
    EXPECT_EQ(calendar->refusal(), refusal);
}

TEST_F(CalendarViewTest, TellsTheStripOfTheNextEventUnlessItIsToldNotTo)
{
    using Base::Seconds;
    EventWatch watch{running.model()};
    const auto next = [&watch](const char *title) {
        return RunningModel::waitUntil([&] {
            return watch.next() ? watch.next()->title == QLatin1String{title} : *title == '\0';
        });
    };
    EXPECT_TRUE(next(""));
    const std::string path =
        put("work.ics", {"20251114T150000 Review", "20251114T140000 Call"});
    add(path);
    running.change([](KestCore::NativeState &state) { setToolOn(state, "calendar", true); });
    EXPECT_TRUE(next("Call")); // it is 13:06
    running.pass(Seconds{54 * 60});
    EXPECT_TRUE(next("Call")); // begins
    running.pass(Seconds{60});
    EXPECT_TRUE(next("Review"));
    put("work.ics", {"20251114T143000 Tea"});
    EXPECT_TRUE(next("Tea")); // the file was written anew

    const auto setTool = [this](const char *key, const char *value) {
        running.change([=](KestCore::NativeState &state) { state.settings[key] = value; });
    };
    setTool("calendar.strip", "false");
    EXPECT_TRUE(next(""));
    setTool("calendar.strip", "true");
    EXPECT_TRUE(next("Tea"));
    running.change([&path](KestCore::NativeState &state) {
        ASSERT_TRUE(KestCore::removeCalendarSource(state.settings, path));
    });
    EXPECT_TRUE(next(""));
}

} // namespace
