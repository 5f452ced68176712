#pragma once

#include <QFont>
#include <QLabel>
#include <QPalette>
#include <QRect>
#include <QWidget>

/// Places and sizes of windows and controls. They are given in twips (1/1440 inch). The layout is
/// for 120 dots per inch, so 12 twips are one logical pixel, and board and controls scale together.
namespace brastel {

/// The grey background of the windows and of the beads.
constexpr QColor WindowGround(192, 192, 192);

constexpr int TwipsPerPixel = 12;

/// Twips to logical pixels, rounded. The number must not be negative.
constexpr int Pixels(int twips) { return (twips + TwipsPerPixel / 2) / TwipsPerPixel; }

/// A rectangle in twips. Corner and size are rounded separately.
struct TwipRect {
    int Left;
    int Top;
    int Width;
    int Height;

    constexpr QRect InPixels() const {
        return {Pixels(Left), Pixels(Top), Pixels(Width), Pixels(Height)};
    }
};

/// Points to logical pixels at 120 dots per inch.
constexpr int FontPixels(double points) { return qRound(points * 120 / 72); }

/// A Japanese proportional gothic font of this size. Other fonts have no half-width katakana.
QFont JapaneseFont(double points);

/// The palette with a grey background and black text. The theme of the desktop does not change
/// them.
QPalette GreyPalette(QPalette palette);

/// Frame of a dialog: title and close box, no resizing.
constexpr Qt::WindowFlags FixedDialogFlags = Qt::Dialog | Qt::MSWindowsFixedSizeDialogHint |
                                             Qt::CustomizeWindowHint | Qt::WindowTitleHint |
                                             Qt::WindowCloseButtonHint;

/// Fixes the inner area of the window at this size in twips, plus `extraHeight` logical pixels for
/// a menu bar.
void FixInnerArea(QWidget& window, int widthTwips, int heightTwips, int extraHeight = 0);

/// Puts a window of known size, before it is shown, in the middle of its screen, frame included. If
/// the window is larger than the screen, its title bar and menu stay on the screen.
void CentreOnScreen(QWidget& window);

/// Sets the name and the place of a control.
void PlaceControl(QWidget& control, const QString& name, const TwipRect& place);

/// Makes the font of the label smaller until its text fits its width, down to 9 pixels.
void ShrinkTextToFit(QLabel& label);

}  // namespace brastel
