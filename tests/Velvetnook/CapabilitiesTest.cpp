// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "PrivateBus.h"
#include "Velvetnook/Platform/CapabilityList.h"
#include "Velvetnook/Platform/Linux/SessionProbe.h"

#include <QAbstractItemModelTester>
#include <QSignalSpy>

#include <gmock/gmock.h>

#include <algorithm>

namespace Velvetnook
{

namespace
{

using Level = Capability::Level;

// A desktop that gives everything.
SessionFacts wholeDesktop()
{
    return {.sessionType = QStringLiteral("x11"),
            .hasXServer = true,
            .windowManager = QStringLiteral("Openbox"),
            .tellsFullScreen = true,
            .composites = true,
            .hasSessionBus = true,
            .hasNotifications = true,
            .hasTrayWatcher = true,
            .hasTrayHost = true,
            .hasSecrets = true,
            .hasSettingsPortal = true,
            .hasLogin = true,
            .soundServer = QStringLiteral("/run/pulse"),
            .hotkey = {.level = HotkeyState::Level::full, .reason = {}}};
}

Capability find(const std::vector<Capability> &all, const char *id)
{
    const auto found = std::ranges::find(all, QString::fromLatin1(id), &Capability::id);
    return found == all.end() ? Capability{} : *found;
}

TEST(Capabilities, EachLackIsSeenWhereItCountsAndNowhereElse)
{
    struct Case {
        const char *id;
        Level level;
        void (*spoil)(SessionFacts &);
    };
    for (const auto &[id, level, spoil] : {
             Case{"edge", Level::degraded, [](auto &facts) { facts.tellsFullScreen = false; }},
             Case{"compositing", Level::degraded,
                  [](auto &facts) { facts.composites = false; }},
             Case{"hotkey", Level::unknown, [](auto &facts) { facts.hotkey = {}; }},
             Case{"hotkey", Level::off,
                  [](auto &facts) {
                      facts.hotkey = {.level = HotkeyState::Level::off,
                                      .reason = QStringLiteral("none")};
                  }},
             Case{"notifications", Level::off,
                  [](auto &facts) { facts.hasNotifications = false; }},
             Case{"notifications", Level::degraded,
                  [](auto &facts) { facts.notificationAbilities = {QStringLiteral("body")}; }},
             Case{"tray", Level::off, [](auto &facts) { facts.hasTrayHost = false; }},
             Case{"secrets", Level::off, [](auto &facts) { facts.hasSecrets = false; }},
             Case{"sound", Level::off, [](auto &facts) { facts.soundServer.clear(); }},
             Case{"look", Level::off, [](auto &facts) { facts.hasSettingsPortal = false; }},
             Case{"sleep", Level::degraded, [](auto &facts) { facts.hasLogin = false; }},
         }) {
        SCOPED_TRACE(id);
        SessionFacts facts = wholeDesktop();
        spoil(facts);
        for (const Capability &one : capabilitiesOf(facts)) {
            const bool isSpoilt = one.id == QLatin1String{id};
            EXPECT_EQ(one.level, isSpoilt ? level : Level::full) << one.id.toStdString();
            EXPECT_FALSE(one.reason.isEmpty()) << one.id.toStdString();
        }
    }
}

TEST(Capabilities, TheKindOfSessionDecidesAboutTheStripAndTheKey)
{
    struct Case {
        const char *name;
        const char *type;
        bool hasXServer;
        Level edge;
        HotkeyState::Level told; // by who has asked for the key
        Level hotkey;
    };
    using Told = HotkeyState::Level;
    for (const auto &[name, type, hasXServer, edge, told, hotkey] : {
             Case{"X11", "x11", true, Level::full, Told::full, Level::full},
             Case{"startx", "tty", true, Level::full, Told::full, Level::full},
             Case{"XWayland, and the desktop gave it", "wayland", true, Level::degraded,
                  Told::full, Level::full},
             Case{"Wayland, and it did not", "wayland", false, Level::off, Told::degraded,
                  Level::degraded},
             Case{"a terminal", "tty", false, Level::off, Told::untried, Level::unknown},
         }) {
        SCOPED_TRACE(name);
        SessionFacts facts = wholeDesktop();
        facts.sessionType = QString::fromLatin1(type);
        facts.hasXServer = hasXServer;
        facts.hotkey = {.level = told, .reason = {}};
        const auto all = capabilitiesOf(facts);
        EXPECT_EQ(find(all, "edge").level, edge);
        EXPECT_EQ(find(all, "hotkey").level, hotkey);
        EXPECT_EQ(find(all, "hotkey").wayOut.contains(u"kest palette toggle"),
                  hotkey != Level::full);
    }
}

TEST(Capabilities, TheProbeEndsWithoutAnyBusAndFindsWhatABusHas)
{
    qunsetenv("DISPLAY");
    SessionProbe without{noBus(), noBus()};
    QSignalSpy ended{&without, &SessionProbe::done};
    without.begin();
    without.begin(); // one that is on its way is enough
    ASSERT_TRUE(eventually([&] { return !ended.isEmpty(); }));
    EXPECT_FALSE(without.facts().hasSessionBus);
    EXPECT_FALSE(without.facts().hasXServer);

    PrivateBus bus;
    auto other = bus.connect();
    ASSERT_TRUE(other.registerService(QStringLiteral("org.freedesktop.secrets")));
    ASSERT_TRUE(other.registerService(QStringLiteral("org.freedesktop.login1")));
    // Has the name and does not answer as one that shows notifications would.
    ASSERT_TRUE(other.registerService(QStringLiteral("org.freedesktop.Notifications")));
    SessionProbe probe{bus.connect(), bus.connect()};
    QSignalSpy found{&probe, &SessionProbe::done};
    probe.begin();
    ASSERT_TRUE(eventually([&] { return !found.isEmpty(); }));
    EXPECT_TRUE(probe.facts().hasSecrets);
    EXPECT_TRUE(probe.facts().hasLogin);
    EXPECT_FALSE(probe.facts().hasNotifications);
    EXPECT_FALSE(probe.facts().hasTrayHost);
    EXPECT_EQ(ended.size(), 1);
}

TEST(Capabilities, TheListChangesOnlyTheLinesThatChanged)
{
    CapabilityList list;
    const QAbstractItemModelTester tester{&list};
    list.show(capabilitiesOf(wholeDesktop()));
    QSignalSpy changed{&list, &QAbstractItemModel::dataChanged};
    auto facts = wholeDesktop();
    facts.soundServer.clear();
    list.show(capabilitiesOf(facts));
    ASSERT_EQ(changed.size(), 1);
    const auto row = changed.first().first().toModelIndex();
    EXPECT_EQ(row.data(CapabilityList::level), QStringLiteral("off"));
    EXPECT_EQ(row.data(CapabilityList::name), QStringLiteral("Sounds"));
}

} // namespace

} // namespace Velvetnook
