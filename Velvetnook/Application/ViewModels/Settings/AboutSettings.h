// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QAbstractItemModel>
#include <QPointer>

namespace Velvetnook
{

// What this program is, and what the running desktop gives it.
class AboutSettings : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QString version READ version CONSTANT)
    // A list with the roles name, level ("full", "degraded", "off"), reason and wayOut; null
    // until the desktop was asked.
    Q_PROPERTY(QAbstractItemModel *capabilities READ capabilities NOTIFY changed)

public:
    using QObject::QObject;

    QString version() const;
    QAbstractItemModel *capabilities() const { return m_capabilities; }
    // The list stays its maker's.
    void setCapabilities(QAbstractItemModel *capabilities);

signals:
    void changed();

private:
    QPointer<QAbstractItemModel> m_capabilities;
};

} // namespace Velvetnook
