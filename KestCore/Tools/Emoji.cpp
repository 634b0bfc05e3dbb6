// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "KestCore/Tools/Emoji.h"

#include "Base/Fault.h"
#include "Base/Text.h"
#include "KestCore/Resources.h"
#include "KestCore/SearchForm.h"

#include <fmt/format.h>

#include <algorithm>
#include <array>
#include <tuple>
#include <unordered_map>

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
// The bar stands between the words of the list.
constexpr std::string_view kSigns = " _:'\"!,.()|-\t\r\n\v\f";

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

std::string without(std::string_view text, std::string_view signs)
{
    std::string left{text};
    Base::replaceAll(left, signs, "");
    return left;
}

std::string bareForm(std::string_view text)
{
    std::string bare = without(text, kPresentation);
    for (const std::string_view tone : kTones) {
        bare = without(bare, tone);
    }
    return bare;
}

// In the order in which they stand.
std::vector<std::string_view> tonesIn(std::string_view text)
{
    std::vector<std::string_view> tones;
    for (std::size_t at = 0; at < text.size(); ++at) {
        for (const std::string_view tone : kTones) {
            if (text.substr(at).starts_with(tone)) {
                tones.push_back(tone);
            }
        }
    }
    return tones;
}

// Gives each place for a tone its own; nothing where there are not as many places as tones.
std::string withTones(std::string_view places, const std::vector<std::string_view> &tones)
{
    std::string text;
    for (const std::string_view tone : tones) {
        const std::size_t at = places.find(kTones[0]);
        if (at == std::string_view::npos) {
            return "";
        }
        text.append(places.substr(0, at)).append(tone);
        places.remove_prefix(at + kTones[0].size());
    }
    return places.contains(kTones[0]) ? "" : text.append(places);
}

// Two people join others in a sequence, the first of them at its front, the second at its end.
std::string placesForTwo(const Emoji &emoji)
{
    constexpr std::string_view kJoiner = "\u200D";
    std::string places{emoji.twoPeople};
    const std::size_t joint = places.find(kJoiner);
    return joint == std::string::npos ? "" : places.insert(joint, kTones[0]).append(kTones[0]);
}

// By their forms without tones and presentation.
const std::unordered_map<std::string, const Emoji *> &emojiByBareForm()
{
    static const std::unordered_map<std::string, const Emoji *> kMap = [] {
        std::unordered_map<std::string, const Emoji *> map;
        for (const Emoji &emoji : allEmoji()) {
            map.emplace(bareForm(emoji.text), &emoji);
        }
        for (const Emoji &emoji : allEmoji()) {
            if (!emoji.twoPeople.empty()) {
                map.emplace(bareForm(emoji.twoPeople), &emoji);
            }
        }
        return map;
    }();
    return kMap;
}

// The best of the words, and how well the name among them fits.
std::tuple<SearchFit, SearchFit> rankOf(std::string_view words, std::string_view wanted,
                                        const std::vector<std::string_view> &wantedWords)
{
    if (wantedWords.size() == 1 && !words.contains(wanted)) {
        return {SearchFit::none, SearchFit::none};
    }
    SearchFit best = hasAllWords(words, wantedWords) ? SearchFit::allWords : SearchFit::none;
    const auto pieces = Base::split(words, '|');
    for (const std::string_view piece : pieces) {
        best = std::min(best, fitOfWhole(piece, wanted));
    }
    return {best, fitOfWhole(pieces.front(), wanted)};
}

struct Match {
    std::tuple<SearchFit, SearchFit> rank{};
    const Emoji *emoji{};
};

std::vector<Match> matchesOf(std::string_view form)
{
    std::vector<Match> matches;
    const auto words = Base::split(form, ' ');
    for (const Emoji &emoji : allEmoji()) {
        const auto rank =
            std::min(rankOf(emoji.words, form, words), rankOf(emoji.arabicWords, form, words));
        if (std::get<0>(rank) != SearchFit::none) {
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

std::span<const Emoji> emojiOfGroup(EmojiGroup group)
{
    // The first of each group but the first one.
    static const std::vector<std::size_t> kEnds = [] {
        std::vector<std::size_t> ends;
        for (const std::string_view first :
             {"\U0001F435", "\U0001F347", "\U0001F30D", "\U0001F383", "\U0001F453"}) {
            const auto found = std::ranges::find(allEmoji(), first, &Emoji::text);
            ends.push_back(static_cast<std::size_t>(found - allEmoji().begin()));
        }
        ends.push_back(allEmoji().size());
        return ends;
    }();
    const auto at = static_cast<std::size_t>(group);
    const std::size_t begin = at == 0 ? 0 : kEnds[at - 1];
    return std::span{allEmoji()}.subspan(begin, kEnds[at] - begin);
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

std::optional<KnownEmoji> emojiOf(std::string_view text)
{
    const auto found = emojiByBareForm().find(bareForm(text));
    if (found == emojiByBareForm().end()) {
        return std::nullopt;
    }
    const Emoji &emoji = *found->second;
    const std::string plain = without(text, kPresentation);
    const auto tones = tonesIn(text);
    if (tones.empty()) {
        return KnownEmoji{.emoji = &emoji, .text = std::string{emoji.text}};
    }
    const bool isOneTone = std::ranges::count(tones, tones.front()) == std::ssize(tones);
    for (const std::string &places : {std::string{emoji.toned}, placesForTwo(emoji)}) {
        std::string full = withTones(places, tones);
        if (without(full, kPresentation) == plain) {
            if (isOneTone) { // for which two people have a sign of their own
                full = emoji.toned;
                Base::replaceAll(full, kTones[0], tones.front());
            }
            return KnownEmoji{.emoji = &emoji, .text = std::move(full)};
        }
    }
    return std::nullopt;
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
    return std::string{Base::trimmed(words)};
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
