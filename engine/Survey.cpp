#include "engine/Survey.h"

#include "core/WinTest.h"

namespace brastel {

namespace {

/// Where the value of a carrier that arrives depends on details.
constexpr Bitboard JudgedArrivals = SquaresWhere(
    [](int s) { return IsFieldCorner(s) || IsGoalFront(Red, s) || IsGoalFront(Blue, s); });

// ---- Entries ----

void AddValued(Survey& survey, PieceSurvey& piece, int destination, int value) {
    survey.Valued[survey.ValuedTotal++] = CandidateOf(piece.Square, destination, value);
    piece.Best = std::max(piece.Best, value);
}

void AddLeap(Survey& survey, PieceSurvey& piece, int destination, int value) {
    if (destination == NoSquare) return;
    ++piece.Leaps;
    AddValued(survey, piece, destination, value);
}

void AddJudged(Survey& survey, PieceSurvey& piece, Window places) {
    piece.FirstJudged = survey.ValuedTotal;
    piece.Judged = places;
    for (Window rest = places; rest != 0; rest &= rest - 1) {
        const int destination = piece.Square + FirstOffset(rest);
        AddValued(survey, piece, destination, ScoreMove({piece.Square, destination}));
    }
}

void AddPlaces(PieceSurvey& piece, Window places) {
    piece.Places = places;
    if (places == 0) return;
    piece.Best = std::max(piece.Best, piece.Common + HighestCounter(piece.Values, places));
}

// ---- Pieces without a ring ----

/// A piece must not push back who has just pushed it.
Bitboard HitsOf(const Survey& survey, Int16 index, int square) {
    const Bitboard hits = HitsFrom(survey.Terms, survey.Pushable, OneSquare[square]);
    if (Pos.LastHit[1] != index) return hits;
    return hits & ~OneSquare[SquareOf({ToInt16(-survey.Terms.Side), Pos.LastHit[0]})];
}

void AddSlide(Survey& survey, PieceSurvey& piece, int destination) {
    const SquareCounters& values = DestinationsFrom(survey.Terms, piece.Square);
    AddLeap(survey, piece, destination, piece.Common + CounterAt(values, destination));
}

void SurveyPlainPiece(Survey& survey, PieceSurvey& piece, Int16 index) {
    const PositionTerms& terms = survey.Terms;
    const int square = piece.Square;
    const Window steps = StepsInto(WindowOf(terms.Free, square));
    const bool isNearEnemy = (WindowOf(terms.Enemy, square) & HitWindow) != 0;
    const Bitboard hits = isNearEnemy ? HitsOf(survey, index, square) : Bitboard{};
    AddPlaces(piece, steps | WindowOf(hits & terms.Targets, square));
    AddJudged(survey, piece, WindowOf(hits & terms.JudgedTargets, square));
    piece.FirstLeap = survey.ValuedTotal;
    // A slide, three steps at least, passes where a step of two ends.
    if ((steps & AtOffset(2 * Up)) != 0) AddSlide(survey, piece, SlideUp(terms, square, 3));
    if ((steps & AtOffset(2 * Down)) != 0) AddSlide(survey, piece, SlideDown(terms, square, 3));
}

// ---- Carriers ----

/// What a carrier gains by the rows that it goes forward. Counters cannot be negative, so the rows
/// are counted from two behind the carrier.
constexpr WindowCounters ForwardGains(int side) {
    WindowCounters gains{};
    for (int rows = -1; rows <= 2; ++rows) {
        const int centre = rows * Forward(side);
        Window row = 0;
        for (int columns = -2; columns <= 2; ++columns) row |= AtOffset(centre + columns);
        AddTo(gains, row, (2 + rows) * Weight::RowForward);
    }
    return gains;
}
constexpr WindowCounters RedGains = ForwardGains(Red);
constexpr WindowCounters BlueGains = ForwardGains(Blue);

void AddCarrierTerms(const PositionTerms& terms, PieceSurvey& piece) {
    if (terms.MustAnswer) return;
    const Bitboard besideFriends =
        terms.Own << 1 | terms.Own >> 1 | terms.Own << 8 | terms.Own >> 8;
    AddTo(piece.Values, WindowOf(besideFriends, piece.Square), Weight::RingBesideFriend);
    piece.Common -= 2 * Weight::RowForward;
    Add(piece.Values, terms.Side == Red ? RedGains : BlueGains);
}

void AddCarrierSlide(Survey& survey, PieceSurvey& piece, int destination) {
    if (destination == NoSquare) return;
    AddLeap(survey, piece, destination, ScoreMove({piece.Square, destination}));
}

void SurveyCarrier(Survey& survey, PieceSurvey& piece) {
    const PositionTerms& terms = survey.Terms;
    const int square = piece.Square;
    const Window free = WindowOf(terms.Free, square);
    const Window places = (free & NearWindow) | (WindowOf(terms.Receivers, square) & PassWindow);
    const Window judged =
        IsFieldCorner(square) ? places : places & WindowOf(JudgedArrivals, square);
    AddCarrierTerms(terms, piece);
    AddPlaces(piece, places & ~judged);
    AddJudged(survey, piece, judged);
    piece.FirstLeap = survey.ValuedTotal;
    if (IsGoalFront(terms.Side, square)) {
        AddLeap(survey, piece, GoalSquare(terms.Side), WinValue);
    }
    if ((free & AtOffset(Up)) != 0) AddCarrierSlide(survey, piece, SlideUp(terms, square, 2));
    if ((free & AtOffset(Down)) != 0) AddCarrierSlide(survey, piece, SlideDown(terms, square, 2));
}

// ---- All pieces ----

/// Surveys the pieces whose best candidate can be worth more than Best and more than `low`, or as
/// much as Best if `withEqual`, until Best is at least `high`. Carriers come first: few, and mostly
/// the best.
void SurveyBetter(Survey& survey, int low, int high, bool withEqual) {
    const PositionTerms& terms = survey.Terms;
    for (const Int16 ring : Pos.RingSquare) {
        if (!Holds(terms.Carriers, ring)) continue;
        SurveyPiece(survey, static_cast<std::size_t>(FindAt(terms.Side, ring) - 1));
    }
    const int more = withEqual ? 0 : 1;
    int best = std::max(low, survey.Best);
    Bitboard better = PlacesWorth(survey, best + more);
    for (std::size_t n = 0; n < survey.PieceTotal && best < high && !better.IsEmpty(); ++n) {
        if (!MayReach(survey, n, better)) continue;
        SurveyPiece(survey, n);
        if (survey.Best <= best) continue;
        best = survey.Best;
        better = PlacesWorth(survey, best + more);
    }
}

}  // namespace

void BeginSurvey(Survey& survey) {
    FindTerms(survey.Terms);
    FindPushable(survey.Terms, survey.Pushable);
    const Bitboard hits = HitsFrom(survey.Terms, survey.Pushable, survey.Terms.Receivers);
    survey.Places = survey.Terms.Free | hits;
    survey.PieceTotal = static_cast<std::size_t>(PieceCount(survey.Terms.Side));
    survey.Surveyed = 0;
    survey.ValuedTotal = 0;
    survey.Best = NoScore;
}

void SurveyPiece(Survey& survey, std::size_t n) {
    if (IsSurveyed(survey, n)) return;
    survey.Surveyed |= 1U << n;
    const Int16 index = static_cast<Int16>(n + 1);
    PieceSurvey& piece = survey.Pieces[n];
    piece.Square = SquaresOf(survey.Terms.Side)[index];
    piece.Places = 0;
    piece.Judged = 0;
    piece.Leaps = 0;
    piece.Best = NoScore - 1;
    if (!InField(piece.Square)) return;
    piece.Common = CommonValue(survey.Terms, piece.Square);
    piece.Values = WindowOf(DestinationsFrom(survey.Terms, piece.Square), piece.Square);
    if (IsRingSquare(piece.Square)) {
        SurveyCarrier(survey, piece);
    } else {
        SurveyPlainPiece(survey, piece, index);
    }
    survey.Best = std::max(survey.Best, piece.Best);
}

Bitboard PlacesWorth(const Survey& survey, int value) {
    const PositionTerms& terms = survey.Terms;
    const int common = terms.MustAnswer ? LossValue : terms.Shared;
    return AtLeast(terms.Destination[1], value - common, survey.Places) |
           (survey.Places & terms.JudgedTargets);
}

bool MayReach(const Survey& survey, std::size_t n, Bitboard places) {
    const int square = SquaresOf(survey.Terms.Side)[static_cast<int>(n) + 1];
    return !(places & Reach[square]).IsEmpty();
}

void SurveyBest(Survey& survey) { SurveyBetter(survey, NoScore, -NoScore, true); }

int HighestValue(int low, int high) {
    Survey survey;
    BeginSurvey(survey);
    SurveyBetter(survey, low, high, false);
    return std::max(low, survey.Best);
}

}  // namespace brastel
