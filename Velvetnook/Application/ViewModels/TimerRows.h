// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QAbstractListModel>
#include <QString>

#include <vector>

namespace Velvetnook
{

// A timer, or a kind of timer of which there is none yet.
struct TimerRow {
    QString timerId{}; // of a kind: "new-" and its mode
    QString icon{};
    QString title{};
    QString note{};
    bool isRunning{};
    bool isChosen{};
    bool canReset{};
    bool canRemove{};
    bool canSet{}; // its length or time left

    bool operator==(const TimerRow &) const = default;
};

// The rows of the timers' list. Tells its views the smallest change.
class TimerRows : public QAbstractListModel
{
    Q_OBJECT

public:
    using QAbstractListModel::QAbstractListModel;

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

    const std::vector<TimerRow> &rows() const { return m_rows; }
    void show(std::vector<TimerRow> rows);

private:
    void removeGone(const std::vector<TimerRow> &wanted);
    void place(const TimerRow &wanted, int at);

    std::vector<TimerRow> m_rows;
};

} // namespace Velvetnook
