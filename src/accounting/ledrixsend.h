#pragma once

#include <QCoreApplication>
#include <vector>

#include "accounting/ledrix.h"
#include "interchange/plistfile.h"

namespace tamo {

class AppSession;
class Record;

// The application the send sheet writes for: its name, the sheet's title and picture, and the
// web address behind the sheet's link.
struct SendTarget {
    QString name;
    QString title;
    QString icon;  // a picture of the interface's resources, by name
    QString webAddress;
};

// The send sheet: the listed invoices of a date range and a kind, written as one export file
// ("kelvaneExport.ldxtamo" for Ledrix, "kelvaneExport.kelvtamo" for Kelvane) and handed to the
// desktop, which opens it with the application that owns its extension. The range, the kind, the
// items kind and the count are the settings `prefsLedrixExport...`, which the sheet's controls
// show and change.
class LedrixSend {
    Q_DECLARE_TR_FUNCTIONS(tamo::LedrixSend)

public:
    explicit LedrixSend(AppSession& session);

    void setOpener(DesktopOpener opener) { opener_ = std::move(opener); }

    // Opening the sheet for a target (0 Ledrix, otherwise Kelvane): the range becomes that of
    // every listed invoice, and the list is filtered.
    void sendToLedrix(int tag);
    // Filters the listed invoices by the stored range (compared as stored) and kind, and stores
    // the count.
    void doTheFilter();
    void doTheLedrixFilter() { doTheFilter(); }

    const std::vector<Record*>& ledrixArray() const { return ledrixArray_; }
    int sendToTag() const { return sendToTag_; }
    SendTarget target() const;
    QString exportPath() const;

    // The invoices' dictionaries, each with one summary item in place of its items unless the
    // setting `prefsLedrixExportItemsKind` asks for the items themselves.
    Result<Plist> exportArray() const;
    // Writes the export file; returns its path.
    Result<QString> writeExportFile() const;
    // Hands the export file to the desktop.
    void openExportFile(OpenDone done) const;

    // The sheet's Export button: writes the file and hands it over, with an alert for each
    // failure. `done` learns whether both worked.
    void closeLedrixSheet(std::function<void(bool sent)> done = {});
    void cancelLedrixSheet() {}
    // Where to import instead, inside Ledrix.
    void newLedrixImportHint();

private:
    AppSession& session_;
    DesktopOpener opener_;
    std::vector<Record*> ledrixArray_;
    int sendToTag_ = 0;
};

// The one item that stands for an invoice in the send export: its amount, number, payment, sent
// and document dates, whether any line has each tax, and its sums and taxes, in that order, up
// to the first value that is empty.
Plist summaryItem(const Record& invoice);

}  // namespace tamo
