#include "testing/GestureChecks.h"

#include "core/Hit.h"
#include "core/Opening.h"
#include "core/WinTest.h"
#include "engine/Strengths.h"
#include "play/Stepping.h"
#include "testing/GameLine.h"
#include "testing/RandomPlay.h"
#include "testing/Require.h"

#include <memory>
#include <utility>

namespace brastel {

namespace {

struct SavedGame {
    std::vector<Position> Line;
    int Entries = 0;
};
std::map<int, SavedGame> Saved;

/// The positions of the game loaded last; empty when it is not known where Forward must be shown.
/// LeftAt is the entry at which an action of a person left that game, or its size if none did.
std::vector<Position> Loaded;
std::size_t LeftAt = 0;

Int16 WinnerIn(const Position& position) {
    const Aside aside;
    Pos = position;
    return FindWinner();
}

/// Forward must be shown exactly as long as no action of a person has left the loaded game.
void CheckForward() {
    if (Loaded.size() < 2) return;
    if (Line.size() <= LeftAt) LeftAt = Loaded.size();
    const bool goesOn = LeftAt == Loaded.size() && Line.size() < Loaded.size();
    Require(ForwardVisible == goesOn, "the way forward is offered wrongly");
}

void CheckGame() {
    // A step back to the start clears these, and no rule reads them any more.
    if (BothRingsPlaced()) Pos.RedPlaced = Pos.BluePlaced = 0;
    RequireConsistent();
    Require(BackwardVisible == (Pos.MoveCount > 1), "the way back is offered wrongly");
    if (InFreeSetup()) return Line.clear(), Loaded.clear();
    if (Line.empty()) BeginLine();
    Require(Pos == Line.back(), "the game stands elsewhere than its entries lead");
    Require(static_cast<int>(Line.size()) == Pos.MoveCount, "entries are missing");
    CheckForward();
    Count("full records", IsRecordFull());
}

/// The state before a gesture, and the checks after it.
struct GestureCheck {
    const Gesture Done;
    const Kind What = Done.What;
    const Snapshot Before = CopyOfGameData();
    const std::string Message = StatusLine();
    const int LevelBefore = Level;
    const int First = Pos.MoveCount;
    const bool WasOver = GameOver != False;
    const bool WasThinking = IsThinking;
    const int From = SquareOf(Done.Actor);
    /// The square to whose corner the point of a click snaps; NoSquare beside the board.
    const int Clicked = SquareUnder(SnapX(Done.X), SnapY(Done.Y));
    const int To = Done.Target ? SquareOf(Done.Target) : SquareUnder(Done.X, Done.Y);
    const Piece Added{Pos.SideToMove, ToInt16(PieceCount(Pos.SideToMove) + 1)};
    const bool IsAllowed = !IsThinking && Allows();
    const bool IsPushBack = !IsThinking && !IsRecordFull() && What == Kind::Drop && From != To &&
                            CheckHit(Done.Actor, PieceOn(To)) == HitVerdict::PushBack;

    static int SquareUnder(int x, int y) {
        return IsBoardPoint(x, y) ? SquareFromPoint(x, y) : NoSquare;
    }

    bool Allows() const {
        const auto [side, index] = Done.Actor;
        const bool isFull = First > MaxEntries;
        if (What == Kind::Drop) {
            return First >= 3 && !isFull && side == Pos.SideToMove && From != NoSquare &&
                   From != To && IsAccepted({From, To});
        }
        if (What == Kind::DoubleClick) {
            return First == (side == Red ? 1 : 2) && From != NoSquare &&
                   (InFreeSetup() || index <= LastRingPiece);
        }
        if (What == Kind::Click) {
            return InFreeSetup() && Clicked != NoSquare && Pos.Board[Clicked] == Empty &&
                   Added.Index <= MaxPieces;
        }
        if (What == Kind::Hint) return !InFreeSetup() && !isFull;
        if (What == Kind::Forward) {
            return First <= LoadedCount && !isFull && ActionFits(LoadedEntry(First));
        }
        return What != Kind::LevelChoice || (Done.Number >= 0 && Done.Number <= MaxPly);
    }

    void Run() const {
        Require(IsThinking == WasThinking, "the game still thinks");
        if (!IsAllowed) {
            CheckRefusal();
        } else if (What <= Kind::Forward) {
            CheckEntries();
        } else if (What <= Kind::Close) {
            CheckSmallChange();
        } else {
            CheckOtherGame();
        }
        if (!IsThinking && !View->IsClosing()) CheckGame();
    }

    /// Only the message may change, and Forward may disappear where it cannot step.
    void CheckRefusal() const {
        const bool endsWay = What == Kind::Forward && !IsThinking;
        if (endsWay) {
            Loaded.clear();
            Require(!std::exchange(ForwardVisible, true), "forward is offered but does not step");
        }
        Require(GameData() == Before, "a refused action changed something");
        if (endsWay) ForwardVisible = false;
        Require(StatusLine() == (IsPushBack ? PushBackText : Message),
                "a refused action was announced wrongly");
        Count(IsPushBack ? "refused push-backs" : "refused actions");
    }

    /// The computer answers the entry if it is its turn and the game goes on.
    bool IsAnswered(bool announcesWin) const {
        if (Line.empty() || What == Kind::Forward || View->IsClosing()) return false;
        const Position& after = Line[static_cast<std::size_t>(First)];
        const bool isOver = WasOver || (announcesWin && WinnerIn(after) != Empty);
        return Level != TwoPlayerLevel && after.SideToMove == ComputerSide && !isOver &&
               after.MoveCount <= MaxEntries;
    }

    void CheckEntries() const {
        const bool isByPerson = What == Kind::Drop || What == Kind::DoubleClick;
        const bool isBegun = What != Kind::Hint || !View->IsClosing();
        const bool announcesWin = What != Kind::DoubleClick;
        const Origin unlessPerson = What == Kind::Forward ? Origin::Record : Origin::Computer;
        Require((Pos.MoveCount > First) == isBegun, "an action was not entered, or a closed one");
        if (!Line.empty()) FollowLine(First, isByPerson ? Origin::Person : unlessPerson);
        Require(Pos.MoveCount == First + isBegun + (isBegun && IsAnswered(announcesWin)),
                "the computer did not answer, or moved out of turn");
        if (View->IsClosing()) return;
        const Int16 winner = announcesWin ? FindWinner() : Empty;
        const std::array announced{RedWinsText, BlankText, BlueWinsText};
        Require(StatusLine() == announced[static_cast<std::size_t>(winner + 1)],
                "not the winner is announced");
        Require((GameOver != False) == (WasOver || winner != Empty), "a game is over, or goes on");
        Count("wins", GameOver != False && !WasOver);
        Count("games set up by hand", Line.empty() && BothRingsPlaced());
        if (What == Kind::Hint) Loaded.clear();
        if (isByPerson) LeftAt = std::min(LeftAt, static_cast<std::size_t>(First));
        if (What != Kind::Forward) return;
        Require(Loaded.empty() || Pos == Loaded[static_cast<std::size_t>(First)],
                "a step forward leads elsewhere than the loaded game");
        Count("steps forward");
    }

    void CheckOtherGame() const {
        const bool isOpened = What == Kind::PieceNumber || What == Kind::Load;
        const int entries = What == Kind::Backward ? std::max(First - 2, 0) : 0;
        Require(Pos.MoveCount == 1 + entries, "another game begins elsewhere");
        Require(Level == (isOpened ? EasyDepth : LevelBefore), "another game has another level");
        Require(GameOver == False && StatusLine() == BlankText, "another game is won");
        Require(ForwardVisible == (What == Kind::Load) || What == Kind::Backward,
                "a new game goes forward");
        if (What == Kind::Backward) return CheckStepBack();
        BeginWatching(false);
        if (What == Kind::Load) CheckLoad();
    }

    static void CheckStepBack() {
        Count("steps back");
        if (Line.size() < 2) return;
        Line.pop_back();
        if (!LineIsExact) Line.back() = Pos;
        Require(Pos == Line.back(), "a step back leads elsewhere than the game");
    }

    void CheckLoad() const {
        const SavedGame& saved = Saved.at(Done.Number);
        Require(LoadedCount == saved.Entries, "a saved game has another length");
        Loaded = saved.Line;
        LeftAt = Loaded.size();
        Require(Loaded.empty() || Pos == Loaded.front(), "a saved game begins elsewhere");
        Count("saved games loaded");
    }

    /// The gesture changes at most one thing.
    void CheckSmallChange() const {
        Require(StatusLine() == Message && Pos.MoveCount == First, "more was done");
        if (What == Kind::Click) {
            return Require(PieceOn(Clicked) == Added, "a click did not add a piece");
        }
        const Int16 level = std::exchange(Level, ToInt16(LevelBefore));
        Require(GameData() == Before, "more was changed");
        Level = level;
        Require(level == (What == Kind::LevelChoice ? Done.Number : LevelBefore), "a wrong level");
        if (What != Kind::Save) return;
        Saved[Done.Number] = {LineIsExact ? Line : decltype(Line){}, First - 1};
    }
};

}  // namespace

void BeginWatching(bool forgets) {
    if (forgets) Saved.clear();
    Line.clear();
    Loaded.clear();
    CheckGame();
}

std::function<void()> Watch(const Gesture& gesture) {
    return [check = std::make_shared<const GestureCheck>(GestureCheck{gesture})] { check->Run(); };
}

bool IsPossible(const Gesture& gesture) {
    return gesture.What != Kind::Load || Saved.contains(gesture.Number);
}

}  // namespace brastel
