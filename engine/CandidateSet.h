#pragma once

#include "engine/Reach.h"

/// All candidates of a position with their values, generated piece by piece and only when needed.
/// They are the candidates of GenerateMoves, held in windows and counters instead of a list,
/// because the search mostly needs only the best of them.
namespace brastel {

struct Candidate {
    std::uint8_t Origin;
    std::uint8_t Destination;
    /// The immediate value.
    Int16 Value;

    bool operator==(const Candidate&) const = default;
};

constexpr Candidate CandidateOf(const Action& action, int value) {
    return {static_cast<std::uint8_t>(action.Origin), static_cast<std::uint8_t>(action.Destination),
            ToInt16(value)};
}
constexpr Action ActionOf(const Candidate& candidate) {
    return {candidate.Origin, candidate.Destination};
}

/// The candidates of one piece. In the order of GenerateMoves the distant ones come first, then all
/// others by destination.
struct PieceCandidates {
    int Square;
    /// Destinations of common candidates. Each is worth Base and the destination's number in Added.
    Window Common;
    int Base;
    WindowCounters Added;
    /// Destinations of candidates that need ScoreMove: near a goal the value is no sum of terms.
    Window Scored;
    /// How many distant candidates there are: the goal entry and slides.
    int Distant;
    /// Where the distant and the scored candidates begin in Listed of the set.
    std::size_t FirstDistant;
    std::size_t FirstScored;
    /// The highest value of the piece's candidates, less than NoScore if there are none.
    int Best;
};

struct CandidateSet {
    PositionTerms Terms;
    PushableTargets Pushable;
    /// Where pieces without a ring can go, and what they can hit.
    Bitboard Destinations;

    /// Pieces[n] is the piece with index n + 1 of the side to move. Bit n of Generated tells that
    /// its candidates are there.
    std::array<PieceCandidates, MaxPieces> Pieces;
    std::size_t PieceTotal;
    std::uint32_t Generated;

    /// Distant and scored candidates. A piece has at most a goal entry, two slides and twenty steps
    /// and passes.
    std::array<Candidate, std::size_t{MaxPieces} * 23> Listed;
    std::size_t ListedCount;

    /// The highest value among the generated pieces, NoScore if they have no candidate.
    int Best;
};

inline bool IsGenerated(const CandidateSet& set, std::size_t n) {
    return (set.Generated >> n & 1) != 0;
}

/// Prepares the set for the position: no piece is generated yet. Both rings must be placed.
void BeginCandidates(CandidateSet& set);

/// Generates the candidates of Pieces[n], unless they are there.
void GeneratePiece(CandidateSet& set, std::size_t n);

/// The destinations to which a candidate of a piece without a ring can be worth `value` or more.
Bitboard DestinationsWorth(const CandidateSet& set, int value);

/// False if Pieces[n] certainly has no candidate to one of the destinations.
bool MayReach(const CandidateSet& set, std::size_t n, Bitboard destinations);

/// Generates all pieces that can have a candidate of the highest value, so that Best is that value.
void GenerateBest(CandidateSet& set);

/// The highest value of a candidate in the position, if it lies between the bounds. Otherwise an
/// upper bound of it that is at most `low`, or a lower bound that is at least `high`.
int HighestValue(int low, int high);

}  // namespace brastel
