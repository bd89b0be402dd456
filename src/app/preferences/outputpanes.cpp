// The smaller panes: taxes, templates, and region and output.

#include <QCheckBox>
#include <QComboBox>
#include <QCoreApplication>
#include <QFormLayout>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QVBoxLayout>

#include "app/preferences/preferencepanes.h"
#include "app/preferences/settingfields.h"
#include "calc/numberformat.h"
#include "render/documenttemplates.h"

namespace tamo {

namespace {

struct Tax {
    const SettingKey* enabled;
    const SettingKey* title;
    const SettingKey* rate;
    const SettingKey* compound;  // tax 1 is levied on the net alone
};

constexpr Tax kTaxes[] = {
    {&key::tax1Enabled, &key::tax1Title, &key::tax1Rate, nullptr},
    {&key::tax2Enabled, &key::tax2Title, &key::tax2Rate, &key::tax2IsCompound},
    {&key::tax3Enabled, &key::tax3Title, &key::tax3Rate, &key::tax3IsCompound},
};

}  // namespace

TaxesPane::TaxesPane(SettingFields& fields, QWidget* parent) : QWidget(parent)
{
    setObjectName(QStringLiteral("prefs_taxes_Template"));
    auto* taxes = new QGroupBox(tr("Taxes of new documents and lines"), this);
    auto* grid = new QGridLayout(taxes);
    const QString headings[] = {tr("Title"), tr("Rate (%)")};
    grid->addWidget(new QLabel(u"<b>"_qs + headings[0] + u"</b>"_qs, taxes), 0, 1);
    grid->addWidget(new QLabel(u"<b>"_qs + headings[1] + u"</b>"_qs, taxes), 0, 2);
    for (int i = 0; i < 3; ++i) {
        const Tax& t = kTaxes[i];
        grid->addWidget(fields.check(*t.enabled, tr("Tax %1").arg(i + 1), taxes), i + 1, 0,
                        Qt::AlignTop);
        grid->addWidget(fields.line(*t.title, taxes), i + 1, 1, Qt::AlignTop);
        grid->addWidget(fields.percent(*t.rate, taxes), i + 1, 2, Qt::AlignTop);
        if (t.compound) {
            grid->addWidget(fields.check(*t.compound, tr("Compound"), taxes), i + 1, 3,
                            Qt::AlignTop);
        }
    }
    grid->setColumnStretch(1, 1);
    grid->addWidget(
        noteLabel(tr("A tax that is switched on is offered for each line and printed in "
                     "the totals. A compound tax is levied on the net plus the taxes "
                     "before it."),
                  taxes),
        4, 0, 1, 4);

    auto* totals = new QGroupBox(tr("Totals and lines"), this);
    auto* column = new QVBoxLayout(totals);
    column->addWidget(fields.check(key::beforeTaxesBool,
                                   tr("Take the discount off before taxes (e-invoices need this)"),
                                   totals));
    column->addWidget(
        fields.check(key::showSingleTaxAmounts, tr("Show each line's tax amounts"), totals));
    column->addWidget(
        fields.check(key::showItemSubAmount, tr("Show each line's net amount"), totals));
    column->addWidget(fields.check(key::tempUseSKU, tr("Show article numbers"), totals));

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(taxes);
    layout->addWidget(totals);
    layout->addStretch();
}

TemplatePane::TemplatePane(SettingFields& fields, QWidget* parent) : QWidget(parent)
{
    setObjectName(QStringLiteral("prefs_template_Template"));
    auto* include = new QGroupBox(tr("A new document template takes over"), this);
    auto* column = new QVBoxLayout(include);
    for (const TemplatePart& part : templateParts()) {
        column->addWidget(fields.check(
            *part.include, QCoreApplication::translate("DocumentTemplates", part.label), include));
    }
    column->addWidget(
        noteLabel(tr("Its texts, currency and tax rates are always taken over."), this));
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(include);
    layout->addWidget(fields.check(key::alwaysShowRecentTemplates,
                                   tr("Keep the list of templates open after applying one"), this));
    layout->addStretch();
}

RegionPane::RegionPane(SettingFields& fields, QWidget* parent) : QWidget(parent)
{
    setObjectName(QStringLiteral("prefs_region_Template"));
    auto* paper = new QGroupBox(tr("Paper and printing"), this);
    auto* form = new QFormLayout(paper);
    form->addRow(tr("Paper size:"), fields.choice(key::tempPaperSize,
                                                  {tr("US Letter"), tr("US Legal"), tr("A4"),
                                                   tr("JIS B4"), tr("JIS B5")},
                                                  paper));
    form->addRow(fields.check(key::printBorderless,
                              tr("Print without margins (for designs that set their own)"), paper));
    form->addRow(tr("Printing:"),
                 fields.choice(key::printBehavior,
                               {tr("Print at once"), tr("Show the print dialog first")}, paper));

    auto* files = new QGroupBox(tr("Files and notifications"), this);
    auto* more = new QFormLayout(files);
    more->addRow(
        tr("Save a document file as:"),
        fields.choice(key::exportFormat,
                      {tr("Tamo document (.tamo)"), tr("XML property list (.xml)")}, files));
    more->addRow(fields.check(key::prefsDeliverNotificationsWithSound,
                              tr("Play a sound with due-date notifications"), files));

    auto* region = new QGroupBox(tr("Region"), this);
    auto* regionColumn = new QVBoxLayout(region);
    const QLocale locale;
    const QString example = stringFromNumber(1234.56, locale);
    regionColumn->addWidget(noteLabel(
        (locale.language() == QLocale::C
             ? tr("No region is set for this system, so numbers are typed and shown as %1.")
                   .arg(example)
             : tr("Numbers are typed and shown as the system's region has it: %1, for example "
                  "%2.")
                   .arg(
                       locale.nativeLanguageName() + u" ("_qs + locale.nativeTerritoryName() + u')',
                       example)) +
            u' ' + tr("Document dates follow the date pattern of the Invoice pane."),
        region));

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(paper);
    layout->addWidget(files);
    layout->addWidget(region);
    layout->addStretch();
}

}  // namespace tamo
