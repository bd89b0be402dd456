#include "render/invoicehtml.h"

#include <QBuffer>
#include <QDir>
#include <QFile>
#include <QImage>
#include <QImageReader>
#include <QLoggingCategory>
#include <QUrl>

#include "calc/numberformat.h"
#include "calc/numbering.h"
#include "documents/lineitems.h"
#include "model/appsession.h"
#include "model/record.h"
#include "model/taxkeys.h"
#include "render/designlibrary.h"
#include "render/pagelayout.h"

Q_LOGGING_CATEGORY(lcRender, "tamo.render", QtInfoMsg)

namespace tamo {

namespace {

// A join that keeps reforming its placeholder is pathological; real pages settle in one pass.
constexpr int kMaxPasses = 8;

QString text(const Record* record, std::string_view key)
{
    return record ? record->string(key) : QString();
}

double number(const Record* record, std::string_view key)
{
    return record ? record->decimal(key) : 0.0;
}

bool flag(const Record* record, std::string_view key)
{
    return record && record->boolean(key);
}

QString money(const Record* record, std::string_view key)
{
    return stringFromNumber(number(record, key));
}

// A rate kept as a fraction, as the single-precision percentage the designs show.
float percentOf(const Record* record, std::string_view key)
{
    return float(number(record, key)) * 100.0f;
}

// "Title<br /><small>Subtitle</small>" when the subtitle is switched on.
QString titleWithSubtitle(const Record* document, std::string_view hasSubtitle,
                          std::string_view title, std::string_view subtitle)
{
    if (flag(document, hasSubtitle)) {
        return QStringLiteral("%1<br /><small>%2</small>")
            .arg(text(document, title), text(document, subtitle));
    }
    return text(document, title);
}

QString date(const Settings& settings, const Record* document, std::string_view key)
{
    return document ? getPatternDateStringFromDate(settings, document->date(key)) : QString();
}

// Step 18: the label beside the due date tells what kind of page this is.
const SettingKey& dueLabel(const Record* document, RenderMode mode)
{
    if (document && document->integer("kind") == 0) {
        return key::locExpiration;
    }
    switch (mode) {
    case RenderMode::Reminder:
        return key::locOverdue;
    case RenderMode::Slip:
        return key::locDispatched;
    case RenderMode::Document:
        break;
    }
    return key::locDue;
}

// The labels of the payment lines came after the starting values of the settings: until the
// person sets them, they are the words of the language those values were taken in.
QString paymentLabel(const Settings& s, const SettingKey& label)
{
    if (s.contains(label)) {
        return s.string(label);
    }
    struct Words {
        const char16_t* paid;
        const char16_t* due;
    };
    static constexpr Words kWords[] = {{u"Paid", u"Amount due"},
                                       {u"Bezahlt", u"Offener Betrag"},
                                       {u"Payé", u"Reste à payer"},
                                       {u"Pagado", u"Importe pendiente"}};
    const int language = s.integer(key::languageDefaults);
    const Words& words = kWords[language >= 0 && language < 4 ? language : 0];
    return QString::fromUtf16(&label == &key::locPaid ? words.paid : words.due);
}

void fillTaxes(QString& page, const Record* document, const Settings& s)
{
    for (int n = 1; n <= 3; ++n) {
        const TaxKeys& tax = kTaxes[size_t(n - 1)];
        const QString title = QStringLiteral("%TAX%1TITLE%").arg(n);
        const QString amount = QStringLiteral("%TAX%1%").arg(n);
        const QString rate = QStringLiteral("%TAX%1RATE%").arg(n);
        // The application's switch decides, not the document's own amount.
        if (!s.boolean(*tax.enabled)) {
            replacePlaceholder(page, title, {});
            replacePlaceholder(page, amount, {});
            replacePlaceholder(page, rate, {});
            continue;
        }
        replacePlaceholder(page, title, s.string(*tax.titleSetting));
        replacePlaceholder(page, amount, money(document, tax.amount));
        replacePlaceholder(page, rate,
                           QString::asprintf("%.02f", double(percentOf(document, tax.percent))));
    }
}

void fillItemTaxes(QString& row, const Record& item, const Settings& s)
{
    for (int n = 1; n <= 3; ++n) {
        const QString title = QStringLiteral("%ITEMSTAX%1TITLE%").arg(n);
        const QString percent = QStringLiteral("%ITEMSTAX%1PERCENT%").arg(n);
        const QString amount = QStringLiteral("%ITEMSTAX%1AMOUNT%").arg(n);
        const TaxKeys& tax = kTaxes[size_t(n - 1)];
        if (!item.boolean(tax.applied)) {
            replacePlaceholder(row, title, {});
            replacePlaceholder(row, percent, {});
            replacePlaceholder(row, amount, {});
            continue;
        }
        // The first applied tax takes the placeholder, so the gross price includes that tax only.
        static constexpr QStringView gross =
            u"%IKNOWITSWRONGBUTILIVEINTHEPASTITEMSINGLEGROSSAMOUNT%";
        if (row.contains(gross)) {
            const float base = float(item.decimal("baseAmount"));
            const float rate = float(item.decimal(tax.percent));
            replacePlaceholder(row, gross, stringFromNumber(double(base + base * rate)));
        }
        replacePlaceholder(row, title, item.string(tax.title));
        replacePlaceholder(row, percent,
                           decimalStringFromNumber(double(percentOf(&item, tax.percent))));
        replacePlaceholder(
            row, amount,
            s.boolean(key::showSingleTaxAmounts) ? money(&item, tax.amount) : QString());
    }
}

}  // namespace

DesignParts DesignParts::of(const Record* design)
{
    DesignParts parts;
    if (!design) {
        return parts;
    }
    const auto part = [design](std::string_view key) -> std::optional<QString> {
        const Value& v = design->value(key);
        return v.isNull() ? std::nullopt : std::optional(v.toString());
    };
    parts.invoice = part("invoice");
    parts.item = part("item");
    parts.css = part("css");
    return parts;
}

void replacePlaceholder(QString& text, QStringView placeholder, const QString& value)
{
    const bool holdsItself = value.contains(placeholder);
    for (int pass = 0; pass < kMaxPasses && text.contains(placeholder); ++pass) {
        text.replace(placeholder.toString(), value);
        if (holdsItself) {
            break;
        }
    }
}

QString htmlLineBreakStringFromString(const QString& text)
{
    QString result = text;
    return result.replace(u'\n', QStringLiteral("<br />"));
}

QString designFailureText()
{
    return InvoiceHtml::tr(
        "FAIL! YOUR SELECTED DESIGN IS EITHER BROKEN, CORRUPTED, OR DAMAGED! "
        "YOU NEED TO FIX THIS!");
}

QString fillItemRows(const DesignParts& design, const std::vector<Record*>& items,
                     const Settings& s, const QString& rowCurrency)
{
    if (!design.item) {
        return designFailureText();
    }
    QString rows;
    int position = 1;
    for (const Record* item : items) {
        QString row = *design.item;
        replacePlaceholder(row, u"%ITEMNUMBER%", decimalStringFromNumber(position));
        replacePlaceholder(row, u"%ITEMSQUANTITY%",
                           decimalStringFromNumber(item->decimal("unitCount")));
        replacePlaceholder(row, u"%ITEMSUNIT%", item->string("unit"));
        replacePlaceholder(row, u"%ITEMSBASEAMOUNT%", money(item, "baseAmount"));
        replacePlaceholder(row, u"%ITEMSSKU%",
                           s.boolean(key::tempUseSKU) ? item->string("sku") : QString());
        replacePlaceholder(
            row, u"%ITEMSSUBAMOUNT%",
            s.boolean(key::showItemSubAmount) ? money(item, "subAmount") : QString());
        replacePlaceholder(row, u"%ITEMSTITLE%", item->string("title"));
        replacePlaceholder(row, u"%ITEMSSUBTITLE%",
                           htmlLineBreakStringFromString(item->string("subtitle")));
        replacePlaceholder(row, u"%ITEMSAMOUNT%", money(item, "amount"));
        fillItemTaxes(row, *item, s);
        replacePlaceholder(row, u"%LOCDISCOUNT%", s.string(key::locDiscount));
        replacePlaceholder(row, u"%DISCOUNTKINDCHAR%", QStringLiteral("%"));
        replacePlaceholder(row, u"%LOCSUBTOTAL%", s.string(key::locSubtotal));
        replacePlaceholder(row, u"%LOCSHIPPING%", s.string(key::locShipping));
        replacePlaceholder(row, u"%LOCTOTAL%", s.string(key::locTotal));
        replacePlaceholder(row, u"%LOCSHORTNUMBER%", s.string(key::locNo));
        replacePlaceholder(row, u"%LOCUNIT%", s.string(key::locUnit));
        replacePlaceholder(row, u"%LOCUNITPRICE%", s.string(key::locUnitPrice));
        replacePlaceholder(row, u"%LOCNET%", s.string(key::locNet));
        replacePlaceholder(row, u"%LOCSKUNUMBER%", s.string(key::locSKUNumber));
        replacePlaceholder(row, u"%LOCDESCRIPTION%", s.string(key::locDescription));
        replacePlaceholder(row, u"%LOCQUANTITY%", s.string(key::locQuantity));
        replacePlaceholder(row, u"%LOCTAXES%", s.string(key::locTaxes));
        replacePlaceholder(row, u"%CURRENCY%", rowCurrency);
        rows += row;
        ++position;
    }
    return rows;
}

QString fillPage(const PageInput& in, const Settings& s)
{
    if (!in.design.invoice || !in.design.css) {
        return designFailureText();
    }
    const Record* d = in.document;
    const bool variant = in.mode != RenderMode::Document;
    const auto lines = htmlLineBreakStringFromString;

    QString page = *in.design.invoice;
    replacePlaceholder(page, u"%CSS%", *in.design.css);
    replacePlaceholder(page, u"%COMPANY%", s.string(key::prefsName));
    replacePlaceholder(page, u"%SLOGAN%", s.string(key::prefsSlogan));
    replacePlaceholder(page, u"%COMPANYCONTACT%", lines(s.string(key::prefsContact)));
    replacePlaceholder(page, u"%LETTERTITLE%", variant ? in.sheet.title : text(d, "title"));
    replacePlaceholder(page, u"%CLIENTADDRESS%", lines(text(d, "address")));
    replacePlaceholder(page, u"%CONDITIONS%",
                       lines(variant ? in.sheet.conditions : text(d, "conditions")));
    replacePlaceholder(page, u"%MISCELLANEOUS%",
                       lines(variant ? in.sheet.miscellaneous : text(d, "misc1")));
    replacePlaceholder(page, u"%FOOTER%", lines(variant ? in.sheet.footer : text(d, "footer")));
    replacePlaceholder(page, u"%DISPATCHED%", text(d, "dispatchNumber"));
    replacePlaceholder(page, u"%DATE%", date(s, d, "date"));
    replacePlaceholder(page, u"%DUEDATE%",
                       date(s, d, in.mode == RenderMode::Slip ? "dispatched" : "due"));
    replacePlaceholder(page, u"%NUMBER%", text(d, "number"));
    replacePlaceholder(page, u"%CLIENTNUMBER%", text(d, "clientNumber"));
    replacePlaceholder(page, u"%CLIENTNAME%", text(d, "customerName"));
    replacePlaceholder(page, u"%CLIENTVATID%", text(d, "customerVATID"));
    replacePlaceholder(page, u"%LOCDATE%", s.string(key::locDate));
    replacePlaceholder(page, u"%LOCDUE%", s.string(dueLabel(d, in.mode)));
    replacePlaceholder(page, u"%LOCNUMBER%", s.string(key::locNumber));
    replacePlaceholder(page, u"%LOCCLIENTNUMBER%", s.string(key::locClientNumber));
    replacePlaceholder(page, u"%LOCDISPATCHED%", s.string(key::locDispatched));
    replacePlaceholder(page, u"%CURRENCY%", text(d, "currency"));
    replacePlaceholder(page, u"%SUBJECT%", text(d, "subject"));
    replacePlaceholder(page, u"%SUBTOTAL%", money(d, "subAmount"));
    replacePlaceholder(page, u"%TOTAL%", money(d, "amount"));
    replacePlaceholder(page, u"%LOCSUBTOTAL%", s.string(key::locSubtotal));
    replacePlaceholder(page, u"%PAIDAMOUNT%", money(d, "paidAmount"));

    const bool discount = flag(d, "isDiscountEnabled");
    const bool percent = d && d->integer("discountKind") != 0;
    replacePlaceholder(
        page, u"%LOCDISCOUNT%",
        discount ? titleWithSubtitle(d, "hasDiscountSubtitle", "discountTitle", "discountSubtitle")
                 : QString());
    replacePlaceholder(
        page, u"%DISCOUNTKINDCHAR%",
        discount ? (percent ? QStringLiteral("%") : QStringLiteral("-")) : QString());
    replacePlaceholder(page, u"%DISCOUNT%",
                       !discount ? QString()
                       : percent ? decimalStringFromNumber(double(percentOf(d, "discountPercent")))
                                 : money(d, "discountAmount"));

    const bool shipping = flag(d, "isShippingEnabled");
    replacePlaceholder(page, u"%SHIPPING%", shipping ? money(d, "shippingAmount") : QString());
    replacePlaceholder(
        page, u"%LOCSHIPPING%",
        shipping ? titleWithSubtitle(d, "hasShippingSubtitle", "shippingTitle", "shippingSubtitle")
                 : QString());
    replacePlaceholder(page, u"%LOCTOTAL%", s.string(key::locTotal));
    fillTaxes(page, d, s);
    replacePlaceholder(page, u"%ITEMSLIST%", fillItemRows(in.design, in.items, s, in.rowCurrency));
    replacePlaceholder(page, u"%LOCINVOICE%", s.string(key::locInvoice));
    // Step 18 has taken every "%LOCDUE%" of the design, so the quote label only reaches the page
    // when a later value (a row) brings the placeholder in again. Kept as it always was.
    replacePlaceholder(page, u"%LOCDUE%", s.string(key::locQuote));
    replacePlaceholder(page, u"%LOCEXPIRATION%", s.string(key::locExpiration));
    replacePlaceholder(page, u"%LOCQUOTENUMBER%", s.string(key::locQuoteNumber));
    replacePlaceholder(page, u"%LOCREMINDER%", s.string(key::locReminder));
    replacePlaceholder(page, u"%LOCOVERDUE%", s.string(key::locOverdue));
    replacePlaceholder(page, u"%LOCINVOICENUMBER%", s.string(key::locInvoiceNumber));
    replacePlaceholder(page, u"%LOCTAXES%", s.string(key::locTaxes));
    replacePlaceholder(page, u"%WINDOW%", s.string(key::prefsLetterbox));
    replacePlaceholder(page, u"%LOCSHORTNUMBER%", s.string(key::locNo));
    replacePlaceholder(page, u"%LOCUNIT%", s.string(key::locUnit));
    replacePlaceholder(page, u"%LOCUNITPRICE%", s.string(key::locUnitPrice));
    replacePlaceholder(page, u"%LOCNET%", s.string(key::locNet));
    replacePlaceholder(page, u"%LOCSKUNUMBER%", s.string(key::locSKUNumber));
    replacePlaceholder(page, u"%LOCDESCRIPTION%", s.string(key::locDescription));
    replacePlaceholder(page, u"%LOCQUANTITY%", s.string(key::locQuantity));
    // The logo file is written whether or not the design shows it.
    replacePlaceholder(page, u"%LOGO%", logoMarkup(s, in.dataFolder));
    // Tamo's own, after the steps designs have always had: what a part payment leaves due.
    replacePlaceholder(page, u"%DUEAMOUNT%", money(d, "dueAmount"));
    replacePlaceholder(page, u"%LOCPAID%", paymentLabel(s, key::locPaid));
    replacePlaceholder(page, u"%LOCAMOUNTDUE%", paymentLabel(s, key::locAmountDue));
    return page;
}

QString logoMarkup(const Settings& settings, const QString& dataFolder)
{
    const QByteArray bytes = settings.value(key::prefsLogo).toByteArray();
    QByteArray png;
    if (!bytes.isEmpty()) {
        QBuffer buffer;
        buffer.setData(bytes);
        QImageReader reader(&buffer);
        if (reader.format() == "png") {
            png = bytes;  // already what the file holds; no need to decode and encode again
        } else if (const QImage image = reader.read(); !image.isNull()) {
            QBuffer out(&png);
            out.open(QIODevice::WriteOnly);
            image.save(&out, "PNG");
        }
    }
    if (png.isEmpty()) {
        return QStringLiteral(
            "<small><small>Please provide a 'Logo Image' in the Preferences<br />or remove the "
            "'LOGO' substitute from the design/template.</small></small>");
    }
    const QString path = QDir(dataFolder).filePath(QStringLiteral("Logo.png"));
    QFile file(path);
    const bool same =
        file.open(QIODevice::ReadOnly) && file.size() == png.size() && file.readAll() == png;
    file.close();
    if (!same) {
        QDir().mkpath(dataFolder);
        if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate) ||
            file.write(png) != png.size()) {
            qCWarning(lcRender).noquote()
                << "Failed to write the logo file" << path << file.errorString();
        }
    }
    return QStringLiteral("<img src=\"%1\" alt=\"logo\">")
        .arg(QUrl::fromLocalFile(path).toString(QUrl::FullyEncoded));
}

InvoiceHtml::InvoiceHtml(AppSession& session, DesignLibrary& designs)
    : session_(session), designs_(designs)
{
}

void InvoiceHtml::setMode(RenderMode mode, SheetTexts sheet)
{
    mode_ = mode;
    sheet_ = std::move(sheet);
}

Record* InvoiceHtml::currentDesign()
{
    return design_ ? design_ : designs_.currentDesign();
}

QPageLayout InvoiceHtml::pageLayout()
{
    const Record* design = currentDesign();
    return pageLayoutForDesign(session_.settings(), design ? design->string("css") : QString());
}

PageInput InvoiceHtml::input(const Record* document)
{
    PageInput in;
    in.design = DesignParts::of(currentDesign());
    in.document = document;
    if (document) {
        in.items = LineItems(session_).sortedItems(*document);
    }
    // The rows take the currency of the document selected in the list, whichever they belong to.
    in.rowCurrency = text(session_.documents().current(), "currency");
    in.mode = mode_;
    in.sheet = sheet_;
    in.dataFolder = session_.applicationDataDirectory();
    return in;
}

QString InvoiceHtml::invoiceHTMLString()
{
    return fillPage(input(session_.documents().current()), session_.settings());
}

QString InvoiceHtml::invoiceHTMLStringFromInvoice(const Record& document)
{
    qCDebug(lcRender).noquote()
        << QStringLiteral("\n\n\n*********address: %1\n\n\n").arg(document.string("address"));
    return fillPage(input(&document), session_.settings());
}

QString InvoiceHtml::itemsList()
{
    const PageInput in = input(session_.documents().current());
    return fillItemRows(in.design, in.items, session_.settings(), in.rowCurrency);
}

QString InvoiceHtml::itemsListForInvoice(const Record& document)
{
    const PageInput in = input(&document);
    return fillItemRows(in.design, in.items, session_.settings(), in.rowCurrency);
}

}  // namespace tamo
