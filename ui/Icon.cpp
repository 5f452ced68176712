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

/// The measures of one pixmap in pixels. They are not proportional to the size: in a small icon the
/// ring must be thicker to look black, and discs must begin and end between two pixels.
struct Variant {
    int Size;
    qreal RingDiameter;
    qreal RingWidth;
    qreal RimWidth;
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

constexpr QColor RimColor(232, 232, 240, 160);

// The part of the size that stays free at the right for the shadow of the cyan bead.
constexpr qreal ShadowRoom = 0.012;

struct Disc {
    QPointF Centre;
    qreal Radius;
};

// The ring is in the lower left corner, inside its rim, and the cyan bead in the upper right
// corner.
Disc RingDisc(const Variant& variant) {
    const qreal radius = variant.RingDiameter / 2;
    const qreal inset = variant.RimWidth + radius;
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

/// The rim is a pale line around the ring. Without it the ring is invisible on a dark background.
/// At the smallest size it would blur the ring, so its width is 0 there.
void PaintCarrier(QPainter& painter, const Variant& variant) {
    const Disc ring = RingDisc(variant);
    const Disc rim = {ring.Centre, ring.Radius + variant.RimWidth};
    const Disc bead = {ring.Centre, ring.Radius - variant.RingWidth / 3};
    if (variant.RimWidth > 0) PaintRing(painter, rim, variant.RimWidth + 0.5, RimColor);
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
