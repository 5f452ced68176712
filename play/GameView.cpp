#include "play/GameView.h"

#include <chrono>

namespace brastel {

namespace {

GameView NoView;

}  // namespace

double GameView::Now() const {
    const auto time = std::chrono::steady_clock::now().time_since_epoch();
    return std::chrono::duration<double>(time).count();
}

GameView* View = &NoView;

void SetView(GameView* view) { View = view != nullptr ? view : &NoView; }

}  // namespace brastel
