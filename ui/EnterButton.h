#pragma once

#include <QKeyEvent>
#include <QPushButton>

namespace brastel {

/// A button that Enter presses only while it has the focus. In a dialog of Qt, Enter presses the
/// default button instead, and a focused button only if it can become the default button.
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
