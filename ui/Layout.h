#pragma once

#include <QFont>
#include <QLabel>
#include <QPalette>
#include <QRect>
#include <QWidget>

/// Places and sizes of windows and controls. They are laid out in twips (1/1440 inch) for 120 dots
/// per inch, where 12 twips make one logical pixel; board and controls so scale together.
namespace brastel {

/// The one grey of the windows, on which beads are drawn.
constexpr QColor WindowGround(192, 192, 192);

constexpr int TwipsPerPixel = 12;

/// Twips to logical pixels, rounded. For lengths and places inside a window, none negative.
constexpr int Pixels(int twips) { return (twips + TwipsPerPixel / 2) / TwipsPerPixel; }

/// A place in twips; corner and size are rounded by themselves.
struct TwipRect {
    int Left;
    int Top;
    int Width;
    int Height;

    constexpr QRect InPixels() const {
        return {Pixels(Left), Pixels(Top), Pixels(Width), Pixels(Height)};
    }
};

/// Point sizes are meant for 120 dots per inch, too.
constexpr int FontPixels(double points) { return qRound(points * 120 / 72); }

/// The platform's Japanese proportional gothic font in this size. Other fonts lack half-width
/// katakana.
QFont JapaneseFont(double points);

/// The palette with the windows' grey as ground and black text on it, whatever the desktop's theme.
QPalette GreyPalette(QPalette palette);

/// Frame of a dialog: title and close box, no resizing.
constexpr Qt::WindowFlags FixedDialogFlags = Qt::Dialog | Qt::MSWindowsFixedSizeDialogHint |
                                             Qt::CustomizeWindowHint | Qt::WindowTitleHint |
                                             Qt::WindowCloseButtonHint;

/// Makes the window's inner area exactly this large, in twips, with no resizing; `extraHeight`
/// logical pixels are added, for a menu bar.
void FixInnerArea(QWidget& window, int widthTwips, int heightTwips, int extraHeight = 0);

/// Puts a window of known size, about to be shown, into the middle of its screen, frame included;
/// one that is larger than the screen keeps its title bar and menu on it.
void CentreOnScreen(QWidget& window);

/// Names a control and puts it at its place.
void PlaceControl(QWidget& control, const QString& name, const TwipRect& place);

/// Makes the label's font as much smaller as its text needs to fit its width.
void ShrinkTextToFit(QLabel& label);

}  // namespace brastel
