#include "ui/Outline.h"

namespace brastel {

void PaintSharpLine(QPainter& painter, QPoint from, QPoint to, int width, QColor color) {
    const QTransform& toDevice = painter.deviceTransform();
    const qreal ratio = painter.device()->devicePixelRatioF();
    const int thin = qMax(1, qRound(ratio));
    const int margin = qRound((width * ratio - thin) / 2);
    const int before = (thin - 1) / 2 + margin;
    const int thickness = thin + 2 * margin;
    const QPoint begin = toDevice.map(QPointF(from)).toPoint() - QPoint(before, before);
    const QPoint end = toDevice.map(QPointF(to)).toPoint() - QPoint(before, before);
    const QRectF device(begin, end + QPoint(thickness, thickness));
    painter.fillRect(toDevice.inverted().mapRect(device), color);
}

void PaintFrame(QPainter& painter, const QRect& rect) {
    constexpr QColor Blue(0, 64, 255);
    PaintOutline(painter, rect.adjusted(1, 1, -1, -1), 3, Qt::white);
    PaintOutline(painter, rect, 3, Blue);
}

void PaintOutline(QPainter& painter, const QRect& rect, int width, QColor color) {
    PaintSharpLine(painter, rect.topLeft(), rect.topRight(), width, color);
    PaintSharpLine(painter, rect.bottomLeft(), rect.bottomRight(), width, color);
    PaintSharpLine(painter, rect.topLeft(), rect.bottomLeft(), width, color);
    PaintSharpLine(painter, rect.topRight(), rect.bottomRight(), width, color);
}

}  // namespace brastel
