#pragma once

#include "engine/CandidateSet.h"

/// What the search remembers of the positions that it has looked at: one reached by another order
/// of moves, or again by a deeper search, is not searched anew.
namespace brastel {

/// All that a value can depend on inside one search, next to its depth. The whole of it is kept, so
/// two positions are never taken for one. The side to move follows from the ply.
struct PositionKey {
    std::array<std::uint64_t, 4> Words;

    bool operator==(const PositionKey&) const = default;
};

struct alignas(64) MemoryEntry {
    PositionKey Key;
    /// The search that wrote the entry; those of earlier ones are not read.
    std::uint32_t Search;
    /// The depth of search for which the bounds hold, 0 before the first.
    int Depth;
    /// Bounds of the position's value, in its own units.
    int Lower;
    int Upper;
    /// The reply that proved best, whatever the depth: it is in the beam of the position. Origin 0
    /// is none.
    Candidate Reply;
};

/// Forgets all positions, at the beginning of a search.
void ForgetPositions();

/// The entry of the position at a ply: what is known of it, or an empty one that takes the place of
/// another. Searching other positions can hand the same entry to one of them.
MemoryEntry& RecallPosition(int ply);

}  // namespace brastel
