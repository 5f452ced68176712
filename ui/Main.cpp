#include "ui/MainWindow.h"

#include <QApplication>

#include <cstdio>
#include <cstdlib>

namespace {

/// In force while Qt looks for a display. Without one Qt would print several lines and abort with a
/// core dump.
void ReportMissingDisplay(QtMsgType type, const QMessageLogContext& /*context*/,
                          const QString& /*message*/) {
    if (type != QtFatalMsg) return;
    std::fputs("Brastel: there is no display to open a window on.\n", stderr);
    std::_Exit(EXIT_FAILURE);
}

}  // namespace

int main(int /*argc*/, char* argv[]) {
    // No argument reaches the toolkit: the program knows no options.
    int count = 1;
    char* name[] = {argv[0], nullptr};
    const QtMessageHandler usual = qInstallMessageHandler(ReportMissingDisplay);
    const QApplication application(count, name);
    qInstallMessageHandler(usual);
    // The window is hidden while a dialog stands in for it.
    QApplication::setQuitOnLastWindowClosed(false);

    brastel::MainWindow window;
    window.OpenMainWindow();
    return QApplication::exec();
}
