#include <QAction>
#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>
#include <QStandardItemModel>
#include <QTableView>
#include <QTest>
#include <QToolBar>
#include <QToolButton>

#include "app/documentoperations.h"
#include "app/editor/clientchooser.h"
#include "app/editor/datefield.h"
#include "app/editor/documenteditor.h"
#include "app/mainwindow.h"
#include "support/testsupport.h"

using namespace tamo;
using namespace tamo::test;

namespace {

// The window over a store of a few documents, as a person finds it.
class WindowStateTest : public SessionTest {
protected:
    WindowStateTest()
    {
        QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
        session.managedObjectContext();
        window = std::make_unique<MainWindow>(session);
    }
    ~WindowStateTest() override { QLocale::setDefault(QLocale::c()); }

    Record* document(int kind, int status, const QString& number)
    {
        Record* d = nullptr;
        {
            UndoGroup group(*session.context(), {});
            d = session.context()->insert("Invoice");
            d->setValue("kind", kind);
            d->setValue("status", status);
            d->setValue("number", number);
            d->setValue("date", clock.now().addDays(-session.documents().size()));
            d->setValue("due", clock.now().addDays(30));
        }
        session.saveContext();
        return d;
    }
    QAction* action(const char* name) { return window->action(QString::fromLatin1(name)); }

    std::unique_ptr<MainWindow> window;
};

TEST_F(WindowStateTest, ANewDocumentClearsTheFilterAndTheSearchFieldAndIsShown)
{
    document(0, 0, u"Q-1"_qs);
    auto* search = window->findChild<QLineEdit*>(u"search"_qs);
    window->operations().lifecycle.selectFilter(4);
    search->setText(u"Q-1"_qs);
    ASSERT_EQ(session.documents().size(), 1);

    action("newInvoice")->trigger();
    Record* invoice = session.documents().current();
    ASSERT_NE(invoice, nullptr);
    EXPECT_EQ(invoice->integer("kind"), 1);
    EXPECT_TRUE(search->text().isEmpty());
    EXPECT_EQ(window->documentTable()->model()->rowCount(), 2);
    EXPECT_EQ(window->documentTable()->selectionModel()->selectedRows().size(), 1);
    EXPECT_TRUE(
        window->editor()->findChild<QLineEdit*>(u"customerName"_qs)->isVisibleTo(window.get()));
}

TEST_F(WindowStateTest, ASentDocumentShowsItsLock)
{
    struct Case {
        int kind, status;
        bool editable, convertible, deletable, einvoice;
    };
    const Case cases[] = {
        {1, 0, true, false, true, true},    {1, 1, false, false, false, false},
        {1, 4, false, false, false, false}, {0, 0, true, true, true, false},
        {0, 1, false, true, true, false},
    };
    auto* evoice = new QAction(window.get());
    window->setActionNeeds(evoice, MainWindow::Needs::UnsentInvoice);
    for (const Case& c : cases) {
        SCOPED_TRACE(testing::Message() << "kind " << c.kind << " status " << c.status);
        session.documents().setSelection({document(c.kind, c.status, u"N"_qs)});
        for (const char* name : {"addLine", "shipping", "discount", "chooseClient"}) {
            EXPECT_EQ(action(name)->isEnabled(), c.editable) << name;
            EXPECT_EQ(
                window->editor()->findChild<QPushButton*>(QString::fromLatin1(name))->isEnabled(),
                c.editable)
                << name;
        }
        EXPECT_EQ(action("convertToInvoice")->isEnabled(), c.convertible);
        EXPECT_EQ(action("deleteInvoice")->isEnabled(), c.deletable);
        EXPECT_EQ(evoice->isEnabled(), c.einvoice);
        auto* title = window->editor()->findChild<QLineEdit*>(u"title"_qs);
        EXPECT_EQ(title->isReadOnly(), !c.editable);
        // A locked field looks it: the window's colour where a field has its own.
        EXPECT_EQ(
            title->palette().color(QPalette::Base) == title->palette().color(QPalette::Window),
            !c.editable);
        EXPECT_EQ(window->findChild<QWidget*>(u"lockedNotice"_qs)->isVisibleTo(window.get()),
                  !c.editable);
    }
}

TEST_F(WindowStateTest, TheStatusIsChosenAmongTheStatesAPersonSetsAndTheDeleteButtonIsNamed)
{
    session.documents().setSelection({document(0, 0, u"Q-1"_qs)});
    auto* status = window->editor()->findChild<QComboBox*>(u"status"_qs);
    const auto* items = qobject_cast<QStandardItemModel*>(status->model());
    ASSERT_NE(items, nullptr);
    for (int s = 0; s < 5; ++s) {
        EXPECT_EQ(items->item(status->findData(s))->isEnabled(), s != 2) << s;
    }
    QToolBar* bar = window->findChild<QToolBar*>(u"mainToolBar"_qs);
    auto* button = qobject_cast<QToolButton*>(bar->widgetForAction(action("deleteInvoice")));
    ASSERT_NE(button, nullptr);
    EXPECT_EQ(button->text(), u"Delete Quote");
    session.documents().setSelection({document(1, 0, u"R-1"_qs)});
    EXPECT_EQ(button->text(), u"Delete Invoice");
}

TEST_F(WindowStateTest, HomeAndEndSelectTheFirstAndTheLastDocument)
{
    for (int i = 0; i < 5; ++i) {
        document(1, 0, QString::number(i));
    }
    QTableView* table = window->documentTable();
    window->show();
    table->setFocus();
    session.documents().setSelection({session.documents().at(2)});
    const std::tuple<Qt::Key, Qt::KeyboardModifiers, int> keys[] = {
        {Qt::Key_End, Qt::NoModifier, 4},
        {Qt::Key_Home, Qt::NoModifier, 0},
        {Qt::Key_End, Qt::ControlModifier, 4},
        {Qt::Key_Home, Qt::ControlModifier, 0},
    };
    for (const auto& [key, modifiers, row] : keys) {
        QTest::keyClick(table, key, modifiers);
        EXPECT_EQ(session.documents().current(), session.documents().at(row));
        EXPECT_EQ(table->selectionModel()->selectedRows().size(), 1);
    }
}

TEST_F(WindowStateTest, ARestoredWindowFitsTheScreen)
{
    QMainWindow wide;
    wide.resize(5000, 3000);
    settings.set(SettingKey{"windowGeometry", SettingType::Object}, wide.saveGeometry());
    window->restoreLayout();
    const QRect available = window->screen()->availableGeometry();
    EXPECT_TRUE(available.contains(window->geometry()))
        << window->geometry().width() << " wide on " << available.width();
}

TEST_F(WindowStateTest, AClientTypedByHandIsNamedAfterThePattern)
{
    settings.set(key::clientNamePatternTag, 1);  // first name, last name
    session.documents().setSelection({document(1, 0, u"R-1"_qs)});
    ClientChooser chooser(window->operations().clients, window.get());
    ASSERT_TRUE(chooser.prepare());
    chooser.findChild<QLineEdit*>(u"firstName"_qs)->setText(u"Ada"_qs);
    chooser.findChild<QLineEdit*>(u"lastName"_qs)->setText(u"Lovelace"_qs);
    chooser.apply();
    EXPECT_EQ(session.documents().current()->string("customerName"), u"Ada Lovelace");
}

TEST(DateFieldTest, DatesAreReadAsTypedInTheLocalesOrder)
{
    const QLocale us(QLocale::English, QLocale::UnitedStates);
    const QLocale de(QLocale::German, QLocale::Germany);
    const QDate march5(2026, 3, 5);
    const std::tuple<QLocale, const char16_t*, QDate> cases[] = {
        {us, u"3/5/2026", march5},
        {us, u"3/5/26", march5},
        {us, u"3-5-2026", march5},
        {us, u"2026-03-05", march5},
        {us, u"March 5, 2026", march5},
        {de, u"5.3.2026", march5},
        {de, u"05.03.26", march5},
        {de, u"5/3/2026", march5},
        {de, u"2026-03-05", march5},
        {us, u"tomorrow", QDate()},
        {de, u"", QDate()},
        {de, u"31.2.2026", QDate()},
    };
    for (const auto& [locale, text, date] : cases) {
        EXPECT_EQ(DateField::dateFromText(QString::fromUtf16(text), locale), date)
            << QString::fromUtf16(text).toStdString() << " in " << locale.name().toStdString();
    }
}

TEST_F(WindowStateTest, ADateIsTypedIntoItsField)
{
    Record* d = document(1, 0, u"R-1"_qs);
    session.documents().setSelection({d});
    window->show();
    auto* due = window->editor()->findChild<DateField*>(u"due"_qs);
    ASSERT_NE(due, nullptr);
    due->lineEdit()->setFocus();
    due->lineEdit()->selectAll();
    QTest::keyClicks(due->lineEdit(), u"4/30/2026"_qs);
    QTest::keyClick(due->lineEdit(), Qt::Key_Return);
    EXPECT_EQ(d->date("due").toLocalTime().date(), QDate(2026, 4, 30));
    EXPECT_EQ(session.context()->undoManager().undoActionName(), u"Edit Due Date");
    EXPECT_EQ(due->lineEdit()->text(),
              QLocale().toString(QDate(2026, 4, 30), QLocale::ShortFormat));
    QTest::keyClicks(due->lineEdit(), u"x"_qs);  // no date: the field shows the date again
    QTest::keyClick(due->lineEdit(), Qt::Key_Return);
    EXPECT_EQ(d->date("due").toLocalTime().date(), QDate(2026, 4, 30));
}

}  // namespace
