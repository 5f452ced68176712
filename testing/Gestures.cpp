#include "testing/Gestures.h"

#include "core/Opening.h"
#include "core/PiecesOutside.h"
#include "play/GameRecord.h"
#include "play/GameState.h"
#include "play/Stepping.h"
#include "testing/RandomSource.h"

namespace brastel {

namespace {

/// So many hints follow. Without hints few games are won.
int HintsAhead = 0;

/// True if no gesture ends the game, so that it reaches the end of the record.
bool IsEndless = false;

int AnySquare() { return FirstSquare + Roll(LastSquare); }

/// Also one that does not exist.
Piece AnyPiece() {
    const Int16 side = OneIn(2) ? Red : Blue;
    return {side, ToInt16(Roll(MaxPieces + 3) - 1)};
}

Gesture ClickOn(int square) {
    const int x = SquareLeft(square) + Roll(CellSize);
    const int y = SquareTop(square) + Roll(CellSize);
    return {Kind::Click, {}, {}, x, y};
}

Gesture DropOnSquare(int from, int to) {
    const Gesture place = ClickOn(to);
    return {Kind::Drop, PieceOn(from), PieceOn(to), place.X, place.Y};
}

/// Also up to one cell beside the board.
Gesture ClickAnywhere() {
    const int x = BoardLeft - CellSize + Roll(BoardWidth + 2 * CellSize);
    const int y = BoardTop - CellSize + Roll(BoardHeight + 2 * CellSize);
    return {Kind::Click, {}, {}, x, y};
}

/// If the first piece stands outside, the others can stand there, too. Some stand behind a friend,
/// so that they wait.
Gesture SetUp() {
    const Int16 side = IsPlacingRing(Red) ? Red : Blue;
    const int pieces = PieceCount(side);
    const Int16 receiver = ToInt16(OneIn(2) ? 1 : 1 + Roll(MaxPieces));
    if (pieces > 0 && OneIn(8)) return {Kind::DoubleClick, {side, receiver}};
    const int inside = ReturnSquareOf(SquaresOf(side)[pieces]);
    if (inside != NoSquare && OneIn(2)) return ClickOn(inside);
    if (!InField(Pos.RedSquare[1])) return ClickOn(AnySquare());
    const int place = Roll(72);
    return ClickOn(SquareAt(1 + place / 6, 1 + place % 6));
}

/// Plays the next entry of the loaded game, sometimes by a gesture instead of Forward.
Gesture FollowLoaded() {
    const auto [from, to] = LoadedEntry(Pos.MoveCount);
    if (!OneIn(4)) return {Kind::Forward};
    if (!BothRingsPlaced()) return {Kind::DoubleClick, PieceOn(from)};
    return DropOnSquare(from, to);
}

/// An action that is mostly accepted, so that games make progress.
Gesture Act() {
    if (ForwardVisible && OneIn(2)) return FollowLoaded();
    if (InFreeSetup()) return SetUp();
    if (!BothRingsPlaced()) return {Kind::DoubleClick, {Pos.SideToMove, ToInt16(1 + Roll(8))}};
    GenerateMoves(1);
    const auto [from, to] = DrawAction(RandomSource);
    return from == NoSquare ? Gesture{Kind::Hint} : DropOnSquare(from, to);
}

Gesture DropAnywhere() {
    Gesture drop = ClickAnywhere();
    drop.What = Kind::Drop;
    drop.Actor = AnyPiece();
    if (OneIn(2)) drop.Target = AnyPiece();
    return drop;
}

Gesture DoubleClick() { return {Kind::DoubleClick, AnyPiece()}; }

Gesture PassRing() {
    const Piece carrier = PieceOn(AnyOf(Pos.RingSquare));
    return {Kind::Drop, carrier, {Pos.SideToMove, ToInt16(1 + Roll(MaxPieces))}};
}

Gesture PushBack() {
    const auto [hitter, hit] = Pos.LastHit;
    return {Kind::Drop, {Pos.SideToMove, hit}, {ToInt16(-Pos.SideToMove), hitter}};
}

Gesture AskHints() {
    if (!IsThinking && OneIn(4)) HintsAhead = Roll(32);
    return {Kind::Hint};
}

/// Deeper levels only take longer.
constexpr std::array Levels{0, 0, 1, 1, 2, 2, 3, -1, MaxPly + 1};

Gesture Numbered(Kind what, int number) { return {what, {}, {}, 0, 0, number}; }

struct Row {
    int Weight;
    Gesture (*Draw)();
};

constexpr std::array Rows{
    Row{152, Act},
    Row{24, DropAnywhere},
    Row{8, PassRing},
    Row{4, PushBack},
    Row{6, DoubleClick},
    Row{6, ClickAnywhere},
    Row{12, AskHints},
    Row{28, [] { return BackwardVisible ? Gesture{Kind::Backward} : Act(); }},
    Row{1, [] { return Gesture{Kind::NewGame}; }},
    Row{5, [] { return Numbered(Kind::LevelChoice, AnyOf(Levels)); }},
    Row{1, [] { return Numbered(Kind::PieceNumber, Roll(LayoutCount + 2) - 1); }},
    Row{4, [] { return Numbered(Kind::Save, Roll(SavedGameCount)); }},
    Row{3, [] { return Numbered(Kind::Load, Roll(SavedGameCount)); }},
    Row{2, [] { return Gesture{Kind::Close}; }},
};

}  // namespace

Gesture DrawGesture() {
    const bool isWon = GameOver != False && !IsEndless;
    if (HintsAhead > 0 && !isWon && !IsThinking) return --HintsAhead, Gesture{Kind::Hint};
    // A few actions follow a win.
    if (isWon && OneIn(8)) return {Kind::NewGame};
    if (IsEndless && OneIn(2)) return Act();
    const Gesture gesture = DrawWeighted(Rows).Draw();
    if (gesture.What < Kind::Save) return gesture;
    if (IsThinking) return {Kind::NewGame};
    return IsEndless ? Act() : gesture;
}

void ForgetGestures() {
    HintsAhead = 0;
    IsEndless = OneIn(16);
}

}  // namespace brastel
