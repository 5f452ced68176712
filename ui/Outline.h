#pragma once

#include <QPainter>

namespace brastel {

/// A straight line between two logical pixels, both included, `width` logical pixels wide
/// with the pixels in its middle. It covers whole device pixels at every ratio, and lines of one
/// width are equally wide and meet at their ends. The line is upright or level, `from` not right of
/// or below `to`.
void PaintSharpLine(QPainter& painter, QPoint from, QPoint to, int width, QColor color = Qt::black);

/// Such lines along the outermost pixels of the rectangle.
void PaintOutline(QPainter& painter, const QRect& rect, int width = 1, QColor color = Qt::black);

}  // namespace brastel
