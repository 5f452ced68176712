#include "tools/match/Progress.h"

#include "tools/match/MatchScore.h"
#include "tools/match/MatchTable.h"

#include <cstdio>
#include <sys/ioctl.h>
#include <unistd.h>

namespace brastel {

namespace {

using namespace std::chrono_literals;

/// A longer line would wrap, and only its last part would be erased.
std::size_t WidthOfTerminal() {
    constexpr std::size_t UsualWidth = 80;
    winsize size{};
    const bool isKnown = ioctl(STDERR_FILENO, TIOCGWINSZ, &size) == 0 && size.ws_col > 0;
    return (isKnown ? size.ws_col : UsualWidth) - 1;
}

/// Hours, minutes and seconds, for example 0:02:30.
std::string TimeText(std::chrono::steady_clock::duration time) {
    const auto digits = [](long long value) {
        return (value < 10 ? ":0" : ":") + std::to_string(value);
    };
    const long long seconds = time / 1s;
    return std::to_string(seconds / 3600) + digits(seconds / 60 % 60) + digits(seconds % 60);
}

}  // namespace

Progress::Progress(const MatchTerms& terms, int games, const MatchGames& played)
    : Terms(terms),
      Games(games),
      Before(static_cast<int>(played.size())),
      IsOnTerminal(isatty(STDERR_FILENO) == 1),
      NextLine(IsOnTerminal ? Start : Start + 1min) {
    for (const auto& [number, game] : played) Count(game);
}

Progress::~Progress() {
    if (IsOnTerminal) std::fputs("\r\033[K", stderr);
}

void Progress::Update(const MatchGame* game) {
    if (game != nullptr) Count(*game);
    const auto now = Clock::now();
    if (now < NextLine) return;
    NextLine = now + (IsOnTerminal ? Clock::duration(200ms) : 1min);
    const std::string text = Text(now - Start);
    IsOnTerminal ? std::fprintf(stderr, "\r%s\033[K", text.substr(0, WidthOfTerminal()).c_str())
                 : std::fprintf(stderr, "%s\n", text.c_str());
}

void Progress::Count(const MatchGame& game) {
    const double result = ResultOf(Terms, game);
    ++Played;
    Wins += result > 0.5;
    Losses += result < 0.5;
}

std::string Progress::Text(Clock::duration passed) const {
    const int playedNow = Played - Before;
    std::string text = std::to_string(Played) + " of " + std::to_string(Games) + " games, " +
                       TimeText(passed) + " passed";
    if (playedNow > 0) text += ", " + TimeText(passed / playedNow * (Games - Played)) + " left";
    return text + ": " + NameOf(Terms, true) + " won " + std::to_string(Wins) + ", lost " +
           std::to_string(Losses) + ", drew " + std::to_string(Played - Wins - Losses);
}

}  // namespace brastel
