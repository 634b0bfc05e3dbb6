// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Assistants/HookEdit.h"

#include "Assistants/HookFile.h"
#include "Base/Text.h"

#include <fmt/format.h>

#include <algorithm>

namespace Assistants
{

using Base::KestError;
using Base::Result;
using Kind = JsonSpan::Kind;

namespace
{

// As the file itself is indented.
std::string indentOf(std::string_view text)
{
    for (std::size_t at = text.find('\n'); at != std::string_view::npos;
         at = text.find('\n', at + 1)) {
        const std::size_t end = text.find_first_not_of(" \t", at + 1);
        if (end != std::string_view::npos && end > at + 1 && text[end] != '\n') {
            return std::string{text.substr(at + 1, end - at - 1)};
        }
    }
    return "  ";
}

bool isOurs(const HookTool &tool, const JsonSpan &entry)
{
    const JsonSpan *const command = entry.member("command");
    return command != nullptr && command->kind == Kind::text && isOurHook(tool, command->text);
}

// The entries that are all ours, and what is empty without them.
class OurEntries
{
public:
    OurEntries(const HookTool &tool, const JsonSpan &hooks) : m_tool(tool)
    {
        if (allOf(hooks, [this](const JsonSpan &event) {
                return allOf(event, [this](const JsonSpan &entry) { return isGone(entry); });
            })) {
            m_gone.insert(&hooks);
        }
    }

    bool contains(const JsonSpan &entry) const { return m_gone.contains(&entry); }
    const std::set<const JsonSpan *> &all() const { return m_gone; }

private:
    template <class Test>
    bool allOf(const JsonSpan &parent, const Test &isOurChild)
    {
        std::size_t count = 0;
        for (const JsonSpan &child : parent.children) {
            if (isOurChild(child)) {
                m_gone.insert(&child);
                ++count;
            }
        }
        return count > 0 && count == parent.children.size();
    }

    bool isGone(const JsonSpan &entry)
    {
        if (m_tool.shape == HookTool::Shape::flat) {
            return isOurs(m_tool, entry);
        }
        const JsonSpan *const commands = entry.member("hooks");
        return commands != nullptr &&
               allOf(*commands, [this](const JsonSpan &one) { return isOurs(m_tool, one); });
    }

    const HookTool &m_tool;
    std::set<const JsonSpan *> m_gone;
};

bool holdsOurs(const HookTool &tool, const JsonSpan &event)
{
    return std::ranges::any_of(event.children, [&](const JsonSpan &entry) {
        const JsonSpan *const commands = entry.member("hooks");
        return tool.shape == HookTool::Shape::flat
                   ? isOurs(tool, entry)
                   : commands != nullptr &&
                         std::ranges::any_of(commands->children, [&](const JsonSpan &one) {
                             return isOurs(tool, one);
                         });
    });
}

std::string entryFor(const HookTool &tool, const std::string &command)
{
    const std::string call = quotedJson(fmt::format("{} hook {}", command, tool.name));
    return tool.shape == HookTool::Shape::flat
               ? fmt::format(R"({{ "command": {} }})", call)
               : fmt::format(
                     R"({{ "hooks": [{{ "type": "command", "command": {}, "timeout": 5 }}] }})",
                     call);
}

std::unexpected<KestError> notUnderstood(std::string_view what)
{
    return std::unexpected(KestError::invalidData(fmt::format("\"{}\" is not as usual", what)));
}

// That every event of ours is a list, where it is there.
Result<void> check(const HookTool &tool, const JsonSpan &hooks)
{
    if (hooks.kind != Kind::object) {
        return notUnderstood("hooks");
    }
    for (const std::string_view event : tool.events) {
        const JsonSpan *const list = hooks.member(event);
        if (list != nullptr && list->kind != Kind::array) {
            return notUnderstood(event);
        }
    }
    return {};
}

void addOurs(const HookTool &tool, const JsonSpan &root, const std::string &command,
             TextEdits &edits)
{
    const JsonSpan *const hooks = root.member("hooks");
    const std::string entry = entryFor(tool, command);
    const auto eventAt = [&](std::string_view event, int depth) {
        return fmt::format("\"{}\": [{}{}{}]", event, edits.lineBreak(depth + 1), entry,
                           edits.lineBreak(depth));
    };
    std::vector<std::string> missing;
    for (const std::string_view event : tool.events) {
        const JsonSpan *const list = hooks == nullptr ? nullptr : hooks->member(event);
        if (list == nullptr) {
            missing.push_back(eventAt(event, 2));
        } else if (!holdsOurs(tool, *list)) {
            edits.append(*list, {entry}, 2);
        }
    }
    if (hooks != nullptr && !missing.empty()) {
        edits.append(*hooks, missing, 1);
    } else if (hooks == nullptr) {
        const std::string separator = "," + edits.lineBreak(2);
        edits.append(root,
                     {fmt::format("\"hooks\": {{{}{}{}}}", edits.lineBreak(2),
                                  fmt::join(missing, separator), edits.lineBreak(1))},
                     0);
    }
}

} // namespace

TextEdits::TextEdits(std::string_view text) : m_text(text), m_indent(indentOf(text)) {}

std::string TextEdits::lineBreak(int depth) const
{
    std::string text = "\n";
    for (int level = 0; level < depth; ++level) {
        text += m_indent;
    }
    return text;
}

void TextEdits::append(const JsonSpan &container, const std::vector<std::string> &items,
                       int depth)
{
    const std::string separator = "," + lineBreak(depth + 1);
    const std::string joined = fmt::format("{}", fmt::join(items, separator));
    if (container.children.empty()) {
        m_edits.push_back({.begin = container.value + 1,
                           .end = container.end - 1,
                           .text = lineBreak(depth + 1) + joined + lineBreak(depth)});
    } else {
        const std::size_t end = container.children.back().end;
        m_edits.push_back({.begin = end, .end = end, .text = separator + joined});
    }
}

void TextEdits::removeRun(const JsonSpan &parent, std::size_t first, std::size_t last)
{
    const auto &children = parent.children;
    Edit edit{.begin = parent.value + 1, .end = parent.end - 1};
    if (first > 0) {
        edit = {.begin = children[first - 1].end, .end = children[last].end};
    } else if (last + 1 < children.size()) {
        edit = {.begin = children[first].begin, .end = children[last + 1].begin};
    }
    m_edits.push_back(std::move(edit));
}

void TextEdits::remove(const JsonSpan &root, const std::set<const JsonSpan *> &gone)
{
    const auto &children = root.children;
    for (std::size_t at = 0; at < children.size(); ++at) {
        if (!gone.contains(&children[at])) {
            remove(children[at], gone);
            continue;
        }
        std::size_t last = at;
        while (last + 1 < children.size() && gone.contains(&children[last + 1])) {
            ++last;
        }
        removeRun(root, at, last);
        at = last;
    }
}

std::string TextEdits::result() const
{
    auto edits = m_edits;
    std::ranges::sort(edits, std::ranges::greater{}, &Edit::begin);
    std::string text{m_text};
    for (const Edit &edit : edits) {
        text.replace(edit.begin, edit.end - edit.begin, edit.text);
    }
    return text;
}

bool isOurHook(const HookTool &tool, std::string_view command)
{
    const std::string ending = fmt::format(" hook {}", tool.name);
    command = Base::trimmed(command);
    if (!command.ends_with(ending)) {
        return false;
    }
    command.remove_suffix(ending.size());
    if (command.size() > 1 && command.ends_with('\'') && command.starts_with('\'')) {
        command = command.substr(1, command.size() - 2);
    }
    return command.substr(command.rfind('/') + 1) == "kest";
}

Result<std::string> changedHooks(const HookTool &tool, HookChange change, std::string_view text,
                                 const std::string &command)
{
    KEST_TRY(const JsonSpan root, spansOf(text));
    if (root.kind != Kind::object) {
        return notUnderstood("{}");
    }
    const JsonSpan *const hooks = root.member("hooks");
    if (hooks != nullptr) {
        KEST_CHECK(check(tool, *hooks));
    }
    TextEdits edits{text};
    if (change == HookChange::connect) {
        addOurs(tool, root, command, edits);
    } else if (hooks != nullptr) {
        edits.remove(root, OurEntries{tool, *hooks}.all());
    }
    std::string changed = edits.result();
    // What we write must be read by who reads it next.
    KEST_TRY(const JsonSpan proof, spansOf(changed));
    return changed;
}

} // namespace Assistants
