#include "model/transformers.h"

#include "model/record.h"

namespace tamo {

QString stampImageName(const Record* document, bool table)
{
    if (!document) {
        return {};
    }
    int stamp = 5;  // quotes
    if (document->integer("kind") != 0) {
        const int status = document->integer("status");
        stamp = status >= 0 && status <= 4 ? status : 0;
    }
    return (table ? QStringLiteral("StampM") : QStringLiteral("Stamp")) + QString::number(stamp);
}

bool invoiceSentToBool(const Record* document)
{
    // The lock the "already sent" guard enforces, quotes included.
    return document && document->integer("status") < 1;
}

bool intToDateBool(int status)
{
    return status < 3;
}

bool intToAmountBool(int status)
{
    return status < 4;
}

}  // namespace tamo

#include <QCoreApplication>

namespace tamo {

QString statusLabel(const Record* document)
{
    if (!document) {
        return {};
    }
    if (document->integer("kind") == 0) {
        return QCoreApplication::translate("Status", "Quote");
    }
    switch (document->integer("status")) {
    case 1:
        return QCoreApplication::translate("Status", "Sent");
    case 2:
        return QCoreApplication::translate("Status", "Overdue");
    case 3:
        return QCoreApplication::translate("Status", "Paid");
    case 4:
        return QCoreApplication::translate("Status", "Partially paid");
    default:
        return QCoreApplication::translate("Status", "Created");
    }
}

}  // namespace tamo
