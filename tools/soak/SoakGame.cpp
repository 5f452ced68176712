#include "tools/soak/SoakGame.h"

#include "core/Hit.h"
#include "core/Opening.h"
#include "core/PiecesOutside.h"
#include "core/PlainMove.h"
#include "core/RingPass.h"
#include "core/WinTest.h"
#include "engine/Random.h"
#include "play/GameView.h"
#include "play/Hint.h"
#include "play/HumanAction.h"
#include "tools/soak/GameLine.h"
#include "tools/soak/Inconsistency.h"
#include "tools/soak/RuleComparison.h"
#include "tools/soak/Snapshot.h"
#include "tools/soak/Tally.h"

#include <sstream>

namespace brastel {

namespace {

/// Keeps what is shown; its clock leaps over the pause before a search.
class SoakView : public GameView {
public:
    std::string Message;
    Int16 Turn = Empty;

    void ShowMessage(std::string_view text) override { Message = text; }
    void ShowTurn(Int16 side) override { Turn = side; }
    double Now() const override { return Clock += 1; }

private:
    mutable double Clock = 0;
};

/// The square under a point, NoSquare beside the board.
int SquareUnder(int x, int y) { return IsBoardPoint(x, y) ? SquareFromPoint(x, y) : NoSquare; }

class SoakGame {
public:
    SoakGame(std::uint32_t seed, int layout) : Random(seed), Layout(layout) { SetView(&Window); }
    ~SoakGame() { SetView(nullptr); }
    SoakGame(const SoakGame&) = delete;
    SoakGame& operator=(const SoakGame&) = delete;

    void Play() {
        Begin();
        ChooseStyle();
        while (!BothRingsPlaced()) ActBeforePlay();
        while (Pos.MoveCount <= LastEntry) Act();
        if (IsRecordFull()) TryBeyondRecord();
        if (Line.IsExact() && OneIn(8)) WalkAlong();
    }

private:
    // ---- Draws: one in a statement, since compilers order the parts of one differently ----

    bool OneIn(int n) { return Below(Random, n) == 0; }
    /// Also one that does not exist.
    Piece AnyPiece() {
        const Int16 side = OneIn(2) ? Red : Blue;
        return {side, ToInt16(Below(Random, MaxPieces + 2))};
    }
    /// Also up to one cell beside the board.
    int AnyX() { return BoardLeft - CellSize + Below(Random, BoardWidth + 2 * CellSize); }
    int AnyY() { return BoardTop - CellSize + Below(Random, BoardHeight + 2 * CellSize); }

    // ---- The beginning ----

    /// Nothing is left of an earlier game, so that each can be played alone.
    void Begin() {
        RedStart = BlueStart = {};
        PlayedFrom = PlayedTo = LoadedFrom = LoadedTo = {};
        LoadedCount = 0;
        SelectStartLayout(Layout);
        TakeLoadedGame();
        NewGameCommand();
        SetLevel(TwoPlayerLevel);
        if (Layout == FreeSetupLayout) SetUpByHand();
        Line.Begin(Layout == FreeSetupLayout);
    }

    /// Now and then a new game follows at once, with rings to be placed again.
    void SetUpByHand() {
        Count(Event::FreeSetup);
        const int places = Below(Random, 3);
        for (const Int16 side : {Red, Blue}) {
            const int pieces = 1 + Below(Random, MaxPieces);
            while (PieceCount(side) < pieces) ClickSomewhere(places);
            const Int16 receiver = ToInt16(1 + Below(Random, PieceCount(side)));
            Refuse([] { Hint(); });
            Refuse([=] { DoubleClickPiece({ToInt16(-side), receiver}); });
            DoubleClickPiece({side, receiver});
            Require(IsRingSquare(SquareOf({side, receiver})), "a ring was not placed");
        }
        // A game stepped back to the start forgets these, and no rule reads them any more.
        Pos.RedPlaced = Pos.BluePlaced = 0;
        if (OneIn(4)) NewGameCommand();
    }

    /// By the number of `places`: in the field; anywhere; or with a friend on the square where a
    /// piece placed outside would come back, so that it waits.
    void ClickSomewhere(int places) {
        const int x = AnyX();
        const int y = AnyY();
        const int square = SquareUnder(SnapX(x), SnapY(y));
        if (places == 0 && !InField(square)) return;
        Click(x, y);
        const int inside = ReturnSquareOf(square);
        if (places == 2 && inside != NoSquare) Click(SquareLeft(inside), SquareTop(inside));
    }

    void Click(int x, int y) {
        const int square = SquareUnder(SnapX(x), SnapY(y));
        const Piece added{Pos.SideToMove, ToInt16(PieceCount(Pos.SideToMove) + 1)};
        const bool isFree = square != NoSquare && Pos.Board[square] == Empty;
        if (!isFree || added.Index > MaxPieces) return Refuse([=] { ClickBoard(x, y); });
        ClickBoard(x, y);
        RequireConsistent();
        Require(PieceOn(square) == added, "a click did not add a piece");
    }

    /// Two people; a person against the computer; or the computer against itself. Mostly at the
    /// strengths that are quick, and not to the end of the record.
    void ChooseStyle() {
        const int draw = Below(Random, 4000);
        const int deep = draw < 2 ? 6 : draw < 10 ? 5 : draw < 50 ? 4 : 0;
        const int quick = OneIn(2) ? TwoPlayerLevel : 1 + Below(Random, 3);
        SetLevel(ToInt16(deep > 0 ? deep : quick));
        HintPercent = Level == TwoPlayerLevel ? 2 : OneIn(2) ? 100 : 5;
        LastEntry = deep == 0 && OneIn(40) ? MaxEntries : 16 + Below(Random, 32);
    }

    void ActBeforePlay() {
        if (OneIn(4)) TryAnything();
        if (BothRingsPlaced()) return;
        if (OneIn(8)) return AskForHint();
        DoubleClick({Pos.SideToMove, ToInt16(1 + Below(Random, MaxPieces))});
    }

    // ---- Play ----

    void Act() {
        if (OneIn(3)) TryAnything();
        if (IsRecordFull()) return;
        const bool wantsHint = Below(Random, 100) < HintPercent;
        const Action action = wantsHint ? Action{} : DrawAction(Random);
        if (action.first == NoSquare) return AskForHint();
        Drop(action.first, action.second);
        // After a win a few actions more, unless the record is to be filled.
        if (GameOver != False && LastEntry < MaxEntries && OneIn(4)) LastEntry = 0;
    }

    /// Any gesture at all, most of which are refused.
    void TryAnything() {
        const Piece dragged = AnyPiece();
        const Piece target = AnyPiece();
        const int x = AnyX();
        const int y = AnyY();
        switch (Below(Random, 5)) {
            case 0:
                return DropOn(dragged, target);
            case 1:
                return DropOnLastHitter();
            case 2:
                return DropAt(dragged, x, y);
            case 3:
                return DoubleClick(dragged);
            default:
                return Refuse([=] { ClickBoard(x, y); });
        }
    }

    void DropOnLastHitter() {
        const auto [hitter, hit] = Pos.LastHit;
        DropOn({Pos.SideToMove, hit}, {ToInt16(-Pos.SideToMove), hitter});
    }

    void TryBeyondRecord() {
        Count(Event::FullRecord);
        for (int left = 20; left > 0; --left) TryAnything();
        const Action action = DrawAction(Random);
        if (action.first != NoSquare) Drop(action.first, action.second);
        Refuse([] { Hint(); });
    }

    /// Forward and back along the game just played as if it had been loaded, and off its line. The
    /// way forward must be offered just as long as nobody left the line.
    void WalkAlong() {
        const std::vector<Position> loaded = Line.Positions;
        const std::size_t notLeft = loaded.size();
        std::size_t leftAt = notLeft;
        LoadPlayedGame();
        BeginLoadedGame();
        Line.Positions.resize(1);
        for (int left = 40; left > 0; --left) {
            const std::size_t before = Line.Entries();
            const bool goesForward = ForwardVisible && !OneIn(4);
            if (goesForward) {
                WalkForward(loaded);
            } else if (BackwardVisible && OneIn(2)) {
                WalkBack();
            } else {
                LeaveLine();
            }
            if (!goesForward && Line.Entries() > before) leftAt = std::min(leftAt, before);
            if (Line.Entries() <= leftAt) leftAt = notLeft;
            const bool isOnLine = leftAt == notLeft && Line.Entries() + 1 < loaded.size();
            Require(ForwardVisible == isOnLine, "the way forward is offered wrongly");
        }
    }

    void WalkForward(const std::vector<Position>& loaded) {
        StepForward();
        Require(Pos == loaded[Line.Entries() + 1],
                "a step forward leads elsewhere than the loaded game");
        Line.Positions.push_back(Pos);
        Count(Event::Step);
    }

    void WalkBack() {
        StepBack();
        Line.Positions.pop_back();
        Require(Pos == Line.Positions.back(), "a step back leads elsewhere than the game");
        Count(Event::Step);
    }

    void LeaveLine() {
        if (!BothRingsPlaced() || OneIn(4)) return TryAnything();
        GenerateMoves(1);
        const Action action = DrawAction(Random);
        if (action.first != NoSquare) Drop(action.first, action.second);
    }

    // ---- Gestures ----

    void Drop(int from, int to) {
        if (const Piece target = PieceOn(to)) return DropOn(PieceOn(from), target);
        const int x = SquareLeft(to) + Below(Random, CellSize);
        const int y = SquareTop(to) + Below(Random, CellSize);
        DropAt(PieceOn(from), x, y);
    }

    void DropAt(Piece dragged, int x, int y) {
        DoIf(CheckPlainMove(SquareOf(dragged), SquareUnder(x, y)),
             [=] { DropOnBoard(dragged, x, y); });
    }

    void DropOn(Piece dragged, Piece target) {
        const bool isPass = target.Side == Pos.SideToMove;
        const HitVerdict hit = isPass ? HitVerdict::Refused : CheckHit(dragged, target);
        if (hit == HitVerdict::PushBack && !IsRecordFull()) return PushBack(dragged, target);
        DoIf(isPass ? CheckRingPass(dragged, target) : hit == HitVerdict::Accepted,
             [=] { DropOnPiece(dragged, target); });
    }

    void PushBack(Piece dragged, Piece target) {
        Refuse([=] { DropOnPiece(dragged, target); });
        Require(Window.Message == PushBackText, "a push-back was refused without its message");
        Count(Event::PushBack);
    }

    void DoubleClick(Piece piece) {
        DoIf(AcceptsRing(piece), [=] { DoubleClickPiece(piece); });
    }

    void AskForHint() {
        Count(Event::Hint);
        Do(false, [] { Hint(); });
    }

    // ---- Actions and their checks ----

    template <typename Operation>
    void DoIf(bool accepted, Operation operation) {
        if (accepted && !IsRecordFull()) return Do(true, operation);
        const std::string message = Window.Message;
        Refuse(operation);
        Require(Window.Message == message, "a refused action was announced");
    }

    /// The action must change nothing at all; only the message may be another.
    template <typename Operation>
    void Refuse(Operation operation) {
        const Snapshot before;
        operation();
        Require(Snapshot() == before, "a refused action changed something");
        Count(Event::Refusal);
    }

    /// An action of a person or a hint, which the computer may answer.
    template <typename Operation>
    void Do(bool byPerson, Operation operation) {
        const int first = Pos.MoveCount;
        const bool wasOver = GameOver != False;
        // New games and steps back seed it from the clock.
        SeedRandom(static_cast<std::uint32_t>(Random()));
        operation();
        Require(Pos.MoveCount > first, "an action was not entered");
        CheckTurn();
        Require(Pos.MoveCount == first + 1 || (Level != TwoPlayerLevel && !wasOver),
                "the computer moved out of turn");
        if (first >= 3) CheckEnd(wasOver);
        Line.Follow(first, byPerson);
        Line.CheckSteps();
    }

    void CheckTurn() const {
        const bool isAwaited = Level != TwoPlayerLevel && Pos.SideToMove == ComputerSide;
        Require(!isAwaited || GameOver != False || IsRecordFull(), "the computer did not answer");
        Require(Window.Turn == Pos.SideToMove, "the wrong side is shown to move");
        Require(BackwardVisible, "the way back is not shown");
    }

    void CheckEnd(bool wasOver) const {
        const Int16 winner = FindWinner();
        const std::string_view announced = winner == Red    ? RedWinsText
                                           : winner == Blue ? BlueWinsText
                                                            : BlankText;
        Require(Window.Message == announced, "not the winner is announced");
        Require(winner == Empty || GameOver != False, "a win did not end the game");
        if (GameOver != False && !wasOver) Count(Event::Win);
    }

    Dice Random;
    const int Layout;
    SoakView Window;
    int HintPercent = 0;
    int LastEntry = 0;
    GameLine Line;
};

}  // namespace

void PlaySoakGame(std::uint32_t seed, int layout) { SoakGame(seed, layout).Play(); }

std::string DescribedGame() {
    std::ostringstream text;
    text << "entries:";
    for (int k = 1; k < Pos.MoveCount && k <= MaxEntries; ++k) {
        text << ' ' << PlayedFrom[k] << '-' << PlayedTo[k];
    }
    text << "\nposition: " << Listed() << "\nrings on " << Pos.RingSquare[0] << " and "
         << Pos.RingSquare[1] << ", last hit " << Pos.LastHit[0] << " on " << Pos.LastHit[1]
         << ", balance " << Pos.OutsideBalance << ", " << (Pos.SideToMove == Red ? "Red" : "Blue")
         << " to move at entry " << Pos.MoveCount << ", level " << Level << '\n';
    return text.str();
}

}  // namespace brastel
