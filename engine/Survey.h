#pragma once

#include "engine/Reach.h"

/// The candidates of a position and their values, many at a time and only as far as they are asked
/// for: the same that GenerateMoves lists one by one, for the inside of the search.
namespace brastel {

struct Candidate {
    std::uint8_t Origin;
    std::uint8_t Destination;
    /// The immediate value.
    Int16 Value;

    bool operator==(const Candidate&) const = default;
};

/// A candidate from plain numbers.
inline Candidate CandidateOf(int origin, int destination, int value) {
    return {static_cast<std::uint8_t>(origin), static_cast<std::uint8_t>(destination),
            ToInt16(value)};
}

/// What one piece can do. In generation order its leaps come first, then the rest by destination.
struct PieceSurvey {
    int Square;
    /// Destinations of the common candidates, each worth Common and its number in Values.
    Window Places;
    int Common;
    WindowCounters Values;
    /// Destinations of those that ScoreMove values: near a goal much depends on the details.
    Window Judged;
    /// Slides and goal entries.
    int Leaps;
    /// Where the leaps and the judged candidates begin in Valued of the survey.
    std::size_t FirstLeap;
    std::size_t FirstJudged;
    /// The highest value of the piece's candidates, less than NoScore if there is none.
    int Best;
};

struct Survey {
    PositionTerms Terms;
    PushableTargets Pushable;
    /// Where pieces without a ring can go, and what they can hit.
    Bitboard Places;

    /// The pieces of the side to move by index less one, and which of them are surveyed: bit n
    /// stands for Pieces[n].
    std::array<PieceSurvey, MaxPieces> Pieces;
    std::size_t PieceTotal;
    std::uint32_t Surveyed;

    /// No piece has more than a goal entry, two slides and twenty judged steps and passes.
    std::array<Candidate, std::size_t{MaxPieces} * 23> Valued;
    std::size_t ValuedTotal;

    /// The highest value among the surveyed pieces, NoScore without a candidate.
    int Best;
};

inline bool IsSurveyed(const Survey& survey, std::size_t n) {
    return (survey.Surveyed >> n & 1) != 0;
}

/// Begins the survey of the position for the side to move, both rings being placed.
void BeginSurvey(Survey& survey);

/// Surveys the piece Pieces[n], unless that is done.
void SurveyPiece(Survey& survey, std::size_t n);

/// The destinations on which a candidate of a piece without a ring can be worth `value` or more.
Bitboard PlacesWorth(const Survey& survey, int value);

/// True if Pieces[n] might do something on one of the squares.
bool MayReach(const Survey& survey, std::size_t n, Bitboard places);

/// Surveys all pieces that can have a candidate of the highest value, so that Best is that value.
void SurveyBest(Survey& survey);

/// The highest value if it lies between the bounds; otherwise a bound of it from above that is at
/// most `low`, or from below that is at least `high`. Begins a survey of its own.
int HighestValue(int low, int high);

}  // namespace brastel
