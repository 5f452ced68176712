#include "engine/PositionTerms.h"

#include "core/WinTest.h"

namespace brastel {

namespace {

// ---- Sets that are the same in every position ----

constexpr SquareSet Field = SquaresWhere(InField);

constexpr SquareSet GoalColumns = SquaresWhere([](int s) { return IsGoalColumn(Column(s)); });

constexpr SquareSet RedFront = SquaresWhere([](int s) { return IsGoalFront(Red, s); });
constexpr SquareSet BlueFront = SquaresWhere([](int s) { return IsGoalFront(Blue, s); });

constexpr SetsBySquare Beside = SquaresRelated([](int from, int to) {
    return to == from + Right || to == from + Left || to == from + Down || to == from + Up;
});
constexpr SetsBySquare Diagonal = SquaresRelated([](int from, int to) {
    return to == from + Up + Left || to == from + Up + Right || to == from + Down + Left ||
           to == from + Down + Right;
});

/// The terms of a side as sets.
struct SideSets {
    /// By the square of an own carrier: where a forward pass is prepared.
    SetsBySquare PassPrepared;
    SquareSet AdvancedCarrier;
    /// By the square of an advanced carrier: the squares that answer it.
    SetsBySquare Answering;
    SquareSet CrowdCarrier;
    SquareSet Crowd;
};

constexpr SideSets SetsOf(int side) {
    const SideTerms& terms = TermsOf(side);
    const int ahead = 2 * Forward(side);
    return {
        SquaresRelated([=](int from, int to) {
            return to == from + ahead + Left || to == from + ahead + Right;
        }),
        SquaresWhere([&](int s) { return terms.AdvancedCarrier.Holds(s); }),
        SquaresRelated([=](int from, int to) { return (Line(to) - Line(from)) * side <= 0; }),
        SquaresWhere([&](int s) { return terms.CrowdCarrier.Holds(s); }),
        SquaresWhere([&](int s) {
            const int row = Row(s) - Row(terms.CrowdFirst);
            return InField(s) && row >= 0 && row < CrowdRows;
        }),
    };
}

constexpr SideSets RedSets = SetsOf(Red);
constexpr SideSets BlueSets = SetsOf(Blue);

// ---- Sums ----

/// A number 0 to 7 for each square.
struct SmallValues {
    SquareSet Ones;
    SquareSet Twos;
    SquareSet Fours;
};

/// Four sets of squares that count one and a set that counts two.
SmallValues SumOf(const std::array<SquareSet, 4>& ones, SquareSet twos) {
    const auto [a, b, c, d] = ones;
    const SquareSet ab = a ^ b;
    const SquareSet cd = c ^ d;
    const SquareSet x = (a & b) | (ab & cd);
    const SquareSet y = c & d;
    return {ab ^ cd, x ^ y ^ twos, (x & y) | (twos & (x | y))};
}

SquareValues SumOf(const SmallValues& a, const SmallValues& b) {
    const SquareSet carried2 = a.Ones & b.Ones;
    const SquareSet twos = a.Twos ^ b.Twos;
    const SquareSet carried4 = (a.Twos & b.Twos) | (carried2 & twos);
    const SquareSet fours = a.Fours ^ b.Fours;
    const SquareSet carried8 = (a.Fours & b.Fours) | (carried4 & fours);
    return {a.Ones ^ b.Ones, twos ^ carried2, fours ^ carried4, carried8, SquareSet{}};
}

// ---- The terms ----

SquareSet PiecesOf(int side) {
    const PieceSquares& squares = SquaresOf(side);
    const int count = PieceCount(side);
    SquareSet pieces{};
    for (int i = 1; i <= count; ++i) pieces |= OneSquare[squares[i]];
    return pieces;
}

int CrowdingValue(const PositionTerms& terms, const SideSets& sets) {
    if ((terms.Rings & terms.Enemy & sets.CrowdCarrier).IsEmpty()) return 0;
    return SizeOf(terms.Enemy & sets.Crowd) - SizeOf(terms.Own & sets.Crowd) >= 2 ? -12 : 0;
}

/// For each piece how many of its side stand beside it.
SmallValues Contacts(SquareSet own, SquareSet enemy) {
    return SumOf({(own & own << 1) | (enemy & enemy << 1), (own & own >> 1) | (enemy & enemy >> 1),
                  (own & own << 8) | (enemy & enemy << 8), (own & own >> 8) | (enemy & enemy >> 8)},
                 SquareSet{});
}

/// Goal columns, what is near the rings, and prepared passes.
SmallValues Places(const PositionTerms& terms, const SideSets& sets) {
    const auto [ring0, ring1] = Pos.RingSquare;
    const int carrier0 = Holds(terms.Own, ring0) ? ring0 : NoSquare;
    const int carrier1 = Holds(terms.Own, ring1) ? ring1 : NoSquare;
    return SumOf({GoalColumns, Diagonal[ring0] | Diagonal[ring1], sets.PassPrepared[carrier0],
                  sets.PassPrepared[carrier1]},
                 Beside[ring0] | Beside[ring1]);
}

/// Only the first advanced carrier is answered, that of ring 0 before that of ring 1.
SquareSet SquaresThatAnswer(const PositionTerms& terms, const SideSets& sets) {
    const auto [ring0, ring1] = Pos.RingSquare;
    const SquareSet advanced = terms.Enemy & sets.AdvancedCarrier;
    const int second = Holds(advanced, ring1) ? ring1 : NoSquare;
    return sets.Answering[Holds(advanced, ring0) ? ring0 : second];
}

void FindDestinations(PositionTerms& terms, const SideSets& sets) {
    SquareValues& values = terms.Destination[0];
    values = SumOf(Places(terms, sets), Contacts(terms.Own, terms.Enemy));
    AddTo(values, terms.Targets, 1);
    // Five for a square with a ring: its carrier is hit, or a free setup has left it lying.
    const SquareSet takenRings = terms.Rings & (terms.Targets | terms.Free);
    AddTo(values, takenRings, 0);
    AddTo(values, takenRings, 2);
    terms.Destination[1] = values;
    AddTo(terms.Destination[1], SquaresThatAnswer(terms, sets), 2);
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
    terms.JudgedTargets = terms.Enemy & terms.Rings & (RedFront | BlueFront);
    terms.Targets = Field & terms.Enemy & ~terms.JudgedTargets;
    terms.MustAnswer = !(terms.JudgedTargets & (side == Red ? BlueFront : RedFront)).IsEmpty();
    terms.Shared = side * 3 * Pos.OutsideBalance + CrowdingValue(terms, sets);
    if (terms.MustAnswer) {
        terms.Destination = {};
    } else {
        FindDestinations(terms, sets);
    }
}

}  // namespace brastel
