// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QMetaType>
#include <QString>

#include <vector>

namespace KestCore
{
struct Preferences;
} // namespace KestCore

namespace Velvetnook
{

// Whether something may be heard: all sounds have one switch above their own.
bool wantsSound(const KestCore::Preferences &preferences, bool KestCore::Preferences::*which);

struct NotificationAction {
    QString key{};
    QString label{};

    bool operator==(const NotificationAction &) const = default;
};

// What the desktop is asked to show. One with the id of another takes its place.
struct NotificationRequest {
    QString id{};
    QString title{};
    QString body{}; // plain text, parts on lines of their own
    std::vector<NotificationAction> actions{};
    bool withSound{};

    bool operator==(const NotificationRequest &) const = default;
};

} // namespace Velvetnook

Q_DECLARE_METATYPE(Velvetnook::NotificationRequest)
