// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Velvetnook/Platform/Linux/XPasteboard.h"

#include "Velvetnook/Application/Clipboard/CopiedFiles.h"
#include "Velvetnook/Platform/Linux/XApplications.h"

#include <QString>

#include <algorithm>

namespace Velvetnook
{

namespace
{

constexpr const char *kFileList = "text/uri-list";
constexpr const char *kImageForms[]{"image/png",  "image/jpeg", "image/webp",
                                    "image/tiff", "image/bmp",  "image/gif"};
constexpr const char *kTextForms[]{"UTF8_STRING", "text/plain;charset=utf-8", "text/plain",
                                   "STRING"};
constexpr std::size_t kLongestFileList = 1'000'000;
constexpr std::size_t kLongestMarker = 1'000;

// What is not in UTF-8, as STRING says of itself, is in the Latin alphabet of old.
std::string asText(const Base::Bytes &bytes)
{
    const QByteArray raw{reinterpret_cast<const char *>(bytes.data()),
                         static_cast<qsizetype>(bytes.size())};
    std::string text =
        raw.isValidUtf8() ? raw.toStdString() : QString::fromLatin1(raw).toStdString();
    text.erase(text.find_last_not_of('\0') + 1);
    std::ranges::replace(text, '\0', ' ');
    return text;
}

} // namespace

// Asked once for each change that is answered: the answers go together.
Result<std::vector<std::string>> XPasteboard::types()
{
    if (const std::int64_t change = changeCount(); change != m_askedChange) {
        KEST_TRY(m_types, m_selection->forms());
        m_askedChange = change;
    }
    return m_types;
}

Result<std::string> XPasteboard::firstOf(std::span<const char *const> forms)
{
    KEST_TRY(const auto offered, types());
    for (const char *form : forms) {
        if (std::ranges::find(offered, form) != offered.end()) {
            return form;
        }
    }
    return std::string{};
}

std::optional<std::string> XPasteboard::marker(std::string_view type)
{
    const auto read = m_selection->read(std::string{type}, kLongestMarker);
    if (!read) {
        return std::nullopt;
    }
    const auto &bytes = *read;
    return bytes ? std::optional{asText(*bytes)} : std::nullopt;
}

std::optional<std::string> XPasteboard::ownerApplication()
{
    return applicationOf(m_selection->server(), m_selection->root(), m_selection->owner());
}

Result<std::optional<std::vector<KestCore::ClipboardFileReference>>> XPasteboard::readFiles()
{
    const char *const forms[]{kFileList};
    KEST_TRY(const std::string form, firstOf(forms));
    if (form.empty()) {
        return std::nullopt;
    }
    KEST_TRY(const auto list, m_selection->read(kFileList, kLongestFileList));
    return list ? filesOf(asText(*list)) : std::nullopt;
}

// Who offers a text besides, as the cells of a table do, means the text.
Result<std::optional<Base::Bytes>> XPasteboard::readImage(std::size_t most)
{
    KEST_TRY(const std::string form, firstOf(kImageForms));
    KEST_TRY(const std::string text, firstOf(kTextForms));
    if (form.empty() || !text.empty()) {
        return std::nullopt;
    }
    return m_selection->read(form, most);
}

Result<std::optional<std::string>> XPasteboard::readText(std::size_t most)
{
    KEST_TRY(const std::string form, firstOf(kTextForms));
    if (form.empty()) {
        return std::nullopt;
    }
    auto read = m_selection->read(form, most);
    if (!read) {
        return std::unexpected(read.error());
    }
    std::optional<Base::Bytes> &bytes = *read;
    std::optional<std::string> text;
    if (bytes) {
        text = asText(*bytes);
        std::ranges::fill(*bytes, 0);
    }
    return text;
}

bool XPasteboard::reaches(const KestCore::ClipboardFileReference &file)
{
    return isReached(file);
}

Result<void> XPasteboard::write(const KestCore::ClipboardPayload &)
{
    return std::unexpected(Base::KestError::unavailable("It is only read here"));
}

} // namespace Velvetnook
