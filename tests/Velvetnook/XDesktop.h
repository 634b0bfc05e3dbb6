// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include <sys/types.h>
#include <xcb/xcb.h>

#include <chrono>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

// A program that ends with its owner.
class Child
{
public:
    Child() = default;
    explicit Child(const std::vector<std::string> &command);
    ~Child();
    Child(Child &&other) noexcept;
    Child &operator=(Child &&other) noexcept;
    Child(const Child &) = delete;
    Child &operator=(const Child &) = delete;

    pid_t id() const { return m_id; }
    // Its exit status once it has ended.
    int wait();

private:
    pid_t m_id = 0;
};

struct Place {
    int x{};
    int y{};
    int width{};
    int height{};

    bool operator==(const Place &) const = default;
};

// An X server of its own with a window manager, and DISPLAY set to it.
class XDesktop
{
public:
    XDesktop();

    // Asks again until it holds; a test that waits in vain fails.
    static bool waitFor(const std::function<bool()> &holds,
                        std::chrono::milliseconds patience = std::chrono::seconds{20});
    // Runs a program such as xdotool to its end.
    static int run(const std::vector<std::string> &command);

    // As when the display's server is killed.
    void stopServer();

    // Where the notch stands, as the server knows it; nothing while it is not shown.
    std::optional<Place> notch() const;
    std::optional<Place> palette() const;

    // An ordinary window of an application.
    xcb_window_t openWindow(const std::string &application, const Place &place);
    void closeWindow(xcb_window_t window);
    void setFullScreen(xcb_window_t window, bool isFullScreen);
    void activate(xcb_window_t window);
    xcb_window_t focus() const;

private:
    std::optional<Place> find(bool isAtTop) const;
    void tellManager(xcb_window_t window, const char *message, std::uint32_t first,
                     std::uint32_t second);
    xcb_atom_t atom(const std::string &name) const;

    struct Disconnect {
        void operator()(xcb_connection_t *server) const { xcb_disconnect(server); }
    };
    Child m_serverProgram;
    Child m_manager;
    std::unique_ptr<xcb_connection_t, Disconnect> m_server;
    xcb_window_t m_root = 0;
};
