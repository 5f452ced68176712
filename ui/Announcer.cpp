#include "ui/Announcer.h"

#include "core/Opening.h"
#include "play/Words.h"
#include "ui/BoardAccessible.h"

#include <QAccessible>

#include <string>
#include <utility>

namespace brastel {

namespace {

/// What led from one position to the present one, in words; empty if nothing did.
QString NewsSince(const Position& before) {
    if (before == Pos) return {};
    if (Pos.MoveCount == 1 && !InFreeSetup()) return "At the start";
    const bool isTakenBack = Pos.MoveCount < before.MoveCount;
    return (isTakenBack ? "Taken back: " : "") +
           QString::fromStdString(ChangesInWords(before, Pos));
}

}  // namespace

Announcer::Announcer(QWidget* boardView) : QObject(boardView), Form(boardView) {
    Timer.setSingleShot(true);
    Timer.callOnTimeout(this, &Announcer::Speak);
}

void Announcer::Say(const QString& text) {
    Waiting.append(text);
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

/// Called when an action is over, with its entry and the turn, not in the middle of it.
void Announcer::Speak() {
    const QString news = NewsSince(std::exchange(Known, Pos));
    if (!news.isEmpty()) Waiting.prepend(news);
    Current = Waiting.join(". ");
    Waiting.clear();
    if (!QAccessible::isActive() || Current.isEmpty()) return;
    TellChangedSquares();
    TellAnnouncement(*Form);
}

}  // namespace brastel
