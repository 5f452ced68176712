#include "play/GameRecord.h"

#include "core/QuietMove.h"
#include "core/StartPosition.h"
#include "engine/Strengths.h"
#include "play/DisplayedMove.h"
#include "play/GameState.h"
#include "play/GameView.h"

namespace brastel {

RecordColumn PlayedFrom;
RecordColumn PlayedTo;
RecordColumn LoadedFrom;
RecordColumn LoadedTo;
Int16 LoadedCount = 0;
Int16 BranchMark = 0;
bool ForwardVisible = false;
bool BackwardVisible = false;

namespace {

/// Where the loaded game starts: its pieces in index order.
struct StartSquares {
    int RedCount = 0;
    int BlueCount = 0;
    StartTable RedSquares;
    StartTable BlueSquares;

    bool operator==(const StartSquares&) const = default;
};
StartSquares LoadedStart;

/// Leaves out what the pieces' places do not depend on: ring squares and entries beyond the counts.
StartSquares CurrentStart() {
    StartSquares start{StartCount(Red), StartCount(Blue), {}, {}};
    for (int i = 1; i <= start.RedCount; ++i) start.RedSquares[i] = RedStart[i];
    for (int i = 1; i <= start.BlueCount; ++i) start.BlueSquares[i] = BlueStart[i];
    return start;
}

bool HasLoadedEntry(int k) { return k >= 1 && k <= MaxEntries && k <= LoadedCount; }

/// True if the first `kept` entries played are those of the loaded game, from the same start, and
/// the loaded game goes on.
bool IsOnLoadedLine(int kept) {
    if (!HasLoadedEntry(kept + 1) || CurrentStart() != LoadedStart) return false;
    for (int k = 1; k <= kept; ++k) {
        if (PlayedEntry(k) != LoadedEntry(k)) return false;
    }
    return true;
}

}  // namespace

bool IsRecordFull() { return Pos.MoveCount > MaxEntries; }

void WriteEntry(const Action& entry) {
    PlayedFrom[Pos.MoveCount] = ToInt16(entry.Origin);
    PlayedTo[Pos.MoveCount] = ToInt16(entry.Destination);
}

void CountEntry() { ++Pos.MoveCount; }

void ReplayEntry(const Action& entry) {
    ApplyMoveQuiet(ActionFits(entry) ? entry : NullMove);
    CountEntry();
}

void TakeLoadedGame() {
    LoadedStart = CurrentStart();
    BranchMark = 0;
}

void ShowForward(bool visible) {
    ForwardVisible = visible;
    View->ShowForward(visible);
}

void ShowBackward(bool visible) {
    BackwardVisible = visible;
    View->ShowBackward(visible);
}

void NewGameCommand() {
    if (IsThinking) return;
    ResetGame();
    BranchMark = 0;
    View->PlacePieces();
    ShowBackward(false);
    ShowForward(false);
}

void OpenGame() {
    NewGameCommand();
    SetLevel(EasyDepth);
}

void BeginLoadedGame() {
    NewGameCommand();
    ShowForward(true);
}

void StepBack() {
    if (IsThinking) return;
    const int kept = std::max(Pos.MoveCount - 2, 0);
    ResetGame();
    for (int k = 1; k <= kept; ++k) ReplayEntry(PlayedEntry(k));
    ShowStatus(BlankText);
    View->PlacePieces();
    if (kept == 0) ShowBackward(false);
    // Without a branch only the end of the loaded game hides the button.
    const bool mayShow = BranchMark == 0 ? kept == LoadedCount - 1 : kept < BranchMark;
    if (mayShow && IsOnLoadedLine(kept)) ShowForward(true);
}

void StepForward() {
    if (IsThinking) return;
    const int k = Pos.MoveCount;
    if (!HasLoadedEntry(k) || !ActionFits(LoadedEntry(k))) return ShowForward(false);
    ApplyMoveShown(LoadedEntry(k));
    if (k == BranchMark) BranchMark = 0;
    CountEntry();
    CheckWin();
    ShowBackward(true);
    if (Pos.MoveCount > LoadedCount) ShowForward(false);
}

}  // namespace brastel
