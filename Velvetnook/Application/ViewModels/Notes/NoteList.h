// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QAbstractListModel>
#include <QString>

#include <vector>

namespace Velvetnook
{

// One line of the list of notes.
struct NoteRow {
    QString id{};
    QString title{};
    QString excerpt{}; // what a search found in its text
    QString when{};
    bool isPinned{};
    bool isScratchpad{};

    bool operator==(const NoteRow &) const = default;
};

// The lines as they are shown. Told new ones, it says only what has changed, so that a line
// that stays keeps its focus.
class NoteList : public QAbstractListModel
{
    Q_OBJECT

public:
    enum Role : std::uint16_t {
        noteId = Qt::UserRole,
        title,
        excerpt,
        when,
        pinned,
        scratchpad
    };

    using QAbstractListModel::QAbstractListModel;

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

    const std::vector<NoteRow> &rows() const { return m_rows; }
    void show(std::vector<NoteRow> rows);

private:
    void bring(const NoteRow &row, int to);

    std::vector<NoteRow> m_rows;
};

} // namespace Velvetnook
