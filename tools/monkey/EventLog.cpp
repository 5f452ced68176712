#include "tools/monkey/EventLog.h"

#include <algorithm>
#include <array>
#include <csignal>
#include <cstring>
#include <unistd.h>

namespace brastel {

namespace {

constexpr unsigned PatienceSeconds = 60;
constexpr std::size_t LineLength = 160;
constexpr std::size_t LineCount = 30;

/// Fixed in size, and printed without a call that a signal handler may not make.
using Line = std::array<char, LineLength>;
Line Title;
std::array<Line, LineCount> Lines;
std::size_t Noted = 0;
std::string Number;

void Fill(Line& line, const std::string& text) {
    line.fill('\0');
    std::copy_n(text.begin(), std::min(text.size(), LineLength - 1), line.begin());
}

void Print(const char* text) {
    // Nobody is left to be told that this failed.
    if (write(STDERR_FILENO, text, std::strlen(text)) < 0) return;
    if (write(STDERR_FILENO, "\n", 1) < 0) return;
}

void Die(int signal) {
    std::signal(signal, SIG_DFL);
    PrintLastEvents(signal == SIGALRM ? "HANGS: a minute without an event" : "CRASHED");
    std::raise(signal == SIGALRM ? SIGABRT : signal);
}

/// A sanitizer's own handler stays: it tells more.
void HandleUnlessTaken(int signal) {
    const auto before = std::signal(signal, Die);
    if (before != SIG_DFL) std::signal(signal, before);
}

}  // namespace

void NumberEvents(int number, int part) {
    Number = std::to_string(number) + (part > 0 ? " while thinking: " : ": ");
}

void NoteEvent(const std::string& words) {
    Fill(Lines[Noted++ % LineCount], Number + words);
    alarm(PatienceSeconds);
}

void PrintLastEvents(const char* why) {
    Print(why);
    Print(Title.data());
    const std::size_t first = Noted > LineCount ? Noted - LineCount : 0;
    for (std::size_t n = first; n < Noted; ++n) Print(Lines[n % LineCount].data());
}

void WatchEvents(const std::string& title) {
    Fill(Title, title);
    for (const int signal : {SIGALRM, SIGABRT, SIGSEGV, SIGBUS, SIGFPE, SIGILL}) {
        HandleUnlessTaken(signal);
    }
}

}  // namespace brastel
