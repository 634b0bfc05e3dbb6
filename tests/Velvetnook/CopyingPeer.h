// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Velvetnook/Platform/Xcb.h"

#include <poll.h>

#include <algorithm>
#include <map>
#include <mutex>
#include <string>
#include <thread>
#include <vector>

// Another application that copies: it owns the selection CLIPBOARD over a connection of its own
// and answers as well, or as badly, as it is told to.
class CopyingPeer
{
public:
    struct Offer {
        std::map<std::string, std::string> forms{};
        bool isSilent = false;     // never answers
        int unanswered = 0;        // or not so many of the first questions
        bool isInPieces = false;   // sends 60,000 bytes at a time
        bool isEndless = false;    // and never comes to an end
        bool stopsHalfway = false; // or sends one piece and no more
        std::size_t claimed = 0;   // what it says beforehand of the size
    };

    explicit CopyingPeer(const std::string &application)
        : m_server{xcb_connect(nullptr, nullptr), &xcb_disconnect},
          m_root{xcb_setup_roots_iterator(xcb_get_setup(server())).data->root},
          m_window{xcb_generate_id(server())}
    {
        xcb_create_window(server(), 0, m_window, m_root, 0, 0, 1, 1, 0,
                          XCB_WINDOW_CLASS_INPUT_ONLY, XCB_COPY_FROM_PARENT, 0, nullptr);
        const std::string names = application + '\0' + application + '\0';
        xcb_change_property(server(), XCB_PROP_MODE_REPLACE, m_window, XCB_ATOM_WM_CLASS,
                            XCB_ATOM_STRING, 8, static_cast<std::uint32_t>(names.size()),
                            names.data());
        m_worker = std::jthread{[this](const std::stop_token &stop) { run(stop); }};
    }

    void copy(Offer offer)
    {
        {
            const std::scoped_lock lock{m_mutex};
            m_offer = std::move(offer);
        }
        take();
    }
    void copyText(const std::string &text) { copy({.forms = {{"UTF8_STRING", text}}}); }
    // Says that there is something else, as a program does that copies without end.
    void take()
    {
        xcb_set_selection_owner(server(), m_window, atom("CLIPBOARD"), XCB_CURRENT_TIME);
        Velvetnook::Xcb::reply(xcb_get_selection_owner_reply, server(),
                               xcb_get_selection_owner(server(), atom("CLIPBOARD")));
    }
    int requests() const
    {
        const std::scoped_lock lock{m_mutex};
        return m_requests;
    }
    // Bytes of what is sent in pieces.
    std::size_t given() const
    {
        const std::scoped_lock lock{m_mutex};
        return m_given;
    }
    // Of content, not of what there is and how it is marked.
    std::vector<std::string> asked() const
    {
        const std::scoped_lock lock{m_mutex};
        return m_asked;
    }

private:
    struct Sending {
        xcb_window_t requestor{};
        xcb_atom_t property{};
        xcb_atom_t form{};
        std::string rest{};
        std::size_t at{};
        bool isEndless{};
        bool isStopping{};
        bool isOver{};
    };

    xcb_connection_t *server() const { return m_server.get(); }
    xcb_atom_t atom(const std::string &name) const
    {
        return Velvetnook::Xcb::atom(server(), name);
    }

    void run(const std::stop_token &stop)
    {
        while (!stop.stop_requested()) {
            pollfd file{
                .fd = xcb_get_file_descriptor(server()), .events = POLLIN, .revents = 0};
            poll(&file, 1, 5);
            while (const Velvetnook::Xcb::Owned<xcb_generic_event_t> event{
                xcb_poll_for_event(server())}) {
                const auto kind = event->response_type & 0x7f;
                const std::scoped_lock lock{m_mutex};
                if (kind == XCB_SELECTION_REQUEST) {
                    answer(*reinterpret_cast<xcb_selection_request_event_t *>(event.get()));
                } else if (kind == XCB_PROPERTY_NOTIFY) {
                    sendNext(*reinterpret_cast<xcb_property_notify_event_t *>(event.get()));
                }
            }
        }
    }

    void answer(const xcb_selection_request_event_t &request)
    {
        ++m_requests;
        if (m_offer.isSilent || m_offer.unanswered-- > 0) {
            return;
        }
        const auto name = Velvetnook::Xcb::reply(xcb_get_atom_name_reply, server(),
                                                 xcb_get_atom_name(server(), request.target));
        const std::string form{
            xcb_get_atom_name_name(name.get()),
            static_cast<std::size_t>(xcb_get_atom_name_name_length(name.get()))};
        xcb_selection_notify_event_t told{};
        told.response_type = XCB_SELECTION_NOTIFY;
        told.time = request.time;
        told.requestor = request.requestor;
        told.selection = request.selection;
        told.target = request.target;
        const auto found = m_offer.forms.find(form);
        if (form == "TARGETS") {
            std::vector<xcb_atom_t> forms;
            for (const auto &[each, content] : m_offer.forms) {
                forms.push_back(atom(each));
            }
            xcb_change_property(server(), XCB_PROP_MODE_REPLACE, request.requestor,
                                request.property, XCB_ATOM_ATOM, 32,
                                static_cast<std::uint32_t>(forms.size()), forms.data());
            told.property = request.property;
        } else if (found != m_offer.forms.end()) {
            m_asked.push_back(form);
            give(request, found->second);
            told.property = request.property;
        }
        xcb_send_event(server(), 0, request.requestor, 0,
                       reinterpret_cast<const char *>(&told));
        xcb_flush(server());
    }

    void give(const xcb_selection_request_event_t &request, const std::string &content)
    {
        if (!m_offer.isInPieces) {
            xcb_change_property(server(), XCB_PROP_MODE_REPLACE, request.requestor,
                                request.property, request.target, 8,
                                static_cast<std::uint32_t>(content.size()), content.data());
            return;
        }
        const auto size =
            static_cast<std::uint32_t>(m_offer.claimed == 0 ? content.size() : m_offer.claimed);
        constexpr std::uint32_t kEvents = XCB_EVENT_MASK_PROPERTY_CHANGE;
        xcb_change_window_attributes(server(), request.requestor, XCB_CW_EVENT_MASK, &kEvents);
        xcb_change_property(server(), XCB_PROP_MODE_REPLACE, request.requestor,
                            request.property, atom("INCR"), 32, 1, &size);
        m_sendings.push_back({.requestor = request.requestor,
                              .property = request.property,
                              .form = request.target,
                              .rest = content,
                              .isEndless = m_offer.isEndless,
                              .isStopping = m_offer.stopsHalfway});
    }

    void sendNext(const xcb_property_notify_event_t &change)
    {
        constexpr std::size_t kPiece = 60'000;
        const auto found = std::ranges::find(m_sendings, change.window, &Sending::requestor);
        if (change.state != XCB_PROPERTY_DELETE || found == m_sendings.end() || found->isOver) {
            return;
        }
        const std::string piece = found->rest.substr(found->at, kPiece);
        if (!found->isEndless) {
            found->at += piece.size();
        }
        m_given += piece.size();
        found->isOver = piece.empty() || found->isStopping;
        xcb_change_property(server(), XCB_PROP_MODE_REPLACE, found->requestor, found->property,
                            found->form, 8, static_cast<std::uint32_t>(piece.size()),
                            piece.data());
        xcb_flush(server());
    }

    std::unique_ptr<xcb_connection_t, decltype(&xcb_disconnect)> m_server;
    xcb_window_t m_root;
    xcb_window_t m_window;
    mutable std::mutex m_mutex;
    Offer m_offer;
    std::vector<Sending> m_sendings;
    int m_requests = 0;
    std::size_t m_given = 0;
    std::vector<std::string> m_asked;
    std::jthread m_worker; // last, so that it is joined first
};
