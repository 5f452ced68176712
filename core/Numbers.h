#pragma once

#include <array>
#include <cassert>
#include <concepts>
#include <cstddef>
#include <cstdint>
#include <limits>

namespace brastel {

/// All numbers of the game are 16-bit: squares, indices, counts, cells. Sums are formed as int and
/// brought back by ToInt16.
using Int16 = std::int16_t;

constexpr Int16 ToInt16(int value) {
    assert(value >= std::numeric_limits<Int16>::min() &&
           value <= std::numeric_limits<Int16>::max());
    return static_cast<Int16>(value);
}

/// An array whose first index is First and whose last is Last. An index outside them is an error of
/// the caller. Builds with library assertions stop there.
template <typename T, int First, int Last>
class Table {
public:
    constexpr T& operator[](int index) { return Cells[Offset(index)]; }
    constexpr const T& operator[](int index) const { return Cells[Offset(index)]; }
    constexpr void Fill(const T& value) { Cells.fill(value); }

    friend constexpr bool operator==(const Table& a,
                                     const Table& b) requires std::equality_comparable<T> {
        return a.Cells == b.Cells;
    }

private:
    static constexpr std::size_t Offset(int index) {
        return static_cast<std::size_t>(index - First);
    }

    std::array<T, static_cast<std::size_t>(Last - First + 1)> Cells{};
};

}  // namespace brastel
