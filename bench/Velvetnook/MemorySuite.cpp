// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "bench/Velvetnook/RunningProgram.h"
#include "bench/Velvetnook/Suites.h"
#include "bench/XKeys.h"

#include <fmt/format.h>

#include <cstdio>
#include <memory>
#include <thread>

namespace Velvetnook
{

namespace
{

using namespace std::chrono_literals;

constexpr std::uint32_t kControl = 0xFFE3;
constexpr std::uint32_t kShift = 0xFFE1;
constexpr std::uint32_t kDown = 0xFF54;
constexpr std::uint32_t kEscape = 0xFF1B;

void expect(bool holds, const std::string &what)
{
    if (!holds) {
        Bench::giveUp(what);
    }
}

std::string printed(const std::string &command)
{
    FILE *pipe = popen(command.c_str(), "r");
    expect(pipe != nullptr, "kest cannot be started");
    std::string text;
    for (int byte = 0; (byte = std::fgetc(pipe)) != EOF;) {
        text += static_cast<char>(byte);
    }
    return pclose(pipe) == 0 ? text : std::string{}; // while the store has much to do
}

// The program as somebody uses it for a long day.
class Day
{
public:
    Day()
    {
        expect(m_keys.isAvailable(), "the X server takes no keys from tests");
        expect(XDesktop::waitFor([&] { return isStrip(); }), "no strip was shown");
        std::this_thread::sleep_for(3s); // what is made after the first frame
    }

    double memory() const
    {
        std::this_thread::sleep_for(1s);
        return m_program.memory();
    }

    void openEveryView()
    {
        for (const char *tool :
             {"home", "names", "prayer", "friday", "timers", "units", "notes", "dhikr"}) {
            askKest({"notch", "open", tool});
            expect(XDesktop::waitFor([&] { return isOpen(); }), "the panel did not open");
            std::this_thread::sleep_for(500ms);
        }
        m_keys.tap('h'); // the counter's history
        std::this_thread::sleep_for(500ms);
        m_keys.press(kControl);
        m_keys.tap(',');
        m_keys.release(kControl);
        std::this_thread::sleep_for(1s);
        constexpr int kMorePages = 9;
        for (int page = 0; page < kMorePages; ++page) {
            m_keys.tap(kDown);
            std::this_thread::sleep_for(500ms);
        }
        m_keys.tap(kEscape);
        openPalette();
    }

    void count(int times)
    {
        askKest({"target", "none"});
        askKest({"notch", "open", "dhikr"});
        expect(XDesktop::waitFor([&] { return isOpen(); }), "the panel did not open");
        std::this_thread::sleep_for(500ms);
        // In lots: quicker than they are counted, they would only wait in a queue that grows.
        constexpr int kLot = 250;
        for (int counted = 0; counted < times; counted += kLot) {
            for (int n = 0; n < kLot; ++n) {
                m_keys.tap(' ');
                std::this_thread::sleep_for(5ms);
            }
            const std::string wanted = fmt::format(R"("count":{},)", counted + kLot);
            std::string shown;
            const auto isCounted = [&] {
                shown = printed(KEST_PROGRAM " show --json");
                return shown.contains(wanted);
            };
            const bool isWhole = XDesktop::waitFor(isCounted);
            shown.erase(0, shown.find(R"("count":)"));
            expect(isWhole, fmt::format("not every key was counted: no {} but {}", wanted,
                                        shown.substr(0, shown.find(',') + 1)));
        }
        askKest({"notch", "close"});
        expect(XDesktop::waitFor([&] { return isStrip(); }), "the panel did not close");
    }

    void openPalette()
    {
        for (const bool isShown : {true, false}) {
            m_keys.press(kControl);
            m_keys.press(kShift);
            m_keys.tap(' ');
            m_keys.release(kShift);
            m_keys.release(kControl);
            expect(
                XDesktop::waitFor([&] { return m_desktop.palette().has_value() == isShown; }),
                isShown ? "the palette did not come at its key"
                        : "the palette did not go at its key");
        }
    }

    void openPanel()
    {
        askKest({"notch", "open"});
        expect(XDesktop::waitFor([&] { return isOpen(); }), "the panel did not open");
        askKest({"notch", "close"});
        expect(XDesktop::waitFor([&] { return isStrip(); }), "the panel did not close");
    }

private:
    bool isStrip() const
    {
        const auto place = m_desktop.notch();
        return place && place->height < 60;
    }
    bool isOpen() const
    {
        const auto place = m_desktop.notch();
        return place && place->height >= 320;
    }

    XDesktop m_desktop;
    XKeys m_keys;
    RunningProgram m_program{VELVETNOOK_PROGRAM};
};

double memoryOfEmptyWindow()
{
    const XDesktop desktop;
    const RunningProgram empty{EMPTY_WINDOW};
    std::this_thread::sleep_for(2s);
    return empty.memory();
}

} // namespace

std::vector<Bench::Row> memorySuite()
{
    constexpr double kMegabyte = 1e6;
    prepareSession(Bench::freshFolder("memory"), false); // a thousand motions take an hour
    const double floor = memoryOfEmptyWindow() / kMegabyte;
    Day day;
    day.openEveryView();
    const double opened = day.memory() / kMegabyte;
    std::vector<Bench::Row> rows{
        Bench::limitRow("memory with every view opened once", opened, floor, "MB", 90)};
    double before = opened;
    const auto grown = [&](const char *name, int times, auto act) {
        act(times / 20); // so that what is kept for the next time is there
        before = day.memory() / kMegabyte;
        act(times);
        const double now = day.memory() / kMegabyte;
        rows.push_back(Bench::limitRow(fmt::format("memory grown by {} {}", times, name),
                                       now - before, floor, "MB", 5));
    };
    const auto each = [&](void (Day::*act)()) {
        return [&day, act](int times) {
            for (int n = 0; n < times; ++n) {
                (day.*act)();
            }
        };
    };
    grown("openings of the palette", 1'000, each(&Day::openPalette));
    grown("openings of the panel", 1'000, each(&Day::openPanel));
    before = day.memory() / kMegabyte;
    constexpr int kCounts = 10'000;
    day.count(kCounts);
    rows.push_back(Bench::limitRow(fmt::format("memory grown by {} counts", kCounts),
                                   day.memory() / kMegabyte - before, floor, "MB", 5));
    return rows;
}

} // namespace Velvetnook
