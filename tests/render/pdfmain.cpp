// main() for tests that print through the web engine: it needs a GUI application (off screen)
// and its preparation before that application exists.
#include <gtest/gtest.h>
#include <QGuiApplication>

#include "pdf/pdfrenderer.h"

int main(int argc, char** argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    // CTest's environment does not always arrive (see tamo_test); the engine refuses to start
    // as root with its sandbox.
    if (qEnvironmentVariableIsEmpty("QTWEBENGINE_CHROMIUM_FLAGS")) {
        qputenv("QTWEBENGINE_CHROMIUM_FLAGS", "--no-sandbox");
    }
    tamo::prepareRendering();
    QGuiApplication app(argc, argv);
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
