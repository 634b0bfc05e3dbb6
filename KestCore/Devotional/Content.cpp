// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "KestCore/Devotional/Content.h"

#include "Base/Fault.h"
#include "Base/JsonReader.h"
#include "Base/JsonWriter.h"
#include "Base/Text.h"
#include "KestCore/Resources.h"

#include <algorithm>
#include <unordered_set>

template Base::Result<KestCore::Content>
Base::json::decode<KestCore::Content>(const Base::json::PaddedText &);
template Base::Result<std::string> Base::json::encode(const KestCore::Content &);
template Base::Result<std::string> Base::json::encode(const KestCore::Phrase &);
template Base::Result<std::string> Base::json::encode(const std::vector<KestCore::Phrase> &);

namespace KestCore
{

namespace
{

using IdSet = std::unordered_set<std::string_view>;

IdSet idsOf(std::span<const Phrase> phrases)
{
    IdSet ids;
    for (const Phrase &phrase : phrases) {
        ids.insert(phrase.id);
    }
    return ids;
}

std::string_view orEmpty(const std::optional<std::string> &text)
{
    return text ? std::string_view{*text} : std::string_view{};
}

std::string searchableText(const Phrase &phrase)
{
    std::string text = phrase.id;
    for (const std::string_view field :
         {std::string_view{phrase.arabic}, std::string_view{phrase.transliteration},
          orEmpty(phrase.translation), orEmpty(phrase.meaning),
          std::string_view{phrase.source}}) {
        text += '\n';
        text += field;
    }
    std::string form = looseSearchForm(text);
    std::erase(form, ' ');
    return form;
}

} // namespace

const Content &contentCatalogue()
{
    static const auto kContent = decodeResource<Content>("content", "KestCore/Models");
    return kContent;
}

bool isPhraseId(std::string_view id)
{
    static const IdSet kIds = idsOf(contentCatalogue().dhikr);
    return kIds.contains(id);
}

bool isNameId(std::string_view id)
{
    static const IdSet kIds = idsOf(contentCatalogue().names);
    return kIds.contains(id);
}

const Phrase &phraseById(std::string_view id, std::span<const Phrase> phrases,
                         const Phrase &fallback)
{
    const auto found = std::ranges::find(phrases, id, &Phrase::id);
    return found == phrases.end() ? fallback : *found;
}

std::vector<const Phrase *> searchPhrases(std::span<const Phrase> phrases,
                                          std::string_view query)
{
    const std::string wanted = looseSearchForm(query);
    const auto words = Base::split(wanted, ' ');
    std::vector<const Phrase *> found;
    for (const Phrase &phrase : phrases) {
        const std::string text = searchableText(phrase);
        if (std::ranges::all_of(words, [&](auto word) { return text.contains(word); })) {
            found.push_back(&phrase);
        }
    }
    return found;
}

} // namespace KestCore
