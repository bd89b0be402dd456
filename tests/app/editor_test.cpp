#include <QAction>
#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>
#include <QTabWidget>
#include <QTableView>

#include "app/documentoperations.h"
#include "app/editor/detailsections.h"
#include "app/editor/documenteditor.h"
#include "app/editor/itempopover.h"
#include "app/editor/linefieldsform.h"
#include "app/editor/linessection.h"
#include "app/editor/totalsview.h"
#include "app/mainwindow.h"
#include "support/testsupport.h"

using namespace tamo;
using namespace tamo::test;

namespace {

// The window over a session with scripted answers, one 19 % tax and English number formats.
class EditorWindowTest : public SessionTest {
protected:
    EditorWindowTest()
    {
        QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
        settings.set(key::tax1Enabled, true);
        settings.set(key::tax1Rate, 0.19);
        settings.set(key::tax1Title, u"VAT"_qs);
        settings.set(key::itemSortOrder, 1);
        settings.set(key::beforeTaxesBool, true);  // as every start-up since version 2.1 sets it
        session.managedObjectContext();
        window = std::make_unique<MainWindow>(session);
    }

    DocumentEditor& editor() { return *window->editor(); }
    template <typename W>
    W* field(const char* name)
    {
        auto* w = editor().findChild<W*>(QString::fromLatin1(name));
        EXPECT_NE(w, nullptr) << name;
        return w;
    }
    Record* document(int kind, int status)
    {
        Record* d = nullptr;
        {
            UndoGroup group(*session.context(), {});
            d = session.context()->insert("Invoice");
            d->setValue("kind", kind);
            d->setValue("status", status);
            d->setValue("title", kind == 0 ? u"Quote"_qs : u"Invoice"_qs);
            d->setValue("due", clock.now().addDays(30));
        }
        session.documents().setSelection({d});
        return d;
    }

    std::unique_ptr<MainWindow> window;
};

TEST_F(EditorWindowTest, ANewInvoiceTakesALineFromTheItemPopoverShowsItsTotalsAndUndoesIt)
{
    window->action(u"newInvoice"_qs)->trigger();
    Record* invoice = session.documents().current();
    ASSERT_NE(invoice, nullptr);
    EXPECT_EQ(invoice->integer("kind"), 1);
    EXPECT_EQ(editor().pages()->currentIndex(), DocumentEditor::ClientPage);

    window->action(u"addLine"_qs)->trigger();
    ItemPopover* popover = editor().lines()->itemPopover();
    ASSERT_TRUE(popover->isVisible());
    EXPECT_EQ(editor().pages()->currentIndex(), DocumentEditor::ItemsPage);
    popover->findChild<QLineEdit*>(u"lineTitle"_qs)->setText(u"Logo design"_qs);
    popover->findChild<QLineEdit*>(u"lineQuantity"_qs)->setText(u"2.5"_qs);
    popover->findChild<QLineEdit*>(u"linePrice"_qs)->setText(u"1,200.00"_qs);
    popover->findChild<QPushButton*>(u"addLineButton"_qs)->click();

    EXPECT_FALSE(popover->isVisible());
    ASSERT_EQ(editor().lines()->table()->model()->rowCount(), 1);
    EXPECT_EQ(editor().lines()->table()->model()->index(0, 0).data().toString(), u"Logo design");
    const TotalsView* totals = editor().lines()->totals();
    EXPECT_EQ(totals->amountText(TotalsView::Subtotal), u"3,000.00");
    EXPECT_EQ(totals->amountText(TotalsView::Tax1), u"570.00");
    EXPECT_EQ(totals->amountText(TotalsView::Total), u"3,570.00");
    EXPECT_FALSE(session.context()->hasChanges());

    QAction* undo = window->action(u"undo"_qs);
    EXPECT_EQ(undo->text(), u"&Undo Add Line");
    undo->trigger();
    EXPECT_EQ(editor().lines()->table()->model()->rowCount(), 0);
    EXPECT_EQ(totals->amountText(TotalsView::Total), u"0.00");
    EXPECT_EQ(invoice->decimal("amount"), 0.0);
}

TEST_F(EditorWindowTest, AbsurdAmountsAreRefusedWithTheReasonBesideTheField)
{
    Record* invoice = document(1, 0);
    window->action(u"addLine"_qs)->trigger();
    ItemPopover* popover = editor().lines()->itemPopover();
    auto* price = popover->findChild<QLineEdit*>(u"linePrice"_qs);
    auto* quantity = popover->findChild<QLineEdit*>(u"lineQuantity"_qs);
    popover->findChild<QLineEdit*>(u"lineTitle"_qs)->setText(u"Huge"_qs);
    quantity->setText(u"1"_qs);
    price->setText(u"1000000000000000"_qs);
    popover->findChild<QPushButton*>(u"addLineButton"_qs)->click();
    EXPECT_TRUE(popover->isVisible());
    EXPECT_TRUE(price->toolTip().contains(u"too large")) << price->toolTip().toStdString();
    quantity->setText(u"2000000"_qs);
    price->setText(u"1000000"_qs);
    popover->findChild<QPushButton*>(u"addLineButton"_qs)->click();
    EXPECT_TRUE(price->toolTip().startsWith(u"The line comes to"));
    EXPECT_TRUE(invoice->toMany("items").empty());

    // The document's own amounts and rates: refused, and the stored value shown again.
    editor().lines()->editDiscount();
    QLineEdit* percent = nullptr;
    for (auto* edit :
         window->findChild<QWidget*>(u"discountPopover"_qs)->findChildren<QLineEdit*>()) {
        percent = edit->placeholderText() == u"in %" ? edit : percent;
    }
    ASSERT_NE(percent, nullptr);
    percent->setText(u"-20"_qs);
    emit percent->editingFinished();
    EXPECT_EQ(invoice->decimal("discountPercent"), 0.0);
    EXPECT_EQ(percent->text(), u"0");
}

TEST_F(EditorWindowTest, ASentInvoiceChangesOnlyItsStatusAndPayment)
{
    Record* invoice = document(1, 1);
    EXPECT_TRUE(field<QLineEdit>("title")->isReadOnly());
    EXPECT_TRUE(field<QLineEdit>("customerName")->isReadOnly());
    EXPECT_TRUE(editor().findChild<QWidget*>(u"lockedNotice"_qs)->isVisibleTo(&editor()));
    EXPECT_FALSE(field<QLineEdit>("paidAmount")->isVisibleTo(editor().details()));

    // Its lines stay closed: the action is off, and any other way in gives the reason instead.
    EXPECT_FALSE(window->action(u"addLine"_qs)->isEnabled());
    editor().lines()->addLine();
    EXPECT_FALSE(editor().lines()->itemPopover()->isVisible());
    ASSERT_EQ(prompter.alerts().size(), 1);
    EXPECT_EQ(prompter.alerts().back().title, u"Error!");

    auto* status = field<QComboBox>("status");
    ASSERT_TRUE(status->isEnabled());
    status->setCurrentIndex(status->findData(4));
    emit status->activated(status->currentIndex());
    EXPECT_EQ(invoice->integer("status"), 4);
    auto* paid = field<QLineEdit>("paidAmount");
    EXPECT_TRUE(paid->isVisibleTo(editor().details()));
    EXPECT_FALSE(paid->isReadOnly());
    paid->setText(u"1,250.5"_qs);
    emit paid->editingFinished();
    EXPECT_EQ(invoice->decimal("paidAmount"), 1250.5);
    EXPECT_EQ(paid->text(), u"1,250.50");
    EXPECT_EQ(window->action(u"undo"_qs)->text(), u"&Undo Edit Paid Amount");
}

TEST_F(EditorWindowTest, TheDeleteActionIsNamedAfterTheCurrentDocument)
{
    QAction* remove = window->action(u"deleteInvoice"_qs);
    EXPECT_FALSE(remove->isEnabled());
    document(0, 0);
    EXPECT_TRUE(remove->isEnabled());
    EXPECT_EQ(remove->text(), u"Delete Quote");
    Record* invoice = document(1, 0);
    EXPECT_EQ(remove->text(), u"Delete Invoice");

    prompter.queueAnswer(u"Delete"_qs);
    prompter.queueAnswer(u"Cancel"_qs);
    remove->trigger();
    EXPECT_TRUE(invoice->isDeleted());
    EXPECT_EQ(prompter.alerts().front().title, u"Delete Invoice");
}

}  // namespace
