// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "KestCore/Devotional/Counting.h"
#include "KestCore/Store/StateStore.h"
#include "Velvetnook/Application/App.h"
#include "Velvetnook/Application/ApplicationModel.h"
#include "Velvetnook/Shell/Engine.h"
#include "Velvetnook/Shell/Theme.h"
#include "bench/Samples.h"
#include "bench/Velvetnook/Suites.h"

#include <QElapsedTimer>
#include <QMouseEvent>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickWindow>
#include <QTemporaryDir>
#include <QTimer>

#include <fmt/format.h>

#include <memory>
#include <vector>

// Clicks on the ring of the counter, over a store on the disk of the build, until the count is
// committed and until the number is drawn. Beside it, what the engine and the disk need alone.
namespace Velvetnook
{

namespace
{

using Bench::giveUp;
using Bench::must;

constexpr double kGoalMs = 16;

struct Times {
    std::vector<double> ms{};

    double p95() const { return Bench::percentile(ms, 0.95); }
};

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

std::vector<Bench::Row> measure(std::size_t sessions, bool hasMotion, int clicks)
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
    const std::string name = fmt::format("{}, {} motion, {} sessions, p95",
                                         hasMotion ? "first frame" : "number drawn",
                                         hasMotion ? "with" : "no", sessions);
    return {Bench::limitRow(fmt::format("click to count committed, {} sessions, p95", sessions),
                            committed.p95(), disk.p95(), "ms", kGoalMs),
            Bench::limitRow("click to " + name, drawn.p95(), disk.p95(), "ms", kGoalMs),
            Bench::limitRow(fmt::format("each of {} clicks at once until drawn", clicks),
                            desk.burst(clicks) / clicks, disk.p95(), "ms", kGoalMs)};
}

} // namespace

std::vector<Bench::Row> clickSuite()
{
    std::filesystem::create_directories(KEST_BENCH_FOLDER);
    std::vector<Bench::Row> rows;
    constexpr int kClicks = 300;
    for (const auto &more :
         {measure(0, false, kClicks), measure(0, true, kClicks), measure(1'000, false, kClicks),
          measure(100'000, false, kClicks / 5)}) {
        rows.insert(rows.end(), more.begin(), more.end());
    }
    return rows;
}

} // namespace Velvetnook
