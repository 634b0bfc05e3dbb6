// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "KestCore/Tools/Shelf.h"

#include "Base/File.h"
#include "KestCore/Tools/Texts.h"

#include <fmt/format.h>

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/sysmacros.h>

#include <algorithm>
#include <map>

namespace fs = std::filesystem;

namespace KestCore
{

namespace
{

// What tells a file from others whatever its name: device and inode, and as inodes are given
// to new files again, when it was born. Where that is not known, its size stands in, with
// which a file that grew is not found again. The kind of the mark stands first.
struct Marks {
    std::string born{}; // empty: not known
    std::string sized{};

    const std::string &best() const { return born.empty() ? sized : born; }
};

std::optional<Marks> marksOf(const fs::path &path)
{
    struct statx status{};
    if (statx(AT_FDCWD, path.c_str(), AT_SYMLINK_NOFOLLOW | AT_NO_AUTOMOUNT,
              STATX_BASIC_STATS | STATX_BTIME, &status) != 0) {
        return std::nullopt;
    }
    const auto device = makedev(status.stx_dev_major, status.stx_dev_minor);
    Marks marks{.sized = fmt::format("inode:{}:{}:{}", device, status.stx_ino,
                                     S_ISDIR(status.stx_mode) ? 0 : status.stx_size)};
    if ((status.stx_mask & STATX_BTIME) != 0) {
        marks.born = fmt::format("birth:{}:{}:{}.{:09}", device, status.stx_ino,
                                 status.stx_btime.tv_sec, status.stx_btime.tv_nsec);
    }
    return marks;
}

bool isThere(const fs::path &path)
{
    struct stat status{};
    return lstat(path.c_str(), &status) == 0;
}

// The places of items that were not at their paths, by their marks.
using Sought = std::multimap<std::string, ShelfPlace *>;

// However many are sought, each file is looked at once.
void findInFolder(const fs::path &folder, Sought &sought)
{
    std::error_code error;
    for (fs::directory_iterator at{folder, error}, end; !error && at != end && !sought.empty();
         at.increment(error)) {
        const auto marks = marksOf(at->path());
        if (!marks) {
            continue;
        }
        for (const std::string &mark : {marks->born, marks->sized}) {
            const auto [first, last] = sought.equal_range(mark);
            for (const auto &[ignored, place] : std::ranges::subrange(first, last)) {
                *place = {.state = ShelfPlace::State::moved, .path = at->path().string()};
            }
            sought.erase(first, last);
        }
    }
}

// Without . and .. and a slash at the end, but with links as they are.
Result<fs::path> fullPath(const fs::path &path)
{
    std::error_code error;
    const fs::path full = fs::absolute(path, error).lexically_normal();
    if (error) {
        return std::unexpected(Base::fileError(path, error));
    }
    return full.has_filename() || !full.has_relative_path() ? full : full.parent_path();
}

} // namespace

Result<LocalRecord> makeShelfFile(const fs::path &path)
{
    KEST_TRY(const fs::path full, fullPath(path));
    const auto marks = marksOf(full);
    if (!marks) {
        return std::unexpected(Base::fileError(full, {errno, std::generic_category()}));
    }
    LocalRecord record;
    const std::string name = full.has_filename() ? full.filename().string() : full.string();
    record.title = shortened(name, kLongestTitle);
    const std::string &mark = marks->best();
    KEST_TRY(record.body,
             json::encode(ShelfItem{.path = full.string(),
                                    .bookmark = Base::Bytes{mark.begin(), mark.end()}}));
    return record;
}

Result<LocalRecord> makeShelfText(std::string text)
{
    LocalRecord record;
    record.title = titleFromText(text);
    if (record.title.empty()) {
        return std::unexpected(
            KestError::invalidData("There is nothing in the text for the shelf"));
    }
    KEST_CHECK(checkLength("The shelf", text));
    KEST_TRY(record.body, json::encode(ShelfItem{.text = std::move(text)}));
    return record;
}

std::vector<ShelfPlace> placesOf(std::span<const ShelfItem> items)
{
    std::vector<ShelfPlace> places(items.size());
    std::map<fs::path, Sought> soughtIn;
    for (std::size_t at = 0; at < items.size(); ++at) {
        const auto &[path, text, bookmark] = items[at];
        if (path && isThere(*path)) {
            places[at] = {.state = ShelfPlace::State::present, .path = path};
            continue;
        }
        places[at] = {.state = ShelfPlace::State::missing};
        if (path && bookmark && !bookmark->empty()) {
            soughtIn[fs::path{*path}.parent_path()].emplace(
                std::string{bookmark->begin(), bookmark->end()}, &places[at]);
        }
    }
    for (auto &[folder, sought] : soughtIn) {
        findInFolder(folder, sought);
    }
    return places;
}

ShelfPlace placeOf(const ShelfItem &item) { return placesOf({&item, 1}).front(); }

Result<std::vector<LocalRecord>> shelve(RecordList &shelf, const std::vector<fs::path> &paths)
{
    std::vector<LocalRecord> files;
    for (const fs::path &path : paths) {
        KEST_TRY(files.emplace_back(), makeShelfFile(path));
    }
    KEST_TRY(const auto before, shelf.items());
    std::vector<LocalRecord> standing;
    std::vector<LocalRecord> added;
    for (LocalRecord &file : files) {
        const auto isSame = [path = payloadOf<ShelfItem>(file).path](const LocalRecord &other) {
            return payloadOf<ShelfItem>(other).path == path;
        };
        const auto old = std::ranges::find_if(before, isSame);
        if (old != before.end()) {
            standing.push_back(*old);
        } else if (std::ranges::none_of(added, isSame)) {
            added.push_back(std::move(file));
        }
    }
    KEST_TRY(added, shelf.addAll(std::move(added), ListEnd::back));
    standing.insert(standing.end(), added.begin(), added.end());
    return standing;
}

} // namespace KestCore
