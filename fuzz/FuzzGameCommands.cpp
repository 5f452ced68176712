/// Plays a stream of commands, as from the mouse, the buttons and the menus, against a game without
/// a window. An input shorter than the least number of commands is played again from its start.

#include "core/StartPosition.h"
#include "engine/Candidates.h"
#include "engine/Random.h"
#include "files/GameFile.h"
#include "fuzz/FuzzGame.h"
#include "fuzz/FuzzTarget.h"
#include "play/GameRecord.h"
#include "play/GameState.h"
#include "play/Hint.h"
#include "play/HumanAction.h"
#include "tests/Snapshot.h"

#include <algorithm>
#include <array>

namespace brastel {
namespace {

constexpr std::size_t CommandSize = 4;
constexpr std::size_t LeastCommands = 50;
constexpr std::size_t MostCommands = 150;

/// What follows the number of a command; each reads what it needs.
struct Arguments {
    int A;
    int B;
    int C;
};

ShownGame Game;
ShownFiles Files;
/// The window is closed as soon as the next command lets the computer think.
bool ClosesNext = false;

/// A file, and what was last saved in it.
struct SavedGame {
    MemoryFile File;
    RecordColumn From;
    RecordColumn To;
    Int16 Count = -1;
};
std::array<SavedGame, 2> Saved;

// ---- What the numbers mean ----

/// Also sides and indexes that no piece has.
Piece PieceOf(int number) {
    constexpr std::array<Int16, 4> Sides{Red, Blue, Red, Empty};
    return {Sides[static_cast<std::size_t>(number % 4)], ToInt16(number / 4 % 16 - 1)};
}

/// A view coordinate, now and then outside the board and the window.
int PointOf(int number) { return number * 3 - 60; }

int SquareOf(int number) { return FirstSquare + number % LastSquare; }

// ---- Commands ----

/// Mostly accepted, so that games get somewhere.
void DragCandidate(Arguments a) {
    if (CandidateCount[1] == 0) return;
    const MoveCode code = MoveList[1][1 + (a.A + 256 * a.B) % CandidateCount[1]];
    if (IsOnBoard(OriginOf(code)) && IsOnBoard(DestinationOf(code))) {
        Drag(OriginOf(code), DestinationOf(code));
    }
}

void DragAnything(Arguments a) { Drag(SquareOf(a.A), SquareOf(a.B)); }
void DropAnywhere(Arguments a) { DropOnBoard(PieceOf(a.A), PointOf(a.B), PointOf(a.C)); }
void DropOnAnyPiece(Arguments a) { DropOnPiece(PieceOf(a.A), PieceOf(a.B)); }
void DoubleClick(Arguments a) { DoubleClickPiece(PieceOf(a.A)); }
void Click(Arguments a) { ClickBoard(PointOf(a.A), PointOf(a.B)); }
void AskHint(Arguments /*a*/) { Hint(); }
void Forward(Arguments /*a*/) { StepForward(); }
void Backward(Arguments /*a*/) { StepBack(); }
void NewGame(Arguments /*a*/) { NewGameCommand(); }

/// Deeper levels play by the same steps, only longer.
void ChooseLevel(Arguments a) {
    constexpr std::array<Int16, 6> Levels{TwoPlayerLevel, 1, 2, 3, -1, MaxPly + 1};
    SetLevel(Levels[static_cast<std::size_t>(a.A) % Levels.size()]);
}

void ChoosePieceNumber(Arguments a) {
    SelectStartLayout(a.A % (LayoutCount + 2) - 1);
    Files.OpenMainWindow();
}

SavedGame& SavedOf(int number) { return Saved[static_cast<std::size_t>(number % 2)]; }

void Save(Arguments a) {
    SavedGame& saved = SavedOf(a.A);
    // An empty file is overwritten without a copy on disk.
    saved.File.Write("");
    SaveGameFile(saved.File.Path());
    saved.From = PlayedFrom;
    saved.To = PlayedTo;
    saved.Count = ToInt16(Pos.MoveCount - 1);
}

void Load(Arguments a) {
    const SavedGame& saved = SavedOf(a.A);
    if (!LoadFrom(saved.File, Files)) return;
    Require(LoadedCount == saved.Count, "a saved game has another length");
    for (int k = 1; k <= LoadedCount; ++k) {
        Require(LoadedFrom[k] == saved.From[k] && LoadedTo[k] == saved.To[k],
                "a saved game has another entry");
    }
}

void CloseWhileThinking(Arguments /*a*/) { ClosesNext = true; }

using Command = void (*)(Arguments);

/// What a user can do at any moment, also while the computer thinks.
constexpr std::array<Command, 17> GameCommands{
    DragCandidate, DragCandidate, DragCandidate,  DragCandidate, DragCandidate, DragCandidate,
    DragAnything,  DropAnywhere,  DropOnAnyPiece, DoubleClick,   DoubleClick,   Click,
    AskHint,       Forward,       Backward,       NewGame,       ChooseLevel};

/// What the window does not let through meanwhile.
constexpr std::array<Command, 4> WindowCommands{ChoosePieceNumber, Save, Load, CloseWhileThinking};

Command CommandOf(int number) {
    const auto n = static_cast<std::size_t>(number) % (GameCommands.size() + WindowCommands.size());
    return n < GameCommands.size() ? GameCommands[n] : WindowCommands[n - GameCommands.size()];
}

/// A user who cannot wait gives every command of the game, none of which may do anything now, and
/// may close the window.
void ActWhileThinking() {
    const Snapshot before;
    for (const Command command : GameCommands) command({12, 13, 14});
    Require(before.IsStillTrue(), "the game went on while the computer thinks");
    Game.Closing = ClosesNext;
}

/// The program ended with its window.
void StartAgain() {
    Game.Closing = false;
    Files.OpenMainWindow();
}

void RunOne(FuzzInput& input) {
    // A new game seeds from the clock; an input must play the same game every time.
    SeedRandom(1);
    const Command command = CommandOf(input.Byte());
    const int a = input.Byte();
    const int b = input.Byte();
    const int c = input.Byte();
    command({a, b, c});
    if (command != CloseWhileThinking) ClosesNext = false;
    if (Game.Closing) StartAgain();
    RequireSound(Game);
    Require(Game.Message != ThinkingText, "the message stayed");
}

void StartStream() {
    StartProgram(Game, Files);
    for (SavedGame& saved : Saved) {
        saved.File.Write("");
        saved.Count = -1;
    }
    Game.Closing = ClosesNext = false;
    Game.OnEvents = ActWhileThinking;
    Files.OpenMainWindow();
}

}  // namespace
}  // namespace brastel

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace brastel;
    if (size < CommandSize) return 0;
    StartStream();
    const std::size_t commands = std::clamp(size / CommandSize, LeastCommands, MostCommands);
    FuzzInput input(data, size);
    for (std::size_t n = 0; n < commands; ++n) {
        if (input.IsOver()) input = FuzzInput(data, size);
        RunOne(input);
    }
    return 0;
}
