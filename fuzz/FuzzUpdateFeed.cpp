// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Base/Base64.h"
#include "KestCore/Clients/UpdateFeed.h"

#include <openssl/evp.h>

#include <array>
#include <cstdlib>
#include <vector>

namespace
{

void require(bool holds)
{
    if (!holds) {
        std::abort();
    }
}

EVP_PKEY *key()
{
    static constexpr std::array<unsigned char, 32> kSecret{1, 2, 3};
    static EVP_PKEY *const kKey =
        EVP_PKEY_new_raw_private_key(EVP_PKEY_ED25519, nullptr, kSecret.data(), kSecret.size());
    return kKey;
}

std::string publicKey()
{
    std::vector<std::uint8_t> bytes(32);
    std::size_t size = bytes.size();
    require(EVP_PKEY_get_raw_public_key(key(), bytes.data(), &size) == 1);
    return Base::toBase64(bytes);
}

std::string signedFeed(std::string_view document)
{
    std::vector<std::uint8_t> signature(64);
    std::size_t size = signature.size();
    EVP_MD_CTX *const context = EVP_MD_CTX_new();
    require(EVP_DigestSignInit(context, nullptr, nullptr, nullptr, key()) == 1 &&
            EVP_DigestSign(context, signature.data(), &size,
                           reinterpret_cast<const unsigned char *>(document.data()),
                           document.size()) == 1);
    EVP_MD_CTX_free(context);
    return Base::toBase64(signature) + "\n" + std::string{document};
}

} // namespace

// A document, as it comes and as the holder of the key would sign it. Without a signature it is
// always refused; with one, it says nothing that it must not.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    static const std::string kKey = publicKey();
    const std::string_view document{reinterpret_cast<const char *>(data), size};
    require(!KestCore::readUpdateFeed(document, kKey).has_value());
    const auto feed = KestCore::readUpdateFeed(signedFeed(document), kKey);
    if (feed) {
        require(feed->offer.address.starts_with("https://") && feed->offer.size > 0 &&
                feed->offer.sha256.size() == 64);
    }
    return 0;
}
