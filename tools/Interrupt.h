#pragma once

#include <csignal>

namespace brastel {

/// Set by SIGINT and SIGTERM once they are watched.
inline volatile std::sig_atomic_t Interrupted = 0;

/// From now on SIGINT and SIGTERM ask for a clean end instead of ending the program. Calls of the
/// system that wait come back with EINTR.
inline void WatchInterrupts() {
    struct sigaction action {};
    action.sa_handler = [](int) { Interrupted = 1; };
    sigaction(SIGINT, &action, nullptr);
    sigaction(SIGTERM, &action, nullptr);
}

}  // namespace brastel
