// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QMargins>
#include <QRegion>

class QWindow;

// What Qt leaves to the X server about a window that is not a rectangle. Each does nothing on
// another platform.
namespace Velvetnook
{

// The outline of something that hangs from the top edge, in whole pixels: a body with round
// lower corners and, beside its top, fillets that curve to the edge. `body` is without the
// fillets and begins at y 0.
QRegion hangingOutline(const QRect &body, int radius, int fillet);

// The outline of a window with round corners.
QRegion roundOutline(const QSize &size, int radius);

// Whether something mixes translucent windows with what is below them.
bool hasCompositor();

// Lets the pointer through everywhere but in `outline`, in device pixels of the window. What
// lies around is drawn, such as a shadow, only where it is blended with what is below. Waits
// for nobody, as it is called for each frame of a motion.
void setWindowOutline(QWindow &window, const QRegion &outline, bool isBlended);

// When the window changes its size, what was drawn stays at its top centre until it is drawn
// again: nothing jumps.
void keepContentAtTopCentre(QWindow &window);

// The same for a window that grows away from the middle of an edge of the screen.
void keepContentAtEdge(QWindow &window, Qt::Edge edge);

void raiseAboveAll(QWindow &window);

// The window that has the keyboard now, 0 for none; and giving it back, to whatever the
// pointer is on where that window is gone.
quint32 focusedWindow();
void giveFocusTo(quint32 window);

} // namespace Velvetnook
