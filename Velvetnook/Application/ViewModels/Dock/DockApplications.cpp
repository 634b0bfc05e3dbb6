// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Velvetnook/Application/ViewModels/Dock/DockApplications.h"

#include "Velvetnook/Application/ViewModels/Dock/DockLook.h"

#include <algorithm>
#include <utility>

namespace Velvetnook
{

int DockApplications::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_found.size());
}

QVariant DockApplications::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid)) {
        return {};
    }
    const DockApplication &application = m_all[m_found[static_cast<std::size_t>(index.row())]];
    switch (role) {
    case applicationId:
        return application.id;
    case title:
    case Qt::DisplayRole:
        return application.name;
    case iconSource:
        return dockIconSource(application.iconName);
    case letter:
        return dockLetter(application.name);
    case tint:
        return dockTint(application.id);
    default:
        return {};
    }
}

QHash<int, QByteArray> DockApplications::roleNames() const
{
    return {{applicationId, "applicationId"},
            {title, "title"},
            {iconSource, "iconSource"},
            {letter, "letter"},
            {tint, "tint"}};
}

QString DockApplications::availability() const
{
    if (m_isLoading) {
        return QStringLiteral("loading");
    }
    return m_all.empty() ? QStringLiteral("empty") : QStringLiteral("ready");
}

void DockApplications::filter()
{
    beginResetModel();
    m_found.clear();
    for (std::size_t at = 0; at < m_all.size(); ++at) {
        if (m_all[at].name.contains(m_query.trimmed(), Qt::CaseInsensitive)) {
            m_found.push_back(at);
        }
    }
    endResetModel();
    emit countChanged();
}

void DockApplications::setQuery(const QString &query)
{
    if (std::exchange(m_query, query) != query) {
        filter();
        emit queryChanged();
    }
}

void DockApplications::beginLoading()
{
    m_isLoading = true;
    emit availabilityChanged();
}

void DockApplications::show(std::vector<DockApplication> applications)
{
    std::ranges::sort(applications,
                      [](const DockApplication &one, const DockApplication &other) {
                          return QString::localeAwareCompare(one.name, other.name) < 0;
                      });
    m_all = std::move(applications);
    m_isLoading = false;
    filter();
    emit availabilityChanged();
}

void DockApplications::forget()
{
    m_query.clear();
    show({});
    emit queryChanged();
}

const DockApplication *DockApplications::find(const QString &id) const
{
    const auto found = std::ranges::find(m_all, id, &DockApplication::id);
    return found == m_all.end() ? nullptr : &*found;
}

} // namespace Velvetnook
