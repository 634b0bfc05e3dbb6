// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Velvetnook/Application/ApplicationModel.h"
#include "Velvetnook/Application/Formatting.h"
#include "Velvetnook/Application/ViewModels/ClipboardViewModel.h"

// How the clipboard stands, and what is said of it.
namespace Velvetnook
{

using KestCore::Availability;

bool ClipboardViewModel::isOn() const { return m_model.isOn("clipboard.enabled"); }

bool ClipboardViewModel::isPaused() const { return isOn() && m_model.isOn("clipboard.paused"); }

bool ClipboardViewModel::pastes() const
{
    return m_desktop.paste && m_model.setting("clipboard.pastes") != "false";
}

Availability ClipboardViewModel::standing() const
{
    const bool isEmpty = !m_loaded || m_loaded->total == 0;
    if (m_stage == Stage::failed) {
        return Availability::error;
    }
    if (!isOn() && isEmpty) {
        return m_stage == Stage::loaded ? Availability::unconfigured : Availability::loading;
    }
    if (!m_keyring.isReady()) {
        return m_keyring.availability();
    }
    if (m_stage != Stage::loaded) {
        return Availability::loading;
    }
    return isEmpty ? Availability::empty : Availability::ready;
}

QString ClipboardViewModel::availability() const
{
    const std::string_view text = Base::textOf(standing());
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

QString ClipboardViewModel::message() const
{
    switch (standing()) {
    case Availability::loading:
        return tr("Opening the history…");
    case Availability::empty:
        return tr("Nothing copied yet");
    case Availability::unconfigured:
        return m_keyring.message().isEmpty() ? tr("What you copy is not kept yet")
                                             : m_keyring.message();
    case Availability::error:
        return m_stage == Stage::failed ? m_failure : m_keyring.message();
    default:
        return m_keyring.message();
    }
}

QString ClipboardViewModel::note() const
{
    switch (standing()) {
    case Availability::empty:
        if (!m_recorder.canRecord()) {
            return tr("This desktop does not tell what is copied. What “kest clipboard add” "
                      "keeps shows here.");
        }
        return isPaused() ? tr("Recording is paused.")
                          : tr("Copy something anywhere and it shows here.");
    case Availability::unconfigured:
        return m_keyring.message().isEmpty()
                   ? tr("Turned on, it is sealed with a key from your keyring and stays on "
                        "this computer. What is marked as a password is left out.")
                   : tr("Without a keyring nothing is kept: its key never stands in a file.");
    case Availability::permissionDenied:
        return tr("The history is sealed with a key that it keeps.");
    default:
        return {};
    }
}

QString ClipboardViewModel::primaryText() const
{
    switch (standing()) {
    case Availability::unconfigured:
        return m_keyring.message().isEmpty() ? tr("Keep what I copy") : tr("Try again");
    case Availability::permissionDenied:
        return tr("Unlock…");
    case Availability::error:
        return tr("Try again");
    case Availability::empty:
        return isPaused() ? tr("Resume") : QString{};
    default:
        return {};
    }
}

void ClipboardViewModel::takeStep()
{
    const Availability now = standing();
    if (now == Availability::empty) {
        m_model.changeSetting("clipboard.paused", "false");
    } else if (now == Availability::unconfigured && m_keyring.message().isEmpty()) {
        m_model.changeSetting("clipboard.enabled", "true");
    } else if (m_keyring.isReady()) {
        reload();
    } else {
        m_keyring.want(true);
    }
}

QString ClipboardViewModel::findings() const
{
    if (standing() != Availability::ready || !m_list.rows().empty()) {
        return {};
    }
    return m_query.isEmpty() ? tr("Nothing of this kind here")
                             : tr("Nothing here has these words");
}

QString ClipboardViewModel::status() const
{
    const Availability now = standing();
    if (!m_recorder.problem().isEmpty()) {
        return m_recorder.problem();
    }
    if (now != Availability::ready) {
        return isPaused() ? tr("Clipboard · paused") : QString{};
    }
    const QString count = clipboardCount(m_loaded->total, m_formatting);
    if (!isOn()) {
        return tr("Not recording · %1, encrypted").arg(count);
    }
    if (isPaused()) {
        return tr("Clipboard · paused · %1, encrypted").arg(count);
    }
    return m_recorder.isRecording()
               ? tr("Recording · %1, encrypted").arg(count)
               : tr("%1, encrypted · copies cannot be watched here").arg(count);
}

QString ClipboardViewModel::statusSign() const
{
    if (!m_recorder.problem().isEmpty()) {
        return QStringLiteral("warn");
    }
    const bool isAlive = m_recorder.isRecording() && standing() == Availability::ready;
    return isAlive ? QStringLiteral("accent") : QString{};
}

QString ClipboardViewModel::statusAction() const
{
    if (standing() != Availability::ready || !m_recorder.canRecord()) {
        return {};
    }
    if (!isOn()) {
        return tr("Turn on");
    }
    return isPaused() ? tr("Resume") : tr("Pause");
}

void ClipboardViewModel::takeStatusAction()
{
    if (!isOn()) {
        m_model.changeSetting("clipboard.enabled", "true");
    } else {
        m_model.changeSetting("clipboard.paused", isPaused() ? "false" : "true");
    }
}

void ClipboardViewModel::setFilter(const QString &filter)
{
    m_filter = filter;
    showRows();
    emit listChanged();
}

void ClipboardViewModel::setQuery(const QString &query)
{
    if (query != m_query) {
        m_query = query;
        m_typing.start();
        emit listChanged();
    }
}

} // namespace Velvetnook
