#include "play/TurnFlow.h"

#include "core/QuietMove.h"
#include "engine/Candidates.h"
#include "engine/Search.h"
#include "play/DisplayedMove.h"
#include "play/GameRecord.h"
#include "play/GameState.h"
#include "play/GameView.h"
#include "play/Stepping.h"

namespace brastel {

namespace {

/// Long enough for the window to draw "Thinking ..." and the busy cursor.
constexpr float PauseBeforeSearch = 0.05F;

/// What the side plays if this candidate of row 1 was chosen. Index 0 is no candidate.
Action ActionOf(Int16 chosen) {
    const bool isWithoutPlacement = !BothRingsPlaced() && chosen == 0;
    return isWithoutPlacement ? Action{SquareOf({Pos.SideToMove, 1})} : PlayableAction(chosen);
}

bool IsComputersTurn() {
    return Pos.SideToMove == ComputerSide && Level != TwoPlayerLevel && GameOver == False;
}

}  // namespace

void PauseWithEvents(float seconds) {
    const double end = View->Now() + seconds;
    while (View->Now() < end) View->HandleEvents();
}

Int16 ChooseMove(Int16 depth) {
    IsThinking = true;
    ShowStatus(ThinkingText);
    View->ShowBusy(true);
    PauseWithEvents(PauseBeforeSearch);
    const Int16 chosen = View->IsClosing() ? Int16{0} : ChooseCandidate(depth);
    // Input that came during the search is handled now, while IsThinking makes the game ignore it.
    View->HandleEvents();
    View->ShowBusy(false);
    IsThinking = false;
    return chosen;
}

bool PlayChosenMove(Int16 depth) {
    if (IsRecordFull()) return false;
    const Int16 index = ChooseMove(depth);
    if (View->IsClosing()) return false;
    const Action action = ActionOf(index);
    if (!ActionFits(action)) {
        ShowStatus(BlankText);
        return false;
    }
    ApplyMoveShown(action);
    CountEntry();
    ShowBackward(true);
    return true;
}

bool ComputerMove() {
    if (!PlayChosenMove(Level)) return false;
    ShowForward(false);
    return true;
}

void RunComputerTurns(bool checkWin) {
    while (IsComputersTurn() && ComputerMove()) {
        if (checkWin) CheckWin();
    }
}

}  // namespace brastel
