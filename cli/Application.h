// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Base/File.h"
#include "KestCore/Surfaces/ApplicationCommand.h"

#include <chrono>
#include <memory>
#include <optional>

// The running application, as kest reaches it.
namespace Cli
{

using Base::Result;

// A connection with the application that works with one database.
class Application
{
public:
    // How long each step of a conversation may take.
    static constexpr std::chrono::milliseconds kPatience{5000};

    // Nothing when none is running.
    static std::optional<Application> find(const std::filesystem::path &databaseFile,
                                           std::chrono::milliseconds patience = kPatience);

    // Fails with what the application refuses, and when it does not answer in time.
    [[nodiscard]] Result<KestCore::ApplicationAnswer>
    ask(const KestCore::ApplicationCommand &command);

private:
    explicit Application(Base::FileDescriptor socket) : m_socket(std::move(socket)) {}

    [[nodiscard]] Result<std::string> readLine();

    Base::FileDescriptor m_socket;
    KestCore::CommandLines m_lines;
};

// The store, from the application that has it; it goes back with the last that keeps this.
// Null when no application is running, or when it does not lend: then the store itself says
// who has it.
std::shared_ptr<const void> borrowStore(const std::filesystem::path &databaseFile);

} // namespace Cli
