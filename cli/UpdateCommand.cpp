// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Base/JsonWriter.h"
#include "HttpTransport/HttpTransport.h"
#include "KestCore/Clients/UpdateClient.h"
#include "cli/Answers.h"
#include "cli/Session.h"

#include <CLI/CLI.hpp>
#include <fmt/format.h>

#include <filesystem>
#include <memory>

// update: whether there is a newer version. It is never fetched from here.
namespace Cli
{

namespace
{

struct UpdateAnswer {
    std::string version{};
    KestCore::UpdateChannel channel{};
    bool mayCheck{};
    std::optional<std::string> why{}; // it may not
    std::optional<std::string> checkedAt{};
    std::optional<KestCore::UpdateOffer> offer{};
};
consteval auto jsonFields(Of<UpdateAnswer>)
{
    using R = UpdateAnswer;
    return std::tuple{
        json::Field{"version", &R::version},     json::Field{"channel", &R::channel},
        json::Field{"mayCheck", &R::mayCheck},   json::Field{"why", &R::why},
        json::Field{"checkedAt", &R::checkedAt}, json::Field{"offer", &R::offer}};
}
static_assert(json::coversAllMembers<UpdateAnswer>());

void print(const Console &console, const UpdateAnswer &answer)
{
    console.line(
        fmt::format("Velvetnook {} ({})", answer.version, Base::textOf(answer.channel)));
    if (answer.offer) {
        console.line(console.styled(
            fmt::format("{} is there: {}", answer.offer->version, answer.offer->address),
            Style::strong));
        console.line(
            fmt::format("{} bytes, SHA-256 {}", answer.offer->size, answer.offer->sha256));
        console.line(printable(answer.offer->notes, Layout::kept));
    } else if (answer.checkedAt) {
        console.line("Nothing newer was there at " + *answer.checkedAt);
    }
    if (answer.why) {
        console.line(*answer.why);
    }
}

Result<void> check(const Session &session, const KestCore::UpdateBuild &build,
                   KestCore::Settings &settings)
{
    const Base::Instant now = Base::wallClock();
    if (!KestCore::isCheckDue(settings, now)) {
        return {}; // what is known is not a day old
    }
    KEST_TRY(const auto transport, Web::openTransport());
    const KestCore::Settings before = settings;
    const auto outcome = KestCore::checkForUpdate(*transport, build, settings, now);
    KEST_TRY(auto store, session.openStore());
    KEST_CHECK(store.change([&](KestCore::NativeState &state) -> Result<void> {
        for (const auto &[key, value] : settings) {
            if (const auto old = before.find(key);
                old == before.end() || old->second != value) {
                state.settings.insert_or_assign(key, value);
            }
        }
        return {};
    }));
    return outcome;
}

Result<void> runUpdate(const Session &session, bool isCheck)
{
    KEST_TRY(auto settings, storedSettings(session));
    const auto build = KestCore::thisBuild(KEST_VERSION);
    std::error_code error;
    const auto self = std::filesystem::read_symlink("/proc/self/exe", error);
    const auto allowed = KestCore::mayCheck(build, settings, KestCore::isPackaged(self));
    if (isCheck) {
        KEST_CHECK(allowed);
        KEST_CHECK(check(session, build, settings));
    }
    auto known = KestCore::knownUpdate(build, settings);
    UpdateAnswer answer{.version = build.version,
                        .channel = build.channel,
                        .mayCheck = allowed.has_value(),
                        .offer = std::move(known.offer)};
    if (!allowed) {
        answer.why = allowed.error().message;
    }
    if (known.checkedAt) {
        KEST_TRY(answer.checkedAt, Base::toIso8601(*known.checkedAt));
    }
    return session.console.answer(answer, [&] { print(session.console, answer); });
}

} // namespace

void addUpdateCommand(CLI::App &program, Session &session)
{
    const auto isCheck = std::make_shared<bool>(false);
    CLI::App *update =
        program.add_subcommand("update", "Says whether there is a newer version");
    update->add_flag("--check", *isCheck, "Ask the server, once a day at most");
    update->callback([=, &session] {
        session.command = [=, &session] { return runUpdate(session, *isCheck); };
    });
}

} // namespace Cli
