// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "RunningModel.h"
#include "Velvetnook/Application/App.h"

#include <QMetaMethod>
#include <QSignalSpy>

#include <gtest/gtest.h>

#include <memory>
#include <vector>

// A count is to be seen at once: views that show nothing of it must not be made anew by it.
namespace
{

using namespace Velvetnook;

// All that the objects tell.
class Ear
{
public:
    explicit Ear(const std::vector<QObject *> &objects)
    {
        for (const QObject *object : objects) {
            const QMetaObject *kind = object->metaObject();
            for (int index = QObject::staticMetaObject.methodCount();
                 index < kind->methodCount(); ++index) {
                if (kind->method(index).methodType() == QMetaMethod::Signal) {
                    m_spies.push_back(
                        std::make_unique<QSignalSpy>(object, kind->method(index)));
                }
            }
        }
    }

    // What was told since the last call.
    QByteArrayList told()
    {
        QByteArrayList names;
        for (const auto &spy : m_spies) {
            if (!spy->isEmpty()) {
                names.push_back(spy->signal());
                spy->clear();
            }
        }
        return names;
    }

private:
    std::vector<std::unique_ptr<QSignalSpy>> m_spies;
};

void count(KestCore::NativeState &state)
{
    ++state.devotional.session.count;
    ++state.devotional.revision;
}

TEST(HiddenViews, ACountTellsNothingToViewsThatDoNotShowIt)
{
    RunningModel running{[](KestCore::NativeState &state) {
        state.settings["prayer.latitude"] = "51.5074";
        state.settings["prayer.longitude"] = "-0.1278";
        state.settings["prayer.timezone"] = "Europe/London";
    }};
    App app{running.model()};
    SettingsViewModel *settings = app.settings();
    struct Case {
        const char *name;
        std::vector<QObject *> objects;
    };
    for (const auto &[name, objects] :
         {Case{"prayer", {app.prayer()}}, Case{"timers", {app.timers()}},
          Case{"friday", {app.friday()}}, Case{"names", {app.names()}},
          Case{"reminders", {app.reminders()}},
          Case{"settings",
               {settings->general(), settings->appearance(), settings->notch(),
                settings->place(), settings->prayer(), settings->tools()}}}) {
        SCOPED_TRACE(name);
        QCoreApplication::processEvents(); // what was put off before
        Ear ear{objects};
        running.change(count);
        running.change(count);
        EXPECT_EQ(ear.told(), QByteArrayList{});
        running.change([](KestCore::NativeState &state) {
            state.settings["appearance.digits"] =
                state.settings["appearance.digits"] == "arabic" ? "latin" : "arabic";
        });
        EXPECT_NE(ear.told(), QByteArrayList{}) << "a choice is not told either";
    }
    QCoreApplication::processEvents();
    Ear units{{app.units()}};
    running.change(count);
    EXPECT_EQ(units.told(), QByteArrayList{});
}

} // namespace
