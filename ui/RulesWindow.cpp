#include "ui/RulesWindow.h"

#include "ui/EnterButton.h"
#include "ui/Layout.h"

#include <QPainter>

#include <span>

namespace brastel {

namespace {

constexpr int InnerWidth = 12924;
constexpr int InnerHeight = 10944;
constexpr TwipRect OkPlace{11200, 7100, 1095, 405};
constexpr double TextPoints = 13.2;
constexpr double ButtonPoints = 9;

/// With every font, the rules and the lines about the manual fill the window, and the button is to
/// the right of rule 8.
constexpr int LinesInWindow = 36;
constexpr qreal LineHeight = Pixels(InnerHeight) / qreal{LinesInWindow};

// clang-format off
constexpr const char* RulesText[] = {
    "",
    "",
    " 1. The first player to carry a ring into his goal wins the game. The 8 vs 8 game is standard.",
    "",
    " 2. Pieces without a ring can move by one or two steps and pieces carrying a ring can move by",
    "    one step in any direction. Pieces can never be jumped over. For example, if one of the diagonal",
    "    positions are occupied by another piece, the moves to its adjacent three positions are prohibited.",
    "",
    " 3. A piece without a ring can push (hit) the opponent's piece in vertical or ",
    "   horizontal direction. The pushed piece is moved by two steps in the same direction.",
    "   The piece pushed out of the board is excluded from the game as long as the rule 9 is satisfied. ",
    "",
    " 4. Two pieces in a row can not be pushed in that direction (block). When pushed but the place two steps",
    "    away is already occupied by another piece, the pushed piece is moved only by one step.",
    "",
    " 5. When the piece carrying a ring is hit, the ring is captured by the opponent's piece.",
    "    The piece carrying a ring can not be hit from the place two steps away.",
    "",
    " 6. A ring can be passed to your piece at the diagonal positions or ",
    "   at the positions of knight's (chess) move. A ring can be passed over other pieces.",
    "",
    " 7. Immediately after a piece of yours is hit by the opponent's piece, you cannot hit back the opponent's piece.",
    "",
    " 8. When one side has no movable piece, his turn is passed and the other side moves successively.",
    "",
    " 9. A piece pushed out of the board is placed just outside of the field border line while one of the opponent's ",
    "    pieces occupy the four places shown in Fig. .  When the opponent's pieces go away, the piece outside comes ",
    "    back into the field just inside the line (automatically, not counted as one move).",
    "",
    "10. When your two pieces are in the same horizontal line and there is no interrupting piece in between, ",
    "    one of them can move to the position next to the other.",
    "",
    " The manual describes how to play with mouse and keyboard and how to save games.",
    " To read it, type in a terminal:  man brastel",
    "",
    "",
    "",
    "",
    "  The object of the game is to finish with more pieces than your opponent. To move, you",
    "  must select one of your current pieces first, which will begin to flash. You can move",
    "  to any position up to two squares away in any direction. A move one square away",
    "  duplicates your piece, where a move two squares away jumps your piece to the new",
    "  position. Opponent pieces within one square of the newly moved chip will be flipped!",
    "",
    "  The Easy, Medium, and Difficult Levels places your skills against the computer.",
    "  The first level should be fairly easy -- the moves are totally random. On Medium,",
    "  the moves that flip the most number of pieces are made. The final level (Difficult)",
    "  uses a 'Look Ahead' algorithm to determine the best possible moves.",
    "",
    "  The game can be changed to a '2 Player' level, which involves no computer",
    "  interaction. At this level, you can play both the Red Chip and Blue Chip turns,",
    "  or compete with someone else.",
    "",
    "  The cursor will change to a cross whenever it is over a valid move. If a piece has",
    "  not been selected, all valid moves will be shown--otherwise only the valid moves for",
    "  the selected piece are indicated. The Hint button can also be used to determine the",
    "  current player's best move. The hint square will flash on the board.",
    "",
    "  The game ends when all of an oppenents pieces are taken, there are no more valid",
    "  moves, or all of the squares are filled.",
};
// clang-format on

QFont TextFont() {
    QFont font = JapaneseFont(TextPoints);
    font.setBold(true);
    return font;
}

/// The factor, at most 1, that makes the text narrow enough: every line ends before the right edge
/// of the window, and lines beside the button end before the button.
qreal Stretch(const QFontMetricsF& metrics) {
    constexpr int Margin = 8;
    const QRectF button = OkPlace.InPixels();
    qreal stretch = 1;
    qreal top = 0;
    for (const char* line : RulesText) {
        const bool isBesideButton = top < button.bottom() && top + LineHeight > button.top();
        const qreal end = (isBesideButton ? button.left() : Pixels(InnerWidth)) - Margin;
        stretch = qMin(stretch, end / qMax(end, metrics.horizontalAdvance(line)));
        top += LineHeight;
    }
    return stretch;
}

QString ShownText() {
    QStringList lines;
    for (const char* line : std::span(RulesText).first(LinesInWindow)) lines.append(line);
    return lines.join(' ').simplified();
}

}  // namespace

RulesWindow::RulesWindow() {
    setObjectName("frm_Rules");
    setWindowTitle("Orvel Game Rules");
    setWindowFlags(FixedDialogFlags);
    FixInnerArea(*this, InnerWidth, InnerHeight);
    auto* button = new EnterButton("OK", this);
    PlaceControl(*button, "btn_OK", OkPlace);
    button->setFont(JapaneseFont(ButtonPoints));
    connect(button, &QPushButton::clicked, this, &QDialog::accept);
    // Screen readers cannot read painted text.
    setAccessibleDescription(ShownText());
    CentreOnScreen(*this);
}

/// The text is not wrapped and not scrolled. Lines below the lower edge are not visible.
void RulesWindow::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.fillRect(rect(), Qt::white);
    painter.setFont(TextFont());
    painter.setPen(Qt::black);
    const QFontMetricsF metrics(painter.font());
    painter.scale(Stretch(metrics), 1);
    qreal baseline = (LineHeight + metrics.ascent() - metrics.descent()) / 2;
    for (const char* line : RulesText) {
        painter.drawText(QPointF(0, baseline), line);
        baseline += LineHeight;
    }
}

/// The window has no cancel button: Esc does not close it.
void RulesWindow::keyPressEvent(QKeyEvent* event) {
    if (event->key() != Qt::Key_Escape) QDialog::keyPressEvent(event);
}

}  // namespace brastel
