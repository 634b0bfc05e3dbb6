// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "KestCore/Store/Backup.h"

#include <cstdlib>

namespace
{

std::string written(const KestCore::Backup &backup)
{
    const auto frame = KestCore::backupFrame(backup.companion(), backup.state(), {});
    if (!frame) {
        std::abort();
    }
    std::string bytes = frame->head;
    const std::size_t start = bytes.size();
    const auto walked =
        backup.forEachRecord([&](const KestCore::LocalRecord &record) -> Base::Result<void> {
            KEST_TRY(const std::string body, Base::json::encode(record));
            bytes += (bytes.size() == start ? "" : ",") + body;
            return {};
        });
    if (!walked) {
        std::abort();
    }
    return bytes + frame->tail;
}

} // namespace

// What is found sound must be sound again when it is written anew, and read the same.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const auto backup =
        KestCore::Backup::read(std::string{reinterpret_cast<const char *>(data), size});
    if (!backup) {
        return 0;
    }
    const std::string bytes = written(*backup);
    const auto again = KestCore::Backup::read(bytes);
    if (!again || again->state() != backup->state() ||
        again->companion() != backup->companion() || written(*again) != bytes) {
        std::abort();
    }
    return 0;
}
