// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "KestCore/Devotional/Content.h"
#include "KestCore/Store/StateStore.h"
#include "KestCore/Surfaces/PaletteIndex.h"
#include "KestCore/Tools/Emoji.h"
#include "Velvetnook/Application/App.h"
#include "Velvetnook/Application/ApplicationModel.h"
#include "Velvetnook/Platform/PaletteHotkey.h"
#include "Velvetnook/Platform/PaletteWindow.h"
#include "Velvetnook/Shell/Engine.h"
#include "Velvetnook/Shell/Theme.h"
#include "bench/XKeys.h"

#include <QElapsedTimer>
#include <QGuiApplication>
#include <QQmlEngine>
#include <QTemporaryDir>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstring>
#include <random>

// How long the palette takes to find among 20,000 things, and from its key to the frame that
// shows it and the frame that shows what is typed.
namespace
{

using Milliseconds = std::vector<double>;

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

double percentile(Milliseconds times, double share)
{
    std::ranges::sort(times);
    return times.at(static_cast<std::size_t>(share * static_cast<double>(times.size() - 1)));
}

void print(const char *what, const Milliseconds &times, double goal)
{
    const double p95 = percentile(times, 0.95);
    std::printf("%-34s median %7.2f ms, p95 %7.2f ms, worst %7.2f ms  (goal p95 %g ms: %s)\n",
                what, percentile(times, 0.5), p95, percentile(times, 1), goal,
                p95 <= goal ? "met" : "MISSED");
}

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

void measureQueries()
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
                std::puts("the texts are not what they should be");
            }
        }
    }
    print("a query among 20,000 things", queries, 8);
    std::printf("%-34s median %7.3f ms over %.1f MB: %.0f times that\n",
                "floor: one pass over the texts", percentile(floors, 0.5),
                static_cast<double>(index.bytes()) / 1e6,
                percentile(queries, 0.95) / percentile(floors, 0.5));
}

class Frames
{
public:
    explicit Frames(QQuickWindow &window)
    {
        QObject::connect(&window, &QQuickWindow::frameSwapped, [this] { ++m_count; });
    }

    // Milliseconds until this holds and a frame has been shown since.
    template <class Condition>
    double until(const Stopwatch &watch, Condition condition)
    {
        constexpr double kPatience = 5000;
        while (!condition() && watch.milliseconds() < kPatience) {
            QCoreApplication::processEvents(QEventLoop::AllEvents, 1);
        }
        const int before = m_count;
        while (m_count == before && watch.milliseconds() < kPatience) {
            QCoreApplication::processEvents(QEventLoop::AllEvents, 1);
        }
        return watch.milliseconds();
    }

private:
    int m_count = 0;
};

void settle(int milliseconds)
{
    QElapsedTimer timer;
    timer.start();
    while (timer.elapsed() < milliseconds) {
        QCoreApplication::processEvents(QEventLoop::AllEvents, 5);
    }
}

void measureShowing(XKeys &keys, Velvetnook::App &app, Velvetnook::PaletteWindow &window)
{
    constexpr int kRounds = 60;
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
        shown.push_back(frames.until(watch, [&] { return window.isVisible(); }));
        keys.release(kShift);
        keys.release(kControl);
        settle(250); // the fade
        const Stopwatch letter;
        keys.tap('s');
        typed.push_back(frames.until(letter, [&] { return app.palette()->query() == u"s"; }));
        keys.tap(kEscape);
        keys.tap(kEscape);
        settle(60);
        if (window.isVisible()) {
            std::puts("the palette did not close");
            return;
        }
    }
    std::printf("%-34s %.2f ms\n", "the first of the showings below", shown.front());
    print("from the key to the first frame", shown, 80);
    print("from a letter to its results", typed, 80);
}

} // namespace

int main(int argc, char **argv)
{
    using namespace Velvetnook;
    measureQueries();
    XKeys keys;
    if (!keys.isAvailable()) {
        std::puts("There is no X server that takes keys from tests: showing is not measured.");
        return 0;
    }
    setenv("QT_QPA_PLATFORM", "xcb", 1);
    QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
    const QGuiApplication application{argc, argv};
    const QTemporaryDir data;
    const std::filesystem::path file =
        data.filePath(QStringLiteral("kest.sqlite")).toStdString();
    auto store = KestCore::StateStore::open(file);
    auto snapshot = store ? store->snapshot() : std::unexpected(store.error());
    if (!snapshot) {
        std::fprintf(stderr, "%s\n", snapshot.error().message.c_str());
        return 1;
    }
    ApplicationModel model{std::make_unique<StateKeeper>(file, std::move(*store)),
                           committedAll(std::move(*snapshot)), Base::wallClock};
    App app{model};
    Theme theme{model};
    QQmlEngine engine;
    prepareEngine(engine, app, theme);
    PaletteWindow window{engine, app};
    if (!window.prepare()) {
        return 1;
    }
    const PaletteHotkey hotkey{model, *app.palette()};
    settle(500);
    measureShowing(keys, app, window);
    return 0;
}
