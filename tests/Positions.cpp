#include "tests/Positions.h"

#include <cctype>
#include <sstream>

namespace brastel {

void Place(std::string_view pieces) {
    Pos = {};
    Pos.RingSquare = {8, 105};
    Pos.MoveCount = 3;
    Pos.SideToMove = std::tolower(pieces.front()) == 'b' ? Blue : Red;
    std::istringstream list{std::string(pieces)};
    std::size_t ring = 0;
    char letter = 0;
    for (Int16 square = 0; list >> letter >> square;) {
        const Int16 side = std::tolower(letter) == 'b' ? Blue : Red;
        Int16& count = side == Red ? Pos.RedCount : Pos.BlueCount;
        SquaresOf(side)[++count] = square;
        Pos.Board[square] = side;
        if (std::isupper(letter)) Pos.RingSquare[ring++] = square;
    }
}

std::string Listed() {
    std::ostringstream list;
    for (int s = FirstSquare; s <= LastSquare; ++s) {
        if (Pos.Board[s] == Empty) continue;
        const std::string_view letters = Pos.Board[s] == Red ? "rR" : "bB";
        list << (list.tellp() > 0 ? " " : "") << letters[IsRingSquare(s)] << s;
    }
    return list.str();
}

namespace {

Position Mirrored(const Position& position, int (*mirror)(int)) {
    Position result = position;
    const auto moved = [mirror](int s) { return ToInt16(IsOnBoard(s) ? mirror(s) : s); };
    for (int s = FirstSquare; s <= LastSquare; ++s) result.Board[mirror(s)] = position.Board[s];
    for (int i = 1; i <= MaxPieces; ++i) {
        result.RedSquare[i] = moved(position.RedSquare[i]);
        result.BlueSquare[i] = moved(position.BlueSquare[i]);
    }
    for (Int16& ring : result.RingSquare) ring = moved(ring);
    return result;
}

}  // namespace

int UpsideDown(int square) { return SquareAt(RowCount - 1 - Row(square), Column(square)); }
int LeftRight(int square) { return SquareAt(Row(square), ColumnCount - 1 - Column(square)); }

Position UpsideDown(const Position& position) {
    Position result = Mirrored(position, UpsideDown);
    for (int s = FirstSquare; s <= LastSquare; ++s) result.Board[s] = ToInt16(-result.Board[s]);
    std::swap(result.RedSquare, result.BlueSquare);
    std::swap(result.RedCount, result.BlueCount);
    result.OutsideBalance = ToInt16(-position.OutsideBalance);
    result.SideToMove = ToInt16(-position.SideToMove);
    return result;
}

Position LeftRight(const Position& position) { return Mirrored(position, LeftRight); }

}  // namespace brastel
