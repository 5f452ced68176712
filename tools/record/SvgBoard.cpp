#include "tools/record/SvgBoard.h"

#include "play/Words.h"
#include "tools/record/Svg.h"

namespace brastel {

namespace {

constexpr int Margin = 28;
constexpr int CaptionHeight = 18;
constexpr int Width = BoardWidth + 2 * Margin;
constexpr int Height = BoardHeight + 2 * Margin + CaptionHeight;

/// The left edge of a column and the top edge of a row, in pixels of the picture.
constexpr int X(int column) { return Margin + column * CellSize; }
constexpr int Y(int row) { return Margin + row * CellSize; }

// Attributes and not a style sheet: a style sheet would also apply to a page around the picture.
constexpr std::string_view Thin =
    R"(fill="none" stroke="#000" stroke-width="1" shape-rendering="crispEdges")";
constexpr std::string_view Thick =
    R"(fill="none" stroke="#000" stroke-width="3" shape-rendering="crispEdges")";
constexpr std::string_view Ring =
    R"(<circle cx="20" cy="20" r="17.5" fill="none" stroke="#000" stroke-width="4.5"/>)";
constexpr std::string_view Glint =
    R"x(<ellipse rx="3.6" ry="2" transform="translate(12 11.5) rotate(-42)" fill="#fff" opacity="0.9"/>)x";
constexpr std::string_view LabelFont = R"(font-size="12")";
constexpr std::string_view NumberFont = R"(font-size="13" font-weight="bold")";
constexpr std::string_view CaptionFont = R"(font-size="14")";

std::string Step(char command, int column, int row) {
    return command + std::to_string(X(column)) + ' ' + std::to_string(Y(row));
}

/// The outline of the board and the squares of the field.
std::string Squares() {
    std::string path = Step('M', 0, 0) + Step('L', ColumnCount, 0) +
                       Step('L', ColumnCount, RowCount) + Step('L', 0, RowCount) + 'Z';
    for (int row = 1; row < RowCount; ++row) {
        path += Step('M', 1, row) + Step('L', ColumnCount - 1, row);
    }
    for (int column = 1; column < ColumnCount; ++column) {
        path += Step('M', column, 1) + Step('L', column, RowCount - 1);
    }
    return Path(Thin, path);
}

/// The centre line and the border, which is open at both goals.
std::string FieldLines() {
    constexpr int RightEnd = ColumnCount - 1;
    constexpr int Bottom = RowCount - 1;
    constexpr int GoalLeft = 3;
    constexpr int GoalRight = 5;
    return Path(Thick, Step('M', GoalLeft, 1) + Step('L', 1, 1) + Step('L', 1, Bottom) +
                           Step('L', GoalLeft, Bottom) + Step('M', GoalRight, 1) +
                           Step('L', RightEnd, 1) + Step('L', RightEnd, Bottom) +
                           Step('L', GoalRight, Bottom) + Step('M', 1, RowCount / 2) +
                           Step('L', RightEnd, RowCount / 2));
}

std::string Coordinates() {
    constexpr int Gap = 9;
    constexpr int HalfDigit = 4;
    std::string text;
    for (int column = 0; column < ColumnCount; ++column) {
        const std::string number = std::to_string(column + 1);
        text += Text(LabelFont, X(column) + CellSize / 2, Y(0) - Gap, number);
    }
    for (int row = 0; row < RowCount; ++row) {
        const std::string number = std::to_string(row + 1);
        text += Text(LabelFont, Margin / 2, Y(row) + CellSize / 2 + HalfDigit, number);
    }
    return text;
}

/// The piece and the ring of a square.
std::string Content(int square) {
    const Piece piece = PieceOn(square);
    std::string content = "<g transform=\"translate(" + std::to_string(X(Column(square))) + ' ' +
                          std::to_string(Y(Row(square))) + ")\"><title>" +
                          SquareWithContent(square) + "</title>\n";
    if (piece) {
        content += Bead(piece.Side, CellSize / 2, CellSize / 2, 16) + std::string(Glint) + '\n';
        content += Text(NumberFont, CellSize / 2, CellSize / 2 + 5, std::to_string(piece.Index));
    }
    if (IsRingSquare(square)) content += std::string(Ring) + '\n';
    return content + "</g>\n";
}

}  // namespace

std::string BoardAsSvg(const Position& position, std::string_view caption) {
    Pos = position;
    std::string texts = Coordinates();
    for (int square = FirstSquare; square <= LastSquare; ++square) {
        if (PieceOn(square) || IsRingSquare(square)) texts += Content(square);
    }
    texts += Text(CaptionFont, Width / 2, Height - CaptionHeight, caption);
    return SvgPicture(Width, Height, caption, Squares() + FieldLines(), texts);
}

}  // namespace brastel
