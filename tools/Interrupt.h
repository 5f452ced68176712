#pragma once

#include <csignal>
#include <cstdio>
#include <cstdlib>

/// Signals that ask a program to end.
namespace brastel {

/// The last of SIGINT, SIGTERM and SIGHUP that came after WatchInterrupts. 0 if none has come.
inline volatile std::sig_atomic_t Interrupted = 0;

/// From now on SIGINT, SIGTERM and SIGHUP set Interrupted instead of ending the program. System
/// calls that wait return EINTR. Under nohup, SIGHUP stays ignored.
inline void WatchInterrupts() {
    struct sigaction action {};
    struct sigaction former {};
    action.sa_handler = [](int signal) { Interrupted = signal; };
    sigaction(SIGINT, &action, nullptr);
    sigaction(SIGTERM, &action, nullptr);
    sigaction(SIGHUP, nullptr, &former);
    if (former.sa_handler != SIG_IGN) sigaction(SIGHUP, &action, nullptr);
}

/// Ends the program by the signal in Interrupted. With an exit status instead, Ctrl+C would not end
/// a shell loop that calls the program.
[[noreturn]] inline void EndByInterrupt() {
    constexpr int StatusOfShell = 128;
    const int signal = Interrupted;
    std::fflush(nullptr);
    std::signal(signal, SIG_DFL);
    std::raise(signal);
    // Only if the signal is blocked.
    std::_Exit(StatusOfShell + signal);
}

}  // namespace brastel
