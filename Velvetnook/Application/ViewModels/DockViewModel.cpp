// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Velvetnook/Application/ViewModels/DockViewModel.h"

#include "Base/Uuid.h"
#include "KestCore/Registry/ToolRegistry.h"
#include "KestCore/Surfaces/CompanionEdits.h"
#include "Velvetnook/Application/ApplicationModel.h"
#include "Velvetnook/Application/EngineText.h"
#include "Velvetnook/Application/Formatting.h"
#include "Velvetnook/Application/ToolChoice.h"
#include "Velvetnook/Application/ToolTitles.h"
#include "Velvetnook/Application/ViewModels/Dock/DockLook.h"
#include "Velvetnook/Application/ViewModels/HomeViewModel.h"

#include <QPointer>
#include <QVariantMap>

#include <algorithm>
#include <array>
#include <utility>

namespace Velvetnook
{

namespace
{

using KestCore::DockItem;
using KestCore::DockItemKind;
using KestCore::ItemLifetime;

constexpr Base::Seconds kMessageTime{5};
// What cannot be written is not tried over and over.
constexpr Base::Seconds kBetweenClearings{60};

// The tools that have something to show at a glance.
constexpr std::array<std::string_view, 8> kWidgetTools{
    "prayer", "timers", "names", "weather", "stats", "claude", "screen-time", "dhikr"};

bool isOf(const std::vector<std::string> &ids, std::string_view id)
{
    return std::ranges::find(ids, id) != ids.end();
}

QVariantMap toolMap(const std::string &id, bool isOn)
{
    const QString tool = QString::fromStdString(id);
    const auto &tools = KestCore::ToolRegistry::tools();
    const auto found = std::ranges::find(tools, id, &KestCore::ToolDescriptor::id);
    return {{QStringLiteral("tool"), tool},
            {QStringLiteral("title"), toolTitle(tool)},
            {QStringLiteral("summary"), toolSummary(tool)},
            {QStringLiteral("icon"),
             found == tools.end() ? tool : QString::fromStdString(found->icon)},
            {QStringLiteral("isOn"), isOn}};
}

QString textOf(DockItemKind kind)
{
    const std::string_view text = Base::textOf(kind);
    return QString::fromLatin1(text.data(), static_cast<qsizetype>(text.size()));
}

} // namespace

DockViewModel::DockViewModel(ApplicationModel &model, const Formatting &formatting,
                             QObject *parent)
    : QObject{parent}, m_model{model}, m_formatting{formatting}, m_session{Base::makeUuid()},
      m_workspace{model.companion().selectedWorkspaceID}
{
    connect(&model, &ApplicationModel::companionChanged, this, &DockViewModel::follow);
    connect(&formatting, &Formatting::wordsChanged, this, &DockViewModel::follow);
    followClock();
    follow();
}

void DockViewModel::followClock()
{
    m_model.clock().add(
        this,
        [this](Base::Instant now) -> std::optional<Base::Instant> {
            const auto next = preferences().enabled
                                  ? KestCore::nextExpiry(m_model.companion(), now, m_session)
                                  : std::nullopt;
            return next ? std::optional{std::max(*next, m_lastClearing + kBetweenClearings)}
                        : std::nullopt;
        },
        [this](Base::Instant now) { dropExpired(now); });
    m_model.clock().add(
        this, [this](Base::Instant) { return m_messageEnd; },
        [this](Base::Instant) { say({}); });
}

void DockViewModel::dropExpired(Base::Instant now)
{
    m_lastClearing = now;
    showItems(); // gone from sight also where the store refuses
    m_model.changeCompanion(
        [now, session = m_session](KestCore::CompanionState &companion) {
            KestCore::removeExpired(companion, now, session);
        },
        [](const Result<void> &) {}); // tried again later; nobody has asked for it
}

const KestCore::DockPreferences &DockViewModel::preferences() const
{
    return m_model.companion().dock;
}

const KestCore::Workspace *DockViewModel::workspace() const
{
    return KestCore::findWorkspace(m_model.companion(), m_workspace);
}

std::string DockViewModel::workspaceId(int index) const
{
    const auto &workspaces = m_model.companion().workspaces;
    const bool isThere = index >= 0 && static_cast<std::size_t>(index) < workspaces.size();
    return isThere ? workspaces[static_cast<std::size_t>(index)].id : std::string{};
}

// Another program, or an undo, may have taken away what was shown.
void DockViewModel::follow()
{
    if (workspace() == nullptr) {
        m_workspace = m_model.companion().selectedWorkspaceID;
    }
    emit placeChanged();
    emit openChanged(); // it may hide, or not, now
    emit workspacesChanged();
    emit widgetsChanged();
    showItems();
    inspect();
}

DockRow DockViewModel::rowOf(const DockItem &item) const
{
    DockRow row{.id = QString::fromStdString(item.id),
                .kind = textOf(item.kind),
                .title = dockItemTitle(item),
                .target = QString::fromStdString(item.target)};
    if (item.kind == DockItemKind::tool) {
        row.iconName = toolMap(item.target, true)[QStringLiteral("icon")].toString();
    }
    const DockFinding finding = m_findings.value(row.id);
    row.isThere = finding.isThere;
    row.iconSource = dockIconSource(finding.iconName);
    row.letter = dockLetter(row.title);
    row.tint = dockTint(row.target);
    const std::string_view lifetime = Base::textOf(item.lifetime);
    row.lifetime =
        QString::fromLatin1(lifetime.data(), static_cast<qsizetype>(lifetime.size()));
    if (item.lifetime == ItemLifetime::hour) {
        row.lifetimeText =
            tr("until %1").arg(m_formatting.time(item.createdAt + std::chrono::hours{1}));
    } else if (item.lifetime == ItemLifetime::session) {
        row.lifetimeText = tr("until Velvetnook closes");
    }
    return row;
}

void DockViewModel::showItems()
{
    std::vector<DockRow> rows;
    if (const KestCore::Workspace *const shown = workspace(); shown != nullptr) {
        for (const DockItem &item : shown->items) {
            if (!KestCore::isExpired(item, m_model.now(), m_session)) {
                rows.push_back(rowOf(item));
            }
        }
    }
    m_items.show(std::move(rows));
}

// Asks the desktop what is found where the items lead, while somebody looks.
void DockViewModel::inspect()
{
    const KestCore::Workspace *const shown = workspace();
    if (!m_isOpen || shown == nullptr || !m_desktop.inspect) {
        return;
    }
    std::vector<DockItem> asked;
    std::ranges::copy_if(shown->items, std::back_inserter(asked), [](const DockItem &item) {
        return item.kind == DockItemKind::app || item.kind == DockItemKind::file;
    });
    if (asked.empty()) {
        return;
    }
    m_desktop.inspect(asked, [self = QPointer{this}, asked](std::vector<DockFinding> found) {
        if (self == nullptr || found.size() != asked.size()) {
            return;
        }
        self->m_findings.clear(); // of the items that are not shown any more, too
        for (std::size_t at = 0; at < asked.size(); ++at) {
            self->m_findings.insert(QString::fromStdString(asked[at].id), found[at]);
        }
        self->showItems();
    });
}

void DockViewModel::setOpen(bool isOpen)
{
    if (std::exchange(m_isOpen, isOpen) == isOpen) {
        return;
    }
    if (isOpen) {
        showItems(); // something may have expired that no alarm was set for
        inspect();
    } else {
        say({});
        m_dialogDepth = 0; // what was open over it is gone with it
    }
    if (m_values != nullptr) {
        m_values->setShown(isOpen);
    }
    emit openChanged();
}

void DockViewModel::setNear(bool isNear)
{
    if (std::exchange(m_isNear, isNear) != isNear) {
        emit openChanged();
    }
}

void DockViewModel::beginDialog()
{
    ++m_dialogDepth;
    emit dialogDepthChanged();
}

void DockViewModel::endDialog()
{
    m_dialogDepth = std::max(0, m_dialogDepth - 1);
    emit dialogDepthChanged();
}

QVariantList DockViewModel::workspaces() const
{
    QVariantList list;
    for (const KestCore::Workspace &each : m_model.companion().workspaces) {
        list.push_back(QVariantMap{{QStringLiteral("title"), workspaceTitle(each)},
                                   {QStringLiteral("icon"), workspaceIcon(each)}});
    }
    return list;
}

int DockViewModel::current() const
{
    const auto &workspaces = m_model.companion().workspaces;
    const auto found = std::ranges::find(workspaces, m_workspace, &KestCore::Workspace::id);
    return found == workspaces.end() ? -1 : static_cast<int>(found - workspaces.begin());
}

QString DockViewModel::title() const
{
    const KestCore::Workspace *const shown = workspace();
    return shown == nullptr ? QString{} : workspaceTitle(*shown);
}

bool DockViewModel::canAddWorkspace() const
{
    return m_model.companion().workspaces.size() < KestCore::kMostWorkspaces;
}

QVariantList DockViewModel::widgets() const
{
    QVariantList list;
    if (const KestCore::Workspace *const shown = workspace(); shown != nullptr) {
        for (const std::string &tool : shown->homeWidgets) {
            list.push_back(toolMap(tool, true));
        }
    }
    return list;
}

QVariantList DockViewModel::toolChoices() const
{
    QVariantList list;
    for (const KestCore::ToolDescriptor &tool : KestCore::ToolRegistry::tools()) {
        if (hasView(tool.id) && isToolOn(m_model.state(), tool.id)) {
            list.push_back(toolMap(tool.id, true));
        }
    }
    return list;
}

QVariantList DockViewModel::widgetChoices() const
{
    QVariantList list;
    const KestCore::Workspace *const shown = workspace();
    for (const std::string_view tool : kWidgetTools) {
        const bool isOn = shown != nullptr && isOf(shown->homeWidgets, tool);
        list.push_back(toolMap(std::string{tool}, isOn));
    }
    return list;
}

HomeViewModel *DockViewModel::values()
{
    if (m_values == nullptr) {
        m_values = new HomeViewModel{m_model, m_formatting, this};
        m_values->setShown(m_isOpen);
    }
    return m_values;
}

bool DockViewModel::change(const Edit &edit)
{
    KestCore::CompanionState tried = m_model.companion();
    if (const auto done = edit(tried); !done) {
        say(engineText(done.error().message));
        return false;
    }
    // What another program has done meanwhile may stand against it: then nothing is changed,
    // and what is stored is shown.
    auto refusal = std::make_shared<Result<void>>();
    m_model.perform(
        [edit, refusal](KestCore::StateStore &store) -> Result<Committed> {
            KestCore::CompanionState companion = store.companion();
            *refusal = edit(companion);
            KEST_TRY(KestCore::Snapshot snapshot,
                     *refusal ? store.saveCompanion(std::move(companion)) : store.snapshot());
            return committedAll(std::move(snapshot));
        },
        [self = QPointer{this}, refusal](const Result<void> &stored) {
            const Result<void> &result = stored ? *refusal : stored;
            if (self != nullptr && !result) {
                self->follow(); // what was to come does not
                self->say(tr("Not done: %1").arg(engineText(result.error().message)));
            }
        });
    return true;
}

void DockViewModel::say(const QString &message, std::function<void()> undo)
{
    m_message = message;
    m_undo = std::move(undo);
    m_messageEnd =
        message.isEmpty() ? std::nullopt : std::optional{m_model.now() + kMessageTime};
    m_model.clock().reschedule();
    emit messageChanged();
}

void DockViewModel::takeMessageAction()
{
    const auto undo = std::exchange(m_undo, {});
    say({});
    if (undo) {
        undo();
    }
}

} // namespace Velvetnook
