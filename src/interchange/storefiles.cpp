#include "interchange/storefiles.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <filesystem>

#include <QCoreApplication>

#include "interchange/plistfile.h"
#include "model/sqlite.h"
#include "model/storelayout.h"
#include "platform/translations.h"

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
            storeError(tr("The file “%1” could not be put in place.").arg(target),
                       QString::fromLocal8Bit(error.message())));
    }
    return {};
}

Result<void> removeIfPresent(const QString& path)
{
    if (QFileInfo::exists(path) && !QFile::remove(path)) {
        return std::unexpected(storeError(tr("The file “%1” could not be removed.").arg(path)));
    }
    return {};
}

int sequenceOf(const QString& fileName)
{
    return fileName.section(u' ', 0, 0).toInt();
}

// SQLite's full check of a store file that was just written; the failure names the file.
Result<void> checkWrittenCopy(const QString& path)
{
    const auto damaged = [&](const QString& reason) {
        return std::unexpected(
            storeError(tr("The copy “%1” could not be written.").arg(path),
                       tr("It was found damaged after writing: %1").arg(reason)));
    };
    auto db = sql::Database::openReadOnly(path);
    if (!db) {
        return damaged(db.error().reason);
    }
    auto problem = layout::integrityProblem(*db, false);
    if (!problem) {
        return damaged(problem.error().reason);
    }
    if (!problem->isEmpty()) {
        return damaged(*problem);
    }
    return {};
}

bool sameBytes(const QString& a, const QString& b)
{
    QFile first(a);
    QFile second(b);
    if (first.size() != second.size() || !first.open(QIODevice::ReadOnly) ||
        !second.open(QIODevice::ReadOnly)) {
        return false;
    }
    while (!first.atEnd()) {
        if (first.read(1 << 20) != second.read(1 << 20)) {
            return false;
        }
    }
    return true;
}

// Every record of every kind in a store file; -1 when it cannot be read.
qint64 recordCount(const QString& path)
{
    auto db = sql::Database::openReadOnly(path);
    if (!db) {
        return -1;
    }
    qint64 count = 0;
    for (const EntityDescription& entity : Model::tamo().entities()) {
        auto s = db->prepare(
            QStringLiteral("SELECT count(*) FROM %1").arg(layout::quotedName(entity.name())));
        if (s && s->step()) {
            count += s->int64(0);
        }
    }
    return count;
}

void removeSnapshot(const QString& path)
{
    for (const char* suffix : {"", "-wal", "-shm"}) {
        QFile::remove(path + QLatin1String(suffix));
    }
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
    const auto discard = [&](Error e) {
        for (const char* suffix : {"", "-journal", "-wal", "-shm"}) {
            QFile::remove(partial + QLatin1String(suffix));
        }
        return std::unexpected(std::move(e));
    };
    if (auto copied = context.copyStoreTo(partial); !copied) {
        Error e = copied.error();
        e.message = tr("The copy “%1” could not be written.").arg(target);
        return discard(e);
    }
    if (auto checked = checkWrittenCopy(partial); !checked) {
        Error e = checked.error();
        e.message = tr("The copy “%1” could not be written.").arg(target);
        return discard(e);
    }
    auto moved = renameOver(partial, target);
    if (!moved) {
        return discard(moved.error());
    }
    return {};
}

Result<void> checkStoreFile(const QString& path, const QString& shownName)
{
    const auto notOurs = [&](const QString& reason) {
        return std::unexpected(storeError(
            tr("The file “%1” is not a Tamo database that Tamo can use.").arg(shownName), reason));
    };
    {
        auto db = sql::Database::open(path, false);
        if (!db) {
            return notOurs(db.error().reason);
        }
        auto problem = layout::integrityProblem(*db, false);
        if (!problem) {
            return notOurs(problem.error().reason);
        }
        if (!problem->isEmpty()) {
            return notOurs(tr("It is damaged: %1").arg(*problem));
        }
        // A store of ours has its layout version recorded; any other SQLite file (or none) does
        // not, and opening it as a store would quietly make an empty store of it.
        auto version =
            db->prepare(QStringLiteral("SELECT value FROM meta WHERE key = 'schemaVersion'"));
        if (!version || !version->step()) {
            return notOurs(version ? tr("It records no Tamo layout.") : version.error().reason);
        }
        // Whatever else a file brings (a trigger, a view, a column of its own) would act on the
        // user's data once it is the store.
        if (auto checked = layout::checkLayout(*db, Model::tamo()); !checked) {
            return notOurs(checked.error().reason);
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

QString RecoverySnapshots::newestHoldingMoreThan(const QString& live) const
{
    const QStringList snapshots = list();
    const qint64 now = recordCount(live);
    for (const QString& snapshot : snapshots) {
        if (recordCount(snapshot) > now) {
            return snapshot;
        }
    }
    return snapshots.value(0);
}

Result<QString> RecoverySnapshots::take(Context* context, const QString& live, const QDateTime& now,
                                        const QString& reason)
{
    if (!context && !QFileInfo::exists(live)) {
        return QString();
    }
    if (!QDir().mkpath(folder_)) {
        return std::unexpected(fileWriteError(folder_, probeWriteFailure(folder_ + u"/x"_qs)));
    }
    QStringList existing = list();
    const int sequence = existing.isEmpty() ? 1 : sequenceOf(QFileInfo(existing[0]).fileName()) + 1;
    const QString path = QDir(folder_).filePath(
        QStringLiteral("%1 %2 before %3.zqdb")
            .arg(sequence, 6, 10, QChar(u'0'))
            .arg(now.toLocalTime().toString(QStringLiteral("yyyy-MM-dd HH.mm.ss")), reason));
    // Without an open store (it could not be opened) the file is kept as it is, with its
    // write-ahead log, which may hold the last saved changes.
    Result<void> written =
        context ? writeStoreCopy(*context, path) : copyFileAtomically(live, path);
    if (written && !context && QFileInfo(live + u"-wal"_qs).size() > 0) {
        written = copyFileAtomically(live + u"-wal"_qs, path + u"-wal"_qs);
    }
    if (!written) {
        removeSnapshot(path);
        return std::unexpected(written.error());
    }
    // The newest copy already holds this state: repeated attempts at a restore that fails leave
    // the copy that holds the data in place instead of pushing it out.
    if (!existing.isEmpty() && !QFileInfo::exists(path + u"-wal"_qs) &&
        !QFileInfo::exists(existing[0] + u"-wal"_qs) && sameBytes(path, existing[0])) {
        removeSnapshot(path);
        return existing[0];
    }
    existing.prepend(path);
    prune(existing);
    return path;
}

// The newest ten stay, and beyond them every copy that holds more records than all copies
// after it: the last state before data went missing is never pruned.
void RecoverySnapshots::prune(const QStringList& newestFirst)
{
    qint64 most = -1;
    for (qsizetype i = 0; i < newestFirst.size(); ++i) {
        const qint64 records = recordCount(newestFirst[i]);
        if (i >= kKept && records <= most) {
            removeSnapshot(newestFirst[i]);
        }
        most = std::max(most, records);
    }
}

}  // namespace tamo
