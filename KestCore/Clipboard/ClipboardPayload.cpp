// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "KestCore/Clipboard/ClipboardPayload.h"

#include "Base/JsonReader.h"
#include "Base/JsonWriter.h"
#include "Base/Secret.h"
#include "Base/Text.h"

#include <algorithm>

namespace Base::json
{

using namespace KestCore;
template Result<ClipboardEntry> decode(const PaddedText &);
template Result<ClipboardPayload> decode(const PaddedText &);
template Result<ClipboardPayload> decodeSecret(const PaddedText &);
template Result<std::string> encode(const ClipboardEntry &);
template Result<std::string> encode(const ClipboardPayload &);
template Result<std::string> encodeSecret(const ClipboardPayload &, std::size_t);

} // namespace Base::json

namespace KestCore
{

namespace
{

using Payload = ClipboardPayload;

bool isText(const Payload &payload)
{
    return payload.text && !payload.text->empty() &&
           payload.text->size() <= Payload::kLargestText && !payload.image &&
           payload.files.empty();
}

bool isImage(const Payload &payload)
{
    return payload.image && !payload.image->empty() &&
           payload.image->size() <= Payload::kLargestImage && !payload.text &&
           payload.files.empty();
}

bool isFile(const ClipboardFileReference &file)
{
    return !file.bookmark.empty() && file.bookmark.size() <= Payload::kLargestBookmark &&
           Base::countCodePoints(file.name) <= Payload::kLongestName;
}

bool isFiles(const Payload &payload)
{
    return !payload.files.empty() && payload.files.size() <= Payload::kMostFiles &&
           !payload.text && !payload.image && std::ranges::all_of(payload.files, isFile);
}

Result<void> refuseUnless(bool isSound, const char *message)
{
    return isSound ? Result<void>{} : std::unexpected(KestError::invalidData(message));
}

std::size_t sizeOf(const std::optional<Base::Bytes> &bytes)
{
    return bytes ? bytes->size() : 0;
}

} // namespace

void wipe(ClipboardPayload &payload)
{
    Base::wipe(payload.text);
    Base::wipe(payload.image);
    Base::wipe(payload.thumbnail);
    for (ClipboardFileReference &file : payload.files) {
        Base::wipe(file.name);
        Base::wipe(file.bookmark);
    }
}

Result<void> ClipboardPayload::validate() const
{
    KEST_CHECK(refuseUnless(version == kVersion && sizeOf(thumbnail) <= kLargestThumbnail,
                            "Invalid clipboard payload"));
    switch (kind) {
    case ClipboardKind::text:
    case ClipboardKind::link:
        return refuseUnless(isText(*this), "Invalid clipboard text");
    case ClipboardKind::image:
        return refuseUnless(isImage(*this), "Clipboard image exceeds the per-item limit");
    case ClipboardKind::files:
        break;
    }
    return refuseUnless(isFiles(*this), "Invalid clipboard file references");
}

std::int64_t ClipboardPayload::byteCount() const
{
    std::size_t count = (text ? text->size() : 0) + sizeOf(image);
    for (const ClipboardFileReference &file : files) {
        count += file.name.size() + file.bookmark.size();
    }
    return static_cast<std::int64_t>(count);
}

std::size_t ClipboardPayload::largestDocument() const
{
    constexpr std::size_t kKeys = 128;        // of the payload, or of one file
    constexpr std::size_t kLongestEscape = 6; // \u0000
    std::size_t size = kKeys + (text ? text->size() * kLongestEscape : 0) +
                       Base::base64Size(sizeOf(image)) + Base::base64Size(sizeOf(thumbnail));
    for (const ClipboardFileReference &file : files) {
        size +=
            kKeys + file.name.size() * kLongestEscape + Base::base64Size(file.bookmark.size());
    }
    return size;
}

} // namespace KestCore
