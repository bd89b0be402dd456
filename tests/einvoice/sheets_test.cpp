#include <QAction>
#include <QLineEdit>
#include <QToolBar>

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
    installEinvoiceActions(window, session);
    Record* d = invoice();  // without lines: no e-invoice yet
    auto* exportAction = window.findChild<QAction*>(u"evoiceActionToolbar"_qs);
    ASSERT_NE(exportAction, nullptr);
    EXPECT_TRUE(window.findChild<QToolBar*>(u"mainToolBar"_qs)->actions().contains(exportAction));
    exportAction->trigger();
    ASSERT_EQ(prompter.alerts().size(), 1);
    EXPECT_EQ(prompter.alerts().back().title, u"E-Invoice Requirements");

    d->setValue("status", 1);
    window.findChild<QAction*>(u"evoiceDetailsToolbar"_qs)->trigger();
    ASSERT_EQ(prompter.alerts().size(), 2);
    EXPECT_EQ(prompter.alerts().back().title, u"Error!");
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

}  // namespace
