// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Velvetnook/Application/ViewModels/Settings/ToolSettings.h"

#include "KestCore/Registry/ToolRegistry.h"
#include "Velvetnook/Application/ApplicationModel.h"
#include "Velvetnook/Application/EngineText.h"
#include "Velvetnook/Application/ToolChoice.h"
#include "Velvetnook/Application/ToolTitles.h"

#include <algorithm>

namespace Velvetnook
{

namespace
{

const KestCore::ToolDescriptor &descriptorOf(const std::string &id)
{
    return *std::ranges::find(KestCore::ToolRegistry::tools(), id,
                              &KestCore::ToolDescriptor::id);
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
    std::ranges::copy_if(m_model.state().order, std::back_inserter(shown),
                         [](const std::string &id) { return hasView(id); });
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
        return isToolOn(m_model.state(), id);
    case favourite:
        return isFavourite(m_model.state(), id);
    case canTurnOff:
        return id != "home";
    default:
        return {};
    }
}

QString ToolSettings::favouritesNote() const
{
    return m_isFull ? engineText(kHeaderIsFull)
                    : tr("Starred tools have a tab in the panel’s header, up to eight.");
}

void ToolSettings::setEnabled(const QString &tool, bool on)
{
    const std::string id = tool.toStdString();
    if (!hasView(id) || id == "home") {
        return;
    }
    m_model.changeState([id, on](KestCore::NativeState &state) -> Result<void> {
        setToolOn(state, id, on);
        return {};
    });
}

void ToolSettings::setFavourite(const QString &tool, bool on)
{
    const std::string id = tool.toStdString();
    if (!hasView(id)) {
        return;
    }
    const KestCore::NativeState &state = m_model.state();
    m_isFull = on && tabCount(state) >= kMostFavourites && !isFavourite(state, id);
    emit changed();
    if (m_isFull) {
        return;
    }
    m_model.changeState([id, on](KestCore::NativeState &changed) {
        return Velvetnook::setFavourite(changed, id, on);
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
