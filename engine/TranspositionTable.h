#pragma once

#include "engine/CandidateSet.h"

/// The transposition table: what is known of the positions that one search has looked at. It serves
/// when other moves lead to the same position, and in the deeper iterations of the search.
namespace brastel {

/// All that a value can depend on inside one search, except the depth. The whole position is kept,
/// not a hash of it, so two positions are never confused. The side to move follows from the ply.
using PositionKey = std::array<std::uint64_t, 4>;

struct alignas(64) TableEntry {
    PositionKey Key;
    /// Number of the search that wrote the entry. Entries of earlier searches are not read.
    std::uint32_t Search;
    /// The depth of search for which the bounds hold; 0 in a new entry.
    int Depth;
    /// Bounds of the position's value, in units.
    int Lower;
    int Upper;
    /// The best reply found at any depth; Origin 0 is none. The beam of the position has it.
    Candidate HashMove;
};

/// Makes all entries old, at the beginning of a search.
void ClearTable();

/// The entry of the position at a ply. If there is none yet, it is a new one, which has replaced
/// another. The entry is valid until the next call.
TableEntry& ProbeTable(int ply);

}  // namespace brastel
