// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "KestCore/Clipboard/ClipboardPayload.h"

#include <optional>
#include <string>
#include <vector>

// Copied files, which are kept by their paths.
namespace Velvetnook
{

// Those of a list of addresses, one a line; nothing when one of them is no file of this
// machine.
std::optional<std::vector<KestCore::ClipboardFileReference>> filesOf(const std::string &list);

std::string pathOf(const KestCore::ClipboardFileReference &file);
bool isReached(const KestCore::ClipboardFileReference &file);

} // namespace Velvetnook
