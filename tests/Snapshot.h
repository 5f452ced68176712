#pragma once

#include "core/StartPosition.h"
#include "play/GameRecord.h"
#include "play/GameState.h"
#include "play/Stepping.h"

#include <tuple>

namespace brastel {

/// All that an action can change.
inline auto GameData() {
    return std::tie(Pos, RedStart, BlueStart, PlayedFrom, PlayedTo, LoadedFrom, LoadedTo,
                    LoadedCount, BranchMark, ForwardVisible, BackwardVisible, GameOver, Level);
}

/// It, as it was when the snapshot was made.
class Snapshot {
public:
    void Restore() const { GameData() = Data; }
    bool IsStillTrue() const { return GameData() == Data; }

private:
    template <typename... Part>
    static std::tuple<Part...> Copied(const std::tuple<Part&...>& parts) {
        return parts;
    }
    decltype(Copied(GameData())) Data = GameData();
};

}  // namespace brastel
