// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Velvetnook/Application/Clipboard/ClipboardRecorder.h"

#include "KestCore/Clipboard/ClipboardHistory.h"
#include "KestCore/Clipboard/ClipboardSettings.h"
#include "Velvetnook/Application/ApplicationModel.h"
#include "Velvetnook/Application/Clipboard/ClipboardKeyring.h"
#include "Velvetnook/Application/Clipboard/ClipboardOffer.h"
#include "Velvetnook/Application/Clipboard/CopiedFiles.h"
#include "Velvetnook/Application/EngineText.h"
#include "Velvetnook/Application/ToolChoice.h"

#include <QCoreApplication>
#include <QPointer>

#include <algorithm>
#include <utility>

namespace Velvetnook
{

using namespace std::chrono_literals;
using KestCore::ClipboardHistory;
using KestCore::ClipboardPayload;
using KestCore::ClipboardReader;

namespace
{

// A person does not copy more often than this.
constexpr auto kShortestPause = 150ms;
// For a program that did not answer: it may be busy.
constexpr auto kAskAgainAfter = 1'000ms;

// On the main thread, unless what asked for it is gone by then.
template <class Owner, class Call>
void onMainThread(const QPointer<Owner> &owner, Call call)
{
    auto shared = std::make_shared<Call>(std::move(call));
    QMetaObject::invokeMethod(
        qApp,
        [owner, shared] {
            if (owner) {
                (*shared)(*owner);
            }
        },
        Qt::QueuedConnection);
}

} // namespace

ClipboardRecorder::ClipboardRecorder(ApplicationModel &model, ClipboardKeyring &keyring,
                                     QObject *parent)
    : QObject{parent}, m_model{model}, m_keyring{keyring}
{
    m_pause.setSingleShot(true);
    connect(&m_pause, &QTimer::timeout, this, &ClipboardRecorder::hear);
    connect(&model, &ApplicationModel::choicesChanged, this, &ClipboardRecorder::follow);
    connect(&model, &ApplicationModel::calendarChanged, this, &ClipboardRecorder::tidy);
    connect(&keyring, &ClipboardKeyring::changed, this, &ClipboardRecorder::keyChanged);
}

ClipboardRecorder::~ClipboardRecorder() = default;

void ClipboardRecorder::setDesktop(const ClipboardDesktop &desktop)
{
    m_desktop = desktop;
    follow();
    emit changed();
}

void ClipboardRecorder::follow()
{
    const bool isWanted = isToolOn(m_model.state(), "clipboard") &&
                          KestCore::clipboardSettings(m_model.state().settings).isRecording();
    if (isWanted && m_watch == nullptr && canRecord()) {
        begin();
    } else if (!isWanted && m_watch != nullptr) {
        end();
    }
}

void ClipboardRecorder::begin()
{
    const QPointer self{this};
    m_isTold->store(false);
    m_watch = m_desktop.watch([self, isTold = m_isTold] {
        if (!isTold->exchange(true)) {
            onMainThread(self, [](ClipboardRecorder &recorder) { recorder.hear(); });
        }
    });
    m_isDeaf = m_watch == nullptr;
    if (m_watch != nullptr) {
        m_side = std::make_shared<Side>();
        m_watch->ask([side = m_side, own = m_own](KestCore::Pasteboard &pasteboard) {
            side->reader.emplace(pasteboard, &side->previews, 0, own);
        });
    }
    emit changed();
}

void ClipboardRecorder::end()
{
    m_watch.reset(); // its last task is over now
    m_side.reset();
    m_pause.stop();
    m_isNew = false;
    m_content.reset(); // what waits for its key may not be kept any more
    m_isBusy = false;  // an answer that is still on its way is for another watch
    m_problem.clear();
    emit changed();
}

void ClipboardRecorder::hear()
{
    if (m_watch == nullptr) {
        return;
    }
    const auto since = std::chrono::steady_clock::now() - m_lastRead;
    if (m_isBusy) {
        m_isNew = true;
    } else if (since < kShortestPause) {
        m_pause.start(std::chrono::duration_cast<std::chrono::milliseconds>(kShortestPause -
                                                                            since + 1ms));
    } else {
        read();
    }
}

void ClipboardRecorder::read()
{
    m_isBusy = true;
    m_isNew = false;
    m_lastRead = std::chrono::steady_clock::now();
    m_isTold->store(false);
    m_watch->ask([self = QPointer{this}, side = m_side,
                  settings = KestCore::clipboardSettings(m_model.state().settings)](
                     KestCore::Pasteboard &) {
        onMainThread(self, [side, reading = side->reader->read(settings)](
                               ClipboardRecorder &recorder) mutable {
            if (side == recorder.m_side) {
                recorder.take(std::move(reading));
            } else if (reading) {
                Base::wipe(reading->content);
            }
        });
    });
}

void ClipboardRecorder::take(Reading reading)
{
    if (!reading) {
        finish(std::unexpected(reading.error()));
        return;
    }
    if (reading->found == ClipboardReader::Found::unanswered) {
        m_isBusy = false;
        m_pause.start(m_isNew ? kShortestPause : kAskAgainAfter);
        return;
    }
    auto content = std::exchange(reading->content, std::nullopt);
    if (!content) {
        finish({});
        return;
    }
    m_content = std::make_shared<Content>(*std::move(content));
    keep();
}

// Waits for the key, if the keyring is being asked for it.
void ClipboardRecorder::keep()
{
    auto key = m_keyring.key();
    if (!key) {
        m_keyring.want(false);
        keyChanged();
        return;
    }
    m_model.perform(
        [content = std::exchange(m_content, nullptr), key = std::move(*key),
         now = m_model.now()](KestCore::StateStore &store) mutable -> Base::Result<Committed> {
            ClipboardHistory history{store, std::move(key)};
            KEST_TRY([[maybe_unused]] const auto entry, history.add(content->payload, now));
            return Committed{};
        },
        [self = QPointer{this}](const Base::Result<void> &result) {
            if (self) {
                self->finish(result);
                emit self->kept();
            }
        });
}

void ClipboardRecorder::keyChanged()
{
    if (m_content == nullptr || m_keyring.isOpening()) {
        return;
    }
    if (m_keyring.isReady()) {
        keep();
        return;
    }
    m_content.reset(); // nothing is kept that could not be sealed
    finish({});
}

void ClipboardRecorder::finish(const Base::Result<void> &result)
{
    m_isBusy = false;
    const QString problem = result ? QString{} : engineText(result.error().message);
    if (problem != m_problem) {
        m_problem = problem;
        emit changed();
    }
    if (m_isNew) {
        hear();
    }
}

// Once a day what has grown too old goes, also when nothing is copied.
void ClipboardRecorder::tidy()
{
    auto key = m_keyring.key();
    if (!key) {
        return;
    }
    m_model.perform(
        [key = std::move(*key),
         now = m_model.now()](KestCore::StateStore &store) mutable -> Base::Result<Committed> {
            ClipboardHistory history{store, std::move(key)};
            KEST_CHECK(history.applyRetention(now));
            return Committed{};
        },
        [self = QPointer{this}](const Base::Result<void> &) {
            if (self) {
                emit self->kept();
            }
        });
}

void ClipboardRecorder::copy(ClipboardPayload payload,
                             std::function<void(Base::Result<void>)> done)
{
    const auto content = std::make_shared<Content>(std::move(payload));
    m_writing.ask(
        this,
        [content](std::monostate &) {
            return std::ranges::all_of(content->payload.files, &isReached);
        },
        [this, content, done = std::move(done)](bool areFilesThere) {
            OfferingPasteboard pasteboard{areFilesThere, m_desktop.isOurs};
            ClipboardReader writer{pasteboard, nullptr, 0, m_own};
            done(writer.write(content->payload));
        });
}

} // namespace Velvetnook
