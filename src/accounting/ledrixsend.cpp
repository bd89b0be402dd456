#include "accounting/ledrixsend.h"

#include <QDir>

#include "interchange/recorddictionary.h"
#include "model/appsession.h"

namespace tamo {

namespace {

bool anyItem(const Record& invoice, std::string_view key)
{
    const auto& items = invoice.toMany("items");
    return std::ranges::any_of(items, [key](const Record* item) { return item->boolean(key); });
}

bool isEmpty(const Value& value)
{
    return value.isNull() || (value.isString() && value.toString().isEmpty());
}

}  // namespace

Plist summaryItem(const Record& invoice)
{
    const std::pair<const char*, Value> values[] = {
        {"amount", invoice.value("amount")},
        {"title", invoice.value("number")},
        {"paidDate", invoice.value("paid")},
        {"sentDate", invoice.value("sent")},
        {"dateDate", invoice.value("date")},
        {"isTax1Applied", anyItem(invoice, "isTax1Applied")},
        {"isTax2Applied", anyItem(invoice, "isTax2Applied")},
        {"isTax3Applied", anyItem(invoice, "isTax3Applied")},
        {"subAmount", invoice.value("subAmount")},
        {"tax1Amount", invoice.value("tax1Amount")},
        {"tax1Percent", invoice.value("tax1Percent")},
        {"tax2Amount", invoice.value("tax2Amount")},
        {"tax2Percent", invoice.value("tax2Percent")},
        {"tax3Amount", invoice.value("tax3Amount")},
        {"tax3Percent", invoice.value("tax3Percent")},
    };
    Plist item(plist_new_dict());
    // The item ends at the first empty value: an unpaid invoice has only its amount and number.
    for (const auto& [key, value] : values) {
        plist_t node = isEmpty(value) ? nullptr : plistFromValue(value);
        if (!node) {
            break;
        }
        plist_dict_set_item(item.get(), key, node);
    }
    return item;
}

LedrixSend::LedrixSend(AppSession& session) : session_(session), opener_(systemOpener()) {}

void LedrixSend::sendToLedrix(int tag)
{
    sendToTag_ = tag == 0 ? 0 : 1;
    ledrixArray_.clear();
    for (Record* document : session_.documents().arranged()) {
        if (document->integer("kind") == 1) {
            ledrixArray_.push_back(document);
        }
    }
    // The range covers every listed invoice, whatever the list's sort.
    QDateTime first, last;
    for (const Record* invoice : ledrixArray_) {
        const QDateTime date = invoice->date("date");
        if (date.isValid()) {
            first = first.isValid() ? std::min(first, date) : date;
            last = last.isValid() ? std::max(last, date) : date;
        }
    }
    if (first.isValid()) {
        session_.settings().set(key::prefsLedrixExportBeginDate, first);
        session_.settings().set(key::prefsLedrixExportEndDate, last);
    }
    doTheFilter();
}

void LedrixSend::doTheFilter()
{
    const Settings& settings = session_.settings();
    const auto kind = ledrixKindFromSetting(settings.integer(key::prefsLedrixExportKind))
                          .value_or(LedrixKind::Dispatched);
    ledrixArray_ = ledrixInvoices(session_.documents().arranged(),
                                  settings.date(key::prefsLedrixExportBeginDate),
                                  settings.date(key::prefsLedrixExportEndDate), kind);
    session_.settings().set(key::prefsLedrixExportCount, int(ledrixArray_.size()));
}

SendTarget LedrixSend::target() const
{
    if (sendToTag_ == 0) {
        return {QStringLiteral("Ledrix"), tr("Send Invoices To Ledrix"),
                QStringLiteral("LedrixIcon"), QStringLiteral("https://www.ledrix.example/")};
    }
    return {QStringLiteral("Kelvane"), tr("Send Invoices To Kelvane"),
            QStringLiteral("KelvanePROIcon"), QStringLiteral("https://www.kelvane.example/")};
}

QString LedrixSend::exportPath() const
{
    // Both names begin with the bookkeeping application's word.
    return ledrixFolder(session_) + (sendToTag_ == 0 ? QStringLiteral("/kelvaneExport.ldxtamo")
                                                     : QStringLiteral("/kelvaneExport.kelvtamo"));
}

Result<Plist> LedrixSend::exportArray() const
{
    const bool ownItems = session_.settings().integer(key::prefsLedrixExportItemsKind) != 0;
    Plist array(plist_new_array());
    for (const Record* invoice : ledrixArray_) {
        auto dictionary = toDictionary(*invoice);
        if (!dictionary) {
            return std::unexpected(dictionary.error());
        }
        if (!ownItems) {
            plist_t items = plist_new_array();
            plist_array_append_item(items, summaryItem(*invoice).release());
            plist_dict_set_item(dictionary->get(), "items", items);
        }
        plist_array_append_item(array.get(), dictionary->release());
    }
    return array;
}

Result<QString> LedrixSend::writeExportFile() const
{
    const QString folder = ledrixFolder(session_);
    if (!QDir().mkpath(folder)) {
        return fail(QString::fromLatin1(kAccountingDomain), kExportNotWritten,
                    tr("Unable to create the folder %1.").arg(folder));
    }
    auto array = exportArray();
    if (!array) {
        return std::unexpected(array.error());
    }
    auto bytes = serializePlist(array->get(), PlistFormat::Xml);
    if (!bytes) {
        return std::unexpected(bytes.error());
    }
    if (auto written = writeFileAtomically(exportPath(), *bytes); !written) {
        return std::unexpected(written.error());
    }
    return exportPath();
}

void LedrixSend::openExportFile(OpenDone done) const
{
    opener_(exportPath(), std::move(done));
}

void LedrixSend::closeLedrixSheet(std::function<void(bool sent)> done)
{
    const auto written = writeExportFile();
    if (!written) {
        qCWarning(lcAccounting).noquote() << written.error().text();
        session_.prompter().ask(
            {tr("Error!"), tr("Could not write Ledrix/Kelvane export data."), {tr("OK")}});
    }
    openExportFile([this, wrote = written.has_value(), done](const Result<void>& opened) {
        if (!opened) {
            qCWarning(lcAccounting).noquote() << opened.error().text();
            session_.prompter().ask(
                {tr("Error!"),
                 tr("Ledrix/Kelvane export file couldn't be opened. Please ensure that Ledrix or "
                    "Kelvane is installed on your computer and running."),
                 {tr("OK")}});
        }
        if (done) {
            done(wrote && opened.has_value());
        }
    });
}

void LedrixSend::newLedrixImportHint()
{
    session_.prompter().ask(
        {tr("Hint!"),
         tr("'Send To' is obsolete. Please directly import invoices from within Ledrix.\n\n"
            "Ledrix > Menü > Ablage > Posten aus anderen Programmen importieren …"),
         {tr("OK")}});
}

}  // namespace tamo
