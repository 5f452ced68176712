#include "ui/Announcer.h"

#include "core/Opening.h"
#include "play/GameState.h"
#include "play/Words.h"
#include "ui/BoardAccessible.h"

#include <chrono>
#include <string>
#include <utility>

namespace brastel {

namespace {

constexpr auto RetryAfter = std::chrono::milliseconds(50);

/// The change from a position to the present one in words. Empty if they are equal.
QString ChangeSince(const Position& before) {
    if (before == Pos) return {};
    if (Pos.MoveCount == 1 && Pos.RedPlaced == 0) {
        return InFreeSetup() ? "At the start, the board is empty" : "At the start";
    }
    const bool isTakenBack = Pos.MoveCount < before.MoveCount;
    return (isTakenBack ? "Taken back: " : "") +
           QString::fromStdString(ChangesInWords(before, Pos));
}

}  // namespace

Announcer::Announcer(QWidget* boardView) : QObject(boardView), Form(boardView) {
    Timer.setSingleShot(true);
    Timer.callOnTimeout(this, &Announcer::Announce);
    for (int square = FirstSquare; square <= LastSquare; ++square) {
        Contents[square] = ContentInWords(square);
    }
}

void Announcer::Say(const QString& text) {
    NewTexts.append(text);
    Timer.start(0);
}

void Announcer::FollowPosition() { Timer.start(0); }

void Announcer::NotifyChangedSquares() {
    for (int square = FirstSquare; square <= LastSquare; ++square) {
        std::string content = ContentInWords(square);
        if (content == Contents[square]) continue;
        Contents[square] = std::move(content);
        NotifySquareChanged(*Form, square);
    }
}

/// The timer calls this when an action is complete, with its entry and the turn. While the computer
/// thinks, a screen reader cannot ask for the text, so the text waits for the computer's answer.
void Announcer::Announce() {
    const QString change = ChangeSince(std::exchange(LastPosition, Pos));
    if (!change.isEmpty()) Texts.append(change);
    Texts.append(std::exchange(NewTexts, {}));
    if (IsThinking) return Timer.start(RetryAfter);
    if (Texts.isEmpty()) return;
    NotifyChangedSquares();
    NotifyAnnouncement(*Form, std::exchange(Texts, {}).join(". "));
}

}  // namespace brastel
