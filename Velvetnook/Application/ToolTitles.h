// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace Velvetnook
{

// What the tool is called in the language of the interface. The catalogue's own title for a
// tool that has no translation, and nothing for one that nobody knows.
QString toolTitle(const QString &id);

} // namespace Velvetnook
