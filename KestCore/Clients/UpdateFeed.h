// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Base/Instant.h"
#include "KestCore/Clients/SemanticVersion.h"
#include "KestCore/Vocabulary.h"

#include <cstdint>
#include <string>
#include <string_view>

// What tells of a new version: a line with a signature, in Base64, and behind it the JSON
// document that the signature (Ed25519) is of, to the byte.
namespace KestCore
{

enum class UpdateChannel : std::uint8_t {
    stable,
    candidate,   // what is to become the next stable version
    development, // never asks
};
constexpr auto enumTexts(Of<UpdateChannel>)
{
    using enum UpdateChannel;
    return Base::EnumTexts<UpdateChannel, 3>{
        {{stable, "stable"}, {candidate, "candidate"}, {development, "development"}}};
}

UpdateChannel channelOf(std::string_view bundleIdentifier);

// A version that is to be had. It is never fetched, nor installed, by itself.
struct UpdateOffer {
    std::string version{};
    UpdateChannel channel{};
    std::string notes{};
    std::string address{}; // https
    std::int64_t size{};   // bytes
    std::string sha256{};  // 64 digits
    std::string published{};

    bool operator==(const UpdateOffer &) const = default;
};
consteval auto jsonFields(Of<UpdateOffer>)
{
    using R = UpdateOffer;
    return std::tuple{
        json::Field{"version", &R::version},    json::Field{"channel", &R::channel},
        json::Field{"notes", &R::notes},        json::Field{"address", &R::address},
        json::Field{"size", &R::size},          json::Field{"sha256", &R::sha256},
        json::Field{"published", &R::published}};
}
static_assert(json::coversAllMembers<UpdateOffer>());

struct VerifiedFeed {
    UpdateOffer offer{};
    SemanticVersion version{};
    Base::Instant published{};
};

inline constexpr std::size_t kLargestFeed = 8000;

// Nothing of the document is looked at before its signature holds. `publicKey` is Base64 of 32
// bytes. Fails with invalidData.
[[nodiscard]] Result<VerifiedFeed> readUpdateFeed(std::string_view feed,
                                                  std::string_view publicKey);

} // namespace KestCore
