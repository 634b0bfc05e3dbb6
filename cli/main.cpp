// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Base/Text.h"
#include "cli/Session.h"
#include "cli/UsageCommand.h"

#include <CLI/CLI.hpp>

#include <fcntl.h>

#include <clocale>
#include <cstdio>
#include <exception>
#include <iostream>
#include <sstream>
#include <tuple>

namespace
{

int refuse(const Base::KestError &error)
{
    std::fflush(stdout);
    std::fprintf(stderr, "kest: %s\n", Cli::printable(error.message).c_str());
    return 1;
}

// A file that is opened while one of the standard three is closed would take its number, and
// what is printed would land in it.
void fillStandardDescriptors()
{
    for (int descriptor = 0; descriptor <= 2; ++descriptor) {
        if (fcntl(descriptor, F_GETFD) == -1) {
            std::ignore = open("/dev/null", O_RDWR);
        }
    }
}

// CLI11 would only say that a command is missing.
bool namesNoCommand(const CLI::App &program)
{
    return program.get_subcommands().empty() && !program.remaining().empty();
}

// Prints help, the version or what is wrong with the command line, which it may quote.
int explain(const CLI::App &program, const CLI::ParseError &error)
{
    std::ostringstream wrong;
    const int code = program.exit(error, std::cout, wrong);
    std::cerr << Cli::printable(wrong.str(), Cli::Layout::kept);
    return code;
}

void addCommands(CLI::App &program, Cli::Session &session)
{
    Cli::addCounterCommands(program, session);
    Cli::addCatalogueCommands(program, session);
    Cli::addDocumentCommands(program, session);
    Cli::addSettingsCommand(program, session);
    Cli::addPrayerCommands(program, session);
    Cli::addPlaceCommands(program, session);
    Cli::addCalendarCommands(program, session);
    Cli::addReminderCommands(program, session);
    Cli::addBackupCommands(program, session);
    Cli::addTimerCommands(program, session);
    Cli::addConvertCommand(program, session);
    Cli::addClipboardCommands(program, session);
    Cli::addNoteCommands(program, session);
    Cli::addLinkCommands(program, session);
    Cli::addEmojiCommands(program, session);
    Cli::addShelfCommands(program, session);
    Cli::addMessageCommands(program, session);
    Cli::addMonitorCommands(program, session);
    Cli::addUsageCommand(program, session);
    Cli::addWeatherCommand(program, session);
    Cli::addInsightCommands(program, session);
    Cli::addPlaybackCommands(program, session);
    Cli::addDoctorCommand(program, session);
    Cli::addAssistantCommands(program, session);
    Cli::addHookCommand(program, session);
    Cli::addUpdateCommand(program, session);
    Cli::addSurfaceCommands(program, session);
    Cli::addCompletionCommands(program, session);
}

int run(int argc, char **argv)
{
    fillStandardDescriptors();
    Base::wipeUnicodeMemory();
    std::setlocale(LC_ALL, "");
    Cli::Session session;
    CLI::App program{"Counts remembrance and keeps what Velvetnook keeps, from the terminal."};
    program.name("kest");
    program.set_version_flag("--version", "kest " KEST_VERSION);
    program.add_flag("--json", session.console.isJson, "One JSON document instead of text");
    program.add_option("--data-dir", session.dataDirectory,
                       "The folder that holds kest.sqlite (also KEST_DATA_DIR)");
    program.require_subcommand(1);
    program.fallthrough();
    addCommands(program, session);

    try {
        program.parse(argc, argv);
    } catch (const CLI::RequiredError &error) {
        if (!namesNoCommand(program)) {
            explain(program, error);
            return 2;
        }
        std::fprintf(stderr, "kest: there is no command \"%s\"; kest --help lists them\n",
                     Cli::printable(program.remaining().front()).c_str());
        return 2;
    } catch (const CLI::ParseError &error) {
        // Help and version are parse errors of status 0 to the library; the rest is usage.
        return explain(program, error) == 0 ? 0 : 2;
    }
    Base::Result<void> outcome = session.command();
    if (outcome) {
        outcome = Cli::Console::flush();
    }
    return outcome ? 0 : refuse(outcome.error());
}

} // namespace

int main(int argc, char **argv)
{
    try {
        return run(argc, argv);
    } catch (const std::exception &error) {
        // Memory or the file system gave out below the program's own errors.
        return refuse(Base::KestError::unavailable(error.what()));
    }
}
