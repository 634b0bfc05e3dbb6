// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Assistants/HookEvent.h"
#include "Assistants/HookFile.h"

#include <cstdlib>

namespace
{

void require(bool holds)
{
    if (!holds) {
        std::abort();
    }
}

// What was put into a file comes out of it again and nothing else does.
void checkFile(const Assistants::HookTool &tool, std::string_view text)
{
    using Assistants::HookChange;
    const auto without = changedHooks(tool, HookChange::disconnect, text, "kest");
    if (!without) {
        return;
    }
    const auto with = changedHooks(tool, HookChange::connect, *without, "kest");
    if (with) {
        require(changedHooks(tool, HookChange::connect, *with, "kest") == *with);
        const auto again = changedHooks(tool, HookChange::disconnect, *with, "kest");
        require(again && changedHooks(tool, HookChange::connect, *again, "kest").has_value());
    }
}

} // namespace

// A hook's event, which must be one of ours or none; and a hook file, which must stay one.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const std::string_view bytes{reinterpret_cast<const char *>(data), size};
    const auto event = Assistants::readHookEvent("cursor", bytes);
    if (event && *event) {
        require(KestCore::validate(**event).has_value());
    }
    for (const auto &tool : Assistants::hookTools()) {
        checkFile(tool, bytes);
    }
    return 0;
}
