// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Velvetnook/Platform/CapabilityList.h"

#include <utility>

namespace Velvetnook
{

void CapabilityList::show(std::vector<Capability> capabilities)
{
    if (capabilities.size() != m_rows.size()) {
        beginResetModel();
        m_rows = std::move(capabilities);
        endResetModel();
        return;
    }
    for (std::size_t row = 0; row < capabilities.size(); ++row) {
        if (m_rows[row] != capabilities[row]) {
            m_rows[row] = std::move(capabilities[row]);
            const QModelIndex changed = index(static_cast<int>(row));
            emit dataChanged(changed, changed);
        }
    }
}

int CapabilityList::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
}

QVariant CapabilityList::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid)) {
        return {};
    }
    static constexpr const char *kLevels[]{"full", "degraded", "off", "unknown"};
    const Capability &row = m_rows[static_cast<std::size_t>(index.row())];
    switch (role) {
    case Qt::DisplayRole:
    case name:
        return row.name;
    case level:
        return QString::fromLatin1(kLevels[static_cast<std::size_t>(row.level)]);
    case levelText:
        return textOf(row.level);
    case reason:
        return row.reason;
    case wayOut:
        return row.wayOut;
    default:
        return {};
    }
}

QHash<int, QByteArray> CapabilityList::roleNames() const
{
    return {{name, "name"},
            {level, "level"},
            {levelText, "levelText"},
            {reason, "reason"},
            {wayOut, "wayOut"}};
}

} // namespace Velvetnook
