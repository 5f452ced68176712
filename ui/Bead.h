#pragma once

#include <QPixmap>
#include <QtGlobal>

class QPainter;

namespace brastel {

/// The glass beads that show the pieces.
///
/// Edge of the square source picture in which a bead is drawn, in source units.
constexpr qreal BeadEdge = 89.0;

/// Radius of the glass in source units. Its centre is the centre of the source picture. The shadow
/// reaches further down and to the right, but stays 4.45 units away from the edge of the picture
/// (2 px where the picture is shown at 40 px).
constexpr qreal BeadRadius = 37.0;

/// Paints a glass bead with its soft shadow and no background over what `painter` already shows.
/// The bead covers the source square (0, 0) to (BeadEdge, BeadEdge) of the painter's current
/// coordinates, so the caller translates and scales first. The middle of the bead is exactly
/// its main colour: RGB(255,7,255) for Red, RGB(7,255,255) for Blue. The state of the painter does
/// not change.
///
/// `side` is 1 for Blue (cyan glass); any other value counts as Red (magenta glass).
/// Nothing happens if `painter` is not active.
void PaintBead(QPainter& painter, int side);

/// The picture of a glass bead on its grey background. It is `size` logical pixels square and sharp
/// at `ratio` device pixels for each logical pixel. Its edge in device pixels is rounded to a whole
/// number, at least 1. It is opaque, and its corners are exactly RGB(192,192,192). Every call draws
/// it again, so callers keep it.
///
/// `side` is 1 for Blue (cyan glass); any other value counts as Red (magenta glass).
/// Returns a null pixmap if `size` is below 1 or `ratio` is not above 0. Needs a QGuiApplication,
/// on the GUI thread.
QPixmap BeadPicture(int side, int size, qreal ratio);

}  // namespace brastel
