#include "engine/Beam.h"
#include "testing/ExpectedCandidates.h"
#include "tests/PositionSource.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <vector>

namespace brastel {
namespace {

TEST(CandidatesTest, AreWhatTheRulesAccept) {
    Dice dice(1);
    for (int n = 0; n < 2000; ++n) {
        DrawPosition(dice);
        ASSERT_EQ(GeneratedCandidates(), ExpectedCandidates()) << Described();
    }
}

// ---- The fast form, inside the search ----

/// The highest value, asked for between bounds on either side of it or around it.
void CompareHighestValue(int highest) {
    for (int low = highest - 3; low <= highest + 2; ++low) {
        const int high = low + 1 + (low & 1) * 3;
        EXPECT_EQ(std::clamp(HighestValue(low, high), low, high), std::clamp(highest, low, high));
    }
}

void CompareBeam(const std::vector<Candidate>& row, int width) {
    CandidateSet set;
    BeginCandidates(set);
    GenerateBest(set);
    ASSERT_EQ(set.Best, row.empty() ? NoScore : row.front().Value);
    if (row.empty()) return;
    EXPECT_TRUE(FirstOfBest(set) == row.front());
    const Beam beam = KeepBeam(set, width);
    ASSERT_EQ(beam.Count, std::min(row.size(), static_cast<std::size_t>(width)));
    EXPECT_TRUE(std::equal(&beam.Candidates[0], &beam.Candidates[0] + beam.Count, row.begin()));
}

void CompareWithSortedRow() {
    SCOPED_TRACE(Described());
    GenerateMoves(1);
    SortCandidates(1);
    std::vector<Candidate> row;
    for (int n = 1; n <= CandidateCount[1]; ++n) {
        const auto [origin, destination] = DecodeMove(MoveList[1][n]);
        row.push_back(CandidateOf({origin, destination}, static_cast<int>(MoveScores[1][n])));
    }
    for (const int width : {32, 14, 7, 5, 4, 1}) CompareBeam(row, width);
    CompareHighestValue(row.empty() ? NoScore : row.front().Value);
}

/// The set must have the candidates of the generator, and the beam the first of the sorted row,
/// also among equal values, whose order the sort changes.
TEST(CandidatesTest, TheSetAgreesWithTheSortedRow) {
    Dice dice(1);
    for (int n = 0; n < 4000 && !testing::Test::HasFailure(); ++n) {
        DrawPosition(dice);
        if (BothRingsPlaced()) CompareWithSortedRow();
    }
}

}  // namespace
}  // namespace brastel
