#pragma once

#include "core/Position.h"

#include <QStringList>
#include <QTimer>
#include <QWidget>

#include <string>

namespace brastel {

/// Announces changes of the position, and other texts, to screen readers. Texts that come in one
/// event are announced together. Without a screen reader nothing is heard.
class Announcer : public QObject {
    Q_OBJECT

public:
    explicit Announcer(QWidget* boardView);

    /// Announces the text when the program next waits for events and the computer does not think.
    void Say(const QString& text);
    /// Announces the change of the position at that time, before the texts of Say.
    void FollowPosition();

private:
    void NotifyChangedSquares();
    void Announce();

    QWidget* const Form;
    Position LastPosition;
    Table<std::string, FirstSquare, LastSquare> Contents;
    /// Texts of Say since LastPosition was taken.
    QStringList NewTexts;
    /// All texts that wait, in the order in which they are announced.
    QStringList Texts;
    QTimer Timer;
};

}  // namespace brastel
