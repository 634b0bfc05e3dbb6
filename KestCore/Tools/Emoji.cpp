// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "KestCore/Tools/Emoji.h"

#include "Base/Fault.h"
#include "Base/Text.h"
#include "KestCore/Resources.h"
#include "KestCore/SearchForm.h"
#include "KestCore/Tools/Texts.h"

#include <fmt/format.h>

#include <algorithm>
#include <array>
#include <tuple>

namespace KestCore
{

namespace
{

constexpr std::string_view kSource = "KestCore/Emoji";
constexpr std::string_view kPresentation = "\uFE0F";

// In the order of the enumeration; the first is what `toned` has.
constexpr std::array<std::string_view, 5> kTones{"\U0001F3FB", "\U0001F3FC", "\U0001F3FD",
                                                 "\U0001F3FE", "\U0001F3FF"};

// Beyond the form that all searches share.
constexpr std::pair<std::string_view, std::string_view> kSameLetters[] = {
    {"\u0629", "\u0647"}, // endings that are written either way
    {"\u0649", "\u064A"},
    {"\u0671", "\u0627"},
    {"\u0131", "i"}, // what a capital I becomes in
                     // a Turkish session
    {"\u2013", " "},
    {"\u2014", " "},
    {"\u2018", " "},
    {"\u2019", " "},
    {"\u201C", " "},
    {"\u201D", " "},
};
constexpr std::string_view kSigns = " _:'\"!,.()-\t\r\n\v\f";

bool readLine(std::string_view line, std::vector<Emoji> &list)
{
    std::array<std::string_view, 7> fields{};
    const auto pieces = Base::split(line, '\t');
    if (pieces.size() < 5 || pieces.size() > fields.size()) {
        return false;
    }
    std::ranges::copy(pieces, fields.begin());
    const auto &[text, name, arabicName, words, arabicWords, toned, twoPeople] = fields;
    if (std::ranges::any_of(pieces, &std::string_view::empty) ||
        (!toned.empty() && !toned.contains(kTones[0]))) {
        return false;
    }
    list.push_back({.text = text,
                    .name = name,
                    .arabicName = arabicName,
                    .words = words,
                    .arabicWords = arabicWords,
                    .toned = toned,
                    .twoPeople = twoPeople});
    return true;
}

std::string bareForm(std::string_view text)
{
    std::string bare{text};
    Base::replaceAll(bare, kPresentation, "");
    for (const std::string_view tone : kTones) {
        Base::replaceAll(bare, tone, "");
    }
    return bare;
}

// How well a word fits, the best first.
enum class Fit : std::uint8_t { exact, prefix, wordStart, inside, allWords, none };

Fit fitOf(std::string_view word, std::string_view wanted)
{
    if (word.starts_with(wanted)) {
        return word.size() == wanted.size() ? Fit::exact : Fit::prefix;
    }
    if (!word.contains(wanted)) {
        return Fit::none;
    }
    for (std::size_t at = word.find(wanted); at != std::string_view::npos;
         at = word.find(wanted, at + 1)) {
        if (word[at - 1] == ' ') {
            return Fit::wordStart;
        }
    }
    return Fit::inside;
}

bool hasAllWords(std::string_view words, const std::vector<std::string_view> &wanted)
{
    return std::ranges::all_of(wanted,
                               [&](std::string_view word) { return words.contains(word); });
}

// The best of the words, and how well the name among them fits.
std::tuple<Fit, Fit> rankOf(std::string_view words, std::string_view wanted,
                            const std::vector<std::string_view> &wantedWords)
{
    if (wantedWords.size() == 1 && !words.contains(wanted)) {
        return {Fit::none, Fit::none};
    }
    Fit best = hasAllWords(words, wantedWords) ? Fit::allWords : Fit::none;
    const auto pieces = Base::split(words, '|');
    for (const std::string_view piece : pieces) {
        best = std::min(best, fitOf(piece, wanted));
    }
    return {best, fitOf(pieces.front(), wanted)};
}

struct Match {
    std::tuple<Fit, Fit> rank{};
    const Emoji *emoji{};
};

std::vector<Match> matchesOf(std::string_view form)
{
    std::vector<Match> matches;
    const auto words = Base::split(form, ' ');
    for (const Emoji &emoji : allEmoji()) {
        const auto rank =
            std::min(rankOf(emoji.words, form, words), rankOf(emoji.arabicWords, form, words));
        if (std::get<0>(rank) != Fit::none) {
            matches.push_back({.rank = rank, .emoji = &emoji});
        }
    }
    std::ranges::stable_sort(matches, {}, &Match::rank);
    return matches;
}

} // namespace

Result<std::vector<Emoji>> parseEmoji(std::string_view text)
{
    std::vector<Emoji> list;
    if (text.ends_with('\n')) {
        text.remove_suffix(1);
    }
    std::size_t number = 0;
    for (const std::string_view line : Base::split(text, '\n')) {
        ++number;
        if (!line.starts_with("# ") && line != "#" && !readLine(line, list)) {
            return std::unexpected(
                KestError::invalidData(fmt::format("bad line {}: \"{}\"", number, line)));
        }
    }
    return list;
}

const std::vector<Emoji> &allEmoji()
{
    static const std::string kText = coreBundle().read("emoji", "tsv", kSource);
    static const std::vector<Emoji> kList = [] {
        auto list = parseEmoji(kText);
        if (!list) {
            Base::fatalFault(kSource,
                             "the resource emoji.tsv is broken: " + list.error().message);
        }
        return *std::move(list);
    }();
    return kList;
}

SkinTone chosenTone(const Settings &settings)
{
    const auto found = settings.find("emoji.skinTone");
    return found == settings.end()
               ? SkinTone::none
               : Base::fromText<SkinTone>(found->second).value_or(SkinTone::none);
}

std::string withTone(const Emoji &emoji, SkinTone tone)
{
    if (tone == SkinTone::none || emoji.toned.empty()) {
        return std::string{emoji.text};
    }
    std::string text{emoji.toned};
    Base::replaceAll(text, kTones[0], kTones[static_cast<std::size_t>(tone) - 1]);
    return text;
}

const Emoji *emojiOf(std::string_view text)
{
    const std::string bare = bareForm(text);
    const bool hasTone =
        std::ranges::any_of(kTones, [&](std::string_view tone) { return text.contains(tone); });
    const auto found = std::ranges::find_if(allEmoji(), [&](const Emoji &emoji) {
        return (bareForm(emoji.text) == bare || bareForm(emoji.twoPeople) == bare) &&
               (!hasTone || !emoji.toned.empty());
    });
    return bare.empty() || found == allEmoji().end() ? nullptr : &*found;
}

std::string emojiSearchForm(std::string_view text)
{
    std::string form = normalizeForSearch(text);
    for (const auto &[from, to] : kSameLetters) {
        Base::replaceAll(form, from, to);
    }
    std::string words;
    for (const char c : form) {
        const bool isSign = kSigns.contains(c);
        if (!isSign || !(words.empty() || words.ends_with(' '))) {
            words += isSign ? ' ' : c;
        }
    }
    return std::string{trimmed(words)};
}

std::vector<const Emoji *> searchEmoji(std::string_view query, std::size_t limit)
{
    constexpr std::string_view kArticle = "\u0627\u0644"; // al-
    const std::string form = emojiSearchForm(query);
    if (form.empty()) {
        return {};
    }
    auto matches = matchesOf(form);
    if (matches.empty() && form.starts_with(kArticle) && form.size() > kArticle.size()) {
        matches = matchesOf(std::string_view{form}.substr(kArticle.size()));
    }
    std::vector<const Emoji *> found;
    for (const Match &match : matches) {
        if (found.size() < limit) {
            found.push_back(match.emoji);
        }
    }
    return found;
}

} // namespace KestCore
