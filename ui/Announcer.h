#pragma once

#include "core/Position.h"

#include <QStringList>
#include <QTimer>
#include <QWidget>

#include <string>

namespace brastel {

/// Says in words what a player who does not see the board would miss. What comes together is read
/// out together. Without assistive technology nobody hears it.
class Announcer : public QObject {
    Q_OBJECT

public:
    explicit Announcer(QWidget* boardView);

    /// What was read out last.
    const QString& Text() const { return Current; }

    /// Reads the text out when the program next waits for events and the computer does not think.
    void Say(const QString& text);
    /// Says then, too, and before, what has become of the position.
    void FollowPosition();

private:
    void TellChangedSquares();
    void Speak();

    QWidget* const Form;
    Position Known;
    Table<std::string, FirstSquare, LastSquare> Contents;
    /// Said since the position was last looked at, and all that waits to be read out.
    QStringList Messages;
    QStringList Texts;
    QTimer Timer;
    QString Current;
};

}  // namespace brastel
