// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "KestCore/Clipboard/Pasteboard.h"
#include "Velvetnook/Application/Clipboard/ClipboardDesktop.h"

namespace Velvetnook
{

// Puts it on the clipboard of the desktop. On the main thread; false when that fails.
bool putOnClipboard(const KestCore::ClipboardPayload &payload);

// The clipboard as it is written to, on the main thread. Whether files are where they were is
// known beforehand, as a look at them may take its time.
class OfferingPasteboard : public KestCore::Pasteboard
{
public:
    OfferingPasteboard(bool areFilesThere, const std::function<bool()> &isOurs)
        : m_areFilesThere{areFilesThere}, m_isOurs{isOurs}
    {
    }
    std::int64_t changeCount() override { return 0; }
    Base::Result<std::vector<std::string>> types() override
    {
        return std::vector<std::string>{};
    }
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
    bool reaches(const KestCore::ClipboardFileReference &) override { return m_areFilesThere; }
    Base::Result<void> write(const KestCore::ClipboardPayload &payload) override;

private:
    bool m_areFilesThere;
    const std::function<bool()> &m_isOurs;
};

} // namespace Velvetnook
