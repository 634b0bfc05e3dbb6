// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Base/Json.h"
#include "Base/Result.h"
#include "Velvetnook/Platform/Xcb.h"

#include <chrono>
#include <functional>
#include <map>
#include <optional>
#include <string>

namespace Velvetnook
{

using Base::Result;

// The selection CLIPBOARD of the X server, over a connection of its own. Every wait for the
// application that copied is bounded, in time and in bytes, and ends at once when `stop` can be
// read from. Lives on one thread.
class XSelection
{
public:
    static constexpr std::chrono::milliseconds kPatience{1'500}; // for each answer
    static constexpr std::chrono::milliseconds kLongest{6'000};  // for all of them

    // Null where there is no X server, or one that does not tell of changes.
    static std::unique_ptr<XSelection> open(int stop);

    xcb_connection_t *server() const { return m_server.get(); }
    xcb_window_t root() const { return m_root; }

    // Another number whenever another application has taken the selection.
    std::int64_t changeCount();
    // The window by which it was taken last.
    xcb_window_t owner() const { return m_owner; }

    // What the selection is in this form; nothing where its owner does not give it. Fails when
    // the owner does not answer (unavailable), or gives more than `most` bytes.
    [[nodiscard]] Result<std::optional<Base::Bytes>> read(const std::string &form,
                                                          std::size_t most);
    // The names of the forms that its owner gives; empty when it does not say. Fails as `read`.
    [[nodiscard]] Result<std::vector<std::string>> forms();

private:
    using Clock = std::chrono::steady_clock;
    using Event = Xcb::Owned<xcb_generic_event_t>;
    struct Disconnect {
        void operator()(xcb_connection_t *server) const { xcb_disconnect(server); }
    };
    struct Transfer {
        xcb_window_t window{};
        std::size_t most{};
        Clock::time_point end{};
    };

    XSelection() = default;

    bool prepare(int screen);
    void takeIn(const xcb_generic_event_t &event);
    // Waits for the event; null when it does not come.
    Event waitFor(const Transfer &transfer,
                  const std::function<bool(const xcb_generic_event_t &)> &isWanted);
    bool canRead(std::chrono::milliseconds patience) const;
    [[nodiscard]] Result<std::optional<Base::Bytes>> receive(const Transfer &transfer,
                                                             xcb_atom_t form);
    [[nodiscard]] Result<Base::Bytes> receivePieces(const Transfer &transfer);
    Xcb::Owned<xcb_get_property_reply_t> takeProperty(const Transfer &transfer) const;
    std::string nameOf(xcb_atom_t atom);

    std::unique_ptr<xcb_connection_t, Disconnect> m_server;
    int m_stop = -1;
    xcb_window_t m_root = 0;
    std::uint8_t m_firstEvent = 0; // of the extension that tells of changes
    xcb_atom_t m_clipboard = 0;
    xcb_atom_t m_property = 0;
    xcb_atom_t m_pieces = 0;
    std::int64_t m_changes = 0;
    xcb_window_t m_owner = 0;
    xcb_timestamp_t m_time = XCB_CURRENT_TIME;
    std::map<xcb_atom_t, std::string> m_names;
};

} // namespace Velvetnook
