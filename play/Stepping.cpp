#include "play/Stepping.h"

#include "core/QuietMove.h"
#include "engine/Strengths.h"
#include "play/DisplayedMove.h"
#include "play/GameRecord.h"
#include "play/GameState.h"
#include "play/GameView.h"

namespace brastel {

bool ForwardVisible = false;
bool BackwardVisible = false;

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
    // What hid Forward: an action of the user's own (BranchMark) or the end of the loaded game.
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
