#include "interchange/storefiles.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <filesystem>

#include "interchange/plistfile.h"
#include "model/sqlite.h"

Q_LOGGING_CATEGORY(lcInterchange, "tamo.interchange")

namespace tamo {

namespace {

Error storeError(QString message, QString reason = {})
{
    return interchangeError(kStoreFileProblem, std::move(message), std::move(reason));
}

// Replaces `target` by `source` in one step (both in the same folder).
Result<void> renameOver(const QString& source, const QString& target)
{
    std::error_code error;
    std::filesystem::rename(QFile::encodeName(source).toStdString(),
                            QFile::encodeName(target).toStdString(), error);
    if (error) {
        return std::unexpected(
            storeError(QStringLiteral("The file “%1” could not be put in place.").arg(target),
                       QString::fromLocal8Bit(error.message())));
    }
    return {};
}

Result<void> removeIfPresent(const QString& path)
{
    if (QFileInfo::exists(path) && !QFile::remove(path)) {
        return std::unexpected(
            storeError(QStringLiteral("The file “%1” could not be removed.").arg(path)));
    }
    return {};
}

int sequenceOf(const QString& fileName)
{
    return fileName.section(u' ', 0, 0).toInt();
}

}  // namespace

FileRequest savePanel(const QString& title, const QString& extension, const QString& proposedName)
{
    FileRequest panel = openPanel(title, extension);
    panel.proposedName = proposedName;
    panel.canCreateDirectories = true;
    return panel;
}

FileRequest openPanel(const QString& title, const QString& extension)
{
    FileRequest panel;
    panel.title = title;
    panel.extensions = QStringList{extension};
    return panel;
}

Result<void> writeStoreCopy(Context& context, const QString& target)
{
    const QString partial = target + QStringLiteral(".partial");
    if (auto r = removeIfPresent(partial); !r) {
        return r;
    }
    if (auto copied = context.copyStoreTo(partial); !copied) {
        QFile::remove(partial);
        return copied;
    }
    auto moved = renameOver(partial, target);
    if (!moved) {
        QFile::remove(partial);
    }
    return moved;
}

Result<void> checkStoreFile(const QString& path, const QString& shownName)
{
    const auto notOurs = [&](const QString& reason) {
        return std::unexpected(storeError(
            QStringLiteral("The file “%1” is not a Tamo database.").arg(shownName), reason));
    };
    {
        // A store of ours has its layout version recorded; any other SQLite file (or none) does
        // not, and opening it as a store would quietly make an empty store of it.
        auto db = sql::Database::open(path, false);
        if (!db) {
            return notOurs(db.error().reason);
        }
        auto version =
            db->prepare(QStringLiteral("SELECT value FROM meta WHERE key = 'schemaVersion'"));
        if (!version || !version->step()) {
            return notOurs(version ? QStringLiteral("It records no Tamo layout.")
                                   : version.error().reason);
        }
    }
    auto opened = Context::open(path);
    if (!opened) {
        return notOurs(opened.error().text());
    }
    return {};
}

Result<void> putStoreFile(const QString& source, const QString& live)
{
    for (const char* suffix : {"-wal", "-shm"}) {
        if (auto r = removeIfPresent(live + QLatin1String(suffix)); !r) {
            return r;
        }
    }
    auto moved = renameOver(source, live);
    for (const char* suffix : {"-wal", "-shm"}) {
        QFile::remove(source + QLatin1String(suffix));
    }
    return moved;
}

QString incomingStorePath(const QString& live)
{
    return live + QStringLiteral(".incoming");
}

QStringList RecoverySnapshots::list() const
{
    QStringList names = QDir(folder_).entryList({QStringLiteral("*.zqdb")}, QDir::Files);
    std::sort(names.begin(), names.end(),
              [](const QString& a, const QString& b) { return sequenceOf(a) > sequenceOf(b); });
    QStringList paths;
    for (const QString& name : names) {
        paths << QDir(folder_).filePath(name);
    }
    return paths;
}

Result<QString> RecoverySnapshots::take(Context* context, const QString& live, const QDateTime& now,
                                        const QString& reason)
{
    if (!context && !QFileInfo::exists(live)) {
        return QString();
    }
    if (!QDir().mkpath(folder_)) {
        return std::unexpected(storeError(
            QStringLiteral("The recovery folder “%1” could not be created.").arg(folder_)));
    }
    QStringList existing = list();
    const int sequence = existing.isEmpty() ? 1 : sequenceOf(QFileInfo(existing[0]).fileName()) + 1;
    const QString path = QDir(folder_).filePath(
        QStringLiteral("%1 %2 before %3.zqdb")
            .arg(sequence, 6, 10, QChar(u'0'))
            .arg(now.toLocalTime().toString(QStringLiteral("yyyy-MM-dd HH.mm.ss")), reason));
    auto written = context ? writeStoreCopy(*context, path) : copyFileAtomically(live, path);
    if (!written) {
        return std::unexpected(written.error());
    }
    existing.prepend(path);
    for (qsizetype i = kKept; i < existing.size(); ++i) {
        QFile::remove(existing[i]);
    }
    return path;
}

}  // namespace tamo
