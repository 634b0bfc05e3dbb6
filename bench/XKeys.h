// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include <xcb/xcb.h>

#include <cstdint>

// Presses keys as a keyboard does, on a connection of its own with the X server.
class XKeys
{
public:
    XKeys();
    ~XKeys();
    XKeys(const XKeys &) = delete;
    XKeys &operator=(const XKeys &) = delete;

    bool isAvailable() const { return m_opcode != 0; }

    void press(std::uint32_t keysym) { send(XCB_KEY_PRESS, keysym); }
    void release(std::uint32_t keysym) { send(XCB_KEY_RELEASE, keysym); }
    void tap(std::uint32_t keysym);

private:
    void send(std::uint8_t type, std::uint32_t keysym);
    std::uint8_t keycodeOf(std::uint32_t keysym) const;

    xcb_connection_t *m_server;
    std::uint8_t m_opcode = 0; // of the extension for tests
};
