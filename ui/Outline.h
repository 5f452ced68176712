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

}  // namespace brastel
