// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Assistants/HookEvent.h"

#include "Base/JsonReader.h"

#include <algorithm>
#include <array>
#include <utility>

namespace Assistants
{

namespace json = Base::json;
using Base::KestError;
using Base::Of;
using Base::Result;
using KestCore::AssistantState;

namespace
{

// All that is read of it: a prompt or an answer beside these is passed over.
struct Hook {
    std::string name{};
    std::optional<std::string> session{};
    std::optional<std::string> conversation{};
    std::optional<std::string> cwd{};
    std::optional<std::vector<std::string>> roots{};
};
consteval auto jsonFields(Of<Hook>)
{
    using R = Hook;
    return std::tuple{json::Field{"session_id", &R::session},
                      json::Field{"conversation_id", &R::conversation},
                      json::Field{"cwd", &R::cwd}, json::Field{"workspace_roots", &R::roots},
                      json::Field{"hook_event_name", &R::name}};
}
static_assert(json::coversAllMembers<Hook>());

std::optional<AssistantState> stateOf(std::string_view name)
{
    using enum AssistantState;
    static constexpr std::array<std::pair<std::string_view, AssistantState>, 17> kStates{{
        {"SessionStart", waiting},
        {"UserPromptSubmit", working},
        {"PreToolUse", working},
        {"PostToolUse", working},
        {"PreCompact", working},
        {"SubagentStop", working},
        {"Notification", waiting},
        {"PermissionRequest", waiting},
        {"Stop", waiting},
        {"SessionEnd", ended},
        {"beforeSubmitPrompt", working},
        {"beforeReadFile", working},
        {"beforeShellExecution", working},
        {"beforeMCPExecution", working},
        {"afterFileEdit", working},
        {"stop", waiting},
        {"sessionEnd", ended},
    }};
    const auto *const found =
        std::ranges::find(kStates, name, [](const auto &row) { return row.first; });
    return found == kStates.end() ? std::nullopt : std::optional{found->second};
}

} // namespace

Result<std::optional<KestCore::AssistantEvent>> readHookEvent(std::string_view tool,
                                                              std::string_view text)
{
    if (text.size() > kLongestHook) {
        return std::unexpected(KestError::invalidData("The event is longer than a megabyte"));
    }
    KEST_TRY(const Hook hook, json::decode<Hook>(text));
    const auto state = stateOf(hook.name);
    if (!state) {
        return std::nullopt;
    }
    KestCore::AssistantEvent event{.tool = std::string{tool},
                                   .session = KestCore::assistantName(
                                       hook.session.value_or(hook.conversation.value_or(""))),
                                   .state = *state};
    const std::string folder = KestCore::assistantFolder(
        hook.cwd.value_or(hook.roots && !hook.roots->empty() ? hook.roots->front() : ""));
    if (!folder.empty()) {
        event.folder = folder;
    }
    KEST_CHECK(KestCore::validate(event));
    return event;
}

} // namespace Assistants
