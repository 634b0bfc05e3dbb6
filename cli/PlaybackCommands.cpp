// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "BrowserBridge/BrowserBridge.h"
#include "KestCore/Media/PlaybackSettings.h"
#include "KestCore/Models/RecordIds.h"
#include "MediaPlayers/PlayerBus.h"
#include "cli/NumberOption.h"
#include "cli/PlaybackAnswers.h"
#include "cli/PlaybackSource.h"
#include "cli/Session.h"

#include <CLI/CLI.hpp>
#include <fmt/format.h>

#include <memory>

// playback: what plays in players and in a connected tab of a browser.
namespace Cli
{

namespace
{

using BrowserBridge::Bridge;
using BrowserBridge::BrowserTab;
using KestCore::BrowserPlayback;
using Kind = PlaybackAction::Kind;

constexpr const char *kBridgeHelp =
    "Apart from tabs and connect, a browser is asked only while one of its tabs is\n"
    "connected. Start it for this with\n"
    "--remote-debugging-port=PORT and a --user-data-dir of its own, since every program on\n"
    "this computer can then drive it, and connect a tab with --port PORT. Private windows\n"
    "are never read.";

struct Arguments {
    std::optional<std::string> player{};
    std::optional<std::uint16_t> port{};
    std::string tab{};
    double value{};
};
using SharedArguments = std::shared_ptr<Arguments>;

std::string place(const BrowserPlayback &playback)
{
    return playback.duration > 0 ? fmt::format("{} of {}", playingTime(playback.position),
                                               playingTime(playback.duration))
                                 : playingTime(playback.position);
}

void printForPeople(const Console &console, const SourcedPlayback &sourced)
{
    const auto &[playback, source, status, isVolumeKnown] = sourced;
    console.line(fmt::format(
        "{}  {}",
        console.styled(Base::textOf(status), playback.playing ? Style::good : Style::faint),
        console.styled(printable(playback.title), Style::strong)));
    if (!playback.artist.empty()) {
        console.line(fmt::format("by {}", printable(playback.artist)));
    }
    console.line(fmt::format(
        "{}{}, in {}", place(playback),
        isVolumeKnown ? fmt::format(", volume {:.0f} %", playback.volume * 100) : "",
        printable(source)));
}

Result<void> runAction(const Session &session, const Arguments &args, PlaybackAction action)
{
    action.value = args.value;
    KEST_TRY(const auto sourced, playSomewhere(session, action, args.player));
    if (!sourced && action.kind != Kind::read) {
        return std::unexpected(
            KestError::unavailable("There is no player, and no connected tab with a medium."));
    }
    json::OrNull<BrowserPlayback> answer;
    if (sourced) {
        answer.value = sourced->playback;
    }
    return session.console.answer(answer, [&] {
        if (sourced) {
            printForPeople(session.console, *sourced);
        } else {
            session.console.line("Nothing is there to play.");
        }
    });
}

Result<void> runPlayers(const Session &session)
{
    KEST_TRY(const auto settings, storedSettings(session));
    const std::string last = KestCore::lastPlayer(settings);
    KEST_TRY(const auto bus, MediaPlayers::open());
    KEST_TRY(auto found, bus->players());
    std::vector<PlayerAnswer> answers;
    for (const auto &player : MediaPlayers::inOrder(std::move(found), last)) {
        answers.push_back({.name = player.name,
                           .identity = player.identity,
                           .status = player.status,
                           .playback = MediaPlayers::playbackOf(player)});
    }
    return session.console.answer(answers, [&] {
        const Console &console = session.console;
        std::vector<std::vector<std::string>> rows;
        for (const auto &[name, identity, status, playback] : answers) {
            rows.push_back({console.styled(printable(name), Style::strong),
                            std::string{Base::textOf(status)}, printable(identity),
                            printable(playback.title)});
        }
        console.table(rows);
        if (rows.empty()) {
            console.line("No player is running.");
        }
    });
}

Result<void> printTabs(const Console &console, const std::vector<BrowserTab> &tabs,
                       std::string_view connected, const char *whenEmpty)
{
    std::vector<TabAnswer> answers;
    std::vector<std::vector<std::string>> rows;
    for (const auto &[id, title, url] : tabs) {
        const bool isConnected = id == connected;
        answers.push_back({.id = id, .title = title, .url = url, .connected = isConnected});
        rows.push_back({console.styled(printable(id), Style::faint), isConnected ? "*" : " ",
                        console.styled(printable(title), Style::strong), printable(url)});
    }
    return console.answer(answers, [&] {
        console.table(rows);
        if (rows.empty()) {
            console.line(whenEmpty);
        }
    });
}

// The port that is named, or the one of the tab that is connected.
Result<std::uint16_t> portFrom(const Arguments &args, const KestCore::Settings &settings)
{
    const auto connected = KestCore::connectedTab(settings);
    if (!args.port && !connected) {
        return std::unexpected(KestError::invalidData(
            "No browser is connected: name its port with --port; kest playback connect --help "
            "explains"));
    }
    return args.port ? *args.port : connected->port;
}

Result<void> runTabs(const Session &session, const Arguments &args)
{
    KEST_TRY(const auto settings, storedSettings(session));
    KEST_TRY(const std::uint16_t port, portFrom(args, settings));
    KEST_TRY(auto bridge, Bridge::open(port));
    KEST_TRY(const auto tabs, bridge.tabs());
    const auto connected = KestCore::connectedTab(settings);
    return printTabs(session.console, tabs, connected ? connected->tab : "",
                     "The browser has no tab that may be read.");
}

Result<void> runConnect(const Session &session, const Arguments &args)
{
    KEST_TRY(const auto settings, storedSettings(session));
    KEST_TRY(const std::uint16_t port, portFrom(args, settings));
    KEST_TRY(auto bridge, Bridge::open(port));
    KEST_TRY(const auto tabs, bridge.tabs());
    KEST_TRY(const std::size_t index,
             KestCore::findByIdPrefix(KestCore::idsOf(tabs), args.tab, "tab"));
    const BrowserTab &tab = tabs[index];
    KEST_TRY(auto store, session.openStore());
    KEST_CHECK(store.change([&](KestCore::NativeState &state) -> Result<void> {
        KestCore::connectTab(state.settings, {.port = port, .tab = tab.id});
        return {};
    }));
    return printTabs(session.console, {tab}, tab.id, "");
}

Result<void> runDisconnect(const Session &session)
{
    KEST_TRY(auto store, session.openStore());
    if (KestCore::connectedTab(store.state().settings)) {
        KEST_CHECK(store.change([](KestCore::NativeState &state) -> Result<void> {
            KestCore::disconnectTab(state.settings);
            return {};
        }));
    }
    return printTabs(session.console, {}, "", "No tab is connected; no browser is asked.");
}

CLI::App *addAction(CLI::App *playback, Session &session, const SharedArguments &args,
                    const char *name, const char *help, Kind kind)
{
    CLI::App *command = playback->add_subcommand(name, help);
    command->add_option("--player", args->player,
                        "Only in the player that is called so; see players");
    command->callback([=, &session] {
        session.command = [=, &session] { return runAction(session, *args, {.kind = kind}); };
    });
    return command;
}

void addActions(CLI::App *playback, Session &session, const SharedArguments &args)
{
    const auto add = [&](const char *name, const char *help, Kind kind) {
        return addAction(playback, session, args, name, help, kind);
    };
    add("read", "What plays, and where in it", Kind::read);
    add("play-pause", "Plays, or pauses what plays", Kind::playPause);
    add("next", "Goes to the next one", Kind::next);
    add("previous", "Goes back to the one before", Kind::previous);
    const auto take = [args](double value) { args->value = value; };
    addNumber(add("seek", "Goes to a place in it", Kind::seek), "SECONDS", take,
              "From the beginning")
        ->required();
    addNumber(add("volume", "Sets how loud it is", Kind::volume), "LEVEL", take, "From 0 to 1")
        ->required();
}

void addPort(CLI::App *command, const SharedArguments &args)
{
    command
        ->add_option("--port", args->port,
                     "The browser's debugging port; else the connected tab's")
        ->check(CLI::Range(1, 65'535));
    command->footer(kBridgeHelp);
}

void addBridge(CLI::App *playback, Session &session, const SharedArguments &args)
{
    CLI::App *tabs = playback->add_subcommand("tabs", "Lists the browser's tabs");
    addPort(tabs, args);
    tabs->callback(
        [=, &session] { session.command = [=, &session] { return runTabs(session, *args); }; });
    CLI::App *connect = playback->add_subcommand("connect", "Reads and controls this tab");
    connect->add_option("TAB", args->tab, "Its id, or how that begins")->required();
    addPort(connect, args);
    connect->callback([=, &session] {
        session.command = [=, &session] { return runConnect(session, *args); };
    });
    playback->add_subcommand("disconnect", "Leaves the browser alone")->callback([&session] {
        session.command = [&session] { return runDisconnect(session); };
    });
}

} // namespace

void addPlaybackCommands(CLI::App &program, Session &session)
{
    const auto args = std::make_shared<Arguments>();
    CLI::App *playback =
        program.add_subcommand("playback", "Shows and controls what plays here");
    playback->require_subcommand(1);
    addActions(playback, session, args);
    playback->add_subcommand("players", "Lists the players, the first in use first")
        ->callback(
            [&session] { session.command = [&session] { return runPlayers(session); }; });
    addBridge(playback, session, args);
}

} // namespace Cli
