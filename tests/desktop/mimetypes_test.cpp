// The file types Tamo installs recognise the files Tamo writes: by their extension, and where the
// content allows, by their content alone (a file that lost its extension, or arrived by mail).
#include <QDir>
#include <QFile>
#include <QMimeDatabase>
#include <QProcess>
#include <QTemporaryDir>

#include "support/commandrunner.h"
#include "support/testsupport.h"

using namespace tamo;
using namespace tamo::test;

namespace {

// A shared-mime-info database holding the freedesktop types and ours, made before the first
// QMimeDatabase is asked (Qt reads the folders once per process).
const QTemporaryDir& mimeFolders()
{
    static QTemporaryDir dir;
    static const bool made = [] {
        const QString packages = dir.filePath(u"mime/packages"_qs);
        QDir().mkpath(packages);
        QFile::copy(u"/usr/share/mime/packages/freedesktop.org.xml"_qs,
                    packages + u"/freedesktop.org.xml"_qs);
        QFile::copy(QStringLiteral(TAMO_DESKTOP_FILES "/app.tamo.Tamo.xml"),
                    packages + u"/app.tamo.Tamo.xml"_qs);
        QProcess update;
        update.start(u"update-mime-database"_qs, {dir.filePath(u"mime"_qs)});
        update.waitForFinished();
        qputenv("XDG_DATA_DIRS", dir.path().toUtf8());
        return update.exitCode() == 0;
    }();
    EXPECT_TRUE(made);
    return dir;
}

TEST(MimeTypes, TamosFilesAreRecognisedByNameAndContent)
{
    mimeFolders();
    TempProfile profile;
    const QString store = profile.path(u"store"_qs);
    ASSERT_EQ(runTamo(store, {u"generate-sample"_qs, u"--documents"_qs, u"3"_qs}).code, 0);

    struct Case {
        QStringList command;  // writes FILE
        const char* extension;
        const char* type;
        bool byContent;  // recognised without its extension too
    };
    const Case cases[] = {
        {{u"backup-invoices"_qs}, "tamoinvoices", "application/x-tamo-invoices", true},
        {{u"backup-items"_qs}, "tamoitems", "application/x-tamo-items", true},
        {{u"designs"_qs, u"export"_qs, u"0"_qs}, "design", "application/x-tamo-design", true},
        {{u"dump"_qs}, "invdump", "application/x-tamo-dump", false},
        {{u"backup-complete"_qs}, "tamo2db", "application/x-tamo-database", false},
    };
    const QMimeDatabase mime;
    for (const Case& c : cases) {
        SCOPED_TRACE(c.type);
        const QString file = profile.path(u"out/file."_qs + QLatin1String(c.extension));
        QDir().mkpath(profile.path(u"out"_qs));
        const CommandOutcome written = runTamo(store, c.command + QStringList{file});
        ASSERT_EQ(written.code, 0) << written.err.toStdString();
        EXPECT_EQ(mime.mimeTypeForFile(file).name(), QLatin1String(c.type));
        if (c.byContent) {
            QFile f(file);
            ASSERT_TRUE(f.open(QIODevice::ReadOnly));
            EXPECT_EQ(mime.mimeTypeForData(f.readAll()).name(), QLatin1String(c.type));
        }
    }
    // The single-document file, as another program writes it.
    QFile document(QStringLiteral(TAMO_TEST_DATA "/foreign-document.tamo"));
    ASSERT_TRUE(document.open(QIODevice::ReadOnly));
    EXPECT_EQ(mime.mimeTypeForData(document.readAll()).name(), u"application/x-tamo-document");
    EXPECT_TRUE(mime.mimeTypeForName(u"application/x-tamo-database"_qs)
                    .inherits(u"application/vnd.sqlite3"_qs));
}

}  // namespace
