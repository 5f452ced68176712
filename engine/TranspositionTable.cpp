#include "engine/TranspositionTable.h"

namespace brastel {

namespace {

/// 4 MB of entries. A table four times as large saves few positions, and its cache misses cost more
/// than it saves.
constexpr int EntryBits = 16;

std::array<TableEntry, std::size_t{1} << EntryBits> Entries;
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

/// The ply stands in the lowest bits of the last word.
PositionKey KeyOf(int ply) {
    const auto balance = static_cast<std::uint16_t>(Pos.OutsideBalance);
    const int rings = Pos.RingSquare[0] << 8 | Pos.RingSquare[1];
    const int hit = Pos.LastHit[0] << 8 | Pos.LastHit[1];
    return {Packed(Pos.RedSquare, 1, 8), Packed(Pos.BlueSquare, 1, 8),
            Packed(Pos.RedSquare, 9, 4) | Packed(Pos.BlueSquare, 9, 4) << 32,
            Word(rings, hit, balance, ply)};
}

std::size_t SlotOf(const PositionKey& key) {
    constexpr std::array<std::uint64_t, 4> multipliers{0x9E3779B97F4A7C15, 0xC2B2AE3D27D4EB4F,
                                                       0x165667B19E3779F9, 0xD6E8FEB86659FD93};
    std::uint64_t hash = 0;
    for (std::size_t n = 0; n < multipliers.size(); ++n) hash ^= key[n] * multipliers[n];
    hash ^= hash >> 32;
    return hash * multipliers[0] >> (64 - EntryBits);
}

bool IsCurrent(const TableEntry& entry) { return entry.Search == CurrentSearch; }

int PlyOf(const TableEntry& entry) { return static_cast<int>(entry.Key[3] & 0xFFFF); }

/// Buckets have two entries. An old entry is replaced first, then the one deeper in the tree, which
/// saves less.
TableEntry& LessUseful(TableEntry& a, TableEntry& b) {
    if (!IsCurrent(a)) return a;
    return IsCurrent(b) && PlyOf(a) >= PlyOf(b) ? a : b;
}

}  // namespace

void ClearTable() {
    if (++CurrentSearch != 0) return;
    // The number has overflowed, so entries of the first searches would look current.
    Entries.fill({});
    CurrentSearch = 1;
}

TableEntry& ProbeTable(int ply) {
    const PositionKey key = KeyOf(ply);
    const std::size_t slot = SlotOf(key);
    TableEntry& home = Entries[slot];
    TableEntry& neighbour = Entries[slot ^ 1];
    if (IsCurrent(home) && home.Key == key) return home;
    if (IsCurrent(neighbour) && neighbour.Key == key) return neighbour;
    TableEntry& entry = LessUseful(home, neighbour);
    entry = {
        .Key = key, .Search = CurrentSearch, .Depth = 0, .Lower = 0, .Upper = 0, .HashMove = {}};
    return entry;
}

}  // namespace brastel
