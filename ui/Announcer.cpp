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

/// What led from one position to the present one, in words; empty if nothing did.
QString NewsSince(const Position& before) {
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
    Timer.callOnTimeout(this, &Announcer::Speak);
    for (int square = FirstSquare; square <= LastSquare; ++square) {
        Contents[square] = ContentInWords(square);
    }
}

void Announcer::Say(const QString& text) {
    Messages.append(text);
    Timer.start(0);
}

void Announcer::FollowPosition() { Timer.start(0); }

void Announcer::TellChangedSquares() {
    for (int square = FirstSquare; square <= LastSquare; ++square) {
        std::string content = ContentInWords(square);
        if (content == Contents[square]) continue;
        Contents[square] = std::move(content);
        TellSquareChanged(*Form, square);
    }
}

/// Called when an action is over, with its entry and the turn, not in the middle of it. While the
/// computer thinks nobody could ask for the text, so it waits for the computer's answer.
void Announcer::Speak() {
    const QString news = NewsSince(std::exchange(Known, Pos));
    if (!news.isEmpty()) Texts.append(news);
    Texts.append(std::exchange(Messages, {}));
    if (IsThinking) return Timer.start(RetryAfter);
    if (Texts.isEmpty()) return;
    Current = std::exchange(Texts, {}).join(". ");
    TellChangedSquares();
    TellAnnouncement(*Form);
}

}  // namespace brastel
