// The hand-off between `tamo` processes on a real local socket.
#include <gtest/gtest.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>
#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QFile>
#include <QLocalSocket>
#include <QTimer>
#include <optional>
#include <thread>

#include "platform/handoff.h"
#include "support/testsupport.h"

namespace tamo::test {
namespace {

TEST(HandoffListenerTest, ReplacesASocketLeftBehindAndTakesMessages)
{
    // The listener answers from an event loop.
    int argc = 1;
    char name0[] = "platform_tests";
    char* argv[] = {name0, nullptr};
    std::optional<QCoreApplication> application;
    if (!QCoreApplication::instance()) {
        application.emplace(argc, argv);
    }
    TempProfile dir;
    const QString name = handoffSocketName(dir.path(u"store"_qs));
    EXPECT_EQ(name, handoffSocketName(dir.path(u"store/"_qs)));
    EXPECT_NE(name, handoffSocketName(dir.path(u"other"_qs)));
    // A socket file whose process ended without removing it.
    const QString path = name.startsWith(u'/') ? name : QDir::tempPath() + u'/' + name;
    const int fd = ::socket(AF_UNIX, SOCK_STREAM, 0);
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    const QByteArray bytes = QFile::encodeName(path);
    ::strncpy(address.sun_path, bytes.constData(), sizeof(address.sun_path) - 1);
    ::unlink(bytes.constData());
    ASSERT_EQ(::bind(fd, reinterpret_cast<sockaddr*>(&address), sizeof(address)), 0);
    ::close(fd);
    ASSERT_TRUE(QFile::exists(path));

    HandoffListener listener;
    ASSERT_TRUE(listener.listen(name));
    HandoffListener second;
    EXPECT_FALSE(second.listen(name)) << "one listener per store";

    QStringList received;
    QEventLoop loop;
    QObject::connect(&listener, &HandoffListener::received, &loop,
                     [&](const QStringList& arguments) {
                         received = arguments;
                         loop.quit();
                     });
    const QStringList sent = {u"tamo://action?key=ä"_qs, u"/tmp/a b.design"_qs};
    bool taken = false;
    std::thread client([&] { taken = handOff(name, sent); });
    QTimer::singleShot(20000, &loop, &QEventLoop::quit);
    loop.exec();
    client.join();
    EXPECT_TRUE(taken);
    EXPECT_EQ(received, sent);

    // Anything but a hand-off is dropped unanswered.
    QLocalSocket stranger;
    stranger.connectToServer(name);
    ASSERT_TRUE(stranger.waitForConnected(2000));
    stranger.write(QByteArray("GET / HTTP/1.1\r\n\r\n"));
    stranger.flush();
    QElapsedTimer waited;
    waited.start();
    while (stranger.state() == QLocalSocket::ConnectedState && waited.elapsed() < 5000) {
        QCoreApplication::processEvents(QEventLoop::AllEvents, 50);
    }
    EXPECT_EQ(stranger.state(), QLocalSocket::UnconnectedState);
    EXPECT_TRUE(stranger.readAll().isEmpty());
}

}  // namespace
}  // namespace tamo::test
