// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "KestCore/Devotional/Content.h"
#include "KestCore/Store/StateStore.h"
#include "KestCore/Surfaces/PaletteIndex.h"
#include "KestCore/Tools/Emoji.h"
#include "Velvetnook/Application/App.h"
#include "Velvetnook/Application/ApplicationModel.h"
#include "Velvetnook/Platform/GlobalKeys.h"
#include "Velvetnook/Platform/PaletteWindow.h"
#include "Velvetnook/Shell/Engine.h"
#include "Velvetnook/Shell/Theme.h"
#include "bench/Velvetnook/Suites.h"
#include "bench/XKeys.h"

#include <QCoreApplication>
#include <QDBusConnection>
#include <QElapsedTimer>
#include <QQmlEngine>
#include <QTemporaryDir>

#include <algorithm>
#include <chrono>
#include <cstring>
#include <random>

// How long the palette takes to find among 20,000 things, and from its key to the frame that
// shows it and the frame that shows what is typed.
namespace Velvetnook
{

namespace
{

using Milliseconds = std::vector<double>;

constexpr int kRounds = 60;

class Stopwatch
{
public:
    double milliseconds() const
    {
        return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() -
                                                         m_start)
            .count();
    }

private:
    std::chrono::steady_clock::time_point m_start = std::chrono::steady_clock::now();
};

KestCore::PaletteIndex fullIndex(std::uint32_t size)
{
    KestCore::PaletteIndex index;
    for (const KestCore::Emoji &emoji : KestCore::allEmoji()) {
        const std::vector<std::string> names{std::string{emoji.arabicName}};
        index.add({.title = emoji.name, .names = names, .keywords = emoji.words});
    }
    for (const auto *list :
         {&KestCore::contentCatalogue().dhikr, &KestCore::contentCatalogue().names}) {
        for (const KestCore::Phrase &phrase : *list) {
            const std::vector<std::string> names{phrase.arabic};
            index.add({.title = phrase.transliteration,
                       .names = names,
                       .keywords = phrase.translation.value_or("")});
        }
    }
    const auto &emoji = KestCore::allEmoji();
    std::mt19937 random{1};
    const auto word = [&] { return std::string{emoji[random() % emoji.size()].name}; };
    while (index.size() < size) {
        index.add({.title = word() + " and " + word(), .keywords = word() + " " + word()});
    }
    return index;
}

Bench::Row measureQueries()
{
    constexpr std::uint32_t kThings = 20'000;
    KestCore::PaletteIndex index = fullIndex(kThings);
    Milliseconds queries;
    Milliseconds floors;
    for (const char *line : {"subhanallah", "sunrise", "face with tears", "groceries",
                             "smiling eyes", "prayer times", "zqxj", "ar rahman", "timer",
                             "سبحان الله", "hnd wvng", "red heart and"}) {
        const std::string_view text{line};
        for (std::size_t size = 1; size <= text.size(); ++size) {
            const Stopwatch watch;
            const auto found = index.search(text.substr(0, size));
            queries.push_back(watch.milliseconds());
            const Stopwatch floor;
            const void *none = std::memchr(index.text().data(), '\1', index.bytes());
            floors.push_back(floor.milliseconds());
            if (none != nullptr || found.size() > kThings) {
                Bench::giveUp("the texts of the palette are not what they should be");
            }
        }
    }
    return Bench::limitRow("a query among 20,000 things, p95", Bench::percentile(queries, 0.95),
                           Bench::percentile(floors, 0.95), "ms", 8);
}

class Frames
{
public:
    explicit Frames(QQuickWindow &window) : m_window{window} {}

    // Milliseconds until a frame has been shown of which this holds. It is asked at the frame
    // itself: one turn of the loop can both make it hold and draw the only frame of it.
    template <class Condition>
    double until(const char *what, const Stopwatch &watch, Condition condition)
    {
        constexpr double kPatience = 5000;
        bool isShown = false;
        const auto frame = QObject::connect(&m_window, &QQuickWindow::frameSwapped,
                                            [&] { isShown = isShown || condition(); });
        while (!isShown && watch.milliseconds() < kPatience) {
            QCoreApplication::processEvents(QEventLoop::AllEvents, 1);
        }
        QObject::disconnect(frame);
        if (!isShown) {
            Bench::giveUp(std::string{"no frame was drawn of "} + what);
        }
        return watch.milliseconds();
    }

private:
    QQuickWindow &m_window;
};

void settle(int milliseconds)
{
    QElapsedTimer timer;
    timer.start();
    while (timer.elapsed() < milliseconds) {
        QCoreApplication::processEvents(QEventLoop::AllEvents, 5);
    }
}

// A bare window of the same size that has been made already.
Milliseconds measureBareWindow(const QSize &size)
{
    QQuickWindow window;
    window.setFlag(Qt::BypassWindowManagerHint);
    window.resize(size);
    window.create();
    Frames frames{window};
    Milliseconds shown;
    for (int round = 0; round < kRounds; ++round) {
        const Stopwatch watch;
        window.show();
        shown.push_back(frames.until("a bare window", watch, [] { return true; }));
        window.hide();
        settle(40);
    }
    return shown;
}

std::vector<Bench::Row> measureShowing(XKeys &keys, App &app, PaletteWindow &window)
{
    constexpr std::uint32_t kControl = 0xFFE3;
    constexpr std::uint32_t kShift = 0xFFE1;
    constexpr std::uint32_t kEscape = 0xFF1B;
    Frames frames{window};
    Milliseconds shown;
    Milliseconds typed;
    for (int round = 0; round < kRounds; ++round) {
        keys.press(kControl);
        keys.press(kShift);
        settle(20);
        const Stopwatch watch;
        keys.tap(' ');
        shown.push_back(frames.until("the palette", watch, [&] { return window.isVisible(); }));
        keys.release(kShift);
        keys.release(kControl);
        settle(250); // the fade
        const Stopwatch letter;
        keys.tap('s');
        typed.push_back(
            frames.until("a letter", letter, [&] { return app.palette()->query() == u"s"; }));
        keys.tap(kEscape);
        keys.tap(kEscape);
        settle(60);
        if (window.isVisible()) {
            Bench::giveUp("the palette did not close");
        }
    }
    const double floor = Bench::percentile(measureBareWindow(window.size()), 0.95);
    return {Bench::limitRow("the palette's key to its frame, p95",
                            Bench::percentile(shown, 0.95), floor, "ms", 80),
            Bench::limitRow("a letter to the frame of its results, p95",
                            Bench::percentile(typed, 0.95), floor, "ms", 80)};
}

} // namespace

std::vector<Bench::Row> paletteSuite()
{
    std::vector<Bench::Row> rows{measureQueries()};
    XKeys keys;
    if (!keys.isAvailable()) {
        Bench::giveUp("there is no X server that takes keys from tests");
    }
    const QTemporaryDir data;
    const std::filesystem::path file =
        data.filePath(QStringLiteral("kest.sqlite")).toStdString();
    auto store = Bench::must(KestCore::StateStore::open(file));
    auto first = Bench::must(store.snapshot());
    ApplicationModel model{std::make_unique<StateKeeper>(file, std::move(store)),
                           committedAll(std::move(first)), Base::wallClock};
    App app{model};
    Theme theme{model};
    QQmlEngine engine;
    prepareEngine(engine, app, theme);
    PaletteWindow window{engine, app};
    if (!window.prepare()) {
        Bench::giveUp("the palette cannot be made");
    }
    const GlobalKeys hotkey{model, *app.palette(), QDBusConnection::sessionBus()};
    settle(500);
    const auto more = measureShowing(keys, app, window);
    rows.insert(rows.end(), more.begin(), more.end());
    return rows;
}

} // namespace Velvetnook
