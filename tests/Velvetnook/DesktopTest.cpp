// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Velvetnook/Platform/Desktop.h"

#include "FakeNotificationServer.h"
#include "RunningModel.h"
#include "Velvetnook/Application/Alarms.h"
#include "Velvetnook/Application/App.h"
#include "Velvetnook/Application/PrayerWatch.h"
#include "Velvetnook/Platform/Autostart.h"
#include "Velvetnook/Platform/CapabilityList.h"
#include "Velvetnook/Platform/TrayMenu.h"

#include <QSignalSpy>

#include <gmock/gmock.h>

namespace Velvetnook
{

namespace
{

using testing::ElementsAre;

class FakeAutostart : public Autostart
{
public:
    struct Desk {
        Standing standing = Standing::off;
        std::string refusal{};
    };
    explicit FakeAutostart(Desk &desk) : m_desk{desk} {}

    Standing standing() const override { return m_desk.standing; }
    Base::Result<void> set(bool isOn) override
    {
        if (!m_desk.refusal.empty()) {
            return std::unexpected(Base::KestError::unavailable(m_desk.refusal));
        }
        m_desk.standing = isOn ? Standing::on : Standing::off;
        return {};
    }

private:
    Desk &m_desk;
};

class DesktopTest : public testing::Test
{
protected:
    void begin()
    {
        m_desktop.emplace(m_app, m_running.model(), m_bus.connect(), m_bus.connect(),
                          std::make_unique<FakeAutostart>(m_autostart));
        m_desktop->begin();
    }
    void setLaunchAtLogin(const char *value)
    {
        m_running.change([value](KestCore::NativeState &state) {
            state.settings["general.launchAtLogin"] = value;
        });
    }
    std::string launchAtLogin()
    {
        m_running.settle();
        return std::string{m_running.model().setting("general.launchAtLogin")};
    }
    std::string status() const { return m_running.state().devotional.notificationStatus; }

    PrivateBus m_bus;
    RunningModel m_running;
    App m_app{m_running.model()};
    FakeAutostart::Desk m_autostart;
    std::optional<Desktop> m_desktop;
};

const QStringList kAll{QStringLiteral("body"), QStringLiteral("actions"),
                       QStringLiteral("sound")};

TEST_F(DesktopTest, TheTestNotificationSaysWhetherNotificationsAreAllowed)
{
    begin();
    QSignalSpy reported{&m_app.alarms(), &Alarms::previewReported};
    m_app.alarms().requestPreview();
    ASSERT_TRUE(eventually([&] { return !reported.isEmpty(); }));
    EXPECT_EQ(reported.takeFirst(), QVariantList{false}) << "nobody is there";

    FakeNotificationServer server{m_bus.connect(), kAll};
    m_app.alarms().requestPreview();
    ASSERT_TRUE(eventually([&] { return !reported.isEmpty(); }));
    EXPECT_EQ(reported.takeFirst(), QVariantList{true});
    ASSERT_EQ(server.received().size(), 1);
    EXPECT_EQ(server.received().front().title, QStringLiteral("Velvetnook — Preview"));
    EXPECT_TRUE(eventually([&] { return status() == "allowed"; }));

    server.refuseAll();
    m_app.alarms().requestPreview();
    ASSERT_TRUE(eventually([&] { return !reported.isEmpty(); }));
    EXPECT_EQ(reported.takeFirst(), QVariantList{false});
    EXPECT_TRUE(eventually([&] { return status() == "denied"; }));
}

TEST_F(DesktopTest, AClickOnANotificationOpensWhatItIsAbout)
{
    begin();
    FakeNotificationServer server{m_bus.connect(), kAll};
    QSignalSpy opened{m_app.panel(), &PanelViewModel::openWanted};
    emit m_app.alarms().notificationWanted(
        {.id = QStringLiteral("prayer-asr"), .title = QStringLiteral("Asr")});
    ASSERT_TRUE(eventually([&] { return !server.received().empty(); }));
    settle(m_bus.connect());
    emit server.ActionInvoked(41, QStringLiteral("default"));
    ASSERT_TRUE(eventually([&] { return !opened.isEmpty(); }));
    EXPECT_EQ(m_app.panel()->tool(), QStringLiteral("prayer"));

    emit m_app.alarms().notificationObsolete(QStringLiteral("prayer-asr"));
    EXPECT_TRUE(eventually([&] { return !server.closed().empty(); }));
}

TEST_F(DesktopTest, TheStartAtLoginFollowsTheSettingAndTheDesktopsWord)
{
    using Standing = Autostart::Standing;
    setLaunchAtLogin("true");
    m_autostart.standing = Standing::turnedOff;
    begin();
    EXPECT_EQ(launchAtLogin(), "false") << "the user has turned it off elsewhere";
    EXPECT_EQ(m_autostart.standing, Standing::turnedOff);

    setLaunchAtLogin("true");
    EXPECT_EQ(m_autostart.standing, Standing::on);
    setLaunchAtLogin("false");
    EXPECT_EQ(m_autostart.standing, Standing::off);

    m_autostart.refusal = "/x: Permission denied";
    setLaunchAtLogin("true");
    EXPECT_EQ(m_app.settings()->general()->launchRefusal(),
              QStringLiteral("/x: Permission denied"));
    m_autostart.refusal.clear();
    setLaunchAtLogin("false");
    EXPECT_EQ(m_app.settings()->general()->launchRefusal(), QString{});
}

TEST_F(DesktopTest, IsWrittenAnewWhereTheFileIsMissing)
{
    setLaunchAtLogin("true");
    begin();
    EXPECT_EQ(m_autostart.standing, Autostart::Standing::on);
}

TEST_F(DesktopTest, TheMenuCountsPausesAndSaysWhatIsTrue)
{
    m_running.change([](KestCore::NativeState &state) {
        state.devotional.session.target = 33;
        state.devotional.session.count = 20;
        state.settings["appearance.language"] = "en";
        state.settings["prayer.latitude"] = "51.5074";
        state.settings["prayer.longitude"] = "-0.1278";
        state.settings["prayer.timezone"] = "Europe/London";
    });
    begin();
    PrayerWatch prayers{m_running.model()};
    const auto labels = [&] {
        std::vector<std::string> found;
        for (const TrayItem &item : trayMenu(m_running.model(), *m_app.format(), prayers)) {
            found.push_back(item.label.toStdString());
        }
        return found;
    };
    const auto act = [this](const char *action) {
        m_desktop->act(QString::fromLatin1(action));
        m_running.settle();
    };
    act("count");
    EXPECT_EQ(m_running.state().devotional.session.count, 21);
    EXPECT_THAT(labels(), ElementsAre("Open Velvetnook", "Count Subḥāna llāh (21 of 33)", "",
                                      "Asr at 13:48", "Pause reminders for an hour", "",
                                      "Settings…", "Quit"));
    act("pause-reminders");
    EXPECT_EQ(labels().at(4), "Resume reminders");
    m_running.pass(Base::Seconds{3601});
    EXPECT_EQ(labels().at(4), "Pause reminders for an hour") << "the pause is over";
    act("pause-reminders");
    act("resume-reminders");
    EXPECT_EQ(m_running.state().devotional.pausedUntil, std::nullopt);
    EXPECT_EQ(labels().at(4), "Pause reminders for an hour");
}

TEST_F(DesktopTest, TheCapabilitiesAreAskedWhenSomebodyLooks)
{
    begin();
    settle(m_bus.connect());
    const QAbstractItemModel *const list = m_app.settings()->about()->capabilities();
    ASSERT_NE(list, nullptr);
    EXPECT_EQ(list->rowCount(), 0);
    m_app.settings()->open(QStringLiteral("about"));
    EXPECT_TRUE(eventually([&] { return list->rowCount() > 0; }));
}

} // namespace

} // namespace Velvetnook
