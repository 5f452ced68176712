#include "tools/match/PlayMatch.h"

#include "tools/Interrupt.h"
#include "tools/match/SavedGames.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <climits>
#include <cstdio>
#include <poll.h>
#include <sys/wait.h>
#include <type_traits>
#include <unistd.h>

namespace brastel {

namespace {

static_assert(std::is_trivially_copyable_v<MatchGame>);
static_assert(sizeof(MatchGame) <= PIPE_BUF, "the games of several processes would get mixed up");

constexpr int MillisecondsBetweenLooks = 100;
constexpr int PlayedAll = 0;
constexpr int StoppedEarly = 1;

/// Games of one opening stay together. True if all were played.
bool PlayShare(const MatchTerms& terms, const MatchRun& run, int worker, int output) {
    for (int number = 1; number <= run.Games; ++number) {
        if ((number - 1) / 2 % run.Jobs != worker) continue;
        MatchGame game;
        if (!PlayMatchGame(terms, number, game)) return false;
        if (!run.Folder.empty()) {
            game.SaveError = SaveMatchGame(run.Folder + '/' + SavedGameName(terms, number));
        }
        const ssize_t written = write(output, &game, sizeof game);
        if (written != static_cast<ssize_t>(sizeof game) || game.SaveError != 0) return false;
    }
    return true;
}

class Workers {
public:
    Workers(const MatchTerms& terms, const MatchRun& run) {
        std::array<int, 2> ends{};
        if (pipe(ends.data()) != 0) return;
        Input = ends[0];
        std::fflush(nullptr);
        for (int worker = 0; worker < run.Jobs; ++worker) {
            const pid_t process = fork();
            if (process == 0) {
                close(Input);
                _exit(PlayShare(terms, run, worker, ends[1]) ? PlayedAll : StoppedEarly);
            }
            if (process < 0) {
                Stop();
                break;
            }
            Processes.push_back(process);
        }
        close(ends[1]);
    }
    ~Workers() {
        Stop();
        if (Input >= 0) close(Input);
        for (const pid_t process : Processes) {
            while (waitpid(process, nullptr, 0) < 0 && errno == EINTR) {
            }
        }
    }
    Workers(const Workers&) = delete;
    Workers& operator=(const Workers&) = delete;

    /// Each ends within a move.
    void Stop() const {
        for (const pid_t process : Processes) kill(process, SIGTERM);
    }

    /// Waits for the next game. False when all workers have ended.
    bool Receive(MatchGame& game) const {
        pollfd input{Input, POLLIN, 0};
        // An interrupt can come just before the wait and not be noticed by it.
        do {
            if (Interrupted != 0) Stop();
        } while (poll(&input, 1, MillisecondsBetweenLooks) <= 0);
        return read(Input, &game, sizeof game) == static_cast<ssize_t>(sizeof game);
    }

private:
    int Input = -1;
    std::vector<pid_t> Processes;
};

}  // namespace

MatchEnd PlayMatch(const MatchTerms& terms, const MatchRun& run, std::vector<MatchGame>& games,
                   const MatchProgress& progress) {
    Workers workers(terms, run);
    MatchGame game;
    bool isSaved = true;
    while (isSaved && workers.Receive(game)) {
        games.push_back(game);
        isSaved = game.SaveError == 0;
        progress(game);
    }
    std::ranges::sort(games, {}, &MatchGame::Number);
    if (!isSaved) return MatchEnd::NotSaved;
    if (static_cast<int>(games.size()) == run.Games) return MatchEnd::Complete;
    return Interrupted != 0 ? MatchEnd::Stopped : MatchEnd::Broken;
}

}  // namespace brastel
