// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Velvetnook/Application/ToolChoice.h"

#include "KestCore/Models/NativeState.h"

#include <algorithm>
#include <array>

namespace Velvetnook
{

namespace
{

struct ToolView {
    std::string_view tool;
    std::string_view view;
};
constexpr std::array kViews{
    ToolView{"home", "Home"},
    ToolView{"dhikr", "Counter"},
    ToolView{"history", "History"},
    ToolView{"names", "Names"},
    ToolView{"tasbih", "Names"},
    ToolView{"prayer", "Prayer"},
    ToolView{"friday", "Friday"},
    ToolView{"timers", "Timers"},
    ToolView{"units", "Units"},
    ToolView{"notes", "Notes"},
    ToolView{"scratchpad", "Notes"},
    ToolView{"claude", "Assistants"},
    ToolView{"stats", "Monitor"},
    ToolView{"weather", "Weather"},
    ToolView{"revenue", "Insights"},
    ToolView{"analytics", "Insights"},
    ToolView{"music", "Music"},
    ToolView{"sounds", "Sounds"},
    ToolView{"shelf", "Shelf"},
    ToolView{"links", "Links"},
    ToolView{"files", "Files"},
    ToolView{"calendar", "Calendar"},
    ToolView{"clipboard", "Clipboard"},
    ToolView{"emoji", "Emoji"},
    ToolView{"screen-time", "ScreenTime"},
};

bool contains(const std::vector<std::string> &ids, std::string_view id)
{
    return std::ranges::find(ids, id) != ids.end();
}

} // namespace

std::string_view viewOfTool(std::string_view id)
{
    const auto *const found = std::ranges::find(kViews, id, &ToolView::tool);
    return found == kViews.end() ? std::string_view{} : found->view;
}

bool isToolOn(const KestCore::NativeState &state, std::string_view id)
{
    const std::string_view tool = id == "history" ? "dhikr" : id;
    return tool == "home" || !hasView(tool) || contains(state.enabled, tool);
}

void setToolOn(KestCore::NativeState &state, const std::string &id, bool isOn)
{
    if (!isOn) {
        std::erase(state.enabled, id);
    } else if (!contains(state.enabled, id)) {
        state.enabled.push_back(id);
    }
}

bool isFavourite(const KestCore::NativeState &state, std::string_view id)
{
    return contains(state.navigationFavorites, id);
}

bool hasTab(const KestCore::NativeState &state, std::string_view id)
{
    return isFavourite(state, id) && hasView(id) && isToolOn(state, id);
}

std::size_t tabCount(const KestCore::NativeState &state)
{
    return static_cast<std::size_t>(std::ranges::count_if(
        state.navigationFavorites, [&](const std::string &id) { return hasTab(state, id); }));
}

void arrangeFavourites(KestCore::NativeState &state)
{
    std::ranges::stable_sort(state.navigationFavorites, {}, [&](const std::string &id) {
        return std::ranges::find(state.order, id) - state.order.begin();
    });
}

Result<void> setFavourite(KestCore::NativeState &state, const std::string &id, bool isOn)
{
    if (isFavourite(state, id) == isOn) {
        return {};
    }
    if (!isOn) {
        std::erase(state.navigationFavorites, id);
    } else if (tabCount(state) >= kMostFavourites) {
        return std::unexpected(Base::KestError::invalidData(kHeaderIsFull));
    } else {
        state.navigationFavorites.push_back(id);
    }
    arrangeFavourites(state);
    return {};
}

} // namespace Velvetnook
