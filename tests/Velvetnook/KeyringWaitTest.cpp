// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "PrivateBus.h"
#include "RunningModel.h"
#include "SecretService/SecretService.h"
#include "Velvetnook/Application/Clipboard/ClipboardKeyring.h"
#include "Velvetnook/Application/ToolServices.h"
#include "Velvetnook/Application/ViewModels/Insights/InsightDesk.h"

#include <QDBusObjectPath>
#include <QDBusVariant>
#include <QDBusVirtualObject>

#include <atomic>
#include <condition_variable>
#include <future>
#include <mutex>
#include <thread>

// What goes on, and what ends, while the keyring waits for its user.
using namespace Velvetnook;

namespace
{

// Answers nobody until it is told to give up, as while the desktop asks for a password.
struct Waiting {
    std::atomic<bool> isReading = false;
    std::atomic<bool> isWriting = false;
    std::atomic<bool> isGivenUp = false;
    bool keepsNothingYet = false;

    void wait(const std::stop_token &stop)
    {
        constexpr std::chrono::seconds kLongest{20}; // a test that fails ends too
        std::mutex mutex;
        std::condition_variable_any wake;
        std::unique_lock lock{mutex};
        wake.wait_for(lock, stop, kLongest, [] { return false; });
        isGivenUp = stop.stop_requested();
    }
};

class WaitingStore : public Base::SecretStore
{
public:
    WaitingStore(Waiting &waiting, std::stop_token stop)
        : m_waiting{waiting}, m_stop{std::move(stop)}
    {
    }
    Base::SecretResult<std::optional<Base::SecretBytes>> read(std::string_view) override
    {
        if (m_waiting.keepsNothingYet) {
            return std::nullopt;
        }
        m_waiting.isReading = true;
        m_waiting.wait(m_stop);
        return std::unexpected(Base::SecretFailure{.message = "given up"});
    }
    Base::SecretResult<> write(std::string_view, std::span<const std::uint8_t>) override
    {
        m_waiting.isWriting = true;
        m_waiting.wait(m_stop);
        return std::unexpected(Base::SecretFailure{.message = "given up"});
    }
    Base::SecretResult<> erase(std::string_view) override { return {}; }

private:
    Waiting &m_waiting;
    std::stop_token m_stop;
};

std::unique_ptr<ClipboardKeyring> keyringOver(RunningModel &running, Waiting &waiting)
{
    ClipboardDesktop desktop;
    desktop.openKeyring = [&waiting](bool, const std::stop_token &stop) {
        return std::make_unique<WaitingStore>(waiting, stop);
    };
    auto keyring = std::make_unique<ClipboardKeyring>(running.model());
    keyring->setDesktop(desktop);
    keyring->want(true);
    return keyring;
}

ToolServices servicesOver(Waiting &waiting)
{
    return {.openTransport = [] { return std::unexpected(Base::KestError::unavailable("")); },
            .openSecrets =
                [&waiting](Keyring::Prompts, const std::stop_token &stop) {
                    return std::make_unique<WaitingStore>(waiting, stop);
                }};
}

} // namespace

TEST(KeyringWait, ChangesAreSavedWhileAKeyIsMade)
{
    RunningModel running;
    Waiting waiting{.keepsNothingYet = true};
    const auto keyring = keyringOver(running, waiting);
    ASSERT_TRUE(RunningModel::waitUntil([&] { return waiting.isWriting.load(); }));
    running.change([](KestCore::NativeState &state) { state.settings["a"] = "b"; });
    EXPECT_EQ(running.state().settings.at("a"), "b");
    EXPECT_TRUE(keyring->isOpening()); // the keyring has not answered before
}

TEST(KeyringWait, TheEndOfTheClipboardEndsIt)
{
    for (const bool keepsNothingYet : {false, true}) {
        SCOPED_TRACE(keepsNothingYet ? "a key is made" : "a key is read");
        RunningModel running;
        Waiting waiting{.keepsNothingYet = keepsNothingYet};
        auto keyring = keyringOver(running, waiting);
        EXPECT_TRUE(RunningModel::waitUntil(
            [&] { return waiting.isReading.load() || waiting.isWriting.load(); }));
        keyring.reset();
        running.close();
        EXPECT_TRUE(waiting.isGivenUp);
    }
}

TEST(KeyringWait, TheEndOfTheAccountsEndsIt)
{
    struct Case {
        const char *name;
        std::function<void(InsightDesk &)> ask;
    };
    for (const auto &[name, ask] :
         {Case{"a report", [](InsightDesk &desk) { desk.load({}, [](const auto &) {}); }},
          Case{"a key is kept",
               [](InsightDesk &desk) { desk.keep({}, "rk_live_abc", [](const auto &) {}); }},
          Case{"a report behind a key", [](InsightDesk &desk) {
                   desk.keep({}, "rk_live_abc", [](const auto &) {});
                   desk.load({}, [](const auto &) {});
               }}}) {
        SCOPED_TRACE(name);
        Waiting waiting;
        auto desk = std::make_unique<InsightDesk>(
            std::make_shared<const ToolServices>(servicesOver(waiting)));
        ask(*desk);
        EXPECT_TRUE(RunningModel::waitUntil(
            [&] { return waiting.isReading.load() || waiting.isWriting.load(); }));
        desk.reset();
        EXPECT_TRUE(waiting.isGivenUp);
    }
}

namespace
{

constexpr const char *kService = "org.freedesktop.secrets";
constexpr const char *kRoot = "/org/freedesktop/secrets";

// A keyring with one locked collection, which asks its user to unlock it and waits; or which
// does not even say what it is.
class UnansweredKeyring : public QDBusVirtualObject
{
public:
    explicit UnansweredKeyring(const QDBusConnection &bus) : m_bus{bus}
    {
        m_bus.registerVirtualObject(QString::fromLatin1(kRoot), this, QDBusConnection::SubPath);
        m_bus.registerService(QString::fromLatin1(kService));
    }

    bool isSilent = false;
    int asked = 0;
    bool isPrompting = false;
    bool isDismissed = false;

    QString introspect(const QString &) const override { return {}; }
    bool handleMessage(const QDBusMessage &message, const QDBusConnection &) override
    {
        ++asked;
        if (!isSilent) {
            answer(message);
        }
        return true;
    }

private:
    static QDBusObjectPath at(const char *path)
    {
        return QDBusObjectPath{QString::fromLatin1(kRoot) + QLatin1String{path}};
    }
    void answer(const QDBusMessage &message)
    {
        const QString asks = message.member();
        const QList<QDBusObjectPath> none;
        if (asks == u"GetAll") {
            m_bus.send(message.createReply(QVariantMap{{QStringLiteral("Locked"), true}}));
        } else if (asks == u"OpenSession" &&
                   message.arguments().value(0).toString() != u"plain") {
            m_bus.send(message.createErrorReply(QDBusError::NotSupported, QString{}));
        } else if (asks == u"OpenSession") {
            m_bus.send(message.createReply({QVariant::fromValue(QDBusVariant{QString{}}),
                                            QVariant::fromValue(at("/session/s1"))}));
        } else if (asks == u"SearchItems") {
            m_bus.send(
                message.createReply({QVariant::fromValue(none), QVariant::fromValue(none)}));
        } else if (asks == u"ReadAlias") {
            m_bus.send(message.createReply(QVariant::fromValue(at("/collection/login"))));
        } else if (asks == u"Unlock") {
            m_bus.send(message.createReply(
                {QVariant::fromValue(none), QVariant::fromValue(at("/prompt/p1"))}));
        } else if (asks == u"Prompt") {
            isPrompting = true;
            m_bus.send(message.createReply());
        } else if (asks == u"Dismiss") {
            isDismissed = true;
            m_bus.send(message.createReply());
            QDBusMessage over = QDBusMessage::createSignal(
                message.path(), QStringLiteral("org.freedesktop.Secret.Prompt"),
                QStringLiteral("Completed"));
            over << true << QVariant::fromValue(QDBusVariant{QVariant::fromValue(none)});
            m_bus.send(over);
        } else {
            m_bus.send(message.createReply());
        }
    }

    QDBusConnection m_bus;
};

} // namespace

// One bus for the life of the process, which its library holds on to.
TEST(KeyringWait, EndsWithTheDesktopsKeyringToo)
{
    static PrivateBus &bus = *new PrivateBus;
    qputenv("DBUS_SESSION_BUS_ADDRESS", bus.address().toUtf8());
    UnansweredKeyring service{bus.connect()};
    for (const bool isSilent : {true, false}) {
        SCOPED_TRACE(isSilent ? "no answer" : "a prompt");
        service.isSilent = isSilent;
        service.asked = 0;
        std::stop_source stop;
        auto reading = std::async(std::launch::async, [&] {
            auto store = Keyring::open(Keyring::Prompts::allowed, stop.get_token());
            return store ? (*store)->read("account")
                         : std::unexpected(std::move(store).error());
        });
        const auto isOver = [&] {
            return reading.wait_for(std::chrono::seconds{0}) == std::future_status::ready;
        };
        EXPECT_TRUE(RunningModel::waitUntil(
            [&] { return isSilent ? service.asked > 0 : service.isPrompting; }));
        EXPECT_FALSE(isOver());
        stop.request_stop();
        EXPECT_TRUE(RunningModel::waitUntil(isOver));
        EXPECT_FALSE(reading.get());
        EXPECT_EQ(service.isDismissed, !isSilent); // the question leaves the screen
    }
}
