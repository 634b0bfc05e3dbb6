// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Velvetnook/Application/CommandServer.h"
#include "Velvetnook/Platform/PaletteHotkey.h"
#include "Velvetnook/Platform/PaletteWindow.h"

#include <QObject>

#include <filesystem>

namespace Velvetnook
{

// The palette as the application has it: its window, its key, and the socket over which kest
// opens it and borrows the store.
class PaletteService : public QObject
{
    Q_OBJECT

public:
    PaletteService(QQmlEngine &engine, App &app, ApplicationModel &model,
                   const std::filesystem::path &databaseFile, QObject *parent = nullptr);

    PaletteWindow &window() { return m_window; }

private:
    void showPalette(const QString &how);
    void showNotch(const QString &how, const QString &tool);

    App &m_app;
    PaletteWindow m_window;
    PaletteHotkey m_hotkey;
    CommandServer m_server;
};

} // namespace Velvetnook
