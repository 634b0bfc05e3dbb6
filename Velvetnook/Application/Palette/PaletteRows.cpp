// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Velvetnook/Application/Palette/PaletteRows.h"

#include <algorithm>
#include <array>
#include <iterator>

namespace Velvetnook
{

namespace
{

struct Role {
    const char *name;
    QString PaletteRow::*text;
};
constexpr std::array kTexts{
    Role{"head", &PaletteRow::head},           Role{"title", &PaletteRow::title},
    Role{"spoken", &PaletteRow::spoken},       Role{"note", &PaletteRow::note},
    Role{"iconName", &PaletteRow::iconName},   Role{"emoji", &PaletteRow::emoji},
    Role{"arabic", &PaletteRow::arabic},       Role{"trailing", &PaletteRow::trailing},
    Role{"keyHint", &PaletteRow::keyHint},     Role{"enterHint", &PaletteRow::enterHint},
    Role{"enterNote", &PaletteRow::enterNote},
};
constexpr int kIsArabic = Qt::UserRole + static_cast<int>(kTexts.size());

} // namespace

std::string keyOf(const PaletteThing &thing)
{
    constexpr std::array kKinds{"phrase", "name", "tool",  "page", "action", "timer",
                                "moment", "unit", "emoji", "note", "link"};
    return std::string{kKinds.at(static_cast<std::size_t>(thing.kind))} + ":" + thing.id;
}

int PaletteRows::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
}

QVariant PaletteRows::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid)) {
        return {};
    }
    const PaletteRow &row = m_rows[static_cast<std::size_t>(index.row())];
    if (role == kIsArabic) {
        return row.isArabic;
    }
    const int text = role - Qt::UserRole;
    if (text < 0 || text >= static_cast<int>(kTexts.size())) {
        return {};
    }
    return row.*kTexts.at(static_cast<std::size_t>(text)).text;
}

QHash<int, QByteArray> PaletteRows::roleNames() const
{
    QHash<int, QByteArray> names{{kIsArabic, "isArabic"}};
    for (std::size_t text = 0; text < kTexts.size(); ++text) {
        names.insert(Qt::UserRole + static_cast<int>(text), kTexts.at(text).name);
    }
    return names;
}

void PaletteRows::show(std::vector<PaletteRow> rows)
{
    const int before = rowCount();
    const int after = static_cast<int>(rows.size());
    if (after < before) {
        beginRemoveRows({}, after, before - 1);
        m_rows.resize(rows.size());
        endRemoveRows();
    }
    const std::size_t kept = m_rows.size();
    for (std::size_t row = 0; row < kept; ++row) {
        if (m_rows[row] != rows[row]) {
            m_rows[row] = std::move(rows[row]);
            const QModelIndex changed = index(static_cast<int>(row));
            emit dataChanged(changed, changed);
        }
    }
    if (after > before) {
        beginInsertRows({}, before, after - 1);
        std::move(rows.begin() + before, rows.end(), std::back_inserter(m_rows));
        endInsertRows();
    }
}

} // namespace Velvetnook
