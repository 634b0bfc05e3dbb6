// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "MonitorCore/ControlGroup.h"

#include "Base/Text.h"

#include <algorithm>
#include <cctype>
#include <charconv>

namespace MonitorCore
{

namespace
{

using Kind = ControlGroupOwner::Kind;

constexpr std::size_t kUuidLetters = 36;

// Removes the ending, if the text has it.
bool cutEnding(std::string_view &text, std::string_view ending)
{
    const bool has = text.ends_with(ending);
    text.remove_suffix(has ? ending.size() : 0);
    return has;
}

bool cutStart(std::string_view &text, std::string_view start)
{
    const bool has = text.starts_with(start);
    text.remove_prefix(has ? start.size() : 0);
    return has;
}

std::string_view withoutInstance(std::string_view unit)
{
    return unit.substr(0, unit.find('@'));
}

// Units write a dash of a name as "\x2d", since a bare one separates.
std::string unescaped(std::string_view text)
{
    std::string plain;
    while (!text.empty()) {
        unsigned char letter = 0;
        const std::string_view code = text.substr(0, 4);
        const bool isCode = code.size() == 4 && code.starts_with("\\x") &&
                            std::from_chars(code.data() + 2, code.data() + 4, letter, 16).ptr ==
                                code.data() + 4;
        plain += isCode ? static_cast<char>(letter) : text.front();
        text.remove_prefix(isCode ? code.size() : 1);
    }
    return plain;
}

bool looksRandom(std::string_view text)
{
    const auto isHex = [](unsigned char c) { return std::isxdigit(c) != 0; };
    const auto isDigit = [](unsigned char c) { return std::isdigit(c) != 0; };
    return std::ranges::all_of(text, isHex) && std::ranges::any_of(text, isDigit);
}

// What was started over the bus bears the name of its connection: "dbus-:1.2-org.example.Mail".
std::string withoutConnection(const std::string &id)
{
    const std::size_t dash = id.starts_with("dbus-:") ? id.find('-', 5) : std::string::npos;
    return dash == std::string::npos ? id : id.substr(dash + 1);
}

// "[LAUNCHER-]ID[-RANDOM]" without the "app-" before it. Only a scope always has the last part.
std::string applicationId(std::string_view name, bool hasRandom)
{
    auto parts = Base::split(name, '-');
    if (parts.size() > 1 && (hasRandom || looksRandom(parts.back()))) {
        parts.pop_back();
    }
    return withoutConnection(unescaped(parts.back()));
}

// "NAME.APP-UUID" or "NAME.APP.UUID", whose desktop file is NAME_APP.
std::string snapId(std::string_view name)
{
    if (name.size() > kUuidLetters + 1) {
        name.remove_suffix(kUuidLetters + 1);
    }
    std::string id{name};
    std::ranges::replace(id, '.', '_');
    return id;
}

// The slice of everything that the desktop starts, of no single application.
bool isSharedSlice(std::string_view name) { return name == "app-graphical"; }

ControlGroupOwner application(std::string id)
{
    return {.kind = id.empty() ? Kind::unknown : Kind::application, .id = std::move(id)};
}

ControlGroupOwner ownerOfScope(std::string_view name)
{
    if (cutStart(name, "app-")) {
        return application(applicationId(name, true));
    }
    return cutStart(name, "snap.") ? application(snapId(name)) : ControlGroupOwner{};
}

ControlGroupOwner ownerOfService(std::string_view name)
{
    name = withoutInstance(name);
    if (name.starts_with("dbus-:")) {
        return application(withoutConnection(unescaped(name)));
    }
    if (cutStart(name, "app-")) {
        return application(applicationId(name, false));
    }
    const bool isShared =
        name.empty() || name == "user" || name == "dbus" || name == "dbus-broker";
    return isShared
               ? ControlGroupOwner{}
               : ControlGroupOwner{.kind = Kind::service, .id = unescaped(name) + ".service"};
}

ControlGroupOwner ownerOfUnit(std::string_view unit)
{
    if (cutEnding(unit, ".scope")) {
        return ownerOfScope(unit);
    }
    if (cutEnding(unit, ".service")) {
        return ownerOfService(unit);
    }
    const bool isApplication =
        cutEnding(unit, ".slice") && !isSharedSlice(unit) && cutStart(unit, "app-");
    return isApplication ? application(applicationId(unit, false)) : ControlGroupOwner{};
}

} // namespace

ControlGroupOwner ownerOf(std::string_view controlGroup)
{
    for (const std::string_view unit : Base::split(controlGroup, '/')) {
        if (auto owner = ownerOfUnit(unit); owner.kind != Kind::unknown) {
            return owner;
        }
    }
    return {};
}

} // namespace MonitorCore
