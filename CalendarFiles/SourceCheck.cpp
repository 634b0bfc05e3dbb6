// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "CalendarFiles/SourceCheck.h"

#include "Base/File.h"
#include "CalendarFiles/CalendarLibrary.h"

#include <filesystem>

namespace CalendarFiles
{

namespace fs = std::filesystem;

Base::Result<std::string> wholePath(const std::string &typed)
{
    std::error_code error;
    std::string path = fs::absolute(typed, error).lexically_normal().string();
    if (error) {
        return std::unexpected(Base::fileError(typed, error));
    }
    while (path.size() > 1 && path.ends_with('/')) {
        path.pop_back();
    }
    return path;
}

Base::Result<void> checkSource(const std::string &path)
{
    KEST_TRY(auto library, CalendarLibrary::open());
    library.refresh({path});
    const auto &report = library.reports().front();
    std::error_code error;
    if (!fs::is_directory(path, error) && !report.problems.empty()) {
        return std::unexpected(KestError::invalidData(report.problems.front()));
    }
    return {};
}

std::vector<std::string> watchPlaces(const std::vector<std::string> &sources, std::size_t most)
{
    std::vector<std::string> places;
    for (const std::string &source : sources) {
        if (places.size() < most) {
            places.push_back(source);
        }
    }
    for (const std::string &source : sources) {
        // A file that is replaced by another of its name is news of its folder.
        places.push_back(fs::path{source}.parent_path().string());
        std::error_code error;
        constexpr auto kPatient = fs::directory_options::skip_permission_denied;
        fs::recursive_directory_iterator at{source, kPatient, error};
        for (const fs::recursive_directory_iterator end;
             !error && at != end && places.size() < most; at.increment(error)) {
            std::error_code ignored;
            if (at->is_directory(ignored) || at->path().extension() == ".ics") {
                places.push_back(at->path().string());
            }
        }
        if (places.size() >= most) {
            break;
        }
    }
    return places;
}

} // namespace CalendarFiles
