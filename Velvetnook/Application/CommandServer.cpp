// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Velvetnook/Application/CommandServer.h"

#include "Base/JsonWriter.h"
#include "Velvetnook/Application/ApplicationModel.h"
#include "Velvetnook/Application/QtText.h"

#include <QSocketNotifier>
#include <QTimer>

#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <chrono>
#include <cstring>

namespace Velvetnook
{

using KestCore::ApplicationAnswer;
using KestCore::ApplicationCommand;
using KestCore::ApplicationRequest;
using KestCore::QuickSurface;
using KestCore::SurfaceStep;

namespace
{

constexpr std::size_t kMostClients = 8;
constexpr int kWaitingCallers = 16;
constexpr int kSocketKind = SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK;

KestError socketError(const std::filesystem::path &file)
{
    return Base::fileError(file, {errno, std::generic_category()});
}

Result<sockaddr_un> addressOf(const std::filesystem::path &file)
{
    sockaddr_un address{};
    if (file.native().size() >= sizeof address.sun_path) {
        errno = ENAMETOOLONG;
        return std::unexpected(socketError(file));
    }
    address.sun_family = AF_UNIX;
    std::memcpy(address.sun_path, file.c_str(), file.native().size() + 1);
    return address;
}

QuickSurface surfaceOf(ApplicationRequest request)
{
    if (request == ApplicationRequest::palette) {
        return QuickSurface::command;
    }
    return request == ApplicationRequest::dock ? QuickSurface::dock : QuickSurface::notch;
}

// A socket that a killed application has left behind is in nobody's way.
Result<void> clearPlace(const std::filesystem::path &file, const sockaddr_un &address)
{
    struct stat info{};
    if (lstat(file.c_str(), &info) != 0) {
        return {};
    }
    const Base::FileDescriptor probe{::socket(AF_UNIX, kSocketKind, 0)};
    const bool isAnswered = connect(probe.get(), reinterpret_cast<const sockaddr *>(&address),
                                    sizeof address) == 0 ||
                            errno == EAGAIN;
    if (isAnswered || !S_ISSOCK(info.st_mode)) {
        return std::unexpected(KestError::unavailable("Velvetnook is running already"));
    }
    return unlink(file.c_str()) == 0 ? Result<void>{} : std::unexpected(socketError(file));
}

} // namespace

struct CommandServer::Client {
    int id{};
    Base::FileDescriptor socket;
    KestCore::CommandLines lines{};
    std::unique_ptr<QSocketNotifier> notifier{};
    int mistakes = 0;
    bool isBorrower = false; // or waits to be one
};

CommandServer::CommandServer(ApplicationModel &model, const std::filesystem::path &databaseFile,
                             QObject *parent)
    : QObject{parent}, m_model{model}, m_lender{model},
      m_file{KestCore::applicationSocket(databaseFile)}
{
}

CommandServer::~CommandServer()
{
    if (m_socket.isOpen()) {
        unlink(m_file.c_str());
    }
}

Result<void> CommandServer::listen()
{
    KEST_TRY(const sockaddr_un address, addressOf(m_file));
    KEST_CHECK(clearPlace(m_file, address));
    Base::FileDescriptor socket{::socket(AF_UNIX, kSocketKind, 0)};
    // The file gets the mode that the socket has, so it is never open to others.
    if (!socket.isOpen() || fchmod(socket.get(), 0600) != 0 ||
        bind(socket.get(), reinterpret_cast<const sockaddr *>(&address), sizeof address) != 0 ||
        ::listen(socket.get(), kWaitingCallers) != 0) {
        return std::unexpected(socketError(m_file));
    }
    m_socket = std::move(socket);
    m_callers = std::make_unique<QSocketNotifier>(m_socket.get(), QSocketNotifier::Read);
    connect(m_callers.get(), &QSocketNotifier::activated, this, &CommandServer::accept);
    return {};
}

void CommandServer::accept()
{
    Base::FileDescriptor socket{
        accept4(m_socket.get(), nullptr, nullptr, SOCK_CLOEXEC | SOCK_NONBLOCK)};
    if (!socket.isOpen() && (errno == EMFILE || errno == ENFILE)) {
        return restAWhile();
    }
    if (!socket.isOpen() || !KestCore::isOwnProgram(socket.get())) {
        return;
    }
    auto client = std::make_unique<Client>();
    client->id = ++m_lastId;
    client->notifier = std::make_unique<QSocketNotifier>(socket.get(), QSocketNotifier::Read);
    client->socket = std::move(socket);
    connect(client->notifier.get(), &QSocketNotifier::activated, this,
            [this, id = client->id] { read(id); });
    m_clients.emplace(client->id, std::move(client));
    makeRoom();
}

// The caller goes on waiting, and the notifier would go on telling of it, until a file
// descriptor is free again.
void CommandServer::restAWhile()
{
    constexpr std::chrono::milliseconds kRest{500};
    m_callers->setEnabled(false);
    QTimer::singleShot(kRest, this, [this] {
        m_callers->setEnabled(true);
        makeRoom();
    });
}

// Those who wait for the store, or have it, stay; of the others the first that came goes.
void CommandServer::makeRoom()
{
    if (m_clients.size() < kMostClients) {
        return;
    }
    const auto idle = std::ranges::find_if(
        m_clients, [](const auto &entry) { return !entry.second->isBorrower; });
    if (idle == m_clients.end()) {
        m_callers->setEnabled(false);
    } else if (m_clients.size() > kMostClients) {
        drop(idle->first);
    }
}

void CommandServer::read(int id)
{
    const auto found = m_clients.find(id);
    if (found == m_clients.end()) {
        return;
    }
    Client &client = *found->second;
    std::array<char, 65'536> buffer; // NOLINT(*-member-init): it is read into
    const ssize_t count = recv(client.socket.get(), buffer.data(), buffer.size(), 0);
    if (count < 0 && (errno == EAGAIN || errno == EINTR)) {
        return;
    }
    if (count <= 0 || !client.lines.add({buffer.data(), static_cast<std::size_t>(count)}) ||
        !answerLines(client)) {
        drop(id);
    }
}

// False for a client that has said nothing but nonsense.
bool CommandServer::answerLines(Client &client)
{
    constexpr int kMostMistakes = 16;
    while (const auto line = client.lines.next()) {
        const auto command = KestCore::readApplicationCommand(*line);
        if (command) {
            obey(client, *command);
            continue;
        }
        answer(client.id, {.error = command.error().message});
        if (++client.mistakes >= kMostMistakes) {
            return false;
        }
    }
    return true;
}

void CommandServer::obey(Client &client, const ApplicationCommand &command)
{
    if (command.request == ApplicationRequest::borrow) {
        if (client.isBorrower) {
            answer(client.id, {.error = "It is lent to you already"});
            return;
        }
        client.isBorrower = true;
        makeRoom();
        m_lender.borrow(client.id, [this, id = client.id] { answer(id, {.lent = true}); });
        return;
    }
    if (command.event) {
        emit assistantTold(*command.event);
        answer(client.id, {.done = true});
        return;
    }
    const auto how = command.how.value_or(SurfaceStep::toggle);
    const QuickSurface surface = surfaceOf(command.request);
    if (surface == QuickSurface::dock && how != SurfaceStep::close &&
        !m_model.companion().dock.enabled) {
        answer(client.id, {.error = "The dock is turned off; the settings turn it on"});
        return;
    }
    emit surfaceWanted(surface, how, QString::fromStdString(command.tool.value_or("")));
    answer(client.id, {.done = true});
}

void CommandServer::answer(int id, const ApplicationAnswer &answer)
{
    const auto found = m_clients.find(id);
    auto line = Base::json::encode(answer);
    if (found == m_clients.end() || !line) {
        return;
    }
    *line += '\n';
    // Who does not read its answers finds the connection at its end.
    const int socket = found->second->socket.get();
    if (send(socket, line->data(), line->size(), MSG_NOSIGNAL | MSG_DONTWAIT) !=
        static_cast<ssize_t>(line->size())) {
        shutdown(socket, SHUT_RDWR);
    }
}

void CommandServer::drop(int id)
{
    const auto found = m_clients.find(id);
    const bool wasBorrower = found->second->isBorrower;
    // The notifier is still telling of this; it goes when that is over.
    found->second->notifier->setEnabled(false);
    found->second->notifier.release()->deleteLater();
    m_clients.erase(found);
    m_callers->setEnabled(true);
    if (wasBorrower) {
        m_lender.giveBack(id);
    }
}

} // namespace Velvetnook
