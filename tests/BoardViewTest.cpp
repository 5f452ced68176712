#include "core/StartPosition.h"
#include "tests/WindowTest.h"
#include "ui/Bead.h"
#include "ui/BoardView.h"
#include "ui/Icon.h"

#include <QHelpEvent>
#include <QToolTip>

namespace brastel {

namespace {

constexpr QRgb Black = qRgb(0, 0, 0);
constexpr QRgb Ground = qRgb(192, 192, 192);
constexpr QRgb MarkBlue = qRgb(0, 64, 255);
constexpr QRgb White = qRgb(255, 255, 255);

using BoardViewTest = WindowTest;

/// The first black point on a way over the picture, all in device pixels.
QPoint FirstBlack(const QImage& picture, QPoint point, QPoint step) {
    while (picture.valid(point) && picture.pixel(point) != Black) point += step;
    return point;
}

/// Length of the run of a colour that begins at a logical point, in device pixels. At a ratio that
/// is no whole number it may begin a device pixel earlier or later. 0 unless the pixel before it is
/// ground and the one behind it has the colour `behind`.
int LengthOf(const QImage& picture, QPoint start, QPoint step, QRgb color, QRgb behind) {
    const int ratio = qCeil(picture.devicePixelRatio());
    QPoint point = (QPointF(start) * picture.devicePixelRatio()).toPoint() - 2 * ratio * step;
    while (picture.pixel(point) == Ground) point += step;
    int length = 0;
    for (; picture.pixel(point) == color; point += step) ++length;
    return picture.pixel(point) == behind ? length : 0;
}

/// Run at the usual device pixel ratios.
TEST_F(BoardViewTest, LinesAreSharp) {
    const QImage picture = Picture();
    const double ratio = picture.devicePixelRatio();
    const QPoint right(1, 0);
    const QPoint down(0, 1);
    struct Case {
        const char* Name;
        QPoint Start;
        QPoint Step;
        int Width;
    };
    const Case Cases[] = {
        {"board's left edge", {20, 80}, right, 1},   {"board's bottom edge", {40, 579}, down, 1},
        {"field's left edge", {59, 80}, right, 3},   {"field's right edge", {299, 80}, right, 3},
        {"square outline", {100, 80}, right, 1},     {"centre line", {80, 299}, down, 3},
        {"top edge beside goal", {80, 59}, down, 3}, {"goal mouth", {200, 60}, down, 1},
        {"bottom goal mouth", {160, 540}, down, 1},  {"bottom edge", {280, 539}, down, 3},
        {"message frame", {620, 450}, right, 1},
    };
    for (const Case& c : Cases) {
        EXPECT_NEAR(LengthOf(picture, c.Start, c.Step, Black, Ground), c.Width * ratio, 0.8)
            << c.Name;
    }
}

TEST_F(BoardViewTest, TheGoalPostsStickOutAlike) {
    OpenForTwo(3, 68, 44);
    const QImage picture = Picture();
    const double ratio = picture.devicePixelRatio();
    const QPoint right(1, 0);
    // From the middle of the goal to both sides: in the field's top line and in the squares below.
    const auto edge = [&](int y, QPoint step) {
        return FirstBlack(picture, QPoint(qRound(180 * ratio), y) + 10 * step, step).x();
    };
    const int post = FirstBlack(picture, (QPointF(80, 50) * ratio).toPoint(), {0, 1}).y();
    const int square = post + qRound(10 * ratio);
    EXPECT_EQ(edge(post, -right) - edge(square, -right), edge(square, right) - edge(post, right));
}

/// Where a logical pixel is no whole number of device pixels, the outline used to lose a part of
/// its right and bottom edge.
TEST_F(BoardViewTest, TheDraggedOutlineIsWhole) {
    Open(3);
    Press(Centre(68));
    for (int n = 0; n < 4; ++n) {
        const QPoint middle = QPoint(500, 680) + QPoint(n, n);
        Move(middle);
        const QImage picture = Picture();
        const std::pair<QPoint, QPoint> edges[] = {
            {{-20, 0}, {1, 0}}, {{20, 0}, {-1, 0}}, {{0, -20}, {0, 1}}, {{0, 20}, {0, -1}}};
        for (const auto& [edge, step] : edges) {
            EXPECT_NEAR(LengthOf(picture, middle + edge, step, MarkBlue, White),
                        3 * picture.devicePixelRatio(), 0.8)
                << edge.x() << " " << edge.y();
        }
    }
    Release({500, 680});
}

/// The keyboard's frame lies below the ring.
TEST_F(BoardViewTest, CirclesTouchTheirSquaresFromInside) {
    for (int row = 8; row > 0; --row) QTest::keyClick(Window.windowHandle(), Qt::Key_Up);
    const QImage picture = Picture();
    const int ratio = qRound(picture.devicePixelRatio());
    const QRect circles[] = {{SquareLeft(4), SquareTop(4), 40, 40}, {660, 230, 51, 51}};
    for (const QRect& circle : circles) {
        const QRect device(circle.topLeft() * ratio, circle.size() * ratio);
        // Five pixels of black from each side.
        for (int depth = 0; depth < 5 * ratio; ++depth) {
            const int x = device.center().x();
            const int y = device.center().y();
            const QPoint edges[] = {{device.left() + depth, y},
                                    {device.right() - depth, y},
                                    {x, device.top() + depth},
                                    {x, device.bottom() - depth}};
            for (const QPoint edge : edges) EXPECT_LT(qGray(picture.pixel(edge)), 60);
        }
        EXPECT_EQ(picture.pixel(device.center()), Ground);
    }
}

TEST_F(BoardViewTest, ToolTipsTellWhatCanBeDone) {
    const auto tip = [this](QPoint point) {
        return static_cast<BoardView*>(Form)->HelpAt(point).toStdString();
    };
    const QPoint redCircle(685, 255);
    EXPECT_EQ(tip(redCircle), "Red to move");
    EXPECT_EQ(tip({755, 255}), "") << "Blue's circle is not shown";
    const std::string add = "Click an empty square to add a Red piece\n";
    const std::string end = "Double-click a Red piece to give it the ring and to end Red's setup";
    EXPECT_TRUE(tip(Centre(60)).starts_with(add + "Options > "));
    ClickAt(Centre(60));
    EXPECT_EQ(tip(Centre(60)), add + end);
    for (int square = 66; square <= 78; ++square) ClickAt(Centre(square));
    EXPECT_EQ(tip(Centre(60)), end) << "there are twelve";
    Open(4);
    EXPECT_EQ(tip(Centre(68)), "Double-click a Red piece to give it the ring");
    EXPECT_EQ(tip(Centre(28)), "This piece cannot get the ring now") << "number 9";
    OpenForTwo(4, 68, 44);
    EXPECT_EQ(tip(Centre(68)), "");
    QHelpEvent event(QEvent::ToolTip, redCircle, Form->mapToGlobal(redCircle));
    QApplication::sendEvent(Form, &event);
    EXPECT_EQ(QToolTip::text(), "Red to move");
}

TEST_F(BoardViewTest, BeadsAreDrawnAtTheDeviceRatio) {
    Open(0);
    const QImage picture = Picture();
    const double ratio = picture.devicePixelRatio();
    const QImage bead = BeadPicture(Red, CellSize, ratio).toImage();
    // Inside the square, clear of the lines above the bead.
    const int inset = qRound(3 * ratio);
    const QPoint corner = QPoint(SquareLeft(69), SquareTop(69)) * qRound(ratio);
    const QRect inner = bead.rect().adjusted(inset, inset, -inset, -inset);
    EXPECT_EQ(picture.copy(inner.translated(corner)).convertToFormat(QImage::Format_RGB32),
              bead.copy(inner).convertToFormat(QImage::Format_RGB32));
    EXPECT_EQ(ApplicationIcon().availableSizes().size(), 7);
}

}  // namespace

}  // namespace brastel
