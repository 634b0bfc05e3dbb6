// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Base/Instant.h"
#include "Velvetnook/Application/Levels/LightWatch.h"
#include "Velvetnook/Application/Levels/SoundServer.h"

#include <QObject>
#include <QString>

#include <functional>
#include <memory>
#include <optional>

namespace Velvetnook
{

class ApplicationModel;
class Formatting;

// What the platform tells of levels. Made only while the overlay is turned on.
struct LevelSources {
    std::shared_ptr<SoundServer> sound{};
    std::unique_ptr<LightWatch> lights{};
};

// The level that a key has just changed, for a moment at the top edge: one at a time. Off until
// setting "overlay.enabled" turns it on, as desktops show one of their own.
class OverlayViewModel : public QObject
{
    Q_OBJECT
    Q_PROPERTY(bool isShown READ isShown NOTIFY shownChanged)
    Q_PROPERTY(QString icon READ icon NOTIFY changed)
    Q_PROPERTY(double share READ share NOTIFY changed) // 0 to 1
    Q_PROPERTY(QString text READ text NOTIFY changed)
    Q_PROPERTY(bool isMuted READ isMuted NOTIFY changed)
    Q_PROPERTY(QString spoken READ spoken NOTIFY changed)

public:
    using MakeSources = std::function<LevelSources()>;

    OverlayViewModel(ApplicationModel &model, const Formatting &formatting,
                     QObject *parent = nullptr);
    ~OverlayViewModel() override;
    OverlayViewModel(const OverlayViewModel &) = delete;
    OverlayViewModel &operator=(const OverlayViewModel &) = delete;

    void begin(MakeSources make);

    bool isShown() const { return m_until.has_value(); }
    QString icon() const;
    double share() const { return m_share; }
    QString text() const;
    bool isMuted() const { return m_isMuted; }
    QString spoken() const;

    enum class Kind : std::uint8_t { volume, screen, keyboard };
    // Shows it for a moment from now on, in the place of what is shown.
    void show(Kind kind, double share, bool isMuted = false);

signals:
    void shownChanged();
    void changed();

private:
    void follow();
    void followVolume();

    ApplicationModel &m_model;
    const Formatting &m_formatting;
    MakeSources m_make;
    std::optional<LevelSources> m_sources;
    std::optional<SystemVolume> m_volume; // as it was told last
    std::optional<Base::Instant> m_until;
    Kind m_kind{};
    double m_share = 0;
    bool m_isMuted = false;
};

} // namespace Velvetnook
