// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Base/Secret.h"
#include "HttpTransport/HttpTransport.h"
#include "KestCore/Clients/DirectInsightsClient.h"
#include "KestCore/Clients/InsightKeys.h"
#include "KestCore/Clients/InsightSettings.h"
#include "SecretService/SecretService.h"
#include "cli/InsightAnswers.h"
#include "cli/KeyInput.h"
#include "cli/Session.h"

#include <CLI/CLI.hpp>
#include <fmt/format.h>

#include <memory>

// insights: the figures of the user's accounts at payment and analytics providers.
namespace Cli
{

namespace
{

using KestCore::InsightPeriod;
using KestCore::InsightProvider;
using KestCore::Settings;

struct Arguments {
    std::optional<std::string> period{};
    std::string website{};
    InsightProvider provider{}; // of connect and disconnect
};

std::string settingIn(const Settings &settings, const std::string &key)
{
    const auto found = settings.find(key);
    return found == settings.end() ? "" : found->second;
}

KestError asKestError(const Base::SecretFailure &failure)
{
    return KestError::unavailable(failure.message);
}

// The fixed text, with how long the provider wants to be left alone where it told.
KestError asKestError(const KestCore::InsightError &error)
{
    std::string text = messageOf(error);
    if (error.retryAfter && error.retryAfter->count() >= 1) {
        text.append(fmt::format(" It asks for {:.0f} s.", error.retryAfter->count()));
    }
    return KestError::unavailable(std::move(text));
}

Result<std::unique_ptr<Base::SecretStore>> openSecrets()
{
    auto secrets = Keyring::open(Console::isInteractive() ? Keyring::Prompts::allowed
                                                          : Keyring::Prompts::never);
    if (!secrets) {
        return std::unexpected(asKestError(secrets.error()));
    }
    return *std::move(secrets);
}

Result<Base::SecretBytes> keyFor(InsightProvider provider)
{
    KEST_TRY(const auto secrets, openSecrets());
    auto kept = secrets->read(keyAccountOf(provider));
    if (!kept) {
        return std::unexpected(asKestError(kept.error()));
    }
    auto &key = *kept;
    if (!key) {
        return std::unexpected(KestError::unavailable(
            fmt::format("{} is not connected; kest insights connect {} takes a key.",
                        nameOf(provider), Base::textOf(provider))));
    }
    return *std::move(key);
}

// What was given, else what is set, else the usual one.
Result<InsightPeriod> periodOf(const Arguments &args, const std::string &setting)
{
    return KestCore::insightPeriodFrom(args.period.value_or(setting));
}

// What the provider asked for holds for the next run too.
Result<void> keepWait(const Session &session, const std::string &setting,
                      std::optional<Base::Instant> until)
{
    if (!until) {
        return {};
    }
    KEST_TRY(const std::string text, Base::toIso8601(*until));
    KEST_TRY(auto store, session.openStore());
    return store.change([&](KestCore::NativeState &state) -> Result<void> {
        state.settings.insert_or_assign(setting, text);
        return {};
    });
}

// The store is open only to read and to write the settings: the provider may take a minute.
Result<KestCore::InsightReport> load(const Session &session, InsightProvider provider,
                                     const Arguments &args)
{
    KEST_TRY(const Settings settings, storedSettings(session));
    const auto orSetting = [&](const std::string &given, const std::string &setting) {
        return given.empty() ? settingIn(settings, setting) : given;
    };
    KEST_TRY(const auto period,
             periodOf(args, settingIn(settings, KestCore::insightSetting(provider, "period"))));
    KEST_TRY(const auto key, keyFor(provider));
    KEST_TRY(const auto transport, Web::openTransport());
    KestCore::DirectInsightsClient client{*transport, KestCore::insightHosts()};
    const std::string waitSetting = KestCore::insightSetting(provider, "waitUntil");
    if (const auto until = Base::fromIso8601(settingIn(settings, waitSetting))) {
        client.waitUntil(provider, *until);
    }
    const auto waitBefore = client.waitsUntil(provider);
    const std::string_view word{reinterpret_cast<const char *>(key.data()), key.size()};
    auto report =
        client.load(provider, word, period, orSetting(args.website, KestCore::kWebsiteSetting),
                    Base::wallClock(), KestCore::InsightZone::ofHost(), std::stop_token{});
    if (client.waitsUntil(provider) != waitBefore) {
        KEST_CHECK(keepWait(session, waitSetting, client.waitsUntil(provider)));
    }
    if (!report) {
        return std::unexpected(asKestError(report.error()));
    }
    return *std::move(report);
}

Result<void> runReport(const Session &session, InsightProvider provider, const Arguments &args)
{
    forbidCoreDumps();
    KEST_TRY(const auto report, load(session, provider, args));
    KEST_TRY(const auto answer, answerOf(report));
    return session.console.answer(answer, [&] { printReport(session.console, report); });
}

Result<void> answerConnection(const Console &console, InsightProvider provider, bool connected)
{
    const ConnectionAnswer answer{.provider = provider, .connected = connected};
    return console.answer(answer, [&] {
        console.line(
            fmt::format("{} is {}connected.", nameOf(provider), connected ? "" : "dis"));
    });
}

Result<void> runConnect(const Session &session, const Arguments &args)
{
    forbidCoreDumps();
    const InsightProvider provider = args.provider;
    if (!args.website.empty() && provider != InsightProvider::datafast) {
        return std::unexpected(KestError::invalidData("Only DataFast asks for a website"));
    }
    const bool isPayments = provider == InsightProvider::stripe;
    auto key = readKey(isPayments ? "Restricted Stripe key with Balance read access:"
                                  : "DataFast key with analytics:read:",
                       KestCore::kLongestInsightKey);
    const Base::WipeAtEnd wiping{key};
    if (!key) {
        return std::unexpected(std::move(key).error());
    }
    KEST_CHECK(KestCore::checkInsightKey(provider, *key));
    KEST_TRY(const auto secrets, openSecrets());
    if (const auto before = secrets->read(keyAccountOf(provider)); !before) {
        return std::unexpected(asKestError(before.error()));
    }
    KEST_TRY(auto store, session.openStore()); // before anything is replaced
    const std::span bytes{reinterpret_cast<const std::uint8_t *>(key->data()), key->size()};
    if (const auto kept = secrets->write(keyAccountOf(provider), bytes); !kept) {
        return std::unexpected(asKestError(kept.error()));
    }
    KEST_CHECK(store.change([&](KestCore::NativeState &state) -> Result<void> {
        state.settings.erase(
            KestCore::insightSetting(provider, "waitUntil")); // that was for another key
        if (!args.website.empty()) {
            state.settings.insert_or_assign(KestCore::kWebsiteSetting, args.website);
        }
        return {};
    }));
    return answerConnection(session.console, provider, true);
}

Result<void> runDisconnect(const Session &session, const Arguments &args)
{
    KEST_TRY(const auto secrets, openSecrets());
    if (const auto erased = secrets->erase(keyAccountOf(args.provider)); !erased) {
        return std::unexpected(asKestError(erased.error()));
    }
    return answerConnection(session.console, args.provider, false);
}

void addReport(CLI::App *insights, Session &session, InsightProvider provider, const char *help)
{
    const auto args = std::make_shared<Arguments>();
    CLI::App *command = insights->add_subcommand(std::string{Base::textOf(provider)}, help);
    command->add_option("--period", args->period, "today, 7d, 30d, 90d, month or year");
    if (provider == InsightProvider::datafast) {
        command->add_option("--website", args->website, "Another website than the chosen one");
    }
    command->callback([=, &session] {
        session.command = [=, &session] { return runReport(session, provider, *args); };
    });
}

CLI::App *addOnProvider(CLI::App *insights, Session &session, const char *name,
                        const char *help, const std::shared_ptr<Arguments> &args,
                        Result<void> (*run)(const Session &, const Arguments &))
{
    const auto provider = std::make_shared<std::string>();
    CLI::App *command = insights->add_subcommand(name, help);
    command->add_option("PROVIDER", *provider, "stripe or datafast")
        ->required()
        ->check(CLI::Validator{[](const std::string &word) {
                                   return Base::fromText<InsightProvider>(word)
                                              ? std::string{}
                                              : std::string{"choose stripe or datafast"};
                               },
                               ""});
    const auto refuse = [](const std::string & /*key*/) {
        throw CLI::ValidationError("insights",
                                   "A key is never an argument; it stands on standard input");
    };
    // Hidden: the usual message for an argument too many would quote it.
    command->add_option_function<std::string>("KEY", refuse)->group("");
    command->callback([=, &session] {
        args->provider = Base::fromText<InsightProvider>(*provider).value_or(args->provider);
        session.command = [=, &session] { return run(session, *args); };
    });
    return command;
}

} // namespace

void addInsightCommands(CLI::App &program, Session &session)
{
    CLI::App *insights =
        program.add_subcommand("insights", "Shows payments and visitors of your accounts");
    insights->require_subcommand(1);
    addReport(insights, session, InsightProvider::stripe,
              "Payments, refunds, fees and payouts");
    addReport(insights, session, InsightProvider::datafast,
              "Visitors, pages and referrers of a website");
    const auto args = std::make_shared<Arguments>();
    addOnProvider(insights, session, "connect",
                  "Keeps the key on standard input in the keyring", args, runConnect)
        ->add_option("--website", args->website, "DataFast's identifier of the website");
    addOnProvider(insights, session, "disconnect", "Removes the key from the keyring", args,
                  runDisconnect);
}

} // namespace Cli
