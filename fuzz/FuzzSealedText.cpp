// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "KestCore/Clipboard/ClipboardCipher.h"

#include <array>
#include <cstdlib>

namespace
{

const Base::AesKey &key()
{
    static const Base::AesKey kKey = [] {
        auto made =
            Base::AesKey::fromBytes(std::array<std::uint8_t, Base::AesKey::kSize>{1, 2, 3});
        if (!made) {
            std::abort();
        }
        return *std::move(made);
    }();
    return kKey;
}

} // namespace

// The bytes as they might stand in the database, where nothing that was not sealed may open;
// and as what somebody else sealed under the same key, so that they reach the decoder. What
// opens must keep the rules and be the same after another sealing.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    using KestCore::ClipboardCipher;
    const std::string_view bytes{reinterpret_cast<const char *>(data), size};
    if (ClipboardCipher::open(bytes, key())) {
        std::abort();
    }
    const auto sealed = ClipboardCipher::sealLine(bytes, key());
    if (!sealed) {
        std::abort();
    }
    const auto payload = ClipboardCipher::open(*sealed, key());
    if (!payload) {
        return 0;
    }
    const auto again = ClipboardCipher::seal(*payload, key());
    if (!payload->validate() || !again || ClipboardCipher::open(*again, key()) != payload) {
        std::abort();
    }
    return 0;
}
