#include "tools/record/TextBoard.h"

#include "play/Words.h"

namespace brastel {

namespace {

/// Enough for a carrier with two digits: "(R12)".
constexpr int CellWidth = 5;
constexpr int LabelWidth = 3;

std::string Aligned(const std::string& text, int width) {
    const int missing = width - static_cast<int>(text.size());
    return std::string(static_cast<std::size_t>(std::max(missing, 0)), ' ') + text;
}

std::string CellText(int square) {
    const Piece piece = PieceOn(square);
    const bool hasRing = IsRingSquare(square);
    if (!piece)
        return hasRing ? "( ) " : InField(square) ? ".  " : IsGoalMouth(square) ? "goal" : "";
    std::string text(hasRing ? "(" : "");
    text += piece.Side == Red ? 'R' : 'B';
    text += std::to_string(piece.Index);
    return text + (hasRing ? ')' : ' ');
}

/// A row of the board with these cells and the left and right border of the field.
template <typename Cell>
std::string BoardLine(const std::string& label, char border, Cell cell) {
    std::string line = Aligned(label, LabelWidth);
    for (int column = 0; column < ColumnCount; ++column) {
        if (column == 1 || column == ColumnCount - 1) line += border;
        line += Aligned(cell(column), CellWidth);
    }
    line.erase(line.find_last_not_of(' ') + 1);
    return line + '\n';
}

/// A horizontal line across the field, with a gap at the goal or without.
std::string HorizontalLine(bool hasGap) {
    return BoardLine("", '+', [hasGap](int column) {
        const bool isInField = column >= 1 && column < ColumnCount - 1;
        const bool isOpen = hasGap && IsGoalColumn(column);
        return isInField && !isOpen ? std::string(CellWidth, '-') : std::string();
    });
}

std::string ColumnNumbers() {
    return BoardLine("", ' ', [](int column) { return std::to_string(column + 1) + "  "; });
}

std::string RowText(int row) {
    const bool isInField = row >= 1 && row < RowCount - 1;
    return BoardLine(std::to_string(row + 1), isInField ? '|' : ' ',
                     [row](int column) { return CellText(SquareAt(row, column)); });
}

std::string WaitingPieces() {
    std::string text;
    for (int square = FirstSquare; square <= LastSquare; ++square) {
        if (InField(square) || Pos.Board[square] == Empty) continue;
        text += "Outside: " + PieceInWords(PieceOn(square)) + " on " + SquareInWords(square) + '\n';
    }
    return text;
}

}  // namespace

std::string BoardAsText(const Position& position) {
    Pos = position;
    std::string text = ColumnNumbers();
    for (int row = 0; row < RowCount; ++row) {
        if (row == 1 || row == RowCount - 1) text += HorizontalLine(true);
        if (row == RowCount / 2) text += HorizontalLine(false);
        text += RowText(row);
    }
    text += "\nR Red, B Blue, (R1) (B1) carry a ring\n";
    return text + WaitingPieces();
}

}  // namespace brastel
