#pragma once

#include "core/Square.h"

#include <array>

namespace brastel {

/// One outside cell on which a pushed piece can come to rest.
struct ReturnCell {
    Int16 Cell;
    /// The field square across the border, where the piece comes back.
    Int16 Return;
    /// The field squares beside the return square; an opponent on one keeps the piece out. The
    /// third is NoSquare where the return square is a corner of the field.
    std::array<Int16, 3> Guards;
};

constexpr int ReturnCellCount = 36;

/// The cells in the order in which they are served. Two cells share each corner square of the
/// field; the one in row 0 or 13 comes first and takes the square.
inline constexpr std::array<ReturnCell, ReturnCellCount> ReturnCells{{
    // Rows 0 and 13, corners first.
    {2, 10, {11, 18}},
    {7, 15, {14, 23}},
    {3, 11, {10, 12, 19}},
    {4, 12, {11, 13, 20}},
    {5, 13, {12, 14, 21}},
    {6, 14, {13, 15, 22}},
    {106, 98, {99, 90}},
    {111, 103, {102, 95}},
    {107, 99, {98, 100, 91}},
    {108, 100, {99, 101, 92}},
    {109, 101, {100, 102, 93}},
    {110, 102, {101, 103, 94}},
    // Column 0, corners first.
    {9, 10, {11, 18}},
    {97, 98, {99, 90}},
    {17, 18, {10, 26, 19}},
    {25, 26, {18, 34, 27}},
    {33, 34, {26, 42, 35}},
    {41, 42, {34, 50, 43}},
    {49, 50, {42, 58, 51}},
    {57, 58, {50, 66, 59}},
    {65, 66, {58, 74, 67}},
    {73, 74, {66, 82, 75}},
    {81, 82, {74, 90, 83}},
    {89, 90, {82, 98, 91}},
    // Column 7, corners first.
    {16, 15, {14, 23}},
    {104, 103, {102, 95}},
    {24, 23, {15, 31, 22}},
    {32, 31, {23, 39, 30}},
    {40, 39, {31, 47, 38}},
    {48, 47, {39, 55, 46}},
    {56, 55, {47, 63, 54}},
    {64, 63, {55, 71, 62}},
    {72, 71, {63, 79, 70}},
    {80, 79, {71, 87, 78}},
    {88, 87, {79, 95, 86}},
    {96, 95, {87, 103, 94}},
}};

}  // namespace brastel
