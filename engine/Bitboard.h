#pragma once

#include "core/Square.h"

#include <bit>
#include <cstdint>
#include <cstring>

/// Bitboards: sets of board squares, one bit each.
namespace brastel {

/// A set of squares 1 to 112: square s is bit s + SquareBit of 128. A vector of two halves stays in
/// one register, and its shifts are faster than those of a 128-bit integer.
class Bitboard {
    using Halves = std::uint64_t __attribute__((vector_size(16)));

public:
    Bitboard() = default;
    constexpr Bitboard(std::uint64_t low, std::uint64_t high) : Bits{low, high} {}

    std::uint64_t Low() const { return Bits[0]; }
    std::uint64_t High() const { return Bits[1]; }
    /// The half with a bit, 0 to 127. Read from memory: extracting it from a register by a variable
    /// index costs a store-forwarding stall.
    std::uint64_t HalfWith(unsigned bit) const {
        std::uint64_t half = 0;
        const char* halves = reinterpret_cast<const char*>(&Bits);
        std::memcpy(&half, halves + bit / 64 * sizeof half, sizeof half);
        return half;
    }
    bool IsEmpty() const { return (Low() | High()) == 0; }

    friend Bitboard operator&(Bitboard a, Bitboard b) { return Bitboard(a.Bits & b.Bits); }
    friend Bitboard operator|(Bitboard a, Bitboard b) { return Bitboard(a.Bits | b.Bits); }
    friend Bitboard operator^(Bitboard a, Bitboard b) { return Bitboard(a.Bits ^ b.Bits); }
    friend Bitboard operator~(Bitboard a) { return Bitboard(~a.Bits); }
    Bitboard& operator|=(Bitboard b) { return *this = *this | b; }
    Bitboard& operator^=(Bitboard b) { return *this = *this ^ b; }

    /// The set moved by 1 to 63 squares, to higher or to lower numbers.
    friend Bitboard operator<<(Bitboard a, int squares) {
        assert(squares >= 1 && squares <= 63);
        const Halves carried{0, a.Bits[0]};
        return Bitboard((a.Bits << squares) | (carried >> (64 - squares)));
    }
    friend Bitboard operator>>(Bitboard a, int squares) {
        assert(squares >= 1 && squares <= 63);
        const Halves carried{a.Bits[1], 0};
        return Bitboard((a.Bits >> squares) | (carried << (64 - squares)));
    }

private:
    explicit Bitboard(Halves bits) : Bits(bits) {}

    Halves Bits;
};

/// Eight bits below square 1, so that the window of every field square lies inside the 128 bits.
constexpr int SquareBit = 8;

/// The squares for which the predicate holds.
template <typename Predicate>
constexpr Bitboard SquaresWhere(Predicate predicate) {
    std::uint64_t low = 0;
    std::uint64_t high = 0;
    for (int square = FirstSquare; square <= LastSquare; ++square) {
        const int bit = square + SquareBit;
        if (predicate(square)) (bit < 64 ? low : high) |= std::uint64_t{1} << bit % 64;
    }
    return {low, high};
}

/// A set for each square, NoSquare included.
using BitboardTable = Table<Bitboard, NoSquare, LastSquare>;

/// For each square `from` the squares `to` for which the relation holds; none for NoSquare.
template <typename Relation>
constexpr BitboardTable SquaresRelated(Relation isRelated) {
    BitboardTable sets{};
    for (int from = FirstSquare; from <= LastSquare; ++from) {
        sets[from] = SquaresWhere([&](int to) { return isRelated(from, to); });
    }
    return sets;
}

/// The sets of one square, and the empty one of NoSquare.
constexpr BitboardTable OneSquare = SquaresRelated([](int from, int to) { return to == from; });

inline bool Holds(const Bitboard& set, int square) {
    const unsigned bit = static_cast<unsigned>(square + SquareBit);
    return (set.HalfWith(bit) >> bit % 64 & 1) != 0;
}

inline int CountOf(Bitboard set) { return std::popcount(set.Low()) + std::popcount(set.High()); }

/// The lowest and the highest square of a set that is not empty.
inline int FirstIn(Bitboard set) {
    const int bit =
        set.Low() != 0 ? std::countr_zero(set.Low()) : 64 + std::countr_zero(set.High());
    return bit - SquareBit;
}
inline int LastIn(Bitboard set) {
    const int bit =
        set.High() != 0 ? 127 - std::countl_zero(set.High()) : 63 - std::countl_zero(set.Low());
    return bit - SquareBit;
}

// ---- Windows: the surroundings of one field square ----

/// Bit n is the square at offset n - WindowReach from the centre. All squares up to two columns and
/// two rows away are in it.
using Window = std::uint64_t;

constexpr int WindowReach = 2 * Down + 2 * Right;

/// The part of a set around a field square.
inline Window WindowOf(const Bitboard& set, int centre) {
    assert(InField(centre));
    const unsigned first = static_cast<unsigned>(centre + SquareBit - WindowReach);
    const unsigned shift = first % 64;
    const Window fromHigh = set.High() << 1 << (63 - shift);
    return set.HalfWith(first) >> shift | (fromHigh & -Window{first < 64});
}

constexpr bool Holds(Window window, int bit) { return (window >> bit & 1) != 0; }

constexpr Window AtOffset(int offset) { return Window{1} << (offset + WindowReach); }

/// The offset of the lowest square in a window that is not empty.
constexpr int FirstOffset(Window window) { return std::countr_zero(window) - WindowReach; }

}  // namespace brastel
