#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QScrollArea>
#include <QStackedWidget>
#include <QTabWidget>
#include <QVBoxLayout>

#include "app/preferences/preferencepanes.h"
#include "app/preferences/settingfields.h"
#include "calc/numbering.h"
#include "model/appsession.h"

namespace tamo {

namespace {

struct Label {
    const SettingKey* key;
    const char* text;
};

// The document labels, grouped as a page reads: titles, the header's fields, the line table,
// the totals.
constexpr Label kLabels[] = {
    {&key::locInvoice, QT_TRANSLATE_NOOP("tamo::InvoicePane", "Invoice title")},
    {&key::locQuote, QT_TRANSLATE_NOOP("tamo::InvoicePane", "Quote title")},
    {&key::locReminder, QT_TRANSLATE_NOOP("tamo::InvoicePane", "Reminder title")},
    {&key::locSlip, QT_TRANSLATE_NOOP("tamo::InvoicePane", "Delivery slip title")},
    {&key::locDate, QT_TRANSLATE_NOOP("tamo::InvoicePane", "Date")},
    {&key::locDue, QT_TRANSLATE_NOOP("tamo::InvoicePane", "Due date")},
    {&key::locExpiration, QT_TRANSLATE_NOOP("tamo::InvoicePane", "Valid until (quotes)")},
    {&key::locOverdue, QT_TRANSLATE_NOOP("tamo::InvoicePane", "Overdue since (reminders)")},
    {&key::locDispatched, QT_TRANSLATE_NOOP("tamo::InvoicePane", "Dispatched")},
    {&key::locNumber, QT_TRANSLATE_NOOP("tamo::InvoicePane", "Number")},
    {&key::locInvoiceNumber, QT_TRANSLATE_NOOP("tamo::InvoicePane", "Invoice number")},
    {&key::locQuoteNumber, QT_TRANSLATE_NOOP("tamo::InvoicePane", "Quote number")},
    {&key::locClientNumber, QT_TRANSLATE_NOOP("tamo::InvoicePane", "Client number")},
    {&key::locNo, QT_TRANSLATE_NOOP("tamo::InvoicePane", "Line number")},
    {&key::locDescription, QT_TRANSLATE_NOOP("tamo::InvoicePane", "Description")},
    {&key::locSKUNumber, QT_TRANSLATE_NOOP("tamo::InvoicePane", "Article number")},
    {&key::locQuantity, QT_TRANSLATE_NOOP("tamo::InvoicePane", "Quantity")},
    {&key::locUnit, QT_TRANSLATE_NOOP("tamo::InvoicePane", "Unit")},
    {&key::locUnitPrice, QT_TRANSLATE_NOOP("tamo::InvoicePane", "Unit price")},
    {&key::locNet, QT_TRANSLATE_NOOP("tamo::InvoicePane", "Net")},
    {&key::locSubtotal, QT_TRANSLATE_NOOP("tamo::InvoicePane", "Subtotal")},
    {&key::locDiscount, QT_TRANSLATE_NOOP("tamo::InvoicePane", "Discount")},
    {&key::locShipping, QT_TRANSLATE_NOOP("tamo::InvoicePane", "Shipping")},
    {&key::locTaxes, QT_TRANSLATE_NOOP("tamo::InvoicePane", "Taxes")},
    {&key::locTotal, QT_TRANSLATE_NOOP("tamo::InvoicePane", "Total")},
};

struct Numbered {
    const char* kind;
    const SettingKey* pattern;
    const SettingKey* offset;
    const SettingKey* haveNumber;  // clients are numbered on request only
};

constexpr Numbered kNumbered[] = {
    {QT_TRANSLATE_NOOP("tamo::InvoicePane", "Invoices"), &key::invPattern, &key::invCount,
     &key::invHaveNumber},
    {QT_TRANSLATE_NOOP("tamo::InvoicePane", "Quotes"), &key::quotPattern, &key::quotCount,
     &key::quotHaveNumber},
    {QT_TRANSLATE_NOOP("tamo::InvoicePane", "Clients"), &key::clientPattern, &key::clientCount,
     nullptr},
};

struct Texts {
    const char* kind;
    const SettingKey* conditions;
    const SettingKey* misc;
    const SettingKey* footer;
};

constexpr Texts kTexts[] = {
    {QT_TRANSLATE_NOOP("tamo::InvoicePane", "Invoices"), &key::tempInvConditions, &key::tempInvMisc,
     &key::tempInvFooter},
    {QT_TRANSLATE_NOOP("tamo::InvoicePane", "Quotes"), &key::tempQuotConditions, &key::tempQuotMisc,
     &key::tempQuotFooter},
    {QT_TRANSLATE_NOOP("tamo::InvoicePane", "Reminders"), &key::tempRemConditions,
     &key::tempRemMisc, &key::tempRemFooter},
    {QT_TRANSLATE_NOOP("tamo::InvoicePane", "Delivery slips"), &key::tempSlipConditions,
     &key::tempSlipMisc, &key::tempSlipFooter},
};

QPlainTextEdit* shortText(SettingFields& fields, const SettingKey& key, QWidget* parent, int lines)
{
    QPlainTextEdit* edit = fields.text(key, parent);
    edit->setFixedHeight(edit->fontMetrics().lineSpacing() * lines + 12);
    return edit;
}

QWidget* scrolled(QWidget* content)
{
    auto* scroll = new QScrollArea;
    scroll->setWidgetResizable(true);
    scroll->setFrameShape(QFrame::NoFrame);
    scroll->setWidget(content);
    return scroll;
}

}  // namespace

InvoicePane::InvoicePane(AppSession& session, SettingFields& fields, QWidget* parent)
    : QWidget(parent), session_(session), fields_(fields), datePreview_(nullptr)
{
    setObjectName(QStringLiteral("prefs_invoice_Template"));
    auto* tabs = new QTabWidget(this);
    tabs->setObjectName(QStringLiteral("invoicePaneTabs"));
    tabs->addTab(numbersPage(), tr("Numbers and Dates"));
    tabs->addTab(textsPage(), tr("Texts"));
    tabs->addTab(labelsPage(), tr("Labels"));
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(tabs);
    connect(&fields, &SettingFields::changed, this, &InvoicePane::updatePreviews);
    fields.follow([this] { updatePreviews(); });
}

QWidget* InvoicePane::numbersPage()
{
    auto* page = new QWidget;
    auto* numbers = new QGroupBox(tr("Numbers"), page);
    auto* grid = new QGridLayout(numbers);
    const QString headings[] = {tr("Pattern"), tr("Offset"), tr("Preview")};
    for (int column = 0; column < 3; ++column) {
        grid->addWidget(new QLabel(u"<b>"_qs + headings[column] + u"</b>"_qs, numbers), 0,
                        column + 1);
    }
    int row = 1;
    for (const Numbered& n : kNumbered) {
        grid->addWidget(new QLabel(tr(n.kind), numbers), row, 0);
        grid->addWidget(fields_.line(*n.pattern, numbers), row, 1);
        NumberField* offset = fields_.whole(*n.offset, numbers);
        offset->edit()->setMaximumWidth(90);
        grid->addWidget(offset, row, 2, Qt::AlignTop);
        previews_[row - 1] = new QLabel(numbers);
        previews_[row - 1]->setObjectName(QString::fromLatin1(n.pattern->name) + u"Preview"_qs);
        previews_[row - 1]->setTextInteractionFlags(Qt::TextSelectableByMouse);
        grid->addWidget(previews_[row - 1], row, 3);
        if (n.haveNumber) {
            grid->addWidget(fields_.check(*n.haveNumber, tr("Number new ones at once"), numbers),
                            row, 4);
        }
        ++row;
    }
    grid->setColumnStretch(1, 1);
    grid->addWidget(
        noteLabel(tr("%COUNT% is the number of documents so far plus the offset, plus 1; "
                     "%YEAR%, %MONTH% and %DAY% are today's. Raise the offset to continue "
                     "from numbers written elsewhere."),
                  numbers),
        row, 0, 1, 5);

    auto* dates = new QGroupBox(tr("Dates"), page);
    auto* form = new QFormLayout(dates);
    const QStringList periods{tr("7 days"), tr("14 days"), tr("21 days"), tr("28 days")};
    auto* due = new QHBoxLayout;
    due->addWidget(fields_.check(key::invHaveDueDate, tr("New invoices are due in"), dates));
    due->addWidget(fields_.choice(key::invDefaultDueDate, periods, dates));
    due->addStretch();
    form->addRow(due);
    auto* validity = new QHBoxLayout;
    validity->addWidget(
        fields_.check(key::quotHaveValidity, tr("New quotes are valid for"), dates));
    validity->addWidget(fields_.choice(key::quotDefaultValidity, periods, dates));
    validity->addStretch();
    form->addRow(validity);
    form->addRow(tr("Date pattern:"), fields_.line(key::prefsDatePattern, dates));
    datePreview_ = new QLabel(dates);
    datePreview_->setObjectName(QStringLiteral("prefsDatePatternPreview"));
    form->addRow(tr("Today:"), datePreview_);
    form->addRow(QString(), noteLabel(tr("%DAY%, %MONTHSHORT% and %YEARSHORT% print two digits, "
                                         "%YEARLONG% four, %MONTHLONG% the month's name."),
                                      dates, false));

    auto* documents = new QGroupBox(tr("Documents"), page);
    auto* more = new QFormLayout(documents);
    more->addRow(fields_.check(key::markInvoiceAsSent,
                               tr("Mark an invoice as sent when it is printed, saved, mailed or "
                                  "exported as an e-invoice"),
                               documents));
    more->addRow(tr("Lines are sorted by:"),
                 fields_.choice(key::itemSortOrder,
                                {tr("The order they are stored in"), tr("The order of entry"),
                                 tr("Title"), tr("Amount")},
                                documents));

    auto* layout = new QVBoxLayout(page);
    layout->addWidget(numbers);
    layout->addWidget(dates);
    layout->addWidget(documents);
    layout->addStretch();
    return scrolled(page);
}

QWidget* InvoicePane::textsPage()
{
    auto* page = new QWidget;
    auto* kinds = new QComboBox(page);
    kinds->setObjectName(QStringLiteral("textKind"));
    auto* stack = new QStackedWidget(page);
    for (const Texts& t : kTexts) {
        kinds->addItem(tr(t.kind));
        auto* texts = new QWidget(stack);
        auto* form = new QFormLayout(texts);
        form->setContentsMargins(0, 0, 0, 0);
        form->addRow(tr("Conditions:"), shortText(fields_, *t.conditions, texts, 4));
        form->addRow(tr("Further text:"), shortText(fields_, *t.misc, texts, 3));
        form->addRow(tr("Footer:"), shortText(fields_, *t.footer, texts, 3));
        stack->addWidget(texts);
    }
    connect(kinds, &QComboBox::currentIndexChanged, stack, &QStackedWidget::setCurrentIndex);
    auto* layout = new QVBoxLayout(page);
    auto* choose = new QHBoxLayout;
    choose->addWidget(new QLabel(tr("Texts of new"), page));
    choose->addWidget(kinds);
    choose->addStretch();
    layout->addLayout(choose);
    layout->addWidget(stack);
    layout->addWidget(
        noteLabel(tr("New documents start with these texts; reminders and delivery slips "
                     "show them on their sheet. The footer usually holds your bank "
                     "details and registration numbers."),
                  page));
    auto* mail = new QFormLayout;
    mail->addRow(tr("Mail message:"), shortText(fields_, key::tempEmailBody, page, 5));
    layout->addLayout(mail);
    layout->addStretch();
    return scrolled(page);
}

QWidget* InvoicePane::labelsPage()
{
    auto* page = new QWidget;
    auto* grid = new QGridLayout;
    const int half = (int(std::size(kLabels)) + 1) / 2;
    for (int i = 0; i < int(std::size(kLabels)); ++i) {
        QLineEdit* field = fields_.line(*kLabels[i].key, page);
        auto* label = new QLabel(tr(kLabels[i].text) + u':', page);
        label->setBuddy(field);
        grid->addWidget(label, i % half, (i / half) * 2);
        grid->addWidget(field, i % half, (i / half) * 2 + 1);
    }
    grid->setColumnStretch(1, 1);
    grid->setColumnStretch(3, 1);
    auto* layout = new QVBoxLayout(page);
    layout->addWidget(
        noteLabel(tr("The words the designs print around your values, in the language "
                     "of your documents."),
                  page));
    layout->addLayout(grid);
    layout->addStretch();
    return scrolled(page);
}

void InvoicePane::updatePreviews()
{
    const Settings& settings = session_.settings();
    for (int i = 0; i < 3; ++i) {
        const QString next = previewNumberString(settings, session_.clock(), *kNumbered[i].pattern,
                                                 *kNumbered[i].offset);
        previews_[i]->setText(next.isEmpty() ? tr("(none)") : next);
    }
    const QString today = getPatternDateStringFromDate(settings, session_.clock().now());
    datePreview_->setText(today.isEmpty() ? tr("(the pattern prints nothing)") : today);
}

}  // namespace tamo
