#include "tools/record/RecordedGame.h"

#include "core/QuietMove.h"
#include "core/StartPosition.h"
#include "core/WinTest.h"
#include "play/DisplayedMove.h"
#include "play/GameRecord.h"
#include "tools/record/Lawfulness.h"

#include <utility>

namespace brastel {

namespace {

/// One course that the game may have taken: the positions after 0, 1, 2 ... entries.
using Course = std::vector<Position>;

enum class Manner {
    /// As in play: every piece outside that may come back does.
    Shown,
    /// As people place rings and as StepBack plays again: only pieces near the action come back.
    Quiet,
};

Course Extended(const Course& course, const RecordedEntry& entry, Manner manner) {
    Course longer = course;
    Pos = course.back();
    if (manner == Manner::Shown) {
        ApplyMoveShown(entry.Played);
        CountEntry();
    } else {
        ReplayEntry(entry.Played);
    }
    longer.push_back(Pos);
    return longer;
}

void AddNew(std::vector<Course>& courses, Course course) {
    const bool isKnown = std::ranges::any_of(
        courses, [&](const Course& other) { return other.back() == course.back(); });
    if (!isKnown) courses.push_back(std::move(course));
}

/// Plays the entries with all their rules. Where a piece was set up outside that could come back at
/// once, the record does not tell when it did: that depends on who placed the rings and on steps
/// back. So all courses are followed in which every entry so far was lawful; nearly always there is
/// one. It is the first of them that counts, and the first is how Forward plays.
class Judge {
public:
    explicit Judge(const Position& start) : Courses{{start}}, Replayed{start} {}

    /// The rule that the entry breaks whatever course the game took, or empty; then it is played.
    std::string_view Play(const RecordedEntry& entry) {
        std::vector<Course> next;
        std::string_view cause;
        for (const Course& course : Courses) {
            Pos = course.back();
            const bool isPlacement = !BothRingsPlaced();
            const std::string_view broken = BrokenRule(entry.Played);
            if (cause.empty()) cause = broken;
            if (!broken.empty()) continue;
            AddNew(next, Extended(course, entry, Manner::Shown));
            if (isPlacement) AddNew(next, Extended(course, entry, Manner::Quiet));
        }
        if (next.empty()) return cause;
        Replayed = Extended(Replayed, entry, Manner::Quiet);
        AddNew(next, Replayed);
        Courses = std::move(next);
        return {};
    }

    const Course& Chosen() const { return Courses.front(); }

private:
    std::vector<Course> Courses;
    Course Replayed;
};

void PlayLawfully(RecordedGame& game) {
    Judge judge(Pos);
    for (const RecordedEntry& entry : game.Entries) {
        game.Cause = judge.Play(entry);
        if (game.Cause.empty()) continue;
        game.Line = entry.Line;
        game.BrokenEntry = static_cast<int>(judge.Chosen().size());
        break;
    }
    game.Positions = judge.Chosen();
}

/// As Forward does: an entry that breaks the rules and yet fits is played.
void PlayOn(RecordedGame& game) {
    while (game.Positions.size() <= game.Entries.size()) {
        const RecordedEntry& entry = game.Entries[game.Positions.size() - 1];
        Pos = game.Positions.back();
        if (!ActionFits(entry.Played)) return;
        ApplyMoveShown(entry.Played);
        CountEntry();
        game.Positions.push_back(Pos);
    }
}

/// A ring placement wins no game.
void FindWin(RecordedGame& game) {
    for (int k = 3; k <= game.PlayedEntries() && game.Winner == Empty; ++k) {
        Pos = game.Positions[static_cast<std::size_t>(k)];
        game.Winner = FindWinner();
        game.WinningEntry = k;
    }
    if (game.Winner == Empty) game.WinningEntry = 0;
}

}  // namespace

RecordedGame ReadRecordedGame(const std::string& path) {
    RecordedGame game;
    const GameReading reading = ReadGameFile(path);
    game.Path = path;
    game.Error = reading.Error;
    game.SystemError = reading.SystemError;
    game.Cause = reading.Cause;
    game.Line = reading.Line;
    if (reading.Error != FileError::None) return game;
    for (int k = 1; k <= LoadedCount; ++k) {
        game.Entries.push_back({LoadedEntry(k), reading.EntryLine[k]});
    }
    SetUpStartPosition();
    PlayLawfully(game);
    PlayOn(game);
    FindWin(game);
    return game;
}

}  // namespace brastel
