#pragma once

#include <QPainter>

namespace brastel {

/// A straight black line between two logical pixels, both included, `width` logical pixels wide
/// with the pixels in its middle. It covers whole device pixels at every ratio, and lines of one
/// width are equally wide and meet at their ends. The line is upright or level, `from` not right of
/// or below `to`.
void PaintSharpLine(QPainter& painter, QPoint from, QPoint to, int width);

/// A black rectangle outline, one logical pixel wide, just inside the rectangle.
void PaintOutline(QPainter& painter, const QRect& rect);

}  // namespace brastel
