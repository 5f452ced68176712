#pragma once

#include "engine/Bitboard.h"

#include <array>

/// Bit-sliced counters: a small number for each square, digit by digit. Digit n is the bitboard of
/// the squares whose number has bit n set, so a few bit operations add to or compare all squares.
namespace brastel {

constexpr std::size_t DigitCount = 5;
constexpr int MaxCounter = (1 << DigitCount) - 1;

/// The counters of all squares, and those of the squares around one.
using SquareCounters = std::array<Bitboard, DigitCount>;
using WindowCounters = std::array<Window, DigitCount>;

/// Adds a number, 0 to MaxCounter, to the counters of the given squares. Returns the squares whose
/// sum is above MaxCounter: their counters are wrong and must not be read.
template <typename Set>
constexpr Set AddTo(std::array<Set, DigitCount>& digits, Set squares, int number) {
    Set overflow{};
    for (std::size_t digit = 0; digit < DigitCount; ++digit) {
        if ((number >> digit & 1) == 0) continue;
        Set carry = squares;
        for (std::size_t n = digit; n < DigitCount; ++n) {
            const Set carried = digits[n] & carry;
            digits[n] ^= carry;
            carry = carried;
        }
        overflow |= carry;
    }
    return overflow;
}

/// The squares of `all` whose number is at least the given one, which may be any.
template <typename Set>
Set AtLeast(const std::array<Set, DigitCount>& digits, int number, Set all) {
    if (number <= 0) return all;
    if (number > MaxCounter) return Set{};
    Set squares = all;
    for (std::size_t n = 0; n < DigitCount; ++n) {
        squares = (number >> n & 1) != 0 ? digits[n] & squares : digits[n] | squares;
    }
    return squares & all;
}

/// The number of a square, or of a bit in a window.
template <typename Set>
int CounterAt(const std::array<Set, DigitCount>& counters, int where) {
    int number = 0;
    for (std::size_t n = 0; n < DigitCount; ++n) number += int{Holds(counters[n], where)} << n;
    return number;
}

/// The highest number in a window that is not empty.
inline int HighestCounter(const WindowCounters& counters, Window window) {
    int number = 0;
    for (std::size_t n = DigitCount; n-- > 0;) {
        const Window higher = window & counters[n];
        number += int{higher != 0} << n;
        window = higher != 0 ? higher : window;
    }
    return number;
}

inline WindowCounters WindowOf(const SquareCounters& counters, int centre) {
    WindowCounters window;
    for (std::size_t n = 0; n < DigitCount; ++n) window[n] = WindowOf(counters[n], centre);
    return window;
}

}  // namespace brastel
