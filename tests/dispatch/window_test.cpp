#include <QAction>
#include <QApplication>
#include <QFileDialog>
#include <QLabel>
#include <QPushButton>
#include <QTest>
#include <QTimer>

#include "app/appdelegate.h"
#include "app/dialogprompter.h"
#include "app/dispatchactions.h"
#include "app/mainwindow.h"
#include "app/previewpane.h"
#include "interchange/plistfile.h"
#include "render/sampledocument.h"
#include "support/fileprinter.h"
#include "support/testsupport.h"

using namespace tamo;
using namespace tamo::test;

namespace {

class DispatchWindowTest : public ::testing::Test {
protected:
    DispatchWindowTest()
    {
        QDir().mkpath(dir.profile().supportFolder);
        Settings settings(dir.profile().settingsFile);
        applySampleSettings(settings);
        settings.set(key::markInvoiceAsSent, true);
        auto context = openContext(dir.storePath());
        insertSampleDocument(*context, QDateTime(QDate(2026, 3, 5), QTime(12, 0)), 3);
        EXPECT_TRUE(context->save().has_value());
    }

    // Once the export sheet shows its PDF, presses OK; then answers a save panel with `file`.
    void confirmSheet(const QString& file = {})
    {
        QTimer::singleShot(0, [this, file] {
            auto* sheet = delegate.window().findChild<ExportSheet*>();
            ASSERT_NE(sheet, nullptr);
            ASSERT_TRUE(QTest::qWaitFor([&] { return sheet->okButton()->isEnabled(); }, 30000));
            EXPECT_GT(sheet->preview()->pageCount(), 0);
            if (!file.isEmpty()) {
                QTimer::singleShot(0, [file] {
                    QFileDialog* panel = nullptr;
                    ASSERT_TRUE(QTest::qWaitFor(
                        [&] {
                            return (panel = qobject_cast<QFileDialog*>(
                                        QApplication::activeModalWidget())) != nullptr;
                        },
                        10000));
                    EXPECT_EQ(panel->windowTitle(), u"Export As PDF File");
                    panel->selectFile(file);
                    QMetaObject::invokeMethod(panel, "accept");
                });
            }
            sheet->okButton()->click();
        });
    }

    TempProfile dir;
    AppDelegate delegate{dir.profile()};
};

TEST_F(DispatchWindowTest, PrintAndPdfGoThroughTheExportSheet)
{
    delegate.start();
    MainWindow& window = delegate.window();
    FilePrinter printer(dir.path(u"printer"_qs));
    window.findChild<DispatchWindowActions*>()->setPrintSystem(printer);
    QAction* print = window.action(u"printInvoice"_qs);
    ASSERT_NE(print, nullptr);
    EXPECT_EQ(print->shortcut(), QKeySequence(QKeySequence::Print));

    confirmSheet();
    print->trigger();
    ASSERT_EQ(printer.jobs.size(), 1u);
    EXPECT_TRUE(readWholeFile(printer.jobs[0].file).value_or("").startsWith("%PDF"));
    Record* document = delegate.session().documents().current();
    EXPECT_GT(document->integer("status"), 0);  // sent, or overdue by now

    const QString file = dir.path(u"window.pdf"_qs);
    confirmSheet(file);
    window.action(u"pdfInvoice"_qs)->trigger();
    EXPECT_TRUE(readWholeFile(file).value_or("").startsWith("%PDF"));
}

TEST(DialogPrompterTest, ASavePanelShowsItsMessage)
{
    DialogPrompter prompter;
    QTimer::singleShot(0, [] {
        QFileDialog* panel = nullptr;
        ASSERT_TRUE(QTest::qWaitFor(
            [&] { return (panel = qobject_cast<QFileDialog*>(QApplication::activeModalWidget())); },
            10000));
        auto* message = panel->findChild<QLabel*>(u"panelMessage"_qs);
        ASSERT_NE(message, nullptr);
        EXPECT_EQ(message->text(), u"Choose a location to save your E-Invoice XML file.");
        EXPECT_TRUE(message->isVisible());
        panel->reject();
    });
    FileRequest request;
    request.title = u"Save E-Invoice XML File"_qs;
    request.message = u"Choose a location to save your E-Invoice XML file."_qs;
    request.extensions = {u"xml"_qs};
    EXPECT_EQ(prompter.chooseFileToSave(request), std::nullopt);
}

}  // namespace
