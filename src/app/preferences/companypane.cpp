#include <QBuffer>
#include <QCheckBox>
#include <QFileDialog>
#include <QFormLayout>
#include <QGroupBox>
#include <QImageReader>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScrollArea>
#include <QVBoxLayout>

#include "app/preferences/preferencepanes.h"
#include "app/preferences/settingfields.h"
#include "einvoice/einvoiceactions.h"
#include "render/logo.h"

namespace tamo {

namespace {

struct SupplierField {
    const SettingKey* key;
    const char* label;
    const char* placeholder;
};

// In the order of a letterhead: who, where, how to reach, how to be paid.
constexpr SupplierField kSupplierFields[] = {
    {&key::prefsSupplierLegalName, QT_TRANSLATE_NOOP("tamo::SupplierForm", "Legal name"),
     QT_TRANSLATE_NOOP("tamo::SupplierForm", "As registered")},
    {&key::prefsSupplierID, QT_TRANSLATE_NOOP("tamo::SupplierForm", "VAT ID"),
     QT_TRANSLATE_NOOP("tamo::SupplierForm", "Such as DE123456789")},
    {&key::prefsSupplierTaxID, QT_TRANSLATE_NOOP("tamo::SupplierForm", "Company ID"),
     QT_TRANSLATE_NOOP("tamo::SupplierForm", "Optional: register or tax number")},
    {&key::prefsSupplierTaxScheme, QT_TRANSLATE_NOOP("tamo::SupplierForm", "Tax scheme"),
     QT_TRANSLATE_NOOP("tamo::SupplierForm", "VAT")},
    {&key::prefsSupplierStreet, QT_TRANSLATE_NOOP("tamo::SupplierForm", "Street"), ""},
    {&key::prefsSupplierPostalZone, QT_TRANSLATE_NOOP("tamo::SupplierForm", "Postal code"), ""},
    {&key::prefsSupplierCity, QT_TRANSLATE_NOOP("tamo::SupplierForm", "City"), ""},
    {&key::prefsSupplierCountryCode, QT_TRANSLATE_NOOP("tamo::SupplierForm", "Country code"),
     QT_TRANSLATE_NOOP("tamo::SupplierForm", "Two letters, such as DE")},
    {&key::prefsSupplierContact, QT_TRANSLATE_NOOP("tamo::SupplierForm", "Contact person"), ""},
    {&key::prefsSupplierContactPhone, QT_TRANSLATE_NOOP("tamo::SupplierForm", "Phone"), ""},
    {&key::prefsSupplierElectronicMail, QT_TRANSLATE_NOOP("tamo::SupplierForm", "Mail address"),
     ""},
    {&key::prefsSupplierIBAN, QT_TRANSLATE_NOOP("tamo::SupplierForm", "IBAN"), ""},
    {&key::prefsSupplierCurrency, QT_TRANSLATE_NOOP("tamo::SupplierForm", "Currency"),
     QT_TRANSLATE_NOOP("tamo::SupplierForm", "Such as EUR")},
    {&key::prefsSupplierEndpointID,
     QT_TRANSLATE_NOOP("tamo::SupplierForm", "Electronic address (GLN)"),
     QT_TRANSLATE_NOOP("tamo::SupplierForm", "Optional; without it, the mail address")},
};

}  // namespace

LogoField::LogoField(SettingFields& fields, QWidget* parent)
    : QWidget(parent), fields_(fields), thumbnail_(new QLabel(this)), description_(new QLabel(this))
{
    setObjectName(QString::fromLatin1(key::prefsLogo.name));
    thumbnail_->setFixedSize(180, 64);
    thumbnail_->setAlignment(Qt::AlignCenter);
    thumbnail_->setFrameShape(QFrame::StyledPanel);
    auto* choose = new QPushButton(tr("Choose…"), this);
    auto* remove = new QPushButton(tr("Remove"), this);
    remove_ = remove;
    connect(choose, &QPushButton::clicked, this, &LogoField::choose);
    connect(remove, &QPushButton::clicked, this, [this] {
        fields_.settings().remove(key::prefsLogo);
        fields_.changed(QString::fromLatin1(key::prefsLogo.name));
        reload();
    });
    auto* buttons = new QVBoxLayout;
    buttons->addWidget(description_);
    auto* row = new QHBoxLayout;
    row->addWidget(choose);
    row->addWidget(remove);
    row->addStretch();
    buttons->addLayout(row);
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(thumbnail_);
    layout->addLayout(buttons, 1);
    fields_.follow([this] { reload(); });
}

void LogoField::reload()
{
    const QByteArray data = fields_.settings().value(key::prefsLogo).toByteArray();
    QImage image;
    image.loadFromData(data);
    if (image.isNull()) {
        thumbnail_->setPixmap({});
        thumbnail_->setText(tr("No logo"));
        description_->setText(
            tr("Designs that show a logo print a notice in its place until you choose one."));
    } else {
        thumbnail_->setPixmap(QPixmap::fromImage(image.scaled(
            thumbnail_->size() - QSize(8, 8), Qt::KeepAspectRatio, Qt::SmoothTransformation)));
        description_->setText(logoDescription(data));
    }
    description_->setWordWrap(true);
    remove_->setEnabled(!image.isNull());
}

void LogoField::choose()
{
    QStringList patterns;
    for (const QByteArray& format : QImageReader::supportedImageFormats()) {
        patterns << u"*."_qs + QString::fromLatin1(format);
    }
    const QString path = QFileDialog::getOpenFileName(this, tr("Choose a Logo"), QString(),
                                                      tr("Images (%1)").arg(patterns.join(u' ')));
    if (path.isEmpty()) {
        return;
    }
    auto data = logoDataFromFile(path);
    if (!data) {
        QMessageBox::warning(this, tr("Error!"), data.error().text());
        return;
    }
    fields_.write(key::prefsLogo, *data);
    reload();
}

CompanyForm::CompanyForm(SettingFields& fields, QWidget* parent) : QWidget(parent)
{
    auto* form = new QFormLayout(this);
    QLineEdit* name = fields.line(key::prefsName, this);
    name->setPlaceholderText(tr("Your name or your business's name"));
    form->addRow(tr("Name:"), name);
    form->addRow(tr("Slogan:"), fields.line(key::prefsSlogan, this));
    QPlainTextEdit* contact = fields.text(key::prefsContact, this);
    contact->setPlaceholderText(
        tr("Address, phone, mail and web site, as your letterhead shows "
           "them"));
    contact->setFixedHeight(contact->fontMetrics().lineSpacing() * 5 + 12);
    form->addRow(tr("Contact:"), contact);
    QLineEdit* letterbox = fields.line(key::prefsLetterbox, this);
    letterbox->setPlaceholderText(tr("Name · Street 1 · 12345 Town"));
    form->addRow(tr("Sender line:"), letterbox);
    form->addRow(QString(), noteLabel(tr("Printed small above the client's address, so that it "
                                         "shows in the window of an envelope."),
                                      this, false));
    form->addRow(tr("Logo:"), new LogoField(fields, this));
    QLineEdit* currency = fields.line(key::prefsCurrency, this);
    currency->setPlaceholderText(tr("Such as EUR"));
    currency->setMaximumWidth(120);
    form->addRow(tr("Currency:"), currency);
}

SupplierForm::SupplierForm(SettingFields& fields, QWidget* parent)
    : QWidget(parent), fields_(fields), missing_(new QLabel(this))
{
    auto* grid = new QGridLayout;
    int i = 0;
    for (const SupplierField& f : kSupplierFields) {
        QLineEdit* field = fields.line(*f.key, this);
        field->setPlaceholderText(tr(f.placeholder));
        auto* label = new QLabel(tr(f.label) + u':', this);
        label->setBuddy(field);
        grid->addWidget(label, i / 2, (i % 2) * 2);
        grid->addWidget(field, i / 2, (i % 2) * 2 + 1);
        ++i;
    }
    grid->setColumnStretch(1, 1);
    grid->setColumnStretch(3, 1);
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(grid);
    layout->addWidget(noteLabel(tr("New clients taken from the address book get:"), this));
    layout->addWidget(fields.check(key::prefsSupplierTaxSchemeBool, tr("this tax scheme"), this));
    layout->addWidget(
        fields.check(key::prefsSupplierCountryCodeBool, tr("this country code"), this));
    layout->addWidget(
        fields.check(key::prefsEvoiceDefaultCurrencyCodeBool, tr("this currency"), this));
    missing_->setObjectName(QStringLiteral("missingSupplierSettings"));
    missing_->setWordWrap(true);
    layout->addWidget(missing_);
    connect(&fields, &SettingFields::changed, this, &SupplierForm::updateMissing);
    fields.follow([this] { updateMissing(); });
}

void SupplierForm::updateMissing()
{
    QStringList names;
    for (const SettingKey* key : missingSupplierSettings(fields_.settings())) {
        for (const SupplierField& f : kSupplierFields) {
            if (f.key == key) {
                names << tr(f.label);
            }
        }
    }
    missing_->setText(
        names.isEmpty() ? u"✓ "_qs + tr("The e-invoice check finds every supplier detail it needs.")
                        : tr("The e-invoice check still misses: %1.").arg(names.join(tr(", "))));
}

CompanyPane::CompanyPane(SettingFields& fields, QWidget* parent) : QWidget(parent)
{
    setObjectName(QStringLiteral("prefs_company_Template"));
    auto* content = new QWidget;
    auto* sender = new QGroupBox(tr("Sender"), content);
    (new QVBoxLayout(sender))->addWidget(new CompanyForm(fields, sender));
    auto* supplier = new QGroupBox(tr("E-invoices (XRechnung)"), content);
    (new QVBoxLayout(supplier))->addWidget(new SupplierForm(fields, supplier));
    auto* column = new QVBoxLayout(content);
    column->addWidget(sender);
    column->addWidget(supplier);
    column->addStretch();
    auto* scroll = new QScrollArea(this);
    scroll->setWidgetResizable(true);
    scroll->setFrameShape(QFrame::NoFrame);
    scroll->setWidget(content);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(scroll);
}

}  // namespace tamo
