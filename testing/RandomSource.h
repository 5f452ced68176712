#pragma once

#include "testing/RandomPlay.h"

#include <functional>

namespace brastel {

/// Gives all random numbers: dice, or the bytes of a fuzzer. Draw only once in a statement, since
/// compilers evaluate the parts of one in different orders.
inline std::function<unsigned()> RandomSource;

/// 0 to n - 1.
inline int Roll(int n) { return Below(RandomSource, n); }
inline bool OneIn(int n) { return Roll(n) == 0; }

template <typename List>
auto& AnyOf(List& list) {
    return std::data(list)[Roll(static_cast<int>(std::size(list)))];
}

/// One of a list of rows with a Weight each.
template <typename List>
const auto& DrawWeighted(const List& list) {
    int left = 0;
    for (const auto& row : list) left += row.Weight;
    left = Roll(left);
    const auto* row = std::data(list);
    while (left >= row->Weight) left -= (row++)->Weight;
    return *row;
}

}  // namespace brastel
