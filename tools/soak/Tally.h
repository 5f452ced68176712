#pragma once

#include <vector>

/// How often everything happened, so that a run shows that it has looked at all of it.
namespace brastel {

struct Tally;
/// In the order below.
inline std::vector<const Tally*> Tallies;

struct Tally {
    explicit Tally(const char* name) : Name(name) { Tallies.push_back(this); }
    Tally(const Tally&) = delete;
    Tally& operator=(const Tally&) = delete;

    const char* const Name;
    long long Times = 0;
};

inline void Count(Tally& tally) { ++tally.Times; }

inline Tally Placements("ring placements");
inline Tally Moves("moves");
inline Tally Hits("hits");
inline Tally Captures("captures of a ring");
inline Tally RingPasses("ring passes");
inline Tally GoalEntries("goal entries");
inline Tally NullMoves("null moves");
inline Tally Returns("actions after which pieces came back");
inline Tally Refusals("refused actions");
inline Tally PushBacks("refused push-backs");
inline Tally Hints("hints");
inline Tally Answers("answers of the computer");
inline Tally Wins("wins");
inline Tally FullRecords("full records");
inline Tally FreeSetups("free setups");
inline Tally Steps("steps along loaded games");
inline Tally LateReturns("returns that quiet moves leave out");
inline Tally GoalEntriesOffered("goal entries that only the computer makes");
inline Tally LongStepsAccepted("long steps of a carrier that only people make");
inline Tally PassesFromOutsideAccepted("passes from outside that only people make");
inline Tally PlacementsOffered("ring placements that only the computer makes");
inline Tally PlacementsAccepted("ring placements that only people make");

}  // namespace brastel
