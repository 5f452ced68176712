#include "testing/ShownPosition.h"

#include "core/Position.h"

namespace brastel {

namespace {

constexpr QRgb Black = qRgb(0, 0, 0);
constexpr QRgb Ground = qRgb(192, 192, 192);
constexpr QRgb Magenta = qRgb(255, 7, 255);
constexpr QRgb Cyan = qRgb(7, 255, 255);

QRgb BeadColor(int cell) { return cell == Red ? Magenta : cell == Blue ? Cyan : Ground; }

/// The pixel that shows the middle of a logical pixel.
QRgb PixelAt(const QImage& picture, int x, int y) {
    const double ratio = picture.devicePixelRatio();
    return picture.pixel(static_cast<int>((x + 0.5) * ratio), static_cast<int>((y + 0.5) * ratio));
}

bool ShowsTurn(const QImage& picture, int left) {
    return PixelAt(picture, left + 2, 230 + 25) == Black;
}

}  // namespace

std::string FirstWrongShown(const QImage& picture) {
    for (int square = FirstSquare; square <= LastSquare; ++square) {
        const std::string place = " on square " + std::to_string(square);
        const int left = SquareLeft(square);
        const int middle = SquareTop(square) + CellSize / 2;
        const QRgb bead = PixelAt(picture, left + CellSize / 2, middle);
        const bool hasRing = PixelAt(picture, left + 3, middle) == Black;
        if (bead != BeadColor(Pos.Board[square])) return "piece" + place;
        if (hasRing != IsRingSquare(square)) return "ring" + place;
    }
    if (ShowsTurn(picture, 660) != (Pos.SideToMove == Red)) return "Red's turn";
    if (ShowsTurn(picture, 730) != (Pos.SideToMove == Blue)) return "Blue's turn";
    return {};
}

}  // namespace brastel
