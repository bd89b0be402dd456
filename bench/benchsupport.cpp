#include "benchsupport.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QHash>
#include <QProcess>
#include <QRegularExpression>

namespace tamo::bench {

namespace {
double statusFieldMiB(const char* field)
{
    QFile status(QStringLiteral("/proc/self/status"));
    if (!status.open(QIODevice::ReadOnly)) {
        return -1;
    }
    const QString text = QString::fromLatin1(status.readAll());
    const QRegularExpression re(QString::fromLatin1(field) + QStringLiteral(":\\s+(\\d+) kB"));
    const auto match = re.match(text);
    return match.hasMatch() ? match.captured(1).toDouble() / 1024.0 : -1;
}
}  // namespace

bool generateSampleProfile(const QString& folder)
{
    QProcess p;
    p.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    p.start(QCoreApplication::applicationDirPath() + QStringLiteral("/tamo"),
            {QStringLiteral("--store"), folder, QStringLiteral("generate-sample"),
             QStringLiteral("--documents"), QStringLiteral("10000"),
             QStringLiteral("--items-per-document"), QStringLiteral("8"),
             QStringLiteral("--clients"), QStringLiteral("300")});
    return p.waitForFinished(600'000) && p.exitStatus() == QProcess::NormalExit &&
           p.exitCode() == 0;
}

double processTreePssMiB(qint64 pid)
{
    // Parents from /proc/N/stat: "N (name) S PPID ..."; the name may hold spaces.
    QHash<qint64, qint64> parents;
    for (const QFileInfo& entry : QDir(QStringLiteral("/proc")).entryInfoList(QDir::Dirs)) {
        bool number = false;
        const qint64 child = entry.fileName().toLongLong(&number);
        QFile stat(entry.filePath() + QStringLiteral("/stat"));
        if (number && stat.open(QIODevice::ReadOnly)) {
            const QByteArray text = stat.readAll();
            const QList<QByteArray> fields = text.mid(text.lastIndexOf(')') + 2).split(' ');
            parents.insert(child, fields.value(1).toLongLong());
        }
    }
    double total = 0;
    for (auto it = parents.cbegin(); it != parents.cend(); ++it) {
        qint64 p = it.key();
        while (p > 1 && p != pid) {
            p = parents.value(p, 0);
        }
        if (p != pid) {
            continue;
        }
        QFile rollup(QStringLiteral("/proc/%1/smaps_rollup").arg(it.key()));
        if (rollup.open(QIODevice::ReadOnly)) {
            static const QRegularExpression pss(QStringLiteral("\\nPss:\\s+(\\d+) kB"));
            total += pss.match(QString::fromLatin1(rollup.readAll())).captured(1).toDouble();
        }
    }
    return total / 1024.0;
}

double peakResidentMiB()
{
    return statusFieldMiB("VmHWM");
}

double residentMiB()
{
    return statusFieldMiB("VmRSS");
}

}  // namespace tamo::bench
