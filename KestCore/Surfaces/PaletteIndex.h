// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

// Finds among everything that the command palette offers, as the user types.
namespace KestCore
{

// How well something fits what is typed, the best first: one of its names is that, begins with
// it, has a word that does, or has it at all; its names and keywords begin all the words that
// were typed; only a keyword begins so; or the letters of its title come in this order.
enum class PaletteFit : std::uint8_t {
    exact,
    prefix,
    wordStart,
    inside,
    allWords,
    keyword,
    fuzzy
};

// What a thing is found by. Case, diacritics, harakat and signs don't matter in any of it.
struct PaletteText {
    std::string_view title{};             // as it is shown
    std::span<const std::string> names{}; // others that are as good
    std::string_view keywords{};          // each word of them, from its beginning
};

struct PaletteMatch {
    std::uint32_t item{}; // in the order in which they were added
    PaletteFit fit{};

    bool operator==(const PaletteMatch &) const = default;
};

// The form in which titles and queries are compared.
std::string paletteForm(std::string_view text);

// Keeps the texts in their compared form, one behind the other, and which letters each has: a
// query looks closer only at those that have all of its letters.
class PaletteIndex
{
public:
    static constexpr std::uint32_t kMostItems = 1U << 28U;

    std::uint32_t size() const { return static_cast<std::uint32_t>(m_items.size()); }
    std::size_t bytes() const { return m_text.size(); }
    std::string_view text() const { return m_text; }

    // The number of the new item.
    std::uint32_t add(const PaletteText &text);
    // Forgets this item and all that were added after it.
    void truncate(std::uint32_t first);
    // What was chosen more often comes first among those that fit as well.
    void setWeight(std::uint32_t item, double weight);

    // The best first; those that fit equally well as their weights are, then the shorter
    // name, then as they were added. Nothing for a query without letters.
    std::vector<PaletteMatch> search(std::string_view text) const;

private:
    struct Item {
        std::uint32_t begin{};
        std::uint32_t namesEnd{};
        std::uint32_t end{};
        std::uint16_t weight{};
    };
    struct Query;

    std::uint64_t rankOf(const Query &query, std::uint32_t number) const;

    std::string m_text; // of each item its names, a line each, then its keywords
    std::vector<Item> m_items;
    std::vector<std::uint64_t> m_letters; // which ones an item has, as a quick refusal
};

// Bytes of a title that answer to a query.
struct PaletteSpan {
    std::size_t begin{};
    std::size_t size{};

    bool operator==(const PaletteSpan &) const = default;
};

// In their order. A match inside of an Arabic word is the whole word, as its letters are
// joined.
std::vector<PaletteSpan> matchedSpans(std::string_view title, std::string_view query);

} // namespace KestCore
