#include "tools/monkey/Aims.h"

#include "tools/Chance.h"

#include <QApplication>
#include <QListWidget>
#include <QMenuBar>

namespace brastel {

QWidget& Outline() { return *GameWindow->findChild<QWidget*>("DragOutline"); }

QWidget& Top() {
    if (QWidget* popup = QApplication::activePopupWidget()) return *popup;
    if (QWidget* modal = QApplication::activeModalWidget()) return *modal;
    return *GameWindow;
}

QPoint Centre(int square) {
    const QPoint middle(CellSize / 2, CellSize / 2);
    const QPoint corner(SquareLeft(square), SquareTop(square));
    return GameWindow->centralWidget()->mapTo(GameWindow, corner + middle);
}

int AnyPieceSquare() {
    const int side = OneIn(4) ? -Pos.SideToMove : Pos.SideToMove;
    const int count = PieceCount(side);
    const int square = count > 0 ? SquaresOf(side)[1 + Roll(count)] : NoSquare;
    return square == NoSquare ? 1 + Roll(LastSquare) : square;
}

QPoint PlaceOn(QWidget& widget) {
    QList<QAction*> actions = widget.actions();
    if (auto* menu = qobject_cast<QMenu*>(&widget); menu != nullptr && !actions.empty()) {
        return menu->actionGeometry(AnyOf(actions)).center();
    }
    if (auto* bar = qobject_cast<QMenuBar*>(&widget); bar != nullptr && !OneIn(3)) {
        return bar->actionGeometry(AnyOf(actions)).center();
    }
    if (auto* list = qobject_cast<QListWidget*>(widget.parent()); list != nullptr) {
        return list->visualItemRect(list->item(Roll(qMax(1, list->count())))).center();
    }
    if (OneIn(3)) return widget.rect().center();
    return {Roll(qMax(1, widget.width())), Roll(qMax(1, widget.height()))};
}

QPoint AnyPlace() {
    QWidget& top = Top();
    if (OneIn(8)) return {Roll(top.width() + 200) - 100, Roll(top.height() + 200) - 100};
    if (&top == GameWindow && OneIn(2)) return Centre(AnyPieceSquare());
    QList<QWidget*> parts{&top};
    for (QWidget* part : top.findChildren<QWidget*>()) {
        if (part->isVisible() && part->window() == &top) parts.push_back(part);
    }
    QWidget* part = AnyOf(parts);
    return part->mapTo(&top, PlaceOn(*part));
}

QPoint MiddleOf(const QWidget& part) { return part.mapTo(part.window(), part.rect().center()); }

}  // namespace brastel
