// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Base/Instant.h"

#include <QObject>
#include <QString>

#include <map>
#include <string>

namespace Velvetnook
{

// Background sounds, heard together.
class SoundMixer : public QObject
{
    Q_OBJECT

public:
    using Gains = std::map<std::string, double>; // by the sound's id, 0 to 1

    using QObject::QObject;

    // Goes over to this mix in that time; a sound that is not in it falls silent. Returns at
    // once. While all are silent nothing runs.
    virtual void play(const Gains &gains, Base::Seconds fade) = 0;

signals:
    // It is silent now, against the user's wish.
    void failed(const QString &message);
};

} // namespace Velvetnook
