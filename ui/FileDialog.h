#pragma once

#include "files/FileChooser.h"

#include <QComboBox>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>

namespace brastel {

/// frmOpenSave: shows the file chooser and hands it what the user does. Opened modally by exec().
class FileDialog : public QDialog {
public:
    explicit FileDialog(ChooserMode mode);

    /// True if the dialog was closed by its close box, which ends the whole program.
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
    /// Shows what the chooser made of it, or closes the dialog.
    void After(bool isDone);
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
