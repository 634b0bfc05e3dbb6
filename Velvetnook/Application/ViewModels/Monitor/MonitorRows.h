// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QAbstractListModel>
#include <QString>

#include <vector>

namespace Velvetnook
{

// An application, a process, or one figure of the machine.
struct MonitorRow {
    QString rowId{};
    QString title{};
    QString note{};
    int tint{}; // of its tile, 0 to 4
    QString cpu{};
    QString memory{};
    QString disk{};
    double share{};  // that the bar is full, 0 to 1
    bool isHot{};    // above the user's threshold
    bool isFaint{};  // no figure
    bool isParted{}; // below a process that started it
    QString spoken{};

    bool operator==(const MonitorRow &) const = default;
};

// Rows that are others every two seconds, and may be thousands. What changes is told by runs of
// places: a view works out anew only what it shows.
class MonitorRows : public QAbstractListModel
{
    Q_OBJECT
    Q_PROPERTY(int count READ rowCountNow NOTIFY countChanged)

public:
    enum class Order : std::uint8_t {
        asGiven,
        held, // those that are shown stay where they are; new ones come at the end
    };

    using QAbstractListModel::QAbstractListModel;

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

    const std::vector<MonitorRow> &rows() const { return m_rows; }
    void show(std::vector<MonitorRow> wanted, Order order);

signals:
    void countChanged();

private:
    int rowCountNow() const { return static_cast<int>(m_rows.size()); }
    std::vector<MonitorRow> inShownOrder(std::vector<MonitorRow> wanted) const;
    void overwrite(std::vector<MonitorRow> &wanted, std::size_t count);

    std::vector<MonitorRow> m_rows;
};

} // namespace Velvetnook
