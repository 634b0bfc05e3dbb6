// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Assistants/HookFile.h"
#include "KestCore/Clients/InsightPeriod.h"
#include "KestCore/Clients/InsightReport.h"
#include "KestCore/Devotional/Content.h"
#include "KestCore/Registry/ToolRegistry.h"
#include "KestCore/Surfaces/MessageAnimation.h"
#include "KestCore/Tools/Emoji.h"
#include "KestCore/Tools/TimerState.h"
#include "KestCore/Tools/Units.h"
#include "MonitorCore/Metric.h"
#include "cli/Session.h"

#include <CLI/CLI.hpp>
#include <fmt/format.h>

#include <algorithm>
#include <map>
#include <memory>

// Completion for shells. The scripts only ask the program itself, so they never lag behind it.
namespace Cli
{

namespace
{

using Words = std::vector<std::string>;

constexpr std::string_view kBash = R"SCRIPT(_kest() {
    local IFS=$'\n'
    COMPREPLY=($(compgen -W "$(kest complete -- "${COMP_WORDS[@]:1:COMP_CWORD-1}" 2>/dev/null)" \
        -- "${COMP_WORDS[COMP_CWORD]}"))
}
complete -o default -F _kest kest
)SCRIPT";

constexpr std::string_view kZsh = R"SCRIPT(#compdef kest
_kest() {
    local -a found
    found=("${(@f)$(kest complete -- "${(@)words[2,CURRENT-1]}" 2>/dev/null)}")
    compadd -a found
}
if [[ $funcstack[1] == _kest ]]; then
    _kest "$@"
else
    compdef _kest kest
fi
)SCRIPT";

constexpr std::string_view kFish = R"SCRIPT(complete -c kest -f -a '(
    set -l words (commandline -opc)
    kest complete -- $words[2..-1] 2>/dev/null
)'
)SCRIPT";

const std::map<std::string, std::string_view> &scripts()
{
    static const std::map<std::string, std::string_view> kScripts{
        {"bash", kBash}, {"fish", kFish}, {"zsh", kZsh}};
    return kScripts;
}

Words idsOf(const std::vector<KestCore::Phrase> &phrases)
{
    Words ids;
    std::ranges::transform(phrases, std::back_inserter(ids), &KestCore::Phrase::id);
    return ids;
}

Words toolIds()
{
    Words ids;
    std::ranges::transform(KestCore::ToolRegistry::tools(), std::back_inserter(ids),
                           &KestCore::ToolDescriptor::id);
    return ids;
}

Words settingKeys()
{
    Words keys;
    for (const auto &tool : KestCore::ToolRegistry::tools()) {
        keys.insert(keys.end(), tool.configuration.begin(), tool.configuration.end());
    }
    return keys;
}

template <class Enum>
Words textsOf()
{
    Words texts;
    for (const auto &[value, text] : enumTexts(Base::Of<Enum>{})) {
        texts.emplace_back(text);
    }
    return texts;
}

Words unitIds()
{
    Words ids;
    for (const auto &unit : KestCore::Units::all()) {
        ids.emplace_back(unit.id);
    }
    return ids;
}

// The values that fit where an argument of this command is wanted.
Words argumentsFor(const CLI::App &owner, const Words &typed)
{
    const std::string &command = owner.get_name();
    const auto &content = KestCore::contentCatalogue();
    if (command == "select") {
        const bool isName = std::ranges::find(typed, "--name") != typed.end();
        return idsOf(isName ? content.names : content.dhikr);
    }
    if (command == "target") {
        return {"none", "33", "99", "100"};
    }
    if (command == "completion") {
        return {"bash", "fish", "zsh"};
    }
    if (command == "convert") {
        return unitIds();
    }
    if (!typed.empty() && typed.back() == "--animation") {
        return textsOf<KestCore::MessageAnimation>();
    }
    if (!typed.empty() && typed.back() == "--tone") {
        return textsOf<KestCore::SkinTone>();
    }
    if (!typed.empty() && typed.back() == "--period") {
        return textsOf<KestCore::InsightPeriod>();
    }
    const CLI::App *parent = owner.get_parent();
    if (command == "start" && parent != nullptr && parent->get_name() == "timer") {
        return textsOf<KestCore::TimerMode>();
    }
    if ((command == "connect" || command == "disconnect") && parent != nullptr &&
        parent->get_name() == "insights") {
        return textsOf<KestCore::InsightProvider>();
    }
    if ((command == "connect" || command == "disconnect") && parent != nullptr &&
        parent->get_name() == "assistants") {
        Words tools;
        for (const auto &tool : Assistants::hookTools()) {
            tools.emplace_back(tool.name);
        }
        return tools;
    }
    if (command == "hook") {
        return {"claude-code", "cursor"};
    }
    if ((command == "open" || command == "toggle") && parent != nullptr &&
        parent->get_name() == "notch") {
        return toolIds();
    }
    if (command == "history" && parent != nullptr && parent->get_name() == "monitor") {
        return textsOf<MonitorCore::MetricID>();
    }
    return parent != nullptr && parent->get_name() == "settings" ? settingKeys() : Words{};
}

// Walks the words already typed down the tree of commands and lists what may come next.
Words candidates(CLI::App &program, const Words &typed)
{
    CLI::App *command = &program;
    for (const std::string &word : typed) {
        const auto next = command->get_subcommands(
            [&](const CLI::App *sub) { return sub->get_name() == word; });
        command = next.empty() ? command : next.front();
    }
    Words found;
    for (const CLI::App *sub :
         command->get_subcommands([](const CLI::App *) { return true; })) {
        if (!sub->get_group().empty()) {
            found.push_back(sub->get_name());
        }
    }
    for (const CLI::App *owner = command; owner != nullptr; owner = owner->get_parent()) {
        for (const CLI::Option *option : owner->get_options()) {
            if (!option->get_lnames().empty()) {
                found.push_back("--" + option->get_lnames().front());
            }
        }
    }
    const Words arguments = argumentsFor(*command, typed);
    found.insert(found.end(), arguments.begin(), arguments.end());
    return found;
}

} // namespace

void addCompletionCommands(CLI::App &program, Session &session)
{
    const auto shell = std::make_shared<std::string>();
    CLI::App *completion = program.add_subcommand(
        "completion", "Prints the completion script for bash, fish or zsh");
    completion->add_option("SHELL", *shell)
        ->required()
        ->check(CLI::IsMember(std::vector<std::string>{"bash", "fish", "zsh"}));
    completion->callback([=, &session] {
        session.command = [=, &session]() -> Result<void> {
            const std::string_view script = scripts().at(*shell);
            session.console.line(script.substr(0, script.size() - 1));
            return {};
        };
    });

    const auto typed = std::make_shared<Words>();
    CLI::App *complete = program.add_subcommand("complete", "Lists what may come next");
    complete->group(""); // for the scripts, not for people
    complete->add_option("WORDS", *typed);
    complete->callback([=, &program, &session] {
        session.command = [=, &program, &session]() -> Result<void> {
            for (const std::string &word : candidates(program, *typed)) {
                session.console.line(word);
            }
            return {};
        };
    });
}

} // namespace Cli
