#include "support/scratchfs.h"

#include <unistd.h>
#include <QDir>
#include <QFile>
#include <QProcess>

namespace tamo::test {

namespace {

bool run(const QString& program, const QStringList& arguments, QString* error)
{
    QProcess p;
    p.start(program, arguments);
    if (!p.waitForFinished(20000) || p.exitStatus() != QProcess::NormalExit || p.exitCode() != 0) {
        *error = QStringLiteral("%1 %2: %3")
                     .arg(program, arguments.join(u' '),
                          QString::fromLocal8Bit(p.readAllStandardError()).trimmed());
        return false;
    }
    return true;
}

}  // namespace

ScratchFileSystem::ScratchFileSystem(qint64 bytes)
{
    if (::geteuid() != 0) {
        reason_ = QStringLiteral("mounting a small tmpfs needs root");
        return;
    }
    mounted_ = run(QStringLiteral("mount"),
                   {u"-t"_qs, u"tmpfs"_qs, u"-o"_qs, QStringLiteral("size=%1").arg(bytes),
                    u"tmpfs"_qs, dir_.path()},
                   &reason_);
}

ScratchFileSystem::~ScratchFileSystem()
{
    if (mounted_) {
        QString ignored;
        run(QStringLiteral("umount"), {u"-l"_qs, dir_.path()}, &ignored);
    }
}

void ScratchFileSystem::fill()
{
    QFile filler(filePath(u".filler"_qs));
    if (!filler.open(QIODevice::WriteOnly | QIODevice::Append)) {
        return;
    }
    const QByteArray block(4096, '\0');
    while (filler.write(block) == block.size() && filler.flush()) {
    }
    // The last partial block, byte by byte.
    filler.unsetError();
    while (filler.write("\0", 1) == 1 && filler.flush()) {
    }
}

void ScratchFileSystem::drain()
{
    QFile::remove(filePath(u".filler"_qs));
}

bool ScratchFileSystem::remountReadOnly()
{
    QString ignored;
    return mounted_ &&
           run(QStringLiteral("mount"), {u"-o"_qs, u"remount,ro"_qs, dir_.path()}, &ignored);
}

ReadOnlyFolder::ReadOnlyFolder(const QString& folder) : folder_(folder)
{
    if (::geteuid() != 0) {
        ok_ = QFile::setPermissions(folder_, QFile::ReadOwner | QFile::ExeOwner | QFile::ReadGroup |
                                                 QFile::ExeGroup | QFile::ReadOther |
                                                 QFile::ExeOther);
        reason_ = ok_ ? QString() : QStringLiteral("the folder's mode could not be changed");
        return;
    }
    // A read-only bind mount of the folder over itself.
    mounted_ = run(QStringLiteral("mount"), {u"--bind"_qs, folder_, folder_}, &reason_) &&
               run(QStringLiteral("mount"), {u"-o"_qs, u"remount,bind,ro"_qs, folder_}, &reason_);
    ok_ = mounted_;
}

ReadOnlyFolder::~ReadOnlyFolder()
{
    if (mounted_) {
        QString ignored;
        run(QStringLiteral("umount"), {u"-l"_qs, folder_}, &ignored);
    } else if (ok_) {
        QFile::setPermissions(folder_, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    }
}

}  // namespace tamo::test
