#include "engine/PositionTerms.h"

#include "core/WinTest.h"

namespace brastel {

namespace {

// ---- Sets that are the same in every position ----

constexpr Bitboard Field = SquaresWhere(InField);

constexpr Bitboard GoalColumns = SquaresWhere([](int s) { return IsGoalColumn(Column(s)); });

constexpr Bitboard RedFront = SquaresWhere([](int s) { return IsGoalFront(Red, s); });
constexpr Bitboard BlueFront = SquaresWhere([](int s) { return IsGoalFront(Blue, s); });

constexpr BitboardTable Beside =
    SquaresRelated([](int ring, int to) { return IsNear(BesideOffsets, ring, to); });
constexpr BitboardTable Diagonal =
    SquaresRelated([](int ring, int to) { return IsNear(DiagonalOffsets, ring, to); });

/// The terms of a side as bitboards.
struct SideSets {
    /// By the square of an own carrier: where a forward pass is prepared.
    BitboardTable PassPrepared;
    Bitboard AdvancedCarrier;
    /// By the square of an advanced carrier: the squares that answer it.
    BitboardTable Answering;
    Bitboard CrowdCarrier;
    Bitboard Crowd;
};

constexpr SideSets SetsOf(int side) {
    const SideTerms& terms = TermsOf(side);
    return {
        SquaresRelated([=](int from, int to) { return PreparesPass(side, from, to); }),
        SquaresWhere([&](int s) { return terms.AdvancedCarrier.Holds(s); }),
        SquaresRelated([=](int from, int to) { return AnswersCarrier(side, from, to); }),
        SquaresWhere([&](int s) { return terms.CrowdCarrier.Holds(s); }),
        SquaresWhere([=](int s) { return InCrowd(side, s); }),
    };
}

constexpr SideSets RedSets = SetsOf(Red);
constexpr SideSets BlueSets = SetsOf(Blue);

// ---- Sums ----

// SumOf adds bitboards that count one and a bitboard that counts two.
static_assert(Weight::Contact == 1 && Weight::GoalColumn == 1 && Weight::PassPrepared == 1);
static_assert(Weight::DiagonalToRing == 1 && Weight::BesideRing == 2);
// No destination adds more than a counter holds.
static_assert(4 * Weight::Contact + Weight::GoalColumn + 2 * Weight::PassPrepared +
                  Weight::DiagonalToRing + Weight::BesideRing + Weight::Hit + Weight::RingTaken +
                  Weight::CarrierAnswered <=
              MaxCounter);

/// A number 0 to 7 for each square.
struct SmallValues {
    Bitboard Ones;
    Bitboard Twos;
    Bitboard Fours;
};

/// Four sets of squares that count one and a set that counts two.
SmallValues SumOf(const std::array<Bitboard, 4>& ones, Bitboard twos) {
    const auto [a, b, c, d] = ones;
    const Bitboard ab = a ^ b;
    const Bitboard cd = c ^ d;
    const Bitboard x = (a & b) | (ab & cd);
    const Bitboard y = c & d;
    return {ab ^ cd, x ^ y ^ twos, (x & y) | (twos & (x | y))};
}

SquareCounters SumOf(const SmallValues& a, const SmallValues& b) {
    const Bitboard carried2 = a.Ones & b.Ones;
    const Bitboard twos = a.Twos ^ b.Twos;
    const Bitboard carried4 = (a.Twos & b.Twos) | (carried2 & twos);
    const Bitboard fours = a.Fours ^ b.Fours;
    const Bitboard carried8 = (a.Fours & b.Fours) | (carried4 & fours);
    return {a.Ones ^ b.Ones, twos ^ carried2, fours ^ carried4, carried8, Bitboard{}};
}

// ---- The terms ----

Bitboard PiecesOf(int side) {
    const PieceSquares& squares = SquaresOf(side);
    const int count = PieceCount(side);
    Bitboard pieces{};
    for (int i = 1; i <= count; ++i) pieces |= OneSquare[squares[i]];
    return pieces;
}

int CrowdingValue(const PositionTerms& terms, const SideSets& sets) {
    if ((terms.Rings & terms.Enemy & sets.CrowdCarrier).IsEmpty()) return 0;
    const int surplus = CountOf(terms.Enemy & sets.Crowd) - CountOf(terms.Own & sets.Crowd);
    return surplus >= Weight::CrowdSurplus ? Weight::Crowd : 0;
}

/// For each piece how many of its side stand beside it.
SmallValues Contacts(Bitboard own, Bitboard enemy) {
    return SumOf({(own & own << 1) | (enemy & enemy << 1), (own & own >> 1) | (enemy & enemy >> 1),
                  (own & own << 8) | (enemy & enemy << 8), (own & own >> 8) | (enemy & enemy >> 8)},
                 Bitboard{});
}

/// Goal columns, squares near the rings, and prepared passes.
SmallValues PlaceValues(const PositionTerms& terms, const SideSets& sets) {
    const auto [ring0, ring1] = Pos.RingSquare;
    const int carrier0 = Holds(terms.Own, ring0) ? ring0 : NoSquare;
    const int carrier1 = Holds(terms.Own, ring1) ? ring1 : NoSquare;
    return SumOf({GoalColumns, Diagonal[ring0] | Diagonal[ring1], sets.PassPrepared[carrier0],
                  sets.PassPrepared[carrier1]},
                 Beside[ring0] | Beside[ring1]);
}

/// Only the first advanced carrier is answered, that of ring 0 before that of ring 1.
Bitboard SquaresThatAnswer(const PositionTerms& terms, const SideSets& sets) {
    const auto [ring0, ring1] = Pos.RingSquare;
    const Bitboard advanced = terms.Enemy & sets.AdvancedCarrier;
    const int second = Holds(advanced, ring1) ? ring1 : NoSquare;
    return sets.Answering[Holds(advanced, ring0) ? ring0 : second];
}

void FindDestinations(PositionTerms& terms, const SideSets& sets) {
    SquareCounters& values = terms.Destination[0];
    values = SumOf(PlaceValues(terms, sets), Contacts(terms.Own, terms.Enemy));
    AddTo(values, terms.Targets, Weight::Hit);
    AddTo(values, terms.Rings & (terms.Targets | terms.Free), Weight::RingTaken);
    terms.Destination[1] = values;
    AddTo(terms.Destination[1], SquaresThatAnswer(terms, sets), Weight::CarrierAnswered);
}

}  // namespace

void FindTerms(PositionTerms& terms) {
    const int side = Pos.SideToMove;
    const SideSets& sets = side == Red ? RedSets : BlueSets;
    terms.Side = side;
    terms.Own = PiecesOf(side);
    terms.Enemy = PiecesOf(-side);
    terms.Rings = OneSquare[Pos.RingSquare[0]] | OneSquare[Pos.RingSquare[1]];
    terms.Free = Field & ~(terms.Own | terms.Enemy);
    terms.Receivers = Field & terms.Own & ~terms.Rings;
    terms.Carriers = Field & terms.Own & terms.Rings;
    terms.ScoredTargets = terms.Enemy & terms.Rings & (RedFront | BlueFront);
    terms.Targets = Field & terms.Enemy & ~terms.ScoredTargets;
    terms.MustAnswer = !(terms.ScoredTargets & (side == Red ? BlueFront : RedFront)).IsEmpty();
    terms.Shared = side * Weight::PieceOutside * Pos.OutsideBalance + CrowdingValue(terms, sets);
    if (terms.MustAnswer) return terms.Destination.fill({});
    FindDestinations(terms, sets);
}

}  // namespace brastel
