// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Velvetnook/Application/ViewModels/PanelViewModel.h"

#include "KestCore/Registry/ToolRegistry.h"
#include "Velvetnook/Application/ApplicationModel.h"
#include "Velvetnook/Application/Formatting.h"
#include "Velvetnook/Application/QtText.h"
#include "Velvetnook/Application/ToolChoice.h"
#include "Velvetnook/Application/ToolTitles.h"

#include <QVariantMap>

#include <algorithm>
#include <utility>

namespace Velvetnook
{

namespace
{

constexpr Base::Seconds kMessageTime{5};
constexpr auto kAllTools = "tools";
const QString kHome = QStringLiteral("home");

QString viewOf(const QString &tool) { return fromView(viewOfTool(tool.toStdString())); }

const KestCore::ToolDescriptor *descriptorOf(const QString &id)
{
    const auto &tools = KestCore::ToolRegistry::tools();
    const auto found =
        std::ranges::find(tools, id.toStdString(), &KestCore::ToolDescriptor::id);
    return found == tools.end() ? nullptr : &*found;
}

QVariantMap described(const QString &id)
{
    const KestCore::ToolDescriptor *tool = descriptorOf(id);
    return {{QStringLiteral("id"), id},
            {QStringLiteral("title"), toolTitle(id)},
            {QStringLiteral("icon"),
             tool == nullptr ? QString{} : QString::fromStdString(tool->icon)}};
}

} // namespace

PanelViewModel::PanelViewModel(ApplicationModel &model, const Formatting &formatting,
                               QObject *parent)
    : QObject{parent}, m_model{model}, m_tool{QStringLiteral("dhikr")}, m_before{m_tool}
{
    const auto say = [this](const QString &text) {
        showMessage(text, {}, std::function<void()>{});
    };
    connect(&model, &ApplicationModel::said, this, say);
    connect(&model, &ApplicationModel::failed, this, say);
    connect(&model, &ApplicationModel::stateChanged, this, &PanelViewModel::followState);
    // On a clock that was set back a message stays no longer than it would have.
    connect(&model.clock(), &DueClock::wallClockChanged, this, [this] {
        if (m_messageEnd) {
            m_messageEnd = std::min(*m_messageEnd, m_model.now() + kMessageTime);
        }
    });
    connect(&formatting, &Formatting::wordsChanged, this, [this] {
        emit tabsChanged();
        emit wordsChanged();
    });
    leaveTurnedOff();
    model.clock().add(
        this, [this](Base::Instant) { return m_messageEnd; },
        [this](Base::Instant) { dropMessage(); });
}

// Every count changes the state; to draw the tabs anew each time would hold up its number.
void PanelViewModel::followState()
{
    const KestCore::NativeState &state = m_model.state();
    QStringList seen{isFrosted() ? QStringLiteral("frosted") : QString{}};
    for (const auto *list : {&state.navigationFavorites, &state.order, &state.enabled}) {
        for (const std::string &id : *list) {
            seen.append(QString::fromStdString(id));
        }
        seen.append(QString{});
    }
    if (seen != m_seen) {
        m_seen = std::move(seen);
        leaveTurnedOff();
        emit tabsChanged();
    }
}

// The view of a tool that has just been turned off does not stay.
void PanelViewModel::leaveTurnedOff()
{
    const auto isOff = [this](const QString &id) {
        return !isToolOn(m_model.state(), id.toStdString());
    };
    if (isOff(m_before)) {
        m_before = kHome;
    }
    if (isOff(m_tool)) {
        show(kHome);
    }
}

QString PanelViewModel::chosenTab() const
{
    if (m_tool == QLatin1String{"history"}) {
        return QStringLiteral("dhikr");
    }
    return m_tool == QLatin1String{kAllTools} ? m_before : m_tool;
}

QString PanelViewModel::title() const
{
    return m_tool == QLatin1String{kAllTools} ? tr("All tools") : toolTitle(chosenTab());
}

QString PanelViewModel::icon() const
{
    return described(chosenTab())[QStringLiteral("icon")].toString();
}

QString PanelViewModel::summary() const { return toolSummary(chosenTab()); }

bool PanelViewModel::isFrosted() const
{
    return m_model.setting("appearance.material") != "solid";
}

QString PanelViewModel::viewName() const
{
    return m_tool == QLatin1String{kAllTools} ? QStringLiteral("AllTools") : viewOf(m_tool);
}

QStringList PanelViewModel::tabIds() const
{
    QStringList ids;
    for (const std::string &id : m_model.state().navigationFavorites) {
        const bool hasRoom = ids.size() < static_cast<qsizetype>(kMostFavourites);
        if (hasRoom && hasTab(m_model.state(), id)) {
            ids.append(QString::fromStdString(id));
        }
    }
    if (!ids.contains(chosenTab())) {
        ids.append(chosenTab());
    }
    return ids;
}

QVariantList PanelViewModel::tabs() const
{
    QVariantList list;
    for (const QString &id : tabIds()) {
        list.append(described(id));
    }
    return list;
}

QVariantList PanelViewModel::allTools() const
{
    QVariantList list;
    for (const std::string &each : m_model.state().order) {
        const QString id = QString::fromStdString(each);
        if (id == QLatin1String{"settings"} || !isToolOn(m_model.state(), each)) {
            continue;
        }
        QVariantMap tool = described(id);
        tool.insert(QStringLiteral("isBuilt"), !viewOf(id).isEmpty());
        list.append(tool);
    }
    return list;
}

void PanelViewModel::openTool(const QString &id)
{
    if (id == QLatin1String{"settings"}) {
        emit settingsWanted();
    } else if (!isToolOn(m_model.state(), id.toStdString())) {
        m_model.say(tr("%1 is turned off. The settings turn it on again.").arg(toolTitle(id)));
    } else if (descriptorOf(id) != nullptr || !viewOf(id).isEmpty()) {
        show(id);
    }
}

void PanelViewModel::show(const QString &id)
{
    if (id == m_tool) {
        return;
    }
    const QStringList ids = tabIds();
    const auto from = ids.indexOf(chosenTab());
    m_before = chosenTab();
    m_tool = id;
    const auto to = ids.indexOf(chosenTab());
    m_direction = to >= 0 && to < from ? -1 : 1;
    emit tabsChanged();
    emit toolChanged();
    emit wordsChanged();
}

void PanelViewModel::openTab(int index)
{
    const QStringList ids = tabIds();
    if (index >= 0 && index < ids.size()) {
        show(ids[index]);
    }
}

void PanelViewModel::stepTab(int distance)
{
    const QStringList ids = tabIds();
    const auto count = ids.size();
    show(ids[(ids.indexOf(chosenTab()) + distance % count + count) % count]);
}

void PanelViewModel::showAllTools() { show(QString::fromLatin1(kAllTools)); }

void PanelViewModel::back() { show(chosenTab()); }

void PanelViewModel::showMessage(const QString &text, const QString &actionText,
                                 std::function<void()> action)
{
    m_message = text;
    m_messageAction = action ? actionText : QString{};
    m_action = std::move(action);
    m_messageEnd = m_model.now() + kMessageTime;
    m_model.clock().reschedule();
    emit messageChanged();
}

void PanelViewModel::showMessage(const QString &text, const QString &actionText,
                                 const QJSValue &action)
{
    std::function<void()> call;
    if (action.isCallable()) {
        call = [action] { action.call(); };
    }
    showMessage(text, actionText, std::move(call));
}

void PanelViewModel::takeMessageAction()
{
    const auto action = std::exchange(m_action, {});
    dropMessage();
    if (action) {
        action();
    }
}

void PanelViewModel::dropMessage()
{
    m_messageEnd.reset();
    m_message.clear();
    m_messageAction.clear();
    m_action = {};
    emit messageChanged();
}

void PanelViewModel::beginDialog()
{
    ++m_dialogDepth;
    emit dialogDepthChanged();
}

void PanelViewModel::endDialog()
{
    m_dialogDepth = std::max(m_dialogDepth - 1, 0);
    emit dialogDepthChanged();
}

void PanelViewModel::setOpen(bool isOpen)
{
    if (std::exchange(m_isOpen, isOpen) != isOpen) {
        emit isOpenChanged();
    }
}

} // namespace Velvetnook
