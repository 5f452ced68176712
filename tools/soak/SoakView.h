#pragma once

#include "play/GameView.h"

#include <string>

namespace brastel {

/// Keeps what is shown; its clock leaps over the pause before a search.
class SoakView : public GameView {
public:
    std::string Message;
    Int16 Turn = Empty;

    void ShowMessage(std::string_view text) override { Message = text; }
    void ShowTurn(Int16 side) override { Turn = side; }
    double Now() const override { return Clock += 1; }

private:
    mutable double Clock = 0;
};

/// The view of every game.
inline SoakView Shown;

}  // namespace brastel
