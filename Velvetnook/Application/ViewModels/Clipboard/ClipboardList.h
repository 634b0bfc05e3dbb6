// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QAbstractListModel>
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

// The cards as they are shown. Told new ones, it says only what has changed, so that a card
// that stays keeps its focus.
class ClipboardList : public QAbstractListModel
{
    Q_OBJECT

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

    using QAbstractListModel::QAbstractListModel;

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

    const std::vector<ClipboardRow> &rows() const { return m_rows; }
    void show(std::vector<ClipboardRow> rows);

private:
    void bring(const ClipboardRow &row, int to);

    std::vector<ClipboardRow> m_rows;
};

} // namespace Velvetnook
