// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "KestCore/Devotional/Counting.h"
#include "KestCore/Store/StateStore.h"
#include "Velvetnook/Application/App.h"
#include "Velvetnook/Application/ApplicationModel.h"
#include "Velvetnook/Shell/Engine.h"
#include "Velvetnook/Shell/Theme.h"
#include "bench/Samples.h"

#include <QElapsedTimer>
#include <QGuiApplication>
#include <QMouseEvent>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickWindow>
#include <QTemporaryDir>
#include <QTimer>

#include <algorithm>
#include <cstdio>
#include <memory>
#include <vector>

// VelvetnookBench [CLICKS]: clicks on the ring of the counter in a window that nobody sees,
// over a store on the disk of the build, and tells how long it takes until the count is
// committed and until the number is drawn. Beside it, what the engine and the disk need alone.
namespace Velvetnook
{

namespace
{

constexpr double kGoalMs = 16;

[[noreturn]] void giveUp(const std::string &message)
{
    std::fprintf(stderr, "%s\n", message.c_str());
    std::exit(1);
}

template <class T>
T must(Result<T> result)
{
    if (!result) {
        giveUp(result.error().message);
    }
    if constexpr (!std::is_void_v<T>) {
        return *std::move(result);
    }
}

struct Times {
    std::vector<double> ms{};

    double at(double share) const
    {
        std::vector<double> sorted = ms;
        std::ranges::sort(sorted);
        const auto last = static_cast<double>(sorted.size() - 1);
        return sorted.at(static_cast<std::size_t>(last * share));
    }
};

void print(const char *name, const Times &times, bool hasGoal)
{
    const double p95 = times.at(0.95);
    const char *verdict = p95 <= kGoalMs ? "met" : "missed";
    std::printf("  %-44s p50 %6.2f ms   p95 %6.2f ms   worst %6.2f ms   %s\n", name,
                times.at(0.5), p95, times.at(1), hasGoal ? verdict : "");
}

double since(const QElapsedTimer &timer)
{
    return static_cast<double>(timer.nsecsElapsed()) / 1'000'000.0;
}

Times measureDisk(KestCore::StateStore &store, int rounds)
{
    Times times;
    for (int n = 0; n < rounds; ++n) {
        QElapsedTimer timer;
        timer.start();
        must(store.change([](KestCore::NativeState &state) -> Result<void> {
            KEST_CHECK(
                KestCore::apply(KestCore::Increment{}, Base::wallClock(), state.devotional));
            return {};
        }));
        times.ms.push_back(since(timer));
    }
    return times;
}

// The panel with its counter, in a window.
class Desk
{
public:
    Desk(const std::filesystem::path &file, KestCore::StateStore store)
        : m_first{must(store.snapshot())},
          m_model{std::make_unique<StateKeeper>(file, std::move(store)),
                  committedAll(std::move(m_first)), Base::wallClock},
          m_app{m_model}, m_theme{m_model}
    {
        prepareEngine(m_engine, m_app, m_theme);
        QQmlComponent component{
            &m_engine, QStringLiteral("qrc:/Velvetnook/Shell/Surfaces/PanelSurface.qml")};
        m_surface.reset(qobject_cast<QQuickItem *>(component.createWithInitialProperties(
            {{QStringLiteral("view"), QStringLiteral("dhikr")}})));
        if (!m_surface) {
            giveUp(component.errorString().toStdString());
        }
        m_window.resize(640, 320);
        m_surface->setParentItem(m_window.contentItem());
        m_surface->setSize({640, 320});
        m_window.show();
        wait(500);
    }
    ~Desk() { m_surface->setParentItem(nullptr); }
    Desk(const Desk &) = delete;
    Desk &operator=(const Desk &) = delete;

    static void wait(int ms)
    {
        QEventLoop loop;
        QTimer::singleShot(ms, &loop, &QEventLoop::quit);
        loop.exec();
    }

    void press()
    {
        const QPointF ring{130, 162};
        for (const auto type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
            QMouseEvent event{type,
                              ring,
                              ring,
                              ring,
                              Qt::LeftButton,
                              type == QEvent::MouseButtonPress ? Qt::LeftButton : Qt::NoButton,
                              Qt::NoModifier};
            m_time += 200;
            event.setTimestamp(m_time);
            QCoreApplication::sendEvent(&m_window, &event);
        }
    }

    void click(Times &committed, Times &drawn)
    {
        QElapsedTimer timer;
        QEventLoop loop;
        double committedAt = 0;
        const auto count = QObject::connect(m_app.counter(), &CounterViewModel::countChanged,
                                            [&] { committedAt = since(timer); });
        const auto frame = QObject::connect(&m_window, &QQuickWindow::frameSwapped, [&] {
            if (committedAt > 0) {
                drawn.ms.push_back(since(timer));
                loop.quit();
            }
        });
        timer.start();
        press();
        QTimer::singleShot(5'000, &loop, [] { giveUp("a click was not drawn"); });
        loop.exec();
        QObject::disconnect(count);
        QObject::disconnect(frame);
        committed.ms.push_back(committedAt);
    }

    // As quick as they can be made: until the last number is drawn.
    double burst(int clicks)
    {
        const qlonglong wanted = m_app.counter()->count() + clicks;
        QElapsedTimer timer;
        QEventLoop loop;
        const auto frame = QObject::connect(&m_window, &QQuickWindow::frameSwapped, [&] {
            if (m_app.counter()->count() == wanted) {
                loop.quit();
            }
        });
        timer.start();
        for (int n = 0; n < clicks; ++n) {
            press();
        }
        QTimer::singleShot(60'000, &loop, [] { giveUp("a click of many was lost"); });
        loop.exec();
        QObject::disconnect(frame);
        return since(timer);
    }

    void check()
    {
        const QImage before = m_window.grabWindow();
        Times none;
        click(none, none);
        wait(400);
        if (before == m_window.grabWindow()) {
            giveUp("a click does not show");
        }
    }

private:
    KestCore::Snapshot m_first;
    ApplicationModel m_model;
    App m_app;
    Theme m_theme;
    QQmlEngine m_engine;
    QQuickWindow m_window;
    std::unique_ptr<QQuickItem> m_surface;
    ulong m_time = 1'000;
};

void measure(std::size_t sessions, bool hasMotion, int clicks)
{
    const QTemporaryDir folder{QStringLiteral(KEST_BENCH_FOLDER "/click-XXXXXX")};
    const std::filesystem::path file =
        folder.filePath(QStringLiteral("kest.sqlite")).toStdString();
    auto store = must(KestCore::StateStore::open(file));
    must(store.change([&](KestCore::NativeState &state) -> Result<void> {
        state = Bench::stateWithSessions(sessions);
        state.devotional.session.isPaused = false;
        state.settings["appearance.reduceMotion"] = hasMotion ? "false" : "true";
        return {};
    }));
    const Times disk = measureDisk(store, clicks);
    Desk desk{file, std::move(store)};
    desk.check();
    Times committed;
    Times drawn;
    for (int n = 0; n < clicks; ++n) {
        desk.click(committed, drawn);
        Desk::wait(40);
    }
    std::printf("%zu finished sessions, %s motion, %d clicks\n", sessions,
                hasMotion ? "with" : "reduced", clicks);
    print("engine and disk alone", disk, false);
    print("click to committed count", committed, false);
    print(hasMotion ? "click to the first frame of the new number" : "click to number drawn",
          drawn, true);
    std::printf("  %d clicks at once until the last is drawn: %.0f ms\n", clicks,
                desk.burst(clicks));
}

} // namespace

} // namespace Velvetnook

int main(int argc, char **argv)
{
    setenv("QT_QPA_PLATFORM", "offscreen", 0);
    QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
    const QGuiApplication application{argc, argv};
    const int clicks = argc > 1 ? std::max(20, atoi(argv[1])) : 300;
    std::filesystem::create_directories(KEST_BENCH_FOLDER);
    Velvetnook::measure(0, false, clicks);
    Velvetnook::measure(0, true, clicks);
    Velvetnook::measure(1'000, false, clicks);
    Velvetnook::measure(100'000, false, std::min(clicks, 60));
    return 0;
}
