#pragma once

#include <QObject>
#include <QString>

#include "platform/error.h"

namespace tamo {

// A new message for the person to look over and send.
struct MailMessage {
    QString subject;
    QString body;
    QString recipient;   // may be empty
    QString attachment;  // a file that exists
};

// The body of a sent document: the text, three line breaks, a line of 96 hyphens and two more
// line breaks, where the person writes on.
QString mailBody(const QString& text);

// The user's mail client, reached through xdg-email (xdg-utils), which hands subject, body,
// recipient and attachment to whichever client the desktop names for mail.
class MailClient : public QObject {
    Q_OBJECT

public:
    explicit MailClient(QObject* parent = nullptr) : QObject(parent) {}

    // The program started; looked up on the PATH.
    QString program() const { return program_; }
    void setProgram(QString program) { program_ = std::move(program); }

    // Opens the message in the mail client. Waits for xdg-email to answer, but not for a mail
    // client it had to start and that keeps it waiting: after `patienceMs` the message counts as
    // handed over. Fails when no mail client can take it.
    Result<void> compose(const MailMessage& message, int patienceMs = 8000);

private:
    QString program_ = QStringLiteral("xdg-email");
};

}  // namespace tamo
