// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Velvetnook/Application/ViewModels/Monitor/MonitorRows.h"

#include <QHash>

#include <algorithm>
#include <iterator>
#include <utility>

namespace Velvetnook
{

namespace
{

enum Role : std::uint16_t {
    rowIdRole = Qt::UserRole,
    titleRole,
    noteRole,
    tintRole,
    cpuRole,
    memoryRole,
    diskRole,
    shareRole,
    isHotRole,
    isFaintRole,
    isPartedRole,
    spokenRole
};

} // namespace

int MonitorRows::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : rowCountNow();
}

QVariant MonitorRows::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid)) {
        return {};
    }
    const MonitorRow &row = m_rows[static_cast<std::size_t>(index.row())];
    switch (role) {
    case rowIdRole:
        return row.rowId;
    case Qt::DisplayRole:
    case titleRole:
        return row.title;
    case noteRole:
        return row.note;
    case tintRole:
        return row.tint;
    case cpuRole:
        return row.cpu;
    case memoryRole:
        return row.memory;
    case diskRole:
        return row.disk;
    case shareRole:
        return row.share;
    case isHotRole:
        return row.isHot;
    case isFaintRole:
        return row.isFaint;
    case isPartedRole:
        return row.isParted;
    case spokenRole:
        return row.spoken;
    default:
        return {};
    }
}

QHash<int, QByteArray> MonitorRows::roleNames() const
{
    return {{rowIdRole, "rowId"},     {titleRole, "title"},       {noteRole, "note"},
            {tintRole, "tint"},       {cpuRole, "cpu"},           {memoryRole, "memory"},
            {diskRole, "disk"},       {shareRole, "share"},       {isHotRole, "isHot"},
            {isFaintRole, "isFaint"}, {isPartedRole, "isParted"}, {spokenRole, "spoken"}};
}

std::vector<MonitorRow> MonitorRows::inShownOrder(std::vector<MonitorRow> wanted) const
{
    QHash<QString, std::size_t> places;
    for (std::size_t at = 0; at < wanted.size(); ++at) {
        places.insert(wanted[at].rowId, at);
    }
    std::vector<MonitorRow> ordered;
    ordered.reserve(wanted.size());
    for (const MonitorRow &row : m_rows) {
        if (const auto found = places.constFind(row.rowId); found != places.constEnd()) {
            ordered.push_back(std::move(wanted[*found]));
            places.erase(found);
        }
    }
    for (MonitorRow &row : wanted) {
        if (places.contains(row.rowId)) { // what was moved has left its id behind empty
            ordered.push_back(std::move(row));
        }
    }
    return ordered;
}

void MonitorRows::overwrite(std::vector<MonitorRow> &wanted, std::size_t count)
{
    std::size_t at = 0;
    while (at < count) {
        if (m_rows[at] == wanted[at]) {
            ++at;
            continue;
        }
        const std::size_t first = at;
        while (at < count && m_rows[at] != wanted[at]) {
            m_rows[at] = std::move(wanted[at]);
            ++at;
        }
        emit dataChanged(index(static_cast<int>(first)), index(static_cast<int>(at) - 1));
    }
}

void MonitorRows::show(std::vector<MonitorRow> wanted, Order order)
{
    if (order == Order::held) {
        wanted = inShownOrder(std::move(wanted));
    }
    const std::size_t before = m_rows.size();
    const std::size_t after = wanted.size();
    overwrite(wanted, std::min(before, after));
    if (after < before) {
        beginRemoveRows({}, static_cast<int>(after), static_cast<int>(before) - 1);
        m_rows.resize(after);
        endRemoveRows();
    } else if (after > before) {
        beginInsertRows({}, static_cast<int>(before), static_cast<int>(after) - 1);
        std::move(wanted.begin() + static_cast<std::ptrdiff_t>(before), wanted.end(),
                  std::back_inserter(m_rows));
        endInsertRows();
    }
    if (after != before) {
        emit countChanged();
    }
}

} // namespace Velvetnook
