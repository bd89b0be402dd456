#pragma once

#include <QByteArray>
#include <QString>

#include "platform/error.h"

namespace tamo {

inline constexpr auto kFileDomain = "Tamo.file";

// Error codes of the file domain.
enum FileError { kFileWriteFailed = 1, kFileReadFailed };

// Why an operation on a file failed, in words: "the disk is full", "permission denied", "the
// file system is read-only", or the system's own description.
QString fileFailureCause(int errorNumber);
// "The file “PATH” could not be written: the disk is full."
Error fileWriteError(const QString& path, int errorNumber);
Error fileReadError(const QString& path, int errorNumber);
// For a write that failed where the system's reason was lost (QSettings says only that it
// failed): tries the file and its folder and returns the reason they give now, or 0.
int probeWriteFailure(const QString& path);

// A file written completely or not at all: the bytes go to a temporary file beside the target,
// which is flushed to the disk, checked for its size and only then renamed over the target.
// Every failure names the file and its cause; an uncommitted file leaves no trace.
class AtomicFile {
public:
    explicit AtomicFile(QString path) : path_(std::move(path)) {}
    ~AtomicFile();
    AtomicFile(const AtomicFile&) = delete;
    AtomicFile& operator=(const AtomicFile&) = delete;

    Result<void> open();
    Result<void> write(const char* data, qint64 size);
    Result<void> commit();
    void discard();

private:
    Error failure(int errorNumber);

    QString path_;
    QString temporary_;
    int fd_ = -1;
    qint64 written_ = 0;
};

Result<void> writeFileAtomically(const QString& path, const QByteArray& bytes);
Result<void> copyFileAtomically(const QString& source, const QString& target);

}  // namespace tamo
