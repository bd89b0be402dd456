#pragma once

#include <QStringList>
#include <QTextStream>
#include <expected>
#include <optional>

#include "cli/commandargs.h"
#include "platform/translations.h"

namespace tamo {

class AppSession;
class EinvoiceActions;
class Record;
struct EinvoiceOptions;

// The document a command names by its number or its uniqueID; a number two documents share is
// refused, so that a command never acts on the wrong one.
std::expected<Record*, Failure> findDocument(AppSession& session, const QString& numberOrID);
// The same, made the current document, as selecting its row in the window does: the operations
// act on the current document.
std::expected<Record*, Failure> selectDocument(AppSession& session, const QString& numberOrID);

// Narrows the list by --filter TAG and --search TEXT when the command was given them, as the
// window's filter menu and search field do.
std::optional<Failure> arrangeList(AppSession& session, const CommandArgs& args);

// A command runs on an open session (the store is open when it needs one) with its words already
// checked against its synopsis, writes its result to `out` and returns a failure or nothing. The
// session saves after it.
using Command = std::optional<Failure> (*)(AppSession& session, const CommandArgs& args,
                                           QTextStream& out);

// The arranged list as a table, or as JSON for scripts.
void printDocumentList(AppSession& session, bool json, QTextStream& out);
std::optional<Failure> listCommand(AppSession& session, const CommandArgs& args, QTextStream& out);
// Settings and setup (settingscommands.cpp).
std::optional<Failure> settingsCommand(AppSession& session, const CommandArgs& args,
                                       QTextStream& out);
std::optional<Failure> setupCommand(AppSession&, const CommandArgs&, QTextStream&);
std::optional<Failure> generateSampleCommand(AppSession& session, const CommandArgs& args,
                                             QTextStream& out);
std::optional<Failure> recalcCommand(AppSession& session, const CommandArgs& args,
                                     QTextStream& out);
std::optional<Failure> nextNumberCommand(AppSession& session, const CommandArgs& args,
                                         QTextStream& out);

// The data actions of the File menu (interchangecommands.cpp).
std::optional<Failure> backupInvoicesCommand(AppSession&, const CommandArgs&, QTextStream&);
std::optional<Failure> restoreInvoicesCommand(AppSession&, const CommandArgs&, QTextStream&);
std::optional<Failure> backupItemsCommand(AppSession&, const CommandArgs&, QTextStream&);
std::optional<Failure> restoreItemsCommand(AppSession&, const CommandArgs&, QTextStream&);
std::optional<Failure> exportXmlCommand(AppSession&, const CommandArgs&, QTextStream&);
std::optional<Failure> exportShownXmlCommand(AppSession&, const CommandArgs&, QTextStream&);
std::optional<Failure> backupCompleteCommand(AppSession&, const CommandArgs&, QTextStream&);
std::optional<Failure> restoreCompleteCommand(AppSession&, const CommandArgs&, QTextStream&);
std::optional<Failure> dumpCommand(AppSession&, const CommandArgs&, QTextStream&);
std::optional<Failure> importDocumentCommand(AppSession&, const CommandArgs&, QTextStream&);
std::optional<Failure> exportRawCommand(AppSession&, const CommandArgs&, QTextStream&);
std::optional<Failure> importRawCommand(AppSession&, const CommandArgs&, QTextStream&);
std::optional<Failure> moveFromFlatpakCommand(AppSession&, const CommandArgs&, QTextStream&);
std::optional<Failure> moveStoreCommand(AppSession&, const CommandArgs&, QTextStream&);
std::optional<Failure> safetyCopyCommand(AppSession&, const CommandArgs&, QTextStream&);
std::optional<Failure> restoreSafetyCopyCommand(AppSession&, const CommandArgs&, QTextStream&);
std::optional<Failure> recoverCommand(AppSession&, const CommandArgs&, QTextStream&);

// The accounting applications and the desktop's requests (accountingcommands.cpp).
std::optional<Failure> sendToCommand(AppSession&, const CommandArgs&, QTextStream&);
std::optional<Failure> openFileCommand(AppSession&, const CommandArgs&, QTextStream&);

// The e-invoice (einvoicecommands.cpp).
std::optional<Failure> einvoiceCommand(AppSession&, const CommandArgs&, QTextStream&);
std::optional<Failure> einvoiceCheckCommand(AppSession&, const CommandArgs&, QTextStream&);
std::optional<Failure> einvoiceDetailsCommand(AppSession&, const CommandArgs&, QTextStream&);
std::optional<Failure> einvoiceNoticeCommand(AppSession&, const CommandArgs&, QTextStream&);
// Before an e-invoice leaves (einvoice, mail --einvoice): the readiness check unless forced, not
// yet sent, and a conformant file that can be written; a file the recipient's validator will
// likely reject is only warned of on `out`.
std::optional<Failure> einvoiceGate(EinvoiceActions& actions, const QString& document,
                                    const EinvoiceOptions& options, bool force, QTextStream& out);

// Printing, PDF files, mail and document files (dispatchcommands.cpp).
std::optional<Failure> printCommand(AppSession&, const CommandArgs&, QTextStream&);
std::optional<Failure> pdfCommand(AppSession&, const CommandArgs&, QTextStream&);
std::optional<Failure> mailCommand(AppSession&, const CommandArgs&, QTextStream&);
std::optional<Failure> exportDocumentCommand(AppSession&, const CommandArgs&, QTextStream&);

// Lines and clients of a document (linecommands.cpp).
std::optional<Failure> addItemCommand(AppSession&, const CommandArgs&, QTextStream&);
std::optional<Failure> setClientCommand(AppSession&, const CommandArgs&, QTextStream&);

// The document's fields and lines as the editor edits them (editcommands.cpp).
std::optional<Failure> setCommand(AppSession&, const CommandArgs&, QTextStream&);
std::optional<Failure> linesCommand(AppSession&, const CommandArgs&, QTextStream&);
std::optional<Failure> editLineCommand(AppSession&, const CommandArgs&, QTextStream&);
std::optional<Failure> deleteLineCommand(AppSession&, const CommandArgs&, QTextStream&);

// Pages, PDF files and designs (rendercommands.cpp). The commands that print pages need the web
// engine, so `main` runs them in a GUI application off screen.
bool commandRendersPages(const QString& command);
// Those of them that print one document and end.
bool commandPrintsOneDocument(const QString& command);
std::optional<Failure> renderCommand(AppSession&, const CommandArgs&, QTextStream&);
std::optional<Failure> exportPdfsCommand(AppSession&, const CommandArgs&, QTextStream&);
std::optional<Failure> designsCommand(AppSession&, const CommandArgs&, QTextStream&);
std::optional<Failure> templatesCommand(AppSession&, const CommandArgs&, QTextStream&);

// The sales report and the account book (reportcommands.cpp).
std::optional<Failure> reportCommand(AppSession&, const CommandArgs&, QTextStream&);
std::optional<Failure> accountBookCommand(AppSession&, const CommandArgs&, QTextStream&);

// Documents: create, duplicate, convert, delete, status, dispatch, filters.
std::optional<Failure> newInvoiceCommand(AppSession&, const CommandArgs&, QTextStream&);
std::optional<Failure> newQuoteCommand(AppSession&, const CommandArgs&, QTextStream&);
std::optional<Failure> duplicateCommand(AppSession&, const CommandArgs&, QTextStream&);
std::optional<Failure> convertCommand(AppSession&, const CommandArgs&, QTextStream&);
std::optional<Failure> deleteCommand(AppSession&, const CommandArgs&, QTextStream&);
std::optional<Failure> setStatusCommand(AppSession&, const CommandArgs&, QTextStream&);
std::optional<Failure> dispatchCommand(AppSession&, const CommandArgs&, QTextStream&);
std::optional<Failure> filterCommand(AppSession&, const CommandArgs&, QTextStream&);

}  // namespace tamo
