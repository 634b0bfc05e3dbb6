// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Velvetnook/Platform/ServiceState.h"

#include <QObject>

#include <vector>

namespace Velvetnook
{

// A line of the tray's menu. One without a key is a line between groups.
struct TrayItem {
    QString key{};
    QString label{};
    bool isEnabled = true;

    bool operator==(const TrayItem &) const = default;
};

// Our icon among the desktop's, with its menu. Never the only way to anything.
class Tray : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    virtual void show(std::vector<TrayItem> menu, const QString &toolTip) = 0;
    virtual ServiceState state() const = 0;

signals:
    void activated(); // the icon was clicked
    void chosen(const QString &key);
    // The menu is about to be seen: the last moment to `show` what is true now.
    void menuWanted();
    void stateChanged();
};

} // namespace Velvetnook
