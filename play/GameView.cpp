#include "play/GameView.h"

namespace brastel {

namespace {

GameView NoView;

}  // namespace

GameView* View = &NoView;

void SetView(GameView* view) { View = view != nullptr ? view : &NoView; }

}  // namespace brastel
