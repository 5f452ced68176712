#pragma once

#include "engine/SquareSet.h"

#include <array>

/// Small numbers for all squares at once, written in binary: digit n is the set of squares whose
/// number has 2^n in it. Sums, maxima and comparisons over all squares are then a few set
/// operations.
namespace brastel {

constexpr std::size_t DigitCount = 5;
constexpr int MaxNumber = (1 << DigitCount) - 1;

/// Adds 2^digit to the numbers of the given squares; no sum may exceed MaxNumber.
template <typename Set>
void AddTo(std::array<Set, DigitCount>& digits, Set squares, std::size_t digit) {
    for (std::size_t n = digit; n < DigitCount; ++n) {
        const Set carried = digits[n] & squares;
        digits[n] ^= squares;
        squares = carried;
    }
}

/// The squares of `all` whose number is at least the given one, which may be any.
template <typename Set>
Set AtLeast(const std::array<Set, DigitCount>& digits, int number, Set all) {
    if (number <= 0) return all;
    if (number > MaxNumber) return Set{};
    Set squares = all;
    for (std::size_t n = 0; n < DigitCount; ++n) {
        squares = (number >> n & 1) != 0 ? digits[n] & squares : digits[n] | squares;
    }
    return squares & all;
}

/// Numbers of all squares.
using SquareValues = std::array<SquareSet, DigitCount>;

/// Numbers of the squares around one.
using WindowValues = std::array<Window, DigitCount>;

inline int NumberAt(const SquareValues& values, int square) {
    int number = 0;
    for (std::size_t n = 0; n < DigitCount; ++n) number += int{Holds(values[n], square)} << n;
    return number;
}

/// By the number of the bit in the window.
inline int NumberAt(const WindowValues& values, int bit) {
    int number = 0;
    for (std::size_t n = 0; n < DigitCount; ++n) {
        number += static_cast<int>(values[n] >> bit & 1) << n;
    }
    return number;
}

/// The highest number in a window that is not empty.
inline int HighestIn(const WindowValues& values, Window window) {
    int number = 0;
    for (std::size_t n = DigitCount; n-- > 0;) {
        const Window higher = window & values[n];
        number += int{higher != 0} << n;
        window = higher != 0 ? higher : window;
    }
    return number;
}

inline WindowValues WindowOf(const SquareValues& values, int centre) {
    WindowValues window;
    for (std::size_t n = 0; n < DigitCount; ++n) window[n] = WindowOf(values[n], centre);
    return window;
}

}  // namespace brastel
