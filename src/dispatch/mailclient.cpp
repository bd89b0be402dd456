#include "dispatch/mailclient.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QLoggingCategory>
#include <QProcess>
#include <QStandardPaths>
#include <QTimer>
#include <memory>

#include "dispatch/printsystem.h"
#include "platform/translations.h"

Q_LOGGING_CATEGORY(lcMail, "tamo.dispatch.mail", QtInfoMsg)

namespace tamo {

namespace {

Error noMailClient(const QString& reason)
{
    return Error{QString::fromLatin1(kDispatchDomain), kDispatchNoMailClient,
                 tr("No mail client could take the message."), reason};
}

}  // namespace

QString mailBody(const QString& text)
{
    return QStringLiteral("%1\n\n\n%2\n\n").arg(text, QString(96, u'-'));
}

Result<void> MailClient::compose(const MailMessage& message, int patienceMs)
{
    const QString path = QStandardPaths::findExecutable(program_);
    if (path.isEmpty()) {
        qCWarning(lcMail).noquote()
            << QStringLiteral("Application with bundle identifier %1 not found.").arg(program_);
        return std::unexpected(
            noMailClient(tr("%1 is missing; it comes with the package xdg-utils.").arg(program_)));
    }
    QStringList arguments{QStringLiteral("--utf8"), QStringLiteral("--subject"), message.subject,
                          QStringLiteral("--body"), message.body};
    if (!message.attachment.isEmpty()) {
        arguments << QStringLiteral("--attach") << message.attachment;
    }
    if (!message.recipient.isEmpty()) {
        arguments << message.recipient;
    }
    auto process = std::make_unique<QProcess>();
    process->setProcessChannelMode(QProcess::ForwardedErrorChannel);
    process->setStandardOutputFile(QProcess::nullDevice());
    QEventLoop loop;
    connect(process.get(), &QProcess::finished, &loop, &QEventLoop::quit);
    connect(process.get(), &QProcess::errorOccurred, &loop, &QEventLoop::quit);
    QTimer::singleShot(patienceMs, &loop, &QEventLoop::quit);
    process->start(path, arguments);
    if (process->state() != QProcess::NotRunning) {
        loop.exec();
    }
    if (process->error() == QProcess::FailedToStart) {
        const QString reason = process->errorString();
        qCWarning(lcMail).noquote() << QStringLiteral("Failed to launch app: %1").arg(reason);
        return std::unexpected(noMailClient(reason));
    }
    if (process->state() != QProcess::NotRunning) {
        // A mail client that xdg-email started keeps it waiting until it closes; the message is
        // open by now. The process is left to end on its own.
        QProcess* running = process.release();
        running->setParent(this);
        connect(running, &QProcess::finished, running, &QObject::deleteLater);
    } else if (process->exitStatus() != QProcess::NormalExit || process->exitCode() != 0) {
        // xdg-email: 3 no tool for the desktop's mail client, 4 the client refused.
        const QString reason = tr("%1 ended with code %2.").arg(program_).arg(process->exitCode());
        qCWarning(lcMail).noquote() << QStringLiteral("Failed to launch app: %1").arg(reason);
        return std::unexpected(noMailClient(reason));
    }
    qCInfo(lcMail).noquote() << QStringLiteral("App launched successfully: %1").arg(path);
    return {};
}

}  // namespace tamo
