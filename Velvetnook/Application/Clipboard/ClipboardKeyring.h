// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Base/AesGcm.h"
#include "KestCore/Registry/Availability.h"
#include "Velvetnook/Application/Clipboard/ClipboardDesktop.h"

#include <QObject>
#include <QString>

#include <memory>
#include <thread>

namespace Velvetnook
{

class ApplicationModel;

// Has the clipboard's key, once somebody has wanted it and the keyring has given it. The
// keyring is asked, and given a key where it keeps none yet, on a thread of its own: it may ask
// the user and take minutes. The end of this stops that wait.
class ClipboardKeyring : public QObject
{
    Q_OBJECT

public:
    explicit ClipboardKeyring(ApplicationModel &model, QObject *parent = nullptr);
    ~ClipboardKeyring() override;
    ClipboardKeyring(const ClipboardKeyring &) = delete;
    ClipboardKeyring &operator=(const ClipboardKeyring &) = delete;

    void setDesktop(const ClipboardDesktop &desktop) { m_open = desktop.openKeyring; }

    // A copy for one operation; nothing while it is not there.
    std::optional<Base::AesKey> key() const;
    bool isReady() const { return m_key != nullptr; }
    bool isOpening() const { return m_isOpening; }
    // Ready, loading, or why there is no key, with the keyring's own words.
    KestCore::Availability availability() const;
    QString message() const { return m_message; }

    // Asks the keyring, unless it is being asked or has answered. With `mayAsk` the desktop may
    // ask the user to unlock it; without, a refusal is not asked about again for a while.
    void want(bool mayAsk);

signals:
    void changed();

private:
    void finish(Base::SecretResult<Base::AesKey> outcome);

    ApplicationModel &m_model;
    decltype(ClipboardDesktop::openKeyring) m_open;
    std::unique_ptr<Base::AesKey> m_key;
    bool m_isOpening = false;
    std::optional<Base::SecretFailure::Kind> m_failure{};
    QString m_message;
    std::optional<Base::Instant> m_refused{};
    std::jthread m_asking;
};

} // namespace Velvetnook
