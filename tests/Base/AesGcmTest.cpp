// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Base/AesGcm.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <set>

namespace BaseTests
{

using namespace Base;

namespace
{

using Bytes = std::vector<std::uint8_t>;

Bytes sealed(const AesKey &key, std::string text)
{
    const auto nonce = encryptAesGcm(key, text);
    Bytes box{nonce->begin(), nonce->end()};
    box.insert(box.end(), text.begin(), text.end());
    return box;
}

Bytes fromHex(std::string_view hex)
{
    Bytes bytes;
    for (std::size_t at = 0; at < hex.size(); at += 2) {
        bytes.push_back(
            static_cast<std::uint8_t>(std::stoi(std::string{hex.substr(at, 2)}, nullptr, 16)));
    }
    return bytes;
}

} // namespace

TEST(AesGcm, OpensThePublishedExamples)
{
    const AesKey zeros = *AesKey::fromBytes(Bytes(32));
    struct Case {
        std::string_view ciphertextAndTag;
        std::string plain;
    };
    for (const auto &[rest, plain] :
         {Case{"530f8afbc74536b9a963b4f1c4cb738b", ""},
          Case{"cea7403d4d606b6e074ec5d3baf39d18d0d1c8a799996bf0265b98b5d48ab919",
               std::string(16, '\0')}}) {
        EXPECT_EQ(openAesGcm(zeros, fromHex(std::string(24, '0') + std::string{rest})), plain);
    }
}

TEST(AesGcm, OpensNothingOfWhichABitIsChangedOrAByteIsMissing)
{
    const AesKey key = AesKey::random();
    const Bytes box = sealed(key, "a text");
    ASSERT_EQ(openAesGcm(key, box), "a text");
    for (std::size_t bit = 0; bit < box.size() * 8; ++bit) {
        Bytes damaged = box;
        damaged[bit / 8] ^= static_cast<std::uint8_t>(1U << (bit % 8));
        EXPECT_FALSE(openAesGcm(key, damaged)) << bit;
    }
    for (std::size_t size = 0; size < box.size(); ++size) {
        EXPECT_FALSE(openAesGcm(key, std::span{box}.first(size))) << size;
    }
    EXPECT_FALSE(openAesGcm(AesKey::random(), box));
}

TEST(AesGcm, UsesAMillionNoncesForAMillionTexts)
{
    const AesKey key = AesKey::random();
    std::vector<std::array<std::uint8_t, kNonceSize>> nonces;
    for (int n = 0; n < 1'000'000; ++n) {
        std::string text;
        nonces.push_back(*encryptAesGcm(key, text));
    }
    std::ranges::sort(nonces);
    EXPECT_EQ(std::ranges::adjacent_find(nonces), nonces.end());
}

TEST(AesGcm, TakesKeysOfOneSizeOnly)
{
    EXPECT_FALSE(AesKey::fromBytes(Bytes(31)));
    EXPECT_FALSE(AesKey::fromBytes(Bytes(33)));
    const Bytes bytes = fromHex(std::string(64, 'a'));
    EXPECT_TRUE(std::ranges::equal(AesKey::fromBytes(bytes)->bytes(), bytes));
}

TEST(AesGcm, WipesAKeyThatWasMovedAway)
{
    AesKey key = AesKey::random();
    const AesKey moved = std::move(key);
    // NOLINTNEXTLINE(bugprone-use-after-move): what is left of it is the question
    EXPECT_TRUE(std::ranges::all_of(key.bytes(), [](std::uint8_t b) { return b == 0; }));
    EXPECT_FALSE(std::ranges::all_of(moved.bytes(), [](std::uint8_t b) { return b == 0; }));
}

TEST(KeyedDigest, DependsOnKeyPurposeAndText)
{
    const AesKey key = AesKey::random();
    const std::string_view whole[] = {"ab"};
    const std::string_view pieces[] = {"a", "b"};
    const std::string_view other[] = {"ac"};
    const auto digest = keyedDigest(key, "p", whole);
    EXPECT_EQ(keyedDigest(key, "p", pieces), digest);
    const std::set different{digest, keyedDigest(key, "p", other), keyedDigest(key, "q", whole),
                             keyedDigest(AesKey::random(), "p", whole)};
    EXPECT_EQ(different.size(), 4U);
}

} // namespace BaseTests
