// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include <systemd/sd-bus.h>

#include <map>
#include <string>
#include <variant>

// What players put on the bus, whatever types they think are right for it.
namespace MediaPlayers
{

struct BusValue;
using BusMap = std::map<std::string, BusValue>;

// A value of any type: every number is a double, a list of texts is one text with commas, and
// what a player has no use for is nothing.
struct BusValue {
    std::variant<std::monostate, bool, double, std::string, BusMap> value{};
};

// Reads the a{sv} that comes next. Returns whether it is one; what was read before something
// wrong stays in `map`.
bool readMap(sd_bus_message *message, BusMap &map);
// Reads the variant that comes next.
bool readVariant(sd_bus_message *message, BusValue &value);

// The value of that key when it has this type, or the other value.
template <class T>
T valueOr(const BusMap &map, const std::string &key, const T &other)
{
    const auto found = map.find(key);
    const T *value = found == map.end() ? nullptr : std::get_if<T>(&found->second.value);
    return value == nullptr ? other : *value;
}

} // namespace MediaPlayers
