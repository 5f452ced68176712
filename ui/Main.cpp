/// The program `brastel`.

#include "ui/MainWindow.h"

#include <QApplication>
#include <QDir>
#include <QIcon>

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

/// Ends the program if there is less memory than it needs to open its window (about 45 MB). Without
/// this, some libraries crash when they get no memory.
void RequireMemory() {
    constexpr std::size_t Enough = std::size_t{64} << 20;
    ::operator delete(::operator new(Enough));
}

/// Qt itself throws std::bad_alloc in places where nothing can catch it.
[[noreturn]] void EndUncaught() {
    try {
        if (std::current_exception()) throw;
    } catch (const std::bad_alloc&) {
        EndWithoutMemory();
    } catch (...) {
    }
    std::abort();
}

/// The handler of Qt. Null until Qt has started.
QtMessageHandler UsualHandler = nullptr;

/// Qt cannot start without a display. By itself it then prints several lines and aborts with a core
/// dump. Here it prints the last warning, which gives the cause, and the first line of its final
/// message. Without memory, Qt goes on with a window that is empty or never opens, so the program
/// ends here.
void HandleMessage(QtMsgType type, const QMessageLogContext& context, const QString& message) {
    static QByteArray reason;
    if (message.contains("out of memory")) EndWithoutMemory();
    const QByteArray line = "Brastel: " + message.section('\n', 0, 0).toLocal8Bit() + '\n';
    const bool isLost = message.contains("Thread creation error");
    if (isLost || type == QtFatalMsg) End(reason + line);
    if (UsualHandler) return UsualHandler(type, context, message);
    if (type == QtWarningMsg) reason = line;
}

/// The pictures of desktop/icons. Each is drawn for its size.
QIcon ApplicationIcon() {
    QIcon icon;
    for (const QString& name : QDir(":/icons").entryList()) icon.addFile(":/icons/" + name);
    return icon;
}

}  // namespace

int main(int /*argc*/, char* argv[]) {
    // A write to a broken pipe or beyond a size limit then fails and does not end the program.
    std::signal(SIGPIPE, SIG_IGN);
    std::signal(SIGXFSZ, SIG_IGN);
    std::set_new_handler(EndWithoutMemory);
    std::set_terminate(EndUncaught);
    RequireMemory();
    // Qt gets no arguments, because the program has no options.
    int count = 1;
    char* name[] = {argv[0], nullptr};
    const QtMessageHandler usual = qInstallMessageHandler(HandleMessage);
    const QApplication application(count, name);
    UsualHandler = usual;
    // Docks find the desktop entry and its icon by this name.
    QGuiApplication::setDesktopFileName("org.brastel.Brastel");
    QApplication::setWindowIcon(ApplicationIcon());
    // The main window is hidden while the piece-number dialog is open.
    QApplication::setQuitOnLastWindowClosed(false);

    brastel::MainWindow window;
    window.OpenMainWindow();
    return QApplication::exec();
}
