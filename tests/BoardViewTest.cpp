#include "tests/WindowTest.h"
#include "ui/Bead.h"

#include <QHelpEvent>
#include <QPainter>
#include <QToolTip>

namespace brastel {

namespace {

constexpr QRgb Black = qRgb(0, 0, 0);
constexpr QRgb Ground = qRgb(192, 192, 192);
constexpr QRgb MarkBlue = qRgb(0, 64, 255);
constexpr QRgb White = qRgb(255, 255, 255);

using BoardViewTest = WindowTest;

/// Where a run of a colour ends, all in device pixels.
QPoint EndOf(QRgb color, const QImage& picture, QPoint point, QPoint step) {
    while (picture.valid(point) && picture.pixel(point) == color) point += step;
    return point;
}

/// Length of the run of a colour that begins at a logical point, in device pixels. At a ratio that
/// is no whole number it may begin a device pixel earlier or later. 0 unless the pixel before it is
/// ground and the one behind it has the colour `behind`.
int LengthOf(const QImage& picture, QPoint start, QPoint step, QRgb color, QRgb behind) {
    const double ratio = picture.devicePixelRatio();
    const QPoint before = (QPointF(start) * ratio).toPoint() - 2 * qCeil(ratio) * step;
    const QPoint begin = EndOf(Ground, picture, before, step);
    const QPoint end = EndOf(color, picture, begin, step);
    return picture.pixel(end) == behind ? (end - begin).manhattanLength() : 0;
}

/// All of a start layout, where every logical pixel is one device pixel or two. The keyboard's
/// frame lies below the ring.
TEST_F(BoardViewTest, EverythingIsDrawnInItsPlace) {
    Open(0);
    const QImage picture = Picture();
    const int ratio = qRound(picture.devicePixelRatio());
    QImage expected(picture.size(), picture.format());
    expected.setDevicePixelRatio(ratio);
    expected.fill(Ground);
    QPainter painter(&expected);
    const auto outline = [&painter](const QRect& rect) {
        const QRegion frame = QRegion(rect) - rect.adjusted(1, 1, -1, -1);
        for (const QRect& edge : frame) painter.fillRect(edge, Black);
    };
    for (const auto& [side, square] : {std::pair{Red, 68}, {Red, 69}, {Blue, 44}, {Blue, 45}}) {
        const QPixmap bead = BeadPicture(side, CellSize, ratio);
        painter.drawPixmap(SquareLeft(square), SquareTop(square), bead);
    }
    outline({20, 20, 320, 560});
    outline({620, 430, 211, 51});
    for (int square = FirstSquare; square <= LastSquare; ++square) {
        if (InField(square)) outline({SquareLeft(square), SquareTop(square), 41, 41});
    }
    // The centre line, the sides, and the ends beside the goals.
    for (const QLine line :
         {QLine(60, 300, 300, 300), QLine(60, 60, 60, 540), QLine(300, 60, 300, 540),
          QLine(60, 60, 140, 60), QLine(220, 60, 300, 60), QLine(60, 540, 140, 540),
          QLine(220, 540, 300, 540)}) {
        painter.fillRect(QRect(line.p1(), line.p2()).adjusted(-1, -1, 1, 1), Black);
    }
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(QColor(Black), 5));
    for (const QRectF circle : {QRectF(140, 20, 40, 40), {180, 540, 40, 40}, {660, 230, 51, 51}}) {
        painter.drawEllipse(circle.adjusted(2.5, 2.5, -2.5, -2.5));
    }
    painter.drawPixmap(QPoint(700, 490), Control<QWidget>("btn_Hint")->grab());
    EXPECT_EQ(picture, expected);
    Do("Up Up Up Up Up Up Up Up");
    EXPECT_EQ(QColor(Picture().pixel(QPoint(141, 40) * ratio)), QColor(Black));
}

/// Run at the usual device pixel ratios.
TEST_F(BoardViewTest, LinesAreSharp) {
    const QImage picture = Picture();
    const QPoint right(1, 0);
    const QPoint down(0, 1);
    // Borders of the board and the field, a square, and the centre line.
    const std::tuple<QPoint, QPoint, int> cases[] = {{{40, 579}, down, 1},  {{59, 80}, right, 3},
                                                     {{280, 539}, down, 3}, {{299, 80}, right, 3},
                                                     {{100, 80}, right, 1}, {{80, 299}, down, 3}};
    for (const auto& [start, step, width] : cases) {
        EXPECT_NEAR(LengthOf(picture, start, step, Black, Ground),
                    width * picture.devicePixelRatio(), 0.8)
            << start.x() << " " << start.y();
    }
}

TEST_F(BoardViewTest, TheGoalPostsStickOutAlike) {
    Do("layout3 mnu_TwoPlayer !68 !44");
    const QImage picture = Picture();
    const double ratio = picture.devicePixelRatio();
    const QPoint right(1, 0);
    // From the middle of the goal to both sides: in the field's top line and in the squares below.
    const auto edge = [&](int y, QPoint step) {
        return EndOf(Ground, picture, QPoint(qRound(180 * ratio), y) + 10 * step, step).x();
    };
    const int post = EndOf(Ground, picture, (QPointF(80, 50) * ratio).toPoint(), {0, 1}).y();
    const int square = post + qRound(10 * ratio);
    EXPECT_EQ(edge(post, -right) - edge(square, -right), edge(square, right) - edge(post, right));
}

/// Where a logical pixel is no whole number of device pixels, the outline used to lose a part of
/// its right and bottom edge.
TEST_F(BoardViewTest, TheDraggedOutlineIsWhole) {
    Do("layout3 v68");
    for (int n = 0; n < 4; ++n) {
        const QPoint middle = QPoint(500, 680) + QPoint(n, n);
        DoAt('>', middle);
        const QImage picture = Picture();
        const std::pair<QPoint, QPoint> edges[] = {
            {{-20, 0}, {1, 0}}, {{20, 0}, {-1, 0}}, {{0, -20}, {0, 1}}, {{0, 20}, {0, -1}}};
        for (const auto& [edge, step] : edges) {
            EXPECT_NEAR(LengthOf(picture, middle + edge, step, MarkBlue, White),
                        3 * picture.devicePixelRatio(), 0.8)
                << edge.x() << " " << edge.y();
        }
    }
    Do("^500,680");
}

TEST_F(BoardViewTest, TheOutlineFollowsThePointerAndGoes) {
    Do("layout3 mnu_TwoPlayer !68 !44");
    const auto* outline = Control<QWidget>("DragOutline");
    // What has been painted so far, and not what would be painted now.
    const auto screen = [this] {
        QCoreApplication::processEvents();
        return Window.screen()->grabWindow(Window.winId()).toImage();
    };
    const QImage before = screen();
    DoAt('v', Centre(66) + QPoint(5, -7));
    EXPECT_TRUE(outline->isVisible());
    // Over lines, pieces, circles and buttons.
    for (int n = 0; n < 90; ++n) {
        DoAt('>', {80 + n * 7, 340 + n * 37 % 211 - 60});
        screen();
    }
    Do(">700,300");
    EXPECT_EQ(outline->geometry().center(), QRect(700 - 25, 300 - 13, 41, 41).center());
    Do("^700,300");
    EXPECT_FALSE(outline->isVisible());
    EXPECT_EQ(screen(), before) << "something is left behind";
}

/// Qt rounds this point to the corner of the next square.
TEST_F(BoardViewTest, TheLastHalfPixelBelongsToItsSquare) {
    const QPointF point = InWindow(Centre(69)) + QPointF(19.5, 19.5);
    for (const auto type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
        const bool isDown = type == QEvent::MouseButtonPress;
        qt_handleMouseEvent(Window.windowHandle(), point, Window.windowHandle()->mapToGlobal(point),
                            isDown ? Qt::LeftButton : Qt::NoButton, Qt::LeftButton, type, {},
                            ++QTest::lastMouseTimestamp);
    }
    QCoreApplication::processEvents();
    EXPECT_EQ(Pos.Board[69], Red);
}

TEST_F(BoardViewTest, AToolTipIsShown) {
    QHelpEvent event(QEvent::ToolTip, {685, 255}, Form->mapToGlobal(QPoint(685, 255)));
    QApplication::sendEvent(Form, &event);
    EXPECT_EQ(QToolTip::text(), "Red to move");
}

}  // namespace

}  // namespace brastel
