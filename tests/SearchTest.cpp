#include "engine/SearchMemory.h"
#include "tests/SearchComparison.h"

#include <gtest/gtest.h>

namespace brastel {
namespace {

void CompareWithPlainSearch(int level) {
    SCOPED_TRACE(Described() + " level " + std::to_string(level));
    const Position before = Pos;
    const PlainResult plain = PlainSearch(level);
    const int chosen = ChooseCandidate(ToInt16(level));
    EXPECT_EQ(Differences(before, plain, chosen), "");
}

/// Positions by level, from 1; the assertions look at every position of a search.
#ifdef NDEBUG
constexpr std::array Positions{500, 3000, 1600, 600, 200, 170, 30, 3, 3, 3, 1};
#else
constexpr std::array Positions{50, 300, 200, 80, 20, 6};
#endif

class SearchLevelTest : public testing::TestWithParam<int> {};

TEST_P(SearchLevelTest, AgreesWithPlainSearch) {
    const int level = GetParam();
    // With two pieces a side it costs least to reach the deepest plies and their beam.
    const int layout = level > 8 ? 0 : PositionSource::AnyLayout;
    PositionSource source(static_cast<unsigned>(level), layout);
    for (int left = Positions[static_cast<std::size_t>(level - 1)]; left > 0; --left) {
        source.Draw();
        CompareWithPlainSearch(level);
        if (HasFailure()) return;
    }
}

INSTANTIATE_TEST_SUITE_P(Levels, SearchLevelTest, testing::Range(1, int{Positions.size()} + 1),
                         testing::PrintToStringParamName());

/// The values in row 1 after a search of the position, with either side to move.
std::vector<double> SearchedValues(const Position& position, Int16 side, int level) {
    Pos = position;
    Pos.SideToMove = side;
    ChooseCandidate(ToInt16(level));
    return {&MoveScores[1][1], &MoveScores[1][1] + CandidateCount[1]};
}

/// Whatever the search remembers, an earlier search must not show: least of all one of the same
/// pieces with the other side to move, which is the hardest to tell apart.
TEST(SearchTest, ForgetsEarlierSearches) {
    PositionSource source(8);
    for (int n = 0; n < 40; ++n) {
        source.Draw();
        const Position position = Pos;
        const int level = 4 + n % 3;
        const std::vector<double> values = SearchedValues(position, Red, level);
        SearchedValues(position, Blue, level);
        EXPECT_EQ(SearchedValues(position, Red, level), values) << Described() << level;
    }
}

/// Everything that a value depends on must tell two positions apart: what the memory takes for the
/// same position is answered with the value of another, which random positions hardly ever show.
TEST(SearchTest, TellsRememberedPositionsApart) {
    SelectStartLayout(FreeSetupLayout - 1);
    SetUpStartPosition();
    Pos.OutsideBalance = -1;
    constexpr int ply = 3;
    const auto isKnown = [](int at) { return RecallPosition(at).Depth == 7; };
    const auto remember = [&] {
        ForgetPositions();
        RecallPosition(ply).Depth = 7;
        ASSERT_TRUE(isKnown(ply));
    };
    std::vector<Int16*> numbers{&Pos.RingSquare[0], &Pos.RingSquare[1], &Pos.LastHit[0],
                                &Pos.LastHit[1], &Pos.OutsideBalance};
    for (int i = 1; i <= MaxPieces; ++i) {
        numbers.insert(numbers.end(), {&Pos.RedSquare[i], &Pos.BlueSquare[i]});
    }
    for (Int16* const number : numbers) {
        const Int16 value = *number;
        for (int bit = 1; bit <= LastSquare; bit *= 2) {
            remember();
            *number = ToInt16(value ^ bit);
            EXPECT_FALSE(isKnown(ply)) << value << ' ' << *number;
            *number = value;
        }
    }
    remember();
    EXPECT_FALSE(isKnown(ply + 1));
    remember();
    ForgetPositions();
    EXPECT_FALSE(isKnown(ply));
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
