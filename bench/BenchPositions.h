#pragma once

#include <string>
#include <vector>

/// Positions from games that the computer played against itself, now and then with one of its less
/// good moves: eight of each start layout, from the opening to the end, some with a win at hand.
/// They stay as they are, so that times and signatures of different days can be compared.
namespace brastel {

constexpr int BenchPositionCount = 48;

/// Sets Pos to position n, 1 to BenchPositionCount. Both rings are placed and nobody has won.
void SetUpBenchPosition(int n);

/// What a report calls position n, 1 to BenchPositionCount: "28: 8 pieces, middle".
std::string BenchPositionLabel(int n);

/// The numbers of the positions whose layout has this many pieces a side; none for a count that no
/// start layout has.
std::vector<int> BenchPositionsWith(int pieces);

}  // namespace brastel
