#include "setup/storemove.h"

#include <QDir>
#include <QFileInfo>

#include "model/storelocation.h"

namespace tamo {

QString StoreMover::currentFolder() const
{
    return storeFolder(session_.settings(), session_.profile());
}

bool StoreMover::isDefaultFolder() const
{
    return QDir::cleanPath(currentFolder()) == QDir::cleanPath(session_.profile().supportFolder);
}

StoreMove StoreMover::moveTo(const QString& folder)
{
    Settings& settings = session_.settings();
    const QString from = currentFolder();
    const QString to =
        folder.isEmpty() ? session_.profile().supportFolder : QFileInfo(folder).absoluteFilePath();
    if (QDir::cleanPath(from) == QDir::cleanPath(to)) {
        return StoreMove::AlreadyThere;
    }
    QString text = tr("Tamo first saves a complete backup of the database, then copies the "
                      "database to “%1” and continues with it there. The database in “%2” is left "
                      "as it is.")
                       .arg(QDir::toNativeSeparators(to), QDir::toNativeSeparators(from));
    if (QFileInfo::exists(QDir(to).filePath(QLatin1String(kStoreFileName)))) {
        text += u"\n\n"_qs + tr("The Tamo database already in “%1” will be replaced.")
                                 .arg(QDir::toNativeSeparators(to));
    }
    const QString move = tr("Move");
    if (session_.prompter().ask({tr("Move Database"), text, {move, tr("Cancel")}}) != move) {
        return StoreMove::Cancelled;
    }
    const bool isDefault = folder.isEmpty();
    settings.set(key::useCustomPath, !isDefault);
    if (!isDefault) {
        settings.set(key::customDatabasePath, to);
    }
    return session_.customPathChanged() ? StoreMove::Moved : StoreMove::Failed;
}

}  // namespace tamo
