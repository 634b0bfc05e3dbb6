// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Velvetnook/Application/ViewModels/ClipboardViewModel.h"

#include "Base/Text.h"
#include "KestCore/Clipboard/ClipboardSettings.h"
#include "Velvetnook/Application/ApplicationModel.h"
#include "Velvetnook/Application/EngineText.h"
#include "Velvetnook/Application/Formatting.h"

#include <QPointer>

#include <algorithm>
#include <chrono>

namespace Velvetnook
{

using namespace std::chrono_literals;
using KestCore::Availability;
using KestCore::ClipboardHistory;

namespace
{

constexpr std::size_t kMostDetails = 48; // of cards that are or were just in sight
constexpr Base::Seconds kMinute{60};

bool passes(const KestCore::ClipboardEntry &entry, const QString &filter)
{
    if (filter == u"favourite") {
        return entry.favourite;
    }
    return filter == u"all" ||
           filter.toStdString() == std::string_view{Base::textOf(entry.kind)};
}

} // namespace

ClipboardViewModel::Loaded::~Loaded()
{
    for (auto &listing : listings) {
        Base::wipe(listing.display);
    }
}

ClipboardViewModel::ClipboardViewModel(ApplicationModel &model, const Formatting &formatting,
                                       QObject *parent)
    : QObject{parent}, m_model{model}, m_formatting{formatting}, m_keyring{model},
      m_recorder{model, m_keyring}
{
    m_forget.setSingleShot(true);
    m_forget.setInterval(10s);
    connect(&m_forget, &QTimer::timeout, this, [this] { m_removed.reset(); });
    m_typing.setSingleShot(true);
    m_typing.setInterval(80ms);
    connect(&m_typing, &QTimer::timeout, this, &ClipboardViewModel::reload);
    connect(&m_keyring, &ClipboardKeyring::changed, this, &ClipboardViewModel::follow);
    connect(&m_recorder, &ClipboardRecorder::changed, this, &ClipboardViewModel::changed);
    connect(&m_recorder, &ClipboardRecorder::kept, this, &ClipboardViewModel::reload);
    connect(&model, &ApplicationModel::choicesChanged, this, &ClipboardViewModel::follow);
    // Another program, or the clearing of the history, may have changed it.
    connect(&model, &ApplicationModel::recordsChanged, this, &ClipboardViewModel::reload);
    connect(&formatting, &Formatting::wordsChanged, this, [this] {
        showRows();
        emit changed();
    });
    model.clock().add(
        this,
        [this](Base::Instant now) {
            return m_isShown && !m_list.rows().empty() ? std::optional{now + kMinute}
                                                       : std::nullopt;
        },
        [this](Base::Instant) { showRows(); });
}

ClipboardViewModel::~ClipboardViewModel() = default;

void ClipboardViewModel::setDesktop(ClipboardDesktop desktop)
{
    m_desktop = std::move(desktop);
    m_keyring.setDesktop(m_desktop);
    m_recorder.setDesktop(m_desktop);
    emit changed();
}

void ClipboardViewModel::follow()
{
    if (m_isClearing && !m_keyring.isOpening()) {
        m_isClearing = false;
        if (m_keyring.isReady()) {
            clear();
        } else {
            m_model.say(m_keyring.message());
        }
    }
    if (m_isShown && !m_keyring.isOpening()) {
        reload();
    }
    emit changed();
}

void ClipboardViewModel::setShown(bool isShown)
{
    if (isShown == m_isShown) {
        return;
    }
    m_isShown = isShown;
    if (isShown) {
        reload();
    } else {
        letGo();
    }
}

// Nothing of the history stays in memory where nobody looks at it.
void ClipboardViewModel::letGo()
{
    ++m_generation;
    m_stage = Stage::asking;
    m_loaded.reset();
    m_details.clear();
    m_lookedAt.clear();
    m_query.clear();
    m_list.show({});
    emit listChanged();
    emit changed();
}

// While nothing was ever turned on, nobody is asked for a key to nothing.
void ClipboardViewModel::reload()
{
    if (!m_isShown) {
        return;
    }
    ++m_generation;
    if (auto key = m_keyring.key()) {
        load(std::move(*key));
    } else if (isOn() || (m_loaded && m_loaded->total > 0)) {
        m_keyring.want(false);
    } else {
        countWithoutKey();
    }
}

void ClipboardViewModel::countWithoutKey()
{
    auto loaded = std::make_shared<Loaded>();
    m_model.perform(
        [loaded](KestCore::StateStore &store) -> Base::Result<Committed> {
            KEST_TRY(const auto ids, store.recordIdsOfKind(KestCore::kClipboardRecordKind));
            loaded->total = static_cast<int>(ids.size());
            return Committed{};
        },
        [self = QPointer{this}, loaded,
         generation = m_generation](const Base::Result<void> &result) {
            if (self && generation == self->m_generation) {
                self->finishLoad(loaded, result);
                if (loaded->total > 0) {
                    self->m_stage = Stage::asking;
                    self->m_keyring.want(false);
                    emit self->changed();
                }
            }
        });
}

void ClipboardViewModel::load(Base::AesKey key)
{
    auto loaded = std::make_shared<Loaded>();
    m_model.perform(
        [loaded, key = std::move(key), words = m_query.toStdString(),
         now = m_model.now()](KestCore::StateStore &store) mutable -> Base::Result<Committed> {
            ClipboardHistory history{store, std::move(key)};
            KEST_CHECK(history.applyRetention(now));
            KEST_TRY(const auto ids,
                     store.recordsWithIdPrefix(KestCore::kClipboardIndexPrefix));
            loaded->total = static_cast<int>(ids.size());
            if (Base::trimmed(words).empty()) {
                KEST_TRY(loaded->listings, history.list());
                loaded->total = static_cast<int>(loaded->listings.size());
            } else {
                KEST_TRY(loaded->listings, history.search(words));
            }
            return Committed{};
        },
        [self = QPointer{this}, loaded,
         generation = m_generation](const Base::Result<void> &result) {
            if (self && generation == self->m_generation) {
                self->finishLoad(loaded, result);
            }
        });
}

void ClipboardViewModel::finishLoad(std::shared_ptr<Loaded> loaded,
                                    const Base::Result<void> &result)
{
    m_stage = result ? Stage::loaded : Stage::failed;
    m_failure = result ? QString{} : engineText(result.error().message);
    m_loaded = std::move(loaded);
    showRows();
    emit changed();
}

void ClipboardViewModel::showRows()
{
    if (!m_isShown || !m_loaded) {
        return;
    }
    std::vector<ClipboardRow> rows;
    for (const auto &listing : m_loaded->listings) {
        if (passes(listing.entry, m_filter)) {
            const auto detail = m_details.find(QString::fromStdString(listing.entry.id));
            rows.push_back(clipboardRow(
                listing, detail == m_details.end() ? ClipboardDetail{} : detail->second,
                m_model.now(), m_formatting));
        }
    }
    m_list.show(std::move(rows));
    m_model.clock().reschedule();
    emit listChanged();
}

void ClipboardViewModel::look(const QString &id)
{
    if (m_details.contains(id)) {
        return;
    }
    m_details[id] = {};
    m_lookedAt.push_back(id);
    if (m_lookedAt.size() > kMostDetails) {
        m_details.erase(m_lookedAt.front());
        m_lookedAt.erase(m_lookedAt.begin());
    }
    const auto detail = std::make_shared<ClipboardDetail>();
    perform(
        [id = id.toStdString(), detail](ClipboardHistory &history) -> Base::Result<void> {
            auto payload = history.content(id);
            const Base::WipeAtEnd wiping{payload};
            if (!payload) {
                return {}; // its card says so already
            }
            if (payload->thumbnail) {
                detail->preview.loadFromData(payload->thumbnail->data(),
                                             static_cast<int>(payload->thumbnail->size()));
            }
            for (const auto &file : payload->files) {
                detail->files.push_back(QString::fromStdString(file.name));
            }
            return {};
        },
        [this, id, detail](const Base::Result<void> &) { showDetail(id, std::move(*detail)); });
}

void ClipboardViewModel::showDetail(const QString &id, ClipboardDetail detail)
{
    if (const auto wanted = m_details.find(id); wanted != m_details.end()) {
        wanted->second = std::move(detail);
        showRows();
    }
}

void ClipboardViewModel::perform(Work work, Done done)
{
    auto key = m_keyring.key();
    if (!key) {
        return;
    }
    m_model.perform(
        [work = std::move(work), key = std::move(*key)](
            KestCore::StateStore &store) mutable -> Base::Result<Committed> {
            ClipboardHistory history{store, std::move(key)};
            KEST_CHECK(work(history));
            return Committed{};
        },
        [self = QPointer{this}, done = std::move(done)](const Base::Result<void> &result) {
            if (self) {
                done(result);
            }
        });
}

void ClipboardViewModel::performAndTell(Work work)
{
    perform(std::move(work), [this](const Base::Result<void> &result) {
        if (!result) {
            m_model.say(engineText(result.error().message));
        }
        reload();
    });
}

void ClipboardViewModel::copy(const QString &id) { take(id, false); }

void ClipboardViewModel::use(const QString &id) { take(id, pastes()); }

void ClipboardViewModel::take(const QString &id, bool isUsed)
{
    const auto content = std::make_shared<std::optional<KestCore::ClipboardPayload>>();
    perform(
        [id = id.toStdString(), content](ClipboardHistory &history) -> Base::Result<void> {
            KEST_TRY(*content, history.content(id));
            return {};
        },
        [this, content, isUsed](const Base::Result<void> &result) {
            const auto finish = [self = QPointer{this},
                                 isUsed](const Base::Result<void> &outcome) {
                if (self && !outcome) {
                    self->m_model.say(engineText(outcome.error().message));
                } else if (self && isUsed) {
                    emit self->used();
                    self->m_desktop.paste();
                } else if (self) {
                    emit self->copied();
                }
            };
            if (!result || !*content) {
                finish(result);
                return;
            }
            m_recorder.copy(std::move(**content), finish);
            content->reset();
        });
}

void ClipboardViewModel::toggleFavourite(const QString &id)
{
    const auto &rows = m_list.rows();
    const auto found = std::ranges::find(rows, id, &ClipboardRow::id);
    if (found == rows.end()) {
        return;
    }
    performAndTell([id = id.toStdString(), wanted = !found->isFavourite](
                       ClipboardHistory &history) -> Base::Result<void> {
        KEST_TRY([[maybe_unused]] const auto entry, history.setFavourite(id, wanted));
        return {};
    });
}

void ClipboardViewModel::remove(const QString &id)
{
    const auto taken = std::make_shared<KestCore::RecordChanges>();
    perform(
        [id = id.toStdString(), taken](ClipboardHistory &history) -> Base::Result<void> {
            KEST_TRY(*taken, history.takeOut(id));
            return {};
        },
        [this, taken](const Base::Result<void> &result) {
            if (result) {
                m_removed = taken;
                m_forget.start();
                emit removed();
            } else {
                m_model.say(engineText(result.error().message));
            }
            reload();
        });
}

void ClipboardViewModel::restore()
{
    if (!m_removed) {
        return;
    }
    m_model.perform(
        [taken = std::exchange(m_removed, nullptr)](
            KestCore::StateStore &store) -> Base::Result<Committed> {
            KEST_CHECK(store.changeRecords(*taken));
            return Committed{};
        },
        [self = QPointer{this}](const Base::Result<void> &result) {
            if (self && !result) {
                self->m_model.say(engineText(result.error().message));
            }
            if (self) {
                self->reload();
            }
        });
}

// The settings may ask for it before anybody has looked at the history.
void ClipboardViewModel::clear()
{
    m_isClearing = !m_keyring.isReady();
    if (m_isClearing) {
        m_keyring.want(true);
        return;
    }
    performAndTell([](ClipboardHistory &history) { return history.clear(); });
}

} // namespace Velvetnook
