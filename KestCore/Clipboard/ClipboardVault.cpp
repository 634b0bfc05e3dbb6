// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "KestCore/Clipboard/ClipboardVault.h"

namespace KestCore
{

namespace
{

constexpr Base::Seconds kTidyEvery{3'600};

ClipboardVault::Poll pollOf(ClipboardReader::Found found)
{
    using enum ClipboardReader::Found;
    switch (found) {
    case notAsked:
        return ClipboardVault::Poll::off;
    case excluded:
        return ClipboardVault::Poll::excluded;
    case empty:
        return ClipboardVault::Poll::empty;
    case own:
        return ClipboardVault::Poll::own;
    case content:
        return ClipboardVault::Poll::kept;
    case unanswered:
    case nothingNew:
        break;
    }
    return ClipboardVault::Poll::unchanged;
}

} // namespace

ClipboardVault::ClipboardVault(StateStore &store, Base::AesKey key, Pasteboard &pasteboard,
                               ImageCodec *codec)
    : m_store(store), m_history(store, std::move(key)), m_reader(pasteboard, codec)
{
}

Result<ClipboardVault::Poll> ClipboardVault::poll(Base::Instant now)
{
    KEST_CHECK(applyRetention(now));
    KEST_TRY(auto reading, m_reader.read(clipboardSettings(m_store.state().settings)));
    const Base::WipeAtEnd wiping{reading.content};
    if (reading.content) {
        KEST_TRY([[maybe_unused]] const auto entry, m_history.add(*reading.content, now));
    }
    return pollOf(reading.found);
}

// A clock that was set back does not put it off.
Result<void> ClipboardVault::applyRetention(Base::Instant now)
{
    if (m_tidied && now >= *m_tidied && now < *m_tidied + kTidyEvery) {
        return {};
    }
    m_tidied = now;
    return m_history.applyRetention(now);
}

Result<void> ClipboardVault::copyBack(std::string_view id)
{
    auto payload = m_history.content(id);
    const Base::WipeAtEnd wiping{payload};
    return payload ? m_reader.write(*payload) : std::unexpected(payload.error());
}

} // namespace KestCore
