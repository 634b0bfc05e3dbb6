// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Base/Result.h"

#include <QByteArray>
#include <QString>

#include <cstddef>
#include <vector>

namespace Velvetnook
{

// A file that some program of the desktop has opened or written.
struct RecentFile {
    QString path{};
    qint64 usedMs{}; // since 1970

    bool operator==(const RecentFile &) const = default;
};

// The list that the desktop's programs keep, in the user's data folder.
QString recentFileList();

// The latest of the files in such a list, each once, the last used first. What a program has
// marked as its own alone, and what lies on other machines, is left out. Fails for a list that
// is damaged: what stands before the damage would look like all there is.
[[nodiscard]] Base::Result<std::vector<RecentFile>> recentFilesIn(const QByteArray &list,
                                                                  std::size_t most);

// Reads it; one that is not there, or in which nothing stands yet, is empty. Fails in one way,
// also where it may not be read or is too large.
[[nodiscard]] Base::Result<std::vector<RecentFile>> readRecentFiles(const QString &list,
                                                                    std::size_t most);

} // namespace Velvetnook
