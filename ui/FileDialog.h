#pragma once

#include "files/FileChooser.h"

#include <QComboBox>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>

namespace brastel {

/// frmOpenSave: the window of the file chooser (files/FileChooser.h). It shows the state of the
/// chooser and calls its operations. Opened modally by exec().
class FileDialog : public QDialog {
public:
    explicit FileDialog(ChooserMode mode);

    /// True if the user closed the dialog by its close box, which ends the whole program.
    bool WasClosedByBox() const { return ClosedByBox; }

protected:
    void closeEvent(QCloseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void BuildControls();
    void ConnectControls();
    void ShowChooser();
    void ShowFolders();
    void ShowPath();
    /// Closes the dialog, or shows the new state of the chooser.
    void CloseOrShow(bool isDone);
    void Confirm();
    void EnterRow(int row);
    void ShowClick(int row);

    QLineEdit* txtOpenSave = nullptr;
    QListWidget* filOpenSave = nullptr;
    QLabel* lblPath = nullptr;
    QListWidget* dirOpenSave = nullptr;
    QComboBox* drvOpenSave = nullptr;
    bool ClosedByBox = false;
};

}  // namespace brastel
