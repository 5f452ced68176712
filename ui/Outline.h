#pragma once

#include <QPainter>

namespace brastel {

/// Fills a rectangle of logical pixels with black so that its edges fall on whole device pixels and
/// equal widths stay equal, whatever the device pixel ratio.
void FillSharp(QPainter& painter, const QRect& rect);

/// A black rectangle outline, one logical pixel wide, just inside the rectangle.
void PaintOutline(QPainter& painter, const QRect& rect);

}  // namespace brastel
