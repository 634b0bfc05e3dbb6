// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Velvetnook/Application/RowList.h"

#include <QImage>
#include <QString>

#include <vector>

namespace Velvetnook
{

// One card of the history.
struct ClipboardRow {
    QString id{};
    QString kind{};
    QString title{};
    QString detail{};
    QString icon{};
    QString meta{}; // what it is and how old
    QImage preview{};
    bool isFavourite{};
    bool isHidden{}; // a notice stands for the content
    bool isWhole{};  // the title has the card to itself
    bool isCode{};

    bool operator==(const ClipboardRow &) const = default;
};

// The cards as they are shown.
class ClipboardList : public RowList<ClipboardRow>
{
public:
    enum Role : std::uint16_t {
        entryId = Qt::UserRole,
        kind,
        title,
        detail,
        icon,
        meta,
        preview,
        previewed,
        favourite,
        hidden,
        whole,
        code
    };

    ClipboardList();

    // A history may be long: the first cards come, and the last go, all at once.
    void show(std::vector<ClipboardRow> rows);
};

} // namespace Velvetnook
