// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Velvetnook/Application/DockDesktop.h"

#include <QAbstractListModel>

#include <cstdint>

namespace Velvetnook
{

// The applications to choose from. They are read when they are first wanted and forgotten when
// nobody chooses any more.
class DockApplications : public QAbstractListModel
{
    Q_OBJECT
    Q_PROPERTY(QString query READ query WRITE setQuery NOTIFY queryChanged)
    // As the views show it: "loading", "ready", or "empty" where there are none at all.
    Q_PROPERTY(QString availability READ availability NOTIFY availabilityChanged)
    Q_PROPERTY(int count READ count NOTIFY countChanged) // that the query leaves

public:
    enum Role : std::uint16_t { applicationId = Qt::UserRole, title, iconSource, letter, tint };

    using QAbstractListModel::QAbstractListModel;

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

    QString query() const { return m_query; }
    QString availability() const;
    int count() const { return rowCount(); }
    void setQuery(const QString &query);

    void beginLoading();
    void show(std::vector<DockApplication> applications);
    Q_INVOKABLE void forget();
    // Null for an id that is not shown.
    const DockApplication *find(const QString &id) const;

signals:
    void queryChanged();
    void availabilityChanged();
    void countChanged();

private:
    void filter();

    std::vector<DockApplication> m_all;
    std::vector<std::size_t> m_found; // places in m_all
    QString m_query;
    bool m_isLoading = false;
};

} // namespace Velvetnook
