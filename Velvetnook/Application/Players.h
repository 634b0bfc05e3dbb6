// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "MediaPlayers/Player.h"

#include <QObject>
#include <QString>

#include <vector>

namespace Velvetnook
{

// The media players of this session. Asks them when they tell of a change, never on a timer.
class Players : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    // Looks for them now, and follows them from now on.
    virtual void begin() = 0;
    // As they were when `changed` was told last.
    virtual const std::vector<MediaPlayers::Player> &players() const = 0;
    // Why none can be found; empty while they can.
    virtual QString problem() const = 0;
    // Asks them again, as before they are looked at: how far they are they do not tell.
    virtual void read() = 0;
    // Returns at once; `changed` or `failed` follow.
    virtual void perform(const MediaPlayers::Player &player,
                         const MediaPlayers::Action &action) = 0;

signals:
    void changed();
    void failed(const QString &message);
};

} // namespace Velvetnook
