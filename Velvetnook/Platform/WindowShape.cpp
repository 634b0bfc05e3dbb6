// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Velvetnook/Platform/WindowShape.h"

#include "Velvetnook/Platform/Xcb.h"

#include <QGuiApplication>
#include <QPainterPath>
#include <QWindow>

#include <xcb/shape.h>

#include <algorithm>
#include <cmath>
#include <string>
#include <vector>

namespace Velvetnook
{

namespace
{

void setShape(xcb_connection_t *server, xcb_window_t window, xcb_shape_sk_t kind,
              const QRegion &region)
{
    std::vector<xcb_rectangle_t> rectangles;
    for (const QRect &each : region) {
        rectangles.push_back({.x = static_cast<std::int16_t>(each.x()),
                              .y = static_cast<std::int16_t>(each.y()),
                              .width = static_cast<std::uint16_t>(each.width()),
                              .height = static_cast<std::uint16_t>(each.height())});
    }
    xcb_shape_rectangles(server, XCB_SHAPE_SO_SET, kind, XCB_CLIP_ORDERING_YX_BANDED, window, 0,
                         0, static_cast<std::uint32_t>(rectangles.size()), rectangles.data());
}

// How far a quarter of a circle has curved in at the middle of the row `row` of `radius`.
int inset(int radius, int row)
{
    const double depth = radius - row - 0.5;
    const double width = std::sqrt(std::max(radius * radius - depth * depth, 0.0));
    return static_cast<int>(std::lround(radius - width));
}

} // namespace

QRegion hangingOutline(const QRect &body, int radius, int fillet)
{
    QRegion region;
    const int bend = std::min(radius, body.height());
    const int straight = body.height() - bend;
    region += QRect{body.left(), 0, body.width(), straight};
    for (int row = 0; row < bend; ++row) {
        const int in = inset(bend, bend - 1 - row);
        region += QRect{body.left() + in, straight + row, body.width() - 2 * in, 1};
    }
    for (int row = 0; row < std::min(fillet, body.height()); ++row) {
        const int out = inset(fillet, row);
        region += QRect{body.left() - out, row, body.width() + 2 * out, 1};
    }
    return region;
}

QRegion roundOutline(const QSize &size, int radius)
{
    QPainterPath path;
    path.addRoundedRect(QRectF{QPointF{}, QSizeF{size}}, radius, radius);
    return QRegion{path.toFillPolygon().toPolygon()};
}

bool hasCompositor()
{
    xcb_connection_t *server = Xcb::connection();
    if (server == nullptr) {
        return true; // everything that is not X mixes its windows
    }
    const auto owner =
        Xcb::reply(xcb_get_selection_owner_reply, server,
                   xcb_get_selection_owner(server, Xcb::atom(server, "_NET_WM_CM_S0")));
    return owner && owner->owner != XCB_NONE;
}

void setWindowOutline(QWindow &window, const QRegion &outline, bool isBlended)
{
    xcb_connection_t *server = Xcb::connection();
    if (server == nullptr) {
        return;
    }
    const auto id = static_cast<xcb_window_t>(window.winId());
    setShape(server, id, XCB_SHAPE_SK_INPUT, outline);
    if (isBlended) {
        xcb_shape_mask(server, XCB_SHAPE_SO_SET, XCB_SHAPE_SK_BOUNDING, id, 0, 0, XCB_NONE);
    } else {
        setShape(server, id, XCB_SHAPE_SK_BOUNDING, outline);
    }
    xcb_flush(server);
}

void keepContentAtTopCentre(QWindow &window) { keepContentAtEdge(window, Qt::TopEdge); }

void keepContentAtEdge(QWindow &window, Qt::Edge edge)
{
    if (xcb_connection_t *server = Xcb::connection(); server != nullptr) {
        std::uint32_t gravity = XCB_GRAVITY_NORTH;
        if (edge == Qt::LeftEdge) {
            gravity = XCB_GRAVITY_WEST;
        } else if (edge == Qt::RightEdge) {
            gravity = XCB_GRAVITY_EAST;
        } else if (edge == Qt::BottomEdge) {
            gravity = XCB_GRAVITY_SOUTH;
        }
        xcb_change_window_attributes(server, static_cast<xcb_window_t>(window.winId()),
                                     XCB_CW_BIT_GRAVITY, &gravity);
    }
}

void raiseAboveAll(QWindow &window)
{
    if (xcb_connection_t *server = Xcb::connection(); server != nullptr) {
        const std::uint32_t above = XCB_STACK_MODE_ABOVE;
        xcb_configure_window(server, static_cast<xcb_window_t>(window.winId()),
                             XCB_CONFIG_WINDOW_STACK_MODE, &above);
        xcb_flush(server);
    }
}

quint32 focusedWindow()
{
    xcb_connection_t *server = Xcb::connection();
    if (server == nullptr) {
        return 0;
    }
    const auto focus =
        Xcb::reply(xcb_get_input_focus_reply, server, xcb_get_input_focus(server));
    // The first two numbers stand for no window and for whatever the pointer is on.
    return focus && focus->focus > XCB_INPUT_FOCUS_POINTER_ROOT ? focus->focus : 0;
}

void giveFocusTo(quint32 window)
{
    xcb_connection_t *server = Xcb::connection();
    if (server == nullptr) {
        return;
    }
    const auto looks = Xcb::reply(xcb_get_window_attributes_reply, server,
                                  xcb_get_window_attributes(server, window));
    const bool isThere = looks && looks->map_state == XCB_MAP_STATE_VIEWABLE;
    constexpr xcb_window_t kWhereThePointerIs = XCB_INPUT_FOCUS_POINTER_ROOT;
    xcb_set_input_focus(server, XCB_INPUT_FOCUS_POINTER_ROOT,
                        isThere ? window : kWhereThePointerIs, XCB_CURRENT_TIME);
    xcb_flush(server);
}

} // namespace Velvetnook
