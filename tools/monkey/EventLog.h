#pragma once

#include <string>

/// What a program of random events did last, in words: printed when it fails, crashes or hangs.
namespace brastel {

/// The number of the events to come; those of a part came in the middle of that event.
void NumberEvents(int number, int part);

/// Remembers an event, and starts the watchdog's time anew.
void NoteEvent(const std::string& words);

/// Prints why the program ends, its title and its last events.
void PrintLastEvents(const char* why);

/// From now on a crash, and a minute without an event, print the last events before the end. The
/// title tells how to play them again.
void WatchEvents(const std::string& title);

}  // namespace brastel
