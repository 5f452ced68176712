#include "tools/match/PlayMatch.h"

#include "tools/ExitStatus.h"
#include "tools/Interrupt.h"
#include "tools/match/SavedGames.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <climits>
#include <cstdio>
#include <poll.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <type_traits>
#include <unistd.h>

namespace brastel {

namespace {

static_assert(std::is_trivially_copyable_v<MatchGame>);
static_assert(sizeof(MatchGame) <= PIPE_BUF, "games of several processes would be mixed");

constexpr int PollMilliseconds = 100;

/// The pipe transfers the game in one piece, because it has at most PIPE_BUF bytes.
bool Send(int output, const MatchGame& game) {
    ssize_t written = 0;
    do {
        written = write(output, &game, sizeof game);
    } while (written < 0 && errno == EINTR);
    return written == static_cast<ssize_t>(sizeof game);
}

/// Plays the games of one worker. Both games of one opening have the same worker.
void PlayGamesOf(const MatchTerms& terms, const MatchRun& run, int worker, int output) {
    for (int number = 1; number <= run.Games; ++number) {
        if ((number - 1) / 2 % run.Jobs != worker) continue;
        MatchGame game;
        if (!PlayMatchGame(terms, number, game)) return;
        if (!run.Folder.empty()) {
            game.SaveError = SaveMatchGame(run.Folder + '/' + SavedGameName(terms, number));
        }
        if (!Send(output, game) || game.SaveError != 0) return;
    }
}

/// Interrupts this process when its parent ends for any reason.
void InterruptAtEndOf(pid_t parent) {
    prctl(PR_SET_PDEATHSIG, SIGTERM);
    if (getppid() != parent) Interrupted = SIGTERM;
}

class Workers {
public:
    Workers(const MatchTerms& terms, const MatchRun& run) {
        std::array<int, 2> ends{};
        if (pipe(ends.data()) != 0) return;
        Input = ends[0];
        std::fflush(nullptr);
        const pid_t self = getpid();
        for (int worker = 0; worker < run.Jobs; ++worker) {
            const pid_t process = fork();
            if (process == 0) {
                close(Input);
                InterruptAtEndOf(self);
                PlayGamesOf(terms, run, worker, ends[1]);
                _exit(Done);
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

    /// Each worker ends after its current move.
    void Stop() const {
        for (const pid_t process : Processes) kill(process, SIGTERM);
    }

    /// Waits for the next game. False if all workers have ended, or none could start.
    bool Receive(MatchGame& game) const {
        if (Input < 0) return false;
        pollfd input{Input, POLLIN, 0};
        // With a time limit, because an interrupt just before poll does not end it.
        do {
            if (Interrupted != 0) Stop();
        } while (poll(&input, 1, PollMilliseconds) <= 0);
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
    return Interrupted != 0 ? MatchEnd::Stopped : MatchEnd::Failed;
}

}  // namespace brastel
