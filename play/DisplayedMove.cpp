#include "play/DisplayedMove.h"

#include "core/Consistency.h"
#include "core/PiecesOutside.h"
#include "core/QuietMove.h"
#include "engine/Candidates.h"
#include "engine/Search.h"
#include "play/GameRecord.h"
#include "play/GameState.h"
#include "play/GameView.h"

namespace brastel {

void ApplyMoveShown(const Action& action) {
    assert(ActionFits(action));
    ApplyAction(action);
    ReturnOutsidePieces();
    View->PlacePieces();
    Pos.SideToMove = ToInt16(-Pos.SideToMove);
    ShowStatus(BlankText);
    WriteEntry(action);
    View->ShowBoardTexts();
    RefreshCandidates();
    assert(PositionIsConsistent());
}

void RefreshCandidates() {
    GenerateMoves(SearchPly);
    View->ShowCandidateCount(CandidateCount[1]);
}

}  // namespace brastel
