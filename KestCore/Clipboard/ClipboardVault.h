// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "KestCore/Clipboard/ClipboardHistory.h"
#include "KestCore/Clipboard/ClipboardReader.h"

#include <cstdint>

namespace KestCore
{

// Watches the clipboard and keeps what may be kept, for a program that has the store and the
// clipboard on one thread. Has no lock and no timer of its own: somebody calls `poll` now and
// then.
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
    [[nodiscard]] Result<void> applyRetention(Base::Instant now);

    StateStore &m_store;
    ClipboardHistory m_history;
    ClipboardReader m_reader;
    std::optional<Base::Instant> m_tidied{}; // when retention was last applied
};

} // namespace KestCore
