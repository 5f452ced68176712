/// Loads any bytes as a game, steps to its end and back, saves it and loads it again. It must be
/// the same game.

#include "fuzz/FuzzTarget.h"
#include "testing/Headless.h"
#include "testing/Require.h"

namespace brastel {
namespace {

void StepToTheEnd() {
    while (ForwardVisible) {
        const int before = Pos.MoveCount;
        StepForward();
        RequireSound();
        const bool hasStepped = Pos.MoveCount == before + 1;
        Require(hasStepped || !ForwardVisible, "forward is offered but does not step");
    }
}

void StepToTheStart(const Position& start) {
    while (Pos.MoveCount > 1) {
        const int before = Pos.MoveCount;
        StepBack();
        RequireSound();
        Require(Pos.MoveCount == before - 1, "back does not step");
    }
    Require(Pos == start, "stepping back does not lead to the start");
    Require(!BackwardVisible, "back is offered at the start");
}

/// Loads what was saved at the end of a game and steps to its end: the same game, to be saved in
/// the same bytes. Out of a refused file comes at best a part of a game: what was saved of it may
/// be refused, or lack the pieces that no board has room for.
void RequireSavedGame(const std::string& saved, const Position& end, bool mustLoad) {
    static const std::string again = NewMemoryFile();
    const bool isLoaded = LoadFrom(saved);
    Require(isLoaded || !mustLoad, "a saved game is refused");
    if (!isLoaded) return;
    StepToTheEnd();
    Require(Pos == end || !mustLoad, "a saved game ends elsewhere");
    SaveIn(again);
    Require(ReadFile(saved) == ReadFile(again), "saved again, a game differs");
}

}  // namespace
}  // namespace brastel

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace brastel;
    static const std::string given = NewMemoryFile();
    static const std::string saved = NewMemoryFile();
    StartProgram();
    WriteFile(given, {reinterpret_cast<const char*>(data), size});
    const bool isLoaded = LoadFrom(given);
    RequireSound();
    const Position start = Pos;
    StepToTheEnd();
    const Position end = Pos;
    SaveIn(saved);
    StepToTheStart(start);
    RequireSavedGame(saved, end, isLoaded);
    return 0;
}
