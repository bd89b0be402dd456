#include "platform/profile.h"

#include <QDir>
#include <QStandardPaths>

namespace tamo {

namespace {
QString xdgFolder(const char* variable, const QString& fallbackBelowHome)
{
    QString value = qEnvironmentVariable(variable);
    if (value.isEmpty() || !QDir::isAbsolutePath(value)) {
        value = QDir::homePath() + u'/' + fallbackBelowHome;
    }
    return QDir::cleanPath(value);
}
}  // namespace

Profile Profile::standard()
{
    const QString data = xdgFolder("XDG_DATA_HOME", QStringLiteral(".local/share"));
    const QString config = xdgFolder("XDG_CONFIG_HOME", QStringLiteral(".config"));
    Profile p;
    p.supportFolder = data + u'/' + QLatin1String(kApplicationId);
    p.dataFolder = data + QStringLiteral("/Tamo");
    p.settingsFile = config + QStringLiteral("/Tamo/Tamo.conf");
    p.recoveryFolder = p.dataFolder + QStringLiteral("/Recovery");
    p.documentsFolder = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    p.homeFolder = QDir::homePath();
    return p;
}

Profile Profile::inDirectory(const QString& directory)
{
    const QString root = QDir::cleanPath(QDir(directory).absolutePath());
    Profile p;
    p.supportFolder = root;
    p.dataFolder = root + QStringLiteral("/Tamo");
    p.settingsFile = root + QStringLiteral("/Tamo.conf");
    p.recoveryFolder = p.dataFolder + QStringLiteral("/Recovery");
    p.documentsFolder = root + QStringLiteral("/Documents");
    p.homeFolder = root;
    return p;
}

}  // namespace tamo
