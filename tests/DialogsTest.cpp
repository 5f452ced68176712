#include "files/FileChooser.h"
#include "tests/FilesTest.h"
#include "tests/WindowTest.h"
#include "ui/Layout.h"

#include <QListWidget>
#include <QMenuBar>
#include <QMessageBox>
#include <QPaintEngine>
#include <QPointer>
#include <QTextDocumentFragment>

namespace brastel {
namespace {

template <typename... Value>
QString Text(const Value&... values) {
    QString text;
    (QDebug(&text).noquote() << ... << values);
    return text.trimmed();
}

/// Writes down what a window paints: rectangles, and texts by the middle of their left edge.
struct PaintLog : QPaintDevice, private QPaintEngine {
    PaintLog() : QPaintEngine(AllFeatures) {}
    QPaintEngine* paintEngine() const override { return const_cast<PaintLog*>(this); }
    int metric(PaintDeviceMetric what) const override {
        return what == PdmDevicePixelRatio ? 1 : what == PdmDevicePixelRatioScaled ? 0x10000 : 96;
    }
    bool begin(QPaintDevice* /*device*/) override { return true; }
    bool end() override { return true; }
    void updateState(const QPaintEngineState& /*state*/) override {}
    Type type() const override { return User; }
    void drawPixmap(const QRectF& /*r*/, const QPixmap& /*p*/, const QRectF& /*part*/) override {}
    void drawPath(const QPainterPath& /*path*/) override {}
    void drawRects(const QRectF* rects, int /*count*/) override {
        Lines += Text(rects->toRect(), painter()->brush().color().name());
    }
    void drawTextItem(const QPointF& place, const QTextItem& item) override {
        const double height = item.ascent() + item.descent();
        const QRectF box(place.x(), place.y() - item.ascent(), item.width(), height);
        TextPlaces += painter()->transform().mapRect(box);
        Lines += Text(qRound(place.x()), qRound(box.center().y()), painter()->pen().color().name(),
                      item.font().pixelSize(), item.font().weight(), '"' + item.text() + '"');
    }

    QStringList Lines;
    QList<QRectF> TextPlaces;
};

constexpr const char* Usual =
    "windowTitle= text= currentText= accessibleName= accessibleDescription= toolTip= visible=true "
    "enabled=true checked=false default=false textFormat=AutoText";

/// An object with those properties that are not as usual.
QString Line(const QString& name, const QObject& object) {
    QString line = name;
    for (const QString& usual : QString(Usual).split(' ')) {
        const QString property = usual.section('=', 0, 0) + '=';
        const QString value = object.property(property.chopped(1).toUtf8()).toString();
        if (value.isEmpty() || property + value == usual) continue;
        line += ' ' + property + '"' + value + '"';
    }
    return line;
}

/// The window, its named controls in the order of the Tab key, and what is painted between them.
QStringList Lines(QWidget& window) {
    if (const auto* box = qobject_cast<QMessageBox*>(&window)) {
        return {Line("box", window),
                Text(box->icon(), box->standardButtons(), box->defaultButton()->text(),
                     box->font() == JapaneseFont(9))};
    }
    auto* form = window.findChild<QWidget*>("Form");
    const QRect screen = window.screen()->geometry();
    const QRect frame = window.frameGeometry();
    QStringList lines{
        Line(window.objectName(), window),
        Text(window.windowFlags(), window.minimumSize() == window.maximumSize() ? "fixed" : "",
             (form != nullptr ? *form : window).size(),
             screen.contains(frame) ? frame.center() - screen.center() : frame.topLeft(),
             window.palette().color(QPalette::Window) == WindowGround ? "grey" : "")};
    for (auto* part = window.nextInFocusChain(); part != &window; part = part->nextInFocusChain()) {
        const QString name = part->objectName();
        const bool isNeverShown = name.isEmpty() || name.startsWith("qt_") || name == "DragOutline";
        if (part == form || isNeverShown || !(part->isVisible() || part->isEnabled())) continue;
        lines += Line(Text(name, part->geometry(), part->font().bold() ? "bold" : ""), *part);
        const auto* label = qobject_cast<QLabel*>(part);
        if (label && label->buddy()) lines.back() += " names " + label->buddy()->objectName();
    }
    if (form != nullptr) return lines;
    PaintLog log;
    window.render(&log, {}, {}, {});
    for (const QRectF& place : log.TextPlaces) {
        EXPECT_FALSE(place.intersects(window.findChild<QWidget*>("btn_OK")->geometry()));
        EXPECT_TRUE(place.top() > window.height() || place.right() < window.width());
    }
    return lines + log.Lines;
}

/// In a deep folder with many below it and some files of other games.
class DialogsTest : public WindowTest {
protected:
    DialogsTest() {
        for (int n = 10; n < 40; ++n) fs::create_directories(Base / ("f" + std::to_string(n)));
        for (const char* name : {"sub", "<b>Q&A  "}) fs::create_directory(Base / name);
        Begin();
    }

    /// Two people have placed their rings, Red has moved, and no file has been chosen yet.
    void Begin() {
        SetFileView(&Window);
        ForgetVisits();
        LoadedFileName.clear();
        ChosenFileName = "*.*";
        fs::current_path(Base);
        fs::remove("new");
        for (const char* name : {"a", "b1", "b\xff", "sub/deep"}) WriteBytes(name, "0 0 4 109 0");
        WriteBytes("sub/bad", "13 8");
        Do("layout2 mnu_TwoPlayer !68 !44 67-59");
    }

    static void Mouse(QTest::MouseAction action, QWidget& dialog, const QString& what) {
        auto* control = dialog.findChild<QWidget*>(what.section('/', 0, 0));
        QRect place = control->rect();
        if (auto* list = qobject_cast<QListWidget*>(control)) {
            auto* row = list->findItems(what.section('/', 1), Qt::MatchExactly).at(0);
            list->scrollToItem(row);
            place = list->visualItemRect(row);
            control = list->viewport();
        }
        QTest::mouseEvent(action, dialog.windowHandle(), Qt::LeftButton, {},
                          control->mapTo(&dialog, place.center()));
    }

    /// "click" or "double" on a control or a row of a list, "focus" on a control, "type" in the
    /// name box, "close" by the close box; other steps are keys. "drives" pretends to two drives.
    void Act(QWidget& dialog, const QString& step) {
        const QString word = step.section(' ', 0, 0);
        const QString what = step.section(' ', 1);
        if (word == "click") return Mouse(QTest::MouseClick, dialog, what);
        if (word == "double") return Mouse(QTest::MouseDClick, dialog, what);
        if (word == "focus") return dialog.findChild<QWidget*>(what)->setFocus();
        if (word == "type")
            return void(dialog.findChild<QWidget*>("txtOpenSave")->setProperty("text", what));
        if (word == "close") return void(dialog.close());
        if (word == "describe") return void((Transcript += Lines(dialog)) += Line("above", Window));
        if (word == "drives") Chooser.Drives = {Base / "sub", Base};
        if (word == "drives") return void(Chooser.Drive = what.toInt());
        const QKeyCombination key = QKeySequence(step)[0];
        QTest::keyClick(dialog.windowHandle(), key.key(), key.keyboardModifiers());
    }

    /// Chooses a menu item, as in "mnu_Rules", and takes the steps, with commas between,
    /// in the dialog that opens and, behind a bar, in a box above it. Tells what the dialog shows
    /// under the box, and at last what it shows or, if it was left, what that has led to.
    QString Try(const QString& line) {
        std::vector<Answer> answers;
        QString told, last;
        for (const QString& steps : line.section(' ', 1).split(" | ")) {
            answers.emplace_back([this, steps, &told, &last](QWidget& dialog) {
                const QPointer<QWidget> guard(&dialog);
                ASSERT_TRUE(QTest::qWaitForWindowActive(&dialog));
                if (dialog.inherits("QMessageBox")) told = Look(*dialog.parentWidget()) + " | ";
                for (const QString& step : steps.split(", ", Qt::SkipEmptyParts)) {
                    ASSERT_TRUE(guard && dialog.isVisible()) << "before " << step.toStdString();
                    Act(dialog, step);
                }
                if (!guard || !dialog.isVisible()) return;
                last = Look(dialog);
                static_cast<QDialog&>(dialog).reject();
            });
        }
        ChooseAndAnswer(line.section(' ', 0, 0).toStdString(), answers);
        return told + (last.isEmpty() ? Outcome() : last);
    }

    /// Tries the lines of a file that begin with >, and expects the others to tell what is seen
    /// then, behind what is in the transcript already.
    void Follow(const char* path) {
        const QStringList lines = QString::fromStdString(BytesOf(path)).split('\n');
        for (const QString& line : lines) {
            if (!line.startsWith("> ")) continue;
            Begin();
            Transcript += line;
            Transcript += Try(line.mid(2));
        }
        for (qsizetype n = 0; n < lines.size(); ++n) {
            EXPECT_EQ(Transcript.value(n).toStdString(), lines[n].toStdString()) << n + 1;
        }
    }

    /// The control with the focus, the name box with its selection in brackets, the files with the
    /// current one marked, the folder, the row of the folder list if it is another, and the drive
    /// if it is another than the first.
    QString Look(QWidget& dialog) const {
        const auto* name = dialog.findChild<QWidget*>("txtOpenSave");
        const auto* files = dialog.findChild<QListWidget*>("filOpenSave");
        const auto* folders = dialog.findChild<QListWidget*>("dirOpenSave");
        const auto* path = dialog.findChild<QLabel*>("lblOpenSave2");
        if (name == nullptr) return "left open";
        const QString selected = name->property("selectedText").toString();
        QString look = dialog.focusWidget()->objectName() + ' ';
        look += selected.isEmpty() ? name->property("text").toString() : '[' + selected + ']';
        for (int row = 0; row < files->count(); ++row) {
            look += (row == files->currentRow() ? " >" : " ") + files->item(row)->text();
        }
        const std::string under = fs::current_path().lexically_relative(Base);
        look += QString(" in ") + (under.starts_with("../..") ? "elsewhere" : under.c_str());
        const int row = folders->currentRow();
        const QString folder = fs::current_path().c_str();
        const QString chosen = folders->item(row)->text();
        if (!folder.endsWith('/' + chosen)) return look + " at " + chosen;
        for (const int near : {row - 1, qMin(row + 3, folders->count() - 1)}) {
            const QRect place = folders->visualItemRect(folders->item(near));
            EXPECT_TRUE(folders->viewport()->rect().contains(place)) << "the next to be entered";
        }
        PaintLog log;
        folders->viewport()->render(&log);
        EXPECT_LT(log.TextPlaces.first().left(), log.TextPlaces.last().left()) << "not indented";
        EXPECT_TRUE(path->text().size() > 30 && folder.endsWith(path->text().mid(1)));
        EXPECT_EQ(QTextDocumentFragment::fromHtml(path->toolTip()).toPlainText(), folder);
        const int drive =
            dialog.findChild<QWidget*>("drvOpenSave")->property("currentIndex").toInt();
        return look + (drive == 0 ? "" : " on " + QString::number(drive));
    }

    /// The number of pieces, what the window shows, and the files loaded or saved.
    QString Outcome() {
        QString outcome = Text(Pos.RedCount, Pos.BlueCount, State().c_str());
        if (!Window.isVisible()) return outcome + (Window.IsClosing() ? " ends" : " hidden");
        const fs::path loaded = fs::path(LoadedFileName).lexically_relative(Base);
        if (!loaded.empty()) outcome += QString(" loads ") + loaded.c_str();
        for (const char* name : {"a", "b1", "b\xff", "sub/deep", "new"}) {
            if (BytesOf(Base / name).starts_with(" 6")) outcome += QString(" saves ") + name;
        }
        return outcome;
    }

    const FileDesk Desk;
    const fs::path Base = Desk.Folder / "of/many/folders/games";
    QStringList Transcript;
};

TEST_F(DialogsTest, EveryWindowShowsItsTextsAndControls) {
    for (int n = 1; n <= static_cast<int>(FileError::FileTooLong); ++n) {
        const auto error = static_cast<FileError>(n);
        Transcript += Text(FileErrorText(error).c_str(), FileErrorInWords(error).data());
    }
    Window.OpenMainWindow();
    Transcript += Lines(Window);
    for (const auto* top : Window.menuBar()->actions()) {
        Transcript += Line(top->menu()->objectName(), *top);
        for (const auto* item : top->menu()->actions())
            Transcript += Line(item->objectName(), *item);
    }
    Follow(BRASTEL_TEST_DATA "/window_texts.txt");
}

/// The focus alone once put the name of the first file into the box, and OK overwrote that file.
TEST_F(DialogsTest, EveryControlDoesItsOwn) { Follow(BRASTEL_TEST_DATA "/dialogs.txt"); }

/// A sandbox makes the program's folder read-only.
TEST_F(DialogsTest, FilesAreKeptInAFolderThatIsWritable) {
    const QByteArray home = qgetenv("HOME");
    const QFileInfo program(QCoreApplication::applicationDirPath());
    qputenv("HOME", Base.c_str());
    for (const fs::path& folder : {Base, Base / "Documents"}) {
        fs::create_directory(folder);
        EXPECT_EQ(Window.ProgramFolder(),
                  program.isWritable() ? program.filePath().toStdString() : folder.string());
    }
    qputenv("HOME", home);
}

}  // namespace
}  // namespace brastel
