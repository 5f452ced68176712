#include "engine/Random.h"
#include "engine/Search.h"
#include "engine/TranspositionTable.h"
#include "tests/PositionSource.h"

#include <gtest/gtest.h>

#include <iomanip>

namespace brastel {
namespace {

// ---- The plain algorithm, which makes the same choices ----

struct PlainCandidate {
    MoveCode Code;
    /// The immediate value, after a search the value to its depth, or for a candidate that cannot
    /// be the best a bound of it.
    double Value;
};
using CandidateRow = std::vector<PlainCandidate>;

/// The content of row 1 of the candidate tables.
CandidateRow RowOne() {
    CandidateRow row;
    for (int n = 1; n <= CandidateCount[1]; ++n) row.push_back({MoveList[1][n], MoveScores[1][n]});
    return row;
}

/// Searches `depth` plies ahead, 1 to MaxPly. Uses row 1 of the candidate tables.
class PlainSearch {
public:
    explicit PlainSearch(int depth) : Depth(depth) {}

    /// The candidates of the position, as they are searched. A win at once leaves nothing to
    /// search: all candidates keep their immediate values.
    CandidateRow Search() const {
        CandidateRow row = ListCandidates(1);
        if (Depth == 1 || BeginsWithWin(row)) return row;
        double best = NoScore;
        for (PlainCandidate& candidate : row) {
            candidate.Value = ValueOf(candidate, 1, best);
            best = std::max(best, candidate.Value);
        }
        return row;
    }

private:
    static bool BeginsWithWin(const CandidateRow& row) {
        return !row.empty() && row.front().Value > 9999;
    }

    /// All candidates at the deepest ply, above it only the beam. The first of the highest values
    /// changes places with the one in front: not a stable order, and which of equal candidates the
    /// beam keeps depends on it.
    CandidateRow ListCandidates(int ply) const {
        constexpr std::array beam{0, 32, 25, 19, 14, 10, 7, 5, 4, 4, 5};
        GenerateMoves(1);
        CandidateRow row = RowOne();
        if (ply == Depth) return row;
        const auto kept =
            std::min<std::ptrdiff_t>(std::ssize(row), beam[static_cast<std::size_t>(ply)]);
        for (auto first = row.begin(); first != row.begin() + kept; ++first) {
            std::iter_swap(first,
                           std::ranges::max_element(first, row.end(), {}, &PlainCandidate::Value));
        }
        row.resize(static_cast<std::size_t>(kept));
        return row;
    }

    /// The immediate gain, a little discounted, less what the opponent can reach afterwards; `best`
    /// is the best of the candidates tried before it.
    double ValueOf(const PlainCandidate& candidate, int ply, double best) const {
        const Position before = Pos;
        ApplyMoveQuiet(DecodeMove(candidate.Code));
        const double gain = candidate.Value / 1.01;
        const double value = gain - BestReply(ply + 1, gain, best);
        Pos = before;
        return value;
    }

    /// A side that cannot act, or has nothing better, is left with NoScore. At the deepest ply the
    /// immediate values count, in the order of the list; above it a win counts the more the nearer
    /// it is to the top. Stops when the candidate answered, which gained `gain`, has become worse
    /// than `bestAbove`, the best one beside it so far. Where all is worth less than NoScore the
    /// bounds that this leaves are what is chosen by, so no other short cut would do.
    double BestReply(int ply, double gain, double bestAbove) const {
        const CandidateRow row = ListCandidates(ply);
        if (ply < Depth && BeginsWithWin(row)) return row.front().Value + (Depth - ply) * 1000;
        double best = NoScore;
        for (const PlainCandidate& candidate : row) {
            best = std::max(best, ply < Depth ? ValueOf(candidate, ply, best) : candidate.Value);
            if (gain - best < bestAbove) break;
        }
        return best;
    }

    const int Depth;
};

// ---- Comparison ----

/// All that two searches must agree in: the highest value and the candidates in order, with a star
/// where they have it. The real search may leave any value below it in a candidate that loses.
std::string Found(const CandidateRow& row) {
    const double best =
        row.empty() ? NoScore : std::ranges::max(row, {}, &PlainCandidate::Value).Value;
    std::ostringstream text;
    text << std::setprecision(17) << best << ": ";
    for (const auto& [code, value] : row) text << code << (value == best ? "* " : " ");
    return text.str();
}

void CompareWithPlainSearch(int level) {
    SCOPED_TRACE(Described() + " level " + std::to_string(level));
    const std::string plain = Found(PlainSearch(level).Search());
    const Position before = Pos;
    const Int16 chosen = ChooseCandidate(ToInt16(level));
    const std::string starred = ' ' + std::to_string(MoveList[1][chosen]) + "* ";
    EXPECT_EQ(Found(RowOne()), plain);
    EXPECT_EQ(plain.find(starred) == plain.npos, CandidateCount[1] == 0);
    EXPECT_TRUE(Pos == before);
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
    Dice dice(static_cast<unsigned>(level));
    for (int left = Positions[static_cast<std::size_t>(level - 1)]; left > 0; --left) {
        // With two pieces a side it costs least to reach the deepest plies and their beam.
        level > 8 ? Wander(0, Below(dice, 64), dice) : DrawPosition(dice);
        CompareWithPlainSearch(level);
        if (HasFailure()) return;
    }
}

INSTANTIATE_TEST_SUITE_P(Levels, SearchLevelTest, testing::Range(1, int{Positions.size()} + 1),
                         testing::PrintToStringParamName());

/// Where all is worth less than NoScore, the bounds that the plain search happens to leave decide
/// which candidate is best: Red's in the first position, Blue's in the others.
TEST(SearchTest, AgreesWithPlainSearchWhereAllIsLost) {
    const std::string lost = R"(
         1  ..b.....  ........
         3  ........  ...r....
         9  ......b.  ....r...
        10  ...bbb..  .....r..
        11  ......b.  .....r..
        12  ......r.  ...rr.b.)";
    for (const auto& pieces : {ListOf(lost), ListOf(lost, 1), std::string("b103 r94 r93 r85")}) {
        Place(pieces);
        Pos.RingSquare = {4, 109};
        Pos.SideToMove = PieceCount(Red) == 1 ? Red : Blue;
        CompareWithPlainSearch(5);
    }
}

/// The entries of an earlier search must not change a later one. Hardest to tell apart are the same
/// pieces with the other side to move.
TEST(SearchTest, ForgetsEarlierSearches) {
    Dice dice(8);
    for (Int16 n = 0; n < 40; ++n) {
        DrawPosition(dice);
        std::array<std::vector<double>, 3> found;
        for (auto& row : found) {
            Pos.SideToMove = &row == &found[1] ? Blue : Red;
            ChooseCandidate(ToInt16(4 + n % 3));
            row.assign(&MoveScores[1][1], &MoveScores[1][1] + CandidateCount[1]);
        }
        EXPECT_EQ(found[0], found[2]) << Described();
    }
}

/// Positions that differ in anything that a value depends on need different keys of the
/// transposition table. Otherwise one gets the value of the other, which random positions hardly
/// ever show.
TEST(SearchTest, PositionsHaveKeysOfTheirOwn) {
    SelectStartLayout(FreeSetupLayout - 1);
    SetUpStartPosition();
    Pos.OutsideBalance = -1;
    std::vector<Int16*> numbers{&Pos.RingSquare[0], &Pos.RingSquare[1], &Pos.LastHit[0],
                                &Pos.LastHit[1], &Pos.OutsideBalance};
    for (int i = 1; i <= MaxPieces; ++i) {
        numbers.insert(numbers.end(), {&Pos.RedSquare[i], &Pos.BlueSquare[i]});
    }
    constexpr int mark = 7;
    const auto isKnown = [](int ply) { return ProbeTable(ply).Depth == mark; };
    for (Int16* const number : numbers) {
        for (int bit = 1; bit <= LastSquare; bit *= 2) {
            ClearTable();
            ProbeTable(3).Depth = mark;
            EXPECT_TRUE(isKnown(3));
            EXPECT_FALSE(isKnown(4));
            const Int16 value = std::exchange(*number, ToInt16(*number ^ bit));
            EXPECT_FALSE(isKnown(3)) << value << ' ' << *number;
            *number = value;
        }
    }
}

/// Each equal candidate tosses a coin to replace the one before: the last is taken with probability
/// 1/2, the one before with 1/4, and so on.
TEST(SearchTest, CoinsBreakTies) {
    Dice dice(1);
    Wander(3, 0, dice);
    for (unsigned seed = 1; seed <= 100; ++seed) {
        SeedRandom(seed);
        int expected = 1;
        for (int n = 1; n <= 6; ++n) {
            if (RandomBelow(2) == 1) expected = n;
        }
        SeedRandom(seed);
        EXPECT_EQ(ChooseCandidate(1), expected);
    }
}

}  // namespace
}  // namespace brastel
