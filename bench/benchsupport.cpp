#include "benchsupport.h"

#include <QFile>
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

double peakResidentMiB()
{
    return statusFieldMiB("VmHWM");
}

double residentMiB()
{
    return statusFieldMiB("VmRSS");
}

}  // namespace tamo::bench
