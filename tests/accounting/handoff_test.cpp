// One running Tamo per store: real `tamo` processes handing their URLs to the window, and the
// request answered without one. The desktop's opener is a stand-in `xdg-open` early on PATH
// that writes down what it was given.
#include <gtest/gtest.h>
#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QFile>
#include <QProcess>
#include <QThread>

#include "accountingfixture.h"
#include "model/storelocation.h"
#include "platform/handoff.h"

namespace tamo::test {
namespace {

const QString kRequest =
    u"tamo://ledriximport?key=2024-03-01&value=2024-03-31&kind=paid&id=handoff-1"_qs;

class HandoffTest : public AccountingTest {
protected:
    HandoffTest()
    {
        // Two paid invoices in the store the processes open.
        invoice(u"2024/1"_qs, localAt(2024, 3, 5, 9), 3);
        invoice(u"2024/2"_qs, localAt(2024, 3, 6, 9), 3);
        list();
        // A user past the one-time notice, whose window opens without questions.
        settings.set(key::loadEvoiceAlert_0_1, true);
        QDir().mkpath(dir.path(u"bin"_qs));
        QFile opener(dir.path(u"bin/xdg-open"_qs));
        EXPECT_TRUE(opener.open(QIODevice::WriteOnly));
        opener.write("#!/bin/sh\nprintf '%s\\n' \"$1\" >> \"$TAMO_TEST_OPENED\"\n");
        opener.close();
        opener.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    }

    QString store() const { return dir.profile().supportFolder; }

    QStringList openedByStandIn() const
    {
        return readFile(dir.path(u"opened.txt"_qs)).split(u'\n', Qt::SkipEmptyParts);
    }

    void prepare(QProcess& process) const
    {
        QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
        env.insert(u"PATH"_qs, dir.path(u"bin"_qs) + u':' + env.value(u"PATH"_qs));
        env.insert(u"TAMO_TEST_OPENED"_qs, dir.path(u"opened.txt"_qs));
        env.insert(u"QT_LOGGING_RULES"_qs, u"tamo.accounting.info=true"_qs);
        process.setProcessEnvironment(env);
        process.setProgram(QStringLiteral(TAMO_EXECUTABLE));
    }

    // Runs `tamo --store STORE ARGUMENTS` to its end.
    int run(const QStringList& arguments, QString* out = nullptr, QString* err = nullptr) const
    {
        QProcess tamo;
        prepare(tamo);
        tamo.setArguments(QStringList{u"--store"_qs, store()} + arguments);
        tamo.start();
        EXPECT_TRUE(tamo.waitForFinished(120000));
        if (out) {
            *out = QString::fromUtf8(tamo.readAllStandardOutput());
        }
        if (err) {
            *err = QString::fromUtf8(tamo.readAllStandardError());
        }
        return tamo.exitCode();
    }

    QString socket() const { return handoffSocketName(storeFolder(settings, dir.profile())); }
};

TEST_F(HandoffTest, ALaterTamoHandsItsRequestToTheWindow)
{
    QProcess window;
    prepare(window);
    window.setArguments({u"--store"_qs, store()});
    window.start();
    ASSERT_TRUE(window.waitForStarted());
    // Once the window listens, a bare `tamo` only brings it forward.
    QElapsedTimer waited;
    waited.start();
    while (!handOff(socket(), {}, 1000)) {
        ASSERT_LT(waited.elapsed(), 60000) << window.readAllStandardError().toStdString();
        ASSERT_EQ(window.state(), QProcess::Running) << window.readAllStandardError().toStdString();
        QThread::msleep(200);
    }
    EXPECT_EQ(run({}), 0);
    EXPECT_EQ(run({u"tamo://action?key=k1&kind=k2"_qs}), 0);
    EXPECT_EQ(run({kRequest}), 0);

    // The window answers the import request and ends.
    ASSERT_TRUE(window.waitForFinished(120000));
    EXPECT_EQ(window.exitCode(), 0);
    const QString log = QString::fromUtf8(window.readAllStandardError());
    EXPECT_TRUE(log.contains(u"aKey: k1, aKind: k2"_qs)) << log.toStdString();
    const QString list = session.applicationDataDirectory() + u"/LedrixImport.plist"_qs;
    EXPECT_EQ(openedByStandIn(), QStringList{u"ledrix://action?key=importTamo&value="_qs + list +
                                             u"&kind=handoff-1"_qs});
    EXPECT_TRUE(QFile::exists(session.applicationDataDirectory() + u"/20241_2.pdf"_qs));
    // With the window gone, nothing listens any more.
    EXPECT_FALSE(handOff(socket(), {}, 1000));
}

TEST_F(HandoffTest, WithoutAWindowTheRequestRunsHeadless)
{
    QString out, err;
    EXPECT_EQ(run({kRequest}, &out, &err), 0) << err.toStdString();
    EXPECT_TRUE(out.contains(u"Writing 2 PDFs for Ledrix"_qs)) << out.toStdString();
    EXPECT_TRUE(out.contains(u"[2/2] "_qs)) << out.toStdString();
    EXPECT_EQ(openedByStandIn().size(), 1);

    // A request Tamo cannot answer changes nothing and says why.
    QFile::remove(session.applicationDataDirectory() + u"/LedrixImport.plist"_qs);
    EXPECT_EQ(run({u"tamo://export?key=1"_qs}, &out, &err), 1);
    EXPECT_TRUE(err.contains(u"Tamo does not know the request \"export\"."_qs))
        << err.toStdString();
    EXPECT_EQ(
        run({u"tamo://ledriximport?key=2024-03-01&value=2024-03-02&kind=paid&id=x"_qs}, &out, &err),
        1);
    EXPECT_TRUE(err.contains(u"Could not generate import data."_qs)) << err.toStdString();
    EXPECT_EQ(openedByStandIn().size(), 1);
    EXPECT_FALSE(QFile::exists(session.applicationDataDirectory() + u"/LedrixImport.plist"_qs));
}

}  // namespace
}  // namespace tamo::test
