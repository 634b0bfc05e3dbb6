// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "KestCore/Devotional/Counting.h"
#include "cli/Answers.h"
#include "cli/CounterSteps.h"
#include "cli/Session.h"

#include <CLI/CLI.hpp>
#include <fmt/format.h>

#include <charconv>
#include <memory>

// The counter's commands: show, count, undo, target, pause, finish, reset and select.
namespace Cli
{

namespace
{

using KestCore::CountAction;
using KestCore::NativeState;
using KestCore::Phrase;
using KestCore::StateStore;

void printPhrase(const Console &console, const Phrase &phrase)
{
    console.line(phrase.arabic);
    console.line(console.styled(phrase.transliteration, Style::strong));
    if (phrase.translation) {
        console.line(*phrase.translation);
    }
    console.line(console.styled(phrase.source, Style::faint));
}

Result<void> printShow(const Console &console, const StateStore &store, const Phrase &phrase)
{
    const auto &session = store.state().devotional.session;
    const ShowAnswer answer{
        .phrase = phrase, .session = session, .revision = store.state().revision};
    return console.answer(answer, [&] {
        printPhrase(console, phrase);
        console.line("");
        console.line(console.styled(progressText(session), Style::strong));
    });
}

// Up to `times` steps; ends early at the first that changes nothing.
Result<void> runSteps(const Session &session, const CountAction &action, std::int64_t times,
                      std::string_view whenNothingChanges)
{
    KEST_TRY(StateStore store, session.openStore());
    StepOutcome all;
    for (std::int64_t done = 0; done < times; ++done) {
        auto outcome = step(store, action);
        if (!outcome && done > 0) {
            outcome.error().message += fmt::format(" ({} of {} done before)", done, times);
        }
        KEST_CHECK(outcome);
        if (!outcome->hasChanged) {
            break;
        }
        all.hasChanged = true;
        all.targetReached = all.targetReached || outcome->targetReached;
    }
    const auto &counting = store.state().devotional.session;
    const CountAnswer answer{.count = counting.count,
                             .target = counting.target,
                             .targetReached = all.targetReached,
                             .paused = counting.isPaused,
                             .revision = store.state().revision};
    return session.console.answer(answer, [&] {
        const std::string text = progressText(counting);
        if (!all.hasChanged) {
            session.console.line(fmt::format("{} · {}", text, whenNothingChanges));
        } else if (all.targetReached) {
            session.console.line(text +
                                 session.console.styled(" · target reached", Style::good));
        } else {
            session.console.line(text);
        }
    });
}

CountAction parseTarget(const std::string &text)
{
    if (text == "none") {
        return KestCore::SetTarget{};
    }
    std::int64_t value = 0;
    const auto [end, code] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (code != std::errc{} || end != text.data() + text.size()) {
        // Too long a number, or none: the counter's own words fit both.
        value = 0;
    }
    return KestCore::SetTarget{value};
}

// The store is given back while the question stands, so the answer holds only for the very
// count that was shown.
Result<bool> confirmReset(const Session &session)
{
    const auto current = [&]() -> Result<KestCore::Session> {
        KEST_TRY(const StateStore store, session.openStore());
        return store.state().devotional.session;
    };
    KEST_TRY(const auto shown, current());
    if (shown.count == 0) {
        return true;
    }
    if (!Console::confirms(fmt::format("Give up the {} counted?", shown.count))) {
        return false;
    }
    KEST_TRY(const auto now, current());
    if (!(now == shown)) {
        return std::unexpected(KestError::invalidData(
            "The count has changed since the question; nothing was reset"));
    }
    return true;
}

Result<void> runReset(const Session &session, bool isConfirmed)
{
    if (!isConfirmed && Console::isInteractive()) {
        KEST_TRY(isConfirmed, confirmReset(session));
    }
    return runSteps(session, KestCore::ResetSession{isConfirmed}, 1, "nothing to reset");
}

Result<void> runSelect(const Session &session, const std::string &id, bool isName)
{
    const auto &content = KestCore::contentCatalogue();
    const auto &list = isName ? content.names : content.dhikr;
    const auto chosen = std::ranges::find(list, id, &Phrase::id);
    if (chosen == list.end()) {
        return std::unexpected(KestError::invalidData(
            fmt::format("No {} has the id \"{}\". kest {} lists them.",
                        isName ? "Name" : "phrase", id, isName ? "names" : "phrases")));
    }
    KEST_TRY(StateStore store, session.openStore());
    KEST_CHECK(store.change([&](NativeState &state) -> Result<void> {
        (isName ? state.devotional.selectedNameId : state.devotional.selectedDhikrId) = id;
        return {};
    }));
    return printShow(session.console, store, *chosen);
}

struct Arguments {
    std::int64_t times = 1;
    std::string target{};
    std::string id{};
    bool isName = false;
    bool isConfirmed = false;
};

void addRepeatable(CLI::App &program, Session &session, const std::shared_ptr<Arguments> &args,
                   const char *name, const char *help, const CountAction &action,
                   const char *whenNothingChanges)
{
    CLI::App *command = program.add_subcommand(name, help);
    command->add_option("N", args->times, "How many times, one durable step each")
        ->check(CLI::Range(std::int64_t{1}, std::int64_t{1'000'000}));
    command->callback([=, &session] {
        session.command = [=, &session] {
            return runSteps(session, action, args->times, whenNothingChanges);
        };
    });
}

void addPlain(CLI::App &program, Session &session, const char *name, const char *help,
              const CountAction &action)
{
    program.add_subcommand(name, help)->callback([=, &session] {
        session.command = [=, &session] { return runSteps(session, action, 1, "unchanged"); };
    });
}

void addTarget(CLI::App &program, Session &session, const std::shared_ptr<Arguments> &args)
{
    CLI::App *command = program.add_subcommand("target", "Sets the session's target");
    command->add_option("N", args->target, "1 to 1,000,000, or none for an open count")
        ->required();
    command->callback([=, &session] {
        session.command = [=, &session]() -> Result<void> {
            return runSteps(session, parseTarget(args->target), 1, "already the target");
        };
    });
}

void addReset(CLI::App &program, Session &session, const std::shared_ptr<Arguments> &args)
{
    CLI::App *command =
        program.add_subcommand("reset", "Starts a fresh session without recording this one");
    command->add_flag("--yes", args->isConfirmed, "Give up what is counted without asking");
    command->callback([=, &session] {
        session.command = [=, &session] { return runReset(session, args->isConfirmed); };
    });
}

void addSelect(CLI::App &program, Session &session, const std::shared_ptr<Arguments> &args)
{
    CLI::App *command = program.add_subcommand("select", "Chooses the phrase to count");
    command->add_option("ID", args->id, "As kest phrases or kest names lists it")->required();
    command->add_flag("--name", args->isName, "Choose the Name instead");
    command->callback([=, &session] {
        session.command = [=, &session] { return runSelect(session, args->id, args->isName); };
    });
}

} // namespace

void addCounterCommands(CLI::App &program, Session &session)
{
    const auto args = std::make_shared<Arguments>();
    program.add_subcommand("show", "Shows the phrase, the count and the target")
        ->callback([&session] {
            session.command = [&session]() -> Result<void> {
                KEST_TRY(const StateStore store, session.openStore());
                return printShow(session.console, store, selectedPhrase(store.state()));
            };
        });
    addRepeatable(program, session, args, "count", "Counts one, or N", KestCore::Increment{},
                  "nothing counted");
    addRepeatable(program, session, args, "undo", "Takes back the last count, or N",
                  KestCore::Undo{}, "nothing to undo");
    addTarget(program, session, args);
    addPlain(program, session, "pause", "Pauses the session, or goes on with it",
             KestCore::TogglePause{});
    addPlain(program, session, "finish", "Records the session and starts a fresh one",
             KestCore::Finish{});
    addReset(program, session, args);
    addSelect(program, session, args);
    program.add_subcommand("counter", "Counts on the whole terminal")->callback([&session] {
        session.command = [&session] { return runTerminalCounter(session); };
    });
}

} // namespace Cli
