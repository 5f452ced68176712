#pragma once

#include "tests/RandomPlay.h"

/// The dice of a program of random games or events.
namespace brastel {

/// Seeded anew for each game or event, so that it does not depend on those before it. One draw in a
/// statement: compilers order the parts of one differently.
inline Dice Chance;

/// 0 to n - 1.
inline int Roll(int n) { return Below(Chance, n); }
inline bool OneIn(int n) { return Roll(n) == 0; }

template <typename List>
auto& AnyOf(List& list) {
    return std::data(list)[Roll(static_cast<int>(std::size(list)))];
}

}  // namespace brastel
