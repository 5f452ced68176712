#include "engine/Reach.h"

#include "core/PlainMove.h"
#include "core/RingPass.h"

namespace brastel {

namespace {

constexpr std::array<int, 8> NearOffsets{Up + Left, Up,          Up + Right, Left,
                                         Right,     Down + Left, Down,       Down + Right};
constexpr std::array<int, 4> PushDirections{Up, Left, Right, Down};

/// The squares at most two columns and rows away for which the predicate holds.
template <typename Predicate>
constexpr Window WindowWhere(Predicate predicate) {
    Window window = 0;
    for (int rows = -2; rows <= 2; ++rows) {
        for (int columns = -2; columns <= 2; ++columns) {
            const bool isCentre = rows == 0 && columns == 0;
            if (!isCentre && predicate(columns, rows)) window |= AtOffset(rows * Down + columns);
        }
    }
    return window;
}

constexpr int Squared(int number) { return number * number; }

// ---- Steps ----

/// Which of the nearest squares are in a window, as a number 0 to 255 with bit n for entry n of
/// NearOffsets.
constexpr std::size_t NearPattern(Window window) {
    constexpr int above = WindowReach + Up + Left;
    constexpr int left = WindowReach + Left;
    constexpr int right = WindowReach + Right;
    constexpr int below = WindowReach + Down + Left;
    return (window >> above & 7) | (window >> left & 1) << 3 | (window >> right & 1) << 4 |
           (window >> below & 7) << 5;
}

constexpr bool AreGuardsIn(Window window, const PathGuards& guards) {
    for (int i = 0; i < guards.Count; ++i) {
        if ((window & AtOffset(guards.Offset[static_cast<std::size_t>(i)])) == 0) return false;
    }
    return true;
}

/// By the pattern of free squares among the nearest: the squares to which the way is free. A step
/// of two passes over nearest squares only.
constexpr auto OpenWindows = [] {
    std::array<Window, 256> open{};
    for (std::size_t pattern = 0; pattern < open.size(); ++pattern) {
        Window free = 0;
        for (std::size_t n = 0; n < NearOffsets.size(); ++n) {
            if ((pattern >> n & 1) != 0) free |= AtOffset(NearOffsets[n]);
        }
        open[pattern] = WindowWhere(
            [free](int columns, int rows) { return AreGuardsIn(free, GuardsOf(columns, rows)); });
    }
    return open;
}();

Bitboard Moved(Bitboard set, int direction) {
    return direction > 0 ? set << direction : set >> -direction;
}

}  // namespace

constexpr Window NearWindow =
    WindowWhere([](int columns, int rows) { return Squared(columns) <= 1 && Squared(rows) <= 1; });
constexpr Window HitWindow =
    WindowWhere([](int columns, int rows) { return columns == 0 || rows == 0; });
constexpr Window PassWindow = WindowWhere(IsPassDistance);

constexpr BitboardTable ColumnAbove = SquaresRelated(
    [](int from, int to) { return Column(to) == Column(from) && Row(to) < Row(from); });
constexpr BitboardTable ColumnBelow = SquaresRelated(
    [](int from, int to) { return Column(to) == Column(from) && Row(to) > Row(from); });

constexpr BitboardTable Reach = SquaresRelated([](int from, int to) {
    const int columns = Column(to) - Column(from);
    const int rows = Row(to) - Row(from);
    return columns == 0 || (Squared(columns) <= 4 && Squared(rows) <= 4);
});

Window StepsInto(Window free) { return OpenWindows[NearPattern(free)] & free; }

void FindPushable(const PositionTerms& terms, PushableTargets& pushable) {
    const Bitboard targets = terms.Targets | terms.ScoredTargets;
    const Bitboard empty = ~(terms.Own | terms.Enemy);
    for (std::size_t n = 0; n < PushDirections.size(); ++n) {
        pushable[n] = targets & Moved(empty, -PushDirections[n]);
    }
}

Bitboard HitsFrom(const PositionTerms& terms, const PushableTargets& pushable, Bitboard hitters) {
    Bitboard hits{};
    for (std::size_t n = 0; n < PushDirections.size(); ++n) {
        const Bitboard near = Moved(hitters, PushDirections[n]);
        // From two squares away the square between must be empty, and the target without a ring.
        const Bitboard far = Moved(near & terms.Free, PushDirections[n]) & ~terms.Rings;
        hits |= (near | far) & pushable[n];
    }
    return hits;
}

}  // namespace brastel
