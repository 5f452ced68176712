#include "testing/Headless.h"

#include "core/StartPosition.h"
#include "engine/Random.h"
#include "files/GameFile.h"
#include "play/Hint.h"
#include "play/Stepping.h"
#include "testing/GameLine.h"
#include "testing/GestureChecks.h"
#include "testing/RandomSource.h"
#include "testing/Require.h"

#include <fstream>
#include <iterator>
#include <sys/mman.h>
#include <utility>

namespace brastel {

namespace {

/// The window is closed as soon as the next gesture lets the computer think.
bool ClosesNext = false;

const std::string& GameFile(int number) {
    static const std::array<std::string, SavedGameCount> files{NewMemoryFile(), NewMemoryFile()};
    return files[static_cast<std::size_t>(number)];
}

void Do(const Gesture& gesture) {
    const auto& [what, actor, target, x, y, number] = gesture;
    if (what == Kind::Drop && target) return DropOnPiece(actor, target);
    if (what == Kind::Drop) return DropOnBoard(actor, x, y);
    if (what == Kind::DoubleClick) return DoubleClickPiece(actor);
    if (what == Kind::Hint) return Hint();
    if (what == Kind::Forward) return StepForward();
    if (what == Kind::Backward) return StepBack();
    if (what == Kind::NewGame) return NewGameCommand();
    if (what == Kind::LevelChoice) return SetLevel(ToInt16(number));
    if (what == Kind::Click) return ClickBoard(x, y);
    if (what == Kind::Save) return SaveIn(GameFile(number));
    if (what == Kind::Load) return Require(LoadFrom(GameFile(number)), "a saved game is refused");
    if (what == Kind::Close) ClosesNext = true;
    if (what == Kind::PieceNumber) SelectStartLayout(number), Windows.OpenMainWindow();
}

/// Gives commands while the computer thinks, which must all be ignored, and can close the window.
/// They have random numbers of their own, so that a fuzzer's bytes keep their meaning.
void ActWhileThinking() {
    static Dice meanwhile;
    const auto chance = std::exchange(RandomSource, std::ref(meanwhile));
    for (int n = 0; n < 3; ++n) {
        const Gesture gesture = DrawGesture();
        const auto check = Watch(gesture);
        Do(gesture);
        check();
    }
    RandomSource = chance;
    Shown.Closing = ClosesNext;
}

void PlayOne() {
    const Gesture gesture = DrawGesture();
    if (!IsPossible(gesture)) return;
    // A new game seeds from the clock; the same draws must play the same game every time.
    SeedRandom(static_cast<unsigned>(Roll(256)));
    const auto check = Watch(gesture);
    Do(gesture);
    if (gesture.What != Kind::Close) ClosesNext = false;
    check();
    // The program has ended with its window.
    Count("closings while the computer thought", Shown.Closing);
    if (Shown.Closing) BeginPlaying();
    RequireSound();
}

}  // namespace

void StartProgram(int layout) {
    SetView(&Shown);
    SetFileView(&Windows);
    LoadedFileName.clear();
    RedStart = BlueStart = {};
    PlayedFrom = PlayedTo = LoadedFrom = LoadedTo = {};
    LoadedCount = 0;
    Pos = {};
    SelectStartLayout(layout);
    KeepLoadedStart();
}

void RequireSound() {
    RequireConsistent();
    Require(Pos.MoveCount <= MaxEntries + 1, "the record ran over");
    Require(!IsThinking && Shown.Message != ThinkingText, "the game still thinks");
    const std::string wrong = Shown.FirstWrong();
    Require(wrong.empty(), "shown wrongly: " + wrong);
}

std::string NewMemoryFile() {
    return "/proc/self/fd/" + std::to_string(memfd_create("game", MFD_CLOEXEC));
}

void WriteFile(const std::string& path, const std::string& bytes) {
    Require(!!(std::ofstream(path, std::ios::binary) << bytes << std::flush),
            "cannot write " + path);
}

std::string ReadFile(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    Require(file.is_open(), "cannot read " + path);
    return {std::istreambuf_iterator<char>(file), {}};
}

void SaveIn(const std::string& path) {
    WriteFile(path, "");
    SaveGameFile(path);
}

bool LoadFrom(const std::string& path) {
    Windows.Warnings = 0;
    LoadGameFile(path);
    BeginLoadedGame();
    return Windows.Warnings == 0;
}

void BeginPlaying() {
    StatusLine = [] { return Shown.Message; };
    Shown.OnEvents = ActWhileThinking;
    Shown.Closing = ClosesNext = false;
    ForgetGestures();
    Windows.OpenMainWindow();
    BeginWatching();
}

void Play(int gestures) {
    while (gestures-- > 0) PlayOne();
}

}  // namespace brastel
