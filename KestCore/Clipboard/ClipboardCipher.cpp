// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "KestCore/Clipboard/ClipboardCipher.h"

#include "Base/Base64.h"

namespace KestCore
{

namespace
{

std::span<const std::uint8_t> bytesOf(std::string_view text)
{
    return {reinterpret_cast<const std::uint8_t *>(text.data()), text.size()};
}

std::string_view textOf(const Base::Bytes &bytes)
{
    return {reinterpret_cast<const char *>(bytes.data()), bytes.size()};
}

// The text is encrypted where it stands, so that nothing of it is left behind. It has room for
// the tag.
Result<std::string> sealInPlace(std::string text, const Base::AesKey &key)
{
    KEST_TRY(const auto nonce, Base::encryptAesGcm(key, text));
    static_assert(Base::kNonceSize % 3 == 0,
                  "the Base64 of the two parts is that of the whole");
    std::string sealed;
    const std::size_t nonceSize = Base::base64Size(nonce.size());
    const std::size_t size = nonceSize + Base::base64Size(text.size());
    sealed.resize_and_overwrite(size, [&](char *out, std::size_t) {
        Base::writeBase64(nonce, out);
        Base::writeBase64(bytesOf(text), out + nonceSize);
        return size;
    });
    return sealed;
}

Result<std::string> openBox(std::string_view text, const Base::AesKey &key, std::size_t room)
{
    const auto box = Base::fromBase64(text);
    if (!box) {
        return std::unexpected(KestError::invalidData("Invalid encrypted entry"));
    }
    return Base::openAesGcm(key, *box, room);
}

} // namespace

Result<std::string> ClipboardCipher::seal(const ClipboardPayload &payload,
                                          const Base::AesKey &key)
{
    KEST_CHECK(payload.validate());
    KEST_TRY(std::string document,
             json::encodeSecret(payload, payload.largestDocument() + Base::kTagSize));
    return sealInPlace(std::move(document), key);
}

Result<ClipboardPayload> ClipboardCipher::open(std::string_view text, const Base::AesKey &key)
{
    KEST_TRY(std::string plain, openBox(text, key, json::PaddedText::kPadding));
    json::PaddedText document{std::move(plain)};
    auto payload = json::decodeSecret<ClipboardPayload>(document);
    std::string spent = document.release();
    Base::wipe(spent);
    if (payload) {
        if (auto sound = payload->validate(); !sound) {
            wipe(*payload);
            payload = std::unexpected(std::move(sound).error());
        }
    }
    return payload;
}

Result<std::string> ClipboardCipher::sealLine(std::string_view line, const Base::AesKey &key)
{
    std::string copy;
    copy.reserve(line.size() + Base::kTagSize);
    copy = line;
    return sealInPlace(std::move(copy), key);
}

Result<std::string> ClipboardCipher::openLine(std::string_view text, const Base::AesKey &key)
{
    return openBox(text, key, 0);
}

std::string ClipboardCipher::fingerprint(const ClipboardPayload &payload,
                                         const Base::AesKey &key)
{
    // Sizes stand between the pieces, so that no two contents run together to the same bytes.
    std::vector<std::string> sizes;
    std::vector<std::string_view> contents;
    const auto add = [&](std::string_view content) {
        sizes.push_back(" " + std::to_string(content.size()) + " ");
        contents.push_back(content);
    };
    add(Base::textOf(payload.kind));
    if (payload.text) {
        add(*payload.text);
    }
    if (payload.image) {
        add(textOf(*payload.image));
    }
    for (const ClipboardFileReference &file : payload.files) {
        add(file.name);
        add(textOf(file.bookmark));
    }
    std::vector<std::string_view> pieces;
    for (std::size_t at = 0; at < contents.size(); ++at) {
        pieces.push_back(sizes[at]);
        pieces.push_back(contents[at]);
    }
    return Base::toBase64(Base::keyedDigest(key, "clipboard fingerprint", pieces));
}

} // namespace KestCore
