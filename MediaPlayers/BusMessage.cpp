// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "MediaPlayers/BusMessage.h"

#include <cstdint>
#include <string_view>

namespace MediaPlayers
{

namespace
{

// Reads the basic value that comes next; the bus writes it to an address without a type.
template <class Wire>
bool readNext(sd_bus_message *message, char type, Wire &wire)
{
    return sd_bus_message_read_basic(message, type, static_cast<void *>(&wire)) > 0;
}

template <class Wire, class Kept>
bool readBasic(sd_bus_message *message, char type, BusValue &value)
{
    Wire wire{};
    if (!readNext(message, type, wire)) {
        return false;
    }
    value.value.emplace<Kept>(static_cast<Kept>(wire));
    return true;
}

bool readFlag(sd_bus_message *message, BusValue &value)
{
    int wire = 0; // the bus's own size of a boolean
    if (!readNext(message, SD_BUS_TYPE_BOOLEAN, wire)) {
        return false;
    }
    value.value = wire != 0;
    return true;
}

bool readTexts(sd_bus_message *message, BusValue &value)
{
    if (sd_bus_message_enter_container(message, SD_BUS_TYPE_ARRAY, "s") <= 0) {
        return false;
    }
    std::string joined;
    const char *text = nullptr;
    while (readNext(message, SD_BUS_TYPE_STRING, text)) {
        joined += joined.empty() ? "" : ", ";
        joined += text;
    }
    value.value = std::move(joined);
    return sd_bus_message_exit_container(message) >= 0;
}

bool readNested(sd_bus_message *message, BusValue &value)
{
    BusMap map;
    const bool isRead = readMap(message, map);
    value.value = std::move(map);
    return isRead;
}

bool readContents(sd_bus_message *message, std::string_view contents, BusValue &value)
{
    if (contents == "as") {
        return readTexts(message, value);
    }
    if (contents == "a{sv}") {
        return readNested(message, value); // the bus itself bounds the depth
    }
    switch (contents.size() == 1 ? contents.front() : '\0') {
    case SD_BUS_TYPE_STRING:
    case SD_BUS_TYPE_OBJECT_PATH:
        return readBasic<const char *, std::string>(message, contents.front(), value);
    case SD_BUS_TYPE_BOOLEAN:
        return readFlag(message, value);
    case SD_BUS_TYPE_DOUBLE:
        return readBasic<double, double>(message, contents.front(), value);
    case SD_BUS_TYPE_INT64:
        return readBasic<std::int64_t, double>(message, contents.front(), value);
    case SD_BUS_TYPE_UINT64:
        return readBasic<std::uint64_t, double>(message, contents.front(), value);
    case SD_BUS_TYPE_INT32:
        return readBasic<std::int32_t, double>(message, contents.front(), value);
    case SD_BUS_TYPE_UINT32:
        return readBasic<std::uint32_t, double>(message, contents.front(), value);
    default:
        return sd_bus_message_skip(message, std::string{contents}.c_str()) >= 0;
    }
}

} // namespace

bool readVariant(sd_bus_message *message, BusValue &value)
{
    char type = 0;
    const char *contents = nullptr;
    if (sd_bus_message_peek_type(message, &type, &contents) <= 0 ||
        type != SD_BUS_TYPE_VARIANT || contents == nullptr) {
        return false;
    }
    const std::string held = contents; // entering moves what it points into
    return sd_bus_message_enter_container(message, SD_BUS_TYPE_VARIANT, held.c_str()) > 0 &&
           readContents(message, held, value) && sd_bus_message_exit_container(message) >= 0;
}

bool readMap(sd_bus_message *message, BusMap &map)
{
    if (sd_bus_message_enter_container(message, SD_BUS_TYPE_ARRAY, "{sv}") <= 0) {
        return false;
    }
    while (sd_bus_message_enter_container(message, SD_BUS_TYPE_DICT_ENTRY, "sv") > 0) {
        const char *key = nullptr;
        if (!readNext(message, SD_BUS_TYPE_STRING, key)) {
            return false;
        }
        if (!readVariant(message, map[key]) || sd_bus_message_exit_container(message) < 0) {
            return false;
        }
    }
    return sd_bus_message_exit_container(message) >= 0;
}

} // namespace MediaPlayers
