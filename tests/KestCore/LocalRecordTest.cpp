// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "KestCore/Models/LocalRecord.h"

#include "tests/Base/RandomValues.h"
#include "tests/KestCore/JsonKeys.h"

#include <gmock/gmock.h>
#include <rapidcheck/gtest.h>

namespace KestCoreTests
{

using namespace KestCore;

namespace
{

// The message, or nothing for a record that is accepted.
std::string refusalOf(std::string_view kind, std::string_view body)
{
    const auto verdict = validate(LocalRecord{
        .id = "1", .kind = std::string{kind}, .title = "t", .body = std::string{body}});
    if (verdict) {
        return "";
    }
    EXPECT_EQ(verdict.error().kind, KestError::Kind::invalidData);
    return verdict.error().message;
}

std::string quoted(std::string_view key, std::size_t length, std::string_view rest = "")
{
    return "{\"" + std::string{key} + "\":\"" + std::string(length, 'x') + "\"" +
           std::string{rest} + "}";
}

const std::string kTimer =
    R"({"mode":"countdown","duration":60,"deadline":7.5,"elapsed":0,"started":1,)"
    R"("running":true,"notified":false})";
const std::string kUsage = R"({"application":"a","day":"DAY","seconds":1})";

std::string usageOn(std::string_view day)
{
    std::string body = kUsage;
    return body.replace(body.find("DAY"), 3, day);
}

constexpr std::string_view kUtility = "Invalid utility record";

struct Refusal {
    std::string_view message;
    std::string_view kind;
    std::vector<std::string> bodies;
};

void expectRefused(std::initializer_list<Refusal> refusals)
{
    for (const auto &[message, kind, bodies] : refusals) {
        for (const std::string &body : bodies) {
            EXPECT_EQ(refusalOf(kind, body), message) << kind << " " << body.substr(0, 80);
        }
    }
}

} // namespace

TEST(LocalRecord, AcceptsEveryKindWithItsPayload)
{
    struct Case {
        std::string_view kind;
        std::string body;
    };
    for (const auto &[kind, body] : {
             Case{"link", R"({"url":"https://example.org/a?b","note":"n","more":[]})"},
             Case{"link", R"({"url":"http://e"})"},
             Case{"note", R"({"text":""})"},
             Case{"note", quoted("text", 1'000'000)},
             Case{"scratchpad", quoted("text", 1'000'000)},
             Case{"timer", kTimer},
             Case{"timer",
                  R"({"mode":"?","duration":-1,"elapsed":-5,"running":true,"notified":true})"},
             Case{"emoji", "{\"emoji\":\"\U0001F468\u200D\U0001F466\",\"uses\":1}"},
             Case{"emoji", quoted("emoji", 32, R"(,"uses":9)")},
             Case{"shortcut", R"({"opens":"app","target":"org.example.desktop"})"},
             Case{"shortcut", R"({"opens":"link","target":"https://e"})"},
             Case{"shortcut", R"({"opens":"file","target":"/a b"})"},
             Case{"shortcut", R"({"opens":"tool","target":"prayer"})"},
             Case{"message", quoted("text", 200, R"(,"animation":"wave")")},
             Case{"prayer", R"({"prayer":"asr","bufferMinutes":0,"deadline":812345678.5})"},
             Case{"completion", R"({"tool":"dhikr","item":"","amount":0,"completedAt":-1})"},
             Case{"usage", R"({"application":"a","day":"2024-02-29","seconds":90000})"},
             Case{"shelf", R"({"path":"/","bookmark":"AA=="})"},
             Case{"shelf", R"({"text":"","path":null})"},
             Case{"file", R"({"path":"/a","pinned":true})"},
             Case{"clipboard", "sealed"},
             Case{"-", "anything"},
             Case{"something-else", ""},
         }) {
        EXPECT_EQ(refusalOf(kind, body), "") << kind << " " << body.substr(0, 80);
    }
}

TEST(LocalRecord, RefusesABrokenLinkOrTimer)
{
    expectRefused({
        {"Invalid saved link",
         "link",
         {"", "{}", "x", R"({"url":1})", R"({"url":""})", R"({"url":"https://"})",
          R"({"url":"ftp://e"})", R"({"url":"HTTPS:/e"})", R"({"url":"https://a b"})",
          R"({"url":"https://a\n"})", R"({"url":"javascript:https://e"})",
          R"({"url":"https://)" + std::string(8185, 'x') + R"("})",
          R"({"url":"https://e","note":2})", R"({"url":"https://e"} x)"}},
        {"Invalid timer",
         "timer",
         {"", "{}", "[]", without(kTimer, keysOf(kTimer)[0]),
          without(kTimer, keysOf(kTimer)[5]),
          R"({"mode":1,"duration":0,"elapsed":0,"running":true,"notified":true})"}},
    });
}

TEST(LocalRecord, RefusesABrokenUtilityPayload)
{
    expectRefused({
        {kUtility, "note", {"", "text", "{}", quoted("text", 1'000'001)}},
        {kUtility, "scratchpad", {"", quoted("text", 1'000'001)}},
        {kUtility,
         "emoji",
         {R"({"emoji":"","uses":1})", R"({"emoji":"x","uses":0})", R"({"emoji":"x"})",
          quoted("emoji", 33, R"(,"uses":1)")}},
        {kUtility,
         "shortcut",
         {R"({"opens":"app","target":""})", R"({"opens":"link","target":"/a"})",
          R"({"opens":"file","target":"a"})", R"({"opens":"file","target":"/a\u0000b"})",
          R"({"opens":"tool","target":"nothing"})", R"({"opens":"door","target":"/a"})"}},
        {kUtility,
         "message",
         {R"({"text":"","animation":"wave"})", quoted("text", 201, R"(,"animation":"wave")"),
          R"({"text":"x","animation":"Wave"})", R"({"text":"x"})"}},
        {kUtility,
         "prayer",
         {R"({"prayer":"","bufferMinutes":5,"deadline":1})",
          R"({"prayer":"asr","bufferMinutes":-1,"deadline":1})",
          R"({"prayer":"asr","bufferMinutes":5})"}},
    });
}

TEST(LocalRecord, RefusesABrokenPathOrDay)
{
    expectRefused({
        {kUtility,
         "completion",
         {R"({"tool":"nothing","item":"","amount":1,"completedAt":1})",
          R"({"tool":"dhikr","item":"","amount":-1,"completedAt":1})",
          R"({"tool":"dhikr","item":"","amount":1.5,"completedAt":1})"}},
        {kUtility,
         "usage",
         {R"({"application":"","day":"2024-02-29","seconds":1})",
          R"({"application":"a","day":"2024-02-29","seconds":-0.5})",
          R"({"application":"a","day":"2024-02-29","seconds":90000.5})", usageOn("2025-02-29"),
          usageOn("2025-13-01"), usageOn("2025-1-01"), usageOn("2025-01-1"),
          usageOn("202-011-1"), usageOn("2025/01/01"), usageOn("2025-01-0x"), usageOn("")}},
        {kUtility,
         "shelf",
         {"{}", R"({"path":"/a","text":"b"})", R"({"path":"a"})", quoted("text", 1'000'001),
          R"({"path":"/a","bookmark":"?"})"}},
        {kUtility,
         "file",
         {R"({"path":"","pinned":true})", R"({"path":"a","pinned":true})", R"({"path":"/a"})",
          R"({"path":"/)" + std::string(8192, 'x') + R"(","pinned":true})"}},

    });
}

TEST(LocalRecord, HasAKindOfLowerCaseLettersAndHyphens)
{
    for (const std::string_view bad :
         {"", "Note", "note1", "no te", "my_note", "note\n", "n\u00F6te", "\u0646"}) {
        EXPECT_EQ(refusalOf(bad, R"({"text":""})"), kUtility) << bad;
    }
    EXPECT_EQ(refusalOf(std::string_view{"not\0e", 5}, ""), kUtility);
}

TEST(LocalRecord, NeedsEveryKey)
{
    const LocalRecord record{
        .id = "1", .kind = "note", .title = "t", .body = "{}", .updated = 5};
    const auto text = json::encode(record).value();
    EXPECT_EQ(text,
              R"({"id":"1","kind":"note","title":"t","body":"{}","updated":5,"extra":{}})");
    for (const KeyPlace &place : keysOf(text)) {
        EXPECT_EQ(decodeLocalRecord(json::PaddedText{without(text, place)}).error(),
                  KestError::invalidData(std::string{kUtility}));
    }
}

RC_GTEST_PROP(LocalRecord, RoundTrips, ())
{
    using BaseTests::anyText;
    const LocalRecord record{
        .id = *anyText(),
        .kind = *anyText(),
        .title = *anyText(),
        .body = *anyText(),
        .updated = *BaseTests::anyFinite(),
        .extra = *rc::gen::container<std::map<std::string, std::string>>(anyText(), anyText())};
    const auto text = json::encode(record).value();
    RC_ASSERT(decodeLocalRecord(json::PaddedText{text}).value() == record);
}

} // namespace KestCoreTests
