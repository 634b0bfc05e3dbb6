// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "KestCore/Clipboard/ClipboardHistory.h"
#include "KestCore/Clipboard/Pasteboard.h"

#include <cstdint>
#include <string>

namespace KestCore
{

// What a text is kept as: as a link when it is one web address, blanks around it aside.
ClipboardPayload clipboardTextPayload(std::string text);

// Watches the clipboard and keeps what may be kept. Has no lock and no timer of its own: lives
// beside the store, and somebody calls `poll` now and then. What is on the clipboard when it
// comes into being is not kept, nor what is copied while recording is off.
class ClipboardVault
{
public:
    enum class Poll : std::uint8_t {
        off,       // not recording
        unchanged, // nothing was copied
        excluded,  // marked as private, or copied in an excluded application
        empty,     // nothing that can be kept
        own,       // what copyBack put there
        kept,
    };

    // Without a codec images are kept as they are, without a preview.
    ClipboardVault(StateStore &store, Base::AesKey key, Pasteboard &pasteboard,
                   ImageCodec *codec = nullptr);

    ClipboardHistory &history() { return m_history; }

    // Removes what has grown too old first, once an hour: recording or not. An error of that
    // leaves the copy to the next poll; any other is about this copy only, and the next poll
    // waits for another.
    [[nodiscard]] Result<Poll> poll(Base::Instant now);

    // Puts an entry on the clipboard again.
    [[nodiscard]] Result<void> copyBack(std::string_view id);

private:
    bool isExcluded(const ClipboardSettings &settings);
    [[nodiscard]] Result<void> applyRetention(Base::Instant now);
    [[nodiscard]] Result<void> read(std::optional<ClipboardPayload> &payload);
    [[nodiscard]] Result<void> prepareImage(ClipboardPayload &payload);

    StateStore &m_store;
    ClipboardHistory m_history;
    Pasteboard &m_pasteboard;
    ImageCodec *m_codec;
    std::int64_t m_seenChange;
    std::optional<Base::Instant> m_tidied{}; // when retention was last applied
    std::string m_ownWrite;                  // fingerprint of what copyBack put there last
};

} // namespace KestCore
