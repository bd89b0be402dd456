#pragma once

#include <QStringList>
#include <QTextStream>
#include <expected>
#include <optional>

namespace tamo {

class AppSession;
class Record;

inline constexpr int kUsageError = 2;

// A command's failure: one line for the error stream and the exit code.
struct Failure {
    QString message;
    int code = 1;
};

// The document a command names by its number or its uniqueID; a number two documents share is
// refused, so that a command never acts on the wrong one.
std::expected<Record*, Failure> findDocument(AppSession& session, const QString& numberOrID);
// The same, made the current document, as selecting its row in the window does: the operations
// act on the current document.
std::expected<Record*, Failure> selectDocument(AppSession& session, const QString& numberOrID);

// A command runs on an open session (the store is open when it needs one), writes its result to
// `out` and returns a failure or nothing. The session saves after it.
using Command = std::optional<Failure> (*)(AppSession& session, const QStringList& args,
                                           QTextStream& out);

std::optional<Failure> listCommand(AppSession& session, const QStringList& args, QTextStream& out);
std::optional<Failure> settingsCommand(AppSession& session, const QStringList& args,
                                       QTextStream& out);
std::optional<Failure> generateSampleCommand(AppSession& session, const QStringList& args,
                                             QTextStream& out);
std::optional<Failure> recalcCommand(AppSession& session, const QStringList& args,
                                     QTextStream& out);
std::optional<Failure> nextNumberCommand(AppSession& session, const QStringList& args,
                                         QTextStream& out);

// The data actions of the File menu (interchangecommands.cpp).
std::optional<Failure> backupInvoicesCommand(AppSession&, const QStringList&, QTextStream&);
std::optional<Failure> restoreInvoicesCommand(AppSession&, const QStringList&, QTextStream&);
std::optional<Failure> backupItemsCommand(AppSession&, const QStringList&, QTextStream&);
std::optional<Failure> restoreItemsCommand(AppSession&, const QStringList&, QTextStream&);
std::optional<Failure> exportXmlCommand(AppSession&, const QStringList&, QTextStream&);
std::optional<Failure> exportShownXmlCommand(AppSession&, const QStringList&, QTextStream&);
std::optional<Failure> backupCompleteCommand(AppSession&, const QStringList&, QTextStream&);
std::optional<Failure> restoreCompleteCommand(AppSession&, const QStringList&, QTextStream&);
std::optional<Failure> dumpCommand(AppSession&, const QStringList&, QTextStream&);
std::optional<Failure> importDocumentCommand(AppSession&, const QStringList&, QTextStream&);
std::optional<Failure> exportRawCommand(AppSession&, const QStringList&, QTextStream&);
std::optional<Failure> importRawCommand(AppSession&, const QStringList&, QTextStream&);
std::optional<Failure> moveFromFlatpakCommand(AppSession&, const QStringList&, QTextStream&);
std::optional<Failure> safetyCopyCommand(AppSession&, const QStringList&, QTextStream&);
std::optional<Failure> restoreSafetyCopyCommand(AppSession&, const QStringList&, QTextStream&);
std::optional<Failure> recoverCommand(AppSession&, const QStringList&, QTextStream&);
std::optional<Failure> openFileCommand(AppSession&, const QStringList&, QTextStream&);

// The e-invoice (einvoicecommands.cpp).
std::optional<Failure> einvoiceCommand(AppSession&, const QStringList&, QTextStream&);
std::optional<Failure> einvoiceCheckCommand(AppSession&, const QStringList&, QTextStream&);
std::optional<Failure> einvoiceDetailsCommand(AppSession&, const QStringList&, QTextStream&);
std::optional<Failure> einvoiceNoticeCommand(AppSession&, const QStringList&, QTextStream&);

// Lines and clients of a document (linecommands.cpp).
std::optional<Failure> addItemCommand(AppSession&, const QStringList&, QTextStream&);
std::optional<Failure> setClientCommand(AppSession&, const QStringList&, QTextStream&);

// Pages, PDF files and designs (rendercommands.cpp). The commands that print pages need the web
// engine, so `main` runs them in a GUI application off screen.
bool commandRendersPages(const QString& command);
std::optional<Failure> renderCommand(AppSession&, const QStringList&, QTextStream&);
std::optional<Failure> exportPdfsCommand(AppSession&, const QStringList&, QTextStream&);
std::optional<Failure> designsCommand(AppSession&, const QStringList&, QTextStream&);
std::optional<Failure> templatesCommand(AppSession&, const QStringList&, QTextStream&);

// Documents: create, duplicate, convert, delete, status, dispatch, filters.
std::optional<Failure> newInvoiceCommand(AppSession&, const QStringList&, QTextStream&);
std::optional<Failure> newQuoteCommand(AppSession&, const QStringList&, QTextStream&);
std::optional<Failure> duplicateCommand(AppSession&, const QStringList&, QTextStream&);
std::optional<Failure> convertCommand(AppSession&, const QStringList&, QTextStream&);
std::optional<Failure> deleteCommand(AppSession&, const QStringList&, QTextStream&);
std::optional<Failure> setStatusCommand(AppSession&, const QStringList&, QTextStream&);
std::optional<Failure> dispatchCommand(AppSession&, const QStringList&, QTextStream&);
std::optional<Failure> filterCommand(AppSession&, const QStringList&, QTextStream&);

}  // namespace tamo
