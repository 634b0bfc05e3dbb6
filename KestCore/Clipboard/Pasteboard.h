// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "KestCore/Clipboard/ClipboardPayload.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace KestCore
{

// The system's clipboard, as the vault sees it. What is not on offer is nothing; what is on
// offer but cannot be read is an error, and unavailable where its owner does not answer. No
// more than `most` + 1 bytes need be read: enough to see that the content is too large, and a
// copied film does not fill the memory.
class Pasteboard
{
public:
    Pasteboard() = default;
    virtual ~Pasteboard() = default;
    Pasteboard(const Pasteboard &) = delete;
    Pasteboard &operator=(const Pasteboard &) = delete;

    // Another number whenever something was copied.
    virtual std::int64_t changeCount() = 0;
    // The names of the forms on offer, markers among them.
    [[nodiscard]] virtual Result<std::vector<std::string>> types() = 0;
    // What a marker says; nothing when that cannot be read.
    virtual std::optional<std::string> marker(std::string_view type) = 0;
    // The application that copied, where the system tells.
    virtual std::optional<std::string> ownerApplication() = 0;

    [[nodiscard]] virtual Result<std::optional<std::vector<ClipboardFileReference>>>
    readFiles() = 0;
    [[nodiscard]] virtual Result<std::optional<Base::Bytes>> readImage(std::size_t most) = 0;
    [[nodiscard]] virtual Result<std::optional<std::string>> readText(std::size_t most) = 0;

    // Whether the file is still where its bookmark leads.
    virtual bool reaches(const ClipboardFileReference &file) = 0;
    [[nodiscard]] virtual Result<void> write(const ClipboardPayload &payload) = 0;
};

// What is kept of a copied image.
struct PreparedImage {
    Base::Bytes image{};
    std::optional<Base::Bytes> thumbnail{};
};

// Makes what is kept of a copied image. It fails with one of the texts below.
class ImageCodec
{
public:
    static constexpr const char *kCannotDecode = "Clipboard image could not be decoded";
    static constexpr const char *kCannotEncodePreview = "Cannot encode clipboard preview";
    static constexpr const char *kCannotSavePreview = "Cannot save clipboard preview";

    ImageCodec() = default;
    virtual ~ImageCodec() = default;
    ImageCodec(const ImageCodec &) = delete;
    ImageCodec &operator=(const ImageCodec &) = delete;

    [[nodiscard]] virtual Result<PreparedImage> prepare(Base::Bytes image) = 0;
};

} // namespace KestCore
