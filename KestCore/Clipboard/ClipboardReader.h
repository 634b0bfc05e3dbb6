// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Base/AesGcm.h"
#include "KestCore/Clipboard/ClipboardSettings.h"
#include "KestCore/Clipboard/Pasteboard.h"

#include <cstdint>
#include <memory>
#include <mutex>
#include <optional>
#include <string>

namespace KestCore
{

// What a text is kept as: as a link when it is one web address, blanks around it aside.
ClipboardPayload clipboardTextPayload(std::string text);

// What this program put on the clipboard last, told by its content. Of any thread, as it is
// read on one and written on another.
class OwnCopy
{
public:
    void put(const ClipboardPayload &payload);
    void forget(const std::string &fingerprint);
    std::string last() const;
    std::string fingerprintOf(const ClipboardPayload &payload) const;

private:
    const Base::AesKey m_key = Base::AesKey::random();
    mutable std::mutex m_mutex;
    std::string m_last; // fingerprint
};

// Looks at what was copied and reads what may be kept. Knows neither the store nor the key, so
// that nobody else waits while it waits for a slow application: lives where its pasteboard
// does. What is copied while recording is off is not kept.
class ClipboardReader
{
public:
    enum class Found : std::uint8_t {
        nothingNew, // nothing was copied, or something else meanwhile
        notAsked,   // not recording
        excluded,   // marked as private, or copied in an excluded application
        empty,      // nothing that can be kept
        unanswered, // by its owner; the next call asks again
        own,        // what `write` put there
        content,
    };
    struct Reading {
        Found found{};
        std::optional<ClipboardPayload> content{}; // the caller wipes it
    };

    // Without a codec images are kept as they are, without a preview. What was copied up to
    // this change is not read; the present one where none is given.
    explicit ClipboardReader(Pasteboard &pasteboard, ImageCodec *codec = nullptr,
                             std::optional<std::int64_t> seenChange = {},
                             std::shared_ptr<OwnCopy> own = std::make_shared<OwnCopy>());

    // How often a copy is asked for whose owner does not answer.
    static constexpr int kMostTries = 3;

    // An error is about this copy only: the next call waits for another.
    [[nodiscard]] Result<Reading> read(const ClipboardSettings &settings);

    // Puts it on the clipboard again.
    [[nodiscard]] Result<void> write(const ClipboardPayload &payload);

private:
    [[nodiscard]] Result<Reading> readChange(std::int64_t change,
                                             const ClipboardSettings &settings);
    [[nodiscard]] Result<bool> isExcluded(const ClipboardSettings &settings);
    [[nodiscard]] Result<void> take(std::optional<ClipboardPayload> &payload);
    [[nodiscard]] Result<void> prepareImage(ClipboardPayload &payload);

    Pasteboard &m_pasteboard;
    ImageCodec *m_codec;
    std::int64_t m_seenChange;
    std::shared_ptr<OwnCopy> m_own;
    int m_unanswered = 0; // times that m_triedChange was asked for in vain
    std::int64_t m_triedChange = 0;
};

} // namespace KestCore
