#pragma once

#include "core/Position.h"

/// Squares on which the terms of an immediate value depend.
namespace brastel {

/// Inclusive bounds of square numbers.
struct SquareRange {
    int First;
    int Last;

    constexpr bool Holds(int square) const { return square >= First && square <= Last; }
};

/// What differs between the sides to move.
struct SideTerms {
    /// Squares of an enemy carrier so far advanced that it is to be answered, and the origins from
    /// which a move counts as an answer.
    SquareRange AdvancedCarrier;
    SquareRange AnswerOrigins;
    /// Squares of an enemy carrier around which the enemy crowds, and the first square of the four
    /// rows in which its crowd is counted.
    SquareRange CrowdCarrier;
    int CrowdFirst;
};

constexpr SideTerms RedTerms{{66, LastSquare}, {FirstSquare, 87}, {74, 79}, 74};
constexpr SideTerms BlueTerms{{FirstSquare, 47}, {26, LastSquare}, {34, 39}, 10};

constexpr const SideTerms& TermsOf(int side) { return side == Red ? RedTerms : BlueTerms; }

constexpr int CrowdRows = 4;

/// A square number by eights: the row, but one more for column 7.
constexpr int Line(int square) { return square / ColumnCount; }

constexpr bool IsFieldCorner(int square) {
    return square == 10 || square == 15 || square == 98 || square == 103;
}

}  // namespace brastel
