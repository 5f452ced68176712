#pragma once

#include "core/StartPosition.h"
#include "play/GameRecord.h"
#include "play/GameState.h"

namespace brastel {

/// All that an action can change, as it was when the snapshot was made.
struct Snapshot {
    Position Where = Pos;
    StartTable RedTable = RedStart;
    StartTable BlueTable = BlueStart;
    RecordColumn From = PlayedFrom;
    RecordColumn To = PlayedTo;
    RecordColumn NextFrom = LoadedFrom;
    RecordColumn NextTo = LoadedTo;
    Int16 NextCount = LoadedCount;
    Int16 Branch = BranchMark;
    bool Forward = ForwardVisible;
    bool Backward = BackwardVisible;
    Int16 Over = GameOver;
    Int16 Strength = Level;

    bool operator==(const Snapshot&) const = default;

    void Restore() const {
        Pos = Where;
        RedStart = RedTable;
        BlueStart = BlueTable;
        PlayedFrom = From;
        PlayedTo = To;
        LoadedFrom = NextFrom;
        LoadedTo = NextTo;
        LoadedCount = NextCount;
        BranchMark = Branch;
        ForwardVisible = Forward;
        BackwardVisible = Backward;
        GameOver = Over;
        Level = Strength;
    }
};

}  // namespace brastel
