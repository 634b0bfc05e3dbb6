// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Velvetnook/Application/ViewModels/Dock/DockItems.h"

#include <algorithm>
#include <iterator>

namespace Velvetnook
{

namespace
{

constexpr int kColumns = 4;

bool isDivider(const DockRow &row) { return row.kind == QLatin1String{"divider"}; }

} // namespace

void layOut(std::vector<DockRow> &rows)
{
    int column = 0;
    int line = 0;
    int dividers = 0;
    for (DockRow &row : rows) {
        if (column == kColumns || (isDivider(row) && column > 0)) {
            column = 0;
            ++line;
        }
        row.column = column;
        row.line = line;
        row.dividersAbove = dividers;
        if (isDivider(row)) {
            ++dividers;
        } else {
            ++column;
        }
    }
}

int DockItems::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
}

QVariant DockItems::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid)) {
        return {};
    }
    const DockRow &row = m_rows[static_cast<std::size_t>(index.row())];
    switch (role) {
    case itemId:
        return row.id;
    case kind:
        return row.kind;
    case title:
    case Qt::DisplayRole:
        return row.title;
    case iconName:
        return row.iconName;
    case iconSource:
        return row.iconSource;
    case letter:
        return row.letter;
    case lifetime:
        return row.lifetime;
    case lifetimeText:
        return row.lifetimeText;
    case tint:
        return row.tint;
    case isThere:
        return row.isThere;
    case column:
        return row.column;
    case line:
        return row.line;
    case dividersAbove:
        return row.dividersAbove;
    default:
        return {};
    }
}

QHash<int, QByteArray> DockItems::roleNames() const
{
    return {{itemId, "itemId"},
            {kind, "kind"},
            {title, "title"},
            {iconName, "iconName"},
            {iconSource, "iconSource"},
            {letter, "letter"},
            {lifetime, "lifetime"},
            {lifetimeText, "lifetimeText"},
            {tint, "tint"},
            {isThere, "isThere"},
            {column, "column"},
            {line, "line"},
            {dividersAbove, "dividersAbove"}};
}

int DockItems::lines() const
{
    if (m_rows.empty()) {
        return 0;
    }
    const DockRow &last = m_rows.back();
    return isDivider(last) ? last.line : last.line + 1;
}

int DockItems::dividers() const
{
    return static_cast<int>(std::ranges::count_if(m_rows, isDivider));
}

void DockItems::removeOthers(const std::vector<DockRow> &wanted)
{
    for (int at = rowCount() - 1; at >= 0; --at) {
        const QString &id = m_rows[static_cast<std::size_t>(at)].id;
        if (std::ranges::find(wanted, id, &DockRow::id) == wanted.end()) {
            beginRemoveRows({}, at, at);
            m_rows.erase(m_rows.begin() + at);
            endRemoveRows();
        }
    }
}

void DockItems::place(int at, const DockRow &row)
{
    const auto found =
        std::ranges::find(m_rows.begin() + at, m_rows.end(), row.id, &DockRow::id);
    if (found == m_rows.end()) {
        beginInsertRows({}, at, at);
        m_rows.insert(m_rows.begin() + at, row);
        endInsertRows();
        return;
    }
    if (const auto from = static_cast<int>(found - m_rows.begin()); from != at) {
        beginMoveRows({}, from, from, {}, at);
        std::rotate(m_rows.begin() + at, found, std::next(found));
        endMoveRows();
    }
    if (DockRow &held = m_rows[static_cast<std::size_t>(at)]; held != row) {
        held = row;
        emit dataChanged(index(at), index(at));
    }
}

void DockItems::show(std::vector<DockRow> rows)
{
    layOut(rows);
    const int linesBefore = lines();
    const int dividersBefore = dividers();
    removeOthers(rows);
    for (int at = 0; at < static_cast<int>(rows.size()); ++at) {
        place(at, rows[static_cast<std::size_t>(at)]);
    }
    if (lines() != linesBefore || dividers() != dividersBefore) {
        emit sizeChanged();
    }
}

} // namespace Velvetnook
