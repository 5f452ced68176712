#include "play/GameRecord.h"

#include "core/QuietMove.h"
#include "core/StartPosition.h"

namespace brastel {

RecordColumn PlayedFrom;
RecordColumn PlayedTo;
RecordColumn LoadedFrom;
RecordColumn LoadedTo;
Int16 LoadedCount = 0;
Int16 BranchMark = 0;

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

/// Without ring squares and entries beyond the counts: the pieces' places do not depend on them.
StartSquares CurrentStart() {
    StartSquares start{StartCount(Red), StartCount(Blue), {}, {}};
    for (int i = 1; i <= start.RedCount; ++i) start.RedSquares[i] = RedStart[i];
    for (int i = 1; i <= start.BlueCount; ++i) start.BlueSquares[i] = BlueStart[i];
    return start;
}

}  // namespace

bool IsRecordFull() { return Pos.MoveCount > MaxEntries; }

bool HasLoadedEntry(int k) { return k >= 1 && k <= MaxEntries && k <= LoadedCount; }

bool IsOnLoadedLine(int kept) {
    if (!HasLoadedEntry(kept + 1) || CurrentStart() != LoadedStart) return false;
    for (int k = 1; k <= kept; ++k) {
        if (PlayedEntry(k) != LoadedEntry(k)) return false;
    }
    return true;
}

void WriteEntry(const Action& entry) {
    PlayedFrom[Pos.MoveCount] = ToInt16(entry.Origin);
    PlayedTo[Pos.MoveCount] = ToInt16(entry.Destination);
}

void CountEntry() { ++Pos.MoveCount; }

void ReplayEntry(const Action& entry) {
    ApplyMoveQuiet(ActionFits(entry) ? entry : NullMove);
    CountEntry();
}

void KeepLoadedStart() { LoadedStart = CurrentStart(); }

}  // namespace brastel
