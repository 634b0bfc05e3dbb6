// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Velvetnook/Application/ViewModels/Settings/AboutSettings.h"

namespace Velvetnook
{

QString AboutSettings::version() const { return QStringLiteral(KEST_VERSION); }

void AboutSettings::setCapabilities(QAbstractItemModel *capabilities)
{
    m_capabilities = capabilities;
    emit changed();
}

} // namespace Velvetnook
