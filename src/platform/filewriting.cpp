#include "platform/filewriting.h"
#include "platform/translations.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/statvfs.h>
#include <unistd.h>
#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <atomic>
#include <cerrno>
#include <cstring>

namespace tamo {

namespace {

QByteArray encoded(const QString& path)
{
    return QFile::encodeName(path);
}

// Writes all of `size` bytes, going on after interruptions and short writes.
int writeAll(int fd, const char* data, qint64 size)
{
    while (size > 0) {
        const ssize_t n = ::write(fd, data, size_t(size));
        if (n < 0) {
            if (errno == EINTR) {
                continue;
            }
            return errno;
        }
        data += n;
        size -= n;
    }
    return 0;
}

// A rename is only durable once the folder that holds the name is on the disk.
void syncFolder(const QString& folder)
{
    const int fd = ::open(encoded(folder).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (fd >= 0) {
        ::fsync(fd);
        ::close(fd);
    }
}

std::atomic<int> temporaryCounter{0};

}  // namespace

QString fileFailureCause(int errorNumber)
{
    switch (errorNumber) {
    case ENOSPC:
    case EDQUOT:
        return tr("The disk is full.");
    case EACCES:
    case EPERM:
        return tr("Permission denied.");
    case EROFS:
        return tr("The file system is read-only.");
    case ENOENT:
        return tr("The folder does not exist.");
    case EISDIR:
        return tr("A folder stands in its place.");
    case ENOTDIR:
        return tr("Part of its path is not a folder.");
    case EIO:
        return tr("The disk reported an error.");
    case 0:
        return tr("The system gave no reason.");
    default:
        return QString::fromLocal8Bit(std::strerror(errorNumber)) + u'.';
    }
}

Error fileWriteError(const QString& path, int errorNumber)
{
    return Error{QString::fromLatin1(kFileDomain), kFileWriteFailed,
                 tr("The file “%1” could not be written.").arg(path),
                 fileFailureCause(errorNumber)};
}

Error fileReadError(const QString& path, int errorNumber)
{
    return Error{QString::fromLatin1(kFileDomain), kFileReadFailed,
                 tr("The file “%1” could not be read.").arg(path), fileFailureCause(errorNumber)};
}

int probeWriteFailure(const QString& path)
{
    const QFileInfo info(path);
    const QByteArray folder = encoded(info.absolutePath());
    if (!QFileInfo(info.absolutePath()).isDir()) {
        return ENOENT;
    }
    if (info.exists() && ::access(encoded(path).constData(), W_OK) != 0) {
        return errno;
    }
    if (::access(folder.constData(), W_OK) != 0) {
        return errno;
    }
    struct statvfs fs {};
    if (::statvfs(folder.constData(), &fs) == 0) {
        if ((fs.f_flag & ST_RDONLY) != 0) {
            return EROFS;
        }
        const auto available = ::geteuid() == 0 ? fs.f_bfree : fs.f_bavail;
        if (available == 0) {
            return ENOSPC;
        }
    }
    return 0;
}

AtomicFile::~AtomicFile()
{
    discard();
}

Result<void> AtomicFile::open()
{
    const QFileInfo target(path_);
    struct stat existing {};
    const bool exists = ::stat(encoded(path_).constData(), &existing) == 0;
    if (exists && S_ISDIR(existing.st_mode)) {
        return std::unexpected(failure(EISDIR));
    }
    for (int attempt = 0; attempt < 100; ++attempt) {
        temporary_ = QStringLiteral("%1/.%2.%3-%4.partial")
                         .arg(target.absolutePath(), target.fileName())
                         .arg(::getpid())
                         .arg(temporaryCounter++);
        // New files get the usual permissions (the umask applies); a replaced file keeps its own.
        fd_ =
            ::open(encoded(temporary_).constData(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
        if (fd_ >= 0 || errno != EEXIST) {
            break;
        }
    }
    if (fd_ < 0) {
        const int error = errno;
        temporary_.clear();
        return std::unexpected(failure(error));
    }
    if (exists) {
        ::fchmod(fd_, existing.st_mode & 07777);
    }
    written_ = 0;
    return {};
}

Result<void> AtomicFile::write(const char* data, qint64 size)
{
    if (fd_ < 0) {
        return std::unexpected(failure(EBADF));
    }
    if (const int error = writeAll(fd_, data, size); error != 0) {
        return std::unexpected(failure(error));
    }
    written_ += size;
    return {};
}

Result<void> AtomicFile::commit()
{
    if (fd_ < 0) {
        return std::unexpected(failure(EBADF));
    }
    // Some file systems only report a full disk when the data is flushed.
    if (::fsync(fd_) != 0) {
        return std::unexpected(failure(errno));
    }
    struct stat written {};
    if (::fstat(fd_, &written) != 0) {
        return std::unexpected(failure(errno));
    }
    if (written.st_size != written_) {
        Error e = failure(EIO);
        e.reason =
            tr("Only %1 of its %2 bytes reached the disk.").arg(written.st_size).arg(written_);
        return std::unexpected(e);
    }
    const int fd = std::exchange(fd_, -1);
    if (::close(fd) != 0) {
        return std::unexpected(failure(errno));
    }
    if (::rename(encoded(temporary_).constData(), encoded(path_).constData()) != 0) {
        return std::unexpected(failure(errno));
    }
    temporary_.clear();
    syncFolder(QFileInfo(path_).absolutePath());
    return {};
}

void AtomicFile::discard()
{
    if (fd_ >= 0) {
        ::close(std::exchange(fd_, -1));
    }
    if (!temporary_.isEmpty()) {
        ::unlink(encoded(std::exchange(temporary_, QString())).constData());
    }
}

Error AtomicFile::failure(int errorNumber)
{
    discard();
    return fileWriteError(path_, errorNumber);
}

Result<void> writeFileAtomically(const QString& path, const QByteArray& bytes)
{
    AtomicFile file(path);
    if (auto r = file.open(); !r) {
        return r;
    }
    if (auto r = file.write(bytes.constData(), bytes.size()); !r) {
        return r;
    }
    return file.commit();
}

Result<void> copyFileAtomically(const QString& source, const QString& target)
{
    const int in = ::open(encoded(source).constData(), O_RDONLY | O_CLOEXEC);
    if (in < 0) {
        return std::unexpected(fileReadError(source, errno));
    }
    AtomicFile out(target);
    Result<void> result = out.open();
    QByteArray buffer(1 << 20, Qt::Uninitialized);
    while (result) {
        const ssize_t n = ::read(in, buffer.data(), size_t(buffer.size()));
        if (n < 0 && errno == EINTR) {
            continue;
        }
        if (n < 0) {
            result = std::unexpected(fileReadError(source, errno));
        } else if (n == 0) {
            result = out.commit();
            break;
        } else {
            result = out.write(buffer.constData(), n);
        }
    }
    ::close(in);
    return result;
}

}  // namespace tamo
