#include "tools/sandbox/Sandbox.h"

#include <QApplication>
#include <QtGlobal>
#include <gtest/gtest.h>

/// Without a display: the tests send their events to the window through Qt's own queue.
int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    if (!GTEST_FLAG_GET(list_tests)) brastel::EnterSandbox();
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    return RUN_ALL_TESTS();
}
