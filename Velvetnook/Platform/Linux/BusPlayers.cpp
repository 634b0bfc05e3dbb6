// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Velvetnook/Platform/Linux/BusPlayers.h"

#include <QCoreApplication>
#include <QDBusServiceWatcher>
#include <QPointer>
#include <QThreadPool>

#include <algorithm>
#include <chrono>
#include <utility>

namespace Velvetnook
{

namespace
{

using MediaPlayers::Player;

// Players tell of several things at once, and some of far too many: one question answers all
// that came until then.
constexpr std::chrono::milliseconds kPatience{150};

} // namespace

BusPlayers::BusPlayers(QDBusConnection bus, QObject *parent)
    : Players{parent}, m_bus{std::move(bus)}
{
    m_soon.setSingleShot(true);
    m_soon.setInterval(kPatience);
    connect(&m_soon, &QTimer::timeout, this, &BusPlayers::read);
}

// The thread may be waiting for a player: another one waits for its end. The application does
// not go before that.
BusPlayers::~BusPlayers()
{
    m_end.request_stop();
    if (m_reader) {
        QThreadPool::globalInstance()->start(
            [reader = std::shared_ptr{std::move(m_reader)}]() mutable { reader.reset(); });
    }
}

void BusPlayers::begin()
{
    if (m_comings != nullptr) {
        return;
    }
    m_comings = new QDBusServiceWatcher{QStringLiteral("org.mpris.MediaPlayer2*"), m_bus,
                                        QDBusServiceWatcher::WatchForOwnerChange, this};
    connect(m_comings, &QDBusServiceWatcher::serviceOwnerChanged, this, &BusPlayers::readSoon);
    const QString path = QStringLiteral("/org/mpris/MediaPlayer2");
    const QString player = QStringLiteral("org.mpris.MediaPlayer2.Player");
    m_bus.connect({}, path, QStringLiteral("org.freedesktop.DBus.Properties"),
                  QStringLiteral("PropertiesChanged"), {player}, {}, this, SLOT(readSoon()));
    m_bus.connect({}, path, player, QStringLiteral("Seeked"), this, SLOT(readSoon()));
    read();
}

void BusPlayers::readSoon()
{
    if (!m_soon.isActive()) {
        m_soon.start();
    }
}

Base::Serial<BusPlayers::Reader> &BusPlayers::reader()
{
    if (!m_reader) {
        m_reader = std::make_unique<Base::Serial<Reader>>(Reader{.end = m_end.get_token()});
    }
    return *m_reader;
}

// Posted to the application: this may be gone when the thread answers.
auto BusPlayers::onMainThread()
{
    return [owner = QPointer{this}, end = m_end.get_token()](auto call) {
        if (end.stop_requested()) {
            return;
        }
        auto shared = std::make_shared<decltype(call)>(std::move(call));
        QMetaObject::invokeMethod(
            QCoreApplication::instance(),
            [owner, shared] {
                if (owner) {
                    (*shared)();
                }
            },
            Qt::QueuedConnection);
    };
}

Base::Result<void> BusPlayers::open(Reader &reader)
{
    if (reader.end.stop_requested()) {
        return std::unexpected(Base::KestError::unavailable("Nobody asks any more"));
    }
    if (!reader.bus) {
        KEST_TRY(reader.bus, MediaPlayers::open());
    }
    return {};
}

void BusPlayers::read()
{
    if (std::exchange(m_isReading, true)) {
        m_isAskedAgain = true;
        return;
    }
    reader().ask(
        [](Reader &reader) -> Found {
            KEST_CHECK(open(reader));
            auto found = reader.bus->players();
            if (!found) {
                reader.bus.reset(); // the next question tries another connection
            }
            return found;
        },
        onMainThread(), [this](Found found) { take(std::move(found)); });
}

void BusPlayers::take(Found found)
{
    m_isReading = false;
    m_problem = found ? QString{} : QString::fromStdString(found.error().message);
    m_players = found ? *std::move(found) : std::vector<Player>{};
    emit changed();
    if (std::exchange(m_isAskedAgain, false)) {
        readSoon();
    }
}

void BusPlayers::perform(const Player &player, const MediaPlayers::Action &action)
{
    using Kind = MediaPlayers::Action::Kind;
    const bool isSlider = action.kind == Kind::seek || action.kind == Kind::volume;
    if (isSlider && m_isPerforming) {
        m_next.emplace(player, action);
    } else {
        send(player, action);
    }
}

void BusPlayers::send(const Player &player, const MediaPlayers::Action &action)
{
    m_isPerforming = true;
    reader().ask(
        [player, action](Reader &reader) -> Base::Result<Player> {
            KEST_CHECK(open(reader));
            return MediaPlayers::performAndRead(*reader.bus, player, action);
        },
        onMainThread(),
        [this](Base::Result<Player> now) {
            m_isPerforming = false;
            if (const auto next = std::exchange(m_next, std::nullopt)) {
                send(next->first, next->second);
            }
            if (!now) {
                emit failed(QString::fromStdString(now.error().message));
                return;
            }
            const auto known = std::ranges::find(m_players, now->name, &Player::name);
            if (known != m_players.end()) {
                *known = *std::move(now);
            }
            emit changed();
        });
}

} // namespace Velvetnook
