#pragma once

#include "engine/Counters.h"
#include "engine/Evaluation.h"
#include "engine/EvaluationTerms.h"

/// What the immediate values of all candidates of a position have in common, found once for the
/// position. ScoreMove finds it again for every candidate.
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
    /// Enemy pieces in the field. The value of a hit on a target is a sum of terms; the scored
    /// targets are carriers in front of a goal, and hits on them need ScoreMove.
    Bitboard Targets;
    Bitboard ScoredTargets;
    /// An enemy carrier stands in front of its goal: every candidate but a hit on it, or a win, is
    /// worth LossValue.
    bool MustAnswer;
    /// Part of every other candidate's value.
    int Shared;
    /// What a candidate's destination adds to its value, whether it is a step, a hit or a pass. The
    /// second is for origins that answer an advanced carrier. On every square it is at least the
    /// first. If MustAnswer, both are 0 everywhere.
    std::array<SquareCounters, 2> Destination;
};

/// Finds the terms of the position for the side to move.
void FindTerms(PositionTerms& terms);

/// The value of a common candidate from an origin, before what its destination adds.
inline int BaseValue(const PositionTerms& terms, int origin) {
    return terms.MustAnswer ? LossValue
                            : terms.Shared - Weight::GoalColumn * int{IsGoalColumn(Column(origin))};
}

/// What the destinations add for candidates from an origin.
inline const SquareCounters& DestinationsFrom(const PositionTerms& terms, int origin) {
    return terms.Destination[TermsOf(terms.Side).AnswerOrigins.Holds(origin) ? 1 : 0];
}

}  // namespace brastel
