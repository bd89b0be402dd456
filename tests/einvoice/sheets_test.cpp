#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QTabWidget>
#include <QToolBar>

#include "app/editor/documenteditor.h"
#include "app/einvoicefindings.h"
#include "app/einvoicesheets.h"
#include "app/mainwindow.h"
#include "einvoicefixture.h"

using namespace tamo;
using namespace tamo::test;

namespace {

using EinvoiceSheetsTest = EinvoiceTest;

TEST_F(EinvoiceSheetsTest, TheToolbarShowsTheRequirementsAndTheSheetsRefuseASentInvoice)
{
    MainWindow window(session);
    EinvoiceWindowActions* actions = installEinvoiceActions(window, session);
    Record* d = invoice();  // without lines: no e-invoice yet
    auto* exportAction = window.findChild<QAction*>(u"evoiceActionToolbar"_qs);
    ASSERT_NE(exportAction, nullptr);
    EXPECT_TRUE(window.findChild<QToolBar*>(u"mainToolBar"_qs)->actions().contains(exportAction));
    exportAction->trigger();
    ASSERT_EQ(prompter.alerts().size(), 1);
    EXPECT_EQ(prompter.alerts().back().title, u"E-Invoice Requirements");

    // A sent invoice shows its lock: the buttons are off, and any other way in is refused.
    d->setValue("status", 1);
    EXPECT_FALSE(window.findChild<QAction*>(u"evoiceDetailsToolbar"_qs)->isEnabled());
    EXPECT_FALSE(exportAction->isEnabled());
    actions->openEnvoiceDetailsSheet();
    ASSERT_EQ(prompter.alerts().size(), 2);
    EXPECT_EQ(prompter.alerts().back().title, u"Error!");
    // A quote is no e-invoice.
    d->setValue("status", 0);
    EXPECT_TRUE(exportAction->isEnabled());
    d->setValue("kind", 0);
    EXPECT_FALSE(exportAction->isEnabled());
}

TEST_F(EinvoiceSheetsTest, DetailFieldsWriteToTheInvoiceAndCancellingKeepsTheEdits)
{
    Record* d = invoice();
    EinvoiceActions actions(session);
    EvoiceDetailsSheet sheet(actions, *d);
    QLineEdit* city = sheet.field("evoiceCity");
    EXPECT_EQ(city->text(), u"Berlin");
    city->setText(u"Potsdam"_qs);
    emit city->editingFinished();
    EXPECT_EQ(d->string("evoiceCity"), u"Potsdam");

    sheet.field("evoiceContact")->setText(u"Ada Muster"_qs);  // still being typed
    sheet.done(EvoiceDetailsSheet::Cancelled);
    EXPECT_EQ(sheet.result(), EvoiceDetailsSheet::Cancelled);
    EXPECT_EQ(d->string("evoiceContact"), u"Ada Muster");
    EXPECT_FALSE(context.hasChanges());
}

TEST_F(EinvoiceSheetsTest, TheGenerateSheetChecksTheChosenFileAndAsksBeforeARejectedOne)
{
    Record* d = invoice(u"tax1Percent=0.19");
    item(d, u"Design", u"baseAmount=800 unitCount=1 isTax1Applied=true tax1Percent=0.19");
    item(d, u"Travel", u"baseAmount=42.5 unitCount=1");
    totals.calculateInvoice(*d);
    EinvoiceActions actions(session);
    EvoiceGenerateSheet sheet(actions, settings);
    QListWidget* list = sheet.findingsView()->list();
    ASSERT_EQ(list->count(), 2);  // the untaxed line: no category, so not exactly one
    EXPECT_TRUE(list->item(0)->text().startsWith(u"BR-CO-04 (fatal): Line 2 has no tax category."));
    EXPECT_FALSE(sheet.exemptionBox()->isEnabled());

    // Cancelling the question keeps the sheet open; going on exports.
    prompter.queueAnswer(u"Cancel"_qs);
    sheet.exportButton()->click();
    EXPECT_EQ(prompter.alerts().back().title, u"This e-invoice will likely be rejected");
    EXPECT_NE(sheet.result(), EvoiceGenerateSheet::Export);

    // The conformant file is remembered as the default and needs the reason of the exemption,
    // which the finding leads to without leaving the sheet.
    sheet.conformantBox()->setChecked(true);
    EXPECT_TRUE(settings.boolean(key::prefsEvoiceConformantBool));
    ASSERT_EQ(list->count(), 1);
    EXPECT_TRUE(list->item(0)->text().startsWith(u"BR-E-10"));
    emit list->itemActivated(list->item(0));
    EXPECT_EQ(sheet.result(), 0);
    sheet.exemptionBox()->setCurrentIndex(sheet.exemptionBox()->findData(u"Z"_qs));
    EXPECT_EQ(settings.string(key::prefsEvoiceExemptionCategory), u"Z");
    EXPECT_TRUE(sheet.findingsView()->summary()->text().contains(
        u"passes the EN 16931 and XRechnung rules"));
    const auto asked = prompter.alerts().size();
    sheet.exportButton()->click();
    EXPECT_EQ(sheet.result(), EvoiceGenerateSheet::Export);
    EXPECT_EQ(prompter.alerts().size(), asked);
    EXPECT_TRUE(sheet.options().conformant);
}

TEST_F(EinvoiceSheetsTest, AFindingLeadsToTheDetailsOrTheDocumentField)
{
    MainWindow window(session);
    Record* d = invoice(u"tax1Percent=0.19");
    item(d, u"Design", u"baseAmount=800 unitCount=1 isTax1Applied=true tax1Percent=0.19");
    setTexts(d, {{"title", u""}, {"evoiceCity", u" "}});
    totals.calculateInvoice(*d);
    EinvoiceActions actions(session);
    EvoiceGenerateSheet sheet(actions, settings, &window);
    const auto& findings = sheet.findings();
    const auto field = [&](const char* rule) {
        return std::find_if(findings.begin(), findings.end(),
                            [&](const Finding& f) { return f.rule == QLatin1StringView(rule); })
            ->field;
    };
    sheet.jumpTo(field("BR-DE-8"));
    EXPECT_EQ(sheet.result(), EvoiceGenerateSheet::Jump);
    EXPECT_EQ(sheet.jumpTarget(), EinvoiceField::details("evoiceCity"));

    window.editor()->showPage(DocumentEditor::ItemsPage);
    EXPECT_TRUE(showEinvoiceField(window, session, field("BR-DE-15")));
    EXPECT_EQ(window.editor()->pages()->currentIndex(), DocumentEditor::DocumentPage);
}

}  // namespace
