// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Velvetnook/Application/ViewModels/Clipboard/ClipboardList.h"

#include <array>
#include <utility>

namespace Velvetnook
{

namespace
{

// In the order of the roles.
constexpr std::array kRoles{
    RowRole<ClipboardRow>{"entryId", [](const ClipboardRow &row) { return QVariant{row.id}; }},
    RowRole<ClipboardRow>{"kind", [](const ClipboardRow &row) { return QVariant{row.kind}; }},
    RowRole<ClipboardRow>{"title", [](const ClipboardRow &row) { return QVariant{row.title}; }},
    RowRole<ClipboardRow>{"detail",
                          [](const ClipboardRow &row) { return QVariant{row.detail}; }},
    RowRole<ClipboardRow>{"icon", [](const ClipboardRow &row) { return QVariant{row.icon}; }},
    RowRole<ClipboardRow>{"meta", [](const ClipboardRow &row) { return QVariant{row.meta}; }},
    RowRole<ClipboardRow>{"preview",
                          [](const ClipboardRow &row) { return QVariant{row.preview}; }},
    RowRole<ClipboardRow>{
        "previewed", [](const ClipboardRow &row) { return QVariant{!row.preview.isNull()}; }},
    RowRole<ClipboardRow>{"favourite",
                          [](const ClipboardRow &row) { return QVariant{row.isFavourite}; }},
    RowRole<ClipboardRow>{"hidden",
                          [](const ClipboardRow &row) { return QVariant{row.isHidden}; }},
    RowRole<ClipboardRow>{"whole",
                          [](const ClipboardRow &row) { return QVariant{row.isWhole}; }},
    RowRole<ClipboardRow>{"code", [](const ClipboardRow &row) { return QVariant{row.isCode}; }},
};

} // namespace

ClipboardList::ClipboardList() : RowList{kRoles} {}

void ClipboardList::show(std::vector<ClipboardRow> rows)
{
    if (this->rows().empty() != rows.empty()) {
        reset(std::move(rows));
    } else {
        RowList::show(rows);
    }
}

} // namespace Velvetnook
