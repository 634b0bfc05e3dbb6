// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Velvetnook/Application/ViewModels/Settings/DockSettings.h"

#include "Velvetnook/Application/ApplicationModel.h"

#include <QGuiApplication>

#include <utility>

namespace Velvetnook
{

using KestCore::DockPreferences;

DockSettings::DockSettings(ApplicationModel &model, const Formatting &formatting,
                           QObject *parent)
    : SettingsPage{model, formatting, parent}
{
    connect(&model, &ApplicationModel::companionChanged, this, &DockSettings::changed);
}

const DockPreferences &DockSettings::dock() const { return model().companion().dock; }

void DockSettings::change(std::function<void(DockPreferences &)> edit)
{
    model().changeCompanion([edit = std::move(edit)](KestCore::CompanionState &companion) {
        edit(companion.dock);
    });
}

QString DockSettings::problem()
{
    return QGuiApplication::platformName() == QLatin1String{"wayland"}
               ? tr("This session lets no program stand at an edge of the screen.")
               : QString{};
}

bool DockSettings::isEnabled() const { return dock().enabled; }

// What the layout makes of any other word.
QString DockSettings::edge() const
{
    return dock().edge == "left" || dock().edge == "bottom"
               ? QString::fromStdString(dock().edge)
               : QStringLiteral("right");
}

QVariantList DockSettings::edges()
{
    const Choice choices[]{
        {"left", tr("Left")}, {"bottom", tr("Bottom")}, {"right", tr("Right")}};
    return options(choices);
}

QString DockSettings::mode() const
{
    return dock().mode == "edge" ? QStringLiteral("edge") : QStringLiteral("pill");
}

QVariantList DockSettings::modes()
{
    const Choice choices[]{{"pill", tr("Always in sight")}, {"edge", tr("At the edge")}};
    return options(choices);
}

QString DockSettings::iconSize() const
{
    return dock().iconSize == "medium" || dock().iconSize == "large"
               ? QString::fromStdString(dock().iconSize)
               : QStringLiteral("small");
}

QVariantList DockSettings::iconSizes()
{
    const Choice choices[]{
        {"small", tr("Small")}, {"medium", tr("Medium")}, {"large", tr("Large")}};
    return options(choices);
}

QString DockSettings::panelSize() const
{
    const std::string size = dock().panelSize.value_or("comfortable");
    if (size == "compact" || size == "mini" || size == "small") {
        return QStringLiteral("compact");
    }
    return size == "large" ? QStringLiteral("large") : QStringLiteral("comfortable");
}

QVariantList DockSettings::panelSizes()
{
    const Choice choices[]{
        {"compact", tr("Compact")}, {"comfortable", tr("Comfortable")}, {"large", tr("Large")}};
    return options(choices);
}

QString DockSettings::material() const
{
    return dock().material == "solid" ? QStringLiteral("solid") : QStringLiteral("frosted");
}

QVariantList DockSettings::materials()
{
    const Choice choices[]{{"frosted", tr("Frosted")}, {"solid", tr("Solid")}};
    return options(choices);
}

bool DockSettings::opensByHover() const { return dock().hover; }
bool DockSettings::isFloating() const { return dock().floating; }
bool DockSettings::magnifies() const { return dock().magnification; }

void DockSettings::setEnabled(bool on)
{
    change([on](DockPreferences &dock) { dock.enabled = on; });
}

void DockSettings::setEdge(const QString &value)
{
    change([text = value.toStdString()](DockPreferences &dock) { dock.edge = text; });
}

void DockSettings::setMode(const QString &value)
{
    change([text = value.toStdString()](DockPreferences &dock) { dock.mode = text; });
}

void DockSettings::setIconSize(const QString &value)
{
    change([text = value.toStdString()](DockPreferences &dock) { dock.iconSize = text; });
}

void DockSettings::setPanelSize(const QString &value)
{
    change([text = value.toStdString()](DockPreferences &dock) { dock.panelSize = text; });
}

void DockSettings::setMaterial(const QString &value)
{
    change([text = value.toStdString()](DockPreferences &dock) { dock.material = text; });
}

void DockSettings::setOpensByHover(bool on)
{
    change([on](DockPreferences &dock) { dock.hover = on; });
}

void DockSettings::setFloating(bool on)
{
    change([on](DockPreferences &dock) { dock.floating = on; });
}

void DockSettings::setMagnifies(bool on)
{
    change([on](DockPreferences &dock) { dock.magnification = on; });
}

} // namespace Velvetnook
