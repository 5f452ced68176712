#include "ui/Layout.h"

#include <QEvent>
#include <QFontMetrics>
#include <QScreen>
#include <QStyle>
#include <QWindow>

#include <optional>

namespace brastel {

namespace {

/// What the window manager's frame adds to the size of a window, as seen last.
std::optional<QSize> FrameSeen;

/// Where a window's frame begins when it stands in the middle of its screen.
QPoint MiddlePlace(const QWidget& window) {
    const QRect whole = window.screen()->geometry();
    const QRect usable = window.screen()->availableGeometry();
    const QSize guess(0, window.style()->pixelMetric(QStyle::PM_TitleBarHeight));
    const QSize size = window.size() + FrameSeen.value_or(guess);
    const QPoint corner((whole.left() + whole.right() + 1 - size.width()) / 2,
                        (whole.top() + whole.bottom() + 1 - size.height()) / 2);
    return {qMax(corner.x(), usable.left()), qMax(corner.y(), usable.top())};
}

/// Moves a window to the middle once more when it is first painted. Only then its frame is known; a
/// user cannot have moved it before.
class FrameWatch : public QObject {
public:
    explicit FrameWatch(QWidget* window) : QObject(window) { window->installEventFilter(this); }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() != QEvent::Paint) return false;
        auto& window = static_cast<QWidget&>(*watched);
        window.removeEventFilter(this);
        deleteLater();
        const QMargins frame = window.windowHandle()->frameMargins();
        FrameSeen = QSize(frame.left() + frame.right(), frame.top() + frame.bottom());
        // QWidget::move would use a frame size that is out of date after a rebuild.
        window.windowHandle()->setPosition(MiddlePlace(window) + QPoint(frame.left(), frame.top()));
        return false;
    }
};

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
    window.move(MiddlePlace(window));
    new FrameWatch(&window);
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
