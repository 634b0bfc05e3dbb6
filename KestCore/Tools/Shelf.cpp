// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "KestCore/Tools/Shelf.h"

#include "Base/File.h"
#include "KestCore/Tools/Texts.h"

#include <fmt/format.h>

#include <sys/stat.h>

#include <algorithm>

namespace fs = std::filesystem;

namespace KestCore
{

namespace
{

// What tells a file from others whatever its name; empty when there is no file. The kind of
// the mark stands first, as another system would need another.
Base::Bytes markOf(const fs::path &path)
{
    struct stat status{};
    if (lstat(path.c_str(), &status) != 0) {
        return {};
    }
    const std::string text = fmt::format("inode:{}:{}:{}", status.st_dev, status.st_ino,
                                         S_ISDIR(status.st_mode) ? 0 : status.st_size);
    return {text.begin(), text.end()};
}

bool isThere(const fs::path &path)
{
    struct stat status{};
    return lstat(path.c_str(), &status) == 0;
}

std::optional<std::string> findInFolder(const fs::path &folder, const Base::Bytes &mark)
{
    std::error_code error;
    for (fs::directory_iterator at{folder, error}, end; !error && at != end;
         at.increment(error)) {
        if (markOf(at->path()) == mark) {
            return at->path().string();
        }
    }
    return std::nullopt;
}

ShelfItem itemOf(const LocalRecord &record)
{
    return json::decode<ShelfItem>(std::string_view{record.body}).value_or(ShelfItem{});
}

// Without . and .. and a slash at the end, but with links as they are.
Result<fs::path> fullPath(const fs::path &path)
{
    std::error_code error;
    fs::path full = fs::absolute(path, error).lexically_normal();
    if (error) {
        return std::unexpected(Base::fileError(path, error));
    }
    return full.has_filename() || !full.has_relative_path() ? full : full.parent_path();
}

} // namespace

Result<LocalRecord> makeShelfFile(const fs::path &path)
{
    KEST_TRY(const fs::path full, fullPath(path));
    Base::Bytes mark = markOf(full);
    if (mark.empty()) {
        return std::unexpected(Base::fileError(full, {errno, std::generic_category()}));
    }
    LocalRecord record;
    const std::string name = full.has_filename() ? full.filename().string() : full.string();
    record.title = shortened(name, kLongestTitle);
    KEST_TRY(record.body,
             json::encode(ShelfItem{.path = full.string(), .bookmark = std::move(mark)}));
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

ShelfPlace placeOf(const ShelfItem &item)
{
    const fs::path path = item.path.value_or("");
    if (isThere(path)) {
        return {.state = ShelfPlace::State::present, .path = item.path};
    }
    if (item.bookmark && !item.bookmark->empty()) {
        if (auto found = findInFolder(path.parent_path(), *item.bookmark)) {
            return {.state = ShelfPlace::State::moved, .path = std::move(found)};
        }
    }
    return {.state = ShelfPlace::State::missing};
}

Result<std::vector<LocalRecord>> shelve(StateStore &store, const std::vector<fs::path> &paths,
                                        Base::Instant now)
{
    std::vector<LocalRecord> files;
    for (const fs::path &path : paths) {
        KEST_TRY(files.emplace_back(), makeShelfFile(path));
    }
    RecordList shelf{store, kShelfKind, now};
    KEST_TRY(const auto before, shelf.items());
    std::vector<LocalRecord> standing;
    std::vector<LocalRecord> added;
    for (LocalRecord &file : files) {
        const auto isSame = [path = itemOf(file).path](const LocalRecord &other) {
            return itemOf(other).path == path;
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
