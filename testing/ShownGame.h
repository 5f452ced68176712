#pragma once

#include "core/Position.h"
#include "play/GameRecord.h"
#include "play/GameState.h"
#include "play/GameView.h"
#include "play/HumanAction.h"
#include "play/Stepping.h"

#include <functional>
#include <string>

/// A game without a window.
namespace brastel {

/// Stores what a window would show.
class ShownGame : public GameView {
public:
    /// The position as last drawn.
    Position Drawn;
    std::string Message;
    Int16 Turn = Empty;
    bool Forward = false;
    bool Backward = false;
    int BusyDepth = 0;
    bool Closing = false;
    /// What the user does while the computer thinks.
    std::function<void()> OnEvents = [] {};
    double Clock = 0;

    void PlacePieces() override { Drawn = Pos; }
    void ShowMessage(std::string_view text) override { Message = text; }
    void ShowTurn(Int16 side) override { Turn = side; }
    void ShowForward(bool visible) override { Forward = visible; }
    void ShowBackward(bool visible) override { Backward = visible; }
    void ShowBusy(bool busy) override { BusyDepth += busy ? 1 : -1; }
    /// Only events advance the clock, so no pause takes time.
    void HandleEvents() override {
        Clock += 0.02;
        OnEvents();
    }
    double Now() const override { return Clock; }
    bool IsClosing() const override { return Closing; }

    /// The first thing that is shown wrongly, or empty. Call it between actions of the user.
    std::string FirstWrong() const {
        if (Drawn.Board != Pos.Board || Drawn.RingSquare != Pos.RingSquare) return "the board";
        if (Turn != Pos.SideToMove) return "the turn circles";
        if (Forward != ForwardVisible) return "the Forward button";
        if (Backward != BackwardVisible) return "the Backward button";
        return BusyDepth != 0 ? "the busy cursor" : "";
    }
};

/// Drags what stands on a square to another square, to its last pixel.
inline void Drag(int from, int to) {
    const Piece dragged = PieceOn(from);
    if (const Piece target = PieceOn(to)) return DropOnPiece(dragged, target);
    DropOnBoard(dragged, SquareLeft(to) + CellSize - 1, SquareTop(to) + CellSize - 1);
}

/// Makes the game just played the loaded one, as if it had been saved and loaded.
inline void LoadPlayedGame() {
    LoadedFrom = PlayedFrom;
    LoadedTo = PlayedTo;
    LoadedCount = ToInt16(Pos.MoveCount - 1);
    KeepLoadedStart();
}

}  // namespace brastel
