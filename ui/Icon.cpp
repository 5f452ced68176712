#include "ui/Icon.h"

#include "ui/Bead.h"

#include <QColor>
#include <QPainter>
#include <QPen>
#include <QPixmap>
#include <QPointF>
#include <QtGlobal>

#include <array>

namespace brastel {
namespace {

/// The measures of one pixmap, in pixels. They are no fixed shares of the size: a small icon needs
/// a heavier ring for it to stay black, and discs that begin and end between two pixels.
struct Variant {
    int size;
    qreal ringDiameter;
    qreal ringWidth;
    qreal gleam;
    qreal cyanDiameter;
};

constexpr std::array<Variant, 7> Variants = {{
    {16, 13, 2.0, 0.0, 10},
    {24, 18, 2.5, 1.0, 14},
    {32, 24, 3.0, 1.0, 19},
    {48, 36, 4.5, 1.0, 28},
    {64, 48, 6.0, 1.0, 38},
    {128, 96, 11.0, 1.5, 75},
    {256, 192, 21.0, 2.5, 150},
}};

constexpr QColor Gleam(232, 232, 240, 160);

// The share of the size kept free at the right for the shadow of the cyan bead.
constexpr qreal ShadowRoom = 0.012;

struct Disc {
    QPointF centre;
    qreal radius;
};

// The ring sits in the lower left corner, inside its gleam; the cyan bead in the upper right.
Disc RingDisc(const Variant& variant) {
    const qreal radius = variant.ringDiameter / 2;
    const qreal inset = variant.gleam + radius;
    return {{inset, variant.size - inset}, radius};
}

Disc CyanDisc(const Variant& variant) {
    const qreal radius = variant.cyanDiameter / 2;
    const int room = qRound(ShadowRoom * variant.size);
    return {{variant.size - room - radius, radius}, radius};
}

void PaintBeadAt(QPainter& painter, int side, const Disc& disc) {
    painter.save();
    painter.translate(disc.centre);
    painter.scale(disc.radius / BeadRadius, disc.radius / BeadRadius);
    painter.translate(-BeadEdge / 2, -BeadEdge / 2);
    PaintBead(painter, side);
    painter.restore();
}

void PaintRing(QPainter& painter, const Disc& disc, qreal width, const QColor& color) {
    const qreal radius = disc.radius - width / 2;
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(color, width));
    painter.drawEllipse(disc.centre, radius, radius);
}

/// The gleam is a pale line around the ring, which would be lost on a dark ground without it; at
/// the smallest size it would only blur the ring, so there its width is 0.
void PaintCarrier(QPainter& painter, const Variant& variant) {
    const Disc ring = RingDisc(variant);
    const Disc gleam = {ring.centre, ring.radius + variant.gleam};
    const Disc bead = {ring.centre, ring.radius - variant.ringWidth / 3};
    if (variant.gleam > 0) PaintRing(painter, gleam, variant.gleam + 0.5, Gleam);
    PaintBeadAt(painter, -1, bead);
    PaintRing(painter, ring, variant.ringWidth, Qt::black);
}

QPixmap PaintVariant(const Variant& variant) {
    QPixmap pixmap(variant.size, variant.size);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    PaintBeadAt(painter, 1, CyanDisc(variant));
    PaintCarrier(painter, variant);
    return pixmap;
}

}  // namespace

QIcon ApplicationIcon() {
    QIcon icon;
    for (const Variant& variant : Variants) icon.addPixmap(PaintVariant(variant));
    return icon;
}

}  // namespace brastel
