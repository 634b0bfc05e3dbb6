// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "PrivateBus.h"
#include "Velvetnook/Platform/Linux/BusTray.h"

#include <QDBusContext>
#include <QDBusInterface>
#include <QSignalSpy>

#include <gmock/gmock.h>

namespace Velvetnook
{

namespace
{

using KestCore::Availability;

// The desktop's side: it keeps the names of the icons.
class FakeWatcher : public QObject
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.kde.StatusNotifierWatcher")
    Q_PROPERTY(bool IsStatusNotifierHostRegistered READ hasHost)

public:
    FakeWatcher(const QDBusConnection &bus, bool hasHost) : m_bus{bus}, m_hasHost{hasHost}
    {
        m_bus.registerObject(QStringLiteral("/StatusNotifierWatcher"), this,
                             QDBusConnection::ExportAllContents);
        m_bus.registerService(QStringLiteral("org.kde.StatusNotifierWatcher"));
    }
    ~FakeWatcher() override { PrivateBus::leave(m_bus); }
    FakeWatcher(const FakeWatcher &) = delete;
    FakeWatcher &operator=(const FakeWatcher &) = delete;

    bool hasHost() const { return m_hasHost; }
    void addHost()
    {
        m_hasHost = true;
        emit StatusNotifierHostRegistered();
    }
    const QStringList &items() const { return m_items; }

public slots:
    void RegisterStatusNotifierItem(const QString &item) { m_items.push_back(item); }

signals:
    void StatusNotifierHostRegistered();

private:
    QDBusConnection m_bus;
    QStringList m_items;
    bool m_hasHost;
};

QImage picture()
{
    QImage image{2, 1, QImage::Format_ARGB32};
    image.setPixelColor(0, 0, QColor{1, 2, 3, 255});
    image.setPixelColor(1, 0, QColor{255, 0, 0, 128});
    return image;
}

const QString kItem = QStringLiteral("/StatusNotifierItem");
const QString kMenu = QStringLiteral("/StatusNotifierItem/Menu");
const QString kMenuInterface = QStringLiteral("com.canonical.dbusmenu");

class TrayTest : public testing::Test
{
protected:
    // Asks the tray as its host does: over the bus, from a connection of its own.
    QDBusMessage ask(const QString &path, const QString &interface, const QString &method,
                     const QVariantList &arguments)
    {
        auto call =
            QDBusMessage::createMethodCall(m_ours.baseService(), path, interface, method);
        call.setArguments(arguments);
        QDBusPendingCallWatcher watcher{m_host.asyncCall(call)};
        eventually([&] { return watcher.isFinished(); });
        return watcher.reply();
    }
    QVariant property(const QString &name)
    {
        const auto reply =
            ask(kItem, QStringLiteral("org.freedesktop.DBus.Properties"), QStringLiteral("Get"),
                {QStringLiteral("org.kde.StatusNotifierItem"), name});
        return reply.arguments().value(0).value<QDBusVariant>().variant();
    }
    MenuLayout layout()
    {
        const auto reply =
            ask(kMenu, kMenuInterface, QStringLiteral("GetLayout"), {0, -1, QStringList{}});
        return qdbus_cast<MenuLayout>(reply.arguments().value(1));
    }
    void pick(int id)
    {
        ask(kMenu, kMenuInterface, QStringLiteral("Event"),
            {id, QStringLiteral("clicked"), QVariant::fromValue(QDBusVariant{0}), 0U});
    }

    PrivateBus m_bus;
    QDBusConnection m_ours = m_bus.connect();
    QDBusConnection m_host = m_bus.connect();
    BusTray m_tray{m_ours, QStringLiteral("app.kest.native"), {picture()}};
};

TEST_F(TrayTest, RegistersWheneverAWatcherAppearsAndSaysWhenThereIsNone)
{
    m_tray.begin();
    ASSERT_TRUE(
        eventually([&] { return m_tray.state().availability == Availability::offline; }));
    EXPECT_EQ(m_tray.state().message, QStringLiteral("There is no tray in this session."));
    for (const char *round : {"the first", "after a restart"}) {
        SCOPED_TRACE(round);
        auto watcher = std::make_unique<FakeWatcher>(m_bus.connect(), false);
        ASSERT_TRUE(
            eventually([&] { return m_tray.state().availability == Availability::empty; }));
        EXPECT_EQ(watcher->items().size(), 1);
        watcher->addHost();
        ASSERT_TRUE(eventually([&] { return m_tray.state().isReady(); }));
        watcher.reset();
        ASSERT_TRUE(
            eventually([&] { return m_tray.state().availability == Availability::offline; }));
    }
}

TEST_F(TrayTest, ShowsItsPictureAndWhatItSays)
{
    m_tray.begin();
    m_tray.show({}, QStringLiteral("Asr at 13:48"));
    const auto pixmaps = qdbus_cast<QList<TrayPixmap>>(property(QStringLiteral("IconPixmap")));
    ASSERT_EQ(pixmaps.size(), 1);
    EXPECT_EQ(pixmaps.first().width, 2);
    EXPECT_EQ(pixmaps.first().pixels, QByteArray::fromHex("ff010203"
                                                          "80ff0000"));
    EXPECT_EQ(qdbus_cast<TrayToolTip>(property(QStringLiteral("ToolTip"))).text,
              QStringLiteral("Asr at 13:48"));
    EXPECT_EQ(property(QStringLiteral("Menu")).value<QDBusObjectPath>().path(), kMenu);
    EXPECT_EQ(property(QStringLiteral("Id")), QStringLiteral("app.kest.native"));

    QSignalSpy activated{&m_tray, &Tray::activated};
    ask(kItem, QStringLiteral("org.kde.StatusNotifierItem"), QStringLiteral("Activate"),
        {0, 0});
    EXPECT_EQ(activated.size(), 1);
}

TEST_F(TrayTest, TheMenuIsThereLineByLineAndALineIsChosenByItsKey)
{
    m_tray.begin();
    m_tray.show({{.key = QStringLiteral("open"), .label = QStringLiteral("Open_it")},
                 {},
                 {.key = QStringLiteral("next"),
                  .label = QStringLiteral("Asr at 13:48"),
                  .isEnabled = false}},
                {});
    const MenuLayout root = layout();
    ASSERT_EQ(root.children.size(), 3);
    const auto line = [&](int index) {
        return qdbus_cast<MenuLayout>(root.children.at(index));
    };
    EXPECT_EQ(line(0).properties.value(QStringLiteral("label")), QStringLiteral("Open__it"));
    EXPECT_EQ(line(1).properties.value(QStringLiteral("type")), QStringLiteral("separator"));
    EXPECT_EQ(line(2).properties.value(QStringLiteral("enabled")), false);

    QSignalSpy chosen{&m_tray, &Tray::chosen};
    for (const int id : {line(2).id, line(1).id, 0, -1, 99, line(0).id}) {
        pick(id);
    }
    ASSERT_EQ(chosen.size(), 1);
    EXPECT_EQ(chosen.first().first(), QStringLiteral("open"));
}

TEST_F(TrayTest, TheMenuIsBroughtUpToDateBeforeItIsSeen)
{
    m_tray.begin();
    int asked = 0;
    QObject::connect(&m_tray, &Tray::menuWanted, &m_tray, [&] {
        ++asked;
        m_tray.show({{.key = QStringLiteral("count"), .label = QStringLiteral("21 of 33")}},
                    {});
    });
    const auto aboutToShow = [&] {
        return ask(kMenu, kMenuInterface, QStringLiteral("AboutToShow"), {0}).arguments();
    };
    EXPECT_EQ(aboutToShow(), QVariantList{true});
    EXPECT_EQ(aboutToShow(), QVariantList{false}) << "nothing is new";
    EXPECT_EQ(asked, 2);
    EXPECT_EQ(layout().children.size(), 1);
}

} // namespace

} // namespace Velvetnook

#include "TrayTest.moc"
