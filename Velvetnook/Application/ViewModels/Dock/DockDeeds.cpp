// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Base/Uuid.h"
#include "KestCore/Registry/ToolRegistry.h"
#include "KestCore/Surfaces/CompanionEdits.h"
#include "KestCore/Tools/Links.h"
#include "Velvetnook/Application/ApplicationModel.h"
#include "Velvetnook/Application/EngineText.h"
#include "Velvetnook/Application/ViewModels/Dock/DockLook.h"
#include "Velvetnook/Application/ViewModels/DockViewModel.h"

#include <QFileInfo>
#include <QPointer>

#include <algorithm>

// What the user does with the workspaces and their items.
namespace Velvetnook
{

namespace
{

using KestCore::CompanionState;
using KestCore::DockItem;
using KestCore::DockItemKind;

constexpr int kMostDropped = 32; // of one drag

std::size_t placeOf(int place)
{
    return place < 0 ? KestCore::kAtTheEnd : static_cast<std::size_t>(place);
}

QString hostTitle(const std::string &address)
{
    QString host = QString::fromUtf8(KestCore::hostOf(address).data(),
                                     static_cast<qsizetype>(KestCore::hostOf(address).size()));
    if (host.startsWith(QLatin1String{"www."})) {
        host.remove(0, 4);
    }
    return host.left(static_cast<qsizetype>(KestCore::kLongestDockTitle));
}

QString fileTitle(const QString &path)
{
    const QString name = QFileInfo{path}.fileName();
    return (name.isEmpty() ? path : name)
        .left(static_cast<qsizetype>(KestCore::kLongestDockTitle));
}

// What a text drags along: one address on a line.
QList<QUrl> addressesIn(const QString &text)
{
    QList<QUrl> addresses;
    for (const QString &line : text.split(u'\n', Qt::SkipEmptyParts)) {
        const auto address = KestCore::normalizedAddress(line.trimmed().toStdString());
        if (address && line.contains(u'.')) {
            addresses.push_back(QUrl{QString::fromStdString(*address)});
        }
    }
    return addresses;
}

} // namespace

void DockViewModel::select(int index)
{
    const std::string id = workspaceId(index);
    if (id.empty() || id == m_workspace) {
        return;
    }
    m_workspace = id;
    follow();
    m_model.changeCompanion([id](CompanionState &companion) {
        if (KestCore::findWorkspace(companion, id) != nullptr) {
            companion.selectedWorkspaceID = id;
        }
    });
}

void DockViewModel::activate(int index) { emit activated(index); }
void DockViewModel::point(int index) { emit pointed(index); }

void DockViewModel::addWorkspace()
{
    const std::string id = Base::makeUuid();
    const std::string name = tr("New").toStdString();
    if (change([id, name](CompanionState &companion) {
            auto added = KestCore::addWorkspace(companion, id, name);
            companion.selectedWorkspaceID = added ? id : companion.selectedWorkspaceID;
            return added;
        })) {
        m_workspace.clear(); // the one that will be selected is shown
    }
}

bool DockViewModel::renameWorkspace(const QString &name)
{
    return change([id = m_workspace, text = name.toStdString()](CompanionState &companion) {
        return KestCore::renameWorkspace(companion, id, text);
    });
}

void DockViewModel::moveWorkspace(int by)
{
    const int place = current() + by;
    if (place < 0 || workspaceId(place).empty()) {
        return;
    }
    change([id = m_workspace, place](CompanionState &companion) {
        return KestCore::moveWorkspace(companion, id, static_cast<std::size_t>(place));
    });
}

void DockViewModel::removeWorkspace()
{
    const KestCore::Workspace *const shown = workspace();
    if (shown == nullptr) {
        return;
    }
    const KestCore::Workspace before = *shown;
    const QString name = workspaceTitle(before);
    const auto place = static_cast<std::size_t>(current());
    if (!change([id = m_workspace](CompanionState &companion) {
            return KestCore::removeWorkspace(companion, id);
        })) {
        return;
    }
    say(tr("%1 removed.").arg(name), [this, before, place] {
        change([before, place](CompanionState &companion) -> Result<void> {
            KEST_CHECK(KestCore::addWorkspace(companion, before.id, before.name));
            companion.workspaces.back() = before;
            return KestCore::moveWorkspace(companion, before.id, place);
        });
    });
}

void DockViewModel::setWidget(const QString &tool, bool isOn)
{
    change([id = m_workspace, text = tool.toStdString(), isOn](CompanionState &companion) {
        return KestCore::setHomeWidget(companion, id, text, isOn);
    });
}

void DockViewModel::open(const DockItem &item, const QStringList &addresses)
{
    if (item.kind == DockItemKind::divider) {
        return;
    }
    if (item.kind == DockItemKind::tool) {
        emit closeWanted();
        emit toolWanted(QString::fromStdString(item.target));
        return;
    }
    if (!m_desktop.open) {
        return;
    }
    const QString title = dockItemTitle(item);
    m_desktop.open(item, addresses, [self = QPointer{this}, title](const Result<void> &done) {
        if (self != nullptr && !done) {
            self->say(
                tr("%1: %2", "item, reason").arg(title, engineText(done.error().message)));
        } else if (self != nullptr) {
            emit self->closeWanted();
        }
    });
}

void DockViewModel::openItem(const QString &id)
{
    const auto *const shown = workspace();
    const auto *const item =
        shown == nullptr ? nullptr : KestCore::findDockItem(*shown, id.toStdString());
    if (item != nullptr) {
        open(*item, {});
    }
}

bool DockViewModel::openWith(const QString &id, const QList<QUrl> &files)
{
    const auto *const shown = workspace();
    const auto *const item =
        shown == nullptr ? nullptr : KestCore::findDockItem(*shown, id.toStdString());
    if (item == nullptr || item->kind != DockItemKind::app || files.isEmpty()) {
        return false;
    }
    QStringList addresses;
    for (const QUrl &file : files.first(std::min<qsizetype>(files.size(), kMostDropped))) {
        addresses.push_back(file.toString(QUrl::FullyEncoded));
    }
    open(*item, addresses);
    return true;
}

DockItem DockViewModel::newItem(DockItemKind kind, const QString &title,
                                const QString &target) const
{
    return {.id = Base::makeUuid(),
            .kind = kind,
            .title = title.toStdString(),
            .target = target.toStdString(),
            .lifetime = KestCore::ItemLifetime::permanent,
            .createdAt = m_model.now()};
}

void DockViewModel::add(const std::string &workspace, DockItem item, std::size_t place)
{
    change([workspace, item = std::move(item), place](CompanionState &companion) {
        return KestCore::addDockItem(companion, workspace, item, place);
    });
}

void DockViewModel::addTool(const QString &tool)
{
    // By the catalogue's own title, so that it follows the language.
    const auto &tools = KestCore::ToolRegistry::tools();
    const auto found =
        std::ranges::find(tools, tool.toStdString(), &KestCore::ToolDescriptor::id);
    if (found != tools.end()) {
        add(m_workspace,
            newItem(DockItemKind::tool, QString::fromStdString(found->title), tool),
            KestCore::kAtTheEnd);
    }
}

void DockViewModel::addDivider()
{
    add(m_workspace, newItem(DockItemKind::divider, {}, {}), KestCore::kAtTheEnd);
}

QString DockViewModel::addLink(const QString &address, const QString &title)
{
    const auto normal = KestCore::normalizedAddress(address.trimmed().toStdString());
    if (!normal) {
        return engineText(normal.error().message);
    }
    const QString name = title.trimmed().isEmpty() ? hostTitle(*normal) : title.trimmed();
    const DockItem item = newItem(DockItemKind::link, name, QString::fromStdString(*normal));
    CompanionState tried = m_model.companion();
    if (const auto added = KestCore::addDockItem(tried, m_workspace, item); !added) {
        return engineText(added.error().message);
    }
    add(m_workspace, item, KestCore::kAtTheEnd);
    return {};
}

void DockViewModel::addFound(const std::string &workspace, const DockApplication &application,
                             std::size_t place)
{
    add(workspace,
        newItem(DockItemKind::app,
                application.name.left(static_cast<qsizetype>(KestCore::kLongestDockTitle)),
                application.id),
        place);
}

void DockViewModel::addApplication(const QString &id)
{
    if (const DockApplication *const found = m_applications.find(id); found != nullptr) {
        addFound(m_workspace, *found, KestCore::kAtTheEnd);
    }
}

void DockViewModel::addFile(const std::string &workspace, const QString &path,
                            std::size_t place)
{
    const DockItem file = newItem(DockItemKind::file, fileTitle(path), path);
    if (!path.endsWith(QLatin1String{".desktop"}) || !m_desktop.findApplication) {
        add(workspace, file, place);
        return;
    }
    m_desktop.findApplication(path, [self = QPointer{this}, workspace, file,
                                     place](const std::optional<DockApplication> &found) {
        if (self == nullptr) {
            return;
        }
        if (found) {
            self->addFound(workspace, *found, place);
        } else {
            self->add(workspace, file, place);
        }
    });
}

bool DockViewModel::addAddress(const std::string &workspace, const QUrl &address,
                               std::size_t place)
{
    if (address.isLocalFile() && address.host().isEmpty()) {
        addFile(workspace, address.toLocalFile(), place);
        return true;
    }
    const auto normal =
        KestCore::normalizedAddress(address.toString(QUrl::FullyEncoded).toStdString());
    if (address.isLocalFile() || !normal) {
        return false;
    }
    add(workspace,
        newItem(DockItemKind::link, hostTitle(*normal), QString::fromStdString(*normal)),
        place);
    return true;
}

bool DockViewModel::drop(int index, const QList<QUrl> &addresses, const QString &text,
                         int place)
{
    const std::string workspace = workspaceId(index);
    const QList<QUrl> dropped = addresses.isEmpty() ? addressesIn(text) : addresses;
    bool isAny = false;
    std::size_t at = placeOf(place);
    for (const QUrl &address :
         dropped.first(std::min<qsizetype>(dropped.size(), kMostDropped))) {
        if (addAddress(workspace, address, at)) {
            isAny = true;
            at += at == KestCore::kAtTheEnd ? 0U : 1U;
        }
    }
    if (!isAny) {
        say(tr("Files, folders, applications and web addresses can lie here."));
    }
    return isAny;
}

void DockViewModel::loadApplications()
{
    if (!m_desktop.listApplications) {
        m_applications.show({});
        return;
    }
    m_applications.beginLoading();
    m_desktop.listApplications([self = QPointer{this}](std::vector<DockApplication> found) {
        if (self != nullptr) {
            self->m_applications.show(std::move(found));
        }
    });
}

void DockViewModel::moveItem(const QString &id, int place)
{
    change([workspace = m_workspace, item = id.toStdString(),
            at = static_cast<std::size_t>(std::max(place, 0))](CompanionState &companion) {
        return KestCore::moveDockItem(companion, workspace, item, at);
    });
}

void DockViewModel::moveItemTo(const QString &id, int index)
{
    change([workspace = m_workspace, item = id.toStdString(),
            other = workspaceId(index)](CompanionState &companion) {
        return KestCore::moveDockItemTo(companion, workspace, item, other);
    });
}

bool DockViewModel::renameItem(const QString &id, const QString &title)
{
    return change([workspace = m_workspace, item = id.toStdString(),
                   name = title.toStdString()](CompanionState &companion) {
        return KestCore::renameDockItem(companion, workspace, item, name);
    });
}

void DockViewModel::setLifetime(const QString &id, const QString &text)
{
    const auto lifetime = Base::fromText<KestCore::ItemLifetime>(text.toStdString());
    if (!lifetime) {
        return;
    }
    change([workspace = m_workspace, item = id.toStdString(), lifetime = *lifetime,
            now = m_model.now(), session = m_session](CompanionState &companion) {
        return KestCore::setDockItemLifetime(companion, workspace, item, lifetime, now,
                                             session);
    });
}

void DockViewModel::removeItem(const QString &id)
{
    const auto *const shown = workspace();
    const auto *const item =
        shown == nullptr ? nullptr : KestCore::findDockItem(*shown, id.toStdString());
    if (item == nullptr) {
        return;
    }
    const DockItem before = *item;
    const auto place = static_cast<std::size_t>(item - shown->items.data());
    const std::string in = m_workspace;
    const QString title =
        before.kind == DockItemKind::divider ? tr("Divider") : dockItemTitle(before);
    if (change([in, item = before.id](CompanionState &companion) {
            return KestCore::removeDockItem(companion, in, item);
        })) {
        say(tr("%1 removed.").arg(title),
            [this, in, before, place] { add(in, before, place); });
    }
}

} // namespace Velvetnook
