// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "KestCore/Clipboard/ClipboardKey.h"

#include "Base/FileLock.h"

namespace KestCore
{

Base::SecretResult<std::optional<Base::AesKey>> keptClipboardKey(Base::SecretStore &secrets)
{
    KEST_TRY(const auto kept, secrets.read(kClipboardKeyAccount));
    if (!kept) {
        return std::nullopt;
    }
    auto key = Base::AesKey::fromBytes(*kept);
    if (!key) {
        // To put another in its place would make the history unreadable for good.
        return std::unexpected(
            Base::SecretFailure{.kind = Base::SecretFailure::Kind::failed,
                                .message = "The clipboard's key in the keyring is damaged"});
    }
    return key;
}

Base::SecretResult<Base::AesKey> clipboardKey(Base::SecretStore &secrets,
                                              const std::filesystem::path &database,
                                              const std::stop_token &stop)
{
    KEST_TRY(auto kept, keptClipboardKey(secrets));
    if (kept) {
        return *std::move(kept);
    }
    const auto lock =
        Base::FileLock::take(std::filesystem::path{database}.replace_extension("key.lock"),
                             "The clipboard's key", kClipboardKeyPatience, stop);
    if (!lock) {
        return std::unexpected(Base::SecretFailure{.kind = Base::SecretFailure::Kind::failed,
                                                   .message = lock.error().message});
    }
    KEST_TRY(kept, keptClipboardKey(secrets)); // somebody may have made one meanwhile
    if (kept) {
        return *std::move(kept);
    }
    Base::AesKey key = Base::AesKey::random();
    KEST_CHECK(secrets.write(kClipboardKeyAccount, key.bytes()));
    return key;
}

Availability availabilityOf(Base::SecretFailure::Kind kind)
{
    switch (kind) {
    case Base::SecretFailure::Kind::noService:
        return Availability::unconfigured;
    case Base::SecretFailure::Kind::locked:
        return Availability::permissionDenied;
    case Base::SecretFailure::Kind::failed:
        break;
    }
    return Availability::error;
}

} // namespace KestCore
