// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Velvetnook/Application/HomeCards.h"

#include "Velvetnook/Application/ToolChoice.h"

#include <algorithm>
#include <array>
#include <set>
#include <string_view>
#include <utility>

namespace Velvetnook
{

namespace
{

constexpr int kColumns = 4;

struct Kind {
    std::string_view tool{};
    int columns{};
    bool isAlways{}; // unless the user has named the cards
};

// In the order in which they stand where the user has named none.
constexpr std::array kKinds{Kind{"dhikr", 2, true},    Kind{"prayer", 1, true},
                            Kind{"weather", 1, false}, Kind{"names", 1, true},
                            Kind{"timers", 1, true},   Kind{"stats", 2, false}};

std::vector<std::string> piecesOf(std::string_view text)
{
    std::vector<std::string> pieces;
    while (!text.empty()) {
        const std::size_t comma = std::min(text.find(','), text.size());
        if (comma > 0) {
            pieces.emplace_back(text.substr(0, comma));
        }
        text.remove_prefix(std::min(comma + 1, text.size()));
    }
    return pieces;
}

std::vector<std::string> usualCards(const KestCore::CompanionState &companion)
{
    const auto workspace = std::ranges::find(
        companion.workspaces, companion.selectedWorkspaceID, &KestCore::Workspace::id);
    std::vector<std::string> cards;
    for (const Kind &kind : kKinds) {
        const bool isWidget = workspace != companion.workspaces.end() &&
                              std::ranges::find(workspace->homeWidgets, kind.tool) !=
                                  workspace->homeWidgets.end();
        if (kind.isAlways || isWidget) {
            cards.emplace_back(kind.tool);
        }
    }
    return cards;
}

// The places that are taken, by row and column.
class Grid
{
public:
    HomeCard place(std::string tool, int columns)
    {
        for (int row = 0;; ++row) {
            for (int column = 0; column + columns <= kColumns; ++column) {
                if (isFree(row, column, columns)) {
                    take(row, column, columns);
                    return {.tool = std::move(tool),
                            .row = row,
                            .column = column,
                            .columns = columns};
                }
            }
        }
    }

private:
    bool isFree(int row, int column, int columns) const
    {
        for (int n = column; n < column + columns; ++n) {
            if (m_taken.contains({row, n})) {
                return false;
            }
        }
        return true;
    }

    void take(int row, int column, int columns)
    {
        for (int n = column; n < column + columns; ++n) {
            m_taken.insert({row, n});
        }
    }

    std::set<std::pair<int, int>> m_taken;
};

} // namespace

std::vector<HomeCard> homeCards(const KestCore::NativeState &state,
                                const KestCore::CompanionState &companion)
{
    const auto named = state.settings.find("home.widgets");
    const auto tools =
        named == state.settings.end() ? usualCards(companion) : piecesOf(named->second);
    Grid grid;
    std::vector<HomeCard> cards;
    for (const std::string &tool : tools) {
        const auto *const kind = std::ranges::find(kKinds, tool, &Kind::tool);
        const bool isThere = std::ranges::find(cards, tool, &HomeCard::tool) != cards.end();
        if (kind != kKinds.end() && !isThere && isToolOn(state, tool)) {
            cards.push_back(grid.place(tool, kind->columns));
        }
    }
    return cards;
}

} // namespace Velvetnook
