#include "engine/Beam.h"

#include "engine/Candidates.h"

namespace brastel {

namespace {

// ---- Ranks: value first, then place in the unsorted row, the earlier the better ----

constexpr int PlaceCount = 1024;

constexpr int RankOf(int value, int place) { return (value + 1) * PlaceCount - 1 - place; }
constexpr int PlaceOf(int rank) { return PlaceCount - 1 - (rank & (PlaceCount - 1)); }
constexpr int WithPlace(int rank, int place) { return rank + PlaceOf(rank) - place; }

struct Ranked {
    int Rank;
    Candidate Which;
};

/// The candidates that are worth at least Threshold, in generation order.
struct Shortlist {
    Shortlist(int threshold, int exactPlaces) : Threshold(threshold), ExactPlaces(exactPlaces) {}

    int Threshold;
    /// So many places are counted exactly, because the sort moves who stands there; of the others
    /// only the order matters.
    int ExactPlaces;
    std::array<Ranked, MaxCandidates> Entries;
    std::size_t Count = 0;
    int NextPlace = 0;
};

// ---- Listing ----

/// More than a piece has candidates.
constexpr int PlacesOfPiece = 64;

void List(Shortlist& list, Candidate candidate, int place) {
    if (candidate.Value < list.Threshold) return;
    list.Entries[list.Count++] = {RankOf(candidate.Value, place), candidate};
}

Candidate CommonAt(const PieceCandidates& piece, int bit) {
    return CandidateOf({piece.Square, piece.Square + bit - WindowReach},
                       piece.Base + CounterAt(piece.Added, bit));
}

void ListPiece(Shortlist& list, const CandidateSet& set, const PieceCandidates& piece) {
    const Window all = piece.Common | piece.Scored;
    const bool isExact = list.NextPlace < list.ExactPlaces;
    const int firstPlace = list.NextPlace;
    list.NextPlace += isExact ? piece.Distant + std::popcount(all) : PlacesOfPiece;
    if (piece.Best < list.Threshold) return;
    for (int n = 0; n < piece.Distant; ++n) {
        List(list, set.Listed[piece.FirstDistant + static_cast<std::size_t>(n)], firstPlace + n);
    }
    const Candidate* judged = &set.Listed[piece.FirstScored];
    const Window worthy =
        AtLeast(piece.Added, list.Threshold - piece.Base, piece.Common) | piece.Scored;
    for (Window rest = worthy; rest != 0; rest &= rest - 1) {
        const int bit = std::countr_zero(rest);
        const int before = isExact ? std::popcount(all & ((rest & -rest) - 1)) : bit;
        const bool isJudged = (piece.Scored >> bit & 1) != 0;
        List(list, isJudged ? *judged++ : CommonAt(piece, bit),
             firstPlace + piece.Distant + before);
    }
}

/// Leaves out pieces that cannot have a candidate to list, unless their places count.
void ListPieces(Shortlist& list, CandidateSet& set) {
    const Bitboard places = DestinationsWorth(set, list.Threshold);
    for (std::size_t n = 0; n < set.PieceTotal; ++n) {
        const bool mayList = IsGenerated(set, n) || MayReach(set, n, places);
        if (!mayList && list.NextPlace >= list.ExactPlaces) continue;
        GeneratePiece(set, n);
        ListPiece(list, set, set.Pieces[n]);
    }
}

// ---- Selection ----

/// The selection sort of SortCandidates, as far as the beam goes and on the shortlist alone: who
/// stands where the selected one goes takes the place that the selected one leaves.
Beam SelectBeam(Shortlist& list, int width) {
    Beam beam;
    beam.Count = std::min(list.Count, static_cast<std::size_t>(width));
    for (std::size_t n = 0; n < beam.Count; ++n) {
        std::size_t selected = 0;
        std::size_t displaced = MaxCandidates;
        int highest = list.Entries[0].Rank;
        for (std::size_t i = 0; i < list.Count; ++i) {
            const int rank = list.Entries[i].Rank;
            selected = rank > highest ? i : selected;
            highest = std::max(rank, highest);
            displaced = PlaceOf(rank) == static_cast<int>(n) ? i : displaced;
        }
        beam.Candidates[n] = list.Entries[selected].Which;
        if (displaced != MaxCandidates) {
            int& rank = list.Entries[displaced].Rank;
            rank = WithPlace(rank, PlaceOf(highest));
        }
        list.Entries[selected] = list.Entries[--list.Count];
    }
    return beam;
}

/// How far below the best value the beam probably reaches: to where candidates have as many
/// destinations as it is wide.
int LikelyDepth(const CandidateSet& set, int width) {
    constexpr int deepest = 12;
    int depth = 1;
    while (depth < deepest && CountOf(DestinationsWorth(set, set.Best - depth)) < width) ++depth;
    return depth;
}

}  // namespace

Candidate FirstOfBest(const CandidateSet& set) {
    std::size_t n = 0;
    while (!IsGenerated(set, n) || set.Pieces[n].Best != set.Best) ++n;
    Shortlist list(set.Best, 0);
    ListPiece(list, set, set.Pieces[n]);
    return list.Entries[0].Which;
}

Beam KeepBeam(CandidateSet& set, int width) {
    constexpr int deepest = 24;
    for (int depth = LikelyDepth(set, width);; depth *= 2) {
        Shortlist list(depth <= deepest ? set.Best - depth : NoScore, width);
        ListPieces(list, set);
        const bool isEnough = list.Count >= static_cast<std::size_t>(width);
        if (isEnough || depth > deepest) return SelectBeam(list, width);
    }
}

}  // namespace brastel
