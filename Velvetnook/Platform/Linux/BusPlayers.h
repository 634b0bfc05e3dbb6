// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Base/Serial.h"
#include "MediaPlayers/PlayerBus.h"
#include "Velvetnook/Application/Players.h"

#include <QDBusConnection>
#include <QTimer>

#include <memory>
#include <optional>
#include <stop_token>
#include <utility>

class QDBusServiceWatcher;

namespace Velvetnook
{

// The players over MPRIS. Their signals arrive on the main loop; they are asked and driven on a
// thread of its own, so one that does not answer holds nobody up, at the end of this neither.
// The thread comes into being with the first question.
class BusPlayers : public Players
{
    Q_OBJECT

public:
    explicit BusPlayers(QDBusConnection bus, QObject *parent = nullptr);
    ~BusPlayers() override;
    BusPlayers(const BusPlayers &) = delete;
    BusPlayers &operator=(const BusPlayers &) = delete;

    void begin() override;
    const std::vector<MediaPlayers::Player> &players() const override { return m_players; }
    QString problem() const override { return m_problem; }
    void read() override;
    void perform(const MediaPlayers::Player &player,
                 const MediaPlayers::Action &action) override;

private slots:
    void readSoon();

private:
    using Found = Base::Result<std::vector<MediaPlayers::Player>>;
    struct Reader {
        std::stop_token end{}; // what is asked for after it is not done any more
        std::unique_ptr<MediaPlayers::PlayerBus> bus{};
    };

    [[nodiscard]] static Base::Result<void> open(Reader &reader);
    Base::Serial<Reader> &reader();
    auto onMainThread();
    void take(Found found);
    void send(const MediaPlayers::Player &player, const MediaPlayers::Action &action);

    QDBusConnection m_bus;
    QDBusServiceWatcher *m_comings = nullptr;
    QTimer m_soon;
    std::vector<MediaPlayers::Player> m_players;
    QString m_problem;
    // A hand on a slider asks faster than players answer: only its last wish is kept.
    std::optional<std::pair<MediaPlayers::Player, MediaPlayers::Action>> m_next;
    bool m_isPerforming = false;
    bool m_isReading = false;
    bool m_isAskedAgain = false;
    std::stop_source m_end;
    std::unique_ptr<Base::Serial<Reader>> m_reader;
};

} // namespace Velvetnook
