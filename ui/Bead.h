#pragma once

#include <QPixmap>
#include <QtGlobal>

class QPainter;

namespace brastel {

/// Edge of the square source picture in which a bead is drawn, in source units.
constexpr qreal BeadEdge = 89.0;

/// Radius of the glass itself, in source units; its centre is the centre of the source picture.
/// The shadow reaches a little further, down and to the right, but never within 4.45 units of
/// the picture's edge (2 px where the picture is shown at 40 px).
constexpr qreal BeadRadius = 37.0;

/// Paints a glass bead with its soft shadow, and no ground, over what `painter` already shows.
/// The bead covers the source square (0, 0) to (BeadEdge, BeadEdge) of the painter's current
/// coordinates, so the caller translates and scales first. The middle of the bead is exactly
/// its main colour: RGB(255,7,255) for Red, RGB(7,255,255) for Blue. The painter's state is
/// left as it was.
///
/// `side` is 1 for Blue (cyan glass); any other value counts as Red (magenta glass).
/// `painter` must be active; an inactive one is left alone.
void PaintBead(QPainter& painter, int side);

/// The picture of a glass bead on its grey ground, `size` logical pixels square, sharp at
/// `ratio` device pixels a logical pixel; its edge in device pixels is rounded to a whole number,
/// at least 1. It is opaque, its corners are exactly RGB(192,192,192), and it is drawn anew at
/// every call: callers keep it.
///
/// `side` is 1 for Blue (cyan glass); any other value counts as Red (magenta glass).
/// A null pixmap comes back if `size` is below 1 or `ratio` not above 0. Needs a QGuiApplication,
/// on the GUI thread.
QPixmap BeadPicture(int side, int size, qreal ratio);

}  // namespace brastel
