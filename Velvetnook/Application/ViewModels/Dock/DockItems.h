// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QAbstractListModel>
#include <QString>

#include <cstdint>
#include <vector>

namespace Velvetnook
{

// One item of the workspace that is shown.
struct DockRow {
    QString id{};
    QString kind{};
    QString title{};
    QString target{};
    QString iconName{};     // of a tool
    QString iconSource{};   // the picture of an application
    QString letter{};       // where there is neither
    QString lifetimeText{}; // empty: it stays
    QString lifetime{};
    int tint = 0;
    bool isThere = true;
    // Where it stands in the grid: the tile's column and line, and the dividers above it.
    int column = 0;
    int line = 0;
    int dividersAbove = 0;

    bool operator==(const DockRow &) const = default;
};

// Gives each row its place: four tiles in a line, and a divider on a line of its own.
void layOut(std::vector<DockRow> &rows);

// The items as QML lists them. Told a new list it makes the smallest change to the one it has,
// so that what has the focus keeps it.
class DockItems : public QAbstractListModel
{
    Q_OBJECT
    Q_PROPERTY(int lines READ lines NOTIFY sizeChanged)       // of tiles
    Q_PROPERTY(int dividers READ dividers NOTIFY sizeChanged) // lines with a divider

public:
    enum Role : std::uint16_t {
        itemId = Qt::UserRole,
        kind,
        title,
        iconName,
        iconSource,
        letter,
        lifetime,
        lifetimeText,
        tint,
        isThere,
        column,
        line,
        dividersAbove
    };

    using QAbstractListModel::QAbstractListModel;

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;
    int lines() const;
    int dividers() const;

    const std::vector<DockRow> &rows() const { return m_rows; }
    void show(std::vector<DockRow> rows);

signals:
    void sizeChanged();

private:
    void removeOthers(const std::vector<DockRow> &wanted);
    void place(int at, const DockRow &row);

    std::vector<DockRow> m_rows;
};

} // namespace Velvetnook
