// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Velvetnook/Platform/Linux/XSelection.h"

#include <poll.h>
#include <xcb/xfixes.h>

#include <algorithm>
#include <array>
#include <span>

namespace Velvetnook
{

namespace
{

constexpr std::size_t kMostForms = 256;
constexpr std::size_t kMostNames = 2'000; // that are remembered
constexpr const char *kNoAnswer = "The application that copied does not answer.";
constexpr const char *kTooLarge = "What was copied is too large to keep.";

std::unexpected<Base::KestError> noAnswer()
{
    return std::unexpected(Base::KestError::unavailable(kNoAnswer));
}

std::unexpected<Base::KestError> tooLarge()
{
    return std::unexpected(Base::KestError::invalidData(kTooLarge));
}

std::span<const std::uint8_t> bytesOf(const xcb_get_property_reply_t &property)
{
    return {static_cast<const std::uint8_t *>(xcb_get_property_value(&property)),
            static_cast<std::size_t>(xcb_get_property_value_length(&property))};
}

std::uint8_t kindOf(const xcb_generic_event_t &event)
{
    return static_cast<std::uint8_t>(event.response_type & 0x7f);
}

} // namespace

std::unique_ptr<XSelection> XSelection::open(int stop)
{
    std::unique_ptr<XSelection> selection{new XSelection};
    int screen = 0;
    selection->m_stop = stop;
    selection->m_server.reset(xcb_connect(nullptr, &screen));
    const bool isThere = xcb_connection_has_error(selection->server()) == 0;
    return isThere && selection->prepare(screen) ? std::move(selection) : nullptr;
}

bool XSelection::prepare(int screen)
{
    auto roots = xcb_setup_roots_iterator(xcb_get_setup(server()));
    for (; screen > 0 && roots.rem > 1; --screen) {
        xcb_screen_next(&roots);
    }
    m_root = roots.data->root;
    const auto *extension = xcb_get_extension_data(server(), &xcb_xfixes_id);
    if (extension == nullptr || extension->present == 0 ||
        !Xcb::reply(xcb_xfixes_query_version_reply, server(),
                    xcb_xfixes_query_version(server(), 2, 0))) {
        return false;
    }
    m_firstEvent = extension->first_event;
    m_clipboard = Xcb::atom(server(), "CLIPBOARD");
    m_property = Xcb::atom(server(), "VELVETNOOK_CLIPBOARD");
    m_pieces = Xcb::atom(server(), "INCR");
    xcb_xfixes_select_selection_input(server(), m_root, m_clipboard,
                                      XCB_XFIXES_SELECTION_EVENT_MASK_SET_SELECTION_OWNER);
    // Asked for an answer: who copies from now on is heard.
    return Xcb::reply(xcb_get_selection_owner_reply, server(),
                      xcb_get_selection_owner(server(), m_clipboard)) != nullptr;
}

void XSelection::takeIn(const xcb_generic_event_t &event)
{
    if (kindOf(event) == m_firstEvent + XCB_XFIXES_SELECTION_NOTIFY) {
        const auto &change =
            reinterpret_cast<const xcb_xfixes_selection_notify_event_t &>(event);
        ++m_changes;
        m_owner = change.owner;
        m_time = change.selection_timestamp;
    }
}

std::int64_t XSelection::changeCount()
{
    while (const Event event{xcb_poll_for_event(server())}) {
        takeIn(*event);
    }
    return m_changes;
}

bool XSelection::canRead(std::chrono::milliseconds patience) const
{
    std::array<pollfd, 2> files{
        {{.fd = xcb_get_file_descriptor(server()), .events = POLLIN, .revents = 0},
         {.fd = m_stop, .events = POLLIN, .revents = 0}}};
    return poll(files.data(), files.size(), static_cast<int>(patience.count())) > 0 &&
           files[1].revents == 0;
}

XSelection::Event
XSelection::waitFor(const Transfer &transfer,
                    const std::function<bool(const xcb_generic_event_t &)> &isWanted)
{
    using std::chrono::milliseconds;
    const auto end = std::min(transfer.end, Clock::now() + kPatience);
    xcb_flush(server());
    while (xcb_connection_has_error(server()) == 0) {
        while (Event event{xcb_poll_for_event(server())}) {
            takeIn(*event);
            if (isWanted(*event)) {
                return event;
            }
        }
        const auto left =
            std::chrono::duration_cast<milliseconds>(end - Clock::now()) + milliseconds{1};
        if (left.count() <= 0 || !canRead(left)) {
            break;
        }
    }
    return nullptr;
}

// Told so, its owner goes on with the next piece.
Xcb::Owned<xcb_get_property_reply_t> XSelection::takeProperty(const Transfer &transfer) const
{
    const auto words = static_cast<std::uint32_t>(transfer.most / 4 + 2);
    return Xcb::reply(xcb_get_property_reply, server(),
                      xcb_get_property(server(), 1, transfer.window, m_property,
                                       XCB_GET_PROPERTY_TYPE_ANY, 0, words));
}

Result<Base::Bytes> XSelection::receivePieces(const Transfer &transfer)
{
    Base::Bytes whole;
    while (true) {
        const Event told = waitFor(transfer, [&](const xcb_generic_event_t &event) {
            const auto &change = reinterpret_cast<const xcb_property_notify_event_t &>(event);
            return kindOf(event) == XCB_PROPERTY_NOTIFY && change.window == transfer.window &&
                   change.atom == m_property && change.state == XCB_PROPERTY_NEW_VALUE;
        });
        const auto piece = told ? takeProperty(transfer) : nullptr;
        if (!piece) {
            return noAnswer();
        }
        const auto bytes = bytesOf(*piece);
        if (piece->bytes_after > 0 || whole.size() + bytes.size() > transfer.most) {
            return tooLarge();
        }
        if (bytes.empty()) {
            return whole;
        }
        whole.insert(whole.end(), bytes.begin(), bytes.end());
    }
}

Result<std::optional<Base::Bytes>> XSelection::receive(const Transfer &transfer,
                                                       xcb_atom_t form)
{
    xcb_convert_selection(server(), transfer.window, m_clipboard, form, m_property, m_time);
    const Event told = waitFor(transfer, [&](const xcb_generic_event_t &event) {
        return kindOf(event) == XCB_SELECTION_NOTIFY &&
               reinterpret_cast<const xcb_selection_notify_event_t &>(event).requestor ==
                   transfer.window;
    });
    if (!told) {
        return noAnswer();
    }
    const auto &answer = reinterpret_cast<const xcb_selection_notify_event_t &>(*told);
    if (answer.property == XCB_ATOM_NONE) {
        return std::nullopt;
    }
    const auto property = takeProperty(transfer);
    if (!property || property->type == XCB_ATOM_NONE) {
        return std::nullopt;
    }
    const auto bytes = bytesOf(*property);
    if (property->type == m_pieces) {
        std::uint32_t least = 0; // what it says of the size
        std::memcpy(&least, bytes.data(), std::min(bytes.size(), sizeof least));
        if (least > transfer.most) {
            return tooLarge();
        }
        return receivePieces(transfer);
    }
    if (property->bytes_after > 0 || bytes.size() > transfer.most) {
        return tooLarge();
    }
    return Base::Bytes{bytes.begin(), bytes.end()};
}

// Each transfer has a window of its own: what comes late goes with it, and an owner that still
// sends sees that nobody is there.
Result<std::optional<Base::Bytes>> XSelection::read(const std::string &form, std::size_t most)
{
    const Transfer transfer{
        .window = xcb_generate_id(server()), .most = most, .end = Clock::now() + kLongest};
    constexpr std::uint32_t kEvents = XCB_EVENT_MASK_PROPERTY_CHANGE;
    xcb_create_window(server(), 0, transfer.window, m_root, 0, 0, 1, 1, 0,
                      XCB_WINDOW_CLASS_INPUT_ONLY, XCB_COPY_FROM_PARENT, XCB_CW_EVENT_MASK,
                      &kEvents);
    auto received = receive(transfer, Xcb::atom(server(), form));
    xcb_destroy_window(server(), transfer.window);
    xcb_flush(server());
    return received;
}

std::string XSelection::nameOf(xcb_atom_t atom)
{
    if (const auto known = m_names.find(atom); known != m_names.end()) {
        return known->second;
    }
    const auto answer =
        Xcb::reply(xcb_get_atom_name_reply, server(), xcb_get_atom_name(server(), atom));
    std::string name;
    if (answer) {
        name.assign(xcb_get_atom_name_name(answer.get()),
                    static_cast<std::size_t>(xcb_get_atom_name_name_length(answer.get())));
    }
    if (m_names.size() < kMostNames) {
        m_names.emplace(atom, name);
    }
    return name;
}

Result<std::vector<std::string>> XSelection::forms()
{
    KEST_TRY(const auto answer, read("TARGETS", kMostForms * sizeof(xcb_atom_t)));
    std::vector<std::string> names;
    if (answer) {
        const Base::Bytes &list = *answer;
        for (std::size_t at = 0; at + sizeof(xcb_atom_t) <= list.size();
             at += sizeof(xcb_atom_t)) {
            xcb_atom_t atom = 0;
            std::memcpy(&atom, list.data() + at, sizeof atom);
            names.push_back(nameOf(atom));
        }
    }
    return names;
}

} // namespace Velvetnook
