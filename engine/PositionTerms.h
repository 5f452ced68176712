#pragma once

#include "engine/Counters.h"
#include "engine/Evaluation.h"
#include "engine/EvaluationTerms.h"

/// What the immediate values of all candidates of a position have in common: found once for the
/// position, where ScoreMove finds it again for every candidate.
namespace brastel {

struct PositionTerms {
    /// The side to move, and all pieces of either side.
    int Side;
    Bitboard Own;
    Bitboard Enemy;
    Bitboard Rings;
    /// Empty squares of the field.
    Bitboard Free;
    /// Own pieces in the field, without and with a ring.
    Bitboard Receivers;
    Bitboard Carriers;
    /// Enemy pieces in the field: those on which a hit has a common value, and carriers in front of
    /// a goal, where ScoreMove must try it.
    Bitboard Targets;
    Bitboard JudgedTargets;
    /// An enemy carrier stands at its goal: every candidate but a hit on it, or a win, is worth
    /// LossValue.
    bool MustAnswer;
    /// Part of every other candidate's value.
    int Shared;
    /// What its destination adds to the value of a candidate, a step, hit or pass according to what
    /// stands there: for origins that do not answer an advanced carrier, and for those that do,
    /// where it is at least as much. 0 when MustAnswer.
    std::array<SquareCounters, 2> Destination;
};

/// Finds the terms of the position for the side to move.
void FindTerms(PositionTerms& terms);

/// The value of a common candidate from an origin, before what its destination adds.
inline int CommonValue(const PositionTerms& terms, int origin) {
    return terms.MustAnswer ? LossValue
                            : terms.Shared - Weight::GoalColumn * int{IsGoalColumn(Column(origin))};
}

/// What the destinations add for candidates from an origin.
inline const SquareCounters& DestinationsFrom(const PositionTerms& terms, int origin) {
    return terms.Destination[TermsOf(terms.Side).AnswerOrigins.Holds(origin) ? 1 : 0];
}

}  // namespace brastel
