#pragma once

#include <QPainter>

namespace brastel {

/// Lines that are sharp at every device pixel ratio, and the frames made of them.
///
/// Paints a straight line between two logical pixels, both included, about `width` logical pixels
/// wide. It covers whole device pixels at every ratio. Lines of the same `width` are equally wide
/// and meet at their ends. A wider line extends equally far beyond a thin one on all sides. The
/// line is vertical or horizontal, and `from` is not right of or below `to`.
void PaintSharpLine(QPainter& painter, QPoint from, QPoint to, int width, QColor color = Qt::black);

/// Paints such lines along the outermost pixels of the rectangle.
void PaintOutline(QPainter& painter, const QRect& rect, int width = 1, QColor color = Qt::black);

/// Paints the frame of the square with the keyboard focus, or of a dragged piece. It is blue, which
/// contrasts with the background and the beads. A white line inside contrasts with lines and rings.
void PaintFrame(QPainter& painter, const QRect& rect);
/// How far the frame can extend beyond its rectangle, in logical pixels.
constexpr int FrameMargin = 2;

}  // namespace brastel
