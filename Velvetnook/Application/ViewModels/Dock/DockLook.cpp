// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Velvetnook/Application/ViewModels/Dock/DockLook.h"

#include "KestCore/Registry/ToolRegistry.h"
#include "KestCore/Surfaces/CompanionState.h"
#include "Velvetnook/Application/ToolTitles.h"

#include <QCoreApplication>
#include <QUrl>

#include <algorithm>
#include <array>

namespace Velvetnook
{

namespace
{

constexpr int kTints = 5;

struct KnownWorkspace {
    const char *id;
    const char *name;
    const char *iconName;
};
constexpr std::array kKnown{
    KnownWorkspace{"faith", QT_TRANSLATE_NOOP("Workspaces", "Faith"), "moon"},
    KnownWorkspace{"focus", QT_TRANSLATE_NOOP("Workspaces", "Focus"), "focus"},
    KnownWorkspace{"coding", QT_TRANSLATE_NOOP("Workspaces", "Coding"), "code"},
};

const KnownWorkspace *known(const KestCore::Workspace &workspace)
{
    const auto *const found = std::ranges::find_if(
        kKnown, [&](const KnownWorkspace &each) { return workspace.id == each.id; });
    return found == kKnown.end() ? nullptr : found;
}

} // namespace

QString dockLetter(const QString &title)
{
    const QString plain = title.trimmed();
    const bool isPair = plain.size() > 1 && plain.front().isHighSurrogate();
    return plain.left(isPair ? 2 : 1).toUpper();
}

// By hand: Qt's own hash is another in each run.
int dockTint(const QString &target)
{
    quint32 sum = 0;
    for (const QChar letter : target) {
        sum = sum * 31 + letter.unicode();
    }
    return static_cast<int>(sum % kTints);
}

QString dockIconSource(const QString &iconName)
{
    return iconName.isEmpty() ? QString{}
                              : QStringLiteral("image://application/") +
                                    QString::fromLatin1(QUrl::toPercentEncoding(iconName));
}

QString workspaceTitle(const KestCore::Workspace &workspace)
{
    const KnownWorkspace *const given = known(workspace);
    return given != nullptr && workspace.name == given->name
               ? QCoreApplication::translate("Workspaces", given->name)
               : QString::fromStdString(workspace.name);
}

QString workspaceIcon(const KestCore::Workspace &workspace)
{
    const KnownWorkspace *const given = known(workspace);
    return QString::fromLatin1(given == nullptr ? "grid" : given->iconName);
}

QString dockItemTitle(const KestCore::DockItem &item)
{
    const QString own = QString::fromStdString(item.title);
    if (item.kind != KestCore::DockItemKind::tool) {
        return own;
    }
    const auto &tools = KestCore::ToolRegistry::tools();
    const auto tool = std::ranges::find(tools, item.target, &KestCore::ToolDescriptor::id);
    return tool != tools.end() && item.title == tool->title
               ? toolTitle(QString::fromStdString(item.target))
               : own;
}

} // namespace Velvetnook
