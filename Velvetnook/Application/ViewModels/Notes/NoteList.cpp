// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Velvetnook/Application/ViewModels/Notes/NoteList.h"

#include <algorithm>
#include <iterator>

namespace Velvetnook
{

int NoteList::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
}

QHash<int, QByteArray> NoteList::roleNames() const
{
    return {{noteId, "noteId"}, {title, "title"},   {excerpt, "excerpt"},
            {when, "when"},     {pinned, "pinned"}, {scratchpad, "scratchpad"}};
}

QVariant NoteList::data(const QModelIndex &index, int role) const
{
    if (!index.isValid() || index.row() >= rowCount()) {
        return {};
    }
    const NoteRow &row = m_rows.at(static_cast<std::size_t>(index.row()));
    switch (role) {
    case noteId:
        return row.id;
    case title:
        return row.title;
    case excerpt:
        return row.excerpt;
    case when:
        return row.when;
    case pinned:
        return row.isPinned;
    case scratchpad:
        return row.isScratchpad;
    default:
        return {};
    }
}

// Puts the line there: moved from where it stands below, or as a new one.
void NoteList::bring(const NoteRow &row, int to)
{
    const auto begin = m_rows.begin() + to;
    const auto found = std::ranges::find(begin, m_rows.end(), row.id, &NoteRow::id);
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
    NoteRow &here = m_rows.at(static_cast<std::size_t>(to));
    if (here != row) {
        here = row;
        emit dataChanged(index(to), index(to));
    }
}

void NoteList::show(std::vector<NoteRow> rows)
{
    for (int at = rowCount() - 1; at >= 0; --at) {
        const QString &id = m_rows.at(static_cast<std::size_t>(at)).id;
        if (std::ranges::find(rows, id, &NoteRow::id) == rows.end()) {
            beginRemoveRows({}, at, at);
            m_rows.erase(m_rows.begin() + at);
            endRemoveRows();
        }
    }
    int to = 0;
    for (const NoteRow &row : rows) {
        bring(row, to++);
    }
}

} // namespace Velvetnook
