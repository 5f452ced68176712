#pragma once

#include "core/Numbers.h"

/// The scale of the values.
namespace brastel {

// ---- Immediate values, in points ----

/// A move that wins at once.
constexpr Int16 WinValue = 10000;
/// A move that leaves an enemy carrier in front of its goal standing.
constexpr Int16 LossValue = -10000;
/// A move after which a carrier stands in front of its goal, covered by a friend.
constexpr Int16 CoveredValue = 9000;

constexpr bool IsWin(double immediate) { return immediate > WinValue - 1; }

/// The value of a side that has no candidate, and of a candidate that is not scored.
constexpr int NoScore = -100000;

// ---- Values of the search ----

/// The value of a candidate is its immediate value / Discount, less the value of the best answer.
/// The same gain is worth a little less the later it comes.
constexpr double Discount = 1.01;

/// The tree counts in units of 1/101 point, in which every value is a whole number.
constexpr int UnitsPerPoint = 101;
constexpr int Discounted(int immediate) { return immediate * (UnitsPerPoint - 1); }

/// Beyond every value, in points and in units.
constexpr int Infinity = 1 << 28;

}  // namespace brastel
