#pragma once

#include <iostream>
#include <string>
#include <unistd.h>

/// The events, printed as they come: the last lines tell what led to a crash.
namespace brastel {

/// What the lines of the events to come begin with.
inline std::string EventName;

/// Prints an event. A minute without the next one ends the program by SIGALRM.
inline void NoteEvent(const std::string& words) {
    constexpr unsigned PatienceSeconds = 60;
    std::cerr << EventName << words << '\n';
    alarm(PatienceSeconds);
}

}  // namespace brastel
