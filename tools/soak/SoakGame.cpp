#include "tools/soak/SoakGame.h"

#include "core/Opening.h"
#include "core/PiecesOutside.h"
#include "play/GameRecord.h"
#include "play/GameState.h"
#include "play/Hint.h"
#include "play/HumanAction.h"
#include "tools/Chance.h"
#include "tools/soak/GameLine.h"
#include "tools/soak/Gestures.h"
#include "tools/soak/Inconsistency.h"
#include "tools/soak/Tally.h"

namespace brastel {

namespace {

int HintPercent = 0;
int LastEntry = 0;

/// Also one that does not exist.
Piece AnyPiece() {
    const Int16 side = OneIn(2) ? Red : Blue;
    return {side, ToInt16(Roll(MaxPieces + 2))};
}

/// Also up to one cell beside the board.
int AnyX() { return BoardLeft - CellSize + Roll(BoardWidth + 2 * CellSize); }
int AnyY() { return BoardTop - CellSize + Roll(BoardHeight + 2 * CellSize); }

// ---- The beginning ----

/// By the number of `places`: in the field; anywhere; or with a friend on the square where a piece
/// placed outside would come back, so that it waits.
void ClickSomewhere(int places) {
    const int x = AnyX();
    const int y = AnyY();
    const int square = SquareUnder(SnapX(x), SnapY(y));
    if (places == 0 && !InField(square)) return;
    Click(x, y);
    const int inside = ReturnSquareOf(square);
    if (places == 2 && inside != NoSquare) Click(SquareLeft(inside), SquareTop(inside));
}

/// Now and then a new game follows at once, with rings to be placed again.
void SetUpByHand() {
    Count(FreeSetups);
    const int places = Roll(3);
    for (const Int16 side : {Red, Blue}) {
        const int pieces = 1 + Roll(MaxPieces);
        while (PieceCount(side) < pieces) ClickSomewhere(places);
        const Int16 receiver = ToInt16(1 + Roll(PieceCount(side)));
        Refuse(Hint);
        Refuse([=] { DoubleClickPiece({ToInt16(-side), receiver}); });
        DoubleClickPiece({side, receiver});
        Require(IsRingSquare(SquareOf({side, receiver})), "a ring was not placed");
    }
    // A game stepped back to the start forgets these, and no rule reads them any more.
    Pos.RedPlaced = Pos.BluePlaced = 0;
    if (OneIn(4)) NewGameCommand();
}

/// Nothing is left of an earlier game, so that each can be played alone.
void Begin(int layout) {
    SetView(&Shown);
    RedStart = BlueStart = {};
    PlayedFrom = PlayedTo = LoadedFrom = LoadedTo = {};
    LoadedCount = 0;
    SelectStartLayout(layout);
    TakeLoadedGame();
    NewGameCommand();
    SetLevel(TwoPlayerLevel);
    const bool byHand = layout == FreeSetupLayout;
    if (byHand) SetUpByHand();
    BeginLine(byHand);
}

/// Two people; a person against the computer; or the computer against itself. Mostly at the
/// strengths that are quick, and not to the end of the record.
void ChooseStyle() {
    const int draw = Roll(4000);
    const int deep = draw < 2 ? 6 : draw < 10 ? 5 : draw < 50 ? 4 : 0;
    const int quick = OneIn(2) ? TwoPlayerLevel : 1 + Roll(3);
    SetLevel(ToInt16(deep > 0 ? deep : quick));
    HintPercent = Level == TwoPlayerLevel ? 2 : OneIn(2) ? 100 : 5;
    LastEntry = deep == 0 && OneIn(40) ? MaxEntries : 16 + Roll(32);
}

// ---- Play ----

/// Any gesture at all, most of which are refused.
void TryAnything() {
    const Piece dragged = AnyPiece();
    const Piece target = AnyPiece();
    const int x = AnyX();
    const int y = AnyY();
    const auto [lastHitter, lastHit] = Pos.LastHit;
    switch (Roll(5)) {
        case 0:
            return DropOn(dragged, target);
        case 1:
            return DropOn({Pos.SideToMove, lastHit}, {ToInt16(-Pos.SideToMove), lastHitter});
        case 2:
            return DropAt(dragged, x, y);
        case 3:
            return DoubleClick(dragged);
        default:
            return Click(x, y);
    }
}

void TryDrawnAction() {
    const Action action = DrawAction(Chance);
    if (action.first != NoSquare) DropOnSquare(action.first, action.second);
}

void ActBeforePlay() {
    if (OneIn(4)) TryAnything();
    if (BothRingsPlaced()) return;
    if (OneIn(8)) return AskForHint();
    DoubleClick({Pos.SideToMove, ToInt16(1 + Roll(MaxPieces))});
}

void Act() {
    if (OneIn(3)) TryAnything();
    if (IsRecordFull()) return;
    const bool wantsHint = Roll(100) < HintPercent;
    const Action action = wantsHint ? Action{} : DrawAction(Chance);
    if (action.first == NoSquare) return AskForHint();
    DropOnSquare(action.first, action.second);
    // After a win a few actions more, unless the record is to be filled.
    if (GameOver != False && LastEntry < MaxEntries && OneIn(4)) LastEntry = 0;
}

void TryBeyondRecord() {
    Count(FullRecords);
    for (int left = 20; left > 0; --left) TryAnything();
    TryDrawnAction();
    Refuse(Hint);
}

// ---- A walk along the game just played, as if it had been loaded ----

void WalkForward(const std::vector<Position>& loaded) {
    StepForward();
    Require(Pos == loaded[Line.size()], "a step forward leads elsewhere than the loaded game");
    Line.push_back(Pos);
    Count(Steps);
}

void WalkBack() {
    StepBack();
    Line.pop_back();
    Require(Pos == Line.back(), "a step back leads elsewhere than the game");
    Count(Steps);
}

void ActOnWalk() {
    if (!BothRingsPlaced() || OneIn(4)) return TryAnything();
    GenerateMoves(1);
    TryDrawnAction();
}

/// Forward, back, and on by other actions. The way forward must be offered just as long as no
/// action of a person's own left the loaded game.
void WalkAlong() {
    const std::vector<Position> loaded = Line;
    std::size_t leftAt = loaded.size();
    LoadPlayedGame();
    BeginLoadedGame();
    Line.resize(1);
    for (int left = 40; left > 0; --left) {
        const std::size_t before = Line.size();
        const bool goesForward = ForwardVisible && !OneIn(4);
        if (goesForward) {
            WalkForward(loaded);
        } else if (BackwardVisible && OneIn(2)) {
            WalkBack();
        } else {
            ActOnWalk();
        }
        if (!goesForward && Line.size() > before) leftAt = std::min(leftAt, before);
        if (Line.size() <= leftAt) leftAt = loaded.size();
        const bool goesOn = leftAt == loaded.size() && Line.size() < loaded.size();
        Require(ForwardVisible == goesOn, "the way forward is offered wrongly");
    }
}

}  // namespace

void PlaySoakGame(std::uint32_t seed, int layout) {
    Chance.seed(seed);
    Begin(layout);
    ChooseStyle();
    while (!BothRingsPlaced()) ActBeforePlay();
    while (Pos.MoveCount <= LastEntry) Act();
    if (IsRecordFull()) TryBeyondRecord();
    if (LineIsExact && OneIn(8)) WalkAlong();
}

}  // namespace brastel
