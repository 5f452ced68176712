#include "engine/Beam.h"
#include "tests/SearchComparison.h"

#include <gtest/gtest.h>

namespace brastel {
namespace {

/// The sorted row 1, as the survey writes candidates.
std::vector<Candidate> SortedRow() {
    GenerateMoves(1);
    SortCandidates(1);
    std::vector<Candidate> row;
    for (int n = 1; n <= CandidateCount[1]; ++n) {
        const MoveCode code = MoveList[1][n];
        row.push_back(
            CandidateOf(OriginOf(code), DestinationOf(code), static_cast<int>(MoveScores[1][n])));
    }
    return row;
}

/// The highest value, asked for between bounds on either side of it or around it.
void CompareHighestValue(int highest) {
    for (const int low : {highest - 3, highest - 1, highest, highest + 2}) {
        for (const int high : {low + 1, low + 4}) {
            const int found = std::clamp(HighestValue(low, high), low, high);
            EXPECT_EQ(found, std::clamp(highest, low, high));
        }
    }
}

void CompareBeam(const std::vector<Candidate>& row, int width) {
    Survey survey;
    BeginSurvey(survey);
    SurveyBest(survey);
    ASSERT_EQ(survey.Best, row.empty() ? NoValue : row.front().Value);
    if (row.empty()) return;
    EXPECT_TRUE(FirstOfBest(survey) == row.front());
    const Beam beam = KeepBeam(survey, width);
    ASSERT_EQ(beam.Count, std::min(row.size(), static_cast<std::size_t>(width)));
    EXPECT_TRUE(std::equal(row.begin(), row.begin() + static_cast<std::ptrdiff_t>(beam.Count),
                           beam.Candidates.begin()));
}

void CompareWithSortedRow() {
    SCOPED_TRACE(Described());
    const std::vector<Candidate> row = SortedRow();
    for (const int width : {32, 14, 7, 5, 4, 1}) CompareBeam(row, width);
    CompareHighestValue(row.empty() ? NoValue : row.front().Value);
}

/// The survey must list what the generator lists and the beam keep what the sort puts first, among
/// equals, too, which the sort shuffles.
TEST(SurveyTest, AgreesWithTheSortedRow) {
    Place("r10 b11 b12 b18 b19 b26");  // a piece that is shut in
    CompareWithSortedRow();
    PositionSource source(1);
    for (int n = 0; n < 4000; ++n) {
        source.Draw();
        if (BothRingsPlaced()) CompareWithSortedRow();
        if (HasFailure()) return;
    }
}

}  // namespace
}  // namespace brastel
