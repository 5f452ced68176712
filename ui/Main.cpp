#include "ui/MainWindow.h"

#include <QApplication>

#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <new>

namespace {

[[noreturn]] void End(const char* text) {
    std::fputs(text, stderr);
    std::_Exit(EXIT_FAILURE);
}

[[noreturn]] void EndWithoutMemory() { End("Brastel: there is no memory left\n"); }

/// Ends the program if there is less memory than it needs to open its window, about 45 MB: some
/// libraries crash where they get none.
void RequireMemory() {
    constexpr std::size_t Enough = std::size_t{64} << 20;
    ::operator delete(::operator new(Enough));
}

/// Qt throws std::bad_alloc of its own accord, where nobody catches it.
[[noreturn]] void EndUncaught() {
    try {
        if (std::current_exception()) throw;
    } catch (const std::bad_alloc&) {
        EndWithoutMemory();
    } catch (...) {
    }
    std::abort();
}

/// Qt's own handler, once Qt has started.
QtMessageHandler UsualHandler = nullptr;

/// If Qt cannot start, mostly because there is no display, it would print several lines and abort
/// with a core dump; here it prints the last warning, which tells why, and the first line of the
/// final message. Without memory, it would go on with a window that shows nothing or never opens.
void HandleMessage(QtMsgType type, const QMessageLogContext& context, const QString& message) {
    static QByteArray reason;
    if (message.contains("out of memory")) EndWithoutMemory();
    const QByteArray line = "Brastel: " + message.section('\n', 0, 0).toLocal8Bit() + '\n';
    const bool isLost = message.contains("Thread creation error");
    if (isLost || type == QtFatalMsg) End(reason + line);
    if (UsualHandler) return UsualHandler(type, context, message);
    if (type == QtWarningMsg) reason = line;
}

}  // namespace

int main(int /*argc*/, char* argv[]) {
    // Writing to a broken pipe or past a size limit is an error to report, not the end.
    std::signal(SIGPIPE, SIG_IGN);
    std::signal(SIGXFSZ, SIG_IGN);
    std::set_new_handler(EndWithoutMemory);
    std::set_terminate(EndUncaught);
    RequireMemory();
    // No argument reaches the toolkit: the program knows no options.
    int count = 1;
    char* name[] = {argv[0], nullptr};
    const QtMessageHandler usual = qInstallMessageHandler(HandleMessage);
    const QApplication application(count, name);
    UsualHandler = usual;
    // By this name docks find the desktop entry, and with it the icon.
    QGuiApplication::setDesktopFileName("org.brastel.Brastel");
    // The window is hidden while a dialog stands in for it.
    QApplication::setQuitOnLastWindowClosed(false);

    brastel::MainWindow window;
    window.OpenMainWindow();
    return QApplication::exec();
}
