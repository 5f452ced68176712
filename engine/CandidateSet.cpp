#include "engine/CandidateSet.h"

#include "core/WinTest.h"

namespace brastel {

namespace {

/// Destinations on which a carrier's value is no sum of counters.
constexpr Bitboard ScoredArrivals = SquaresWhere(
    [](int s) { return IsFieldCorner(s) || IsGoalFront(Red, s) || IsGoalFront(Blue, s); });

// ---- Entries ----

void AddListed(CandidateSet& set, PieceCandidates& piece, const Candidate& candidate) {
    assert(set.ListedCount < set.Listed.size());
    set.Listed[set.ListedCount++] = candidate;
    piece.Best = std::max<int>(piece.Best, candidate.Value);
}

void AddDistant(CandidateSet& set, PieceCandidates& piece, int destination, int value) {
    ++piece.Distant;
    AddListed(set, piece, CandidateOf({piece.Square, destination}, value));
}

void AddScored(CandidateSet& set, PieceCandidates& piece, Window destinations) {
    piece.FirstScored = set.ListedCount;
    piece.Scored = destinations;
    for (Window rest = destinations; rest != 0; rest &= rest - 1) {
        const Action move{piece.Square, piece.Square + FirstOffset(rest)};
        AddListed(set, piece, CandidateOf(move, ScoreMove(move)));
    }
}

void AddCommon(PieceCandidates& piece, Window destinations) {
    piece.Common = destinations;
    if (destinations == 0) return;
    piece.Best = std::max(piece.Best, piece.Base + HighestCounter(piece.Added, destinations));
}

int ValueOfSlide(const PositionTerms& terms, const PieceCandidates& piece, int destination) {
    if (Holds(terms.Carriers, piece.Square)) return ScoreMove({piece.Square, destination});
    return piece.Base + CounterAt(DestinationsFrom(terms, piece.Square), destination);
}

/// A slide of at least so many steps. The step before them must be possible, too.
void AddSlide(CandidateSet& set, PieceCandidates& piece, Window steps, int direction, int least) {
    if ((steps & AtOffset((least - 1) * direction)) == 0) return;
    const int target = SlideTarget(set.Terms, piece.Square, direction, least);
    if (target == NoSquare) return;
    AddDistant(set, piece, target, ValueOfSlide(set.Terms, piece, target));
}

// ---- Pieces without a ring ----

/// Rule 7: a piece may not push back the piece that has just pushed it.
Bitboard HitsOf(const CandidateSet& set, Int16 index, int square) {
    const Bitboard hits = HitsFrom(set.Terms, set.Pushable, OneSquare[square]);
    if (Pos.LastHit[1] != index) return hits;
    return hits & ~OneSquare[SquareOf({ToInt16(-set.Terms.Side), Pos.LastHit[0]})];
}

void GeneratePlainPiece(CandidateSet& set, PieceCandidates& piece, Int16 index) {
    const PositionTerms& terms = set.Terms;
    const int square = piece.Square;
    const Window steps = StepsInto(WindowOf(terms.Free, square));
    const bool isNearEnemy = (WindowOf(terms.Enemy, square) & HitWindow) != 0;
    const Bitboard hits = isNearEnemy ? HitsOf(set, index, square) : Bitboard{};
    AddCommon(piece, steps | WindowOf(hits & terms.Targets, square));
    AddScored(set, piece, WindowOf(hits & terms.ScoredTargets, square));
    piece.FirstDistant = set.ListedCount;
    AddSlide(set, piece, steps, Up, 3);
    AddSlide(set, piece, steps, Down, 3);
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

/// Returns the squares where the counters are too small for the sum.
Window AddCarrierTerms(const PositionTerms& terms, PieceCandidates& piece) {
    if (terms.MustAnswer) return 0;
    const Bitboard besideFriends =
        terms.Own << 1 | terms.Own >> 1 | terms.Own << 8 | terms.Own >> 8;
    Window overflow =
        AddTo(piece.Added, WindowOf(besideFriends, piece.Square), Weight::RingBesideFriend);
    const WindowCounters& gains = terms.Side == Red ? RedGains : BlueGains;
    // The digits below 4 are empty.
    static_assert(Weight::RowForward % 4 == 0);
    for (std::size_t n = 2; n < DigitCount; ++n) overflow |= AddTo(piece.Added, gains[n], 1 << n);
    piece.Base -= 2 * Weight::RowForward;
    return overflow;
}

void GenerateCarrier(CandidateSet& set, PieceCandidates& piece) {
    const PositionTerms& terms = set.Terms;
    const int square = piece.Square;
    const Window free = WindowOf(terms.Free, square);
    const Window near = (free & NearWindow) | (WindowOf(terms.Receivers, square) & PassWindow);
    const Window scored = IsFieldCorner(square) ? near : near & WindowOf(ScoredArrivals, square);
    [[maybe_unused]] const Window overflow = AddCarrierTerms(terms, piece);
    assert((overflow & near & ~scored) == 0);
    AddCommon(piece, near & ~scored);
    AddScored(set, piece, scored);
    piece.FirstDistant = set.ListedCount;
    if (IsGoalFront(terms.Side, square)) AddDistant(set, piece, GoalSquare(terms.Side), WinValue);
    AddSlide(set, piece, free, Up, 2);
    AddSlide(set, piece, free, Down, 2);
}

// ---- All pieces ----

/// Generates the pieces that can have a candidate worth more than Best and more than `low`, or as
/// much as Best if `withEqual`, until Best is at least `high`. Carriers are generated first,
/// whatever they are worth: DestinationsWorth does not know what they can reach.
void GenerateBetter(CandidateSet& set, int low, int high, bool withEqual) {
    const PositionTerms& terms = set.Terms;
    for (const Int16 ring : Pos.RingSquare) {
        if (!Holds(terms.Carriers, ring)) continue;
        GeneratePiece(set, static_cast<std::size_t>(FindAt(terms.Side, ring) - 1));
    }
    const int more = withEqual ? 0 : 1;
    int best = std::max(low, set.Best);
    Bitboard better = DestinationsWorth(set, best + more);
    for (std::size_t n = 0; n < set.PieceTotal && best < high && !better.IsEmpty(); ++n) {
        if (!MayReach(set, n, better)) continue;
        GeneratePiece(set, n);
        if (set.Best <= best) continue;
        best = set.Best;
        better = DestinationsWorth(set, best + more);
    }
}

}  // namespace

void BeginCandidates(CandidateSet& set) {
    assert(BothRingsPlaced());
    FindTerms(set.Terms);
    FindPushable(set.Terms, set.Pushable);
    const Bitboard hits = HitsFrom(set.Terms, set.Pushable, set.Terms.Receivers);
    set.Destinations = set.Terms.Free | hits;
    set.PieceTotal = static_cast<std::size_t>(PieceCount(set.Terms.Side));
    set.Generated = 0;
    set.ListedCount = 0;
    set.Best = NoScore;
}

void GeneratePiece(CandidateSet& set, std::size_t n) {
    if (IsGenerated(set, n)) return;
    set.Generated |= 1U << n;
    const Int16 index = static_cast<Int16>(n + 1);
    PieceCandidates& piece = set.Pieces[n];
    piece.Square = SquaresOf(set.Terms.Side)[index];
    piece.Common = 0;
    piece.Scored = 0;
    piece.Distant = 0;
    piece.Best = NoScore - 1;
    if (!InField(piece.Square)) return;
    piece.Base = BaseValue(set.Terms, piece.Square);
    piece.Added = WindowOf(DestinationsFrom(set.Terms, piece.Square), piece.Square);
    if (IsRingSquare(piece.Square)) {
        GenerateCarrier(set, piece);
    } else {
        GeneratePlainPiece(set, piece, index);
    }
    set.Best = std::max(set.Best, piece.Best);
}

Bitboard DestinationsWorth(const CandidateSet& set, int value) {
    const PositionTerms& terms = set.Terms;
    const int base = terms.MustAnswer ? LossValue : terms.Shared;
    return AtLeast(terms.Destination[1], value - base, set.Destinations) |
           (set.Destinations & terms.ScoredTargets);
}

bool MayReach(const CandidateSet& set, std::size_t n, Bitboard destinations) {
    const int square = SquaresOf(set.Terms.Side)[static_cast<int>(n) + 1];
    return !(destinations & Reach[square]).IsEmpty();
}

void GenerateBest(CandidateSet& set) { GenerateBetter(set, NoScore, -NoScore, true); }

int HighestValue(int low, int high) {
    CandidateSet set;
    BeginCandidates(set);
    GenerateBetter(set, low, high, false);
    return std::max(low, set.Best);
}

}  // namespace brastel
