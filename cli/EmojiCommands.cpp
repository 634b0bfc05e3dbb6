// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "KestCore/Tools/Emoji.h"
#include "KestCore/Tools/RecentEmoji.h"
#include "cli/ItemAnswers.h"
#include "cli/Session.h"

#include <CLI/CLI.hpp>
#include <fmt/format.h>

#include <memory>

// emoji: finds them by what they show.
namespace Cli
{

namespace
{

using KestCore::Emoji;
using KestCore::RecentEmoji;
using KestCore::SkinTone;

constexpr std::size_t kMostFound = 30;

std::vector<std::string> toneNames()
{
    std::vector<std::string> names;
    for (const auto &[tone, text] : enumTexts(Base::Of<SkinTone>{})) {
        names.emplace_back(text);
    }
    return names;
}

Result<void> print(const Console &console, const std::vector<EmojiAnswer> &answers,
                   std::string_view whenEmpty)
{
    return console.answer(answers, [&] {
        // No table: how wide a terminal draws an emoji is nothing to build columns on.
        for (const EmojiAnswer &answer : answers) {
            console.line(
                fmt::format("{}  {}  {}", answer.emoji, answer.name, answer.arabicName));
        }
        if (answers.empty()) {
            console.line(whenEmpty);
        }
    });
}

EmojiAnswer answerOf(const Emoji &emoji, std::string text)
{
    return {.emoji = std::move(text),
            .name = std::string{emoji.name},
            .arabicName = std::string{emoji.arabicName}};
}

Result<void> runSearch(const Session &session, const std::string &query,
                       const std::string &toneName)
{
    auto tone = Base::fromText<SkinTone>(toneName);
    if (!tone) {
        KEST_TRY(const auto store, session.openStore());
        tone = KestCore::chosenTone(store.state().settings);
    }
    std::vector<EmojiAnswer> answers;
    for (const Emoji *emoji : KestCore::searchEmoji(query, kMostFound)) {
        answers.push_back(answerOf(*emoji, KestCore::withTone(*emoji, *tone)));
    }
    return print(session.console, answers, "Nothing matches.");
}

EmojiAnswer answerOf(const RecentEmoji &recent)
{
    const auto known = KestCore::emojiOf(recent.emoji);
    EmojiAnswer answer = known ? answerOf(*known->emoji, known->text)
                               : EmojiAnswer{.emoji = printable(recent.emoji)};
    answer.uses = recent.uses;
    answer.lastUsed = instantText(recent.lastUsed);
    return answer;
}

Result<void> runRecent(const Session &session)
{
    KEST_TRY(auto store, session.openStore());
    KEST_TRY(const auto records, store.recordsOfKind(KestCore::kEmojiKind));
    std::vector<EmojiAnswer> answers;
    for (const auto &recent : KestCore::recentEmoji(records, Base::wallClock(), kMostFound)) {
        answers.push_back(answerOf(recent));
    }
    return print(session.console, answers, "No emoji were used yet.");
}

// Prints the emoji itself, so that it can go on into a pipe.
Result<void> runUse(const Session &session, const std::string &emoji)
{
    KEST_TRY(auto store, session.openStore());
    KEST_TRY(const auto records, store.recordsOfKind(KestCore::kEmojiKind));
    KEST_TRY(const auto changes, KestCore::usingEmoji(records, emoji, Base::wallClock()));
    KEST_CHECK(store.changeRecords(changes));
    const auto used = KestCore::recentEmoji(changes.written, Base::wallClock(), 1);
    if (!session.console.isJson) {
        session.console.line(used.front().emoji);
        return {};
    }
    return print(session.console, {answerOf(used.front())}, "");
}

struct Arguments {
    std::vector<std::string> words{};
    std::string tone{};
    std::string emoji{};
};

void addSearch(CLI::App *emoji, Session &session, const std::shared_ptr<Arguments> &args)
{
    emoji->add_option("SEARCH", args->words, "Words, in English or Arabic");
    emoji
        ->add_option("--tone", args->tone,
                     "The skin tone of people, for that of the setting emoji.skinTone")
        ->check(CLI::IsMember(toneNames()));
    emoji->callback([=, &session] {
        // Words beside a subcommand would be taken in and go unheard.
        if (!emoji->get_subcommands().empty()) {
            if (!args->words.empty()) {
                throw CLI::ExtrasError(args->words);
            }
            return;
        }
        if (args->words.empty()) {
            throw CLI::RequiredError("SEARCH");
        }
        session.command = [=, &session] {
            return runSearch(session, fmt::format("{}", fmt::join(args->words, " ")),
                             args->tone);
        };
    });
}

} // namespace

void addEmojiCommands(CLI::App &program, Session &session)
{
    const auto args = std::make_shared<Arguments>();
    CLI::App *emoji = program.add_subcommand("emoji", "Finds emoji by their names");
    emoji->require_subcommand(0, 1);
    addSearch(emoji, session, args);
    emoji->add_subcommand("recent", "Lists the emoji that were used")->callback([&session] {
        session.command = [&session] { return runRecent(session); };
    });
    CLI::App *use = emoji->add_subcommand("use", "Counts a use of an emoji, and prints it");
    use->add_option("EMOJI", args->emoji, "The emoji, with its tone if it has one")->required();
    use->callback([=, &session] {
        session.command = [=, &session] { return runUse(session, args->emoji); };
    });
}

} // namespace Cli
