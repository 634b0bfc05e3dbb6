// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "KestCore/Store/Backup.h"

#include "Base/JsonReader.h"
#include "Base/JsonWriter.h"
#include "KestCore/Registry/ToolRegistry.h"

#include <array>
#include <unordered_set>

namespace KestCore
{

namespace
{

constexpr std::array<std::string_view, 9> kPortableKinds{"scratchpad", "note",   "link",
                                                         "timer",      "emoji",  "message",
                                                         "shortcut",   "prayer", "completion"};
constexpr std::string_view kFormat = "kest-native-backup";
constexpr std::int64_t kVersion = 3;
constexpr std::size_t kLongestBody = 10'000'000;

struct NativeBackup {
    json::RawJson companion{};
    std::string format{};
    std::int64_t version{};
    Base::Instant exportedAt{};
    NativeState state{};
    json::RawJson records{};
};
consteval auto jsonFields(Of<NativeBackup>)
{
    using R = NativeBackup;
    return std::tuple{
        json::Field{"companion", &R::companion}, json::Field{"format", &R::format},
        json::Field{"version", &R::version},     json::Field{"exportedAt", &R::exportedAt},
        json::Field{"state", &R::state},         json::Field{"records", &R::records},
    };
}
static_assert(json::coversAllMembers<NativeBackup>());

std::unexpected<KestError> invalidBackup()
{
    return std::unexpected(KestError::invalidData("Invalid backup"));
}

} // namespace

bool isPortable(std::string_view kind)
{
    return std::ranges::find(kPortableKinds, kind) != kPortableKinds.end();
}

Result<BackupFrame> backupFrame(const CompanionState &companion, const NativeState &state,
                                Base::Instant now)
{
    constexpr std::string_view kNoRecords = "[]";
    KEST_TRY(const std::string companionText, json::encode(companion));
    KEST_TRY(std::string text, json::encode(NativeBackup{.companion = {companionText},
                                                         .format = std::string{kFormat},
                                                         .version = kVersion,
                                                         .exportedAt = now,
                                                         .state = state,
                                                         .records = {kNoRecords}}));
    const std::size_t cut = text.rfind(kNoRecords) + 1;
    BackupFrame frame{.head = {}, .tail = text.substr(cut)};
    text.resize(cut);
    frame.head = std::move(text);
    return frame;
}

Result<Backup> Backup::read(std::string bytes)
{
    if (bytes.size() > kLargestBackup) {
        return std::unexpected(KestError::invalidData("Backup exceeds 50 MB"));
    }
    Backup backup{std::move(bytes)};
    KEST_CHECK(backup.readFrame());
    Result<void> firstRefusal;
    KEST_CHECK(backup.proveRecords(firstRefusal));
    KEST_CHECK(backup.proveState());
    KEST_CHECK(firstRefusal);
    return backup;
}

Result<void> Backup::readFrame()
{
    auto document = json::decode<NativeBackup>(m_text);
    if (!document || document->format != kFormat || document->version != kVersion) {
        return invalidBackup();
    }
    auto companion = readStoredCompanion(json::PaddedText{document->companion.text});
    if (!companion) {
        return invalidBackup();
    }
    m_recordsAt =
        static_cast<std::size_t>(document->records.text.data() - m_text.view().data());
    m_recordsSize = document->records.text.size();
    m_exportedAt = document->exportedAt;
    m_companion = *std::move(companion);
    m_state = std::move(document->state);
    return {};
}

// A record that its kind's rules refuse is remembered rather than reported, as what is wrong
// with the file or its state comes first.
Result<void> Backup::proveRecords(Result<void> &firstRefusal)
{
    std::unordered_set<std::string> ids;
    const auto walked = forEachRecord([&](const LocalRecord &record) -> Result<void> {
        if (std::ssize(ids) == kMostBackupRecords || !isPortable(record.kind) ||
            record.body.size() > kLongestBody || !ids.insert(record.id).second) {
            return invalidBackup();
        }
        ++m_counts[record.kind];
        if (firstRefusal) {
            firstRefusal = validate(record);
        }
        return {};
    });
    return walked ? walked : invalidBackup();
}

Result<void> Backup::proveState()
{
    ToolRegistry::appendMissing(m_state.order);
    return validate(m_state);
}

Result<void> Backup::forEachRecord(const RecordTaker &take) const
{
    const json::RawJson records{m_text.view().substr(m_recordsAt, m_recordsSize)};
    return json::forEachItem(records, [&](const json::PaddedText &text) -> Result<void> {
        KEST_TRY(const LocalRecord record, decodeLocalRecord(text));
        return take(record);
    });
}

} // namespace KestCore
