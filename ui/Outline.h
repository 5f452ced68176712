#pragma once

#include <QPainter>

namespace brastel {

/// A straight line between two logical pixels, both included, about `width` logical pixels wide. It
/// covers whole device pixels at every ratio. Lines of one width are equally wide and meet at their
/// ends; a wider line reaches equally far beyond a thin one on all sides. The line is upright or
/// level, `from` not right of or below `to`.
void PaintSharpLine(QPainter& painter, QPoint from, QPoint to, int width, QColor color = Qt::black);

/// Such lines along the outermost pixels of the rectangle.
void PaintOutline(QPainter& painter, const QRect& rect, int width = 1, QColor color = Qt::black);

/// The frame of the keyboard's square and of a dragged piece: blue, which stands out from the
/// ground and the beads, with a white line inside, which stands out from lines and rings.
void PaintMark(QPainter& painter, const QRect& rect);
/// How far device pixels of the frame can lie beside its rectangle, in logical pixels.
constexpr int MarkMargin = 2;

}  // namespace brastel
