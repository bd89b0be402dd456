// main() for test programs that need a QApplication; testenvironment.cpp keeps it headless.
#include <gtest/gtest.h>
#include <QApplication>

int main(int argc, char** argv)
{
    QApplication app(argc, argv);
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
