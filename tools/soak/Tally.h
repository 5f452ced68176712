#pragma once

#include <cstddef>
#include <string>

/// How often everything happened, so that a run shows that it has looked at all of it.
namespace brastel {

enum class Event {
    Placement,
    Move,
    Hit,
    Capture,
    RingPass,
    GoalEntry,
    NullMove,
    Return,
    Refusal,
    PushBack,
    Hint,
    Answer,
    Win,
    FullRecord,
    FreeSetup,
    Step,
    LateReturn,
    // Where candidates and people's rules differ, see RuleComparison.
    GoalEntryOffered,
    LongStepAccepted,
    PassFromOutsideAccepted,
    PlacementOffered,
    PlacementAccepted,
};
constexpr std::size_t EventCount = 22;

void ClearTally();
void Count(Event event);

/// The name and the number of everything, a line each.
std::string TallyLines();

/// The name of something that never happened, or nothing.
std::string FirstMissing();

}  // namespace brastel
