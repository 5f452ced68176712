#pragma once

#include <csignal>

/// Signals that ask a program to end.
namespace brastel {

/// Set by SIGINT, SIGTERM and SIGHUP after WatchInterrupts.
inline volatile std::sig_atomic_t Interrupted = 0;

/// From now on SIGINT, SIGTERM and SIGHUP set Interrupted instead of ending the program. System
/// calls that wait return EINTR. Under nohup, SIGHUP stays ignored.
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
