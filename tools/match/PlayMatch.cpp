#include "tools/match/PlayMatch.h"

#include "tools/ExitStatus.h"
#include "tools/Interrupt.h"
#include "tools/match/SavedGames.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <climits>
#include <csignal>
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
void PlayGamesOf(const MatchTerms& terms, const MatchRun& run, const std::vector<int>& numbers,
                 int worker, int output) {
    for (const int number : numbers) {
        if ((number - 1) / 2 % run.Jobs != worker) continue;
        MatchGame game;
        if (!PlayMatchGame(terms, number, game)) return;
        if (!run.Folder.empty()) {
            const std::string path = run.Folder + '/' + SavedGameName(terms, number);
            game.SaveError = SaveMatchGame(path, run.Force);
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
    Workers(const MatchTerms& terms, const MatchRun& run, const std::vector<int>& numbers) {
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
                PlayGamesOf(terms, run, numbers, worker, ends[1]);
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

    /// Waits for games until all workers have ended.
    void Receive(const MatchProgress& progress) const {
        pollfd input{Input, POLLIN, 0};
        MatchGame game;
        do {
            // Here and not only after EINTR, because an interrupt just before poll does not end it.
            if (Interrupted != 0) Stop();
            const bool hasInput = poll(&input, 1, PollMilliseconds) > 0;
            if (hasInput && read(Input, &game, sizeof game) != ssize_t{sizeof game}) return;
            if (!progress(hasInput ? &game : nullptr)) return;
        } while (Input >= 0);
    }

private:
    int Input = -1;
    std::vector<pid_t> Processes;
};

}  // namespace

void PlayMatch(const MatchTerms& terms, const MatchRun& run, const std::vector<int>& numbers,
               const MatchProgress& progress) {
    Workers(terms, run, numbers).Receive(progress);
}

}  // namespace brastel
