#include "ui/Command.h"

#include "play/GameState.h"

#include <QApplication>
#include <QTimer>

namespace brastel {

namespace {

bool MayCommand() { return !IsThinking && QApplication::activeModalWidget() == nullptr; }

}  // namespace

void RunLater(QObject* context, const std::function<void()>& command) {
    if (!MayCommand()) return;
    auto* timer = new QTimer(context);
    timer->setSingleShot(true);
    timer->callOnTimeout(context, [timer, command] {
        timer->deleteLater();
        if (MayCommand()) command();
    });
    timer->start(0);
}

}  // namespace brastel
