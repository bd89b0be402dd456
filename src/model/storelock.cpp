#include "model/storelock.h"
#include "platform/translations.h"

#include <fcntl.h>
#include <signal.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>
#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QLoggingCategory>
#include <QStringList>
#include <QSysInfo>
#include <QThread>
#include <cerrno>

Q_LOGGING_CATEGORY(lcLock, "tamo.lock")

namespace tamo {

namespace {

bool processAlive(qint64 pid)
{
    return pid > 0 && (::kill(pid_t(pid), 0) == 0 || errno == EPERM);
}

QString readText(int fd)
{
    QByteArray bytes(4096, Qt::Uninitialized);
    const ssize_t n = ::pread(fd, bytes.data(), size_t(bytes.size()), 0);
    return n > 0 ? QString::fromUtf8(bytes.constData(), n) : QString();
}

struct Attempt {
    int fd = -1;
    bool busy = false;
    int error = 0;
};

// Opens the lock file and locks it. The file locked must still be the one at the path: a holder
// that lets go removes its file, and a file opened just before that is no lock any more.
Attempt tryLock(const QByteArray& path)
{
    for (int tries = 0; tries < 20; ++tries) {
        const int fd = ::open(path.constData(), O_RDWR | O_CREAT | O_CLOEXEC, 0644);
        if (fd < 0) {
            return {-1, false, errno};
        }
        if (::flock(fd, LOCK_EX | LOCK_NB) != 0) {
            const int error = errno;
            if (error == EWOULDBLOCK || error == EINTR) {
                ::close(fd);
                if (error == EINTR) {
                    continue;
                }
                return {-1, true, 0};
            }
            // A file system without flock: the process named in the file decides.
            const LockHolder named = LockHolder::fromText(readText(fd));
            if (named.host == QSysInfo::machineHostName() && named.pid != ::getpid() &&
                processAlive(named.pid)) {
                ::close(fd);
                return {-1, true, 0};
            }
            return {fd, false, 0};
        }
        struct stat opened {};
        struct stat named {};
        if (::fstat(fd, &opened) == 0 && ::stat(path.constData(), &named) == 0 &&
            opened.st_ino == named.st_ino && opened.st_dev == named.st_dev) {
            return {fd, false, 0};
        }
        ::close(fd);
    }
    return {-1, true, 0};
}

QString quotedArgument(const QString& argument)
{
    return argument.contains(u' ') || argument.isEmpty() ? u'\'' + argument + u'\'' : argument;
}

}  // namespace

QString LockHolder::describe() const
{
    QString text = window ? tr("the Tamo window (process %1, started as “%2”)")
                          : tr("the command “%2” (process %1)");
    text = text.arg(pid).arg(commandLine.isEmpty() ? QStringLiteral("tamo") : commandLine);
    if (!host.isEmpty() && host != QSysInfo::machineHostName()) {
        text += tr(" on the computer %1").arg(host);
    }
    return text;
}

QString LockHolder::toText() const
{
    return QStringLiteral("pid=%1\nhost=%2\nrole=%3\ncommand=%4\nsince=%5\n")
        .arg(pid)
        .arg(host, window ? QStringLiteral("window") : QStringLiteral("command"), commandLine,
             since.toUTC().toString(Qt::ISODate));
}

LockHolder LockHolder::fromText(const QString& text)
{
    LockHolder holder;
    for (const QString& line : text.split(u'\n')) {
        const QString key = line.section(u'=', 0, 0);
        const QString value = line.section(u'=', 1);
        if (key == u"pid") {
            holder.pid = value.toLongLong();
        } else if (key == u"host") {
            holder.host = value;
        } else if (key == u"role") {
            holder.window = value == u"window";
        } else if (key == u"command") {
            holder.commandLine = value;
        } else if (key == u"since") {
            holder.since = QDateTime::fromString(value, Qt::ISODate);
        }
    }
    return holder;
}

LockHolder LockHolder::thisProcess(bool window)
{
    LockHolder holder;
    holder.pid = ::getpid();
    holder.host = QSysInfo::machineHostName();
    holder.window = window;
    QStringList words;
    const QStringList arguments =
        QCoreApplication::instance() ? QCoreApplication::arguments() : QStringList();
    for (qsizetype i = 0; i < arguments.size(); ++i) {
        words << (i == 0 ? QFileInfo(arguments[i]).fileName() : quotedArgument(arguments[i]));
    }
    holder.commandLine = words.isEmpty() ? QStringLiteral("tamo") : words.join(u' ');
    holder.since = QDateTime::currentDateTimeUtc();
    return holder;
}

StoreLock::~StoreLock()
{
    // Removed while still locked, so that nobody takes the lock of a file that is going away.
    ::unlink(QFile::encodeName(path_).constData());
    ::close(fd_);
}

QString StoreLock::lockPathFor(const QString& storePath)
{
    return storePath + QStringLiteral(".lock");
}

std::expected<std::unique_ptr<StoreLock>, StoreLock::Refusal> StoreLock::acquire(
    const QString& storePath, const LockHolder& holder, std::chrono::milliseconds wait)
{
    const QString path = lockPathFor(storePath);
    const QByteArray encoded = QFile::encodeName(path);
    const auto deadline = std::chrono::steady_clock::now() + wait;
    for (;;) {
        const Attempt attempt = tryLock(encoded);
        if (attempt.fd >= 0) {
            const LockHolder previous = LockHolder::fromText(readText(attempt.fd));
            if (previous.pid != 0) {
                qCInfo(lcLock).noquote()
                    << QStringLiteral("Took over the lock of %1, which has ended.")
                           .arg(previous.describe());
            }
            const QByteArray text = holder.toText().toUtf8();
            if (::ftruncate(attempt.fd, 0) != 0 ||
                ::pwrite(attempt.fd, text.constData(), size_t(text.size()), 0) != text.size()) {
                qCWarning(lcLock) << "Could not name the holder in" << path;
            }
            return std::unique_ptr<StoreLock>(new StoreLock(path, attempt.fd));
        }
        if (!attempt.busy) {
            return std::unexpected(
                Refusal{Error{QString::fromLatin1(kLockErrorDomain), kLockNotWritable,
                              tr("The lock file “%1” could not be made.").arg(path), QString()},
                        std::nullopt, attempt.error});
        }
        const std::optional<LockHolder> current = currentHolder(storePath);
        const bool window = current && current->window;
        if (window || std::chrono::steady_clock::now() >= deadline) {
            const QString who = current ? current->describe() : tr("another Tamo");
            return std::unexpected(
                Refusal{Error{QString::fromLatin1(kLockErrorDomain), kStoreInUse,
                              tr("The store “%1” is in use by %2.").arg(storePath, who),
                              window ? tr("Close that window first, or make the change there.")
                                     : tr("Try again when it has finished.")},
                        current, 0});
        }
        QThread::msleep(40);
    }
}

std::optional<LockHolder> StoreLock::currentHolder(const QString& storePath)
{
    QFile file(lockPathFor(storePath));
    if (!file.open(QIODevice::ReadOnly)) {
        return std::nullopt;
    }
    const int fd = file.handle();
    // Locked by someone else: the file names a live holder.
    if (::flock(fd, LOCK_SH | LOCK_NB) == 0) {
        ::flock(fd, LOCK_UN);
        return std::nullopt;
    }
    LockHolder holder = LockHolder::fromText(QString::fromUtf8(file.readAll()));
    if (holder.pid == 0) {
        return std::nullopt;
    }
    return holder;
}

}  // namespace tamo
