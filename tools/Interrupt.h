#pragma once

#include <csignal>

namespace brastel {

/// Set by SIGINT, SIGTERM and SIGHUP once they are watched.
inline volatile std::sig_atomic_t Interrupted = 0;

/// From now on SIGINT, SIGTERM and SIGHUP ask for a clean end instead of ending the program. Calls
/// of the system that wait come back with EINTR. Under nohup, SIGHUP stays ignored.
inline void WatchInterrupts() {
    struct sigaction action {};
    struct sigaction former {};
    action.sa_handler = [](int) { Interrupted = 1; };
    sigaction(SIGINT, &action, nullptr);
    sigaction(SIGTERM, &action, nullptr);
    sigaction(SIGHUP, nullptr, &former);
    if (former.sa_handler != SIG_IGN) sigaction(SIGHUP, &action, nullptr);
}

}  // namespace brastel
