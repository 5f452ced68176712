#include "ui/Outline.h"

namespace brastel {

void FillSharp(QPainter& painter, const QRect& rect) {
    const qreal ratio = painter.device()->devicePixelRatioF();
    const auto snap = [ratio](int length) { return qRound(length * ratio) / ratio; };
    painter.fillRect(
        QRectF(snap(rect.left()), snap(rect.top()), snap(rect.width()), snap(rect.height())),
        Qt::black);
}

void PaintOutline(QPainter& painter, const QRect& rect) {
    FillSharp(painter, {rect.left(), rect.top(), rect.width(), 1});
    FillSharp(painter, {rect.left(), rect.bottom(), rect.width(), 1});
    FillSharp(painter, {rect.left(), rect.top(), 1, rect.height()});
    FillSharp(painter, {rect.right(), rect.top(), 1, rect.height()});
}

}  // namespace brastel
