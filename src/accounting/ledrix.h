#pragma once

#include <QDateTime>
#include <QLoggingCategory>
#include <QString>
#include <optional>
#include <vector>

#include "platform/desktopopener.h"

Q_DECLARE_LOGGING_CATEGORY(lcAccounting)

namespace tamo {

class AppSession;
class Record;

// What both ways to the accounting applications share: which invoices go, and where the files lie.

inline constexpr auto kAccountingDomain = "Tamo.accounting";

enum AccountingError {
    kMalformedRequest = 1,
    kUnknownRequest,
    kIncompleteRequest,
    kUnknownKind,
    kNothingToExport,
    kExportNotWritten,
};

// Which invoices go: every dispatched one (status not 0), the paid ones (3), or those with status
// 2. Quotes never go.
enum class LedrixKind { Dispatched = 0, Paid = 1, Sent = 2 };

// The kind of a request's "kind" text: "kind", "paid" or "sent".
std::optional<LedrixKind> ledrixKindFromText(const QString& text);
// The kind of the setting `prefsLedrixExportKind`; nothing for another number.
std::optional<LedrixKind> ledrixKindFromSetting(int value);

// The documents of `list`, in its order, that are invoices of `kind` dated from `from` to `to`,
// both included and compared as they are. A document without a date is never included.
std::vector<Record*> ledrixInvoices(const std::vector<Record*>& list, const QDateTime& from,
                                    const QDateTime& to, LedrixKind kind);

// The folder of the PDFs, the import list and the export files: the application data folder.
QString ledrixFolder(const AppSession& session);

// How the files reach the other applications; xdg-open unless a test says otherwise.
using DesktopOpener = std::function<void(const QString& target, OpenDone done)>;
DesktopOpener systemOpener();

}  // namespace tamo
