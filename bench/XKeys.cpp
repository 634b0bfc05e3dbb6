// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "bench/XKeys.h"

#include <xcb/xcbext.h>

#include <array>
#include <cstdlib>
#include <memory>

namespace
{

struct Free {
    void operator()(void *memory) const { std::free(memory); }
};

// The extension's one request that is needed, as it goes over the wire.
struct FakeInput {
    std::uint8_t major{};
    std::uint8_t minor = 2;
    std::uint16_t length = 9; // in words of four bytes
    std::uint8_t type{};
    std::uint8_t detail{};
    std::uint16_t pad0{};
    std::uint32_t delay{};
    std::uint32_t root{};
    std::array<std::uint32_t, 2> pad1{};
    std::array<std::int16_t, 2> place{};
    std::array<std::uint8_t, 7> pad2{};
    std::uint8_t device{};
};
static_assert(sizeof(FakeInput) == 36);

} // namespace

XKeys::XKeys() : m_server{xcb_connect(nullptr, nullptr)}
{
    if (xcb_connection_has_error(m_server) != 0) {
        return;
    }
    const std::unique_ptr<xcb_query_extension_reply_t, Free> extension{
        xcb_query_extension_reply(m_server, xcb_query_extension(m_server, 5, "XTEST"),
                                  nullptr)};
    m_opcode = extension && extension->present != 0 ? extension->major_opcode : std::uint8_t{0};
}

XKeys::~XKeys() { xcb_disconnect(m_server); }

std::uint8_t XKeys::keycodeOf(std::uint32_t keysym) const
{
    const xcb_setup_t *setup = xcb_get_setup(m_server);
    const auto count = static_cast<std::uint8_t>(setup->max_keycode - setup->min_keycode + 1);
    const std::unique_ptr<xcb_get_keyboard_mapping_reply_t, Free> reply{
        xcb_get_keyboard_mapping_reply(
            m_server, xcb_get_keyboard_mapping(m_server, setup->min_keycode, count), nullptr)};
    if (!reply) {
        return 0;
    }
    const xcb_keysym_t *keysyms = xcb_get_keyboard_mapping_keysyms(reply.get());
    const int size = xcb_get_keyboard_mapping_keysyms_length(reply.get());
    for (int index = 0; index < size; ++index) {
        if (keysyms[index] == keysym) {
            return static_cast<std::uint8_t>(setup->min_keycode +
                                             index / reply->keysyms_per_keycode);
        }
    }
    return 0;
}

void XKeys::send(std::uint8_t type, std::uint32_t keysym)
{
    // Never in the same millisecond as the one before, however busy the server is: a release
    // and a press of one time are what a key sends that is held down.
    FakeInput request{.type = type, .detail = keycodeOf(keysym), .delay = 1};
    const xcb_protocol_request_t kind{
        .count = 1, .ext = nullptr, .opcode = m_opcode, .isvoid = 1};
    // The library asks for two places of its own before the parts of a request.
    std::array<iovec, 3> parts{};
    parts[2] = {.iov_base = &request, .iov_len = sizeof request};
    xcb_send_request(m_server, 0, parts.data() + 2, &kind);
    xcb_flush(m_server);
}

void XKeys::tap(std::uint32_t keysym)
{
    press(keysym);
    release(keysym);
}
