#include "ui/FileDialog.h"

#include "ui/Layout.h"

#include <QCloseEvent>
#include <QFileIconProvider>
#include <QKeyEvent>
#include <QPushButton>
#include <QStyledItemDelegate>

namespace brastel {

namespace {

constexpr int InnerWidth = 5760;
constexpr int InnerHeight = 3204;

constexpr TwipRect NamePlace{120, 420, 2055, 405};
constexpr TwipRect FilesPlace{120, 840, 2055, 2136};
constexpr TwipRect PathPlace{2280, 420, 3375, 315};
constexpr TwipRect FoldersPlace{2280, 780, 2055, 1530};
constexpr TwipRect DrivesPlace{2280, 2640, 3375, 390};
constexpr TwipRect OkPlace{4560, 780, 1095, 435};
constexpr TwipRect CancelPlace{4560, 1320, 1095, 435};
constexpr double Points = 9;

/// A label in half-width katakana. The ampersand marks the access key of the control beside it.
/// Screen readers get the English name.
struct LabelText {
    const char* Name;
    TwipRect Place;
    const char* Text;
    const char* English;
};
constexpr LabelText NameLabel{"lblOpenSave0", {120, 120, 1455, 315}, "ﾌｧｲﾙ名(&N):", "File name"};
constexpr LabelText FolderLabel{"lblOpenSave1", {2400, 120, 1455, 315}, "ﾃﾞｨﾚｸﾄﾘ(&D)", "Folders"};
constexpr LabelText DriveLabel{"lblOpenSave3", {2400, 2340, 1455, 315}, "ﾄﾞﾗｲﾌﾞ(&V):", "Drives"};
constexpr const char* CancelText = "ｷｬﾝｾﾙ";

constexpr QSize FolderIconSize(16, 16);
constexpr int IndentPerLevel = 8;
constexpr int DepthRole = Qt::UserRole;

/// Indents a folder by its depth, by at most half of the row. With spaces in the text instead, the
/// user could not find a folder by typing its first letters.
class FolderDelegate : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;
    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override {
        QStyleOptionViewItem indented(option);
        const int indent = index.data(DepthRole).toInt() * IndentPerLevel;
        indented.rect.adjust(qMin(indent, option.rect.width() / 2), 0, 0, 0);
        QStyledItemDelegate::paint(painter, indented, index);
    }
};

/// Names are bytes. Bytes that are not UTF-8 become replacement characters.
QString DisplayText(const std::string& name) { return QString::fromStdString(name); }

void AddLabel(QWidget* parent, const LabelText& label, QWidget* buddy) {
    auto* widget = new QLabel(label.Text, parent);
    PlaceControl(*widget, label.Name, label.Place);
    widget->setBuddy(buddy);
    // Qt takes the name of a combo box from its label, so the label needs the English name, too.
    widget->setAccessibleName(label.English);
    buddy->setAccessibleName(label.English);
}

template <typename Widget>
Widget* Add(QWidget* parent, const char* name, const TwipRect& place) {
    auto* widget = new Widget(parent);
    PlaceControl(*widget, name, place);
    return widget;
}

QPushButton* AddButton(QWidget* parent, const char* name, const char* text, const TwipRect& place) {
    auto* button = Add<QPushButton>(parent, name, place);
    button->setText(text);
    return button;
}

}  // namespace

FileDialog::FileDialog(ChooserMode mode) {
    OpenChooser(mode);
    setObjectName("frmOpenSave");
    setWindowTitle(ChooserTitle(mode));
    setAccessibleName(mode == ChooserMode::Open ? "Load Game" : "Save Game");
    setWindowFlags(FixedDialogFlags);
    setPalette(GreyPalette(palette()));
    setFont(JapaneseFont(Points));
    FixInnerArea(*this, InnerWidth, InnerHeight);
    BuildControls();
    ConnectControls();
    ShowChooser();
    txtOpenSave->selectAll();
    CentreOnScreen(*this);
}

void FileDialog::BuildControls() {
    txtOpenSave = Add<QLineEdit>(this, "txtOpenSave", NamePlace);
    filOpenSave = Add<QListWidget>(this, "filOpenSave", FilesPlace);
    lblPath = Add<QLabel>(this, "lblOpenSave2", PathPlace);
    lblPath->setTextFormat(Qt::PlainText);
    dirOpenSave = Add<QListWidget>(this, "dirOpenSave", FoldersPlace);
    drvOpenSave = Add<QComboBox>(this, "drvOpenSave", DrivesPlace);
    AddLabel(this, NameLabel, txtOpenSave);
    AddLabel(this, FolderLabel, dirOpenSave);
    AddLabel(this, DriveLabel, drvOpenSave);
    filOpenSave->setAccessibleName("Files");
    filOpenSave->setUniformItemSizes(true);
    dirOpenSave->setUniformItemSizes(true);
    dirOpenSave->setIconSize(FolderIconSize);
    dirOpenSave->setItemDelegate(new FolderDelegate(dirOpenSave));
}

void FileDialog::ConnectControls() {
    QPushButton* ok = AddButton(this, "cmdOpenSave0", "OK", OkPlace);
    QPushButton* cancel = AddButton(this, "cmdOpenSave1", CancelText, CancelPlace);
    ok->setDefault(true);
    cancel->setAccessibleName("Cancel");
    connect(ok, &QPushButton::clicked, this, [this] { Confirm(); });
    connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
    // The name keeps bytes that the box cannot show until the user edits it.
    connect(txtOpenSave, &QLineEdit::textChanged, this, [](const QString& text) {
        if (text != DisplayText(Chooser.NameBox)) Chooser.NameBox = text.toStdString();
    });
    // The arrow keys also send this.
    connect(filOpenSave, &QListWidget::currentRowChanged, this,
            [this](int row) { ShowClick(row); });
    // This must not fill the lists again: they would then not recognise a double-click.
    connect(filOpenSave, &QListWidget::itemClicked, this,
            [this](QListWidgetItem* item) { ShowClick(filOpenSave->row(item)); });
    connect(filOpenSave, &QListWidget::itemDoubleClicked, this,
            [this](QListWidgetItem* item) { CloseOrShow(ChooseFile(filOpenSave->row(item))); });
    connect(dirOpenSave, &QListWidget::itemDoubleClicked, this,
            [this](QListWidgetItem* item) { EnterRow(dirOpenSave->row(item)); });
    connect(drvOpenSave, &QComboBox::activated, this, [this](int drive) {
        ChooseDrive(drive);
        ShowChooser();
    });
}

void FileDialog::ShowChooser() {
    txtOpenSave->setText(DisplayText(Chooser.NameBox));
    filOpenSave->clear();
    for (const std::string& file : Chooser.Files) filOpenSave->addItem(DisplayText(file));
    // Otherwise the list makes its first row current when it gets the focus.
    filOpenSave->setCurrentIndex({});
    drvOpenSave->clear();
    for (const std::string& drive : Chooser.Drives) drvOpenSave->addItem(DisplayText(drive));
    drvOpenSave->setCurrentIndex(Chooser.Drive);
    ShowFolders();
    ShowPath();
}

void FileDialog::ShowFolders() {
    const QIcon icon = QFileIconProvider().icon(QFileIconProvider::Folder);
    dirOpenSave->clear();
    int current = 0;
    for (const FolderRow& row : Chooser.Folders) {
        auto* item = new QListWidgetItem(icon, DisplayText(row.Name), dirOpenSave);
        item->setData(DepthRole, row.Depth);
        if (row.Path == Chooser.Folder) current = dirOpenSave->count() - 1;
    }
    dirOpenSave->setCurrentRow(current);
    // The parent folder stays visible above the current folder and the folders in it.
    dirOpenSave->scrollToItem(dirOpenSave->item(qMax(current - 1, 0)),
                              QAbstractItemView::PositionAtTop);
}

void FileDialog::EnterRow(int row) {
    ChooseFolder(row);
    ShowChooser();
}

void FileDialog::ShowClick(int row) {
    ClickFile(row);
    txtOpenSave->setText(DisplayText(Chooser.NameBox));
}

/// A path that is too long loses its start, because its end is more useful.
void FileDialog::ShowPath() {
    const QString path = DisplayText(Chooser.Folder);
    lblPath->setText(lblPath->fontMetrics().elidedText(path, Qt::ElideLeft, lblPath->width()));
    lblPath->setAccessibleName("Current folder: " + path);
    // Explicit rich text. Otherwise Qt guesses the format from the name.
    lblPath->setToolTip(Qt::convertFromPlainText(path));
}

void FileDialog::CloseOrShow(bool isDone) {
    if (isDone) {
        accept();
    } else {
        ShowChooser();
    }
}

void FileDialog::Confirm() {
    // If the file is in another folder, the lists show that folder before a box asks about it.
    if (GoToFile(std::string(Chooser.NameBox))) ShowChooser();
    CloseOrShow(ConfirmName(std::string(Chooser.NameBox)));
    txtOpenSave->setFocus();
    txtOpenSave->selectAll();
}

/// Enter opens a folder in the folder list. Elsewhere it is OK.
void FileDialog::keyPressEvent(QKeyEvent* event) {
    const bool isEnter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (isEnter && dirOpenSave->hasFocus()) {
        EnterRow(dirOpenSave->currentRow());
    } else {
        QDialog::keyPressEvent(event);
    }
}

/// Only the close box causes this event. Cancel, Esc and a finished choice do not.
void FileDialog::closeEvent(QCloseEvent* event) {
    ClosedByBox = true;
    QDialog::closeEvent(event);
}

}  // namespace brastel
