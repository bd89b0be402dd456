#include "reports/accountbook.h"

#include <QRegularExpression>
#include <algorithm>

#include "calc/numberformat.h"
#include "calc/totals.h"
#include "interchange/plistfile.h"
#include "model/appsession.h"
#include "platform/translations.h"

namespace tamo {

namespace {

// One document as three rows of eight cells; %1 to %12 are the slots. The light face is given
// as a weight too, so that it survives the move to the book's font family. The text column takes
// what the others leave of the 500 points, so the amounts stay on the page.
constexpr auto kRowTemplate =
    u"<table width=\"500\" cellpadding=\"1\" cellspacing=\"0\" border=\"0\" "
    u"style=\"font-size: 7px;\">"
    u"<tr>"
    u"<td width=\"24\" align=\"right\" style=\"font-weight: bold;\">%1</td>"
    u"<td width=\"%SPACER%\">%SPACERTEXT%</td>"
    u"<td width=\"42\" style=\"font-family: 'HelveticaNeue-Light'; font-weight: 300;\">%2</td>"
    u"<td width=\"360\"><b>%3</b><br /><span style=\"font-size: 6px;\">%4</span></td>"
    u"<td width=\"54\" align=\"right\"><b>%5</b><br /><span style=\"font-size: "
    u"6px;\">%6</span></td>"
    u"<td></td>"
    u"<td style=\"font-family: 'HelveticaNeue-Light'; font-weight: 300;\">%7</td>"
    u"<td style=\"font-weight: bold;\">%8</td>"
    u"</tr>"
    u"<tr>"
    u"<td></td><td></td>"
    u"<td>%9</td>"
    u"<td>%10</td>"
    u"<td align=\"right\">%11</td>"
    u"<td></td><td></td><td></td>"
    u"</tr>"
    u"<tr>"
    u"<td></td><td></td><td></td>"
    u"<td style=\"font-family: 'HelveticaNeue-Light'; font-weight: 300;\">%12</td>"
    u"<td></td><td></td><td></td><td></td>"
    u"</tr>"
    u"</table>";

const QString& rowTemplate(bool header)
{
    // The header's second cell is wider and holds a space; the rows' is narrow and empty.
    static const QString headerRow = QString::fromUtf16(kRowTemplate)
                                         .replace(u"%SPACERTEXT%"_qs, u"&nbsp;"_qs)
                                         .replace(u"%SPACER%"_qs, u"16"_qs);
    static const QString documentRow = QString::fromUtf16(kRowTemplate)
                                           .replace(u"%SPACERTEXT%"_qs, QString())
                                           .replace(u"%SPACER%"_qs, u"4"_qs);
    return header ? headerRow : documentRow;
}

const char* const kHint = QT_TRANSLATE_NOOP(
    "Tamo",
    "This feature is bound to the arranged invoices in Tamo's main window. This means you can, "
    "for example, search for a client and therefore print out the account book just for this "
    "single client or you can pre-filter all your invoices to print out the account book only "
    "for paid or overdue invoices.");

const QString kBookFamily = QStringLiteral("Helvetica Neue");

PrinterItem bookItem(const QString& html, qreal top, qreal bottom)
{
    PrinterItem item;
    item.attributedString =
        attributedStringByReplacingFont(StyledText::fromHtml(html), QFont(kBookFamily, 12));
    item.leftMargin = 40;
    item.rightMargin = 40;
    item.topMargin = top;
    item.bottomMargin = bottom;
    item.verticalInset = 3;
    item.horizontalInset = 0;
    return item;
}

QString shortened(const QString& text, qsizetype limit)
{
    if (text.size() < limit) {
        return text;
    }
    // A character reference cut in half would print as its letters ("&midd"); the cut moves
    // before it.
    static const QRegularExpression reference(
        QStringLiteral("&(#[0-9]+|#[xX][0-9a-fA-F]+|[A-Za-z][A-Za-z0-9]*);"));
    qsizetype cut = limit - 2;
    for (qsizetype at = text.lastIndexOf(u'&', cut - 1); at >= 0 && cut - at < 12;
         at = text.lastIndexOf(u'&', at - 1)) {
        const auto m = reference.match(text, at, QRegularExpression::NormalMatch,
                                       QRegularExpression::AnchorAtOffsetMatchOption);
        if (m.hasMatch() && m.capturedEnd() > cut) {
            cut = at;
            break;
        }
    }
    return text.left(cut) + u" &hellip;"_qs;
}

QString shortDate(const Record& document, std::string_view key, const QLocale& locale)
{
    const QDateTime date = document.date(key);
    return date.isValid() ? locale.toString(date.toLocalTime().date(), QLocale::ShortFormat)
                          : QString();
}

QString amount(const Record& document, std::string_view key, const QLocale& locale)
{
    return document.value(key).isNull() ? QString()
                                        : stringFromNumber(document.decimal(key), locale);
}

}  // namespace

QString accountBookSubject(const QString& subject)
{
    return shortened(subject, 90);
}

QString accountBookClientLine(const Record& document)
{
    static const QRegularExpression lineBreak(QStringLiteral("\r\n|\n|\r|\u2028"));
    QString line =
        QStringLiteral("%1 - %2").arg(document.string("clientNumber"), document.string("address"));
    line.replace(lineBreak, QStringLiteral(" &middot; "));
    return shortened(line, 112);
}

QString accountBookRow(bool header, const QStringList& values)
{
    static const QRegularExpression slot(QStringLiteral("%(1[0-2]|[1-9])"));
    const QString& row = rowTemplate(header);
    QString out;
    out.reserve(row.size() + 512);
    qsizetype from = 0;
    for (const auto& m : slot.globalMatch(row)) {
        out += QStringView(row).mid(from, m.capturedStart() - from);
        out += values.value(m.captured(1).toInt() - 1);
        from = m.capturedEnd();
    }
    out += QStringView(row).mid(from);
    return out;
}

std::vector<PrinterItem> accountBookItems(const std::vector<Record*>& documents,
                                          const Settings& settings, const QLocale& locale)
{
    std::vector<Record*> sorted = documents;
    std::stable_sort(sorted.begin(), sorted.end(), [](const Record* a, const Record* b) {
        return a->date("date").toMSecsSinceEpoch() < b->date("date").toMSecsSinceEpoch();
    });
    std::vector<PrinterItem> items;
    items.reserve(sorted.size() + 3);
    items.push_back(bookItem(
        QStringLiteral("<span style=\"text-align: right; font-family: 'HelveticaNeue-Light';"
                       "font-size: 17px;\">%1</span><br /><br /><br />")
            .arg(settings.string(key::prefsName)),
        0, 0));
    items.push_back(bookItem(
        accountBookRow(
            true, {QString(), QString(), settings.string(key::locInvoiceNumber),
                   settings.string(key::locInvoice), settings.string(key::locTotal),
                   settings.string(key::locSubtotal), QString(), QString(), QString(),
                   settings.string(key::locDescription), settings.string(key::locDue), QString()}),
        10, 0));
    items.push_back(bookItem(QStringLiteral("<span style=\"font-family: "
                                            "'HelveticaNeue-UltraLight';\">%1</span>")
                                 .arg(QString(84, u'_')),
                             -20, 20));
    int row = 0;
    for (const Record* d : sorted) {
        ++row;
        PrinterItem item = bookItem(
            accountBookRow(
                false,
                {QString::asprintf("%i", row), shortDate(*d, "date", locale), d->string("number"),
                 d->string("title"), amount(*d, "amount", locale), amount(*d, "subAmount", locale),
                 QString(), QString(), QString(), accountBookSubject(d->string("subject")),
                 shortDate(*d, "due", locale), accountBookClientLine(*d)}),
            0, -6);
        if (row % 2 == 0) {
            item.backgroundColor = QColor::fromRgbF(0.98f, 0.98f, 0.98f);
        }
        items.push_back(std::move(item));
    }
    return items;
}

std::unique_ptr<PrinterDocument> accountBookLayout(std::vector<PrinterItem> items)
{
    auto document = std::make_unique<PrinterDocument>(std::move(items));
    document->topMargin = 60;
    document->bottomMargin = 40;
    QFont footerFont(QStringList{QStringLiteral("HelveticaNeue-UltraLight"), kBookFamily});
    footerFont.setPixelSize(6);
    footerFont.setWeight(QFont::ExtraLight);
    document->footerView = std::make_unique<PrinterTextView>(
        QRectF(40, 0, 584, 40),
        StyledText::fromPlainText(QStringLiteral("<pageNumber/> / <pageCount/>"), footerFont));
    return document;
}

std::unique_ptr<PrinterDocument> AccountBook::printAccountBook()
{
    showPrintHint();
    return accountBookDocument();
}

void AccountBook::showPrintHint()
{
    Settings& settings = session_.settings();
    if (!settings.boolean(key::isAccountBookPrintHintShown)) {
        session_.prompter().ask({tr("Hint!"), tr(kHint), {tr("OK")}});
        settings.set(key::isAccountBookPrintHintShown, true);
    }
}

std::unique_ptr<PrinterDocument> AccountBook::accountBookDocument()
{
    Totals(session_).refreshStatistics();
    return accountBookLayout(
        accountBookItems(session_.documents().arranged(), session_.settings()));
}

Result<int> AccountBook::writePdf(const QString& path)
{
    const auto book = accountBookDocument();
    const QByteArray pdf = book->PDFDocument();
    if (pdf.isEmpty()) {
        return fail(QStringLiteral("Tamo.reports"), 1, tr("The account book could not be drawn."));
    }
    if (auto written = writeFileAtomically(path, pdf); !written) {
        return std::unexpected(written.error());
    }
    return int(book->pages().size());
}

}  // namespace tamo
