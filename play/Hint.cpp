#include "play/Hint.h"

#include "core/Opening.h"
#include "engine/Strengths.h"
#include "play/GameState.h"
#include "play/TurnFlow.h"

namespace brastel {

void Hint() {
    if (IsThinking) return;
    // The pieces standing so far belong to an unfinished setup: there is nobody to play for yet.
    if (InFreeSetup()) return ShowStatus(BlankText);
    if (!PlayChosenMove(Level == TwoPlayerLevel ? HintDepth : Level)) return;
    CheckWin();
    RunComputerTurns(true);
}

}  // namespace brastel
