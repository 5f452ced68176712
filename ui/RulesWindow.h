#pragma once

#include <QDialog>

namespace brastel {

/// frm_Rules: the rules of the game and an OK button. Opened modally by exec().
class RulesWindow : public QDialog {
public:
    RulesWindow();

protected:
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
};

}  // namespace brastel
