#include "testing/Positions.h"

#include <cctype>
#include <sstream>

namespace brastel {

std::string ListOf(const std::string& drawing, int board) {
    std::istringstream lines(drawing);
    std::ostringstream list;
    for (std::string line, squares; std::getline(lines, line);) {
        std::istringstream words(line);
        int row = 0;
        if (!(words >> row)) continue;
        for (int n = 0; n <= board; ++n) words >> squares;
        for (std::size_t column = 0; column < ColumnCount; ++column) {
            const char piece = squares.at(column);
            if (piece == '.') continue;
            list << (list.tellp() > 0 ? " " : "") << piece
                 << SquareAt(row, static_cast<int>(column));
        }
    }
    return list.str();
}

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

std::string Turned(const std::string& pieces) {
    std::istringstream list(pieces);
    std::ostringstream turned;
    char letter = 0;
    for (int square = 0; list >> letter >> square;) {
        turned << "bBrR"[std::string_view("rRbB").find(letter)] << Turned(square) << ' ';
    }
    return turned.str();
}

}  // namespace brastel
