// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Velvetnook/Application/ViewModels/Clipboard/ClipboardList.h"

#include <algorithm>
#include <iterator>
#include <unordered_set>

namespace Velvetnook
{

int ClipboardList::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
}

QHash<int, QByteArray> ClipboardList::roleNames() const
{
    return {{entryId, "entryId"}, {kind, "kind"},           {title, "title"},
            {detail, "detail"},   {icon, "icon"},           {meta, "meta"},
            {preview, "preview"}, {previewed, "previewed"}, {favourite, "favourite"},
            {hidden, "hidden"},   {whole, "whole"},         {code, "code"}};
}

QVariant ClipboardList::data(const QModelIndex &index, int role) const
{
    if (!index.isValid() || index.row() >= rowCount()) {
        return {};
    }
    const ClipboardRow &row = m_rows.at(static_cast<std::size_t>(index.row()));
    switch (role) {
    case entryId:
        return row.id;
    case kind:
        return row.kind;
    case title:
        return row.title;
    case detail:
        return row.detail;
    case icon:
        return row.icon;
    case meta:
        return row.meta;
    case preview:
        return row.preview;
    case previewed:
        return !row.preview.isNull();
    case favourite:
        return row.isFavourite;
    case hidden:
        return row.isHidden;
    case whole:
        return row.isWhole;
    case code:
        return row.isCode;
    default:
        return {};
    }
}

// Puts the card there: moved from where it stands below, or as a new one.
void ClipboardList::bring(const ClipboardRow &row, int to)
{
    const auto begin = m_rows.begin() + to;
    const auto found = std::ranges::find(begin, m_rows.end(), row.id, &ClipboardRow::id);
    if (found == m_rows.end()) {
        beginInsertRows({}, to, to);
        m_rows.insert(begin, row);
        endInsertRows();
        return;
    }
    const auto from = static_cast<int>(std::distance(m_rows.begin(), found));
    if (from != to) {
        beginMoveRows({}, from, from, {}, to);
        std::rotate(begin, found, std::next(found));
        endMoveRows();
    }
    ClipboardRow &here = m_rows.at(static_cast<std::size_t>(to));
    if (here != row) {
        here = row;
        emit dataChanged(index(to), index(to));
    }
}

void ClipboardList::show(std::vector<ClipboardRow> rows)
{
    if (m_rows.empty() != rows.empty()) { // a history may be long: all of it at once
        beginResetModel();
        m_rows = std::move(rows);
        endResetModel();
        return;
    }
    std::unordered_set<std::string> staying;
    for (const ClipboardRow &row : rows) {
        staying.insert(row.id.toStdString());
    }
    for (int at = rowCount() - 1; at >= 0; --at) {
        if (!staying.contains(m_rows.at(static_cast<std::size_t>(at)).id.toStdString())) {
            beginRemoveRows({}, at, at);
            m_rows.erase(m_rows.begin() + at);
            endRemoveRows();
        }
    }
    int to = 0;
    for (const ClipboardRow &row : rows) {
        bring(row, to++);
    }
}

} // namespace Velvetnook
