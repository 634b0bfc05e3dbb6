// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "KestCore/Devotional/Content.h"

#include <gmock/gmock.h>

namespace KestCoreTests
{

using namespace KestCore;

namespace
{

std::vector<std::string> found(std::string_view query)
{
    std::vector<std::string> ids;
    for (const auto *list : {&contentCatalogue().dhikr, &contentCatalogue().names}) {
        for (const Phrase *phrase : searchPhrases(*list, query)) {
            ids.push_back(phrase->id);
        }
    }
    return ids;
}

} // namespace

TEST(Content, DecodesPhrasesWithAndWithoutTheirOptionalFields)
{
    const std::string_view text =
        R"({"version":"1","dhikr":[{"id":"a","arabic":"b","transliteration":"c","source":"d"},)"
        R"({"id":"a","arabic":"b","transliteration":"c","translation":"t","meaning":"m",)"
        R"("source":"d","sourceUrl":"u"}],"names":[]})";
    const auto content = json::decode<Content>(text).value();
    EXPECT_EQ(content.dhikr[0].translation, std::nullopt);
    EXPECT_EQ(json::encode(content), text);
    EXPECT_FALSE(json::decode<Content>(R"({"version":"1","dhikr":[]})"));
    EXPECT_FALSE(json::decode<Content>(
        R"({"version":"1","names":[],"dhikr":[{"id":"a","arabic":"b","source":"d"}]})"));
}

TEST(Content, FindsTheFirstPhraseOfAnIdElseTheFallback)
{
    const std::vector<Phrase> phrases{
        {.id = "a", .arabic = "1"}, {.id = "b", .arabic = "2"}, {.id = "b", .arabic = "3"}};
    const Phrase fallback{.id = "z"};
    EXPECT_EQ(&phraseById("b", phrases, fallback), &phrases[1]);
    for (const std::string_view unknown : {"B", "", "b ", "c"}) {
        EXPECT_EQ(&phraseById(unknown, phrases, fallback), &fallback) << unknown;
    }
    EXPECT_TRUE(isPhraseId("subhanallah") && !isPhraseId("ar-rahman") && !isPhraseId(""));
    EXPECT_TRUE(isNameId("ar-rahman") && !isNameId("subhanallah") && !isNameId("Ar-Rahman"));
}

TEST(Content, NormalizesForSearching)
{
    struct Case {
        std::string_view text;
        std::string_view form;
    };
    for (const auto &[text, form] : {
             Case{"Sub\u1E25\u0101na LL\u0100H", "subhana llah"},
             Case{"\u0623\u064E\u0639\u064F\u0648\u0630\u064F", "\u0627\u0639\u0648\u0630"},
             Case{"\u0625\u0650\u0644\u064E\u0670\u0647", "\u0627\u0644\u0647"},
             Case{"\u0622\u0645\u064A\u0646", "\u0627\u0645\u064A\u0646"},
             Case{"\u0631\u0640\u0640\u062D\u0645\u0640", "\u0631\u062D\u0645"},
             Case{"\u064B\u0652\u0653\u0654\u0655\u065F\u0670", ""},
             Case{"\u063F\u0641\u0660\u0671", "\u063F\u0641\u0660\u0671"},
             Case{"al-Qur\u02BE\u0101n", "al-qur\u02BEan"},
         }) {
        EXPECT_EQ(normalizeForSearch(text), form) << text;
    }
}

TEST(Content, FindsWhatPeopleType)
{
    const auto &catalogue = contentCatalogue();
    for (const std::string_view query : {"", " ", "  "}) {
        EXPECT_EQ(found(query).size(), catalogue.dhikr.size() + catalogue.names.size());
    }
    struct Case {
        std::string_view query;
        std::string_view id;
    };
    for (const auto &[query, id] : {
             Case{"allahu akbar", "allahu-akbar"},
             Case{"AKBAR allahu", "allahu-akbar"},
             Case{"greater  than", "allahu-akbar"},
             Case{"mumin", "al-mumin"},
             Case{"al-Mu\u02BEmin", "al-mumin"},
             Case{"al mu'min", "al-mumin"},
             Case{"almumin", "al-mumin"},
             Case{"aliyy", "al-aliyy"},
             Case{"\u02BFaliyy", "al-aliyy"},
             Case{"\u0627\u0644\u0631\u062D\u0645\u0646", "ar-rahman"},
             Case{"\u0671\u0644\u0631\u0651\u064E\u062D\u0645\u0646", "ar-rahman"},
             Case{"\u0627\u0644\u0644\u0647 \u0627\u0643\u0628\u0631", "allahu-akbar"},
             Case{"muslim 223", "alhamdulillah"},
             Case{"allahumma salli ala", "salat-ibrahimiyya"},
             Case{"allahummasalli", "salat-ibrahimiyya"},
         }) {
        EXPECT_THAT(found(query), testing::Contains(id)) << query;
    }
    EXPECT_TRUE(found("allahu xyzzy").empty());
    EXPECT_EQ(found("ar-rahman"), std::vector<std::string>{"ar-rahman"});
}

} // namespace KestCoreTests
