// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Assistants/HookFile.h"
#include "KestCore/Clients/UpdateClient.h"
#include "KestCore/Clipboard/ClipboardHistory.h"
#include "KestCore/Clipboard/ClipboardKey.h"
#include "KestCore/Devotional/Content.h"
#include "KestCore/Registry/ToolRegistry.h"
#include "KestCore/Resources.h"
#include "KestCore/Store/StoreLocation.h"
#include "SecretService/SecretService.h"
#include "cli/Answers.h"
#include "cli/Session.h"

#include <CLI/CLI.hpp>
#include <fmt/format.h>

#include <langinfo.h>

#include <algorithm>
#include <clocale>
#include <filesystem>

// What works on this machine and what does not, each with the way out.
namespace Cli
{

namespace
{

namespace fs = std::filesystem;

using State = Finding::State;

Finding checkResources()
{
    const auto &content = KestCore::contentCatalogue();
    return {.check = "resources",
            .state = State::full,
            .detail = fmt::format("{} phrases, {} Names, {} tools in {}", content.dhikr.size(),
                                  content.names.size(), KestCore::ToolRegistry::tools().size(),
                                  KestCore::coreBundle().folder().string())};
}

Finding checkFolder(const fs::path &folder)
{
    std::error_code error;
    const auto status = fs::status(folder, error);
    Finding finding{.check = "data folder", .state = State::full, .detail = folder.string()};
    if (!fs::is_directory(status)) {
        finding.state = State::off;
        finding.detail += " is not there";
        finding.advice = "Look at its permissions, or choose another with --data-dir";
    } else if ((status.permissions() & (fs::perms::group_all | fs::perms::others_all)) !=
               fs::perms::none) {
        finding.state = State::degraded;
        finding.detail += " can be read by other users";
        finding.advice = fmt::format("chmod 700 '{}'", folder.string());
    }
    return finding;
}

Finding storeFailure(const KestError &error)
{
    return {.check = "store",
            .state = State::off,
            .detail = "Velvetnook could not open its local data: " + error.message,
            .advice = "Nothing was changed. Keep a copy of the data folder before you try "
                      "anything else"};
}

std::vector<Finding> checkStore(const Session &session)
{
    auto store = session.openStore();
    if (!store) {
        return {storeFailure(store.error())};
    }
    std::vector<Finding> findings;
    const auto &state = store->state();
    findings.push_back(
        {.check = "store",
         .state = State::full,
         .detail = fmt::format("revision {}, {} finished sessions", state.revision,
                               state.devotional.records.size())});
    const auto integrity = store->checkIntegrity();
    const bool isSound = integrity && *integrity == "ok";
    findings.push_back({.check = "database file",
                        .state = isSound ? State::full : State::off,
                        .detail = integrity ? *integrity : integrity.error().message});
    const auto snapshot = store->snapshot();
    findings.push_back({.check = "records",
                        .state = snapshot ? State::full : State::degraded,
                        .detail = snapshot
                                      ? fmt::format("{} readable", snapshot->records.size())
                                      : snapshot.error().message});
    return findings;
}

constexpr const char *kHistory = "clipboard history";

// Nobody is asked for a password, and no key is made: this only looks.
Base::SecretResult<std::optional<Base::AesKey>> lookForClipboardKey()
{
    KEST_TRY(const auto secrets, Keyring::open(Keyring::Prompts::never));
    return KestCore::keptClipboardKey(*secrets);
}

// Everything else works without a keyring.
Finding keyringFailure(const Base::SecretFailure &failure)
{
    Finding finding{.check = "keyring", .state = State::degraded, .detail = failure.message};
    switch (KestCore::availabilityOf(failure.kind)) {
    case KestCore::Availability::unconfigured:
        finding.advice = "The clipboard history needs one, such as gnome-keyring";
        break;
    case KestCore::Availability::permissionDenied:
        finding.advice = "The clipboard history is closed until then";
        break;
    default:
        finding.advice = "The clipboard history cannot be opened";
        break;
    }
    return finding;
}

Result<Finding> checkHistory(const Session &session, Base::AesKey key)
{
    KEST_TRY(auto store, session.openStore());
    KestCore::ClipboardHistory history{store, std::move(key)};
    KEST_TRY(const auto entries, history.list());
    Finding finding{.check = kHistory,
                    .state = State::full,
                    .detail = fmt::format("{} entries", entries.size())};
    if (const auto closed =
            std::ranges::count(entries, false, &KestCore::ClipboardListing::isReadable);
        closed > 0) {
        finding.state = State::degraded;
        finding.detail += fmt::format(", {} of them cannot be opened", closed);
        finding.advice = "Without the key that they were kept under they can only be removed";
    }
    return finding;
}

std::vector<Finding> checkClipboard(const Session &session)
{
    auto key = lookForClipboardKey();
    if (!key) {
        return {keyringFailure(key.error())};
    }
    std::optional<Base::AesKey> &kept = *key;
    Finding keyring{.check = "keyring",
                    .state = State::full,
                    .detail = kept ? "keeps the clipboard's key" : "open, and has no key yet"};
    if (!kept) {
        return {std::move(keyring)};
    }
    const auto history = checkHistory(session, *std::move(kept));
    return {std::move(keyring), history ? *history
                                        : Finding{.check = kHistory,
                                                  .state = State::degraded,
                                                  .detail = history.error().message}};
}

Finding checkTerminal()
{
    const std::string_view charset = nl_langinfo(CODESET);
    if (charset == "UTF-8") {
        return {.check = "terminal text", .state = State::full, .detail = "UTF-8"};
    }
    return {.check = "terminal text",
            .state = State::degraded,
            .detail = fmt::format("the locale's text is {}, so Arabic may not show", charset),
            .advice = "Set a UTF-8 locale, such as LANG=C.UTF-8"};
}

// That nobody is asked is a choice, of the user or of who made the build, and no fault.
Finding checkUpdates(const Session &session)
{
    Finding finding{.check = "updates", .state = State::full};
    const auto settings = storedSettings(session);
    std::error_code error;
    const auto self = fs::read_symlink("/proc/self/exe", error);
    const auto allowed = settings ? KestCore::mayCheck(KestCore::thisBuild(KEST_VERSION),
                                                       *settings, KestCore::isPackaged(self))
                                  : Result<void>{std::unexpected(settings.error())};
    finding.detail = allowed ? "looked for once a day" : allowed.error().message;
    return finding;
}

// Whether the hooks of the assistants that are here tell the application of their work.
std::vector<Finding> checkAssistants()
{
    const fs::path home = KestCore::homeDirectory();
    std::vector<Finding> findings;
    for (const auto &tool : Assistants::hookTools()) {
        const auto plan =
            Assistants::planHooks(tool, Assistants::HookChange::connect, home, "kest");
        std::error_code error;
        if (!fs::is_directory(home / tool.folder, error)) {
            continue;
        }
        Finding finding{.check = std::string{tool.title}, .state = State::full};
        if (!plan) {
            finding.state = State::degraded;
            finding.detail = plan.error().message;
        } else {
            finding.detail =
                plan->isNeeded()
                    ? fmt::format("not connected; kest assistants connect {} shows "
                                  "what that would change",
                                  tool.name)
                    : "connected";
        }
        findings.push_back(std::move(finding));
    }
    return findings;
}

Result<void> runDoctor(const Session &session)
{
    std::vector<Finding> findings = checkStore(session);
    findings.push_back(checkFolder(session.databaseFile().parent_path()));
    findings.push_back(checkResources());
    findings.push_back(checkTerminal());
    std::ranges::move(checkClipboard(session), std::back_inserter(findings));
    findings.push_back(checkUpdates(session));
    std::ranges::move(checkAssistants(), std::back_inserter(findings));
    KEST_CHECK(session.console.answer(findings, [&] {
        const Console &console = session.console;
        std::vector<std::vector<std::string>> rows;
        for (const Finding &finding : findings) {
            const bool isFull = finding.state == State::full;
            const char *const stop = finding.detail.ends_with('.') ? " " : ". ";
            rows.push_back(
                {console.styled(Base::textOf(finding.state),
                                isFull ? Style::good : Style::warning),
                 finding.check,
                 printable(finding.detail + (finding.advice ? stop + *finding.advice : ""))});
        }
        console.table(rows);
    }));
    if (std::ranges::find(findings, State::off, &Finding::state) != findings.end()) {
        return std::unexpected(KestError::unavailable("something does not work; see above"));
    }
    return {};
}

} // namespace

void addDoctorCommand(CLI::App &program, Session &session)
{
    program.add_subcommand("doctor", "Checks what works here")->callback([&session] {
        session.command = [&session] { return runDoctor(session); };
    });
}

} // namespace Cli
