#include "testing/Sandbox.h"

#include <QApplication>
#include <QtGlobal>
#include <gtest/gtest.h>

/// Without a display, but with a large and a small screen. The tests send their events to the
/// window through Qt's own queue.
int main(int argc, char** argv) {
    brastel::EnterSandbox(argv);
    testing::InitGoogleTest(&argc, argv);
    qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" BRASTEL_TEST_DATA "/Screens.json");
    const QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    return RUN_ALL_TESTS();
}
