#pragma once

#include <QDialog>

namespace brastel {

/// frm_GameSize: chooses the number of pieces a side, and tells what the program is. A number
/// button makes its layout the start of the games to come; OK and every other way out leave it as
/// it was. Opened modally by exec().
class PieceNumberDialog : public QDialog {
public:
    PieceNumberDialog();

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void AddLabels();
    void AddNumberButtons();
    void AddOkButton();
};

}  // namespace brastel
