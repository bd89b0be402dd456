#include "platform/manual.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

namespace tamo {

QString sharedDataFolder()
{
    return QDir(QCoreApplication::applicationDirPath() + u"/../share/tamo"_qs).absolutePath();
}

QUrl manualUrl()
{
    const QString page =
        QDir(QCoreApplication::applicationDirPath() + u"/../share/doc/tamo/manual/index.html"_qs)
            .absolutePath();
    return QFileInfo::exists(page) ? QUrl::fromLocalFile(page) : QUrl();
}

}  // namespace tamo
