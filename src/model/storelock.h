#pragma once

#include <QDateTime>
#include <QString>
#include <chrono>
#include <memory>
#include <optional>

#include "platform/error.h"

namespace tamo {

inline constexpr auto kLockErrorDomain = "Tamo.lock";
enum LockError { kStoreInUse = 1, kLockNotWritable };

// Who holds a store: what its lock file says.
struct LockHolder {
    qint64 pid = 0;
    QString host;
    bool window = false;  // the window, else a command
    QString commandLine;  // how it was started
    QDateTime since;

    // "the Tamo window (process 4711, started as “tamo --store /data”)"
    QString describe() const;
    QString toText() const;
    static LockHolder fromText(const QString& text);
    // This process, started as QCoreApplication's arguments say.
    static LockHolder thisProcess(bool window);
};

// One process writes a store at a time. The lock is a file beside the store ("Tamo.zqdb.lock")
// that names its holder, locked with flock(2): the system releases it when the holder ends in
// any way, so the lock of a process that died is simply taken over (and its file rewritten).
// Released (and the file removed) when destroyed.
class StoreLock {
public:
    ~StoreLock();
    StoreLock(const StoreLock&) = delete;
    StoreLock& operator=(const StoreLock&) = delete;

    static QString lockPathFor(const QString& storePath);

    // Takes the lock of the store at `storePath` for `holder`. While another command holds it,
    // waits up to `wait` for it; a window holding it is reported at once (kStoreInUse, with the
    // holder named). A folder where no lock file can be made gives kLockNotWritable with the
    // system's reason in `errorNumber`.
    struct Refusal {
        Error error;
        std::optional<LockHolder> holder;
        int errorNumber = 0;
    };
    static std::expected<std::unique_ptr<StoreLock>, Refusal> acquire(
        const QString& storePath, const LockHolder& holder, std::chrono::milliseconds wait);

    // The holder named in the store's lock file while a live process holds it.
    static std::optional<LockHolder> currentHolder(const QString& storePath);

    const QString& path() const { return path_; }

private:
    StoreLock(QString path, int fd) : path_(std::move(path)), fd_(fd) {}

    QString path_;
    int fd_ = -1;
};

}  // namespace tamo
