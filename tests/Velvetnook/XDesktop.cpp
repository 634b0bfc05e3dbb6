// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "tests/Velvetnook/XDesktop.h"

#include "Velvetnook/Platform/Xcb.h"
#include "tests/TemporaryFolder.h"

#include <fcntl.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <csignal>
#include <thread>
#include <utility>

namespace
{

namespace Xcb = Velvetnook::Xcb;

pid_t start(const std::vector<std::string> &command)
{
    std::vector<char *> words;
    for (const std::string &word : command) {
        words.push_back(const_cast<char *>(word.c_str()));
    }
    words.push_back(nullptr);
    const pid_t test = getpid();
    const pid_t id = fork();
    if (id == 0) {
        // Also when the test is killed, what it started ends with it.
        prctl(PR_SET_PDEATHSIG, SIGKILL);
        if (getppid() == test) {
            execvp(words[0], words.data());
        }
        _exit(127);
    }
    return std::max(id, 0);
}

} // namespace

Child::Child(const std::vector<std::string> &command) : m_id{start(command)} {}

Child::Child(Child &&other) noexcept : m_id{std::exchange(other.m_id, 0)} {}

Child &Child::operator=(Child &&other) noexcept
{
    std::swap(m_id, other.m_id);
    return *this;
}

Child::~Child()
{
    if (m_id > 0) {
        kill(m_id, SIGTERM);
        wait();
    }
}

int Child::wait()
{
    int status = 0;
    waitpid(std::exchange(m_id, 0), &status, 0);
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

XDesktop::XDesktop()
{
    std::array<int, 2> numbers{};
    if (pipe(numbers.data()) != 0) {
        return;
    }
    m_serverProgram = Child{{"Xvfb", "-displayfd", std::to_string(numbers[1]), "-screen", "0",
                             "1280x800x24", "-nolisten", "tcp"}};
    close(numbers[1]);
    std::string number;
    char byte = 0;
    while (read(numbers[0], &byte, 1) == 1 && byte != '\n') {
        number += byte;
    }
    close(numbers[0]);
    setenv("DISPLAY", (":" + number).c_str(), 1);
    unsetenv("WAYLAND_DISPLAY");
    unsetenv("QT_QPA_PLATFORM");
    m_server.reset(xcb_connect(nullptr, nullptr));
    m_root = xcb_setup_roots_iterator(xcb_get_setup(m_server.get())).data->root;
    // It answers for the screen before it has looked for windows: one that is opened in between
    // is never managed. Its own first command comes after both.
    const TemporaryFolder folder;
    const auto ready = folder.path() / "ready";
    m_manager = Child{{"openbox", "--sm-disable", "--startup", "touch " + ready.string()}};
    waitFor([&] { return std::filesystem::exists(ready); });
    run({"xdotool", "mousemove", "640", "600"});
}

void XDesktop::stopServer()
{
    kill(m_serverProgram.id(), SIGKILL);
    m_serverProgram.wait();
}

bool XDesktop::waitFor(const std::function<bool()> &holds, std::chrono::milliseconds patience)
{
    const auto end = std::chrono::steady_clock::now() + patience;
    while (!holds()) {
        if (std::chrono::steady_clock::now() > end) {
            return false;
        }
        std::this_thread::sleep_for(std::chrono::milliseconds{20});
    }
    return true;
}

int XDesktop::run(const std::vector<std::string> &command) { return Child{command}.wait(); }

xcb_atom_t XDesktop::atom(const std::string &name) const
{
    return Xcb::atom(m_server.get(), name);
}

std::optional<Place> XDesktop::notch() const { return find(true); }

std::optional<Place> XDesktop::palette() const { return find(false); }

std::optional<Place> XDesktop::find(bool isAtTop) const
{
    const auto tree = Xcb::reply(xcb_query_tree_reply, m_server.get(),
                                 xcb_query_tree(m_server.get(), m_root));
    for (int index = 0; tree && index < xcb_query_tree_children_length(tree.get()); ++index) {
        const xcb_window_t window = xcb_query_tree_children(tree.get())[index];
        const auto looks = Xcb::reply(xcb_get_window_attributes_reply, m_server.get(),
                                      xcb_get_window_attributes(m_server.get(), window));
        const auto place = Xcb::reply(xcb_get_geometry_reply, m_server.get(),
                                      xcb_get_geometry(m_server.get(), window));
        const bool isOurs =
            Xcb::text(m_server.get(), window, XCB_ATOM_WM_CLASS).starts_with("velvetnook");
        if (isOurs && looks && place && looks->override_redirect != 0 &&
            looks->map_state == XCB_MAP_STATE_VIEWABLE && (place->y == 0) == isAtTop) {
            return Place{place->x, place->y, place->width, place->height};
        }
    }
    return std::nullopt;
}

xcb_window_t XDesktop::openWindow(const std::string &application, const Place &place)
{
    const xcb_window_t window = xcb_generate_id(m_server.get());
    xcb_create_window(m_server.get(), XCB_COPY_FROM_PARENT, window, m_root,
                      static_cast<std::int16_t>(place.x), static_cast<std::int16_t>(place.y),
                      static_cast<std::uint16_t>(place.width),
                      static_cast<std::uint16_t>(place.height), 0,
                      XCB_WINDOW_CLASS_INPUT_OUTPUT, XCB_COPY_FROM_PARENT, 0, nullptr);
    const std::string names = application + '\0' + application + '\0';
    xcb_change_property(m_server.get(), XCB_PROP_MODE_REPLACE, window, XCB_ATOM_WM_CLASS,
                        XCB_ATOM_STRING, 8, static_cast<std::uint32_t>(names.size()),
                        names.data());
    xcb_map_window(m_server.get(), window);
    xcb_flush(m_server.get());
    waitFor([&] { return focus() == window; });
    return window;
}

void XDesktop::closeWindow(xcb_window_t window)
{
    xcb_destroy_window(m_server.get(), window);
    xcb_flush(m_server.get());
}

void XDesktop::tellManager(xcb_window_t window, const char *message, std::uint32_t first,
                           std::uint32_t second)
{
    xcb_client_message_event_t event{};
    event.response_type = XCB_CLIENT_MESSAGE;
    event.format = 32;
    event.window = window;
    event.type = atom(message);
    event.data.data32[0] = first;
    event.data.data32[1] = second;
    xcb_send_event(m_server.get(), 0, m_root,
                   XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT | XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY,
                   reinterpret_cast<const char *>(&event));
    xcb_flush(m_server.get());
}

void XDesktop::setFullScreen(xcb_window_t window, bool isFullScreen)
{
    tellManager(window, "_NET_WM_STATE", isFullScreen ? 1 : 0,
                atom("_NET_WM_STATE_FULLSCREEN"));
}

void XDesktop::activate(xcb_window_t window)
{
    tellManager(window, "_NET_ACTIVE_WINDOW", 2, XCB_CURRENT_TIME);
}

xcb_window_t XDesktop::focus() const
{
    const auto focus = Xcb::reply(xcb_get_input_focus_reply, m_server.get(),
                                  xcb_get_input_focus(m_server.get()));
    return focus ? focus->focus : XCB_NONE;
}
