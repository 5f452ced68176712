#include "ui/Command.h"

#include "play/GameState.h"

#include <QApplication>

namespace brastel {

namespace {

bool MayCommand() { return !IsThinking && QApplication::activeModalWidget() == nullptr; }

}  // namespace

void RunLater(QObject* context, const std::function<void()>& command) {
    if (!MayCommand()) return;
    const auto run = [command] {
        if (MayCommand()) command();
    };
    QMetaObject::invokeMethod(context, run, Qt::QueuedConnection);
}

}  // namespace brastel
