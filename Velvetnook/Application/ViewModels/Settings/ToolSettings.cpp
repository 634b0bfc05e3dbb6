// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Velvetnook/Application/ViewModels/Settings/ToolSettings.h"

#include "KestCore/Registry/ToolRegistry.h"
#include "Velvetnook/Application/ApplicationModel.h"
#include "Velvetnook/Application/ToolTitles.h"

#include <algorithm>
#include <array>

namespace Velvetnook
{

namespace
{

// The tools that have a view here.
constexpr std::array kWithView{"home",   "dhikr",  "prayer",     "names", "tasbih",
                               "friday", "timers", "scratchpad", "notes", "units"};

bool hasView(std::string_view id)
{
    return std::ranges::find(kWithView, id) != kWithView.end();
}

bool contains(const std::vector<std::string> &ids, std::string_view id)
{
    return std::ranges::find(ids, id) != ids.end();
}

const KestCore::ToolDescriptor &descriptorOf(const std::string &id)
{
    return *std::ranges::find(KestCore::ToolRegistry::tools(), id,
                              &KestCore::ToolDescriptor::id);
}

void put(std::vector<std::string> &ids, const std::string &id, bool isIn)
{
    if (!isIn) {
        std::erase(ids, id);
    } else if (!contains(ids, id)) {
        ids.push_back(id);
    }
}

// The tabs of the header stand in the order of the tools.
void arrangeFavourites(KestCore::NativeState &state)
{
    std::ranges::stable_sort(state.navigationFavorites, {}, [&](const std::string &id) {
        return std::ranges::find(state.order, id) - state.order.begin();
    });
}

} // namespace

ToolSettings::ToolSettings(ApplicationModel &model, QObject *parent)
    : QAbstractListModel{parent}, m_model{model}
{
    follow();
    connect(&model, &ApplicationModel::choicesChanged, this, &ToolSettings::follow);
}

void ToolSettings::follow()
{
    std::vector<std::string> shown;
    std::ranges::copy_if(m_model.state().order, std::back_inserter(shown), hasView);
    if (shown.size() != m_shown.size()) {
        beginResetModel();
        m_shown = std::move(shown);
        endResetModel();
    } else if (!m_shown.empty()) {
        // The rows stay, so that the one that is being moved keeps its focus.
        m_shown = std::move(shown);
        emit dataChanged(index(0), index(rowCount() - 1));
    }
    emit changed();
}

int ToolSettings::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_shown.size());
}

QHash<int, QByteArray> ToolSettings::roleNames() const
{
    return {{toolId, "toolId"},        {title, "title"},
            {summary, "summary"},      {icon, "icon"},
            {enabled, "enabledTool"},  {favourite, "favourite"},
            {canTurnOff, "canTurnOff"}};
}

QVariant ToolSettings::data(const QModelIndex &index, int role) const
{
    if (!index.isValid() || index.row() >= rowCount()) {
        return {};
    }
    const std::string &id = m_shown.at(static_cast<std::size_t>(index.row()));
    const KestCore::ToolDescriptor &tool = descriptorOf(id);
    switch (role) {
    case toolId:
        return QString::fromStdString(id);
    case title:
        return toolTitle(QString::fromStdString(id));
    case summary:
        return toolSummary(QString::fromStdString(id));
    case icon:
        return QString::fromStdString(tool.icon);
    case enabled:
        return contains(m_model.state().enabled, id);
    case favourite:
        return contains(m_model.state().navigationFavorites, id);
    case canTurnOff:
        return id != "home";
    default:
        return {};
    }
}

int ToolSettings::favouriteCount() const
{
    return static_cast<int>(
        std::ranges::count_if(m_model.state().navigationFavorites, hasView));
}

QString ToolSettings::favouritesNote() const
{
    return m_isFull ? tr("The header has room for eight. Take one out first.")
                    : tr("Starred tools have a tab in the panel’s header, up to eight.");
}

void ToolSettings::setEnabled(const QString &tool, bool on)
{
    const std::string id = tool.toStdString();
    if (!hasView(id) || id == "home") {
        return;
    }
    m_model.changeState([id, on](KestCore::NativeState &state) -> Result<void> {
        put(state.enabled, id, on);
        return {};
    });
}

void ToolSettings::setFavourite(const QString &tool, bool on)
{
    const std::string id = tool.toStdString();
    if (!hasView(id)) {
        return;
    }
    const auto count = static_cast<std::size_t>(favouriteCount());
    m_isFull =
        on && count >= kMostFavourites && !contains(m_model.state().navigationFavorites, id);
    emit changed();
    if (m_isFull) {
        return;
    }
    m_model.changeState([id, on](KestCore::NativeState &state) -> Result<void> {
        put(state.navigationFavorites, id, on);
        arrangeFavourites(state);
        return {};
    });
}

void ToolSettings::move(int from, int to)
{
    const int count = rowCount();
    if (from < 0 || to < 0 || from >= count || to >= count || from == to) {
        return;
    }
    const std::string moved = m_shown.at(static_cast<std::size_t>(from));
    const std::string target = m_shown.at(static_cast<std::size_t>(to));
    const bool isDown = from < to;
    m_model.changeState([=](KestCore::NativeState &state) -> Result<void> {
        std::erase(state.order, moved);
        auto place = std::ranges::find(state.order, target);
        if (place != state.order.end() && isDown) {
            ++place;
        }
        state.order.insert(place, moved);
        arrangeFavourites(state);
        return {};
    });
}

} // namespace Velvetnook
