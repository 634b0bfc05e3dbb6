// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "KestCore/Surfaces/AssistantEvent.h"
#include "KestCore/Vocabulary.h"

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

// What other programs ask of the running application over its socket: one JSON document a
// line, and one line as the answer to each.
namespace KestCore
{

// The socket of the application that works with this database. It lies in the user's runtime
// folder, or beside the data where there is none.
std::filesystem::path applicationSocket(const std::filesystem::path &databaseFile);

enum class ApplicationRequest : std::uint8_t {
    palette,
    notch,
    dock,
    borrow, // the store, until the connection ends
    hook,   // what a coding assistant does
};
constexpr auto enumTexts(Of<ApplicationRequest>)
{
    using enum ApplicationRequest;
    return Base::EnumTexts<ApplicationRequest, 5>{{{palette, "palette"},
                                                   {notch, "notch"},
                                                   {dock, "dock"},
                                                   {borrow, "borrow"},
                                                   {hook, "hook"}}};
}

enum class SurfaceStep : std::uint8_t { open, close, toggle };
constexpr auto enumTexts(Of<SurfaceStep>)
{
    using enum SurfaceStep;
    return Base::EnumTexts<SurfaceStep, 3>{
        {{open, "open"}, {close, "close"}, {toggle, "toggle"}}};
}

struct ApplicationCommand {
    ApplicationRequest request{};
    std::optional<SurfaceStep> how{};      // what becomes of the surface
    std::optional<std::string> tool{};     // the one that the notch shows
    std::optional<AssistantEvent> event{}; // of a hook

    bool operator==(const ApplicationCommand &) const = default;
};
consteval auto jsonFields(Of<ApplicationCommand>)
{
    using R = ApplicationCommand;
    return std::tuple{json::Field{"do", &R::request}, json::Field{"how", &R::how},
                      json::Field{"tool", &R::tool}, json::Field{"event", &R::event}};
}
static_assert(json::coversAllMembers<ApplicationCommand>());

struct ApplicationAnswer {
    std::optional<bool> done{};
    std::optional<bool> lent{};
    std::optional<std::string> error{};

    bool operator==(const ApplicationAnswer &) const = default;
};
consteval auto jsonFields(Of<ApplicationAnswer>)
{
    using R = ApplicationAnswer;
    return std::tuple{json::Field{"done", &R::done}, json::Field{"lent", &R::lent},
                      json::Field{"error", &R::error}};
}
static_assert(json::coversAllMembers<ApplicationAnswer>());

// Fails with invalidData for what is no command, a surface that is not told what to become,
// and a tool that nobody knows.
[[nodiscard]] Result<ApplicationCommand> readApplicationCommand(std::string_view line);

// Whether a program of the same user is at the other end of this socket.
bool isOwnProgram(int socket);

// Cuts into lines what arrives in pieces. A line is at most a megabyte.
class CommandLines
{
public:
    static constexpr std::size_t kLongest = 1'000'000;

    // False once a line is too long; there is nothing to read after that.
    bool add(std::string_view bytes);
    // The next whole line, without its end.
    std::optional<std::string> next();

private:
    std::string m_pending;
    std::size_t m_searched = 0; // so far there is no end of a line
};

} // namespace KestCore
