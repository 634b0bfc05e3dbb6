// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Base/Text.h"
#include "KestCore/Devotional/Content.h"
#include "KestCore/Devotional/Reminders.h"
#include "KestCore/Prayer/Places.h"
#include "KestCore/Prayer/PrayerInputs.h"
#include "cli/PrayerAnswers.h"
#include "cli/Session.h"

#include <CLI/CLI.hpp>
#include <fmt/format.h>

#include <algorithm>
#include <iterator>
#include <memory>

// place and reminder: where the user is, and when a reminder comes.
namespace Cli
{

namespace
{

using KestCore::Place;
using KestCore::Settings;

constexpr std::size_t kMostPlaces = 15;

std::string joined(const std::vector<std::string> &words)
{
    return fmt::format("{}", fmt::join(words, " "));
}

std::string titleOf(const Place &place)
{
    return place.region.empty()
               ? fmt::format("{}, {}", place.name, place.countryName)
               : fmt::format("{}, {}, {}", place.name, place.region, place.countryName);
}

// Whether the query is one of the city's names, alone or with more behind it.
bool isNamedBy(const Place &place, std::string_view query)
{
    const std::string wanted = KestCore::normalizeForSearch(query);
    std::vector<std::string_view> names = Base::split(place.otherNames, ',');
    names.insert(names.end(), {place.name, place.asciiName});
    return std::ranges::any_of(names, [&](std::string_view name) {
        const std::string form = KestCore::normalizeForSearch(name);
        return !form.empty() && wanted.starts_with(form) &&
               (wanted.size() == form.size() || wanted[form.size()] == ' ' ||
                wanted[form.size()] == ',');
    });
}

Result<void> runSearch(const Session &session, const std::vector<std::string> &words)
{
    const auto found = KestCore::searchPlaces(joined(words), kMostPlaces);
    std::vector<PlaceAnswer> answers;
    for (const Place *place : found) {
        answers.push_back({.name = std::string{place->name},
                           .region = std::string{place->region},
                           .country = std::string{place->country},
                           .timezone = std::string{place->timeZone},
                           .latitude = place->latitude,
                           .longitude = place->longitude});
    }
    return session.console.answer(answers, [&] {
        std::vector<std::vector<std::string>> rows;
        for (const Place *place : found) {
            rows.push_back({titleOf(*place), std::string{place->timeZone},
                            fmt::format("{:.4f} {:.4f}", place->latitude, place->longitude)});
        }
        session.console.table(rows);
        if (found.empty()) {
            session.console.line("No city of this name is known; kest place set --latitude L "
                                 "--longitude L --timezone Z takes any place.");
        }
    });
}

struct Arguments {
    std::vector<std::string> words{};
    Settings given{}; // by options
};

Result<Settings> settingsOf(const Arguments &args)
{
    if (args.words.empty()) {
        Settings settings = args.given;
        settings["prayer.locationMode"] = "manual";
        // A place that is wrong must be refused here, not when the times are wanted.
        KEST_TRY([[maybe_unused]] const auto inputs, KestCore::prayerInputs(settings));
        return settings;
    }
    const std::string query = joined(args.words);
    const auto found = KestCore::searchPlaces(query, 4);
    if (found.empty()) {
        return std::unexpected(
            KestError::invalidData(fmt::format("No city is called \"{}\"", query)));
    }
    // A slip of the finger must not move anybody's prayers to another city.
    if (found.size() > 1 && !isNamedBy(*found.front(), query)) {
        std::vector<std::string> titles;
        std::ranges::transform(found, std::back_inserter(titles),
                               [](const Place *place) { return titleOf(*place); });
        return std::unexpected(KestError::invalidData(fmt::format(
            "\"{}\" may be {}; write the city's whole name", query, fmt::join(titles, "; "))));
    }
    return KestCore::settingsFor(*found.front());
}

Result<void> runSet(const Session &session, const Arguments &args)
{
    KEST_TRY(const Settings place, settingsOf(args));
    KEST_TRY(auto store, session.openStore());
    KEST_CHECK(store.change([&](KestCore::NativeState &state) -> Result<void> {
        for (const char *key : {"prayer.city", "prayer.country", "prayer.locationUpdated"}) {
            state.settings.erase(key); // they belong to the place before
        }
        for (const auto &[key, value] : place) {
            state.settings.insert_or_assign(key, value);
        }
        return {};
    }));
    return session.console.answer(place, [&] {
        for (const auto &[key, value] : place) {
            session.console.line(fmt::format("{} = {}", key, value));
        }
    });
}

Result<void> runNextReminder(const Session &session, const std::string &afterText)
{
    Base::Instant after = Base::wallClock();
    if (!afterText.empty()) {
        KEST_TRY(after, Base::fromIso8601(afterText));
    }
    KEST_TRY(const auto store, session.openStore());
    const auto next = KestCore::nextReminder(after, store.state().devotional.preferences,
                                             KestCore::Calendar::ofHost());
    const bool isOn = store.state().devotional.preferences.reminderEnabled;
    ReminderAnswer answer;
    if (next) {
        KEST_TRY(answer.next.value, Base::toIso8601(*next));
    }
    return session.console.answer(answer, [&] {
        if (next) {
            session.console.line(localTime(Base::milliseconds1970(*next)));
        } else {
            session.console.line(isOn ? "No reminder is due in the next eight days."
                                      : "Reminders are off.");
        }
    });
}

void addPlaceSet(CLI::App *place, Session &session, const std::shared_ptr<Arguments> &args)
{
    CLI::App *set = place->add_subcommand("set", "Chooses where prayer times are for");
    CLI::Option *city = set->add_option("CITY", args->words, "A city, such as \"Paris, US\"");
    const auto add = [&](const char *option, const char *key, const char *help) {
        return set
            ->add_option_function<std::string>(
                option, [args, key](const std::string &value) { args->given[key] = value; },
                help)
            ->excludes(city);
    };
    add("--latitude", "prayer.latitude", "Degrees, north positive");
    add("--longitude", "prayer.longitude", "Degrees, east positive");
    add("--timezone", "prayer.timezone", "Such as Africa/Cairo");
    add("--country", "prayer.country", "Two letters, for the automatic method");
    set->callback([=, &session] {
        if (args->words.empty() && args->given.size() < 3) {
            throw CLI::RequiredError("CITY, or --latitude, --longitude and --timezone");
        }
        session.command = [=, &session] { return runSet(session, *args); };
    });
}

} // namespace

void addPlaceCommands(CLI::App &program, Session &session)
{
    const auto args = std::make_shared<Arguments>();
    const auto words = std::make_shared<std::vector<std::string>>();
    CLI::App *place = program.add_subcommand("place", "Finds and chooses the place");
    place->add_option("SEARCH", *words, "A city, with a country behind it if you like");
    place->require_subcommand(0, 1);
    addPlaceSet(place, session, args);
    place->callback([=, &session] {
        if (place->get_subcommands().empty()) {
            if (words->empty()) {
                throw CLI::RequiredError("SEARCH");
            }
            session.command = [=, &session] { return runSearch(session, *words); };
        }
    });
}

void addReminderCommands(CLI::App &program, Session &session)
{
    const auto after = std::make_shared<std::string>();
    CLI::App *reminder = program.add_subcommand("reminder", "Tells of reminders");
    reminder->require_subcommand(1);
    CLI::App *next = reminder->add_subcommand("next", "When the next reminder comes");
    next->add_option("--after", *after, "After this moment, such as 2026-11-21T08:00:00Z");
    next->callback([=, &session] {
        session.command = [=, &session] { return runNextReminder(session, *after); };
    });
}

} // namespace Cli
