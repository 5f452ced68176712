#include "core/WinTest.h"

#include "tests/Positions.h"

#include <gtest/gtest.h>

#include <tuple>
#include <utility>
#include <vector>

namespace brastel {
namespace {

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

void ExpectWinner(const WinCase& c) {
    const auto& [pieces, winner, lastHit] = c;
    SCOPED_TRACE(pieces);
    Place(pieces);
    Pos.LastHit = lastHit;
    EXPECT_EQ(FindWinner(), winner);
    Pos = LeftRight(Pos);
    EXPECT_EQ(FindWinner(), winner);
    Pos = UpsideDown(Pos);
    EXPECT_EQ(FindWinner(), -winner);
}

TEST(WinTest, Cases) {
    for (const auto& [name, cases] : Groups) {
        SCOPED_TRACE(name);
        for (const WinCase& c : cases) ExpectWinner(c);
    }
    Place("R12 B100");
    EXPECT_EQ(FindWinner(), Red) << "announced before Blue";
}

}  // namespace
}  // namespace brastel
