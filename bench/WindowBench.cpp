/// Plays whole games in the real window and prints the longest times in which it did not answer:
/// while the computer searched, and otherwise.

#include "core/StartPosition.h"
#include "engine/Candidates.h"
#include "engine/MoveCode.h"
#include "engine/Random.h"
#include "play/GameRecord.h"
#include "play/GameState.h"
#include "play/HumanAction.h"
#include "tools/CommandLine.h"
#include "ui/MainWindow.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QTimer>

#include <cstdio>
#include <random>
#include <vector>

namespace {

using namespace brastel;

constexpr const char* Description =
    R"(Plays 20 games at each LEVEL in the real window: Red is moved by a player who
looks at the next move only, and the computer answers. Prints the longest times
in milliseconds in which the window handled no event. Needs a display, or
QT_QPA_PLATFORM=offscreen.
)";

constexpr int GamesPerLevel = 20;
constexpr int StandardLayout = 3;

/// A pulse that beats whenever the window handles events. Two beats further apart than usual are a
/// time in which it did not answer.
class Pulse {
public:
    Pulse() {
        Clock.start();
        Timer.setTimerType(Qt::PreciseTimer);
        Timer.callOnTimeout([this] { Beat(); });
        Timer.start(0);
    }

    void Forget() { LongestSearch = LongestElse = 0; }

    double LongestSearch = 0;
    double LongestElse = 0;

private:
    /// The pause before a search handles events, so a gap that begins and ends in thought is one.
    void Beat() {
        const double gap = static_cast<double>(Clock.nsecsElapsed()) * 1e-6;
        Clock.start();
        double& longest = WasThinking ? LongestSearch : LongestElse;
        longest = std::max(longest, gap);
        WasThinking = IsThinking;
    }

    QElapsedTimer Clock;
    QTimer Timer;
    bool WasThinking = false;
};

/// Red's moves, among the best of the next move so that no two games are the same.
std::mt19937 Dice;

/// Drops a piece as the mouse would; a goal entry is no drop.
void PlayByHand() {
    GenerateMoves(1);
    SortCandidates(1);
    std::vector<Action> drops;
    for (int n = 1; n <= CandidateCount[1] && drops.size() < 3; ++n) {
        const Action move = DecodeMove(MoveList[1][n]);
        if (InField(move.Destination)) drops.push_back(move);
    }
    if (drops.empty()) return ShowStatus(BlankText);
    const auto [from, to] = drops[Dice() % drops.size()];
    const Piece piece = PieceOn(from);
    const Piece target = PieceOn(to);
    if (target) return DropOnPiece(piece, target);
    DropOnBoard(piece, SquareLeft(to), SquareTop(to));
}

int PlayGame(MainWindow& window, Int16 level) {
    SelectStartLayout(StandardLayout);
    window.OpenMainWindow();
    SetLevel(level);
    DoubleClickPiece({Red, ToInt16(1 + Dice() % 8)});
    int before = 0;
    while (GameOver == False && !IsRecordFull() && Pos.MoveCount != before) {
        before = Pos.MoveCount;
        QTimer::singleShot(0, &window, PlayByHand);
        for (int n = 0; n < 3; ++n) QCoreApplication::processEvents();
    }
    return Pos.MoveCount - 1;
}

int Main(int count, char** texts) {
    CLI::App app(Description, "window_bench");
    std::vector<Int16> levels{1, 6, MaxPly};
    app.add_option("LEVEL", levels, "1 to 11, or the name of a strength (1 6 11)")
        ->transform(IsStrength());
    if (const auto status = ReadArguments(app, count, texts)) return *status;
    const QApplication application(count, texts);
    MainWindow window;
    Pulse pulse;
    std::puts("level  games  entries  longest search, ms  longest otherwise, ms");
    for (const Int16 level : levels) {
        Dice.seed(1);
        pulse.Forget();
        int entries = 0;
        for (int n = 0; n < GamesPerLevel; ++n) entries += PlayGame(window, level);
        std::printf("%5d  %5d  %7d  %18.1f  %21.1f\n", level, GamesPerLevel, entries,
                    pulse.LongestSearch, pulse.LongestElse);
        std::fflush(stdout);
    }
    return Done;
}

}  // namespace

int main(int count, char** texts) {
    return brastel::RunProgram("window_bench", Main, count, texts);
}
