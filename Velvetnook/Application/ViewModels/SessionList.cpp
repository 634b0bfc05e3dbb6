// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Velvetnook/Application/ViewModels/SessionList.h"

#include "Velvetnook/Application/ApplicationModel.h"
#include "Velvetnook/Application/CounterSteps.h"
#include "Velvetnook/Application/Formatting.h"
#include "Velvetnook/Application/LocalDay.h"

namespace Velvetnook
{

SessionList::SessionList(const ApplicationModel &model, const Formatting &formatting,
                         QObject *parent)
    : QAbstractListModel{parent}, m_model{model}, m_formatting{formatting},
      m_records{model.state().devotional.records}
{
}

int SessionList::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_records.size());
}

const KestCore::SessionRecord &SessionList::recordAt(int row) const
{
    return m_records[m_records.size() - 1 - static_cast<std::size_t>(row)];
}

QVariant SessionList::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid)) {
        return {};
    }
    const KestCore::SessionRecord &record = recordAt(index.row());
    const auto endedAt = Base::fromMilliseconds1970(record.endedAt);
    switch (role) {
    case arabic:
        return QString::fromStdString(phraseOf(record.dhikrId).arabic);
    case title:
        return phraseTitle(phraseOf(record.dhikrId));
    case count:
        return m_formatting.number(record.count);
    case target:
        return record.target ? m_formatting.number(*record.target) : QString{};
    case reached:
        return record.target.has_value() && record.count >= *record.target;
    case time:
        return m_formatting.time(endedAt);
    case day:
        return dayText(endedAt, m_model, m_formatting);
    default:
        return {};
    }
}

QHash<int, QByteArray> SessionList::roleNames() const
{
    return {{arabic, "arabic"},   {title, "title"}, {count, "count"}, {target, "target"},
            {reached, "reached"}, {time, "time"},   {day, "day"}};
}

void SessionList::follow()
{
    const auto &records = m_model.state().devotional.records;
    if (records.sharesBlockWith(m_records)) {
        return;
    }
    const bool isOneMore = records.size() == m_records.size() + 1 && !m_records.empty() &&
                           records[m_records.size() - 1] == m_records[m_records.size() - 1];
    if (isOneMore) {
        beginInsertRows({}, 0, 0);
        m_records = records;
        endInsertRows();
        return;
    }
    beginResetModel();
    m_records = records;
    endResetModel();
}

void SessionList::reword()
{
    if (!m_records.empty()) {
        emit dataChanged(index(0), index(rowCount() - 1));
    }
}

} // namespace Velvetnook
