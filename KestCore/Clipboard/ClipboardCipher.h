// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Base/AesGcm.h"
#include "KestCore/Clipboard/ClipboardPayload.h"

namespace KestCore
{

// Turns content into the text that is stored, and back: AES-256-GCM under a fresh nonce, in
// Base64 on one line.
//
// What is overwritten in memory after use: the JSON, the copies of it that its parser and its
// writer make, derived keys, the search forms and the lines that ClipboardHistory does not hand
// out, and the Unicode library's memory where Base::wipeUnicodeMemory was called. Arguments and
// answers are the caller's to wipe. What is not: on the stack, texts below 16 bytes and what
// the Unicode library works on in small buffers; names below 16 bytes of copied files, as their
// list grows; what a program prints; what the kernel, a pipe, a terminal or a swap file keeps.
class ClipboardCipher
{
public:
    ClipboardCipher() = delete;

    // Fails with the payload's own error, or when the cipher fails.
    [[nodiscard]] static Result<std::string> seal(const ClipboardPayload &payload,
                                                  const Base::AesKey &key);
    // Fails with invalidData: "Invalid encrypted entry" for a text that is not Base64, the
    // cipher's own error for one that was not sealed under this key, the payload's for one
    // that keeps no rules.
    [[nodiscard]] static Result<ClipboardPayload> open(std::string_view text,
                                                       const Base::AesKey &key);

    // The same for a short text that is no payload, such as what a list shows.
    [[nodiscard]] static Result<std::string> sealLine(std::string_view line,
                                                      const Base::AesKey &key);
    [[nodiscard]] static Result<std::string> openLine(std::string_view text,
                                                      const Base::AesKey &key);

    // The same for equal content, and without the key of no help in guessing it.
    static std::string fingerprint(const ClipboardPayload &payload, const Base::AesKey &key);
};

} // namespace KestCore
