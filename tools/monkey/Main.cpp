/// A monkey at the mouse and the keyboard of the real window.

#include "tools/ReadNumber.h"
#include "tools/monkey/Deeds.h"
#include "tools/monkey/Monkey.h"
#include "tools/sandbox/Sandbox.h"

#include <QApplication>

#include <iostream>

namespace {

using namespace brastel;

constexpr std::string_view Usage =
    "Usage: window_monkey EVENTS [SEED]\n"
    "Random events on the real window, offscreen, which must neither crash nor hang nor show\n"
    "anything but the position. The same seed, 1 by default, gives the same events; they are\n"
    "printed as they come. Status 1 after a failure, 77 where there can be no sandbox, SIGALRM\n"
    "after a minute without an event.\n";
constexpr std::int64_t Plenty = 1'000'000'000;

void PrepareEnvironment() {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    for (const char* name : {"QT_STYLE_OVERRIDE", "QT_SCALE_FACTOR"}) qunsetenv(name);
}

/// What the platform says about itself at every dialog, and the fonts at odd characters, is left
/// out.
void PrintMessage(QtMsgType /*type*/, const QMessageLogContext& /*context*/, const QString& text) {
    for (const auto* usual : {"This plugin does not support", "OpenType support missing"}) {
        if (text.contains(usual)) return;
    }
    std::cerr << text.toStdString() << std::endl;
}

}  // namespace

int main(int count, char** texts) {
    const bool isCountRight = count == 2 || count == 3;
    const auto events = ReadNumber(isCountRight ? texts[1] : "", 0, Plenty);
    const auto seed = ReadNumber(count == 3 ? texts[2] : "1", 0, Plenty);
    if (!events || !seed) {
        std::cerr << Usage;
        return 2;
    }
    if (!EnterSandbox()) {
        std::cerr
            << "Nothing was done: the monkey saves anywhere, and this system allows no sandbox.\n";
        return 77;
    }
    MakeGames();
    std::filesystem::current_path(GamesFolder);
    PrepareEnvironment();
    qInstallMessageHandler(PrintMessage);
    int oneName = 1;
    const QApplication application(oneName, texts);
    QApplication::setQuitOnLastWindowClosed(false);
    PlayMonkey(static_cast<int>(*events), static_cast<unsigned>(*seed));
}
