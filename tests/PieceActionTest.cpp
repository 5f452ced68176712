#include "core/Hit.h"
#include "core/PlainMove.h"
#include "core/QuietMove.h"
#include "tests/Positions.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <tuple>
#include <vector>

namespace brastel {
namespace {

/// Name, position, origin, destination, and the position afterwards, empty if refused.
const std::vector<std::tuple<const char*, const char*, int, int, std::string>> Cases{
    {"step between two pieces", "r68 r60 b69", 68, 61, "r60 r61 b69"},
    {"slides up to a friend", "r66 r34", 66, 42, "r34 r42"},
    {"slides down to a friend outside", "R66 r106", 66, 98, "R98 r106"},
    {"slides not past an opponent", "r66 b50 r34", 66, 42, ""},
    {"slides not up to an opponent", "r66 b34", 66, 42, ""},
    {"slides not short of its friend", "r74 r34", 74, 50, ""},
    {"a carrier moves two steps", "r28 B44 R68", 68, 52, "r28 B44 R52"},
    {"over the edge into the next row", "r71", 71, 74, ""},
    {"into the goal", "r12", 12, 4, ""},
    {"in from outside by hand", "r9", 9, 10, ""},
    {"a move out of turn", "b44 r68", 68, 60, ""},
    {"pushes two squares up", "r12 r68 b60", 68, 60, "r12 b44 r60"},
    {"pushes one where the second is taken", "r68 b60 r44", 68, 60, "r44 b52 r60"},
    {"two in a row stand firm", "r28 b20 b12", 28, 20, ""},
    {"from two squares away", "r70 b68", 70, 68, "b66 r68"},
    {"over a piece", "r76 b60 r68", 76, 60, ""},
    {"from three squares away", "r84 b60", 84, 60, ""},
    {"takes the ring of its neighbour", "r68 B60", 68, 60, "b44 R60"},
    {"a carrier two squares away", "r76 B60", 76, 60, ""},
    {"a carrier does not hit", "R68 b60", 68, 60, ""},
    {"onto an outside cell beside", "r14 b15", 14, 15, "r15 b16"},
    {"into the goal from the second row", "b28 r20", 28, 20, "r4 b20"},
    {"a piece waiting beside the field", "r15 b16", 15, 16, ""},
    {"a piece waiting at the other end of the next row", "r15 b17", 15, 17, ""},
    {"hit by a waiting piece", "r4 b12", 4, 12, ""},
    {"hit out of turn", "b60 r68", 68, 60, ""},
    {"passes over other pieces", "R68 r53 b60 b61", 68, 53, "R53 b60 b61 r68"},
    {"passes the other ring", "r100 R44 R68 r61", 68, 61, "R44 R61 r68 r100"},
    {"passes while waiting", "R2 r11", 2, 11, "r2 R11"},
    {"no ring to pass", "r68 r61", 68, 61, ""},
    {"the receiver has one already", "R68 R61", 68, 61, ""},
    {"to a waiting piece", "R11 r2", 11, 2, ""}};

TEST(PieceActionTest, Cases) {
    for (const auto& [name, before, from, to, after] : Cases) {
        SCOPED_TRACE(name);
        Place(before);
        Pos.LastHit = {12, 12};  // no case has such a piece
        const bool isHit = PieceOn(to).Side == -Pos.SideToMove;
        const auto lastHit = std::array{PieceOn(from).Index, PieceOn(to).Index};
        ASSERT_EQ(IsAccepted(from, to), !after.empty());
        Pos.MoveCount = 2;
        ASSERT_FALSE(IsAccepted(from, to)) << "before both rings are placed";
        if (after.empty()) continue;
        Pos.MoveCount = 3;
        ApplyAction(from, to);
        EXPECT_EQ(Listed(), after);
        EXPECT_EQ(Pos.LastHit, isHit ? lastHit : (std::array<Int16, 2>{}));
    }
}

/// A neighbour stands in the way of those two-step squares that lie beyond it and touch it.
bool IsBehind(int across, int down, int blockAcross, int blockDown) {
    const bool touches = std::abs(across - blockAcross) <= 1 && std::abs(down - blockDown) <= 1;
    return touches && (blockAcross == 0 || across * blockAcross > 0) &&
           (blockDown == 0 || down * blockDown > 0);
}

TEST(PieceActionTest, NoPieceJumps) {
    for (const int block : {51, 52, 53, 59, 61, 67, 68, 69}) {
        Place("r60 b" + std::to_string(block));
        for (int to = SquareAt(4, 1); to <= SquareAt(10, 6); ++to) {
            if (!InField(to) || to == 60 || to == block) continue;
            const int across = Column(to) - 3;
            const int down = Row(to) - 7;
            const int distance = std::max(std::abs(across), std::abs(down));
            const bool isBlocked = IsBehind(across, down, Column(block) - 3, Row(block) - 7);
            EXPECT_EQ(CheckPlainMove(60, to), distance == 1 || (distance == 2 && !isBlocked))
                << block << ' ' << to;
        }
    }
}

/// Red piece 1 hits Blue piece 1. It is told about rule 7 even out of reach, but not when a carrier
/// or a waiting piece may not hit anyway.
TEST(PieceActionTest, PushBack) {
    const std::vector<std::tuple<const char*, std::array<Int16, 2>, HitVerdict>> cases{
        {"r68 b60", {1, 1}, HitVerdict::PushBack}, {"r68 b44", {1, 1}, HitVerdict::PushBack},
        {"r68 b60", {2, 1}, HitVerdict::Accepted}, {"r68 b60", {1, 2}, HitVerdict::Accepted},
        {"R68 b60", {1, 1}, HitVerdict::Refused},  {"r9 b60", {1, 1}, HitVerdict::Refused},
        {"b60 r68", {1, 1}, HitVerdict::Refused}};
    for (const auto& [pieces, lastHit, expected] : cases) {
        Place(pieces);
        Pos.LastHit = lastHit;
        EXPECT_EQ(CheckHit({Red, 1}, {Blue, 1}), expected) << pieces;
    }
    Place("r68 r60");
    Pos.LastHit = {1, 1};
    EXPECT_EQ(CheckHit({Red, 1}, {Blue, 1}), HitVerdict::Refused) << "there is no such piece";
    EXPECT_EQ(CheckHit({Red, 1}, {Red, 2}), HitVerdict::Refused) << "a friend";
}

/// Damaged game files hold such entries.
TEST(PieceActionTest, ActionsThatDoNotFit) {
    Place("r68 b60 b52 b12 r9 b4");
    const std::vector<std::pair<int, int>> actions{
        {68, 60}, {60, 68}, {12, 4}, {68, 12}, {68, 113}};
    for (const auto& [from, to] : actions) EXPECT_FALSE(ActionFits(from, to)) << from << ' ' << to;
    EXPECT_TRUE(ActionFits(68, 67));
    const Position before = Pos;
    for (const auto& [from, to] : {std::pair{67, 66}, {67, 4}, {0, 5}, {-9, 60}, {32767, 1}}) {
        EXPECT_TRUE(ActionFits(from, to));
        ApplyMoveQuiet(from, to);
        EXPECT_EQ(std::exchange(Pos.SideToMove, Red), Blue);
        EXPECT_EQ(Pos, before) << from << ' ' << to << ": without a piece only the turn passes";
    }
    Pos.MoveCount = 1;
    EXPECT_TRUE(ActionFits(68, -5));
    EXPECT_FALSE(ActionFits(0, 0) || ActionFits(113, 0));
}

}  // namespace
}  // namespace brastel
