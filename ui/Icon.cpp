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
    int Size;
    qreal RingDiameter;
    qreal RingWidth;
    qreal Gleam;
    qreal CyanDiameter;
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
    QPointF Centre;
    qreal Radius;
};

// The ring sits in the lower left corner, inside its gleam; the cyan bead in the upper right.
Disc RingDisc(const Variant& variant) {
    const qreal radius = variant.RingDiameter / 2;
    const qreal inset = variant.Gleam + radius;
    return {{inset, variant.Size - inset}, radius};
}

Disc CyanDisc(const Variant& variant) {
    const qreal radius = variant.CyanDiameter / 2;
    const int room = qRound(ShadowRoom * variant.Size);
    return {{variant.Size - room - radius, radius}, radius};
}

void PaintBeadAt(QPainter& painter, int side, const Disc& disc) {
    painter.save();
    painter.translate(disc.Centre);
    painter.scale(disc.Radius / BeadRadius, disc.Radius / BeadRadius);
    painter.translate(-BeadEdge / 2, -BeadEdge / 2);
    PaintBead(painter, side);
    painter.restore();
}

void PaintRing(QPainter& painter, const Disc& disc, qreal width, const QColor& color) {
    const qreal radius = disc.Radius - width / 2;
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(color, width));
    painter.drawEllipse(disc.Centre, radius, radius);
}

/// The gleam is a pale line around the ring, which would be lost on a dark ground without it; at
/// the smallest size it would only blur the ring, so there its width is 0.
void PaintCarrier(QPainter& painter, const Variant& variant) {
    const Disc ring = RingDisc(variant);
    const Disc gleam = {ring.Centre, ring.Radius + variant.Gleam};
    const Disc bead = {ring.Centre, ring.Radius - variant.RingWidth / 3};
    if (variant.Gleam > 0) PaintRing(painter, gleam, variant.Gleam + 0.5, Gleam);
    PaintBeadAt(painter, -1, bead);
    PaintRing(painter, ring, variant.RingWidth, Qt::black);
}

QPixmap PaintVariant(const Variant& variant) {
    QPixmap pixmap(variant.Size, variant.Size);
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
