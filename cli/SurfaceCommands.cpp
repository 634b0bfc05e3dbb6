// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Base/JsonWriter.h"
#include "KestCore/Registry/ToolRegistry.h"
#include "cli/Application.h"
#include "cli/Session.h"

#include <CLI/CLI.hpp>
#include <fmt/format.h>

#include <memory>

// palette, notch and dock: what the running application shows.
namespace Cli
{

namespace
{

using KestCore::ApplicationCommand;
using KestCore::ApplicationRequest;
using KestCore::SurfaceStep;

Result<void> tell(const Session &session, const ApplicationCommand &command)
{
    auto application = Application::find(session.databaseFile());
    if (!application) {
        return std::unexpected(KestError::unavailable("Velvetnook is not running"));
    }
    KEST_TRY(const auto answer, application->ask(command));
    return session.console.answer(answer, [] {});
}

struct Steps {
    SurfaceStep step{};
    const char *help{};
};

void addSteps(CLI::App *surface, Session &session, ApplicationRequest request,
              const std::vector<Steps> &steps, const std::shared_ptr<std::string> &tool)
{
    surface->require_subcommand(1);
    for (const auto &[step, help] : steps) {
        CLI::App *command = surface->add_subcommand(std::string{Base::textOf(step)}, help);
        if (tool && step != SurfaceStep::close) {
            command->add_option("TOOL", *tool, "The tool that it shows, such as prayer");
        }
        command->callback([=, &session] {
            ApplicationCommand wanted{.request = request, .how = step};
            if (tool && !tool->empty()) {
                wanted.tool = *tool;
            }
            session.command = [=, &session]() -> Result<void> {
                if (wanted.tool && !KestCore::ToolRegistry::knows(*wanted.tool)) {
                    return std::unexpected(KestError::invalidData(fmt::format(
                        "There is no tool \"{}\"; kest tools lists them", *wanted.tool)));
                }
                return tell(session, wanted);
            };
        });
    }
}

} // namespace

void addSurfaceCommands(CLI::App &program, Session &session)
{
    CLI::App *palette =
        program.add_subcommand("palette", "Opens or closes the command palette");
    addSteps(palette, session, ApplicationRequest::palette,
             {{SurfaceStep::open, "Opens it"},
              {SurfaceStep::close, "Closes it"},
              {SurfaceStep::toggle, "Opens it, or closes it when it is open"}},
             nullptr);
    CLI::App *notch = program.add_subcommand("notch", "Opens or closes the panel");
    addSteps(notch, session, ApplicationRequest::notch,
             {{SurfaceStep::open, "Opens it, and a tool in it"},
              {SurfaceStep::close, "Closes it"},
              {SurfaceStep::toggle, "Opens it, or closes it when it is open"}},
             std::make_shared<std::string>());
    CLI::App *dock = program.add_subcommand("dock", "Opens or closes the dock");
    addSteps(dock, session, ApplicationRequest::dock,
             {{SurfaceStep::open, "Opens it"},
              {SurfaceStep::close, "Closes it"},
              {SurfaceStep::toggle, "Opens it, or closes it when it is open"}},
             nullptr);
}

} // namespace Cli
