#include "ui/Bead.h"

#include "ui/Layout.h"

#include <QBrush>
#include <QColor>
#include <QPainter>
#include <QPointF>
#include <QRadialGradient>

#include <array>
#include <cstddef>

namespace brastel {
namespace {

/// Edge of the square source picture in which a bead is drawn, in source units.
constexpr qreal BeadEdge = 89.0;

/// Radius of the glass in source units. Its centre is the centre of the source picture. The shadow
/// reaches further down and to the right, but stays 4.45 units away from the edge of the picture
/// (2 px where the picture is shown at 40 px).
constexpr qreal BeadRadius = 37.0;

constexpr QPointF Centre(BeadEdge / 2, BeadEdge / 2);

struct Stop {
    qreal At;
    QRgb Color;
};

/// An ellipse of light or shadow, rotated about its centre. Its gradient runs from the centre (0)
/// to the outline (1).
struct Spot {
    QPointF Centre;
    qreal RadiusX;
    qreal RadiusY;
    qreal Degrees;
};

/// The colours in which the two kinds of glass differ.
struct Glass {
    std::array<Stop, 7> Body;
    std::array<Stop, 5> Depth;
    std::array<Stop, 5> Caustic;
};

// Around the centre the body has the main colour only, and no other layer covers this disc: the
// middle of a bead has exactly its main colour at any size.
constexpr Glass MagentaGlass = {
    {{{0.00, qRgb(255, 7, 255)},
      {0.40, qRgb(255, 7, 255)},
      {0.60, qRgb(248, 4, 249)},
      {0.76, qRgb(226, 0, 230)},
      {0.90, qRgb(170, 0, 184)},
      {0.97, qRgb(108, 0, 126)},
      {1.00, qRgb(78, 0, 98)}}},
    {{{0.00, qRgba(96, 0, 128, 0)},
      {0.48, qRgba(96, 0, 128, 0)},
      {0.64, qRgba(96, 0, 128, 22)},
      {0.80, qRgba(92, 0, 124, 86)},
      {1.00, qRgba(70, 0, 100, 195)}}},
    {{{0.00, qRgba(255, 214, 255, 235)},
      {0.25, qRgba(255, 204, 255, 205)},
      {0.50, qRgba(255, 176, 255, 120)},
      {0.75, qRgba(255, 150, 255, 36)},
      {1.00, qRgba(255, 130, 255, 0)}}},
};

constexpr Glass CyanGlass = {
    {{{0.00, qRgb(7, 255, 255)},
      {0.40, qRgb(7, 255, 255)},
      {0.60, qRgb(4, 246, 249)},
      {0.76, qRgb(0, 218, 230)},
      {0.90, qRgb(0, 158, 188)},
      {0.97, qRgb(0, 94, 132)},
      {1.00, qRgb(0, 66, 104)}}},
    {{{0.00, qRgba(0, 96, 140, 0)},
      {0.48, qRgba(0, 96, 140, 0)},
      {0.64, qRgba(0, 96, 140, 22)},
      {0.80, qRgba(0, 92, 136, 86)},
      {1.00, qRgba(0, 64, 112, 195)}}},
    {{{0.00, qRgba(230, 255, 255, 240)},
      {0.25, qRgba(222, 255, 255, 212)},
      {0.50, qRgba(196, 255, 255, 128)},
      {0.75, qRgba(170, 255, 255, 40)},
      {1.00, qRgba(150, 255, 255, 0)}}},
};

constexpr std::array<Stop, 4> ShadowStops = {{{0.00, qRgba(0, 0, 0, 120)},
                                              {0.88, qRgba(0, 0, 0, 120)},
                                              {0.95, qRgba(0, 0, 0, 50)},
                                              {1.00, qRgba(0, 0, 0, 0)}}};

constexpr std::array<Stop, 3> HaloStops = {{{0.00, qRgba(255, 255, 255, 150)},
                                            {0.50, qRgba(255, 255, 255, 70)},
                                            {1.00, qRgba(255, 255, 255, 0)}}};

constexpr std::array<Stop, 3> GlintStops = {{{0.00, qRgba(255, 255, 255, 255)},
                                             {0.70, qRgba(255, 255, 255, 250)},
                                             {1.00, qRgba(255, 255, 255, 170)}}};

constexpr Spot Shadow = {{45.3, 46.2}, 38.2, 38.2, 0};
constexpr Spot Body = {Centre, BeadRadius, BeadRadius, 0};
constexpr Spot Caustic = {{53.5, 64.5}, 23.5, 11.5, -25};
constexpr Spot Halo = {{31.0, 28.0}, 14.0, 10.0, -42};
constexpr Spot Glint = {{30.5, 27.0}, 7.6, 4.6, -42};

// The light comes from the upper left and is focused at the lower right. The glass looks deepest
// far from this focus.
constexpr QPointF DepthCentre(49.0, 52.5);
constexpr qreal DepthRadius = 48.5;

const Glass& GlassOf(int side) { return side == 1 ? CyanGlass : MagentaGlass; }

template <std::size_t N>
QBrush RadialBrush(QPointF centre, qreal radius, const std::array<Stop, N>& stops) {
    QRadialGradient gradient(centre, radius);
    for (const Stop& stop : stops) gradient.setColorAt(stop.At, QColor::fromRgba(stop.Color));
    return gradient;
}

template <std::size_t N>
void PaintSpot(QPainter& painter, const Spot& spot, const std::array<Stop, N>& stops) {
    painter.save();
    painter.translate(spot.Centre);
    painter.rotate(spot.Degrees);
    painter.scale(spot.RadiusX, spot.RadiusY);
    painter.setBrush(RadialBrush({0, 0}, 1, stops));
    painter.drawEllipse(QPointF(0, 0), 1, 1);
    painter.restore();
}

template <std::size_t N>
void PaintDepth(QPainter& painter, const std::array<Stop, N>& stops) {
    painter.setBrush(RadialBrush(DepthCentre, DepthRadius, stops));
    painter.drawEllipse(Centre, BeadRadius, BeadRadius);
}

/// A bead with its soft shadow, in source units.
void PaintBead(QPainter& painter, int side) {
    const Glass& glass = GlassOf(side);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    PaintSpot(painter, Shadow, ShadowStops);
    PaintSpot(painter, Body, glass.Body);
    PaintDepth(painter, glass.Depth);
    PaintSpot(painter, Caustic, glass.Caustic);
    PaintSpot(painter, Halo, HaloStops);
    PaintSpot(painter, Glint, GlintStops);
}

}  // namespace

QPixmap BeadPicture(int side, int size, qreal ratio) {
    // A ratio that is not a number (NaN) fails this test, too.
    if (size < 1 || !(ratio > 0)) return {};
    const int edge = qMax(1, qRound(size * ratio));
    QPixmap picture(edge, edge);
    picture.fill(WindowGround);
    QPainter painter(&picture);
    painter.scale(edge / BeadEdge, edge / BeadEdge);
    PaintBead(painter, side);
    painter.end();
    // Not earlier: while painting, one unit must be one device pixel.
    picture.setDevicePixelRatio(ratio);
    return picture;
}

}  // namespace brastel
