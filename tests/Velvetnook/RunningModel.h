// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "KestCore/Store/StateStore.h"
#include "Velvetnook/Application/ApplicationModel.h"
#include "Velvetnook/Application/Formatting.h"
#include "tests/TemporaryFolder.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QEventLoop>

#include <gtest/gtest.h>

#include <functional>
#include <memory>

// The application's model over a real store, at a time of the test's choosing, in London.
class RunningModel
{
public:
    using Prepare = std::function<void(KestCore::NativeState &)>;

    // Friday 14 November 2025, 13:06.
    static constexpr Base::Instant kStart{Base::Seconds{1'763'125'560.0}};

    explicit RunningModel(const Prepare &prepare = {})
    {
        startQt();
        auto store = KestCore::StateStore::open(m_folder.database()).value();
        store
            .change([&](KestCore::NativeState &state) -> Base::Result<void> {
                if (prepare) {
                    prepare(state);
                }
                state.settings["appearance.language"] = "en";
                state.settings["appearance.clock"] = "24";
                return {};
            })
            .value();
        open(std::move(store));
    }

    Velvetnook::ApplicationModel &model() { return *m_model; }
    const Velvetnook::Formatting &formatting() const { return *m_formatting; }
    const KestCore::NativeState &state() const { return m_model->state(); }

    // Until every step that was asked for so far is answered.
    void settle()
    {
        QEventLoop loop;
        m_model->perform([](KestCore::StateStore &) { return Velvetnook::Committed{}; },
                         [&loop](const Base::Result<void> &) { loop.quit(); });
        loop.exec();
    }

    // Moves the clock and lets what is due happen.
    void pass(Base::Seconds seconds)
    {
        m_now += seconds;
        m_model->clock().tick();
        settle();
    }

    // The same, but first something else has every alarm asked again.
    void passAndAskAgain(Base::Seconds seconds)
    {
        m_now += seconds;
        m_model->clock().reschedule();
        settle();
    }

    void change(const Prepare &prepare)
    {
        m_model->changeState([prepare](KestCore::NativeState &state) -> Base::Result<void> {
            prepare(state);
            return {};
        });
        settle();
    }

    // Lets the loop run until this holds; false where it never does.
    template <class Condition>
    static bool waitUntil(Condition condition)
    {
        constexpr int kPatienceMs = 30'000;
        QElapsedTimer timer;
        timer.start();
        while (!condition() && timer.elapsed() < kPatienceMs) {
            QCoreApplication::processEvents(QEventLoop::AllEvents, 20);
        }
        return condition();
    }

    // As after an end of the program: what is not on the disk is gone.
    void restart()
    {
        close();
        open(KestCore::StateStore::open(m_folder.database()).value());
    }

    // A file beside the data.
    std::string path(const char *name) const { return (m_folder.path() / name).string(); }

    // What is on the disk, once this is gone.
    std::filesystem::path file() const { return m_folder.database(); }
    void close()
    {
        m_formatting.reset();
        m_model.reset();
    }

private:
    void open(KestCore::StateStore store)
    {
        auto first = Velvetnook::committedAll(store.snapshot().value());
        m_model = std::make_unique<Velvetnook::ApplicationModel>(
            std::make_unique<Velvetnook::StateKeeper>(m_folder.database(), std::move(store)),
            std::move(first), [this] { return m_now; });
        m_formatting = std::make_unique<Velvetnook::Formatting>(*m_model);
    }

    static void startQt()
    {
        static int count = 1;
        static char name[] = "test";
        static char *arguments[]{name, nullptr};
        static const bool isInLondon = setenv("TZ", "Europe/London", 1) == 0;
        ASSERT_TRUE(isInLondon);
        if (QCoreApplication::instance() == nullptr) { // else the program's main made one
            static const QCoreApplication application{count, arguments};
        }
    }

    TemporaryFolder m_folder;
    Base::Instant m_now = kStart;
    std::unique_ptr<Velvetnook::ApplicationModel> m_model;
    std::unique_ptr<Velvetnook::Formatting> m_formatting;
};
