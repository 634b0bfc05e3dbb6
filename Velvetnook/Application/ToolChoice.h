// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Base/Result.h"

#include <cstddef>
#include <string>
#include <string_view>

namespace KestCore
{
struct NativeState;
}

// Which tools there are here, which of them the user has turned on, and which have a tab.
namespace Velvetnook
{

using Base::Result;

inline constexpr std::size_t kMostFavourites = 8; // that the panel's header has room for
inline constexpr const char *kHeaderIsFull =
    "The header has room for eight. Take one out first.";

// The view of the tool, Views/<view>View.qml; empty where it has none here.
std::string_view viewOfTool(std::string_view id);
inline bool hasView(std::string_view id) { return !viewOfTool(id).empty(); }

// Home is always on, and the history goes with the counter. A tool without a view cannot be
// turned off: it is only ever named.
bool isToolOn(const KestCore::NativeState &state, std::string_view id);
void setToolOn(KestCore::NativeState &state, const std::string &id, bool isOn);

// The tabs stand in the order of the tools. Only those that are shown count toward the limit,
// and one more is refused.
Result<void> setFavourite(KestCore::NativeState &state, const std::string &id, bool isOn);
bool isFavourite(const KestCore::NativeState &state, std::string_view id);
// Whether the tool has a tab in the header: a favourite that is on and has a view.
bool hasTab(const KestCore::NativeState &state, std::string_view id);
std::size_t tabCount(const KestCore::NativeState &state);
void arrangeFavourites(KestCore::NativeState &state);

} // namespace Velvetnook
