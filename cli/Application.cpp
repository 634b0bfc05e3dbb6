// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "cli/Application.h"

#include "Base/JsonReader.h"
#include "Base/JsonWriter.h"

#include <sys/socket.h>
#include <sys/time.h>
#include <sys/un.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstring>

namespace Cli
{

namespace
{

using Base::KestError;
using KestCore::ApplicationAnswer;
using KestCore::ApplicationCommand;
using KestCore::ApplicationRequest;

KestError noAnswer()
{
    return KestError::unavailable("Velvetnook is running but does not answer");
}

} // namespace

std::optional<Application> Application::find(const std::filesystem::path &databaseFile,
                                             std::chrono::milliseconds patience)
{
    const std::string path = KestCore::applicationSocket(databaseFile).string();
    sockaddr_un address{};
    if (path.size() >= sizeof address.sun_path) {
        return std::nullopt;
    }
    address.sun_family = AF_UNIX;
    std::memcpy(address.sun_path, path.c_str(), path.size() + 1);
    Base::FileDescriptor socket{::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0)};
    if (!socket.isOpen()) {
        return std::nullopt;
    }
    // Before connecting: with all its places taken, the application lets callers wait there.
    const timeval limit{.tv_sec = patience.count() / 1000,
                        .tv_usec = patience.count() % 1000 * 1000};
    setsockopt(socket.get(), SOL_SOCKET, SO_RCVTIMEO, &limit, sizeof limit);
    setsockopt(socket.get(), SOL_SOCKET, SO_SNDTIMEO, &limit, sizeof limit);
    if (connect(socket.get(), reinterpret_cast<const sockaddr *>(&address), sizeof address) !=
            0 ||
        !KestCore::isOwnProgram(socket.get())) {
        return std::nullopt;
    }
    return Application{std::move(socket)};
}

Result<std::string> Application::readLine()
{
    std::array<char, 4096> buffer{};
    while (true) {
        if (auto line = m_lines.next()) {
            return *std::move(line);
        }
        const ssize_t count = recv(m_socket.get(), buffer.data(), buffer.size(), 0);
        if (count < 0 && errno == EINTR) {
            continue;
        }
        if (count <= 0 || !m_lines.add({buffer.data(), static_cast<std::size_t>(count)})) {
            return std::unexpected(noAnswer());
        }
    }
}

Result<ApplicationAnswer> Application::ask(const ApplicationCommand &command)
{
    KEST_TRY(std::string line, Base::json::encode(command));
    line += '\n';
    // It fits into the socket's buffer, so it goes out in one piece or not at all.
    const ssize_t sent = send(m_socket.get(), line.data(), line.size(), MSG_NOSIGNAL);
    if (sent != static_cast<ssize_t>(line.size())) {
        return std::unexpected(noAnswer());
    }
    KEST_TRY(const std::string text, readLine());
    KEST_TRY(auto answer, Base::json::decode<ApplicationAnswer>(std::string_view{text}));
    if (answer.error) {
        return std::unexpected(KestError::unavailable(*answer.error));
    }
    return answer;
}

std::shared_ptr<const void> borrowStore(const std::filesystem::path &databaseFile)
{
    auto application = Application::find(databaseFile);
    if (!application) {
        return nullptr;
    }
    const auto answer = application->ask({.request = ApplicationRequest::borrow});
    if (!answer || !answer->lent.value_or(false)) {
        return nullptr;
    }
    return std::make_shared<const Application>(*std::move(application));
}

} // namespace Cli
