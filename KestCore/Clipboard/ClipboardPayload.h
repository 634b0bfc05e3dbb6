// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Base/Instant.h"
#include "KestCore/Vocabulary.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace KestCore
{

enum class ClipboardKind : std::uint8_t { text, link, image, files };

constexpr auto enumTexts(Of<ClipboardKind>)
{
    using enum ClipboardKind;
    return Base::EnumTexts<ClipboardKind, 4>{
        {{text, "text"}, {link, "link"}, {image, "image"}, {files, "files"}}};
}

// What may be known of an entry without its key: no content.
struct ClipboardEntry {
    std::string id{};
    ClipboardKind kind{};
    Base::Instant createdAt{}; // when it was copied
    std::int64_t byteCount{};  // of the copied content
    bool favourite{};

    bool operator==(const ClipboardEntry &) const = default;
};
consteval auto jsonFields(Of<ClipboardEntry>)
{
    using R = ClipboardEntry;
    return std::tuple{json::Field{"id", &R::id}, json::Field{"kind", &R::kind},
                      json::Field{"createdAt", &R::createdAt},
                      json::Field{"byteCount", &R::byteCount},
                      json::Field{"favourite", &R::favourite}};
}
static_assert(json::coversAllMembers<ClipboardEntry>());

struct ClipboardFileReference {
    std::string name{};     // for people
    Base::Bytes bookmark{}; // how the platform finds the file again

    bool operator==(const ClipboardFileReference &) const = default;
};
consteval auto jsonFields(Of<ClipboardFileReference>)
{
    using R = ClipboardFileReference;
    return std::tuple{json::Field{"name", &R::name}, json::Field{"bookmark", &R::bookmark}};
}
static_assert(json::coversAllMembers<ClipboardFileReference>());

// The whole content of an entry: what is encrypted. Who owns one wipes it, by Base::WipeAtEnd.
struct ClipboardPayload {
    static constexpr std::int64_t kVersion = 1;
    static constexpr std::size_t kLargestThumbnail = 250'000; // bytes
    static constexpr std::size_t kLargestText = 100'000;      // bytes of UTF-8
    static constexpr std::size_t kLargestImage = 4'000'000;   // bytes
    static constexpr std::size_t kMostFiles = 30;
    static constexpr std::size_t kLargestBookmark = 100'000; // bytes
    static constexpr std::size_t kLongestName = 1'024;       // characters

    std::int64_t version = kVersion;
    ClipboardKind kind{};                   // which of the following is there
    std::optional<std::string> text{};      // of a text or a link
    std::optional<Base::Bytes> image{};     // as it was copied, or as a codec prepared it
    std::optional<Base::Bytes> thumbnail{}; // of an image
    std::vector<ClipboardFileReference> files{};

    bool operator==(const ClipboardPayload &) const = default;

    // Fails with invalidData when the content is not of its kind, missing or too large.
    [[nodiscard]] Result<void> validate() const;

    // The size of what was copied, previews not counted.
    std::int64_t byteCount() const;
    // More than its JSON can need.
    std::size_t largestDocument() const;
};
consteval auto jsonFields(Of<ClipboardPayload>)
{
    using R = ClipboardPayload;
    return std::tuple{json::Field{"version", &R::version},     json::Field{"kind", &R::kind},
                      json::Field{"text", &R::text},           json::Field{"image", &R::image},
                      json::Field{"thumbnail", &R::thumbnail}, json::Field{"files", &R::files}};
}
static_assert(json::coversAllMembers<ClipboardPayload>());

void wipe(ClipboardPayload &payload);

} // namespace KestCore
