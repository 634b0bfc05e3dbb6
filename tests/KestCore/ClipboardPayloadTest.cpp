// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Base/Base64.h"
#include "KestCore/Clipboard/ClipboardCipher.h"
#include "tests/Base/RandomValues.h"

#include <gmock/gmock.h>
#include <rapidcheck/gtest.h>

namespace KestCoreTests
{

using namespace KestCore;
using Base::AesKey;
using Base::Bytes;
using Payload = ClipboardPayload;
using enum ClipboardKind;

namespace
{

constexpr std::string_view kPayload = "Invalid clipboard payload";
constexpr std::string_view kText = "Invalid clipboard text";
constexpr std::string_view kImage = "Clipboard image exceeds the per-item limit";
constexpr std::string_view kFiles = "Invalid clipboard file references";

Payload textOf(std::size_t size) { return {.kind = text, .text = std::string(size, 'x')}; }
Payload imageOf(std::size_t size) { return {.kind = image, .image = Bytes(size)}; }
Payload filesOf(std::size_t count, const ClipboardFileReference &file = {"n", Bytes(1)})
{
    return {.kind = files, .files = {count, file}};
}

Payload with(Payload payload, const std::function<void(Payload &)> &change)
{
    change(payload);
    return payload;
}

void addThumbnail(Payload &payload) { payload.thumbnail = Bytes(250'001); }
void addText(Payload &payload) { payload.text = ""; }
void addImage(Payload &payload) { payload.image = Bytes{}; }
void addFile(Payload &payload) { payload.files = filesOf(1).files; }

std::string refusalOf(const Payload &payload)
{
    const auto verdict = payload.validate();
    const auto sealed = ClipboardCipher::seal(payload, AesKey::random());
    EXPECT_EQ(sealed.has_value(), verdict.has_value());
    return verdict ? "" : verdict.error().message;
}

} // namespace

TEST(ClipboardPayload, KeepsItsLimits)
{
    const std::string arabic = "\u0646"; // two bytes, one character
    std::string longName;
    for (int n = 0; n < 1'024; ++n) {
        longName += arabic;
    }
    struct Case {
        const char *name;
        Payload payload;
        std::string_view refusal;
    };
    for (const auto &[name, payload, refusal] : {
             Case{"one byte", textOf(1), ""},
             Case{"largest text", textOf(100'000), ""},
             Case{"text too large", textOf(100'001), kText},
             Case{"empty text", textOf(0), kText},
             Case{"no text", {.kind = link}, kText},
             Case{"link", {.kind = link, .text = "https://e"}, ""},
             Case{"text with an image", with(textOf(1), addImage), kText},
             Case{"text with files", with(textOf(1), addFile), kText},
             Case{"largest image", imageOf(4'000'000), ""},
             Case{"image too large", imageOf(4'000'001), kImage},
             Case{"empty image", imageOf(0), kImage},
             Case{"image with an empty text", with(imageOf(1), addText), kImage},
             Case{"image with files", with(imageOf(1), addFile), kImage},
             Case{"most files", filesOf(30), ""},
             Case{"no files", filesOf(0), kFiles},
             Case{"too many files", filesOf(31), kFiles},
             Case{"files with a text", with(filesOf(1), addText), kFiles},
             Case{"files with an image", with(filesOf(1), addImage), kFiles},
             Case{"longest name and bookmark", filesOf(1, {longName, Bytes(100'000)}), ""},
             Case{"name too long", filesOf(1, {longName + "n", Bytes(1)}), kFiles},
             Case{"empty bookmark", filesOf(2, {"n", {}}), kFiles},
             Case{"bookmark too long", filesOf(1, {"n", Bytes(100'001)}), kFiles},
             Case{"largest thumbnail",
                  with(imageOf(1), [](Payload &p) { p.thumbnail = Bytes(250'000); }), ""},
             Case{"thumbnail too large", with(imageOf(1), addThumbnail), kPayload},
             Case{"thumbnail of a text", with(textOf(0), addThumbnail), kPayload},
             Case{"version 2", with(filesOf(0), [](Payload &p) { p.version = 2; }), kPayload},
         }) {
        EXPECT_EQ(refusalOf(payload), refusal) << name;
    }
}

TEST(ClipboardCipher, SealsEachTimeAnewAndOpensToTheSame)
{
    const AesKey key = AesKey::random();
    for (const Payload &payload :
         {Payload{.kind = text, .text = std::string{"\0\"\\\n\x7F \u0646", 8}},
          Payload{.kind = link, .text = "https://example.org/?a=b&c"},
          Payload{.kind = image, .image = Bytes{0, 255, 7}, .thumbnail = Bytes{1}},
          textOf(50'000), imageOf(50'000), imageOf(4'000'000),
          filesOf(3, {"ملف", Bytes{9, 8, 7, 6}})}) {
        const auto first = ClipboardCipher::seal(payload, key);
        const auto second = ClipboardCipher::seal(payload, key);
        ASSERT_TRUE(first && second);
        EXPECT_NE(*first, *second);
        EXPECT_EQ(ClipboardCipher::open(*first, key), payload);
        EXPECT_EQ(ClipboardCipher::open(*second, key), payload);
        EXPECT_FALSE(first->contains('\n'));
    }
}

RC_GTEST_PROP(ClipboardCipher, OpensEveryTextThatItSealed, ())
{
    const Payload payload{.kind = text, .text = *BaseTests::anyText() + "."};
    const AesKey key = AesKey::random();
    const auto document = json::encode(payload);
    RC_ASSERT(document->size() <= payload.largestDocument());
    const auto opened = ClipboardCipher::open(*ClipboardCipher::seal(payload, key), key);
    RC_ASSERT(opened.has_value() && *opened == payload);
}

TEST(ClipboardCipher, OpensNothingElse)
{
    const AesKey key = AesKey::random();
    const std::string sealed = *ClipboardCipher::seal(textOf(10), key);
    const auto refusal = [&](const std::string &body) {
        const auto opened = ClipboardCipher::open(body, key);
        return opened ? "" : opened.error().message;
    };
    const std::string notBase64 = "Invalid encrypted entry";
    EXPECT_EQ(refusal(sealed + "\n"), notBase64);
    EXPECT_EQ(refusal(sealed.substr(0, 64) + "\n" + sealed.substr(64)), notBase64);
    EXPECT_EQ(refusal("!" + sealed.substr(1)), notBase64);
    EXPECT_THAT(refusal(""), testing::Not(testing::AnyOf("", notBase64)));
    for (std::size_t at = 0; at < sealed.size(); ++at) {
        std::string damaged = sealed;
        damaged[at] = damaged[at] == 'A' ? 'B' : 'A';
        EXPECT_NE(refusal(damaged), "") << at;
    }
    // Sealed under the right key by somebody who keeps no rules.
    for (const auto &[plain, message] : {
             std::pair{R"({"version":2,"kind":"text","text":"x","files":[]})", kPayload},
             std::pair{R"({"version":1,"kind":"text","text":"","files":[]})", kText},
             std::pair{R"({"version":1,"kind":"text","text":"x"})",
                       std::string_view{"files: missing"}},
         }) {
        EXPECT_EQ(refusal(*ClipboardCipher::sealLine(plain, key)), message);
    }
}

TEST(ClipboardCipher, GivesOneFingerprintForEachContent)
{
    const AesKey key = AesKey::random();
    const auto print = [&](const Payload &p) { return ClipboardCipher::fingerprint(p, key); };
    EXPECT_EQ(print(imageOf(5)), print(with(imageOf(5), addThumbnail)));
    const std::set<std::string> prints{
        print(textOf(1)),
        print(textOf(2)),
        print({.kind = link, .text = "x"}),
        print({.kind = image, .image = Bytes{'x'}}),
        print({.kind = files, .files = {{"ab", {'c'}}, {"d", {'e'}}}}),
        print({.kind = files, .files = {{"a", {'b', 'c'}}, {"d", {'e'}}}}),
        print({.kind = files, .files = {{"ab", {'c'}}}}),
        ClipboardCipher::fingerprint(textOf(1), AesKey::random()),
    };
    EXPECT_EQ(prints.size(), 8U);
}

} // namespace KestCoreTests
