#include "ui/Outline.h"

namespace brastel {

void PaintSharpLine(QPainter& painter, QPoint from, QPoint to, int width, QColor color) {
    const QTransform& toDevice = painter.deviceTransform();
    const int thickness = qMax(1, qRound(width * painter.device()->devicePixelRatioF()));
    const QPoint half((thickness - 1) / 2, (thickness - 1) / 2);
    const QPoint begin = toDevice.map(QPointF(from)).toPoint() - half;
    const QPoint end = toDevice.map(QPointF(to)).toPoint() - half;
    const QRectF device(begin,
                        QSizeF(end.x() - begin.x() + thickness, end.y() - begin.y() + thickness));
    painter.fillRect(toDevice.inverted().mapRect(device), color);
}

void PaintOutline(QPainter& painter, const QRect& rect, int width, QColor color) {
    PaintSharpLine(painter, rect.topLeft(), rect.topRight(), width, color);
    PaintSharpLine(painter, rect.bottomLeft(), rect.bottomRight(), width, color);
    PaintSharpLine(painter, rect.topLeft(), rect.bottomLeft(), width, color);
    PaintSharpLine(painter, rect.topRight(), rect.bottomRight(), width, color);
}

}  // namespace brastel
