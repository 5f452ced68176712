#include "engine/Beam.h"

#include "engine/Candidates.h"

namespace brastel {

namespace {

// ---- Ranks: value first, then the index in the unsorted row, a lower index first ----

constexpr int IndexCount = 1024;

constexpr int RankOf(int value, int index) { return (value + 1) * IndexCount - 1 - index; }
constexpr int IndexOf(int rank) { return IndexCount - 1 - (rank & (IndexCount - 1)); }
void SetIndex(int& rank, int index) { rank += IndexOf(rank) - index; }

struct Ranked {
    int Rank;
    Candidate Which;
};

/// The candidates that are worth at least Threshold, in generation order.
struct Shortlist {
    Shortlist(int threshold, int exactCount) : Threshold(threshold), ExactCount(exactCount) {}

    int Threshold;
    /// The sort moves the candidates that stand at so many first indices, so these are exact. Of
    /// the others only the order matters.
    int ExactCount;
    std::array<Ranked, MaxCandidates> Entries;
    std::size_t Count = 0;
    int NextIndex = 0;
};

// ---- Listing ----

/// The indices that one piece takes where they need not be exact: one for each distant candidate
/// and each bit of a window.
constexpr int IndicesPerPiece = 3 + 2 * WindowReach + 1;
static_assert(MaxPieces * IndicesPerPiece <= IndexCount);

void List(Shortlist& list, Candidate candidate, int index) {
    if (candidate.Value < list.Threshold) return;
    assert(index < IndexCount && list.Count < list.Entries.size());
    list.Entries[list.Count++] = {RankOf(candidate.Value, index), candidate};
}

Candidate CommonAt(const PieceCandidates& piece, int bit) {
    return CandidateOf({piece.Square, piece.Square + bit - WindowReach},
                       piece.Base + CounterAt(piece.Added, bit));
}

void ListPiece(Shortlist& list, const CandidateSet& set, const PieceCandidates& piece) {
    const Window all = piece.Common | piece.Scored;
    const bool isExact = list.NextIndex < list.ExactCount;
    const int firstIndex = list.NextIndex;
    list.NextIndex += isExact ? piece.Distant + std::popcount(all) : IndicesPerPiece;
    if (piece.Best < list.Threshold) return;
    for (int n = 0; n < piece.Distant; ++n) {
        List(list, set.Listed[piece.FirstDistant + static_cast<std::size_t>(n)], firstIndex + n);
    }
    const Candidate* scored = &set.Listed[piece.FirstScored];
    const Window worthy =
        AtLeast(piece.Added, list.Threshold - piece.Base, piece.Common) | piece.Scored;
    for (Window rest = worthy; rest != 0; rest &= rest - 1) {
        const int bit = std::countr_zero(rest);
        const int before = isExact ? std::popcount(all & ((rest & -rest) - 1)) : bit;
        List(list, Holds(piece.Scored, bit) ? *scored++ : CommonAt(piece, bit),
             firstIndex + piece.Distant + before);
    }
}

/// Leaves out pieces that cannot have a candidate to list, unless their indices count.
void ListPieces(Shortlist& list, CandidateSet& set) {
    const Bitboard destinations = DestinationsWorth(set, list.Threshold);
    for (std::size_t n = 0; n < set.PieceTotal; ++n) {
        const bool mayList = IsGenerated(set, n) || MayReach(set, n, destinations);
        if (!mayList && list.NextIndex >= list.ExactCount) continue;
        GeneratePiece(set, n);
        ListPiece(list, set, set.Pieces[n]);
    }
}

// ---- Selection ----

/// The selection sort of SortCandidates for the beam alone. Where it swaps, the candidate at the
/// front gets the index of the selected one.
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
            displaced = IndexOf(rank) == static_cast<int>(n) ? i : displaced;
        }
        beam.Candidates[n] = list.Entries[selected].Which;
        if (displaced != MaxCandidates) SetIndex(list.Entries[displaced].Rank, IndexOf(highest));
        list.Entries[selected] = list.Entries[--list.Count];
    }
    return beam;
}

/// How far below the best value the beam probably reaches: pieces have at least `width`
/// destinations of such values.
int LikelyMargin(const CandidateSet& set, int width) {
    constexpr int most = 12;
    int margin = 1;
    while (margin < most && CountOf(DestinationsWorth(set, set.Best - margin)) < width) ++margin;
    return margin;
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
    assert(width >= 1 && width <= BeamWidth);
    constexpr int widest = 24;
    for (int margin = LikelyMargin(set, width);; margin *= 2) {
        const int threshold = margin <= widest ? set.Best - margin : NoScore;
        Shortlist list(std::max(threshold, NoScore), width);
        ListPieces(list, set);
        const bool isEnough = list.Count >= static_cast<std::size_t>(width);
        if (isEnough || margin > widest) return SelectBeam(list, width);
    }
}

}  // namespace brastel
