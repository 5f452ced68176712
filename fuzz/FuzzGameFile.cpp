/// Loads any bytes as a game, steps to its end and back to its start, saves it and loads what was
/// saved, which must be the same game.

#include "core/StartPosition.h"
#include "files/GameFile.h"
#include "fuzz/FuzzGame.h"
#include "fuzz/FuzzTarget.h"
#include "play/GameRecord.h"

#include <array>
#include <functional>
#include <string_view>
#include <utility>

namespace brastel {
namespace {

ShownGame Game;
ShownFiles Files;
const MemoryFile Given;
const MemoryFile First;
const MemoryFile Second;

// ---- Most inputs load what another one has loaded, and what follows would be the same ----

template <typename Values>
std::string_view BytesOf(const Values& values) {
    return {reinterpret_cast<const char*>(&values), sizeof values};
}

/// A number over all that a load can change.
std::size_t HashOfLoaded(bool isLoaded) {
    const std::hash<std::string_view> hash;
    std::size_t sum = isLoaded ? 1 : 0;
    for (const std::string_view bytes :
         {BytesOf(Pos.RedCount), BytesOf(Pos.BlueCount), BytesOf(RedStart), BytesOf(BlueStart),
          BytesOf(LoadedCount), BytesOf(LoadedFrom), BytesOf(LoadedTo)}) {
        sum = sum * 31 + hash(bytes);
    }
    return sum;
}

/// Remembers some of the last.
bool IsFirstOfItsKind(std::size_t hash) {
    static std::array<std::size_t, 1 << 16> seen{};
    return std::exchange(seen[hash % seen.size()], hash) != hash;
}

// ---- Through the record ----

void StepToTheEnd() {
    while (ForwardVisible) {
        const int before = Pos.MoveCount;
        StepForward();
        RequireSound(Game);
        const bool hasStepped = Pos.MoveCount == before + 1;
        Require(hasStepped || !ForwardVisible, "forward is offered but does not step");
    }
}

void StepToTheStart(const Position& start) {
    while (Pos.MoveCount > 1) {
        const int before = Pos.MoveCount;
        StepBack();
        RequireSound(Game);
        Require(Pos.MoveCount == before - 1, "back does not step");
    }
    Require(Pos == start, "stepping back does not lead to the start");
    Require(!BackwardVisible, "back is offered at the start");
}

/// Loads what was saved at the end of a game and steps to its end: the same game, to be saved in
/// the same bytes. Out of a refused file comes at best a part of a game: what was saved of it may
/// be refused, or lack the pieces that no board has room for.
void RequireSavedGame(const Position& end, bool mustLoad) {
    const bool isLoaded = LoadFrom(First, Files);
    Require(isLoaded || !mustLoad, "a saved game is refused");
    if (!isLoaded) return;
    StepToTheEnd();
    Require(Pos == end || !mustLoad, "a saved game ends elsewhere");
    SaveGameFile(Second.Path());
    Require(First.Read() == Second.Read(), "saved again, a game differs");
}

}  // namespace
}  // namespace brastel

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace brastel;
    StartProgram(Game, Files);
    Given.Write({reinterpret_cast<const char*>(data), size});
    const bool isLoaded = LoadFrom(Given, Files);
    RequireSound(Game);
    if (!IsFirstOfItsKind(HashOfLoaded(isLoaded))) return 0;
    const Position start = Pos;
    StepToTheEnd();
    const Position end = Pos;
    // An empty file is overwritten without a copy on disk.
    First.Write("");
    Second.Write("");
    SaveGameFile(First.Path());
    StepToTheStart(start);
    RequireSavedGame(end, isLoaded);
    return 0;
}
