#include <QAction>
#include <QApplication>
#include <QBuffer>
#include <QDialogButtonBox>
#include <QDir>
#include <QDockWidget>
#include <QLineEdit>
#include <QListWidget>
#include <QMessageBox>
#include <QPdfDocument>
#include <QPdfSelection>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTest>
#include <QTimer>

#include "app/appdelegate.h"
#include "app/designchooser.h"
#include "app/designpreferences.h"
#include "app/editor/documenteditor.h"
#include "app/mainwindow.h"
#include "app/preferences/preferencepanel.h"
#include "app/previewpane.h"
#include "app/renderactions.h"
#include "app/sheets.h"
#include "render/sampledocument.h"
#include "support/testsupport.h"

using namespace tamo;
using namespace tamo::test;

namespace {

class RenderWindowTest : public ::testing::Test {
protected:
    RenderWindowTest()
    {
        QDir().mkpath(dir.profile().supportFolder);
        Settings settings(dir.profile().settingsFile);
        applySampleSettings(settings);
        settings.set(key::tempPaperSize, 2);
        auto context = openContext(dir.storePath());
        insertSampleDocument(*context, QDateTime(QDate(2026, 3, 5), QTime(12, 0)), 30);
        EXPECT_TRUE(context->save().has_value());
    }

    QString previewText()
    {
        QPdfDocument* pdf = actions().previewPane()->document();
        QString text;
        for (int page = 0; page < pdf->pageCount(); ++page) {
            text += pdf->getAllText(page).text();
        }
        return text;
    }
    RenderWindowActions& actions() { return *delegate.window().findChild<RenderWindowActions*>(); }

    TempProfile dir;
    AppDelegate delegate{dir.profile()};
};

TEST_F(RenderWindowTest, ThePreviewFollowsEditsAndTheSheets)
{
    delegate.start();
    MainWindow& window = delegate.window();
    EXPECT_EQ(actions().designs().designs().size(), 13u);  // loaded by the store set-up
    ASSERT_NE(window.findChild<QDockWidget*>(u"previewDock"_qs), nullptr);
    PreviewPane* pane = actions().previewPane();
    ASSERT_TRUE(QTest::qWaitFor([&] { return pane->pageCount() > 0; }, 30000));
    EXPECT_GE(pane->pageCount(), 2);  // 30 lines
    EXPECT_TRUE(previewText().contains(u"Nordlicht Studio GmbH"));

    // An edit refreshes the preview.
    Record* document = delegate.session().documents().current();
    {
        UndoGroup group(*delegate.session().context(), u"Edit"_qs);
        document->setValue("customerName", u"Renamed Client AG"_qs);
        document->setValue("address", u"Renamed Client AG\nSomewhere 1"_qs);
    }
    delegate.session().saveContext();
    ASSERT_TRUE(
        QTest::qWaitFor([&] { return previewText().contains(u"Renamed Client AG"); }, 30000));

    // The reminder sheet's own button shows the reminder with the texts as edited.
    QTimer::singleShot(0, [&] {
        auto* sheet = window.findChild<VariantTextsSheet*>();
        ASSERT_NE(sheet, nullptr);
        auto* show = sheet->findChild<QPushButton*>(u"renderVariant"_qs);
        ASSERT_NE(show, nullptr);
        EXPECT_EQ(show->text(), u"Show Reminder");
        sheet->findChild<QLineEdit*>()->setText(u"Second reminder"_qs);
        show->click();
    });
    window.action(u"reminder"_qs)->trigger();
    EXPECT_TRUE(actions().html().isReminderAction());
    ASSERT_TRUE(QTest::qWaitFor([&] { return previewText().contains(u"Second reminder"); }, 30000));
}

// The preview follows typing once the person pauses, before the field is left; without a
// document it shows nothing.
TEST_F(RenderWindowTest, ThePreviewFollowsTypingAndEmptiesWithoutADocument)
{
    delegate.start();
    PreviewPane* pane = actions().previewPane();
    ASSERT_TRUE(QTest::qWaitFor([&] { return pane->pageCount() > 0; }, 30000));
    Record* document = delegate.session().documents().current();
    {
        WithoutUndo setup(*delegate.session().context());
        document->setValue("status", 0);
    }
    delegate.window().editor()->refresh();
    auto* title = delegate.window().editor()->findChild<QLineEdit*>(u"title"_qs);
    title->setFocus();
    title->selectAll();
    QTest::keyClicks(title, u"Typed Title"_qs);
    ASSERT_TRUE(QTest::qWaitFor([&] { return previewText().contains(u"Typed Title"); }, 30000));
    EXPECT_FALSE(delegate.session().context()->undoManager().canUndo());  // still typing
    emit title->editingFinished();
    EXPECT_EQ(delegate.session().context()->undoManager().undoActionName(), u"Edit Title");
    delegate.session().undo();
    EXPECT_NE(document->string("title"), u"Typed Title");

    delegate.session().documents().setSelection({});
    ASSERT_TRUE(QTest::qWaitFor([&] { return pane->pageCount() == 0; }, 30000));
}

TEST_F(RenderWindowTest, TheChooserShowsTheChosenDesignAndCancelGoesBack)
{
    delegate.start();
    MainWindow& window = delegate.window();
    // Row 4 rendered on its own, to compare the chooser's picture with.
    InvoiceHtml html(delegate.session(), actions().designs());
    html.useDesign(actions().designs().designs()[4]);
    PdfRenderer renderer(delegate.session().applicationDataDirectory());
    auto expected = renderer.renderAndWait(html.invoiceHTMLString(), html.pageLayout());
    ASSERT_TRUE(expected.has_value());
    QBuffer buffer(&*expected);
    buffer.open(QIODevice::ReadOnly);
    QPdfDocument rowFour;
    rowFour.load(&buffer);
    const QString rowFourText = rowFour.getAllText(0).text();

    DesignChooser chooser(actions().designs(), actions().output(), &window);
    EXPECT_EQ(chooser.list()->count(), 13);
    chooser.list()->setCurrentRow(4);
    EXPECT_FALSE(chooser.okButton()->isEnabled());
    ASSERT_TRUE(QTest::qWaitFor([&] { return chooser.okButton()->isEnabled(); }, 30000));
    QPdfDocument* shown = chooser.preview()->document();
    ASSERT_GT(shown->pageCount(), 0);
    EXPECT_EQ(shown->getAllText(0).text(), rowFourText);
    QTest::keyClick(&chooser, Qt::Key_Escape);  // Cancel goes back, by key too
    EXPECT_EQ(actions().designs().selectedIndex(), 0);

    // A sent document keeps its design.
    delegate.session().documents().current()->setValue("status", 1);
    window.action(u"chooseDesign"_qs)->trigger();  // disabled: nothing opens
    EXPECT_FALSE(window.action(u"chooseDesign"_qs)->isEnabled());
    QString refusal;
    QTimer::singleShot(0, [&] {
        QWidget* shown = QApplication::activeModalWidget();
        if (auto* box = qobject_cast<QMessageBox*>(shown)) {
            refusal = box->informativeText();
        }
        if (auto* dialog = qobject_cast<QDialog*>(shown)) {
            dialog->reject();  // the chooser must not open; if it does, it is closed again
        }
    });
    actions().showTemplateSheet();
    EXPECT_TRUE(refusal.contains(u"already sent")) << refusal.toStdString();

    DataInterchange interchange(delegate.session());
    ZPPreferencePanel preferences(delegate.session(), actions().designs(), interchange, &window);
    DesignPane* pane = preferences.designPane();
    EXPECT_EQ(pane->list()->count(), 13);
    pane->list()->setCurrentRow(2);
    Record* minimal = actions().designs().designs()[2];
    EXPECT_EQ(pane->editor(2)->toPlainText(), minimal->string("css"));
    pane->editor(2)->appendPlainText(u"/* edited */"_qs);
    // The preview with sample data runs no script of the design.
    pane->editor(0)->setPlainText(
        u"<p>%NUMBER%</p><script>document.write('PANE-SCRIPT-RAN')</script>"_qs);
    pane->previewDesign();
    const auto paneText = [&] {
        QPdfDocument* pdf = pane->preview()->document();
        return pdf->pageCount() > 0 ? pdf->getAllText(0).text() : QString();
    };
    ASSERT_TRUE(QTest::qWaitFor([&] { return paneText().contains(u"RE-2026"); }, 30000));
    EXPECT_FALSE(paneText().contains(u"PANE-SCRIPT-RAN"));
    preferences.reject();  // closing writes what was typed
    EXPECT_TRUE(minimal->string("css").endsWith(u"/* edited */"));
    EXPECT_FALSE(delegate.session().context()->hasChanges());
}

}  // namespace
