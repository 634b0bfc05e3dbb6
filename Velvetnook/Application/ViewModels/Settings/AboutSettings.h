// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QAbstractItemModel>
#include <QPointer>

namespace Velvetnook
{

class ApplicationModel;
class Formatting;
class UpdateSettings;

// What this program is, and what the running desktop gives it.
class AboutSettings : public QObject
{
    Q_OBJECT
    Q_MOC_INCLUDE("Velvetnook/Application/ViewModels/Settings/UpdateSettings.h")
    Q_PROPERTY(QString version READ version CONSTANT)
    Q_PROPERTY(Velvetnook::UpdateSettings *updates READ updates CONSTANT)
    // A list with the roles name, level ("full", "degraded", "off"), reason and wayOut; null
    // until the desktop was asked.
    Q_PROPERTY(QAbstractItemModel *capabilities READ capabilities NOTIFY changed)

public:
    AboutSettings(ApplicationModel &model, const Formatting &formatting,
                  QObject *parent = nullptr);

    QString version() const;
    UpdateSettings *updates() const { return m_updates; }
    QAbstractItemModel *capabilities() const { return m_capabilities; }
    // The list stays its maker's.
    void setCapabilities(QAbstractItemModel *capabilities);

signals:
    void changed();

private:
    UpdateSettings *m_updates;
    QPointer<QAbstractItemModel> m_capabilities;
};

} // namespace Velvetnook
