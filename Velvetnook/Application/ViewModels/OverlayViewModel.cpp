// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Velvetnook/Application/ViewModels/OverlayViewModel.h"

#include "Velvetnook/Application/ApplicationModel.h"
#include "Velvetnook/Application/Formatting.h"
#include "Velvetnook/Application/Monitor/AmountText.h"

#include <algorithm>
#include <utility>

namespace Velvetnook
{

namespace
{

constexpr Base::Seconds kShownTime{1.2};

} // namespace

OverlayViewModel::OverlayViewModel(ApplicationModel &model, const Formatting &formatting,
                                   QObject *parent)
    : QObject{parent}, m_model{model}, m_formatting{formatting}
{
    connect(&model, &ApplicationModel::choicesChanged, this, &OverlayViewModel::follow);
    model.clock().add(
        this, [this](Base::Instant) { return m_until; },
        [this](Base::Instant now) {
            if (m_until && *m_until <= now) {
                m_until.reset();
                emit shownChanged();
            }
        });
}

OverlayViewModel::~OverlayViewModel() = default;

void OverlayViewModel::begin(MakeSources make)
{
    m_make = std::move(make);
    follow();
}

void OverlayViewModel::follow()
{
    const bool isWanted = m_make && m_model.isOn("overlay.enabled");
    if (isWanted == m_sources.has_value()) {
        return;
    }
    if (!isWanted) {
        if (m_sources->sound) {
            m_sources->sound->disconnect(this); // it may be shared and stay
        }
        m_sources.reset();
        m_volume.reset();
        return;
    }
    m_sources = m_make();
    if (m_sources->sound) {
        m_volume = m_sources->sound->volume();
        connect(m_sources->sound.get(), &SoundServer::volumeChanged, this,
                &OverlayViewModel::followVolume);
    }
    if (m_sources->lights) {
        connect(m_sources->lights.get(), &LightWatch::screenChanged, this,
                [this](double share) { show(Kind::screen, share); });
        connect(m_sources->lights.get(), &LightWatch::keyboardChanged, this,
                [this](double share) { show(Kind::keyboard, share); });
    }
}

// The first volume that is told, and the one of another device, have not been changed by a key.
void OverlayViewModel::followVolume()
{
    if (!m_sources) {
        return; // turned off: the server may be shared
    }
    const auto now = m_sources->sound->volume();
    const auto before = std::exchange(m_volume, now);
    if (now && before && now->device == before->device && now != before) {
        show(Kind::volume, now->level, now->isMuted);
    }
}

void OverlayViewModel::show(Kind kind, double share, bool isMuted)
{
    m_kind = kind;
    m_share = std::max(share, 0.0);
    m_isMuted = isMuted;
    const bool wasShown = m_until.has_value();
    m_until = m_model.now() + kShownTime;
    emit changed();
    if (!wasShown) {
        emit shownChanged();
    }
    m_model.clock().reschedule();
}

QString OverlayViewModel::icon() const
{
    switch (m_kind) {
    case Kind::volume:
        return m_isMuted ? QStringLiteral("mute") : QStringLiteral("volume");
    case Kind::screen:
        return QStringLiteral("bright");
    case Kind::keyboard:
        break;
    }
    return QStringLiteral("keyboard");
}

QString OverlayViewModel::text() const
{
    return m_isMuted ? tr("Muted") : percentText(m_formatting, m_share * 100, 0);
}

QString OverlayViewModel::spoken() const
{
    switch (m_kind) {
    case Kind::volume:
        return tr("Volume %1").arg(text());
    case Kind::screen:
        return tr("Brightness %1").arg(text());
    case Kind::keyboard:
        break;
    }
    return tr("Keyboard light %1").arg(text());
}

} // namespace Velvetnook
