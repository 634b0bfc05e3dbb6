// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "FakeNotificationServer.h"
#include "Velvetnook/Platform/Linux/BusNotifications.h"

#include <QSignalSpy>

#include <gmock/gmock.h>

namespace Velvetnook
{

namespace
{

using KestCore::Availability;
using testing::ElementsAre;
using testing::IsEmpty;

const QStringList kAll{QStringLiteral("body"), QStringLiteral("body-markup"),
                       QStringLiteral("actions"), QStringLiteral("sound")};
const NotificationRequest kReminder{
    .id = QStringLiteral("kest-remembrance"),
    .title = QStringLiteral("A little remembrance"),
    .body = QStringLiteral("One & <two>\nthree"),
    .actions = {{QStringLiteral("count"), QStringLiteral("Count")}},
    .withSound = true};

class NotificationsTest : public testing::Test
{
protected:
    using Answer = Notifications::Answer;

    NotificationsTest()
    {
        QObject::connect(&m_notifications, &Notifications::answered, &m_notifications,
                         [this](const QString &id, Answer answer, const QString &reason) {
                             m_answers.emplace_back(id, answer);
                             m_reason = reason;
                         });
    }

    bool isAnswered(std::size_t times)
    {
        return eventually([&] { return m_answers.size() >= times; });
    }

    PrivateBus m_bus;
    BusNotifications m_notifications{m_bus.connect(), QStringLiteral("app.kest.native")};
    std::vector<std::pair<QString, Answer>> m_answers;
    QString m_reason;
};

TEST_F(NotificationsTest, SaysOnlyWhatTheServerUnderstands)
{
    struct Case {
        const char *name;
        QStringList abilities;
        QString title;
        QString body;
        QStringList actions;
        bool hasSoundName;
    };
    const QStringList actions{QStringLiteral("default"), QStringLiteral("Open"),
                              QStringLiteral("count"), QStringLiteral("Count")};
    for (const auto &[name, abilities, title, body, wanted, hasSoundName] : {
             Case{"all", kAll, kReminder.title, QStringLiteral("One &amp; &lt;two&gt;\nthree"),
                  actions, true},
             Case{"plain text",
                  {QStringLiteral("body")},
                  kReminder.title,
                  kReminder.body,
                  {},
                  false},
             Case{"titles only",
                  {QStringLiteral("actions")},
                  QStringLiteral("A little remembrance: One & <two> three"),
                  QString{},
                  actions,
                  false},
         }) {
        SCOPED_TRACE(name);
        m_answers.clear();
        auto server = std::make_unique<FakeNotificationServer>(m_bus.connect(), abilities);
        m_notifications.post(kReminder);
        ASSERT_TRUE(isAnswered(1));
        ASSERT_EQ(server->received().size(), 1);
        const ReceivedNotification received = server->received().front();
        EXPECT_EQ(received.title, title);
        EXPECT_EQ(received.body, body);
        EXPECT_EQ(received.actions, wanted);
        EXPECT_EQ(received.hints.contains(QStringLiteral("sound-name")), hasSoundName);
        EXPECT_EQ(received.hints.value(QStringLiteral("desktop-entry")),
                  QStringLiteral("app.kest.native"));
        server.reset();
        ASSERT_TRUE(eventually([&] { return !m_notifications.state().isReady(); }));
    }
}

TEST_F(NotificationsTest, AnActionComesBackUnderTheIdOfItsRequest)
{
    FakeNotificationServer server{m_bus.connect(), kAll};
    QSignalSpy invoked{&m_notifications, &Notifications::actionInvoked};
    m_notifications.post(kReminder);
    ASSERT_TRUE(isAnswered(1));
    emit server.ActionInvoked(7, QStringLiteral("count")); // another program's
    emit server.ActionInvoked(41, QStringLiteral("count"));
    ASSERT_TRUE(eventually([&] { return !invoked.isEmpty(); }));
    EXPECT_EQ(invoked.size(), 1);
    EXPECT_EQ(invoked.first(), (QVariantList{kReminder.id, QStringLiteral("count")}));
}

TEST_F(NotificationsTest, OneWithTheSameIdTakesThePlaceOfTheOneThatIsShown)
{
    FakeNotificationServer server{m_bus.connect(), kAll};
    auto second = kReminder;
    second.body = QStringLiteral("second");
    m_notifications.post(kReminder);
    m_notifications.post(second); // before the first has a number
    ASSERT_TRUE(eventually([&] { return !server.received().empty(); }));
    m_notifications.post(kReminder);
    ASSERT_TRUE(isAnswered(2));
    m_notifications.post(second);
    ASSERT_TRUE(isAnswered(3));
    EXPECT_EQ(server.received().front().replaces, 0);
    EXPECT_EQ(server.received().back().replaces, 41);
    EXPECT_EQ(server.received().back().body, QStringLiteral("second"));

    emit server.NotificationClosed(41, 2);
    settle(m_bus.connect());
    m_notifications.post(kReminder);
    ASSERT_TRUE(isAnswered(4));
    EXPECT_EQ(server.received().back().replaces, 0);
}

TEST_F(NotificationsTest, AWithdrawnOneIsClosedEvenBeforeItHasANumber)
{
    FakeNotificationServer server{m_bus.connect(), kAll};
    m_notifications.post(kReminder);
    ASSERT_TRUE(eventually([&] { return m_notifications.state().isReady(); }));
    m_notifications.withdraw(kReminder.id);
    EXPECT_TRUE(eventually([&] { return !server.closed().empty(); }));
    EXPECT_THAT(server.closed(), ElementsAre(41));
    m_notifications.withdraw(kReminder.id);
    settle(m_bus.connect());
    EXPECT_THAT(server.closed(), ElementsAre(41));
}

TEST_F(NotificationsTest, ServersComeGoAndRefuse)
{
    m_notifications.post(kReminder);
    ASSERT_TRUE(isAnswered(1));
    EXPECT_EQ(m_answers.back().second, Answer::noService);
    EXPECT_EQ(m_notifications.state().availability, Availability::offline);
    EXPECT_EQ(m_reason, m_notifications.state().message);

    {
        FakeNotificationServer server{m_bus.connect(), kAll};
        EXPECT_TRUE(eventually([&] { return m_notifications.state().isReady(); }));
        EXPECT_THAT(server.received(), IsEmpty()) << "what was missed does not come late";
        m_notifications.post(kReminder);
        ASSERT_TRUE(isAnswered(2));
        EXPECT_EQ(m_answers.back().second, Answer::shown);
        server.refuseAll();
        m_notifications.post(kReminder);
        ASSERT_TRUE(isAnswered(3));
        EXPECT_EQ(m_answers.back().second, Answer::refused);
        EXPECT_EQ(m_reason, QStringLiteral("not for you"));
    }
    EXPECT_TRUE(eventually([&] { return !m_notifications.state().isReady(); }));
    FakeNotificationServer next{m_bus.connect(), {QStringLiteral("body")}};
    m_notifications.post(kReminder);
    ASSERT_TRUE(isAnswered(4));
    EXPECT_EQ(m_answers.back().second, Answer::shown);
    EXPECT_EQ(next.received().front().replaces, 0) << "the number was the old server's";
    EXPECT_FALSE(m_notifications.playsSounds());
}

TEST(Notifications, WithoutABusEachRequestIsAnswered)
{
    BusNotifications notifications{noBus(), QStringLiteral("app.kest.native")};
    QSignalSpy answered{&notifications, &Notifications::answered};
    notifications.post(kReminder);
    ASSERT_TRUE(eventually([&] { return !answered.isEmpty(); }));
    EXPECT_EQ(answered.first().at(1).value<Notifications::Answer>(),
              Notifications::Answer::noService);
}

} // namespace

} // namespace Velvetnook
