#include "ui/Layout.h"

#include <QFontMetrics>
#include <QScreen>
#include <QStyle>

namespace brastel {

namespace {

/// Before a window is first shown only a guess tells how much its frame will add.
QSize FrameSize(const QWidget& window) {
    const QSize known = window.frameGeometry().size();
    if (known != window.size()) return known;
    return window.size() + QSize(0, window.style()->pixelMetric(QStyle::PM_TitleBarHeight));
}

}  // namespace

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
    const QSize size = FrameSize(window);
    const QPoint corner((whole.left() + whole.right() + 1 - size.width()) / 2,
                        (whole.top() + whole.bottom() + 1 - size.height()) / 2);
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
