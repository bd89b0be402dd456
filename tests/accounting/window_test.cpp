#include <gtest/gtest.h>
#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QDateTimeEdit>
#include <QDir>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>
#include <QTimer>

#include "accountingfixture.h"
#include "app/accountingactions.h"
#include "app/appdelegate.h"
#include "app/ledrixsheet.h"
#include "app/mainwindow.h"
#include "render/designlibrary.h"

namespace tamo::test {
namespace {

class AccountingWindowTest : public ::testing::Test {
protected:
    AccountingWindowTest()
    {
        QDir().mkpath(dir.profile().supportFolder);
        Settings settings(dir.profile().settingsFile);
        settings.set(key::loadEvoiceAlert_0_1, true);
        settings.set(key::isAssiDone, true);  // a business already set up: no assistant
        auto context = openContext(dir.storePath());
        for (const auto& [number, day, status] :
             {std::tuple{u"R-1"_qs, 1, 1}, std::tuple{u"R-2"_qs, 2, 2}, std::tuple{u"R-3"_qs, 3, 3},
              std::tuple{u"R-4"_qs, 4, 0}}) {
            Record* invoice = context->insert("Invoice");
            invoice->setValue("kind", 1);
            invoice->setValue("number", number);
            invoice->setValue("status", status);
            invoice->setValue("date", localAt(2026, 3, day, 10));
            invoice->setValue("amount", 100.0);
        }
        EXPECT_TRUE(context->save().has_value());
        delegate.start();
        delegate.accounting().send().setOpener([this](const QString& target, OpenDone done) {
            opened << target;
            done({});
        });
    }

    // Answers the next message box with `button`; its text is added to `alerts`.
    void answerNextAlert(const QString& button)
    {
        QTimer::singleShot(0, [this, button] {
            auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            ASSERT_NE(box, nullptr);
            alerts << box->informativeText();
            for (QAbstractButton* b : box->buttons()) {
                if (b->text() == button) {
                    b->click();
                    return;
                }
            }
            ADD_FAILURE() << "no button " << button.toStdString();
        });
    }

    TempProfile dir;
    AppDelegate delegate{dir.profile()};
    QStringList opened;
    QStringList alerts;
};

TEST_F(AccountingWindowTest, TheSendSheetCountsEveryChangeAndSends)
{
    MainWindow& window = delegate.window();
    window.findChild<QAction*>(u"sendToLedrix"_qs)->trigger();
    auto* sheet = window.findChild<LedrixSendSheet*>();
    ASSERT_NE(sheet, nullptr);
    EXPECT_EQ(sheet->windowTitle(), u"Send Invoices To Ledrix");
    EXPECT_EQ(sheet->countLabel()->text(), u"3 invoices will be sent.");
    sheet->kindChoice()->setCurrentIndex(1);
    EXPECT_EQ(sheet->countLabel()->text(), u"1 invoice will be sent.");
    sheet->beginEdit()->setDate(QDate(2026, 3, 4));
    EXPECT_EQ(sheet->countLabel()->text(), u"No invoice matches.");
    EXPECT_FALSE(sheet->sendButton()->isEnabled());
    sheet->beginEdit()->setDate(QDate(2026, 3, 1));
    sheet->kindChoice()->setCurrentIndex(0);
    sheet->itemsChoice()->setCurrentIndex(1);
    Settings& settings = delegate.session().settings();
    EXPECT_EQ(settings.integer(key::prefsLedrixExportItemsKind), 1);
    EXPECT_EQ(settings.integer(key::prefsLedrixExportCount), 3);
    // The day changed; the time of the stored moment stayed.
    EXPECT_EQ(settings.date(key::prefsLedrixExportBeginDate), localAt(2026, 3, 1, 10))
        << settings.date(key::prefsLedrixExportBeginDate).toString(Qt::ISODateWithMs).toStdString();

    sheet->sendButton()->click();
    const QString path =
        delegate.session().applicationDataDirectory() + u"/kelvaneExport.ldxtamo"_qs;
    EXPECT_EQ(opened, QStringList{path});
    auto written = readPlistFile(path);
    ASSERT_TRUE(written);
    EXPECT_EQ(plist_array_get_size(written->get()), 3u);
    EXPECT_TRUE(QTest::qWaitFor([&] { return !window.findChild<LedrixSendSheet*>(); }));

    window.findChild<QAction*>(u"sendToKelvane"_qs)->trigger();
    sheet = window.findChild<LedrixSendSheet*>();
    ASSERT_NE(sheet, nullptr);
    EXPECT_EQ(sheet->windowTitle(), u"Send Invoices To Kelvane");
    sheet->reject();
}

TEST_F(AccountingWindowTest, FilesAndUrlsHandedOverAreAnswered)
{
    AccountingActions& accounting = delegate.accounting();
    DesignLibrary designs(delegate.session());
    const size_t before = designs.designs().size();
    ASSERT_GT(before, 0u);
    const QString design = dir.path(u"Letter.design"_qs);
    ASSERT_TRUE(designs.exportDesignFile(*designs.designs().front(), design));

    answerNextAlert(u"Cancel"_qs);
    accounting.answer({design});
    EXPECT_EQ(designs.designs().size(), before);
    answerNextAlert(u"Import Design"_qs);
    accounting.answer({design});
    EXPECT_EQ(designs.designs().size(), before + 1);

    answerNextAlert(u"OK"_qs);
    accounting.answer({dir.path(u"Backup.tamoinvoices"_qs)});
    answerNextAlert(u"OK"_qs);
    accounting.answer({u"tamo://ledriximport?key=1"_qs});
    ASSERT_EQ(alerts.size(), 4);
    EXPECT_TRUE(alerts[0].contains(u"\"Letter.design\" is a Tamo design."));
    EXPECT_TRUE(alerts[2].startsWith(u"In order to avoid duplicate entries"));
    EXPECT_EQ(alerts[3],
              u"Tamo cannot answer this request. The request to import into Ledrix "
              u"lacks its \"value\".");
    EXPECT_TRUE(delegate.window().isVisible());
}

}  // namespace
}  // namespace tamo::test
