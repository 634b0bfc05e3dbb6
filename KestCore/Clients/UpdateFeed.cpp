// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "KestCore/Clients/UpdateFeed.h"

#include "Base/Base64.h"
#include "Base/JsonReader.h"
#include "Base/JsonWriter.h"
#include "Base/Text.h"
#include "KestCore/Clients/ServiceAddress.h"

#include <openssl/evp.h>

#include <algorithm>
#include <memory>

template Base::Result<std::string> Base::json::encode(const KestCore::UpdateOffer &);

namespace KestCore
{

namespace
{

constexpr std::size_t kKeySize = 32;
constexpr std::size_t kSignatureSize = 64;
constexpr std::size_t kLongestNotes = 4000;
constexpr std::size_t kHashDigits = 64;
constexpr std::int64_t kLargestDownload = 4'000'000'000;

std::unexpected<KestError> refuse(const char *why)
{
    return std::unexpected(KestError::invalidData(why));
}

bool isSigned(std::string_view document, const Base::Bytes &signature, const Base::Bytes &key)
{
    const std::unique_ptr<EVP_PKEY, decltype(&EVP_PKEY_free)> publicKey{
        EVP_PKEY_new_raw_public_key(EVP_PKEY_ED25519, nullptr, key.data(), key.size()),
        &EVP_PKEY_free};
    const std::unique_ptr<EVP_MD_CTX, decltype(&EVP_MD_CTX_free)> context{EVP_MD_CTX_new(),
                                                                          &EVP_MD_CTX_free};
    return publicKey != nullptr && context != nullptr &&
           EVP_DigestVerifyInit(context.get(), nullptr, nullptr, nullptr, publicKey.get()) ==
               1 &&
           EVP_DigestVerify(context.get(), signature.data(), signature.size(),
                            reinterpret_cast<const unsigned char *>(document.data()),
                            document.size()) == 1;
}

bool isHash(std::string_view text)
{
    return text.size() == kHashDigits && std::ranges::all_of(text, [](char c) {
               return (c >= '0' && c <= '9') || (c >= 'a' && c <= 'f');
           });
}

} // namespace

UpdateChannel channelOf(std::string_view bundleIdentifier)
{
    if (bundleIdentifier == "app.kest.native") {
        return UpdateChannel::stable;
    }
    return bundleIdentifier == "app.kest.native.rc" ? UpdateChannel::candidate
                                                    : UpdateChannel::development;
}

Result<VerifiedFeed> readUpdateFeed(std::string_view feed, std::string_view publicKey)
{
    const auto key = Base::fromBase64(publicKey);
    const std::size_t end = feed.find('\n');
    if (!key || key->size() != kKeySize || end == std::string_view::npos ||
        feed.size() > kLargestFeed) {
        return refuse("What was sent is no signed feed");
    }
    const auto signature = Base::fromBase64(feed.substr(0, end));
    const std::string_view document = feed.substr(end + 1);
    if (!signature || signature->size() != kSignatureSize ||
        !isSigned(document, *signature, *key)) {
        return refuse("The signature of the feed does not hold");
    }
    VerifiedFeed verified;
    KEST_TRY(verified.offer, json::decode<UpdateOffer>(document));
    const UpdateOffer &offer = verified.offer;
    const auto version = semanticVersion(offer.version);
    const auto published = Base::fromIso8601(offer.published);
    if (!version || !published || !isHash(offer.sha256) || offer.size <= 0 ||
        offer.size > kLargestDownload || Base::countCodePoints(offer.notes) > kLongestNotes ||
        !offer.address.starts_with("https://") || !isServiceAddress(offer.address)) {
        return refuse("The feed is signed, but says what it must not");
    }
    verified.version = *version;
    verified.published = *published;
    return verified;
}

} // namespace KestCore
