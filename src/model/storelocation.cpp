#include "model/storelocation.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include "platform/translations.h"

namespace tamo {

namespace {
QString domain()
{
    return QString::fromLatin1(kStoreErrorDomain);
}
}  // namespace

QString storeFolder(const Settings& settings, const Profile& profile)
{
    if (settings.boolean(key::useCustomPath)) {
        const QString custom = settings.string(key::customDatabasePath);
        if (!custom.isEmpty()) {
            return QDir::cleanPath(custom);
        }
    }
    return profile.supportFolder;
}

QString storeFilePath(const Settings& settings, const Profile& profile)
{
    return storeFolder(settings, profile) + u'/' + QLatin1String(kStoreFileName);
}

Result<void> ensureFolder(const QString& path)
{
    const QFileInfo info(path);
    if (info.exists() && !info.isDir()) {
        return fail(
            domain(), kFileInsteadOfFolderError,
            tr("Expected a folder to store application data, found a file (%1).").arg(path));
    }
    if (!info.exists() && !QDir().mkpath(path)) {
        return fail(domain(), 102, tr("The folder %1 could not be created.").arg(path),
                    tr("Please check that you may write to its parent folder."));
    }
    return {};
}

Result<void> migrateStore(Context& context, const QString& target)
{
    if (QFileInfo(target).absoluteFilePath() == QFileInfo(context.path()).absoluteFilePath()) {
        return {};  // already there; removing the "old" files would remove the live store
    }
    if (auto r = ensureFolder(QFileInfo(target).absolutePath()); !r) {
        return r;
    }
    for (const char* suffix : {"", "-shm", "-wal"}) {
        const QString file = target + QLatin1String(suffix);
        if (QFile::exists(file) && !QFile::remove(file)) {
            return fail(domain(), 103, tr("The file %1 could not be replaced.").arg(file));
        }
    }
    return context.copyStoreTo(target);
}

}  // namespace tamo
