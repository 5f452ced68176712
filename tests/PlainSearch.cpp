#include "tests/PlainSearch.h"

#include "core/Position.h"
#include "core/QuietMove.h"
#include "engine/Candidates.h"

namespace brastel {

namespace {

using Candidate = PlainResult::Candidate;
using CandidateRow = std::vector<Candidate>;

/// Candidates kept at ply 1 to 10.
constexpr std::array<int, 11> Beam{0, 32, 25, 19, 14, 10, 7, 5, 4, 4, 5};

/// By ply. Each row serves all positions of its ply in turn, so that it keeps its memory.
std::array<CandidateRow, MaxPly + 1> Rows;
int Depth = 1;

bool BeginsWithWin(const CandidateRow& row) { return !row.empty() && row.front().Value > 9999; }

CandidateRow& ListCandidates(int ply) {
    CandidateRow& row = Rows[static_cast<std::size_t>(ply)];
    row.clear();
    GenerateMoves(1);
    for (int n = 1; n <= CandidateCount[1]; ++n) row.push_back({MoveList[1][n], MoveScores[1][n]});
    return row;
}

/// The first of the highest values changes places with the one in front: not a stable order, and
/// which of equal candidates the beam keeps depends on it.
void KeepBeam(CandidateRow& row, int ply) {
    const auto kept =
        std::min<std::ptrdiff_t>(std::ssize(row), Beam[static_cast<std::size_t>(ply)]);
    for (auto first = row.begin(); first != row.begin() + kept; ++first) {
        std::iter_swap(first, std::ranges::max_element(first, row.end(), {}, &Candidate::Value));
    }
    row.resize(static_cast<std::size_t>(kept));
}

double BestReply(int ply, double gain, double bestAbove);

/// The immediate gain, a little discounted, less what the opponent can reach afterwards; `best` is
/// the best of the candidates tried before it.
double ValueOf(const Candidate& candidate, int ply, double best) {
    const Position before = Pos;
    ApplyMoveQuiet(OriginOf(candidate.Code), DestinationOf(candidate.Code));
    const double gain = candidate.Value / 1.01;
    const double value = gain - BestReply(ply + 1, gain, best);
    Pos = before;
    return value;
}

/// A side that cannot act, or has nothing better, is left with NoScore. At the deepest ply the
/// immediate values count, in the order of the list; above it a win counts the more the nearer it
/// is to the top. Stops when the candidate answered, which gained `gain`, has become worse than
/// `bestAbove`, the best one beside it so far. Where all is worth less than NoScore the bounds that
/// this leaves are what is chosen by, so no other short cut would do.
double BestReply(int ply, double gain, double bestAbove) {
    CandidateRow& row = ListCandidates(ply);
    if (ply < Depth) KeepBeam(row, ply);
    if (ply < Depth && BeginsWithWin(row)) return row.front().Value + (Depth - ply) * 1000;
    double best = NoScore;
    for (const Candidate& candidate : row) {
        best = std::max(best, ply < Depth ? ValueOf(candidate, ply, best) : candidate.Value);
        if (gain - best < bestAbove) break;
    }
    return best;
}

/// A win at once leaves nothing to search: all candidates keep their immediate values.
void SearchRow(CandidateRow& row) {
    KeepBeam(row, 1);
    if (BeginsWithWin(row)) return;
    double best = NoScore;
    for (Candidate& candidate : row) {
        candidate.Value = ValueOf(candidate, 1, best);
        best = std::max(best, candidate.Value);
    }
}

}  // namespace

PlainResult ResultOf(const std::vector<Candidate>& candidates) {
    PlainResult result{candidates, NoScore, {}};
    if (candidates.empty()) return result;
    result.Best = std::ranges::max(candidates, {}, &Candidate::Value).Value;
    for (const Candidate& candidate : candidates) {
        if (candidate.Value == result.Best) result.Tied.push_back(candidate.Code);
    }
    return result;
}

PlainResult PlainSearch(int depth) {
    Depth = depth;
    CandidateRow& row = ListCandidates(1);
    if (Depth > 1) SearchRow(row);
    return ResultOf(row);
}

}  // namespace brastel
