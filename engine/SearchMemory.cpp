#include "engine/SearchMemory.h"

namespace brastel {

namespace {

/// 4 MB of entries. Four times as many save few positions, and take longer to reach than they save.
constexpr int EntryBits = 16;

std::array<MemoryEntry, std::size_t{1} << EntryBits> Entries;
std::uint32_t CurrentSearch = 0;

/// Four numbers of 16 bits.
std::uint64_t Word(int a, int b, int c, int d) {
    return static_cast<std::uint64_t>(a) << 48 | static_cast<std::uint64_t>(b) << 32 |
           static_cast<std::uint64_t>(c) << 16 | static_cast<std::uint64_t>(d);
}

/// The squares of up to eight pieces of a side, a byte each.
std::uint64_t Packed(const PieceSquares& squares, int first, int count) {
    std::uint64_t word = 0;
    for (int i = 0; i < count; ++i) {
        word |= static_cast<std::uint64_t>(squares[first + i]) << 8 * i;
    }
    return word;
}

/// The ply is the last number of all.
PositionKey KeyOf(int ply) {
    const auto balance = static_cast<std::uint16_t>(Pos.OutsideBalance);
    const int rings = Pos.RingSquare[0] << 8 | Pos.RingSquare[1];
    const int hit = Pos.LastHit[0] << 8 | Pos.LastHit[1];
    return {{Packed(Pos.RedSquare, 1, 8), Packed(Pos.BlueSquare, 1, 8),
             Packed(Pos.RedSquare, 9, 4) | Packed(Pos.BlueSquare, 9, 4) << 32,
             Word(rings, hit, balance, ply)}};
}

std::size_t SlotOf(const PositionKey& key) {
    constexpr std::array<std::uint64_t, 4> multipliers{0x9E3779B97F4A7C15, 0xC2B2AE3D27D4EB4F,
                                                       0x165667B19E3779F9, 0xD6E8FEB86659FD93};
    std::uint64_t hash = 0;
    for (std::size_t n = 0; n < multipliers.size(); ++n) hash ^= key.Words[n] * multipliers[n];
    hash ^= hash >> 32;
    return hash * multipliers[0] >> (64 - EntryBits);
}

bool IsCurrent(const MemoryEntry& entry) { return entry.Search == CurrentSearch; }

int PlyOf(const MemoryEntry& entry) { return static_cast<int>(entry.Key.Words[3] & 0xFFFF); }

/// Two neighbours share what falls to either of them. An old entry gives way first, then the one
/// deeper in the tree, which has less below it.
MemoryEntry& LessUseful(MemoryEntry& a, MemoryEntry& b) {
    if (!IsCurrent(a)) return a;
    return IsCurrent(b) && PlyOf(a) >= PlyOf(b) ? a : b;
}

}  // namespace

void ForgetPositions() {
    if (++CurrentSearch != 0) return;
    // After four billion searches the first ones would look current again.
    Entries.fill({});
    CurrentSearch = 1;
}

MemoryEntry& RecallPosition(int ply) {
    const PositionKey key = KeyOf(ply);
    const std::size_t slot = SlotOf(key);
    MemoryEntry& home = Entries[slot];
    MemoryEntry& neighbour = Entries[slot ^ 1];
    if (IsCurrent(home) && home.Key == key) return home;
    if (IsCurrent(neighbour) && neighbour.Key == key) return neighbour;
    MemoryEntry& entry = LessUseful(home, neighbour);
    entry = {.Key = key, .Search = CurrentSearch, .Depth = 0, .Lower = 0, .Upper = 0, .Reply = {}};
    return entry;
}

}  // namespace brastel
