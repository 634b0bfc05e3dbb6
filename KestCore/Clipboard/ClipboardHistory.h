// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "KestCore/Clipboard/ClipboardIndex.h"
#include "KestCore/Clipboard/ClipboardSettings.h"
#include "KestCore/Store/StateStore.h"

#include <string>
#include <string_view>
#include <vector>

namespace KestCore
{

// One line of the list.
struct ClipboardListing {
    ClipboardEntry entry{};
    std::string display{}; // no credential, at most 200 characters
    bool isReadable{};     // if not, `display` says so
};

// What was copied, in the store and under a key. Nothing of the content reaches the disk but
// sealed. The two records of an entry change in one transaction. Has no lock and keeps no
// memory of the store, so others may change that between two calls.
class ClipboardHistory
{
public:
    ClipboardHistory(StateStore &store, Base::AesKey key)
        : m_store(store), m_key(std::move(key))
    {
    }

    // Favourites first, then the newest first. Opens no content, unless an entry of another
    // build lacks its index row: that is made up for, once. What this build or this key cannot
    // read stands there too, so that it can be removed.
    [[nodiscard]] Result<std::vector<ClipboardListing>> list();
    // The texts and links in which these words stand, as catalogues are searched. What is
    // hidden as a credential is not searched. Fails with invalidData without any words.
    [[nodiscard]] Result<std::vector<ClipboardListing>> search(std::string_view words);

    // The one entry whose id is this or begins with it, in either case. Fails with
    // invalidData when there is none, or more than one.
    [[nodiscard]] Result<ClipboardEntry> find(std::string_view idOrBeginning);
    // The line of one entry; fails as `content` does when it is not there.
    [[nodiscard]] Result<ClipboardListing> listing(std::string_view id);
    // Fails with "This item was removed.", with "This saved image is damaged." for an image,
    // with "This saved entry cannot be opened." for a form that this build does not know, else
    // as ClipboardCipher::open. The caller wipes it.
    [[nodiscard]] Result<ClipboardPayload> content(std::string_view id);

    // Keeps it as the newest entry; equal content that is there already moves instead. What
    // the limits of the settings no longer cover goes; favourites stay.
    [[nodiscard]] Result<ClipboardEntry> add(const ClipboardPayload &payload,
                                             Base::Instant now);
    [[nodiscard]] Result<ClipboardEntry> setFavourite(std::string_view id, bool favourite);
    [[nodiscard]] Result<void> remove(std::string_view id);
    // The same; the answer is what puts the entry back as it was, sealed as it is.
    [[nodiscard]] Result<RecordChanges> takeOut(std::string_view id);
    // Removes everything but the favourites, those of other builds among them.
    [[nodiscard]] Result<void> clear();
    // Removes what has grown too old meanwhile.
    [[nodiscard]] Result<void> applyRetention(Base::Instant now);

    std::string fingerprint(const ClipboardPayload &payload) const
    {
        return ClipboardCipher::fingerprint(payload, m_key);
    }

private:
    using Rows = std::vector<ClipboardIndexRow>;

    // In the history's order.
    [[nodiscard]] Result<Rows> rows();
    [[nodiscard]] Result<std::optional<ClipboardIndexRow>> rowOf(std::string_view id);
    [[nodiscard]] Result<std::optional<ClipboardIndexRow>> rebuildRow(std::string_view id,
                                                                      RecordChanges &repairs);
    ClipboardListing lineOf(const ClipboardIndexRow &row) const;
    [[nodiscard]] Result<ClipboardPayload> openContent(std::string_view id);
    bool hasWords(const ClipboardIndexRow &row, std::string_view display,
                  std::string_view words);
    [[nodiscard]] Result<bool> isFavouriteByContent(std::string_view id);
    [[nodiscard]] Result<void> removeUnlessFavourite(ClipboardIndexRow row,
                                                     RecordChanges &changes);
    [[nodiscard]] Result<void> removeUncovered(const Rows &rows, Base::Instant now,
                                               RecordChanges &changes);
    [[nodiscard]] Result<void> commit(const RecordChanges &changes);

    StateStore &m_store;
    Base::AesKey m_key;
};

} // namespace KestCore
