#include "ui/Layout.h"

#include <QEvent>
#include <QFontMetrics>
#include <QScreen>
#include <QStyle>
#include <QWindow>

#include <optional>

namespace brastel {

namespace {

/// What the frame of the window manager adds to the size of a window. Measured at the last window.
std::optional<QSize> FrameSize;

/// The top left corner of the frame when the window is in the middle of its screen.
QPoint MiddlePlace(const QWidget& window) {
    const QRect whole = window.screen()->geometry();
    const QRect usable = window.screen()->availableGeometry();
    const QSize guess(0, window.style()->pixelMetric(QStyle::PM_TitleBarHeight));
    const QSize size = window.size() + FrameSize.value_or(guess);
    const QPoint corner((whole.left() + whole.right() + 1 - size.width()) / 2,
                        (whole.top() + whole.bottom() + 1 - size.height()) / 2);
    return {qMax(corner.x(), usable.left()), qMax(corner.y(), usable.top())};
}

/// Moves a window to the middle again when it is first painted. Its frame is not known earlier, and
/// the user cannot move the window earlier.
class FirstPaintFilter : public QObject {
public:
    explicit FirstPaintFilter(QWidget* window) : QObject(window) {
        window->installEventFilter(this);
    }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() != QEvent::Paint) return false;
        auto& window = static_cast<QWidget&>(*watched);
        window.removeEventFilter(this);
        deleteLater();
        const QMargins frame = window.windowHandle()->frameMargins();
        FrameSize = QSize(frame.left() + frame.right(), frame.top() + frame.bottom());
        // QWidget::move uses an old frame size if the window was hidden and shown again.
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
    new FirstPaintFilter(&window);
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
