#pragma once

#include "core/Numbers.h"

#include <string_view>

namespace brastel {

/// What the game tells the window in which it is played. The view follows the position (Pos) and is
/// told when to look; it never decides anything. Every function here does nothing by itself, so a
/// game can run without a window, and a view overrides what it shows.
class GameView {
public:
    GameView() = default;
    virtual ~GameView() = default;
    GameView(const GameView&) = delete;
    GameView& operator=(const GameView&) = delete;

    // ---- Board ----
    /// The position changed: every piece and both rings go to their squares.
    virtual void PlacePieces() {}

    // ---- Status line ----
    virtual void ShowMessage(std::string_view /*text*/) {}
    virtual void ShowTurn(Int16 /*side*/) {}
    virtual void Beep() {}
    /// Why an action of the user was refused, for screen readers. Nothing is shown.
    virtual void AnnounceRefusal(std::string_view /*why*/) {}

    // ---- Buttons ----
    virtual void ShowForward(bool /*visible*/) {}
    virtual void ShowBackward(bool /*visible*/) {}

    // ---- While the computer thinks ----
    virtual void ShowBusy(bool /*busy*/) {}
    /// Lets pending window events be handled, once.
    virtual void HandleEvents() {}
    /// Seconds on a clock that is never set back. In a view that nobody looks at it may jump ahead,
    /// so that no pause takes time.
    virtual double Now() const;
    /// True once the window has been closed: the program is about to end, so no move is begun.
    virtual bool IsClosing() const { return false; }

    // ---- The hidden text boxes ----
    /// Text1(k) takes Board[k].
    virtual void ShowBoardTexts() {}
    /// Text2(0) takes the number of candidates.
    virtual void ShowCandidateCount(Int16 /*count*/) {}
};

/// The view that the game speaks to; never null.
extern GameView* View;

/// Makes this the game's view until another one is set; null sets one that shows nothing.
void SetView(GameView* view);

}  // namespace brastel
