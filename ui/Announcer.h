#pragma once

#include "core/Position.h"

#include <QStringList>
#include <QTimer>
#include <QWidget>

#include <string>

namespace brastel {

/// Says in words what a player who does not see the board would miss. What comes together is read
/// out together. Silent where no assistive technology listens.
class Announcer : public QObject {
    Q_OBJECT

public:
    explicit Announcer(QWidget* boardView);

    /// What was read out last.
    const QString& Text() const { return Current; }

    /// Reads the text out when the program next waits for events.
    void Say(const QString& text);
    /// Says then, too, and before, what has become of the position.
    void FollowPosition();

private:
    void TellChangedSquares();
    void Speak();

    QWidget* const Form;
    Position Known;
    Table<std::string, FirstSquare, LastSquare> Contents;
    QStringList Waiting;
    QTimer Timer;
    QString Current;
};

}  // namespace brastel
