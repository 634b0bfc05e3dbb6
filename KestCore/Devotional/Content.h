// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "KestCore/SearchForm.h"
#include "KestCore/Vocabulary.h"

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace KestCore
{

// One phrase of remembrance, or one of the Names.
struct Phrase {
    std::string id{}; // never changes: saved states and finished sessions refer to it
    std::string arabic{};
    std::string transliteration{};
    std::optional<std::string> translation{};
    std::optional<std::string> meaning{};
    std::string source{}; // the reference that the text is taken from
    std::optional<std::string> sourceUrl{};

    bool operator==(const Phrase &) const = default;
};

consteval auto jsonFields(Of<Phrase>)
{
    using R = Phrase;
    return std::tuple{
        json::Field{"id", &R::id},
        json::Field{"arabic", &R::arabic},
        json::Field{"transliteration", &R::transliteration},
        json::Field{"translation", &R::translation},
        json::Field{"meaning", &R::meaning},
        json::Field{"source", &R::source},
        json::Field{"sourceUrl", &R::sourceUrl},
    };
}
static_assert(json::coversAllMembers<Phrase>());

struct Content {
    std::string version{};
    std::vector<Phrase> dhikr{};
    std::vector<Phrase> names{};

    bool operator==(const Content &) const = default;
};

consteval auto jsonFields(Of<Content>)
{
    using R = Content;
    return std::tuple{
        json::Field{"version", &R::version},
        json::Field{"dhikr", &R::dhikr},
        json::Field{"names", &R::names},
    };
}
static_assert(json::coversAllMembers<Content>());

// The catalogue that ships with the program, read on first use and kept. A missing or broken
// one is a fault of the build and ends the process.
const Content &contentCatalogue();

// Whether the catalogue's dhikr, or its Names, have this id.
bool isPhraseId(std::string_view id);
bool isNameId(std::string_view id);

// The first phrase with this id, else the fallback: a saved choice of a phrase that is no
// longer in the catalogue keeps working.
const Phrase &phraseById(std::string_view id, std::span<const Phrase> phrases,
                         const Phrase &fallback);

// The phrases in which every word of the query occurs, in catalogue order. Spaces, hyphens
// and the signs for hamza and ayn may be left out, as people type "allahu akbar" and "mumin".
std::vector<const Phrase *> searchPhrases(std::span<const Phrase> phrases,
                                          std::string_view query);

} // namespace KestCore
