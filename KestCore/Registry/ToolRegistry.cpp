// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "KestCore/Registry/ToolRegistry.h"

#include "Base/JsonReader.h"
#include "Base/JsonWriter.h"
#include "KestCore/Resources.h"

#include <algorithm>

template Base::Result<std::vector<KestCore::ToolDescriptor>>
Base::json::decode<std::vector<KestCore::ToolDescriptor>>(const Base::json::PaddedText &);
template Base::Result<std::string>
Base::json::encode(const std::vector<KestCore::ToolDescriptor> &);

namespace KestCore
{

const std::vector<ToolDescriptor> &ToolRegistry::tools()
{
    static const auto kTools =
        decodeResource<std::vector<ToolDescriptor>>("features", "KestCore/Registry");
    return kTools;
}

bool ToolRegistry::knows(std::string_view id)
{
    return std::ranges::find(tools(), id, &ToolDescriptor::id) != tools().end();
}

bool ToolRegistry::knowsAll(std::span<const std::string> ids)
{
    return std::ranges::all_of(ids, [](const std::string &id) { return knows(id); });
}

std::vector<std::string> ToolRegistry::nonDevotionalIds(std::span<const ToolDescriptor> tools)
{
    std::vector<std::string> ids;
    for (const ToolDescriptor &tool : tools) {
        if (tool.category != "faith") {
            ids.push_back(tool.id);
        }
    }
    return ids;
}

bool ToolRegistry::appendMissing(std::vector<std::string> &order)
{
    const std::size_t before = order.size();
    for (const ToolDescriptor &tool : tools()) {
        if (std::ranges::find(order, tool.id) == order.end()) {
            order.push_back(tool.id);
        }
    }
    return order.size() != before;
}

} // namespace KestCore
