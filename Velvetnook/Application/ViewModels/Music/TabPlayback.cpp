// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Velvetnook/Application/ViewModels/Music/TabPlayback.h"

#include "Base/Serial.h"
#include "Velvetnook/Application/ApplicationModel.h"
#include "Velvetnook/Application/EngineText.h"
#include "Velvetnook/Application/ToolServices.h"

#include <QVariantMap>

#include <utility>

namespace Velvetnook
{

namespace
{

constexpr int kUsualPort = 9222;
constexpr int kLastPort = 65'535;

auto resumeOn(QObject *owner)
{
    // The queue of the owner dies with it, after its thread has ended.
    return [owner](auto call) {
        auto shared = std::make_shared<decltype(call)>(std::move(call));
        QMetaObject::invokeMethod(owner, [shared] { (*shared)(); }, Qt::QueuedConnection);
    };
}

} // namespace

struct TabPlayback::Worker {
    struct Owned {
        std::shared_ptr<const ToolServices> services;
    };
    Base::Serial<Owned> owned;
};

TabPlayback::TabPlayback(ApplicationModel &model, std::shared_ptr<const ToolServices> services,
                         QObject *parent)
    : QObject{parent}, m_model{model}, m_services{std::move(services)},
      m_connected{KestCore::connectedTab(model.state().settings)}
{
    connect(&model, &ApplicationModel::choicesChanged, this, &TabPlayback::follow);
}

TabPlayback::~TabPlayback() = default;

TabPlayback::Worker &TabPlayback::worker()
{
    if (!m_worker) {
        m_worker.reset(new Worker{Base::Serial<Worker::Owned>{Worker::Owned{m_services}}});
    }
    return *m_worker;
}

int TabPlayback::port() const { return m_connected ? m_connected->port : kUsualPort; }

QVariantList TabPlayback::tabs() const
{
    QVariantList shown;
    for (const Tab &tab : m_tabs) {
        shown.push_back(QVariantMap{{QStringLiteral("title"), tab.title},
                                    {QStringLiteral("note"), tab.address}});
    }
    return shown;
}

void TabPlayback::follow()
{
    auto connected = KestCore::connectedTab(m_model.state().settings);
    if (connected == m_connected) {
        return;
    }
    m_connected = std::move(connected);
    m_playback.reset();
    m_problem.clear();
    emit changed();
    perform({});
}

void TabPlayback::look(int port)
{
    if (m_isLooking || !m_services->browserTabs) {
        return;
    }
    m_tabs.clear();
    if (port < 1 || port > kLastPort) {
        m_message = tr("A port is a number from 1 to 65,535.");
        emit tabsChanged();
        return;
    }
    m_isLooking = true;
    m_message.clear();
    m_lookedAt = static_cast<std::uint16_t>(port);
    emit tabsChanged();
    worker().owned.ask(
        [port = m_lookedAt](Worker::Owned &owned) { return owned.services->browserTabs(port); },
        resumeOn(this),
        [this](const auto &tabs) {
            m_isLooking = false;
            m_message = tabs ? QString{} : engineText(tabs.error().message);
            if (tabs) {
                for (const auto &[id, title, url] : *tabs) {
                    m_tabs.push_back({.id = id,
                                      .title = QString::fromStdString(title),
                                      .address = QString::fromStdString(url)});
                }
                if (m_tabs.empty()) {
                    m_message = tr("The browser has no tab that may be read.");
                }
            }
            emit tabsChanged();
        });
}

void TabPlayback::connectTab(int index)
{
    if (index < 0 || static_cast<std::size_t>(index) >= m_tabs.size()) {
        return;
    }
    const KestCore::ConnectedTab tab{.port = m_lookedAt,
                                     .tab = m_tabs.at(static_cast<std::size_t>(index)).id};
    m_model.changeState([tab](KestCore::NativeState &state) -> Result<void> {
        KestCore::connectTab(state.settings, tab);
        return {};
    });
}

void TabPlayback::disconnectTab()
{
    m_model.changeState([](KestCore::NativeState &state) -> Result<void> {
        KestCore::disconnectTab(state.settings);
        return {};
    });
}

void TabPlayback::perform(const Action &action)
{
    const bool isReading = action.kind == Action::Kind::read;
    if (!m_connected || !m_services->playInTab || (isReading && m_isReading)) {
        return;
    }
    m_isReading = true;
    worker().owned.ask(
        [tab = *m_connected, action](Worker::Owned &owned) {
            return owned.services->playInTab(tab, action);
        },
        resumeOn(this),
        [this, tab = *m_connected, action](const Answer &answer) {
            m_isReading = false;
            take(tab, action, answer);
        });
}

// A reading that failed leaves the tab connected, but nothing is known of it any more.
void TabPlayback::take(const KestCore::ConnectedTab &asked, const Action &action,
                       const Answer &answer)
{
    if (asked != m_connected) {
        return;
    }
    m_problem = answer ? QString{} : engineText(answer.error().message);
    if (answer) {
        m_playback = *answer;
    } else {
        m_playback.reset();
        if (action.kind != Action::Kind::read) {
            emit failed(m_problem);
        }
    }
    emit changed();
}

} // namespace Velvetnook
