#include "engine/Evaluation.h"
#include "tests/Positions.h"

#include <gtest/gtest.h>

#include <tuple>
#include <utility>
#include <vector>

namespace brastel {
namespace {

/// Position, origin, destination, and the value as the side to move sees it.
using ValueCase = std::tuple<const char*, int, int, int>;
using ValueGroups = std::vector<std::pair<const char*, std::vector<ValueCase>>>;

/// Upside down and in the mirror the value is the same.
void ExpectValue(const ValueCase& c, int (*valueOf)(int, int)) {
    const auto& [pieces, from, to, value] = c;
    SCOPED_TRACE(pieces);
    Place(pieces);
    EXPECT_EQ(valueOf(from, to), value);
    Pos = LeftRight(Pos);
    EXPECT_EQ(valueOf(LeftRight(from), LeftRight(to)), value);
    Pos = UpsideDown(Pos);
    EXPECT_EQ(valueOf(UpsideDown(LeftRight(from)), UpsideDown(LeftRight(to))), value);
}

void ExpectValues(const ValueGroups& groups, int (*valueOf)(int, int)) {
    for (const auto& [name, cases] : groups) {
        SCOPED_TRACE(name);
        for (const ValueCase& c : cases) ExpectValue(c, valueOf);
    }
}

// clang-format off
const ValueGroups Scores{
    {"into the goal columns 1, out of them -1",
     {{"r60", 60, 53, 0}, {"r59", 59, 52, 1}, {"r60", 60, 51, -1}}},
    {"a hit 2, on a carrier 5 more, and 1 for each of the target's friends beside it",
     {{"r60 b52 r51", 60, 52, 2}, {"r60 B52", 60, 52, 2 + 5}, {"r60 b52 b51 b53", 60, 52, 2 + 1 + 1}}},
    {"beside a ring 2 and diagonal to one 1, each once",
     {{"r60 B54 B45", 60, 53, 2}, {"r60 B46", 60, 53, 1}, {"r60 B54 B46", 60, 53, 2 + 1}}},
    {"a carrier: 4 a row, beside its old square 2, any friends (it counts as one) beside it 1",
     {{"R60", 60, 52, 4 + 2 + 1}, {"R60", 60, 68, -4 + 2 + 1}, {"R59", 59, 58, 2 + 1},
      {"R60 r51", 60, 52, 4 + 2 + 1}, {"R60 r84", 60, 76, 4 * -2 + 1}}},
    {"the same, diagonal to its old square 1",
     {{"R58 b50", 58, 51, 4 + 1}, {"R58 r50", 58, 51, 4 + 1 + 1}}},
    {"into a corner of the field -1, out of the one at its own goal 5",
     {{"R19", 19, 10, 4 + 1 - 1}, {"R10", 10, 18, -4 + 2 + 1 + 5}, {"R98", 98, 90, 4 + 2 + 1}}},
    {"a pass: 4 a row, diagonal to the ring 1, the receiver's friend 1, any friends 1",
     {{"R68 r61", 68, 61, 4 + 1}, {"R68 r61 r62", 68, 61, 4 + 1 + 1 + 1}}},
    {"ready to receive the ring two rows ahead 1; out of the goal columns -1",
     {{"R68 r60", 60, 53, 1}, {"R68 r60", 60, 51, 1 - 1}, {"R68 r76", 76, 83, -1}}},
    {"an answer to an advanced carrier 4, not from far behind it; columns and ring as above",
     {{"r68 B76", 68, 75, 4 + 2 - 1}, {"r83 B76", 83, 84, 4 + 2 + 1}, {"r92 B76", 92, 85, 1},
      {"r78 B76", 78, 70, 0}, {"r71 B68", 71, 79, 4}, {"r71 B60", 71, 79, 0}}},
    {"a hit on a carrier, as above; two opponents more than friends around it -12",
     {{"r68 B76 b77", 68, 76, 2 + 5 + 4 + 1 - 12}, {"r68 B76 b77 r103", 68, 76, 2 + 5 + 4 + 1},
      {"r68 B76 b69", 68, 76, 2 + 5 + 4}}},
    {"a carrier left at its goal loses; of two only the first is looked at",
     {{"r60 B100", 60, 52, LossValue}, {"r91 b99 B101", 91, 99, LossValue},
      {"R20 B100", 20, 12, LossValue}, {"r93 B100 B101", 93, 101, LossValue},
      {"r92 B100", 92, 100, 2 + 5}, {"r92 B100 B101", 92, 100, 2 + 5 + 2 + 1}}},
    {"a verdict on the goal front replaces the sum, where a carrier comes or goes",
     {{"R13 b20 r11", 13, 12, 9000}, {"r13 B12 b10", 13, 12, 10000}, {"R13 b20", 13, 12, 2 + 1},
      {"R12 r20 b60", 20, 21, 1}}}};

/// The carrier wins where no opponent beside or behind it can hit it away; where one can, a friend
/// may stand ready to hit back.
const ValueGroups Verdicts{
    {"nobody can hit it away, or somebody can",
     {{"R20", 20, 12, 10000}, {"R20 r11 r13", 20, 12, 10000}, {"R11 b19 r10 R21", 21, 13, 10000},
      {"R20 b11", 20, 12, 0}, {"R13 b20", 13, 12, 0}}},
    {"inner squares: a friend beside, or behind while the goal is empty; they are judged first",
     {{"R13 b20 r11", 13, 12, 9000}, {"R13 b11 r20", 13, 12, 9000}, {"R13 b11 r20 r4", 13, 12, 0},
      {"R28 r13 r12 b21", 28, 13, 9000}, {"R11 R13 b19 b20 r10", 13, 12, 9000}}},
    {"outer squares, a friend behind: the cell before empty, no opponent before the corner, not "
     "two in it and beside it",
     {{"R20 b12 r19", 20, 11, 9000}, {"R20 b12 r19 b3", 20, 11, 0}, {"R20 b12 r19 b2", 20, 11, 0},
      {"R20 b12 r19 r2", 20, 11, 9000}, {"R20 b10 r19", 20, 11, 9000},
      {"R20 b10 b9 r19", 20, 11, 0}, {"R20 b12 b9 r19", 20, 11, 9000}}},
    {"a friend in the corner: the other side empty, no opponent in the goal",
     {{"R20 r10 b19", 20, 11, 9000}, {"R20 r10 b19 b4", 20, 11, 0}, {"R20 r10 r12 b19", 20, 11, 0},
      {"R21 r11 r10 b19 r4 b13", 21, 11, 9000}}},
    {"a friend on the inner side: no opponent around the empty corner",
     {{"R20 r12 b19", 20, 11, 9000}, {"R20 r12 b19 b2", 20, 11, 0}, {"R20 r12 b19 b9", 20, 11, 0},
      {"R20 r12 b19 r9 r2", 20, 11, 9000}}}};
// clang-format on

TEST(EvaluationTest, Scores) {
    ExpectValues(Scores, [](int from, int to) -> int { return ScoreMove(from, to); });
    Place("r60");
    Pos.OutsideBalance = 2;
    EXPECT_EQ(ScoreMove(60, 52), -3 * 2) << "two of one's own wait outside";
    Place("R12 B100 b4");
    EXPECT_EQ(ScoreMove(12, 4), WinValue) << "whatever else holds";
}

TEST(EvaluationTest, GoalFronts) {
    ExpectValues(Verdicts, [](int o, int d) { return Pos.SideToMove * GoalFrontCheck(o, d); });
}

}  // namespace
}  // namespace brastel
