#include "play/Hint.h"

#include "core/Opening.h"
#include "engine/Strengths.h"
#include "play/GameState.h"
#include "play/TurnFlow.h"

namespace brastel {

void Hint() {
    if (IsThinking) return;
    // The setup is not finished, so neither side can play yet.
    if (InFreeSetup()) return;
    if (!PlayChosenMove(Level == TwoPlayerLevel ? HintDepth : Level)) return;
    CheckWin();
    RunComputerTurns(true);
}

}  // namespace brastel
