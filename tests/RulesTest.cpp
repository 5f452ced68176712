#include "core/Hit.h"
#include "core/PiecesOutside.h"
#include "core/QuietMove.h"
#include "core/WinTest.h"
#include "tests/Positions.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <tuple>
#include <vector>

namespace brastel {
namespace {

// ---- Moves, hits and ring passes ----

/// Name, position, origin, destination, and the position afterwards, empty if refused: what the
/// computer's candidates share with the rules of people, and what only people may do. The others
/// are compared with the candidates.
TEST(PieceActionTest, Cases) {
    const std::vector<std::tuple<const char*, const char*, int, int, std::string>> cases{
        {"two steps past a neighbour", "r60 b52", 60, 42, "r42 b52"},
        {"two steps over a neighbour", "r60 b51", 60, 42, ""},
        {"a knight's move over the straight neighbour", "r60 b52", 60, 43, ""},
        {"a knight's move over the diagonal neighbour", "r60 b51", 60, 43, ""},
        {"a knight's move past the other one", "r60 b59", 60, 43, "r43 b59"},
        {"a carrier moves two steps", "r28 B44 R68", 68, 52, "r28 B44 R52"},
        {"pushes two squares up", "r12 r68 b60", 68, 60, "r12 b44 r60"},
        {"pushes one where the second is taken", "r68 b60 r44", 68, 60, "r44 b52 r60"},
        {"from two squares away", "r70 b68", 70, 68, "b66 r68"},
        {"takes the ring of its neighbour", "r68 B60", 68, 60, "b44 R60"},
        {"passes the other ring", "R44 R68 r61", 68, 61, "R44 R61 r68"},
        {"passes while waiting", "R2 r11", 2, 11, "r2 R11"}};
    for (const auto& [name, before, from, to, after] : cases) {
        SCOPED_TRACE(name);
        Place(before);
        EXPECT_EQ(IsAccepted({from, to}), !after.empty());
        if (after.empty()) continue;
        ApplyAction({from, to});
        EXPECT_EQ(Listed(), after);
    }
}

/// Red piece 1 hits Blue piece 1. It is told about rule 7 even out of reach, but not when a carrier
/// or a waiting piece may not hit anyway.
TEST(PieceActionTest, PushBack) {
    const std::vector<std::tuple<const char*, std::array<Int16, 2>, HitVerdict>> cases{
        {"r68 b60", {1, 1}, HitVerdict::PushBack}, {"r68 b44", {1, 1}, HitVerdict::PushBack},
        {"r68 b60", {2, 1}, HitVerdict::Accepted}, {"r68 b60", {1, 2}, HitVerdict::Accepted},
        {"R68 b60", {1, 1}, HitVerdict::Refused},  {"r9 b60", {1, 1}, HitVerdict::Refused},
        {"b60 r68", {1, 1}, HitVerdict::Refused},  {"r68 r60", {1, 1}, HitVerdict::Refused}};
    for (const auto& [pieces, lastHit, expected] : cases) {
        Place(pieces);
        Pos.LastHit = lastHit;
        EXPECT_EQ(CheckHit({Red, 1}, {Blue, 1}), expected) << pieces;
    }
}

/// Damaged game files hold such hits: no room behind, in no line, and into the goal.
TEST(PieceActionTest, HitsThatDoNotFit) {
    for (const auto& [pieces, from, to] :
         {std::tuple{"r68 b60 b52", 68, 60}, {"r68 b61", 68, 61}, {"r12 b4", 12, 4}}) {
        Place(pieces);
        EXPECT_FALSE(ActionFits({from, to})) << pieces;
    }
}

// ---- Pieces outside ----

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

TEST(PiecesOutsideTest, OnePass) {
    const std::vector<std::pair<const char*, const char*>> cases{
        {"r9 r2", "r9 r10"},             // the cell of the row takes the corner,
        {"r97 b106", "r97 b98"},         // whoever waits there,
        {"r7 b16 b14", "r7 b14 b15"},    // unless it has to wait;
        {"r3 b2", "b10 r11"},            // opponents side by side do not hinder each other;
        {"b24 r22 b15", "b15 r22 b24"},  // an opponent beside the square does, to Blue as well,
        {"b24 b22", "b22 b23"},          // and a friend there does not;
        {"r1 b112", "r1 b112"},          // nobody comes back from a corner of the board;
        {"R4", "r12"}};                  // a ring stays where it lies.
    for (const auto& [before, after] : cases) {
        Place(before);
        ReturnOutsidePieces();
        EXPECT_EQ(Listed(), after);
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

// ---- The end of the game ----

using WinCase = std::tuple<const char*, Int16, std::array<Int16, 2>>;

// clang-format off
/// Of each group of cases the name; of each case the position, the winner and the last hit.
const std::vector<std::pair<const char*, std::vector<WinCase>>> Groups{
    {"only a carrier in front of its own goal wins",
     {{"R12", Red, {}}, {"R11", Red, {}}, {"R10", Empty, {}}, {"R4", Empty, {}}, {"r12", Empty, {}},
      {"R100", Empty, {}}, {"R11 b19 R13", Red, {}}, {"R12 b20 B100", Blue, {}}}},
    {"a ringless opponent beside it pushes it away, unless the other side is taken",
     {{"R12 b11", Empty, {}}, {"R12 B11", Red, {}}, {"R12 b11 b13", Red, {}},
      {"R12 b11 r13", Red, {}}, {"R12 b11 B20", Empty, {}}}},
    {"so does one behind it while the goal is empty",
     {{"R12 b20", Empty, {}}, {"R12 b20 r4", Red, {}}, {"R12 B20", Red, {}},
      {"R12 B11 b20", Red, {}}}},
    {"whom it has just pushed aside may not push back",
     {{"R12 b11", Red, {1, 1}}, {"R12 b11", Empty, {2, 1}}, {"R12 b11", Empty, {1, 2}},
      {"R12 b20", Empty, {1, 1}}, {"R12 b60 b11", Empty, {1, 1}}}}};
// clang-format on

void ExpectWinner(const std::string& pieces, Int16 winner, std::array<Int16, 2> lastHit) {
    SCOPED_TRACE(pieces);
    Place(pieces);
    Pos.LastHit = lastHit;
    EXPECT_EQ(FindWinner(), winner);
}

TEST(WinTest, Cases) {
    for (const auto& [name, cases] : Groups) {
        SCOPED_TRACE(name);
        for (const auto& [pieces, winner, lastHit] : cases) {
            ExpectWinner(pieces, winner, lastHit);
            ExpectWinner(Turned(pieces), ToInt16(-winner), lastHit);
        }
    }
    ExpectWinner("B100 R12", Red, {});  // announced before Blue
}

}  // namespace
}  // namespace brastel
