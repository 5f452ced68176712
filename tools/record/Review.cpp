#include "tools/record/Review.h"

#include "engine/Random.h"
#include "engine/Search.h"
#include "tools/Interrupt.h"

#include <algorithm>
#include <functional>

namespace brastel {

namespace {

int LossBetween(int best, int played) {
    constexpr int most = 100 * UnitsPerPoint;
    return std::clamp(best, -most, most) - std::clamp(played, -most, most);
}

Choice ChoiceOf(const Action& played, Int16 depth) {
    Action best = PlayableAction(ChooseCandidate(depth));
    // Without a candidate the computer passes, but people may have a move.
    if (best == NullMove) best = played;
    const int value = ValueOfAction(played, depth);
    const int bestValue = std::max(value, best == played ? value : ValueOfAction(best, depth));
    if (value == bestValue) best = played;
    const int forRed = -Pos.SideToMove;
    return {forRed * value, forRed * bestValue, best, LossBetween(bestValue, value)};
}

void MarkWorst(GameReview& review, int side) {
    std::vector<ReviewedEntry*> losses;
    for (ReviewedEntry& entry : review.Entries) {
        if (entry.Side == side && entry.Made && entry.Made->Loss > 0) losses.push_back(&entry);
    }
    std::ranges::stable_sort(losses, std::greater(),
                             [](const ReviewedEntry* entry) { return entry->Made->Loss; });
    if (losses.size() > MarkedPerSide) losses.resize(MarkedPerSide);
    for (ReviewedEntry* entry : losses) entry->IsWorst = true;
}

}  // namespace

GameReview ReviewGame(const RecordedGame& game, Int16 depth) {
    GameReview review{depth, {}};
    const int last = game.Winner != Empty ? game.WinningEntry : game.PlayedEntries();
    const int end = game.BrokenEntry == 0 ? last : std::min(last, game.BrokenEntry - 1);
    // The search draws between equal moves. So the same review shows the same ones.
    SeedRandom(1);
    for (int k = 1; k <= end && Interrupted == 0; ++k) {
        Pos = game.Positions[static_cast<std::size_t>(k - 1)];
        const Action played = game.Entries[static_cast<std::size_t>(k - 1)].Played;
        ReviewedEntry entry{Pos.SideToMove, played, {}, false};
        if (BothRingsPlaced() && played != NullMove) entry.Made = ChoiceOf(played, depth);
        review.Entries.push_back(entry);
    }
    for (const int side : {Red, Blue}) MarkWorst(review, side);
    return review;
}

}  // namespace brastel
