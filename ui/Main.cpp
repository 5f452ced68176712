#include "ui/MainWindow.h"

#include <QApplication>

#include <csignal>
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
    // Writing to a broken pipe or past a size limit is an error to report, not the end.
    std::signal(SIGPIPE, SIG_IGN);
    std::signal(SIGXFSZ, SIG_IGN);
    // No argument reaches the toolkit: the program knows no options.
    int count = 1;
    char* name[] = {argv[0], nullptr};
    const QtMessageHandler usual = qInstallMessageHandler(ReportMissingDisplay);
    const QApplication application(count, name);
    qInstallMessageHandler(usual);
    // By this name docks find the desktop entry, and with it the icon.
    QGuiApplication::setDesktopFileName("org.brastel.Brastel");
    // The window is hidden while a dialog stands in for it.
    QApplication::setQuitOnLastWindowClosed(false);

    brastel::MainWindow window;
    window.OpenMainWindow();
    return QApplication::exec();
}
