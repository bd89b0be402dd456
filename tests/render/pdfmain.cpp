// main() for tests that print through the web engine: it needs a GUI application (kept off
// screen by testenvironment.cpp) and its preparation before that application exists.
#include <gtest/gtest.h>
#include <QGuiApplication>

#include "pdf/pdfrenderer.h"

int main(int argc, char** argv)
{
    tamo::prepareRendering();
    QGuiApplication app(argc, argv);
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
