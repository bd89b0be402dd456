#include "platform/handoff.h"

#include <unistd.h>
#include <QCryptographicHash>
#include <QDir>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QLocalServer>
#include <QLocalSocket>
#include <QLoggingCategory>
#include <QTimer>
#include <QtEndian>

#include "platform/profile.h"

Q_LOGGING_CATEGORY(lcHandoff, "tamo.handoff")

namespace tamo {

namespace {

// A message: the magic, the length of what follows (big-endian), a JSON array of texts.
constexpr QByteArrayView kMagic = "TAMO-HANDOFF-1";
constexpr qsizetype kHeaderSize = kMagic.size() + 4;
// A few paths or one request URL; far more is not ours.
constexpr quint32 kMaxMessage = 1 << 20;
constexpr QByteArrayView kAnswer = "OK\n";
constexpr int kSilentClientMs = 5000;

QByteArray message(const QStringList& arguments)
{
    const QByteArray body =
        QJsonDocument(QJsonArray::fromStringList(arguments)).toJson(QJsonDocument::Compact);
    QByteArray bytes(kMagic.data(), kMagic.size());
    const quint32 size = qToBigEndian(quint32(body.size()));
    bytes.append(reinterpret_cast<const char*>(&size), 4);
    return bytes + body;
}

enum class Parsed { Incomplete, Broken, Complete };

Parsed parse(const QByteArray& buffer, QStringList& arguments)
{
    const qsizetype magic = std::min(buffer.size(), kMagic.size());
    if (QByteArrayView(buffer).first(magic) != kMagic.first(magic)) {
        return Parsed::Broken;
    }
    if (buffer.size() < kHeaderSize) {
        return Parsed::Incomplete;
    }
    const quint32 size = qFromBigEndian<quint32>(buffer.constData() + kMagic.size());
    if (size > kMaxMessage) {
        return Parsed::Broken;
    }
    if (buffer.size() < kHeaderSize + qsizetype(size)) {
        return Parsed::Incomplete;
    }
    const QJsonDocument json = QJsonDocument::fromJson(buffer.mid(kHeaderSize, size));
    if (!json.isArray()) {
        return Parsed::Broken;
    }
    arguments.clear();
    for (const QJsonValue& value : json.array()) {
        if (!value.isString()) {
            return Parsed::Broken;
        }
        arguments << value.toString();
    }
    return Parsed::Complete;
}

}  // namespace

QString handoffSocketName(const QString& storeFolder)
{
    QFileInfo folder(storeFolder);
    const QString canonical =
        folder.exists() ? folder.canonicalFilePath() : QDir::cleanPath(folder.absoluteFilePath());
    const QByteArray hash =
        QCryptographicHash::hash(canonical.toUtf8(), QCryptographicHash::Sha256).toHex().left(16);
    const QString name = QLatin1String(kApplicationId) + u'-' + QString::fromLatin1(hash);
    // A socket's path has room for about a hundred bytes.
    const QString runtime = qEnvironmentVariable("XDG_RUNTIME_DIR");
    if (!runtime.isEmpty() && QDir::isAbsolutePath(runtime) && QFileInfo(runtime).isDir() &&
        runtime.toLocal8Bit().size() + name.size() < 100) {
        return QDir(runtime).filePath(name);
    }
    // In the temporary folder; the user's id keeps users apart.
    return name + QStringLiteral("-%1").arg(::getuid());
}

bool handOff(const QString& name, const QStringList& arguments, int timeoutMs)
{
    QLocalSocket socket;
    socket.connectToServer(name);
    if (!socket.waitForConnected(timeoutMs)) {
        return false;
    }
    socket.write(message(arguments));
    if (!socket.waitForBytesWritten(timeoutMs)) {
        return false;
    }
    QByteArray answer;
    while (answer.size() < kAnswer.size() && socket.waitForReadyRead(timeoutMs)) {
        answer += socket.readAll();
    }
    const bool taken = answer.startsWith(kAnswer);
    if (!taken) {
        qCWarning(lcHandoff).noquote() << "The running Tamo did not take" << arguments;
    }
    socket.disconnectFromServer();
    return taken;
}

HandoffListener::HandoffListener(QObject* parent) : QObject(parent), server_(new QLocalServer(this))
{
    server_->setSocketOptions(QLocalServer::UserAccessOption);
    connect(server_, &QLocalServer::newConnection, this, &HandoffListener::accept);
}

HandoffListener::~HandoffListener() = default;

void HandoffListener::close()
{
    server_->close();
}

QString HandoffListener::name() const
{
    return server_->serverName();
}

Result<void> HandoffListener::listen(const QString& name)
{
    // Listening would quietly take the name from a Tamo that still listens; ask first.
    QLocalSocket probe;
    probe.connectToServer(name);
    if (probe.waitForConnected(1000)) {
        probe.abort();
        return fail(QStringLiteral("Tamo.handoff"), 1,
                    tr("Another Tamo already listens at %1.").arg(name));
    }
    // A socket left behind by a Tamo that ended abruptly.
    QLocalServer::removeServer(name);
    if (!server_->listen(name)) {
        return fail(QStringLiteral("Tamo.handoff"), 2, tr("Unable to listen at %1.").arg(name),
                    server_->errorString());
    }
    return {};
}

void HandoffListener::accept()
{
    while (QLocalSocket* socket = server_->nextPendingConnection()) {
        connect(socket, &QLocalSocket::disconnected, socket, &QObject::deleteLater);
        connect(socket, &QLocalSocket::readyRead, this, [this, socket] { read(socket); });
        QTimer::singleShot(kSilentClientMs, socket, [socket] { socket->abort(); });
    }
}

void HandoffListener::read(QLocalSocket* socket)
{
    QByteArray buffer = socket->property("handoffBuffer").toByteArray() + socket->readAll();
    QStringList arguments;
    switch (parse(buffer, arguments)) {
    case Parsed::Incomplete:
        socket->setProperty("handoffBuffer", buffer);
        return;
    case Parsed::Broken:
        qCWarning(lcHandoff) << "Ignored a message that is not a hand-off";
        socket->abort();
        return;
    case Parsed::Complete:
        break;
    }
    socket->setProperty("handoffBuffer", QVariant());
    socket->write(kAnswer.data(), kAnswer.size());
    socket->flush();
    socket->disconnectFromServer();
    QMetaObject::invokeMethod(
        this, [this, arguments] { emit received(arguments); }, Qt::QueuedConnection);
}

}  // namespace tamo
