// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "cli/ItemAnswers.h"
#include "cli/Session.h"

#include <CLI/CLI.hpp>
#include <fmt/format.h>

#include <memory>

namespace Cli
{

namespace
{

using KestCore::Settings;
using KestCore::StateStore;

Result<void> printAll(const Console &console, const Settings &settings)
{
    return console.answer(settings, [&] {
        for (const auto &[key, value] : settings) {
            console.line(fmt::format("{} = {}", console.styled(printable(key), Style::strong),
                                     printable(value)));
        }
        if (settings.empty()) {
            console.line("No settings are set; every tool uses its defaults.");
        }
    });
}

Result<void> list(const Session &session)
{
    KEST_TRY(const StateStore store, session.openStore());
    return printAll(session.console, store.state().settings);
}

Result<void> get(const Session &session, const std::string &key)
{
    KEST_TRY(const StateStore store, session.openStore());
    const auto found = store.state().settings.find(key);
    if (found == store.state().settings.end()) {
        return std::unexpected(
            KestError::invalidData(fmt::format("The setting \"{}\" is not set", key)));
    }
    return session.console.answer(Settings{*found},
                                  [&] { printText(session.console, found->second); });
}

Result<void> edit(const Session &session, const std::function<void(Settings &)> &change)
{
    KEST_TRY(StateStore store, session.openStore());
    Settings wanted = store.state().settings;
    change(wanted);
    if (wanted != store.state().settings) {
        KEST_CHECK(store.change([&](KestCore::NativeState &state) -> Result<void> {
            state.settings = std::move(wanted);
            return {};
        }));
    }
    return session.console.isJson ? printAll(session.console, store.state().settings)
                                  : Result<void>{};
}

struct Arguments {
    std::string key{};
    std::string value{};
};

} // namespace

void addSettingsCommand(CLI::App &program, Session &session)
{
    const auto args = std::make_shared<Arguments>();
    CLI::App *settings = program.add_subcommand("settings", "Shows or changes the settings");
    settings->require_subcommand(0, 1);
    settings->callback([=, &session] {
        if (settings->get_subcommands().empty()) {
            session.command = [&session] { return list(session); };
        }
    });

    CLI::App *getOne = settings->add_subcommand("get", "Prints one setting");
    getOne->add_option("KEY", args->key, "Such as prayer.method")->required();
    getOne->callback(
        [=, &session] { session.command = [=, &session] { return get(session, args->key); }; });

    CLI::App *set = settings->add_subcommand("set", "Sets a setting");
    set->add_option("KEY", args->key, "Such as prayer.method")->required();
    set->add_option("VALUE", args->value, "Any text")->required();
    set->callback([=, &session] {
        session.command = [=, &session] {
            return edit(session,
                        [&](Settings &map) { map.insert_or_assign(args->key, args->value); });
        };
    });

    CLI::App *unset = settings->add_subcommand("unset", "Goes back to a setting's default");
    unset->add_option("KEY", args->key, "Such as prayer.method")->required();
    unset->callback([=, &session] {
        session.command = [=, &session] {
            return edit(session, [&](Settings &map) { map.erase(args->key); });
        };
    });
}

} // namespace Cli
