#include "engine/Random.h"
#include "engine/Search.h"
#include "tests/PlainSearch.h"
#include "tests/RandomPlay.h"

#include <gtest/gtest.h>

namespace brastel {
namespace {

/// Codes in row 1 that the search values like the one it chose.
std::vector<MoveCode> TiedWith(int chosen) {
    std::vector<MoveCode> tied;
    for (int n = 1; n <= CandidateCount[1]; ++n) {
        if (MoveScores[1][n] == MoveScores[1][chosen]) tied.push_back(MoveList[1][n]);
    }
    return tied;
}

/// The search leaves candidates that lose to the best with a bound of their value, so only the best
/// ones are compared. Where everything is worth less than NoScore nothing is compared: there the
/// search has no best to measure by, and bounds may win.
void CompareWithPlainSearch(int depth) {
    SCOPED_TRACE(Listed() + " depth " + std::to_string(depth));
    const Position before = Pos;
    const PlainResult plain = PlainSearch(depth);
    const int chosen = ChooseCandidate(ToInt16(depth));
    EXPECT_TRUE(Pos == before);
    EXPECT_EQ(BeamWidth, 32);
    EXPECT_EQ(BeamShrink, 7);
    EXPECT_EQ(SearchPly, 1);
    ASSERT_EQ(chosen == 0, plain.Candidates.empty());
    if (plain.Best < NoScore || chosen == 0) return;
    EXPECT_EQ(MoveScores[1][chosen], plain.Best);
    EXPECT_EQ(TiedWith(chosen), plain.Tied);
}

TEST(SearchTest, AgreesWithPlainSearch) {
    SeedRandom(1);
    Dice dice(1);
    for (int n = 0; n < 264; ++n) {
        const int depth = n < 60 ? 1 : n < 180 ? 2 : n < 240 ? 3 : 4;
        Wander(n % FreeSetupLayout, Below(dice, 64), dice);
        CompareWithPlainSearch(depth);
    }
    // With few pieces deep searches are cheap, and short of candidates.
    for (const char* pieces : {"R52 b19 B60", "B61 b44 r20 R92", "r9 R10 b18 B19", "r1 B44"}) {
        Place(pieces);
        for (int depth = 1; depth <= 5; ++depth) CompareWithPlainSearch(depth);
    }
}

/// Each equal candidate tosses a coin to replace the one before: the last is taken with probability
/// 1/2, the one before with 1/4, and so on. One number is drawn for each.
TEST(SearchTest, CoinsBreakTies) {
    Dice dice(1);
    Wander(3, 0, dice);
    for (unsigned seed = 1; seed <= 100; ++seed) {
        SeedRandom(seed);
        int expected = 1;
        for (int n = 1; n <= 6; ++n) {
            if (RandomBelow(2) == 1) expected = n;
        }
        const Int16 next = RandomBelow(1000);
        SeedRandom(seed);
        EXPECT_EQ(ChooseCandidate(1), expected);
        EXPECT_EQ(RandomBelow(1000), next);
    }
}

}  // namespace
}  // namespace brastel
