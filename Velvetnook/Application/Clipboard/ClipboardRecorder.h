// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "KestCore/Clipboard/ClipboardReader.h"
#include "Velvetnook/Application/Clipboard/ClipboardDesktop.h"
#include "Velvetnook/Application/Clipboard/ImagePreview.h"
#include "Velvetnook/Application/SideThread.h"

#include <QObject>
#include <QTimer>

#include <atomic>
#include <chrono>
#include <memory>
#include <optional>
#include <variant>

namespace Velvetnook
{

class ApplicationModel;
class ClipboardKeyring;

// Keeps what is copied while the tool and recording are on. One copy at a time is on its way
// into the store; of those that come meanwhile only the last one is read, so that however
// quickly a program copies, it costs little and memory for one.
class ClipboardRecorder : public QObject
{
    Q_OBJECT

public:
    ClipboardRecorder(ApplicationModel &model, ClipboardKeyring &keyring,
                      QObject *parent = nullptr);
    ~ClipboardRecorder() override;
    ClipboardRecorder(const ClipboardRecorder &) = delete;
    ClipboardRecorder &operator=(const ClipboardRecorder &) = delete;

    void setDesktop(const ClipboardDesktop &desktop);

    // Whether this desktop tells what is copied at all.
    bool canRecord() const { return static_cast<bool>(m_desktop.watch) && !m_isDeaf; }
    bool isRecording() const { return m_watch != nullptr; }
    // Why the last copy could not be kept; empty after the next that was.
    QString problem() const { return m_problem; }

    // Puts it on the clipboard, behind no reading. `done` hears on the main thread whether the
    // clipboard has it now.
    void copy(KestCore::ClipboardPayload payload, std::function<void(Base::Result<void>)> done);

signals:
    void changed();
    void kept();

private:
    // What lives on the thread of the watch.
    struct Side {
        ImagePreviews previews{};
        std::optional<KestCore::ClipboardReader> reader{};
    };
    // What was read, on its way into the store; wiped when it is let go.
    struct Content {
        explicit Content(KestCore::ClipboardPayload content) : payload{std::move(content)} {}
        ~Content() { KestCore::wipe(payload); }
        Content(const Content &) = delete;
        Content &operator=(const Content &) = delete;

        KestCore::ClipboardPayload payload;
    };
    using Reading = Base::Result<KestCore::ClipboardReader::Reading>;

    void follow();
    void begin();
    void end();
    void hear();
    void read();
    void take(Reading reading);
    void keep();
    void keyChanged();
    void finish(const Base::Result<void> &result);
    void tidy();

    ApplicationModel &m_model;
    ClipboardKeyring &m_keyring;
    ClipboardDesktop m_desktop;
    bool m_isDeaf = false; // asked, the server said that it can't be watched
    std::shared_ptr<std::atomic<bool>> m_isTold = std::make_shared<std::atomic<bool>>(false);
    std::shared_ptr<Side> m_side;
    std::shared_ptr<KestCore::OwnCopy> m_own = std::make_shared<KestCore::OwnCopy>();
    std::shared_ptr<Content> m_content;
    bool m_isBusy = false;
    bool m_isNew = false; // something was copied meanwhile
    std::chrono::steady_clock::time_point m_lastRead{};
    QTimer m_pause;
    QString m_problem;
    SideThread<std::monostate> m_writing;    // looks at files before they are offered
    std::unique_ptr<ClipboardWatch> m_watch; // last: its thread uses what stands above
};

} // namespace Velvetnook
