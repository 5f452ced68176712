#include "tests/PlainSearch.h"

#include "core/Position.h"
#include "core/QuietMove.h"
#include "engine/Candidates.h"

namespace brastel {

namespace {

using Candidate = PlainResult::Candidate;
using CandidateRow = std::vector<Candidate>;

/// Candidates kept at ply 1 to 10.
constexpr std::array<std::size_t, 11> Beam{0, 32, 25, 19, 14, 10, 7, 5, 4, 4, 5};

bool IsWinAtOnce(const Candidate& candidate) { return candidate.Value > 9999; }

CandidateRow ListCandidates() {
    GenerateMoves(1);
    CandidateRow row;
    for (int n = 1; n <= CandidateCount[1]; ++n) row.push_back({MoveList[1][n], MoveScores[1][n]});
    return row;
}

/// The first of the highest values changes places with the one in front: not a stable order, and
/// which of equal candidates the beam keeps depends on it.
void KeepBeam(CandidateRow& row, int ply) {
    for (auto first = row.begin(); first != row.end(); ++first) {
        std::iter_swap(first, std::ranges::max_element(first, row.end(), {}, &Candidate::Value));
    }
    row.resize(std::min(row.size(), Beam[static_cast<std::size_t>(ply)]));
}

double BestReply(int ply, int depth);

/// The immediate gain, a little discounted, less what the opponent can reach afterwards.
double ValueOf(const Candidate& candidate, int ply, int depth) {
    const Position before = Pos;
    ApplyMoveQuiet(OriginOf(candidate.Code), DestinationOf(candidate.Code));
    const double reply = BestReply(ply + 1, depth);
    Pos = before;
    return candidate.Value / 1.01 - reply;
}

/// A side that cannot act, or has nothing better, is left with NoScore. At the deepest ply the
/// immediate values count; above it a win counts the more the nearer it is to the top.
double BestReply(int ply, int depth) {
    CandidateRow row = ListCandidates();
    if (ply < depth) KeepBeam(row, ply);
    double best = NoScore;
    for (const Candidate& candidate : row) {
        double value = candidate.Value;
        if (ply < depth && IsWinAtOnce(candidate)) return value + (depth - ply) * 1000;
        if (ply < depth) value = ValueOf(candidate, ply, depth);
        best = std::max(best, value);
    }
    return best;
}

/// A win at once leaves nothing to search: all candidates keep their immediate values.
void SearchRow(CandidateRow& row, int depth) {
    KeepBeam(row, 1);
    if (row.empty() || IsWinAtOnce(row.front())) return;
    for (Candidate& candidate : row) candidate.Value = ValueOf(candidate, 1, depth);
}

}  // namespace

PlainResult PlainSearch(int depth) {
    PlainResult result{ListCandidates(), NoScore, {}};
    if (depth > 1) SearchRow(result.Candidates, depth);
    if (result.Candidates.empty()) return result;
    result.Best = std::ranges::max(result.Candidates, {}, &Candidate::Value).Value;
    for (const Candidate& candidate : result.Candidates) {
        if (candidate.Value == result.Best) result.Tied.push_back(candidate.Code);
    }
    return result;
}

}  // namespace brastel
