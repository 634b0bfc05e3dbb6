// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "KestCore/Clipboard/Pasteboard.h"
#include "Velvetnook/Application/Clipboard/ClipboardDesktop.h"

namespace Velvetnook
{

// Puts it on the clipboard of the desktop. On the main thread; false when that fails.
bool putOnClipboard(const KestCore::ClipboardPayload &payload);

// A clipboard that is only written to: for copying something back while nothing is watched.
class OfferingPasteboard : public KestCore::Pasteboard
{
public:
    std::int64_t changeCount() override { return 0; }
    std::vector<std::string> types() override { return {}; }
    std::optional<std::string> marker(std::string_view) override { return std::nullopt; }
    std::optional<std::string> ownerApplication() override { return std::nullopt; }
    Base::Result<std::optional<std::vector<KestCore::ClipboardFileReference>>>
    readFiles() override
    {
        return std::nullopt;
    }
    Base::Result<std::optional<Base::Bytes>> readImage(std::size_t) override
    {
        return std::nullopt;
    }
    Base::Result<std::optional<std::string>> readText(std::size_t) override
    {
        return std::nullopt;
    }
    bool reaches(const KestCore::ClipboardFileReference &file) override;
    Base::Result<void> write(const KestCore::ClipboardPayload &payload) override;
};

} // namespace Velvetnook
