// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Velvetnook/Application/ViewModels/Settings/AboutSettings.h"

#include "Velvetnook/Application/ViewModels/Settings/UpdateSettings.h"

namespace Velvetnook
{

AboutSettings::AboutSettings(ApplicationModel &model, const Formatting &formatting,
                             QObject *parent)
    : QObject{parent},
      m_updates{new UpdateSettings{model, formatting, ownUpdateSource(KEST_VERSION), this}}
{
}

QString AboutSettings::version() const { return QStringLiteral(KEST_VERSION); }

void AboutSettings::setCapabilities(QAbstractItemModel *capabilities)
{
    m_capabilities = capabilities;
    emit changed();
}

} // namespace Velvetnook
