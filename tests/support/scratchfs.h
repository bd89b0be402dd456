#pragma once

#include <QString>
#include <QTemporaryDir>

namespace tamo::test {

// A small file system of its own (tmpfs) mounted on a temporary folder, for tests that need a
// full disk or a read-only one. Mounting needs root: without it `available()` is false and
// `reason()` says why, so that the test can skip with that message.
class ScratchFileSystem {
public:
    explicit ScratchFileSystem(qint64 bytes = 2 << 20);
    ~ScratchFileSystem();
    ScratchFileSystem(const ScratchFileSystem&) = delete;
    ScratchFileSystem& operator=(const ScratchFileSystem&) = delete;

    bool available() const { return mounted_; }
    QString reason() const { return reason_; }
    QString path() const { return dir_.path(); }
    QString filePath(const QString& name) const { return dir_.filePath(name); }

    // Takes every free byte, so that the next write finds the disk full.
    void fill();
    // Gives the filler's bytes back.
    void drain();
    bool remountReadOnly();

private:
    QTemporaryDir dir_;
    bool mounted_ = false;
    QString reason_;
};

// Makes `folder` one that this process may not write: mode 0555, or for root (whom modes do not
// stop) a read-only file system mounted over it with the same content. False when neither works.
class ReadOnlyFolder {
public:
    explicit ReadOnlyFolder(const QString& folder);
    ~ReadOnlyFolder();
    bool available() const { return ok_; }
    QString reason() const { return reason_; }

private:
    QString folder_;
    bool mounted_ = false;
    bool ok_ = false;
    QString reason_;
};

}  // namespace tamo::test
