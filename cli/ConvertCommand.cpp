// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "KestCore/Tools/TypedConversion.h"
#include "cli/Answers.h"
#include "cli/Session.h"

#include <CLI/CLI.hpp>
#include <fmt/format.h>

#include <cstdlib>
#include <memory>

namespace Cli
{

namespace
{

// How the user writes numbers. ICU's own default would go by the language of messages, and
// knows nothing of the C locale.
std::string numberLocale()
{
    for (const char *name : {"LC_ALL", "LC_NUMERIC", "LANG"}) {
        const char *value = std::getenv(name);
        if (value != nullptr && *value != '\0') {
            const std::string locale{value};
            const bool isC = locale == "C" || locale == "POSIX" || locale.starts_with("C.");
            return isC ? "en_US_POSIX" : locale;
        }
    }
    return "en_US_POSIX";
}

Result<void> runConvert(const Session &session, const std::vector<std::string> &words)
{
    KEST_TRY(const auto conversion,
             KestCore::requireConversion(fmt::format("{}", fmt::join(words, " "))));
    const auto result = KestCore::Units::resultText(conversion, numberLocale());
    if (!result) {
        return std::unexpected(KestError::invalidData(std::string{KestCore::kCannotConvert}));
    }
    const ConvertAnswer answer{.category = conversion.category,
                               .result = *result,
                               .from = conversion.from,
                               .to = conversion.to};
    return session.console.answer(answer, [&] {
        session.console.line(fmt::format("{} {} = {} {}", conversion.text, answer.from,
                                         session.console.styled(*result, Style::strong),
                                         answer.to));
    });
}

} // namespace

void addConvertCommand(CLI::App &program, Session &session)
{
    const auto words = std::make_shared<std::vector<std::string>>();
    CLI::App *convert = program.add_subcommand("convert", "Converts between units");
    convert
        ->add_option("CONVERSION", *words, "VALUE FROM TO, such as 5 km mi or \"5 km to mi\"")
        ->required();
    convert->callback([=, &session] {
        session.command = [=, &session] { return runConvert(session, *words); };
    });
}

} // namespace Cli
