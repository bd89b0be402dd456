#pragma once

#include <QLocale>
#include <QStringList>
#include <memory>
#include <vector>

#include "platform/error.h"
#include "reports/printerdocument.h"

namespace tamo {

class AppSession;
class Record;
class Settings;

// The account book: every listed document as one block of a printed list, oldest first, on A4
// pages numbered "n / N". The window prints it; the command line writes it as PDF.
class AccountBook {
public:
    explicit AccountBook(AppSession& session) : session_(session) {}

    // The window's action up to the print panel: the hint on first use, then the book.
    std::unique_ptr<PrinterDocument> printAccountBook();
    // The hint that the book follows the main list, the first time only.
    void showPrintHint();
    // The book of the documents listed now (after search and filter), their totals
    // recalculated first.
    std::unique_ptr<PrinterDocument> accountBookDocument();
    // The book written as PDF to `path`; the number of pages.
    Result<int> writePdf(const QString& path);

private:
    AppSession& session_;
};

// The blocks of the book: title, column header, rule, then one per document in date order.
std::vector<PrinterItem> accountBookItems(const std::vector<Record*>& documents,
                                          const Settings& settings,
                                          const QLocale& locale = QLocale());
// The book's pages for those blocks, with margins and the page-number footer.
std::unique_ptr<PrinterDocument> accountBookLayout(std::vector<PrinterItem> items);

// The subject as a row shows it: from 90 characters on, the first 88 and an ellipsis (fewer
// when the 88th is inside a character reference, which is never cut).
QString accountBookSubject(const QString& subject);
// "CLIENTNUMBER - ADDRESS" on one line, its line breaks as middle dots; from 112 characters on,
// the first 110 (as above) and an ellipsis.
QString accountBookClientLine(const Record& document);
// The row template of the column header (`header`) or of a document with its twelve slots
// filled, in one pass: a value is never read for slots of its own.
QString accountBookRow(bool header, const QStringList& values);

}  // namespace tamo
