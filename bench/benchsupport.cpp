#include "benchsupport.h"

#include <QCoreApplication>
#include <QFile>
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

double peakResidentMiB()
{
    return statusFieldMiB("VmHWM");
}

double residentMiB()
{
    return statusFieldMiB("VmRSS");
}

}  // namespace tamo::bench
