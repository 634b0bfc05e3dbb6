// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Assistants/HookFile.h"

#include "Assistants/HookEdit.h"
#include "Base/File.h"
#include "Base/Text.h"

#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cstdlib>

namespace Assistants
{

namespace fs = std::filesystem;
using Base::KestError;
using Base::Result;

namespace
{

constexpr std::size_t kLargestFile = 1'000'000;

std::unexpected<KestError> refuse(const fs::path &file, const char *why)
{
    return std::unexpected(KestError::unavailable(file.string() + ": " + why));
}

// What is there now; a link is followed, and what it leads to must be the user's own.
Result<std::optional<std::string>> ownFile(const fs::path &file)
{
    struct stat about{};
    if (::lstat(file.c_str(), &about) != 0) {
        return errno == ENOENT ? Result<std::optional<std::string>>{std::nullopt}
                               : refuse(file, "It cannot be looked at");
    }
    if (::stat(file.c_str(), &about) != 0) {
        return refuse(file, "It is a link that leads nowhere");
    }
    if (!S_ISREG(about.st_mode) || about.st_uid != ::geteuid()) {
        return refuse(file, "It is no file of your own");
    }
    KEST_TRY(std::string text, Base::readFile(file, kLargestFile));
    if (text.size() > kLargestFile) {
        return refuse(file, "It is larger than a megabyte");
    }
    return text;
}

// What lies there already is older than the first of our changes.
Result<std::optional<fs::path>> keepFirstCopy(const PlannedChange &plan)
{
    fs::path copy{plan.file.string() + ".before-velvetnook"};
    struct stat about{};
    if (::lstat(copy.c_str(), &about) == 0) {
        return copy;
    }
    if (!plan.before) {
        return std::nullopt;
    }
    KEST_TRY(auto kept, Base::ReplacingFile::create(copy));
    KEST_CHECK(kept.write(*plan.before));
    KEST_CHECK(kept.commit());
    return copy;
}

} // namespace

const std::vector<HookTool> &hookTools()
{
    static const std::vector<HookTool> kTools{
        {.name = "claude-code",
         .title = "Claude Code",
         .folder = ".claude",
         .file = "settings.json",
         .shape = HookTool::Shape::grouped,
         .events = {"SessionStart", "UserPromptSubmit", "PostToolUse", "Notification", "Stop",
                    "SessionEnd"},
         .whenNew = "{}\n"},
        {.name = "cursor",
         .title = "Cursor",
         .folder = ".cursor",
         .file = "hooks.json",
         .shape = HookTool::Shape::flat,
         .events = {"beforeSubmitPrompt", "afterFileEdit", "stop"},
         .whenNew = "{\n  \"version\": 1\n}\n"},
    };
    return kTools;
}

const HookTool *findHookTool(std::string_view name)
{
    const auto found = std::ranges::find(hookTools(), name, &HookTool::name);
    return found == hookTools().end() ? nullptr : &*found;
}

std::string hookCommand(const fs::path &kest)
{
    std::error_code error;
    const char *const path = std::getenv("PATH");
    for (const std::string_view folder : Base::split(path == nullptr ? "" : path, ':')) {
        const fs::path candidate = fs::path{folder} / "kest";
        if (::access(candidate.c_str(), X_OK) == 0) {
            if (fs::equivalent(candidate, kest, error)) {
                return "kest";
            }
            break;
        }
    }
    std::string quoted = kest.string();
    Base::replaceAll(quoted, "'", "'\\''");
    return "'" + quoted + "'";
}

Result<PlannedChange> planHooks(const HookTool &tool, HookChange change, const fs::path &home,
                                const std::string &command)
{
    const fs::path folder = home / tool.folder;
    std::error_code error;
    if (!fs::is_directory(folder, error)) {
        return std::unexpected(KestError::unavailable(
            std::string{tool.title} + " is not here: there is no " + folder.string()));
    }
    PlannedChange plan{.file = folder / tool.file};
    KEST_TRY(plan.before, ownFile(plan.file));
    if (!plan.before && change == HookChange::disconnect) {
        return plan;
    }
    auto after =
        changedHooks(tool, change, plan.before.value_or(std::string{tool.whenNew}), command);
    if (!after) {
        return std::unexpected(KestError::invalidData(
            plan.file.string() + ": " + after.error().message + ". Nothing was changed"));
    }
    plan.after = *std::move(after);
    return plan;
}

Result<std::optional<fs::path>> writeHooks(const PlannedChange &plan)
{
    KEST_TRY(auto file, Base::ReplacingFile::create(plan.file));
    KEST_CHECK(file.write(plan.after));
    // The tool itself may have written since the change was planned; then nothing is kept
    // either, as the copy would not be the file as it was.
    KEST_TRY(const auto now, ownFile(plan.file));
    if (now != plan.before) {
        return refuse(plan.file, "It has changed just now; try again");
    }
    KEST_TRY(auto copy, keepFirstCopy(plan));
    KEST_CHECK(file.commit());
    return copy;
}

} // namespace Assistants
