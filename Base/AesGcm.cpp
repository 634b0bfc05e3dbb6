// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Base/AesGcm.h"

#include "Base/Fault.h"

#include <openssl/evp.h>
#include <openssl/hmac.h>
#include <openssl/rand.h>

#include <algorithm>
#include <limits>

namespace Base
{

namespace
{

constexpr std::string_view kSource = "Base/AesGcm";
constexpr std::string_view kCannotOpen = "The entry was not encrypted with this key";
constexpr std::size_t kLargest = std::numeric_limits<int>::max() - 64; // OpenSSL's measure

using Nonce = std::array<std::uint8_t, kNonceSize>;
using Context = std::unique_ptr<EVP_CIPHER_CTX, decltype(&EVP_CIPHER_CTX_free)>;

// Looked up once: the library's own look-up costs more than sealing a short text.
const EVP_CIPHER *cipher()
{
    static const EVP_CIPHER *const kCipher = EVP_CIPHER_fetch(nullptr, "AES-256-GCM", nullptr);
    return kCipher;
}

Context makeContext()
{
    Context context{EVP_CIPHER_CTX_new(), &EVP_CIPHER_CTX_free};
    if (context == nullptr || cipher() == nullptr) {
        fatalFault(kSource, "AES-256-GCM is not there");
    }
    return context;
}

void fillRandomly(std::span<std::uint8_t> bytes)
{
    if (RAND_bytes(bytes.data(), static_cast<int>(bytes.size())) != 1) {
        fatalFault(kSource, "the system gave no random bytes");
    }
}

const unsigned char *unsignedBytes(std::string_view text)
{
    return reinterpret_cast<const unsigned char *>(text.data());
}

bool encryptIn(const AesKey &key, const Nonce &nonce, std::uint8_t *text, std::size_t size)
{
    const Context context = makeContext();
    int written = 0;
    return EVP_EncryptInit_ex2(context.get(), cipher(), key.bytes().data(), nonce.data(),
                               nullptr) == 1 &&
           EVP_EncryptUpdate(context.get(), text, &written, text, static_cast<int>(size)) ==
               1 &&
           EVP_EncryptFinal_ex(context.get(), text + size, &written) == 1 &&
           EVP_CIPHER_CTX_ctrl(context.get(), EVP_CTRL_GCM_GET_TAG, kTagSize, text + size) == 1;
}

bool openInto(const AesKey &key, std::span<const std::uint8_t> box, std::uint8_t *plain)
{
    const Context context = makeContext();
    const auto ciphertext = box.subspan(kNonceSize, box.size() - kNonceSize - kTagSize);
    std::array<std::uint8_t, kTagSize> tag{};
    std::ranges::copy(box.last(kTagSize), tag.begin());
    int written = 0;
    return EVP_DecryptInit_ex2(context.get(), cipher(), key.bytes().data(), box.data(),
                               nullptr) == 1 &&
           EVP_DecryptUpdate(context.get(), plain, &written, ciphertext.data(),
                             static_cast<int>(ciphertext.size())) == 1 &&
           EVP_CIPHER_CTX_ctrl(context.get(), EVP_CTRL_GCM_SET_TAG, kTagSize, tag.data()) ==
               1 &&
           EVP_DecryptFinal_ex(context.get(), plain + ciphertext.size(), &written) == 1;
}

std::uint8_t *bytesOf(char *text) { return reinterpret_cast<std::uint8_t *>(text); }

} // namespace

AesKey AesKey::random()
{
    AesKey key;
    fillRandomly(key.m_bytes);
    return key;
}

std::optional<AesKey> AesKey::fromBytes(std::span<const std::uint8_t> bytes)
{
    if (bytes.size() != kSize) {
        return std::nullopt;
    }
    AesKey key;
    std::ranges::copy(bytes, key.m_bytes.begin());
    return key;
}

AesKey::AesKey(AesKey &&other) noexcept : m_bytes(other.m_bytes)
{
    OPENSSL_cleanse(other.m_bytes.data(), kSize);
}

AesKey &AesKey::operator=(AesKey &&other) noexcept
{
    std::swap(m_bytes, other.m_bytes); // the other wipes what it takes away
    return *this;
}

AesKey::~AesKey() { OPENSSL_cleanse(m_bytes.data(), kSize); }

Result<Nonce> encryptAesGcm(const AesKey &key, std::string &text)
{
    if (text.size() > kLargest) {
        wipe(text);
        return std::unexpected(KestError::invalidData("The entry is too large to encrypt"));
    }
    Nonce nonce{};
    fillRandomly(nonce);
    const std::size_t size = text.size();
    text.append(kTagSize, '\0');
    if (!encryptIn(key, nonce, bytesOf(text.data()), size)) {
        wipe(text);
        return std::unexpected(KestError::unavailable("The entry could not be encrypted"));
    }
    return nonce;
}

Result<std::string> openAesGcm(const AesKey &key, std::span<const std::uint8_t> box,
                               std::size_t room)
{
    if (box.size() < kNonceSize + kTagSize || box.size() > kLargest) {
        return std::unexpected(KestError::invalidData(std::string{kCannotOpen}));
    }
    const std::size_t plainSize = box.size() - kNonceSize - kTagSize;
    std::string plain;
    plain.reserve(plainSize + room);
    bool isOpen = false;
    plain.resize_and_overwrite(plainSize, [&](char *out, std::size_t) {
        isOpen = openInto(key, box, bytesOf(out));
        return plainSize;
    });
    if (!isOpen) {
        wipe(plain); // what was decrypted before the tag was found wrong
        return std::unexpected(KestError::invalidData(std::string{kCannotOpen}));
    }
    return plain;
}

std::array<std::uint8_t, 32> keyedDigest(const AesKey &key, std::string_view purpose,
                                         std::span<const std::string_view> pieces)
{
    std::array<std::uint8_t, 32> derived{};
    std::array<std::uint8_t, 32> digest{};
    bool isDone = HMAC(EVP_sha256(), key.bytes().data(), AesKey::kSize, unsignedBytes(purpose),
                       purpose.size(), derived.data(), nullptr) != nullptr;
    const std::unique_ptr<EVP_MD_CTX, decltype(&EVP_MD_CTX_free)> context{EVP_MD_CTX_new(),
                                                                          &EVP_MD_CTX_free};
    const std::unique_ptr<EVP_PKEY, decltype(&EVP_PKEY_free)> macKey{
        EVP_PKEY_new_raw_private_key(EVP_PKEY_HMAC, nullptr, derived.data(), derived.size()),
        &EVP_PKEY_free};
    isDone = isDone && EVP_DigestSignInit(context.get(), nullptr, EVP_sha256(), nullptr,
                                          macKey.get()) == 1;
    for (const std::string_view piece : pieces) {
        isDone = isDone && EVP_DigestSignUpdate(context.get(), piece.data(), piece.size()) == 1;
    }
    std::size_t size = digest.size();
    isDone = isDone && EVP_DigestSignFinal(context.get(), digest.data(), &size) == 1;
    OPENSSL_cleanse(derived.data(), derived.size());
    if (!isDone) {
        fatalFault(kSource, "HMAC-SHA-256 is not there");
    }
    return digest;
}

} // namespace Base
