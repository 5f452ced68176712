#pragma once

#include <QKeyEvent>
#include <QPushButton>

namespace brastel {

/// A button that Enter presses while it has the focus, and only then. Qt lets Enter press the
/// default button of a dialog instead, and a focused button only if it may become the default.
class EnterButton : public QPushButton {
public:
    EnterButton(const QString& text, QWidget* parent) : QPushButton(text, parent) {
        setAutoDefault(false);
    }

protected:
    void keyPressEvent(QKeyEvent* event) override {
        if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
            click();
        } else {
            QPushButton::keyPressEvent(event);
        }
    }
};

}  // namespace brastel
