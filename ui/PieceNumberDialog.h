#pragma once

#include <QDialog>

namespace brastel {

/// frm_GameSize: chooses the number of pieces of each side and shows what the program is. A number
/// button selects the start layout. OK and all other ways to close the dialog change nothing.
/// Opened modally by exec().
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
