#include <QLocale>

#include "calc/amountinput.h"
#include "cli/commands.h"
#include "documents/clients.h"
#include "documents/lineitems.h"
#include "model/appsession.h"

namespace tamo {

namespace {

QString documentName(const Record& document)
{
    const QString number = document.string("number");
    return number.isEmpty() ? document.uniqueID() : number;
}

}  // namespace

std::optional<Failure> addItemCommand(AppSession& session, const CommandArgs& args,
                                      QTextStream& out)
{
    if (args.operandCount() != 1 || !args.has(u"--title"_qs)) {
        return args.usage();
    }
    const QLocale c = QLocale::c();
    bool priceOk = false, quantityOk = false;
    const double price = c.toDouble(args.value(u"--price"_qs), &priceOk);
    const double quantity = c.toDouble(args.value(u"--quantity"_qs), &quantityOk);
    if (!priceOk || !quantityOk) {
        return args.usage(tr("--price and --quantity need numbers such as 12.50"));
    }
    if (const auto checked = checkedLine(price, quantity); !checked) {
        return Failure{QStringLiteral("add-item: %1").arg(checked.error())};
    }
    const QString name = args.operand(0);
    const auto document = selectDocument(session, name);
    if (!document) {
        return document.error();
    }
    LineItems items(session);
    std::optional<LineFields> fields = items.showItemPopover();
    if (!fields) {
        return Failure{tr("add-item: %1 was left as it is").arg(name)};
    }
    fields->title = args.value(u"--title"_qs);
    fields->subtitle = args.value(u"--subtitle"_qs);
    fields->unit = args.value(u"--unit"_qs);
    fields->sku = args.value(u"--sku"_qs);
    fields->note = args.value(u"--note"_qs);
    fields->price = price;
    fields->quantity = quantity;
    fields->tax1 = args.has(u"--tax1"_qs);
    fields->tax2 = args.has(u"--tax2"_qs);
    fields->tax3 = args.has(u"--tax3"_qs);
    const Record* line = items.addItem(*fields);
    out << tr("Added \"%1\" (%2 x %3) to %4; its total is now %5")
               .arg(line->string("title"), c.toString(quantity), c.toString(price),
                    documentName(**document), c.toString((*document)->decimal("amount"), 'f', 2))
        << '\n';
    return std::nullopt;
}

std::optional<Failure> setClientCommand(AppSession& session, const CommandArgs& args,
                                        QTextStream& out)
{
    if (args.operandCount() != 1 || args.has(u"--vcard"_qs) == args.has(u"--remembered"_qs)) {
        return args.usage();
    }
    const QString name = args.operand(0);
    const auto document = selectDocument(session, name);
    if (!document) {
        return document.error();
    }
    Clients clients(session);
    const QString left = tr("set-client: %1 was left as it is").arg(name);
    if (args.has(u"--remembered"_qs)) {
        const QString id = args.value(u"--remembered"_qs);
        const Record* client = session.context()->findByUniqueID("Address", id);
        if (!client) {
            return Failure{tr("there is no remembered client %1").arg(id)};
        }
        // No address book is involved in taking a remembered client.
        if (!clients.showAddressPopover(ContactBook{}, QString())) {
            return Failure{left};
        }
        clients.selectRecentAdress(*client);
    } else {
        const QString file = args.value(u"--vcard"_qs);
        const ContactBook book = ContactBook::load(file);
        if (!book.unreadableFiles.isEmpty()) {
            return Failure{tr("cannot read %1").arg(book.unreadableFiles.join(u", "))};
        }
        bool ok = true;
        const int index = args.has(u"--index"_qs) ? args.value(u"--index"_qs).toInt(&ok) : 0;
        if (!ok || index < 0 || index >= book.contacts.size()) {
            return Failure{tr("%1 has %2 contacts; --index counts them from 0")
                               .arg(file)
                               .arg(book.contacts.size())};
        }
        if (!clients.showAddressPopover(book, file)) {
            return Failure{left};
        }
        clients.selectAddress(clients.selectAddressRecord(book.contacts[index]));
    }
    out << tr("The client of %1 is now %2")
               .arg(documentName(**document), (*document)->string("address").section(u'\n', 0, 0))
        << '\n';
    return std::nullopt;
}

}  // namespace tamo
