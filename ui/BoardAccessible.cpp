#include "ui/BoardAccessible.h"

#include "play/Words.h"
#include "ui/BoardView.h"
#include "ui/Command.h"
#include "ui/KeyboardInput.h"

#include <QAbstractButton>
#include <QAccessibleWidget>
#include <QLabel>
#include <QPointer>

#include <vector>

namespace brastel {

namespace {

// ---- The order of the view's children ----

constexpr int SquareChildren = LastSquare;
constexpr int RedTurnChild = SquareChildren;
constexpr int BlueTurnChild = RedTurnChild + 1;
constexpr int AnnouncementChild = BlueTurnChild + 1;
constexpr int PartCount = AnnouncementChild + 1;

/// A part of the view that has no widget of its own.
class BoardPart : public QAccessibleInterface {
public:
    explicit BoardPart(BoardView* view) : View(view) {}

    bool isValid() const override { return View != nullptr; }
    QObject* object() const override { return nullptr; }
    QWindow* window() const override { return View->window()->windowHandle(); }
    QAccessibleInterface* parent() const override {
        return QAccessible::queryAccessibleInterface(View);
    }
    int childCount() const override { return 0; }
    QAccessibleInterface* child(int /*index*/) const override { return nullptr; }
    QAccessibleInterface* childAt(int /*x*/, int /*y*/) const override { return nullptr; }
    int indexOfChild(const QAccessibleInterface* /*child*/) const override { return -1; }
    void setText(QAccessible::Text /*kind*/, const QString& /*text*/) override {}

    QRect rect() const override {
        const QRect place = Place();
        return {View->mapToGlobal(place.topLeft()), place.size()};
    }
    QString text(QAccessible::Text kind) const override {
        if (kind == QAccessible::Description) return Description();
        return kind == QAccessible::Name ? Name() : QString();
    }

protected:
    /// In view coordinates.
    virtual QRect Place() const = 0;
    virtual QString Name() const = 0;
    virtual QString Description() const { return {}; }

    const QPointer<BoardView> View;
};

/// A square of the board. Its role is that of a button, because it can be pressed.
class SquarePart final : public BoardPart, public QAccessibleActionInterface {
public:
    SquarePart(BoardView* view, int square) : BoardPart(view), Square(square) {}

    QAccessible::Role role() const override { return QAccessible::Button; }
    QAccessible::State state() const override {
        QAccessible::State state;
        state.focusable = true;
        state.focused = View->hasFocus() && Keyboard().FocusSquare() == Square;
        state.selectable = true;
        state.selected = Keyboard().HeldSquare() == Square;
        return state;
    }
    void* interface_cast(QAccessible::InterfaceType type) override {
        return type == QAccessible::ActionInterface ? static_cast<QAccessibleActionInterface*>(this)
                                                    : nullptr;
    }

    QStringList actionNames() const override {
        return {pressAction(), setFocusAction(), RingAction};
    }
    QString localizedActionName(const QString& name) const override {
        return name == RingAction ? name : QAccessibleActionInterface::localizedActionName(name);
    }
    QString localizedActionDescription(const QString& name) const override {
        if (name == pressAction()) return "Takes up the piece, or drops the one that is held";
        if (name == RingAction) return "Gives the ring to the piece, as a double-click does";
        return QAccessibleActionInterface::localizedActionDescription(name);
    }
    QStringList keyBindingsForAction(const QString& name) const override {
        if (name == pressAction()) return {"Space"};
        return name == RingAction ? QStringList("R") : QStringList();
    }
    /// The action runs later: the caller waits until this function returns, and the computer's
    /// answer can take long.
    void doAction(const QString& name) override {
        const bool isPress = name == pressAction();
        const bool isRing = name == RingAction;
        RunLater(View,
                 [view = View.get(), &keyboard = Keyboard(), square = Square, isPress, isRing] {
                     view->setFocus();
                     keyboard.FocusOn(square);
                     if (isPress) keyboard.Press();
                     if (isRing) keyboard.DoubleClick();
                 });
    }

protected:
    QRect Place() const override {
        return {SquareLeft(Square), SquareTop(Square), CellSize, CellSize};
    }
    QString Name() const override { return QString::fromStdString(SquareWithContent(Square)); }

private:
    static inline const QString RingAction = "Give ring";

    KeyboardInput& Keyboard() const { return *View->findChild<KeyboardInput*>(); }

    const int Square;
};

class TurnPart final : public BoardPart {
public:
    TurnPart(BoardView* view, Int16 side) : BoardPart(view), Side(side) {}

    QAccessible::Role role() const override { return QAccessible::StaticText; }
    QAccessible::State state() const override { return {}; }

protected:
    QRect Place() const override { return BoardView::TurnCircle(Side); }
    QString Name() const override {
        const QString side = QString::fromStdString(SideInWords(Side));
        return side + "'s turn circle: " + (View->ShownTurn() == Side ? "to move" : "waiting");
    }
    QString Description() const override { return View->HelpAt(Place().center()); }

private:
    const Int16 Side;
};

/// The text announced last. Screen readers read a notification when it appears.
class AnnouncementPart final : public BoardPart {
public:
    using BoardPart::BoardPart;
    void SetText(const QString& text) { Text = text; }

    QAccessible::Role role() const override { return QAccessible::Notification; }
    QAccessible::State state() const override { return {}; }

protected:
    QRect Place() const override { return {}; }
    QString Name() const override { return Text; }

private:
    QString Text;
};

/// The view itself. Its children are its parts, then its controls.
class BoardInterface final : public QAccessibleWidget {
public:
    explicit BoardInterface(BoardView* view)
        : QAccessibleWidget(view, QAccessible::Grouping, "Board") {
        for (int square = FirstSquare; square <= LastSquare; ++square) {
            Add(new SquarePart(view, square));
        }
        Add(new TurnPart(view, Red));
        Add(new TurnPart(view, Blue));
        Add(new AnnouncementPart(view));
    }

    int childCount() const override { return PartCount + static_cast<int>(Controls().size()); }

    QAccessibleInterface* child(int index) const override {
        if (index < 0 || index >= childCount()) return nullptr;
        if (index < PartCount) return Part(index);
        return QAccessible::queryAccessibleInterface(Controls()[index - PartCount]);
    }

    int indexOfChild(const QAccessibleInterface* child) const override {
        for (int n = 0; n < PartCount; ++n) {
            if (Part(n) == child) return n;
        }
        const auto control = Controls().indexOf(qobject_cast<QWidget*>(child->object()));
        return control < 0 ? -1 : PartCount + static_cast<int>(control);
    }

    QAccessibleInterface* focusChild() const override {
        if (!widget()->hasFocus()) return QAccessibleWidget::focusChild();
        return Part(widget()->findChild<KeyboardInput*>()->FocusSquare() - FirstSquare);
    }

    QString text(QAccessible::Text kind) const override {
        if (kind != QAccessible::Description) return QAccessibleWidget::text(kind);
        return "Arrow keys move, Enter clicks or picks up and drops a piece, Escape lets go, "
               "R double-clicks.\n" +
               BoardView::OpeningHelp();
    }

private:
    ~BoardInterface() override {
        for (const QAccessible::Id id : Parts) QAccessible::deleteAccessibleInterface(id);
    }

    void Add(BoardPart* part) { Parts.push_back(QAccessible::registerAccessibleInterface(part)); }

    QAccessibleInterface* Part(int index) const {
        return QAccessible::accessibleInterface(Parts[static_cast<std::size_t>(index)]);
    }

    QWidgetList Controls() const {
        QWidgetList controls;
        for (QWidget* child : widget()->findChildren<QWidget*>(Qt::FindDirectChildrenOnly)) {
            const bool isControl =
                qobject_cast<QAbstractButton*>(child) || qobject_cast<QLabel*>(child);
            if (isControl) controls.append(child);
        }
        return controls;
    }

    std::vector<QAccessible::Id> Parts;
};

QAccessibleInterface* NewBoardInterface(const QString& /*key*/, QObject* object) {
    auto* view = qobject_cast<BoardView*>(object);
    return view == nullptr ? nullptr : new BoardInterface(view);
}

QAccessibleInterface* Child(QWidget& boardView, int index) {
    return QAccessible::queryAccessibleInterface(&boardView)->child(index);
}

void Notify(QAccessibleInterface* part, QAccessible::Event what) {
    QAccessibleEvent event(part, what);
    QAccessible::updateAccessibility(&event);
}

}  // namespace

void InstallBoardAccessible() { QAccessible::installFactory(NewBoardInterface); }

void NotifySquareChanged(QWidget& boardView, int square) {
    Notify(Child(boardView, square - FirstSquare), QAccessible::NameChanged);
}

void NotifySquareFocused(QWidget& boardView, int square) {
    Notify(Child(boardView, square - FirstSquare), QAccessible::Focus);
}

void NotifyTurnChanged(QWidget& boardView) {
    Notify(Child(boardView, RedTurnChild), QAccessible::NameChanged);
    Notify(Child(boardView, BlueTurnChild), QAccessible::NameChanged);
}

void NotifyAnnouncement(QWidget& boardView, const QString& text) {
    auto* part = static_cast<AnnouncementPart*>(Child(boardView, AnnouncementChild));
    part->SetText(text);
    Notify(part, QAccessible::NameChanged);
    Notify(part, QAccessible::ObjectShow);
}

}  // namespace brastel
