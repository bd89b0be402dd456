// main() for the tests that start `tamo` processes: QProcess and QTest's waiting need an
// application object, and nothing here shows a window.
#include <gtest/gtest.h>
#include <QCoreApplication>

int main(int argc, char** argv)
{
    QCoreApplication app(argc, argv);
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
