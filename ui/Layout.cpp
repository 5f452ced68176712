#include "ui/Layout.h"

#include <QFontMetrics>
#include <QScreen>

namespace brastel {

QFont JapaneseFont(double points) {
    QFont font;
    font.setFamilies({"IPAPGothic", "IPAexGothic", "Noto Sans CJK JP", "TakaoPGothic", "VL PGothic",
                      font.family()});
    font.setPixelSize(FontPixels(points));
    return font;
}

QPalette GreyPalette(QPalette palette) {
    palette.setColor(QPalette::Window, WindowGround);
    palette.setColor(QPalette::WindowText, Qt::black);
    return palette;
}

void FixInnerArea(QWidget& window, int widthTwips, int heightTwips, int extraHeight) {
    window.setFixedSize(Pixels(widthTwips), Pixels(heightTwips) + extraHeight);
}

void CentreOnScreen(QWidget& window) {
    const QRect whole = window.screen()->geometry();
    const QRect usable = window.screen()->availableGeometry();
    const QPoint corner = whole.center() - window.rect().center();
    window.move(qMax(corner.x(), usable.left()), qMax(corner.y(), usable.top()));
}

void PlaceControl(QWidget& control, const QString& name, const TwipRect& place) {
    control.setObjectName(name);
    control.setGeometry(place.InPixels());
}

void ShrinkTextToFit(QLabel& label) {
    constexpr int SmallestReadable = 9;
    QFont font = label.font();
    while (font.pixelSize() > SmallestReadable &&
           QFontMetrics(font).horizontalAdvance(label.text()) > label.width()) {
        font.setPixelSize(font.pixelSize() - 1);
    }
    label.setFont(font);
}

}  // namespace brastel
