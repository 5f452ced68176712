#pragma once

#include <QPixmap>
#include <QtGlobal>

/// The glass beads that show the pieces.
namespace brastel {

/// The picture of a glass bead on its grey background. It is `size` logical pixels square and sharp
/// at `ratio` device pixels for each logical pixel. Its edge in device pixels is rounded to a whole
/// number, at least 1. It is opaque, and its corners are exactly RGB(192,192,192). The middle of
/// the bead is exactly its main colour: RGB(255,7,255) for Red, RGB(7,255,255) for Blue. Every call
/// draws it again, so callers keep it.
///
/// `side` is 1 for Blue (cyan glass); any other value counts as Red (magenta glass).
/// Returns a null pixmap if `size` is below 1 or `ratio` is not above 0. Needs a QGuiApplication,
/// on the GUI thread.
QPixmap BeadPicture(int side, int size, qreal ratio);

}  // namespace brastel
