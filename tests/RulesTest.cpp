#include "core/Hit.h"
#include "core/PiecesOutside.h"
#include "core/QuietMove.h"
#include "core/WinTest.h"
#include "testing/Positions.h"
#include "tests/Rows.h"

#include <cstdlib>
#include <map>
#include <sstream>

namespace brastel {
namespace {

/// The result of one step.
std::string Take(const std::string& step) {
    if (step == "winner") {
        const Int16 winner = FindWinner();
        return winner == Red ? "Red" : winner == Blue ? "Blue" : "nobody";
    }
    if (step == "return") {
        ReturnOutsidePieces();
        return Listed();
    }
    const int first = std::stoi(step.substr(step.find_first_of("0123456789")));
    const int second = std::stoi(step.substr(step.find('-') + 1));
    if (step.starts_with("hit ")) {
        Pos.LastHit = {ToInt16(first), ToInt16(second)};
        return "the next step will tell";
    }
    if (step.starts_with("fits ")) return ActionFits({first, second}) ? "yes" : "no";
    if (CheckHit(PieceOn(first), PieceOn(second)) == HitVerdict::PushBack) return "push back";
    if (!IsAccepted({first, second})) return "refused";
    ApplyAction({first, second});
    return Listed();
}

/// The result of the last step of a row; `isTurned` begins after half a turn of the board.
std::string ResultOf(const std::string& row, bool isTurned = false) {
    std::istringstream steps(row);
    std::string step, result;
    std::getline(steps, step, ',');
    Place(isTurned ? Turned(step) : step);
    while (std::getline(steps >> std::ws, step, ',')) result = Take(step);
    return result;
}

TEST(RulesTest, EveryRowLeadsToItsResult) {
    const std::map<std::string, std::string> turned{
        {"Red", "Blue"}, {"Blue", "Red"}, {"nobody", "nobody"}};
    for (const auto& [row, result] : RowsOf("/rules.txt")) {
        EXPECT_EQ(ResultOf(row), result) << row;
        if (!turned.contains(result)) continue;
        EXPECT_EQ(ResultOf(row, true), turned.at(result)) << row;
    }
    EXPECT_EQ(ResultOf("B100 R12, winner"), "Red") << "announced before Blue";
}

/// Only an opponent on the square inside or beside it keeps a waiting piece out.
TEST(PiecesOutsideTest, EveryCellHasItsGuards) {
    for (int cell = FirstSquare; cell <= LastSquare; ++cell) {
        const bool isCorner = cell == 1 || cell == 8 || cell == 105 || cell == 112;
        if (InField(cell) || isCorner) continue;
        const int inside = SquareAt(std::clamp(Row(cell), 1, 12), std::clamp(Column(cell), 1, 6));
        for (int s = FirstSquare; s <= LastSquare; ++s) {
            if (!InField(s)) continue;
            const int distance =
                std::abs(Row(s) - Row(inside)) + std::abs(Column(s) - Column(inside));
            Place('r' + std::to_string(cell) + " b" + std::to_string(s));
            ReturnOutsidePieces();
            EXPECT_EQ(Pos.RedSquare[1], distance > 1 ? inside : cell) << cell << ' ' << s;
        }
    }
}

/// A ring placement and a ring pass beside a piece that could come back.
TEST(PiecesOutsideTest, NobodyComesBackWhereNoSquareChanged) {
    for (const auto& [entry, from, to] : {std::tuple{1, 20, 0}, {3, 20, 11}}) {
        Place("R20 r11 r2");
        Pos.MoveCount = ToInt16(entry);
        const BoardCells before = Pos.Board;
        ApplyMoveQuiet({from, to});
        EXPECT_TRUE(Pos.Board == before) << Listed();
    }
}

}  // namespace
}  // namespace brastel
