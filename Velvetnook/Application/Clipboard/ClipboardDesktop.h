// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Base/SecretStore.h"
#include "KestCore/Clipboard/Pasteboard.h"

#include <QStringList>

#include <functional>
#include <memory>
#include <stop_token>

namespace Velvetnook
{

// The system's clipboard, watched from a thread of its own: asking it may take seconds. What is
// asked is done there, one after the other, and nothing is written there; the changes are
// counted from 0. Its end breaks off what waits for an application.
class ClipboardWatch
{
public:
    using Task = std::move_only_function<void(KestCore::Pasteboard &)>;

    ClipboardWatch() = default;
    virtual ~ClipboardWatch() = default;
    ClipboardWatch(const ClipboardWatch &) = delete;
    ClipboardWatch &operator=(const ClipboardWatch &) = delete;

    virtual void ask(Task task) = 0;
};

// What the clipboard tool needs of the desktop. A function that is not there is something that
// this desktop does not give.
struct ClipboardDesktop {
    using Changed = std::function<void()>;
    using Keyring = Base::SecretResult<std::unique_ptr<Base::SecretStore>>;

    // What it is given is called on the thread of the watch. Null when it cannot be watched.
    std::function<std::unique_ptr<ClipboardWatch>(Changed)> watch{};
    // Whether what is on the clipboard now is of this program, as the system tells.
    std::function<bool()> isOurs{};
    // Called on a thread of its own. It may ask the user to unlock the keyring, or not; what
    // it gives stops waiting for an answer when `stop` is requested.
    std::function<Keyring(bool mayAsk, const std::stop_token &stop)> openKeyring{};
    // Presses the keys that paste, once another window has the keyboard again.
    std::function<void()> paste{};
    // The names that the windows of running applications go by.
    std::function<QStringList()> applications{};
};

} // namespace Velvetnook
