// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Base/File.h"
#include "KestCore/Surfaces/ApplicationCommand.h"
#include "KestCore/Surfaces/NotchInteraction.h"
#include "Velvetnook/Application/StoreLender.h"

#include <QObject>
#include <QString>

#include <filesystem>
#include <map>
#include <memory>

class QSocketNotifier;

namespace Velvetnook
{

// Where kest reaches the running application: opens surfaces and borrows the store. Only the
// user's own programs are heard, a few at a time. Works on the main loop and sleeps while
// nobody calls.
class CommandServer : public QObject
{
    Q_OBJECT

public:
    CommandServer(ApplicationModel &model, const std::filesystem::path &databaseFile,
                  QObject *parent = nullptr);
    ~CommandServer() override;
    CommandServer(const CommandServer &) = delete;
    CommandServer &operator=(const CommandServer &) = delete;

    // Fails with unavailable, and so when another application listens here.
    [[nodiscard]] Result<void> listen();

signals:
    // `tool` may be empty.
    void surfaceWanted(KestCore::QuickSurface surface, KestCore::SurfaceStep how,
                       const QString &tool);
    void assistantTold(const KestCore::AssistantEvent &event);

private:
    struct Client;

    void accept();
    void restAWhile();
    void makeRoom();
    void read(int id);
    [[nodiscard]] bool answerLines(Client &client);
    void obey(Client &client, const KestCore::ApplicationCommand &command);
    void answer(int id, const KestCore::ApplicationAnswer &answer);
    void drop(int id);

    ApplicationModel &m_model;
    StoreLender m_lender;
    std::filesystem::path m_file; // of the socket
    Base::FileDescriptor m_socket;
    std::unique_ptr<QSocketNotifier> m_callers;
    std::map<int, std::unique_ptr<Client>> m_clients;
    int m_lastId = 0;
};

} // namespace Velvetnook
