// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "cli/Session.h"

#include "KestCore/Store/StoreLocation.h"
#include "cli/Application.h"

namespace Cli
{

std::filesystem::path Session::databaseFile() const
{
    const std::filesystem::path directory =
        dataDirectory ? std::filesystem::path{*dataDirectory} : KestCore::dataDirectory();
    return directory / KestCore::kDatabaseName;
}

Result<KestCore::StateStore> Session::openStore() const
{
    const auto file = databaseFile();
    auto loan = borrowStore(file);
    auto opened = KestCore::StateStore::open(file);
    if (!opened && !loan) {
        // An application that was only beginning has it, and can be asked by now.
        loan = borrowStore(file);
        if (loan) {
            opened = KestCore::StateStore::open(file);
        }
    }
    KEST_TRY(auto store, std::move(opened));
    store.holdUntilClosed(std::move(loan));
    return store;
}

Result<KestCore::Settings> storedSettings(const Session &session)
{
    KEST_TRY(const auto store, session.openStore());
    return store.state().settings;
}

} // namespace Cli
