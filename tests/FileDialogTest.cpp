#include "core/StartPosition.h"
#include "files/FileChooser.h"
#include "files/GameFile.h"
#include "play/GameRecord.h"
#include "play/GameState.h"
#include "tests/WindowTest.h"

#include <QDir>
#include <QFile>
#include <QLineEdit>
#include <QListWidget>
#include <QMessageBox>
#include <QTemporaryDir>
#include <QTextDocumentFragment>

namespace brastel {

namespace {

constexpr const char* Options = "mnu_Options";
constexpr const char* LoadItem = "mnuFileItem1";
constexpr const char* SaveItem = "mnuFileItem2";

/// Save and load through the real dialogs, in a folder of the test's own.
class FileDialogTest : public WindowTest {
protected:
    FileDialogTest() {
        QDir::setCurrent(Folder.path());
        ChosenFileName.clear();
        LoadedFileName.clear();
        LoadedCount = 0;
    }
    ~FileDialogTest() override { QDir::setCurrent(Before); }

    // ---- Answers ----

    static void Type(QWidget& dialog, const QString& text) {
        dialog.findChild<QLineEdit*>("txtOpenSave")->setText(text);
        ClickIn(dialog, "cmdOpenSave0");
    }
    static Answer Name(const QString& text) {
        return [text](QWidget& dialog) { Type(dialog, text); };
    }
    static Answer Button(const char* name) {
        return [name](QWidget& dialog) { ClickIn(dialog, name); };
    }
    static Answer Key(Qt::Key key) {
        return [key](QWidget& dialog) { QTest::keyClick(dialog.windowHandle(), key); };
    }
    static void ClickItem(QWidget& dialog, QListWidget& list, QListWidgetItem* item,
                          QTest::MouseAction click) {
        list.scrollToItem(item);
        const QPoint place = list.visualItemRect(item).center();
        QTest::mouseEvent(click, dialog.windowHandle(), Qt::LeftButton, {},
                          list.viewport()->mapTo(&dialog, place));
    }
    static Answer DoubleClickFile(const QString& name) {
        return [name](QWidget& dialog) {
            auto* list = dialog.findChild<QListWidget*>("filOpenSave");
            const auto items = list->findItems(name, Qt::MatchExactly);
            ASSERT_EQ(items.size(), 1);
            ClickItem(dialog, *list, items[0], QTest::MouseDClick);
        };
    }
    /// Checks a message box word for word and leaves it by a button.
    static Answer Box(const QString& text, const QString& title, QMessageBox::Icon icon,
                      QMessageBox::StandardButton standard, QMessageBox::StandardButton chosen) {
        return [=](QWidget& dialog) {
            auto* box = qobject_cast<QMessageBox*>(&dialog);
            ASSERT_NE(box, nullptr);
            EXPECT_EQ(box->text(), text);
            EXPECT_EQ(box->windowTitle(), title);
            EXPECT_EQ(box->icon(), icon);
            EXPECT_EQ(box->standardButton(box->defaultButton()), standard);
            const QWidget* button = box->button(chosen);
            QTest::mouseClick(box->windowHandle(), Qt::LeftButton, {},
                              button->mapTo(box, button->rect().center()));
        };
    }
    static Answer Overwrite(QMessageBox::StandardButton chosen) {
        return Box("ファイルを上書きしますか？", "メニュー", QMessageBox::NoIcon, QMessageBox::No,
                   chosen);
    }
    static Answer ErrorBox(int number) {
        return Box(QString("エラーが発生しました。もう一度実行してください。%1").arg(number),
                   "テキストエディタ", QMessageBox::Warning, QMessageBox::Ok, QMessageBox::Ok);
    }

    // ---- Files ----

    QString PathOf(const QString& name) const { return Folder.filePath(name); }
    QByteArray Bytes(const QString& name) const {
        QFile file(PathOf(name));
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        return file.readAll();
    }
    void Write(const QString& name, const QByteArray& bytes) const {
        QFile file(PathOf(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
    }

    /// Two people have placed their rings and moved once each.
    void PlayTwoMoves() {
        OpenForTwo(3, 68, 44);
        Drag(66, 58);
        Drag(42, 50);
    }

    const QTemporaryDir Folder;
    const QString Before = QDir::currentPath();
};

TEST_F(FileDialogTest, AGameIsSavedOverwrittenLoadedAndSteppedThrough) {
    PlayTwoMoves();
    const Position played = Pos;
    ChooseAndAnswer(Options, SaveItem, {Name("a game")});
    const QByteArray saved = Bytes("a game");
    EXPECT_TRUE(saved.startsWith(" 8  8 \r\n 4 \r\n 66 \r\n"));
    EXPECT_TRUE(saved.endsWith(" 4 \r\n 68  0 \r\n 44  0 \r\n 66  58 \r\n 42  50 \r\n"));
    EXPECT_EQ(ChosenFileName, "") << "a typed new name is not proposed again";

    Drag(67, 59);
    ChooseAndAnswer(Options, SaveItem, {DoubleClickFile("a game"), Overwrite(QMessageBox::No)});
    EXPECT_EQ(Bytes("a game"), saved);
    ChooseAndAnswer(Options, SaveItem,
                    {[this](QWidget& dialog) {
                         EXPECT_EQ(dialog.windowTitle(), "新規保存");
                         auto* name = dialog.findChild<QLineEdit*>("txtOpenSave");
                         EXPECT_EQ(name->selectedText(), PathOf("a game"));
                         ClickIn(dialog, "cmdOpenSave0");
                     },
                     [](QWidget& box) {
                         const auto* name = box.parent()->findChild<QLineEdit*>("txtOpenSave");
                         EXPECT_EQ(name->text(), "a game") << "the lists show the file's folder";
                         Overwrite(QMessageBox::Yes)(box);
                     }});
    EXPECT_TRUE(Bytes("a game").endsWith(" 67  59 \r\n"));
    EXPECT_EQ(Pos.MoveCount, 6) << "saving does not touch the game";

    Write("a game", saved);
    Open(0);
    ChooseAndAnswer(Options, LoadItem, {DoubleClickFile("a game")});
    EXPECT_EQ(Pos.RedCount, 8);
    EXPECT_EQ(Level, 1);
    EXPECT_TRUE(IsItemChecked("mnu_Easy"));
    EXPECT_FALSE(IsShown("btn_Backward"));
    for (int n = 0; n < 4; ++n) {
        EXPECT_TRUE(IsShown("btn_Forward"));
        ClickButton("btn_Forward");
        ExpectViewShowsPosition();
    }
    EXPECT_FALSE(IsShown("btn_Forward"));
    EXPECT_EQ(Pos, played);
    for (int n = 0; n < 4; ++n) ClickButton("btn_Backward");
    EXPECT_EQ(Pos.MoveCount, 1);
    EXPECT_FALSE(IsShown("btn_Backward"));

    // The same file again is not read, yet its game can be stepped through again.
    ClickButton("btn_Forward");
    QFile::remove(PathOf("a game"));
    Write("a game", "damaged");
    ChooseAndAnswer(Options, LoadItem, {Name(PathOf("a game"))});
    EXPECT_EQ(Pos.MoveCount, 1);
    EXPECT_TRUE(IsShown("btn_Forward"));
}

TEST_F(FileDialogTest, LeavingTheLoadDialogGoesBackToTheStart) {
    for (const Answer& leave : {Button("cmdOpenSave1"), Key(Qt::Key_Escape)}) {
        PlayTwoMoves();
        ChooseAndAnswer(Options, LoadItem, {leave});
        EXPECT_EQ(Pos.MoveCount, 1);
        EXPECT_FALSE(IsShown("btn_Backward"));
        EXPECT_TRUE(IsShown("btn_Forward"));
        ExpectViewShowsPosition();
    }
    PlayTwoMoves();
    ChooseAndAnswer(Options, SaveItem, {Button("cmdOpenSave1")});
    EXPECT_EQ(Pos.MoveCount, 5);
}

/// The focus alone once put the name of the first file into the box, and OK overwrote that file.
TEST_F(FileDialogTest, TheNameIsClickedTypedAndChosenByKeys) {
    for (const char* file : {"a", "b1", "b2"}) Write(file, "");
    const std::pair<Qt::Key, const char*> Steps[] = {
        {Qt::Key_M, "m"},     {Qt::Key_Tab, "m"},  {Qt::Key_Tab, "m"}, {Qt::Key_Backtab, "m"},
        {Qt::Key_Down, "a"},  {Qt::Key_End, "b2"}, {Qt::Key_B, "b1"},  {Qt::Key_Backtab, "b1"},
        {Qt::Key_Space, " "}, {Qt::Key_Tab, " "},  {Qt::Key_Up, "a"}};
    const auto tryAll = [&Steps](QWidget& dialog) {
        auto* name = dialog.findChild<QLineEdit*>("txtOpenSave");
        auto* files = dialog.findChild<QListWidget*>("filOpenSave");
        EXPECT_EQ(dialog.size(), QSize(480, 267));
        ASSERT_TRUE(QTest::qWaitForWindowActive(&dialog));
        for (const auto& [key, expected] : Steps) {
            if (key == Qt::Key_Space) name->selectAll();
            QTest::keyClick(dialog.windowHandle(), key);
            EXPECT_EQ(name->text().toStdString(), expected);
        }
        ClickItem(dialog, *files, files->item(2), QTest::MouseClick);
        EXPECT_EQ(name->text(), "b2");
        Type(dialog, "b*");
        EXPECT_EQ(files->count(), 2);
        EXPECT_TRUE(name->hasFocus());
        EXPECT_EQ(name->selectedText(), "b*");
        ClickIn(dialog, "cmdOpenSave1");
    };
    for (const char* item : {LoadItem, SaveItem}) ChooseAndAnswer(Options, item, {tryAll});
}

TEST_F(FileDialogTest, FoldersAreFoundByTheirFirstLetters) {
    for (int n = 10; n < 40; ++n) QDir::current().mkpath(QString("p/q/r/s/f%1").arg(n));
    QDir::current().mkpath("p/q/r/s/<b>Q&A  ");
    QDir::setCurrent("p/q/r/s");
    const auto tryAll = [](QWidget& dialog) {
        auto* folders = dialog.findChild<QListWidget*>("dirOpenSave");
        const int own = folders->currentRow();
        const QRect view = folders->viewport()->rect();
        for (const int row : {own - 1, own + 3}) {
            EXPECT_TRUE(view.contains(folders->visualItemRect(folders->item(row))));
        }
        folders->setFocus();
        QTest::keyClick(dialog.windowHandle(), Qt::Key_Less);
        EXPECT_EQ(folders->currentItem()->text(), "<b>Q&A  ");
        QTest::keyClick(dialog.windowHandle(), Qt::Key_Return);
        const QString tip = dialog.findChild<QLabel*>("lblOpenSave2")->toolTip();
        EXPECT_TRUE(Qt::mightBeRichText(tip));
        EXPECT_TRUE(QTextDocumentFragment::fromHtml(tip).toPlainText().endsWith("/<b>Q&A  "));
        ClickItem(dialog, *folders, folders->item(own), QTest::MouseDClick);
        EXPECT_EQ(folders->count(), own + 32);
        ClickIn(dialog, "cmdOpenSave1");
    };
    ChooseAndAnswer(Options, LoadItem, {tryAll});
}

TEST_F(FileDialogTest, AFailedLoadLeavesTheWindowUsable) {
    PlayTwoMoves();
    ChooseAndAnswer(Options, SaveItem, {Name("good")});
    Write("bad", " 13  8 \r\n 4 \r\n 66  67  68  69  70  71  28  29  74  79  27  30 \r\n 31 ");
    ChooseAndAnswer(Options, LoadItem, {Name("bad"), ErrorBox(6)});
    EXPECT_EQ(Pos.RedCount, 13);
    EXPECT_EQ(PieceCount(Red), MaxPieces);
    EXPECT_TRUE(Window.isVisible());
    ExpectViewShowsPosition();
    DoubleClick(66);
    ClickButton("btn_Hint");
    ExpectViewShowsPosition();
    ChooseAndAnswer(Options, LoadItem, {Name(PathOf("good"))});
    EXPECT_EQ(Pos.RedCount, 8);
    EXPECT_EQ(LoadedCount, 4);
    ExpectViewShowsPosition();
}

TEST_F(FileDialogTest, TheCloseBoxEndsTheProgram) {
    PlayTwoMoves();
    ChooseAndAnswer(Options, SaveItem, {[](QWidget& dialog) { dialog.close(); }});
    EXPECT_FALSE(Window.isVisible());
    EXPECT_TRUE(Window.IsClosing());
    EXPECT_EQ(Pos.MoveCount, 5);
}

/// The button once covered parts of rule 9, whose lines were cut at the right edge.
TEST_F(FileDialogTest, TheRulesAreShownWhole) {
    const auto look = [](QWidget& dialog) {
        EXPECT_EQ(dialog.windowTitle(), "Orvel Game Rules");
        EXPECT_EQ(dialog.size(), QSize(1077, 912));
        const auto isBlank = [&dialog](int left, int top, int width, int height) {
            const QImage part = dialog.grab({left, top, width, height}).toImage();
            QImage blank = part;
            blank.fill(Qt::white);
            return part == blank;
        };
        // The middle of a line, which descenders of the line above do not reach.
        const auto isLineBlank = [&](int line) {
            return isBlank(0, 912 * (line - 1) / 36 + 8, 800, 14);
        };
        for (const int line : {3, 5, 22, 30, 31, 33}) EXPECT_FALSE(isLineBlank(line)) << line;
        for (const int line : {1, 2, 4, 29, 32, 36}) EXPECT_TRUE(isLineBlank(line)) << line;
        EXPECT_TRUE(isBlank(1074, 0, 3, 912));
        EXPECT_TRUE(isBlank(930, 592, 3, 34));
        QTest::keyClick(dialog.windowHandle(), Qt::Key_Escape);
        EXPECT_TRUE(dialog.isVisible());
        PressByEnter(dialog, "btn_OK");
    };
    ChooseAndAnswer("mnu_Help", "mnu_Rules", {look});
}

}  // namespace

}  // namespace brastel
