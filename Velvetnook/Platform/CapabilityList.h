// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Velvetnook/Platform/Capabilities.h"

#include <QAbstractListModel>

namespace Velvetnook
{

// The capabilities as the settings show them.
class CapabilityList : public QAbstractListModel
{
    Q_OBJECT

public:
    enum Role : std::uint16_t { name = Qt::UserRole + 1, level, levelText, reason, wayOut };

    using QAbstractListModel::QAbstractListModel;

    void show(std::vector<Capability> capabilities);

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

private:
    std::vector<Capability> m_rows;
};

} // namespace Velvetnook
