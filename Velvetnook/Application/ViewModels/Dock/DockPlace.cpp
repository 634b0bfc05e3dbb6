// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "KestCore/Surfaces/CompanionState.h"
#include "Velvetnook/Application/ViewModels/DockViewModel.h"

// Where the dock stands on its screen, and what it looks like there.
namespace Velvetnook
{

namespace
{

KestCore::PanelSize sizeOf(const std::optional<std::string> &name)
{
    const std::string_view size = name ? std::string_view{*name} : "comfortable";
    if (size == "mini" || size == "small" || size == "compact") {
        return {.width = 300, .height = 360};
    }
    return size == "large" ? KestCore::PanelSize{.width = 380, .height = 460}
                           : KestCore::PanelSize{.width = 320, .height = 396};
}

} // namespace

void DockViewModel::setScreen(const QSizeF &screen, const QRectF &room)
{
    if (screen != m_screen || room != m_room) {
        m_screen = screen;
        m_room = room;
        emit placeChanged();
    }
}

void DockViewModel::setAnchor(double anchor)
{
    if (!qFuzzyCompare(anchor + 2, m_anchor + 2)) {
        m_anchor = anchor;
        emit placeChanged();
    }
}

// The engine's points go upwards.
KestCore::EdgeFrames DockViewModel::frames() const
{
    KestCore::DockPlace place{.screen = {.width = m_room.width(), .height = m_room.height()},
                              .edge = preferences().edge,
                              .iconSize = preferences().iconSize,
                              .floating = preferences().floating,
                              .panel = sizeOf(preferences().panelSize)};
    if (m_anchor >= 0) {
        const KestCore::Rect tab = KestCore::layOutDock(place).tab;
        place.anchor =
            preferences().edge == "bottom" ? tab.x + m_anchor : tab.maxY() - m_anchor;
    }
    return KestCore::layOutDock(place);
}

QRectF DockViewModel::onScreen(const KestCore::Rect &rect) const
{
    return {m_room.x() + rect.x, m_room.y() + m_room.height() - rect.maxY(), rect.width,
            rect.height};
}

QRectF DockViewModel::tab() const { return onScreen(frames().tab); }

QRectF DockViewModel::panel() const
{
    return onScreen(frames().panel.value_or(KestCore::Rect{}));
}

double DockViewModel::pointerShare() const
{
    const double upwards = frames().pointer;
    return preferences().edge == "bottom" ? upwards : 1 - upwards;
}

QString DockViewModel::edge() const
{
    const std::string &edge = preferences().edge;
    return edge == "left" || edge == "bottom" ? QString::fromStdString(edge)
                                              : QStringLiteral("right");
}

bool DockViewModel::isFloating() const { return preferences().floating; }
bool DockViewModel::isFrosted() const { return preferences().material != "solid"; }
bool DockViewModel::isMagnifying() const { return preferences().magnification; }
bool DockViewModel::hides() const { return preferences().mode == "edge"; }
bool DockViewModel::opensByHover() const { return preferences().hover; }

} // namespace Velvetnook
