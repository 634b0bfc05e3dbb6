// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Velvetnook/Application/Clipboard/ClipboardKeyring.h"

#include "KestCore/Clipboard/ClipboardKey.h"
#include "Velvetnook/Application/ApplicationModel.h"
#include "Velvetnook/Application/EngineText.h"

#include <QCoreApplication>
#include <QPointer>

#include <filesystem>

namespace Velvetnook
{

namespace
{

// A keyring that is locked at login is often open a little later.
constexpr Base::Seconds kAskAgainAfter{30};

Base::AesKey copyOf(const Base::AesKey &key)
{
    auto copy = Base::AesKey::fromBytes(key.bytes());
    return copy ? *std::move(copy) : Base::AesKey::random(); // 32 bytes are always a key
}

using Got = Base::SecretResult<Base::AesKey>;

Got ask(const decltype(ClipboardDesktop::openKeyring) &open, bool mayAsk,
        const std::filesystem::path &database, const std::stop_token &stop)
{
    KEST_TRY(const auto secrets, open(mayAsk, stop));
    return KestCore::clipboardKey(*secrets, database, stop);
}

} // namespace

ClipboardKeyring::ClipboardKeyring(ApplicationModel &model, QObject *parent)
    : QObject{parent}, m_model{model}
{
}

ClipboardKeyring::~ClipboardKeyring() = default;

std::optional<Base::AesKey> ClipboardKeyring::key() const
{
    return m_key == nullptr ? std::nullopt : std::optional{copyOf(*m_key)};
}

KestCore::Availability ClipboardKeyring::availability() const
{
    if (m_key != nullptr) {
        return KestCore::Availability::ready;
    }
    return m_failure ? KestCore::availabilityOf(*m_failure) : KestCore::Availability::loading;
}

void ClipboardKeyring::want(bool mayAsk)
{
    const Base::Instant now = m_model.now();
    const bool isTooSoon =
        !mayAsk && m_refused && now >= *m_refused && now < *m_refused + kAskAgainAfter;
    if (m_key != nullptr || m_isOpening || isTooSoon) {
        return;
    }
    if (!m_open) {
        finish(std::unexpected(Base::SecretFailure{
            .kind = Base::SecretFailure::Kind::noService,
            .message = "There is no keyring here to keep the clipboard's key in"}));
        return;
    }
    m_isOpening = true;
    m_failure.reset();
    emit changed();
    m_asking = std::jthread{[open = m_open, mayAsk, database = m_model.keeper().file(),
                             self = QPointer{this}](const std::stop_token &stop) {
        auto got = std::make_shared<Got>(ask(open, mayAsk, database, stop));
        QMetaObject::invokeMethod(
            qApp,
            [self, got] {
                if (self) {
                    self->finish(std::move(*got));
                }
            },
            Qt::QueuedConnection);
    }};
}

void ClipboardKeyring::finish(Base::SecretResult<Base::AesKey> outcome)
{
    m_isOpening = false;
    if (outcome) {
        m_key = std::make_unique<Base::AesKey>(*std::move(outcome));
        m_failure.reset();
        m_message.clear();
    } else {
        m_failure = outcome.error().kind;
        m_message = engineText(outcome.error().message);
        m_refused = m_model.now();
    }
    emit changed();
}

} // namespace Velvetnook
