#include "play/GameState.h"

#include "core/StartPosition.h"
#include "core/WinTest.h"
#include "engine/Candidates.h"
#include "engine/Random.h"
#include "engine/Strengths.h"
#include "play/GameView.h"

namespace brastel {

Int16 GameOver = False;
Int16 Level = EasyDepth;
bool IsThinking = false;

void SetLevel(Int16 level) {
    if (!IsThinking && level >= TwoPlayerLevel && level <= MaxPly) Level = level;
}

void ShowStatus(std::string_view text) {
    View->ShowMessage(text);
    if (text != BlankText && text != ThinkingText) View->Beep();
    View->ShowTurn(Pos.SideToMove);
}

void ResetGame() {
    View->ShowBusy(true);
    ReseedRandom();
    SetUpStartPosition();
    ShowStatus(BlankText);
    GameOver = False;
    View->ShowBusy(false);
}

void CheckWin() {
    const Int16 winner = FindWinner();
    if (winner == Empty) return;
    ShowStatus(winner == Red ? RedWinsText : BlueWinsText);
    GameOver = True;
}

}  // namespace brastel
