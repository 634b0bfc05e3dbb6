// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Velvetnook/Application/Palette/PaletteRow.h"

#include <QAbstractListModel>

#include <vector>

namespace Velvetnook
{

// The lines of the palette. Each key changes most of them, so a line keeps its place and is
// given new contents: what draws it is not made anew.
class PaletteRows : public QAbstractListModel
{
    Q_OBJECT

public:
    explicit PaletteRows(QObject *parent = nullptr) : QAbstractListModel{parent} {}

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

    const std::vector<PaletteRow> &rows() const { return m_rows; }
    void show(std::vector<PaletteRow> rows);

private:
    std::vector<PaletteRow> m_rows;
};

} // namespace Velvetnook
