#include <QAction>
#include <QApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QMessageBox>
#include <QPushButton>
#include <QTableView>
#include <QTimer>

#include "app/appdelegate.h"
#include "app/editor/documenteditor.h"
#include "app/mainwindow.h"
#include "cli/samplegenerator.h"
#include "platform/manual.h"
#include "support/scratchfs.h"
#include "support/testsupport.h"

using namespace tamo;
using namespace tamo::test;

namespace {

QAction* action(MainWindow& window, const QString& text)
{
    for (QAction* menu : window.menuBar()->actions()) {
        for (QAction* a : menu->menu()->actions()) {
            if (a->text().remove(u'&').startsWith(text)) {
                return a;
            }
        }
    }
    return nullptr;
}

// A store of `documents` sample documents (and `clients` clients) at `path`, written and closed.
void makeSampleStore(const QString& path, int documents, int clients)
{
    QDir().mkpath(QFileInfo(path).absolutePath());
    auto context = openContext(path);
    SystemClock clock;
    ASSERT_TRUE(generateSample(*context, clock, {documents, 2, clients, 7}));
}

TEST(MainWindowTest, AStoreInAReadOnlyFolderIsShownForReading)
{
    TempProfile dir;
    const QString folder = dir.path(u"shared"_qs);
    makeSampleStore(folder + u"/Tamo.zqdb"_qs, 4, 2);
    Settings(dir.profile().settingsFile).set(key::useCustomPath, true);
    Settings(dir.profile().settingsFile).set(key::customDatabasePath, folder);
    ReadOnlyFolder readOnly(folder);
    if (!readOnly.available()) {
        GTEST_SKIP() << readOnly.reason().toStdString();
    }
    AppDelegate delegate(dir.profile());
    delegate.start();
    MainWindow& window = delegate.window();
    EXPECT_EQ(window.documentTable()->model()->rowCount(), 4);
    EXPECT_TRUE(window.windowTitle().contains(u"(read-only)"))
        << window.windowTitle().toStdString();
    auto* notice = window.findChild<QLabel*>(u"readOnlyNotice"_qs);
    ASSERT_NE(notice, nullptr);
    EXPECT_FALSE(notice->isHidden());
    EXPECT_TRUE(
        notice->text().startsWith(QStringLiteral("Read-only: Its folder “%1”").arg(folder)));
    for (const char16_t* name : {u"newInvoice", u"deleteInvoice", u"addLine", u"undo"}) {
        EXPECT_FALSE(window.action(QString::fromUtf16(name))->isEnabled())
            << QString::fromUtf16(name).toStdString();
    }
    EXPECT_TRUE(window.action(u"reminder"_qs)->isEnabled());
    EXPECT_TRUE(window.editor()->findChild<QLineEdit*>(u"title"_qs)->isReadOnly());
}

TEST(MainWindowTest, ADamagedStoreOffersTheRecoveryCopies)
{
    TempProfile dir;
    makeSampleStore(dir.storePath(), 4, 2);
    QDir().mkpath(dir.profile().recoveryFolder);
    const QString copy = u"000001 2026-03-01 09.00.00 before Restore.zqdb"_qs;
    ASSERT_TRUE(QFile::copy(dir.storePath(), dir.profile().recoveryFolder + u'/' + copy));
    QFile file(dir.storePath());
    ASSERT_TRUE(file.open(QIODevice::ReadWrite));
    file.write(QByteArray(100, '\xff'));  // the header: no database any more
    file.close();

    // Each alert is read and answered "Not Now" (or its only button).
    QStringList alerts;
    QStringList offered;
    QTimer answer;
    QObject::connect(&answer, &QTimer::timeout, [&] {
        auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        if (!box) {
            return;
        }
        alerts << box->text() + u' ' + box->informativeText();
        QAbstractButton* chosen = box->buttons().value(0);
        for (QAbstractButton* b : box->buttons()) {
            offered << b->text();
            if (b->text() == u"Not Now") {
                chosen = b;
            }
        }
        chosen->click();
    });
    answer.start(20);
    AppDelegate delegate(dir.profile());
    delegate.start();
    answer.stop();

    ASSERT_EQ(alerts.size(), 3) << alerts.join(u'\n').toStdString();
    EXPECT_TRUE(
        alerts[0].contains(QStringLiteral("The store “%1” is damaged.").arg(dir.storePath())))
        << alerts[0].toStdString();
    EXPECT_TRUE(alerts[2].contains(QStringLiteral("The newest recovery copy is “%1”.").arg(copy)))
        << alerts[2].toStdString();
    for (const char16_t* button : {u"Recover Previous Database…", u"Restore E-Tamo Database…"}) {
        EXPECT_TRUE(offered.contains(QString::fromUtf16(button)));
    }
    EXPECT_EQ(delegate.window().documentTable()->model()->rowCount(), 0);
    // Nothing was changed: the damaged file waits for the recovery to replace it.
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_EQ(file.read(100), QByteArray(100, '\xff'));
}

TEST(MainWindowTest, AnEditInTheWindowIsSavedUndoneAndSurvivesQuitting)
{
    TempProfile dir;
    makeSampleStore(dir.storePath(), 12, 3);
    AppDelegate delegate(dir.profile());
    delegate.start();
    MainWindow& window = delegate.window();
    EXPECT_EQ(window.documentTable()->model()->rowCount(), 12);

    // The first document is selected at start; make it editable and retitle it.
    Record* current = delegate.session().documents().current();
    ASSERT_NE(current, nullptr);
    current->setValue("status", 0);
    window.editor()->refresh();
    auto* title = window.editor()->findChild<QLineEdit*>(u"title"_qs);
    ASSERT_NE(title, nullptr);
    ASSERT_FALSE(title->isReadOnly());
    title->setText(u"Final invoice"_qs);
    emit title->editingFinished();
    EXPECT_EQ(current->string("title"), u"Final invoice");
    EXPECT_FALSE(delegate.session().context()->hasChanges());

    QAction* undo = action(window, u"Undo"_qs);
    ASSERT_NE(undo, nullptr);
    EXPECT_EQ(undo->text(), u"&Undo Edit Title");
    undo->trigger();
    EXPECT_NE(current->string("title"), u"Final invoice");
    EXPECT_EQ(title->text(), current->string("title"));

    EXPECT_TRUE(window.close());
    EXPECT_TRUE(delegate.session().settings().boolean(key::isTerminatedFine));
    EXPECT_EQ(delegate.session().settings().integer(key::fetchedObjectsCount), 12);
}

// What the first statistics pass changes (an invoice fell due while Tamo was closed) is kept, so
// that an untouched store opens without anything to save.
TEST(MainWindowTest, OpeningAStoreLeavesNothingUnsaved)
{
    TempProfile dir;
    QDir().mkpath(dir.profile().supportFolder);
    {
        auto context = openContext(dir.storePath());
        Record* d = context->insert("Invoice");
        d->setValue("kind", 1);
        d->setValue("status", 1);
        d->setValue("number", u"R-1"_qs);
        d->setValue("amount", 100.0);
        d->setValue("due", QDateTime::currentDateTimeUtc().addDays(-3));
        ASSERT_TRUE(context->save().has_value());
    }
    AppDelegate delegate(dir.profile());
    delegate.start();
    EXPECT_FALSE(delegate.session().context()->hasChanges());
    EXPECT_FALSE(delegate.window().isWindowModified());
    EXPECT_EQ(queryText(dir.storePath(), u"SELECT status FROM Invoice"_qs), u"2");
}

}  // namespace

TEST(MainWindowTest, TheHelpMenuComesLastAndOpensTheManualBesideTheProgram)
{
    TempProfile dir;
    AppDelegate delegate(dir.profile());
    delegate.start();
    const QList<QAction*> menus = delegate.window().menuBar()->actions();
    ASSERT_FALSE(menus.isEmpty());
    EXPECT_EQ(menus.last()->menu()->objectName(), u"helpMenu");
    ASSERT_NE(delegate.window().findChild<QAction*>(u"showManual"_qs), nullptr);
    // The build folder is laid out like an installation, so the manual is found from here too.
    const QUrl manual = manualUrl();
    ASSERT_TRUE(manual.isLocalFile()) << manual.toString().toStdString();
    QFile page(manual.toLocalFile());
    ASSERT_TRUE(page.open(QIODevice::ReadOnly));
    EXPECT_TRUE(page.readAll().contains("<title>Tamo Manual</title>"));
}
