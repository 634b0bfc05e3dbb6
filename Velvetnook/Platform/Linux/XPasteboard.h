// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "KestCore/Clipboard/Pasteboard.h"
#include "Velvetnook/Platform/Linux/XSelection.h"

#include <span>

namespace Velvetnook
{

// The clipboard of the X server, in the forms in which programs here offer what was copied. A
// program that does not answer in time is told as such. It is only read here: what is put there
// is put by the toolkit.
class XPasteboard : public KestCore::Pasteboard
{
public:
    explicit XPasteboard(std::unique_ptr<XSelection> selection)
        : m_selection{std::move(selection)}
    {
    }

    XSelection &selection() { return *m_selection; }

    std::int64_t changeCount() override { return m_selection->changeCount(); }
    Result<std::vector<std::string>> types() override;
    std::optional<std::string> marker(std::string_view type) override;
    std::optional<std::string> ownerApplication() override;
    Result<std::optional<std::vector<KestCore::ClipboardFileReference>>> readFiles() override;
    Result<std::optional<Base::Bytes>> readImage(std::size_t most) override;
    Result<std::optional<std::string>> readText(std::size_t most) override;
    bool reaches(const KestCore::ClipboardFileReference &file) override;
    Result<void> write(const KestCore::ClipboardPayload &payload) override;

private:
    [[nodiscard]] Result<std::string> firstOf(std::span<const char *const> forms);

    std::unique_ptr<XSelection> m_selection;
    std::int64_t m_askedChange = -1;
    std::vector<std::string> m_types; // of that change
};

} // namespace Velvetnook
