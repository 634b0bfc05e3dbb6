// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "KestCore/Store/StateStore.h"
#include "cli/Console.h"

#include <functional>
#include <optional>
#include <string>

namespace CLI
{
class App;
}

namespace Cli
{

// What one run of the program works with: where the data is, how to answer, and the command
// that the arguments chose.
struct Session {
    Console console{};
    std::optional<std::string> dataDirectory{};
    std::function<Result<void>()> command{};

    std::filesystem::path databaseFile() const;
    // Borrowed from the application where one is running; it goes back when the store closes.
    [[nodiscard]] Result<KestCore::StateStore> openStore() const;
};

// The settings as they are stored now. The store is closed again: who goes on to ask others,
// who may take their time, must not keep it from counting.
[[nodiscard]] Result<KestCore::Settings> storedSettings(const Session &session);

// Each adds its commands to the program; chosen, they set `session.command`.
void addCounterCommands(CLI::App &program, Session &session);
void addCatalogueCommands(CLI::App &program, Session &session);
void addDocumentCommands(CLI::App &program, Session &session);
void addSettingsCommand(CLI::App &program, Session &session);
void addPrayerCommands(CLI::App &program, Session &session);
void addPlaceCommands(CLI::App &program, Session &session);
void addCalendarCommands(CLI::App &program, Session &session);
void addReminderCommands(CLI::App &program, Session &session);
void addBackupCommands(CLI::App &program, Session &session);
void addTimerCommands(CLI::App &program, Session &session);
void addConvertCommand(CLI::App &program, Session &session);
void addNoteCommands(CLI::App &program, Session &session);
void addLinkCommands(CLI::App &program, Session &session);
void addEmojiCommands(CLI::App &program, Session &session);
void addShelfCommands(CLI::App &program, Session &session);
void addMessageCommands(CLI::App &program, Session &session);
void addMonitorCommands(CLI::App &program, Session &session);
void addPlaybackCommands(CLI::App &program, Session &session);
void addDoctorCommand(CLI::App &program, Session &session);
void addClipboardCommands(CLI::App &program, Session &session);
void addWeatherCommand(CLI::App &program, Session &session);
void addInsightCommands(CLI::App &program, Session &session);
void addAssistantCommands(CLI::App &program, Session &session);
void addHookCommand(CLI::App &program, Session &session);
void addUpdateCommand(CLI::App &program, Session &session);
void addSurfaceCommands(CLI::App &program, Session &session);
void addCompletionCommands(CLI::App &program, Session &session);

// The counter on the whole terminal. Fails when there is no terminal.
[[nodiscard]] Result<void> runTerminalCounter(Session &session);

} // namespace Cli
