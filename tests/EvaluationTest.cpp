#include "engine/Evaluation.h"
#include "tests/Positions.h"

#include <gtest/gtest.h>

#include <tuple>
#include <vector>

namespace brastel {
namespace {

// clang-format off
/// Boards in front of Red's goal, and of each the move and the verdict.
using FrontGroup = std::tuple<const char*, const char*, std::vector<std::array<int, 3>>>;

/// What the benchmark's positions do not tell apart. A carrier that an opponent can hit away is
/// covered where a friend stands ready to hit back.
const std::vector<FrontGroup> Fronts{
    {"inner squares: a friend beside, or behind while the goal is empty; they are judged first", R"(
        0  ........  ........  ...r....  ........  ........
        1  ..r.R...  ..b.R...  ..b.R...  ...rr...  .rR.R...
        2  ...b....  ...r....  ...r....  ....b...  ..bb....
        3  ........  ........  ........  ...R....  ........)",
     {{13, 12, 9000}, {13, 12, 9000}, {13, 12, 0}, {28, 13, 9000}, {13, 12, 9000}}},
    {"outer squares, a friend behind: the cell before empty, no opponent before the corner, not "
     "two in it and beside it", R"(
        0  ........  ..b.....  .b......  .r......  ........  ........  ........
        1  ...b....  ...b....  ...b....  ...b....  .b......  bb......  b..b....
        2  ..rR....  ..rR....  ..rR....  ..rR....  ..rR....  ..rR....  ..rR....)",
     {{20, 11, 9000}, {20, 11, 0}, {20, 11, 0}, {20, 11, 9000}, {20, 11, 9000}, {20, 11, 0},
      {20, 11, 9000}}},
    {"a friend in the corner: the other side empty, no opponent in the goal", R"(
        0  ........  ...b....  ........  ...r....
        1  .r......  .r......  .r.r....  .rr.b...
        2  ..bR....  ..bR....  ..bR....  ..b.R...)",
     {{20, 11, 9000}, {20, 11, 0}, {20, 11, 0}, {21, 11, 9000}}},
    {"a friend on the inner side: no opponent around the empty corner", R"(
        0  ........  .b......  ........  .r......
        1  ...r....  ...r....  b..r....  r..r....
        2  ..bR....  ..bR....  ..bR....  ..bR....)",
     {{20, 11, 9000}, {20, 11, 0}, {20, 11, 0}, {20, 11, 9000}}}};
// clang-format on

TEST(EvaluationTest, GoalFronts) {
    for (const auto& [name, boards, verdicts] : Fronts) {
        SCOPED_TRACE(name);
        for (int n = 0; n < std::ssize(verdicts); ++n) {
            const auto& [from, to, verdict] = verdicts[static_cast<std::size_t>(n)];
            const std::string pieces = ListOf(boards, n);
            Place(pieces);
            Pos.SideToMove = Red;
            EXPECT_EQ(GoalFrontCheck(from, to), -verdict) << pieces;
            Place(Turned(pieces));
            Pos.SideToMove = Blue;
            EXPECT_EQ(GoalFrontCheck(Turned(from), Turned(to)), verdict) << pieces;
        }
    }
}

}  // namespace
}  // namespace brastel
