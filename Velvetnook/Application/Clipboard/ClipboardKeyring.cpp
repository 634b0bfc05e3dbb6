// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Velvetnook/Application/Clipboard/ClipboardKeyring.h"

#include "KestCore/Clipboard/ClipboardKey.h"
#include "Velvetnook/Application/ApplicationModel.h"
#include "Velvetnook/Application/EngineText.h"

#include <QCoreApplication>
#include <QPointer>

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
    m_asking = std::jthread{[open = m_open, mayAsk, self = QPointer{this}] {
        Answer answer{.secrets = nullptr, .kept = std::nullopt};
        if (auto opened = open(mayAsk)) {
            answer.kept = KestCore::keptClipboardKey(**opened);
            answer.secrets = *std::move(opened);
        } else {
            answer.kept = std::unexpected(std::move(opened).error());
        }
        auto shared = std::make_shared<Answer>(std::move(answer));
        QMetaObject::invokeMethod(
            qApp,
            [self, shared] {
                if (self) {
                    self->take(std::move(*shared));
                }
            },
            Qt::QueuedConnection);
    }};
}

void ClipboardKeyring::take(Answer answer)
{
    if (!answer.kept) {
        finish(std::unexpected(std::move(answer.kept).error()));
        return;
    }
    std::optional<Base::AesKey> &kept = *answer.kept;
    if (kept) {
        finish(*std::move(kept));
    } else {
        makeKey(std::move(answer.secrets));
    }
}

void ClipboardKeyring::makeKey(std::unique_ptr<Base::SecretStore> secrets)
{
    using Made = Base::SecretResult<Base::AesKey>;
    const auto made = std::make_shared<std::optional<Made>>();
    m_model.perform(
        [secrets = std::shared_ptr<Base::SecretStore>{std::move(secrets)},
         made](KestCore::StateStore &store) -> Base::Result<Committed> {
            *made = KestCore::clipboardKey(*secrets, store);
            return Committed{};
        },
        [self = QPointer{this}, made](const Base::Result<void> &result) {
            if (self && *made) {
                self->finish(std::move(**made));
            } else if (self) {
                self->finish(std::unexpected(
                    Base::SecretFailure{.kind = Base::SecretFailure::Kind::failed,
                                        .message = result ? "" : result.error().message}));
            }
        });
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
