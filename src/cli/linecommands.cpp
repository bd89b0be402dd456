#include <QHash>
#include <QLocale>
#include <QSet>

#include "cli/commands.h"
#include "documents/clients.h"
#include "documents/lineitems.h"
#include "model/appsession.h"

namespace tamo {

namespace {

// The options of one command: flags, and options that take the next word as their value.
struct Options {
    QString document;
    QHash<QString, QString> values;
    QSet<QString> flags;
};

std::expected<Options, Failure> parseOptions(const QStringList& args, const QStringList& valued,
                                             const QStringList& flags, const QString& usage)
{
    Options o;
    for (int i = 0; i < args.size(); ++i) {
        const QString& a = args[i];
        if (valued.contains(a) && i + 1 < args.size()) {
            o.values.insert(a, args[++i]);
        } else if (flags.contains(a)) {
            o.flags.insert(a);
        } else if (o.document.isEmpty() && !a.startsWith(u"--")) {
            o.document = a;
        } else {
            return std::unexpected(Failure{usage, kUsageError});
        }
    }
    if (o.document.isEmpty()) {
        return std::unexpected(Failure{usage, kUsageError});
    }
    return o;
}

QString documentName(const Record& document)
{
    const QString number = document.string("number");
    return number.isEmpty() ? document.uniqueID() : number;
}

}  // namespace

std::optional<Failure> addItemCommand(AppSession& session, const QStringList& args,
                                      QTextStream& out)
{
    const QString usage = QStringLiteral(
        "usage: tamo add-item N --title TEXT --price X --quantity Y [--unit TEXT] [--sku TEXT] "
        "[--subtitle TEXT] [--note TEXT] [--tax1] [--tax2] [--tax3]");
    const auto o = parseOptions(args,
                                {u"--title"_qs, u"--price"_qs, u"--quantity"_qs, u"--unit"_qs,
                                 u"--sku"_qs, u"--subtitle"_qs, u"--note"_qs},
                                {u"--tax1"_qs, u"--tax2"_qs, u"--tax3"_qs}, usage);
    if (!o) {
        return o.error();
    }
    const QLocale c = QLocale::c();
    bool priceOk = false, quantityOk = false;
    const double price = c.toDouble(o->values.value(u"--price"_qs), &priceOk);
    const double quantity = c.toDouble(o->values.value(u"--quantity"_qs), &quantityOk);
    if (!o->values.contains(u"--title"_qs) || !priceOk || !quantityOk) {
        return Failure{usage, kUsageError};
    }
    const auto document = selectDocument(session, o->document);
    if (!document) {
        return document.error();
    }
    LineItems items(session);
    std::optional<LineFields> fields = items.showItemPopover();
    if (!fields) {
        return Failure{QStringLiteral("add-item: %1 was left as it is").arg(o->document)};
    }
    fields->title = o->values.value(u"--title"_qs);
    fields->subtitle = o->values.value(u"--subtitle"_qs);
    fields->unit = o->values.value(u"--unit"_qs);
    fields->sku = o->values.value(u"--sku"_qs);
    fields->note = o->values.value(u"--note"_qs);
    fields->price = price;
    fields->quantity = quantity;
    fields->tax1 = o->flags.contains(u"--tax1"_qs);
    fields->tax2 = o->flags.contains(u"--tax2"_qs);
    fields->tax3 = o->flags.contains(u"--tax3"_qs);
    const Record* line = items.addItem(*fields);
    out << QStringLiteral("Added \"%1\" (%2 x %3) to %4; its total is now %5\n")
               .arg(line->string("title"), c.toString(quantity), c.toString(price),
                    documentName(**document), c.toString((*document)->decimal("amount"), 'f', 2));
    return std::nullopt;
}

std::optional<Failure> setClientCommand(AppSession& session, const QStringList& args,
                                        QTextStream& out)
{
    const QString usage =
        QStringLiteral("usage: tamo set-client N (--vcard FILE [--index I] | --remembered ID)");
    const auto o =
        parseOptions(args, {u"--vcard"_qs, u"--index"_qs, u"--remembered"_qs}, {}, usage);
    if (!o || o->values.contains(u"--vcard"_qs) == o->values.contains(u"--remembered"_qs)) {
        return Failure{usage, kUsageError};
    }
    const auto document = selectDocument(session, o->document);
    if (!document) {
        return document.error();
    }
    Clients clients(session);
    const QString left = QStringLiteral("set-client: %1 was left as it is").arg(o->document);
    if (o->values.contains(u"--remembered"_qs)) {
        const QString id = o->values.value(u"--remembered"_qs);
        const Record* client = session.context()->findByUniqueID("Address", id);
        if (!client) {
            return Failure{QStringLiteral("there is no remembered client %1").arg(id)};
        }
        // No address book is involved in taking a remembered client.
        if (!clients.showAddressPopover(ContactBook{}, QString())) {
            return Failure{left};
        }
        clients.selectRecentAdress(*client);
    } else {
        const QString file = o->values.value(u"--vcard"_qs);
        const ContactBook book = ContactBook::load(file);
        if (!book.unreadableFiles.isEmpty()) {
            return Failure{QStringLiteral("cannot read %1").arg(book.unreadableFiles.join(u", "))};
        }
        bool ok = true;
        const int index =
            o->values.contains(u"--index"_qs) ? o->values.value(u"--index"_qs).toInt(&ok) : 0;
        if (!ok || index < 0 || index >= book.contacts.size()) {
            return Failure{QStringLiteral("%1 has %2 contacts; --index counts them from 0")
                               .arg(file)
                               .arg(book.contacts.size())};
        }
        if (!clients.showAddressPopover(book, file)) {
            return Failure{left};
        }
        clients.selectAddress(clients.selectAddressRecord(book.contacts[index]));
    }
    out << QStringLiteral("The client of %1 is now %2\n")
               .arg(documentName(**document), (*document)->string("address").section(u'\n', 0, 0));
    return std::nullopt;
}

}  // namespace tamo
