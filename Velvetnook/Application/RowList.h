// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QAbstractListModel>
#include <QString>

#include <algorithm>
#include <iterator>
#include <span>
#include <unordered_set>
#include <utility>
#include <vector>

namespace Velvetnook
{

// One role of a list: its name in QML and how it is read from a row.
template <class Row>
struct RowRole {
    const char *name{};
    QVariant (*value)(const Row &){};
};

// Rows with an `id` as they are shown. Told new ones, it says only what has changed, so that a
// row that stays keeps its focus.
template <class Row>
class RowList : public QAbstractListModel
{
public:
    // The roles must outlive this.
    explicit RowList(std::span<const RowRole<Row>> roles) : m_roles{roles} {}

    int rowCount(const QModelIndex &parent = {}) const override
    {
        return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
    }

    QVariant data(const QModelIndex &index, int role) const override
    {
        const auto which = static_cast<std::size_t>(role - Qt::UserRole);
        if (!index.isValid() || index.row() >= rowCount() || which >= m_roles.size()) {
            return {};
        }
        return m_roles[which].value(m_rows.at(static_cast<std::size_t>(index.row())));
    }

    QHash<int, QByteArray> roleNames() const override
    {
        QHash<int, QByteArray> names;
        for (std::size_t at = 0; at < m_roles.size(); ++at) {
            names.insert(Qt::UserRole + static_cast<int>(at), m_roles[at].name);
        }
        return names;
    }

    const std::vector<Row> &rows() const { return m_rows; }

    template <class Id>
    const Row *find(const Id &id) const
    {
        const auto found = std::ranges::find(m_rows, id, &Row::id);
        return found == m_rows.end() ? nullptr : &*found;
    }

    void show(const std::vector<Row> &rows)
    {
        std::unordered_set<decltype(Row::id)> staying;
        for (const Row &row : rows) {
            staying.insert(row.id);
        }
        for (int at = rowCount() - 1; at >= 0; --at) {
            if (!staying.contains(m_rows.at(static_cast<std::size_t>(at)).id)) {
                beginRemoveRows({}, at, at);
                m_rows.erase(m_rows.begin() + at);
                endRemoveRows();
            }
        }
        int to = 0;
        for (const Row &row : rows) {
            bring(row, to++);
        }
    }

protected:
    // Shows these in the place of all that were there.
    void reset(std::vector<Row> rows)
    {
        beginResetModel();
        m_rows = std::move(rows);
        endResetModel();
    }

private:
    // Puts the row there: moved from where it stands below, or as a new one.
    void bring(const Row &row, int to)
    {
        const auto begin = m_rows.begin() + to;
        const auto found = std::ranges::find(begin, m_rows.end(), row.id, &Row::id);
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
        Row &here = m_rows.at(static_cast<std::size_t>(to));
        if (here != row) {
            here = row;
            emit dataChanged(index(to), index(to));
        }
    }

    std::span<const RowRole<Row>> m_roles;
    std::vector<Row> m_rows;
};

} // namespace Velvetnook
