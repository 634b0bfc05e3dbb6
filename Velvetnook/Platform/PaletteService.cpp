// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Velvetnook/Platform/PaletteService.h"

#include "Velvetnook/Application/App.h"

#include <QTimer>

namespace Velvetnook
{

PaletteService::PaletteService(QQmlEngine &engine, App &app, ApplicationModel &model,
                               const std::filesystem::path &databaseFile, QObject *parent)
    : QObject{parent}, m_app{app}, m_window{engine, app}, m_hotkey{model, *app.palette()},
      m_server{model, databaseFile}
{
    connect(&m_hotkey, &PaletteHotkey::pressed, &m_window, &PaletteWindow::toggle);
    connect(&m_server, &CommandServer::paletteWanted, this, &PaletteService::showPalette);
    connect(&m_server, &CommandServer::notchWanted, this, &PaletteService::showNotch);
    if (const auto heard = m_server.listen(); !heard) {
        qWarning("kest cannot reach this application: %s", heard.error().message.c_str());
    }
    // What is seen first comes first.
    QTimer::singleShot(0, &m_window, [this] { m_window.prepare(); });
}

void PaletteService::showPalette(const QString &how)
{
    if (how == QLatin1String{"open"}) {
        m_window.open();
    } else if (how == QLatin1String{"close"}) {
        m_window.close();
    } else {
        m_window.toggle();
    }
}

void PaletteService::showNotch(const QString &how, const QString &tool)
{
    PanelViewModel *panel = m_app.panel();
    const bool isOtherTool = !tool.isEmpty() && panel->tool() != tool;
    if (isOtherTool) {
        panel->openTool(tool);
    }
    if (how == QLatin1String{"close"}) {
        emit panel->closeWanted();
    } else if (how == QLatin1String{"open"} || isOtherTool) {
        emit panel->openWanted(true);
    } else {
        emit panel->toggleWanted();
    }
}

} // namespace Velvetnook
