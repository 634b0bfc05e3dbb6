// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Velvetnook/Platform/Launch.h"

#include <QObject>

#include <cstdint>

namespace Velvetnook
{

// What a desktop file, the tray and a second start can ask for.
inline constexpr const char *kDesktopActions[]{"open",  "palette",         "settings",
                                               "count", "pause-reminders", "quit"};
bool isDesktopAction(const QString &name);

// One application for each user and session: the first start holds a name, a second one asks
// the holder to come forward.
class Activation : public QObject
{
    Q_OBJECT

public:
    enum class Start : std::uint8_t {
        first,
        second,     // there is another, and it was asked
        unanswered, // there is another, and it does not answer
        undecided   // there is no bus: the lock of the store decides
    };

    using QObject::QObject;

    // Waits for the answer of another, for a few seconds at most.
    virtual Start claim(const Launch &launch) = 0;
    // Where the bus has a name for the token that lets a window take the focus.
    virtual QString token() const = 0;

signals:
    // One of kDesktopActions.
    void actionWanted(const QString &action);
};

} // namespace Velvetnook
