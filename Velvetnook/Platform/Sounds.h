// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Velvetnook/Platform/ServiceState.h"

#include <QObject>

#include <cstdint>

namespace Velvetnook
{

// Short sounds of our own.
class Sounds : public QObject
{
    Q_OBJECT

public:
    enum class Sound : std::uint8_t { completion, reminder };

    using QObject::QObject;

    // Returns at once. One that comes while another is heard is left out.
    virtual void play(Sound sound) = 0;
    virtual ServiceState state() const = 0;

signals:
    // The sound is over, or could not be played: then `problem` says why.
    void played(const QString &problem);
};

} // namespace Velvetnook
