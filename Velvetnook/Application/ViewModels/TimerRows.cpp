// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Velvetnook/Application/ViewModels/TimerRows.h"

#include <algorithm>
#include <utility>

namespace Velvetnook
{

namespace
{

enum Role : std::uint16_t {
    timerIdRole = Qt::UserRole,
    iconRole,
    titleRole,
    noteRole,
    isRunningRole,
    isChosenRole,
    canResetRole,
    canRemoveRole,
    canSetRole
};

} // namespace

int TimerRows::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
}

QVariant TimerRows::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid)) {
        return {};
    }
    const TimerRow &row = m_rows[static_cast<std::size_t>(index.row())];
    switch (role) {
    case timerIdRole:
        return row.timerId;
    case iconRole:
        return row.icon;
    case Qt::DisplayRole:
    case titleRole:
        return row.title;
    case noteRole:
        return row.note;
    case isRunningRole:
        return row.isRunning;
    case isChosenRole:
        return row.isChosen;
    case canResetRole:
        return row.canReset;
    case canRemoveRole:
        return row.canRemove;
    case canSetRole:
        return row.canSet;
    default:
        return {};
    }
}

QHash<int, QByteArray> TimerRows::roleNames() const
{
    return {
        {timerIdRole, "timerId"},   {iconRole, "iconName"},       {titleRole, "title"},
        {noteRole, "note"},         {isRunningRole, "isRunning"}, {isChosenRole, "isChosen"},
        {canResetRole, "canReset"}, {canRemoveRole, "canRemove"}, {canSetRole, "canSet"}};
}

void TimerRows::show(std::vector<TimerRow> rows)
{
    removeGone(rows);
    for (std::size_t at = 0; at < rows.size(); ++at) {
        place(rows[at], static_cast<int>(at));
    }
}

void TimerRows::removeGone(const std::vector<TimerRow> &wanted)
{
    for (int at = rowCount() - 1; at >= 0; --at) {
        const QString &id = m_rows[static_cast<std::size_t>(at)].timerId;
        const bool stays =
            std::ranges::any_of(wanted, [&](const TimerRow &row) { return row.timerId == id; });
        if (!stays) {
            beginRemoveRows({}, at, at);
            m_rows.erase(m_rows.begin() + at);
            endRemoveRows();
        }
    }
}

// Before it every row stands right already.
void TimerRows::place(const TimerRow &wanted, int at)
{
    const auto found = std::ranges::find(m_rows, wanted.timerId, &TimerRow::timerId);
    if (found == m_rows.end()) {
        beginInsertRows({}, at, at);
        m_rows.insert(m_rows.begin() + at, wanted);
        endInsertRows();
        return;
    }
    const int from = static_cast<int>(found - m_rows.begin());
    if (from != at) {
        beginMoveRows({}, from, from, {}, at);
        std::rotate(m_rows.begin() + at, found, found + 1);
        endMoveRows();
    }
    TimerRow &shown = m_rows[static_cast<std::size_t>(at)];
    if (shown != wanted) {
        shown = wanted;
        emit dataChanged(index(at), index(at));
    }
}

} // namespace Velvetnook
