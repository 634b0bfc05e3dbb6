// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "KestCore/Surfaces/ApplicationCommand.h"

#include "Base/JsonReader.h"
#include "Base/JsonWriter.h"
#include "KestCore/Registry/ToolRegistry.h"
#include "KestCore/Store/StoreLocation.h"

#include <fmt/format.h>

#include <sys/socket.h>
#include <unistd.h>

#include <cstdlib>

template Base::Result<std::string> Base::json::encode(const KestCore::ApplicationCommand &);
template Base::Result<std::string> Base::json::encode(const KestCore::ApplicationAnswer &);
template Base::Result<KestCore::ApplicationAnswer>
Base::json::decode<KestCore::ApplicationAnswer>(const Base::json::PaddedText &);

namespace KestCore
{

namespace fs = std::filesystem;

namespace
{

// The same in every build and on every run, which std::hash does not promise.
std::uint64_t hashOf(std::string_view text)
{
    std::uint64_t hash = 0xcbf29ce484222325U;
    for (const char byte : text) {
        hash = (hash ^ static_cast<unsigned char>(byte)) * 0x100000001b3U;
    }
    return hash;
}

} // namespace

bool isOwnProgram(int socket)
{
    ucred peer{};
    socklen_t size = sizeof peer;
    return getsockopt(socket, SOL_SOCKET, SO_PEERCRED, &peer, &size) == 0 &&
           peer.uid == geteuid();
}

fs::path applicationSocket(const fs::path &databaseFile)
{
    std::error_code error;
    const fs::path folder = fs::weakly_canonical(databaseFile, error).parent_path();
    const char *runtime = std::getenv("XDG_RUNTIME_DIR");
    if (runtime == nullptr || !fs::path{runtime}.is_absolute()) {
        return folder / "command.socket";
    }
    return fs::path{runtime} /
           fmt::format("{}-{:016x}.socket", bundleIdentifier(), hashOf(folder.native()));
}

Result<ApplicationCommand> readApplicationCommand(std::string_view line)
{
    KEST_TRY(auto command, json::decode<ApplicationCommand>(line));
    if (command.event.has_value() != (command.request == ApplicationRequest::hook)) {
        return std::unexpected(
            KestError::invalidData("A hook, and nothing else, has an event"));
    }
    if (command.event) {
        KEST_CHECK(validate(*command.event));
    }
    const bool isWithoutHow = command.request == ApplicationRequest::borrow ||
                              command.request == ApplicationRequest::hook;
    if (isWithoutHow == command.how.has_value()) {
        return std::unexpected(KestError::invalidData(
            isWithoutHow ? "This has no \"how\"" : "\"how\" is open, close or toggle"));
    }
    if (!command.tool) {
        return command;
    }
    if (command.request != ApplicationRequest::notch) {
        return std::unexpected(KestError::invalidData("Only the notch shows a tool"));
    }
    if (!ToolRegistry::knows(*command.tool)) {
        return std::unexpected(KestError::invalidData("There is no tool of this name"));
    }
    return command;
}

bool CommandLines::add(std::string_view bytes)
{
    m_pending.append(bytes);
    if (m_pending.find('\n', m_searched) != std::string::npos) {
        return true;
    }
    m_searched = m_pending.size();
    return m_pending.size() <= kLongest;
}

std::optional<std::string> CommandLines::next()
{
    const std::size_t end = m_pending.find('\n', m_searched);
    if (end == std::string::npos) {
        m_searched = m_pending.size();
        return std::nullopt;
    }
    std::string line = m_pending.substr(0, end);
    m_pending.erase(0, end + 1);
    m_searched = 0;
    return line;
}

} // namespace KestCore
