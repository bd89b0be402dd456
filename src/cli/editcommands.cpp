// What the editor edits, on the command line: the document's fields (`set`) and its lines
// (`lines`, `edit-line`, `delete-line`), through the operations the window calls.

#include <QLocale>
#include <algorithm>

#include "calc/amountinput.h"
#include "cli/commands.h"
#include "documents/documentfields.h"
#include "documents/lifecycle.h"
#include "documents/lineitems.h"
#include "model/taxkeys.h"

namespace tamo {

namespace {

QString documentName(const Record& document)
{
    const QString number = document.string("number");
    return number.isEmpty() ? document.uniqueID() : number;
}

QString kindName(FieldKind kind)
{
    switch (kind) {
    case FieldKind::Text:
        return tr("text");
    case FieldKind::Date:
        return tr("date such as 2026-03-05");
    case FieldKind::Money:
        return tr("amount such as 1234.50");
    case FieldKind::Percent:
        return tr("percentage such as 10");
    case FieldKind::Flag:
        return tr("yes or no");
    case FieldKind::Choice:
        return tr("choice");
    }
    return {};
}

// "KEY=VALUE" split at its first "="; nothing when there is none.
std::optional<std::pair<QString, QString>> assignment(const QString& word)
{
    const qsizetype at = word.indexOf(u'=');
    if (at <= 0) {
        return std::nullopt;
    }
    return std::pair{word.left(at), word.mid(at + 1)};
}

QString sentRefusal(const Record& document, const QString& command)
{
    return tr("%1: %2 is marked as already sent; set its status back to 0 (created) first")
        .arg(command, documentName(document));
}

}  // namespace

std::optional<Failure> setCommand(AppSession& session, const CommandArgs& args, QTextStream& out)
{
    if (args.operandCount() < 2) {
        return args.usage();
    }
    const auto document = selectDocument(session, args.operand(0));
    if (!document) {
        return document.error();
    }
    Record& d = **document;
    // Every word is checked before anything changes.
    std::vector<std::pair<const DocumentField*, Value>> changes;
    bool locked = false;
    for (qsizetype i = 1; i < args.operandCount(); ++i) {
        const auto pair = assignment(args.operand(i));
        if (!pair) {
            return args.usage(tr("%1 is not KEY=VALUE").arg(args.operand(i)));
        }
        const DocumentField* field = findDocumentField(pair->first.toStdString());
        if (!field) {
            QStringList keys;
            for (const DocumentField& f : documentFields()) {
                keys << QString::fromLatin1(f.key);
            }
            return args.usage(
                tr("there is no field %1; the fields are %2").arg(pair->first, keys.join(u", ")));
        }
        const std::optional<Value> value = fieldValueFromText(*field, d, pair->second);
        if (!value) {
            return args.usage(
                tr("%1 is not a %2 for %3").arg(pair->second, kindName(field->kind), pair->first));
        }
        locked = locked || field->lockedWhenSent;
        changes.emplace_back(field, *value);
    }
    if (locked && refuseChangesToSentDocument(session)) {
        return Failure{sentRefusal(d, u"set"_qs)};
    }
    const auto touches = [&](FieldPanel panel) {
        return std::ranges::any_of(changes,
                                   [panel](const auto& c) { return c.first->panel == panel; });
    };
    // Shipping and discount are edited as in their panels: opened, changed, closed.
    LineItems lines(session);
    const bool shipping = touches(FieldPanel::Shipping) && lines.showShippingPopover();
    const bool discount = touches(FieldPanel::Discount) && lines.showDiscountPopover();
    QStringList changed;
    for (const auto& [field, value] : changes) {
        if (writeDocumentField(session, d, field->key, value, undoName(*field),
                               field->lockedWhenSent) == FieldWrite::Written) {
            changed << QString::fromLatin1(field->key);
        }
    }
    if (shipping) {
        lines.closeShippingPopover();
    }
    if (discount) {
        lines.closeDiscountPopover();
    }
    if (changed.isEmpty()) {
        out << tr("%1: nothing changed").arg(documentName(d)) << '\n';
    } else {
        out << tr("%1: changed %2; its total is now %3")
                   .arg(documentName(d), changed.join(u", "),
                        QLocale::c().toString(d.decimal("amount"), 'f', 2))
            << '\n';
    }
    return std::nullopt;
}

std::optional<Failure> linesCommand(AppSession& session, const CommandArgs& args, QTextStream& out)
{
    if (args.operandCount() != 1) {
        return args.usage();
    }
    const auto document = selectDocument(session, args.operand(0));
    if (!document) {
        return document.error();
    }
    const QLocale c = QLocale::c();
    int position = 0;
    for (const Record* line : LineItems(session).sortedItems(**document)) {
        QStringList taxes;
        for (size_t n = 0; n < kTaxes.size(); ++n) {
            if (line->boolean(kTaxes[n].applied)) {
                taxes << QStringLiteral("tax%1").arg(n + 1);
            }
        }
        out << QStringLiteral("%1  %2  %3 %4 x %5 = %6  %7\n")
                   .arg(++position, 3)
                   .arg(line->string("title").left(40), -40)
                   .arg(c.toString(line->decimal("unitCount")), 8)
                   .arg(line->string("unit").left(6), -6)
                   .arg(c.toString(line->decimal("baseAmount"), 'f', 2), 12)
                   .arg(c.toString(line->decimal("amount"), 'f', 2), 12)
                   .arg(taxes.join(u' '));
    }
    return std::nullopt;
}

namespace {

// The document and its line at a position of `lines N` (from 1).
std::expected<std::pair<Record*, Record*>, Failure> findLine(AppSession& session,
                                                             const CommandArgs& args)
{
    const auto document = selectDocument(session, args.operand(0));
    if (!document) {
        return std::unexpected(document.error());
    }
    const std::vector<Record*> lines = LineItems(session).sortedItems(**document);
    bool ok = false;
    const int position = args.operand(1).toInt(&ok);
    if (!ok || position < 1 || position > int(lines.size())) {
        return std::unexpected(Failure{tr("%1 has %2 lines; LINE counts them from 1 as `tamo "
                                          "lines` lists them")
                                           .arg(documentName(**document))
                                           .arg(lines.size())});
    }
    return std::pair{*document, lines[size_t(position - 1)]};
}

}  // namespace

std::optional<Failure> editLineCommand(AppSession& session, const CommandArgs& args,
                                       QTextStream& out)
{
    if (args.operandCount() < 3) {
        return args.usage();
    }
    const auto found = findLine(session, args);
    if (!found) {
        return found.error();
    }
    const auto [document, line] = *found;
    LineItems lines(session);
    std::optional<LineFields> fields = lines.openEditItemSheet(line);
    if (!fields) {
        return Failure{sentRefusal(*document, u"edit-line"_qs)};
    }
    const std::pair<const char16_t*, QString LineFields::*> texts[] = {
        {u"title", &LineFields::title},
        {u"subtitle", &LineFields::subtitle},
        {u"unit", &LineFields::unit},
        {u"sku", &LineFields::sku},
        {u"note", &LineFields::note}};
    const std::pair<const char16_t*, bool LineFields::*> taxes[] = {
        {u"tax1", &LineFields::tax1}, {u"tax2", &LineFields::tax2}, {u"tax3", &LineFields::tax3}};
    for (qsizetype i = 2; i < args.operandCount(); ++i) {
        const auto pair = assignment(args.operand(i));
        if (!pair) {
            return args.usage(tr("%1 is not KEY=VALUE").arg(args.operand(i)));
        }
        const auto& [key, text] = *pair;
        bool known = false;
        for (const auto& [name, member] : texts) {
            if (key == QStringView(name)) {
                (*fields).*member = text;
                known = true;
            }
        }
        for (const auto& [name, member] : taxes) {
            if (key == QStringView(name)) {
                if (text != u"yes" && text != u"no") {
                    return args.usage(tr("%1 is yes or no").arg(key));
                }
                (*fields).*member = text == u"yes";
                known = true;
            }
        }
        if (key == u"price" || key == u"quantity") {
            const auto n = amountFromText(text);
            if (!n) {
                return Failure{QStringLiteral("edit-line: %1: %2").arg(key, n.error())};
            }
            (key == u"price" ? fields->price : fields->quantity) = *n;
            known = true;
        }
        if (!known) {
            return args.usage(tr("there is no line field %1; the fields are title, subtitle, "
                                 "unit, sku, note, price, quantity, tax1, tax2, tax3")
                                  .arg(key));
        }
    }
    if (const auto checked = checkedLine(fields->price, fields->quantity); !checked) {
        return Failure{QStringLiteral("edit-line: %1").arg(checked.error())};
    }
    lines.editItem(line, *fields);
    out << tr("Changed \"%1\" of %2; its total is now %3")
               .arg(line->string("title"), documentName(*document),
                    QLocale::c().toString(document->decimal("amount"), 'f', 2))
        << '\n';
    return std::nullopt;
}

std::optional<Failure> deleteLineCommand(AppSession& session, const CommandArgs& args,
                                         QTextStream& out)
{
    if (args.operandCount() != 2) {
        return args.usage();
    }
    const auto found = findLine(session, args);
    if (!found) {
        return found.error();
    }
    const auto [document, line] = *found;
    const QString title = line->string("title");
    if (isCurrentInvoiceSent(session)) {
        refuseChangesToSentDocument(session);
        return Failure{sentRefusal(*document, u"delete-line"_qs)};
    }
    if (!LineItems(session).deleteItem(line)) {
        return Failure{tr("delete-line: \"%1\" was not deleted (questions are answered only "
                          "with --yes)")
                           .arg(title)};
    }
    out << tr("Deleted \"%1\" from %2; its total is now %3")
               .arg(title, documentName(*document),
                    QLocale::c().toString(document->decimal("amount"), 'f', 2))
        << '\n';
    return std::nullopt;
}

}  // namespace tamo
