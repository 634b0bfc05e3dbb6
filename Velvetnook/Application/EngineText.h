// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <string_view>

namespace Velvetnook
{

// What an engine says, a refusal or the words of a notification, in the language of the
// interface. A text that nobody has translated is shown as it is.
QString engineText(std::string_view text);

} // namespace Velvetnook
