#include <QProcess>
#include <QStandardPaths>
#include <tuple>

#include "dispatch/dispatchfixture.h"
#include "einvoice/ublschema.h"
#include "interchange/datainterchange.h"
#include "interchange/recorddictionary.h"
#include "render/pagelayout.h"
#include "support/commandrunner.h"

using namespace tamo;
using namespace tamo::test;

namespace {

const QString kJobName = u"Muster Design Studio - Invoice - RE-2026-017"_qs;

TEST_F(DispatchTest, ThePdfFileIsTheSheetsPdfOnThePaperOfTheSettings)
{
    const std::tuple<int, QPageSize::PageSizeId, const char16_t*> papers[] = {
        {0, QPageSize::Letter, u"na-letter"}, {1, QPageSize::Legal, u"na-legal"},
        {2, QPageSize::A4, u"iso-a4"},        {3, QPageSize::JisB4, u"jis-b4"},
        {4, QPageSize::JisB5, u"jis-b5"},     {7, QPageSize::Letter, u"na-letter"}};
    for (const auto& [paper, id, name] : papers) {
        settings.set(key::tempPaperSize, paper);
        EXPECT_EQ(paperName(paper), QStringView(name));
        const QString file = dir.path(QStringLiteral("paper-%1.pdf").arg(paper));
        prompter.queueFile(file);
        ASSERT_EQ(send(ExportKind::PdfFile), ActionResult::Done) << paper;
        EXPECT_EQ(readWholeFile(file).value_or(""), readWholeFile(dispatch.pdfPath()).value());
        const QSizeF expected = QPageSize(id).size(QPageSize::Point);
        const QSizeF page = pdf(file)->pagePointSize(0);
        // The engine keeps page sizes in its own units: JIS B4 comes out a point smaller.
        EXPECT_NEAR(page.width(), expected.width(), 1.5) << paper;
        EXPECT_NEAR(page.height(), expected.height(), 1.5) << paper;
    }
    const FileRequest& panel = prompter.fileRequests().last();
    EXPECT_EQ(panel.title, u"Export As PDF File");
    EXPECT_EQ(panel.extensions, QStringList{u"pdf"_qs});
    EXPECT_EQ(panel.proposedName, kJobName);
    EXPECT_EQ(settings.string(key::currentPrintJobTitle), kJobName);
}

TEST_F(DispatchTest, MarginsFollowPrintBorderless)
{
    Record* black = context.insert("Design");
    black->setValue("title", u"Black"_qs);
    black->setValue("invoice",
                    u"<html><body style='margin:0'><div style='height:3000px;"
                    u"background:#000'></div></body></html>"_qs);
    black->setValue("item", QString());
    black->setValue("css", QString());
    designs.selectDesign(int(designs.designs().size()) - 1);
    settings.set(key::tempPaperSize, 2);
    const auto darkAt = [&](bool borderless, QPoint at) {
        settings.set(key::printBorderless, borderless);
        const QString file = dir.path(QStringLiteral("margins-%1.pdf").arg(borderless));
        prompter.queueFile(file);
        EXPECT_EQ(send(ExportKind::PdfFile), ActionResult::Done);
        auto document = pdf(file);
        const QImage page = document->render(0, document->pagePointSize(0).toSize());
        const QRgb p = page.pixel(at.x() < 0 ? page.width() + at.x() : at.x(),
                                  at.y() < 0 ? page.height() + at.y() : at.y());
        return qAlpha(p) > 128 && qGray(p) < 60;
    };
    // 40 points at the top and the sides, 60 at the bottom.
    for (const QPoint at : {QPoint(20, 20), QPoint(-20, 300), QPoint(300, -50)}) {
        EXPECT_FALSE(darkAt(false, at)) << at.x() << ',' << at.y();
        EXPECT_TRUE(darkAt(true, at)) << at.x() << ',' << at.y();
    }
    EXPECT_TRUE(darkAt(false, QPoint(45, 45)));
    EXPECT_TRUE(darkAt(false, QPoint(300, -65)));
}

TEST_F(DispatchTest, AnInvoiceThatWentOutIsSentInOneUndoStepAQuoteNever)
{
    MailStandIn mailClient(dir.path(u"mail"_qs));
    for (const ExportKind kind :
         {ExportKind::Print, ExportKind::PdfFile, ExportKind::PdfMail, ExportKind::DocumentFile}) {
        for (const int kindOfDocument : {1, 0}) {
            sent->setValue("kind", kindOfDocument);
            sent->setValue("status", 0);
            session.saveContext();
            if (kind == ExportKind::PdfFile || kind == ExportKind::DocumentFile) {
                prompter.queueFile(dir.path(u"out"_qs));
            }
            ASSERT_EQ(send(kind), ActionResult::Done) << int(kind);
            EXPECT_EQ(sent->integer("status"), kindOfDocument) << int(kind);
            if (kindOfDocument == 1) {
                EXPECT_EQ(context.undoManager().undoActionName(), u"Mark Invoice as Sent");
                session.undo();
                EXPECT_EQ(sent->integer("status"), 0);
            }
        }
    }
    // Nothing went out: nothing changes.
    sent->setValue("kind", 1);
    prompter.queueFile(QString());
    EXPECT_EQ(send(ExportKind::PdfFile), ActionResult::Cancelled);
    EXPECT_EQ(sent->integer("status"), 0);
}

TEST_F(DispatchTest, PrintingGoesToTheDefaultPrinterOrThroughTheDialog)
{
    ASSERT_EQ(send(ExportKind::Print), ActionResult::Done);
    ASSERT_EQ(printers.jobs.size(), 1u);
    EXPECT_EQ(printers.panels, 0);
    EXPECT_EQ(printers.jobs[0].title, kJobName);
    EXPECT_EQ(mediaName(printers.jobs[0].layout), u"na_letter_8.5x11in");
    EXPECT_EQ(readWholeFile(dir.path(u"printer/printed-1.pdf"_qs)).value_or(""),
              readWholeFile(dispatch.pdfPath()).value());

    settings.set(key::printBehavior, 1);
    sent->setValue("status", 0);
    printers.cancelPanel = true;
    EXPECT_EQ(send(ExportKind::Print), ActionResult::Cancelled);
    EXPECT_EQ(printers.panels, 1);
    EXPECT_EQ(sent->integer("status"), 0);

    // Without a printer the person is told so; nothing is marked.
    FilePrinter none(dir.path(u"none"_qs), {});
    dispatch.setPrintSystem(none);
    settings.set(key::printBehavior, 0);
    EXPECT_EQ(send(ExportKind::Print), ActionResult::Failed);
    EXPECT_EQ(prompter.errors().size(), 1);
    EXPECT_EQ(sent->integer("status"), 0);
    if (CupsPrintSystem().printers().isEmpty()) {
        PrintJob job;
        job.file = dispatch.pdfPath();
        const auto real = CupsPrintSystem().submit(job);
        ASSERT_FALSE(real);
        EXPECT_EQ(real.error().message, u"No printer is set up on this computer.");
    }
}

TEST_F(DispatchTest, TheMailClientGetsSubjectBodyRecipientAndThePdf)
{
    MailStandIn mailClient(dir.path(u"mail"_qs));
    settings.set(key::tempEmailBody, u"Hello,\nplease find the invoice attached."_qs);
    ASSERT_EQ(send(ExportKind::PdfMail), ActionResult::Done);
    EXPECT_EQ(mailClient.option(u"--subject"_qs), kJobName);
    EXPECT_EQ(
        mailClient.option(u"--body"_qs),
        u"Hello,\nplease find the invoice attached.\n\n\n"_qs + QString(96, u'-') + u"\n\n"_qs);
    EXPECT_EQ(mailClient.option(u"--attach"_qs), dispatch.pdfEmailPath());
    EXPECT_EQ(mailClient.arguments().last(), u"rechnung@stadtwerke-beispiel.de");
    EXPECT_TRUE(mailClient.attached().startsWith("%PDF"));
}

TEST_F(DispatchTest, MailingTheEinvoiceTwiceOverwritesOneValidFile)
{
    MailStandIn mailClient(dir.path(u"mail"_qs));
    const EinvoiceOptions standard;
    ASSERT_EQ(dispatch.mailEvoiceAction(standard), ActionResult::Done);
    EXPECT_EQ(sent->integer("status"), 1);
    sent->setValue("title", u"Invoice"_qs);
    ASSERT_EQ(dispatch.mailEvoiceAction(standard), ActionResult::Done);
    const QString expected = QDir(session.applicationDataDirectory())
                                 .filePath(u"Maria Muster Design - Invoice - RE-2026-017.xml"_qs);
    EXPECT_EQ(mailClient.option(u"--attach"_qs), expected);
    EXPECT_EQ(QDir(session.applicationDataDirectory()).entryList({u"*.xml"_qs}).size(), 1);
    EXPECT_EQ(UblSchema::invoice().problems(QString::fromUtf8(mailClient.attached())),
              QStringList());
}

TEST_F(DispatchTest, WithoutAMailClientThePersonIsToldAndOfferedTheFolder)
{
    for (const bool installed : {true, false}) {
        MailStandIn refusing(dir.path(u"mail"_qs), 3);
        mail.setProgram(installed ? u"xdg-email"_qs : u"tamo-no-such-mail-client"_qs);
        EXPECT_EQ(send(ExportKind::PdfMail), ActionResult::Failed);
        ASSERT_FALSE(prompter.alerts().isEmpty());
        EXPECT_EQ(prompter.alerts().last().buttons, (QStringList{u"Show in Folder"_qs, u"OK"_qs}));
        EXPECT_TRUE(prompter.alerts().last().text.contains(dispatch.pdfEmailPath()));
        EXPECT_EQ(sent->integer("status"), 0);
    }
}

TEST_F(DispatchTest, DocumentFilesAreReadBackByTheImportAndByPlistlib)
{
    settings.set(key::markInvoiceAsSent, false);  // both files of the same document
    const QString tamo = dir.path(u"doc.tamo"_qs), xml = dir.path(u"doc.xml"_qs);
    prompter.queueFile(tamo);
    ASSERT_EQ(send(ExportKind::DocumentFile), ActionResult::Done);
    EXPECT_EQ(prompter.fileRequests().last().title, u"Export As Tamo Document");
    settings.set(key::exportFormat, 1);
    prompter.queueFile(xml);
    ASSERT_EQ(send(ExportKind::DocumentFile), ActionResult::Done);
    EXPECT_EQ(prompter.fileRequests().last().title, u"Export As XML Document");
    settings.set(key::exportFormat, 2);  // names no format: nothing is asked or written
    const auto asked = prompter.fileRequests().size();
    EXPECT_EQ(send(ExportKind::DocumentFile), ActionResult::Cancelled);
    EXPECT_EQ(prompter.fileRequests().size(), asked);

    // The archive holds {"tamoDic": the XML file's dictionary}, as plistlib resolves it.
    auto dictionary = readPlistFile(xml);
    ASSERT_TRUE(dictionary);
    Plist wrapped(plist_new_dict());
    plist_dict_set_item(wrapped.get(), "tamoDic", dictionary->release());
    ASSERT_TRUE(writeFileAtomically(dir.path(u"expected.plist"_qs),
                                    *serializePlist(wrapped.get(), PlistFormat::Xml)));
    if (const QString python = QStandardPaths::findExecutable(u"python3"_qs); !python.isEmpty()) {
        QProcess p;
        p.start(python, {QStringLiteral(TAMO_TEST_SOURCE "/interchange/check_keyed_archive.py"),
                         tamo, dir.path(u"expected.plist"_qs)});
        ASSERT_TRUE(p.waitForFinished(60000));
        EXPECT_EQ(p.exitCode(), 0) << p.readAllStandardOutput().toStdString();
    }
    prompter.queueAnswer(u"Import…"_qs);
    prompter.queueFile(tamo);
    ASSERT_EQ(DataInterchange(session).importInvoice(), ActionResult::Done);
    const Record* imported = session.documents().current();
    ASSERT_NE(imported, sent);
    EXPECT_EQ(imported->string("number"), u"RE-2026-017");
    EXPECT_EQ(imported->decimal("amount"), sent->decimal("amount"));
    EXPECT_EQ(imported->toMany("items").size(), 1u);
}

TEST_F(DispatchTest, WithoutADesignNothingGoesOut)
{
    for (Record* design : designs.designs()) {
        context.remove(design);
    }
    EXPECT_FALSE(dispatch.beginExport(ExportKind::Print));
    ASSERT_EQ(prompter.alerts().size(), 1);
    EXPECT_EQ(prompter.alerts()[0].text,
              u"No design available. Please download or create a design.");
}

TEST_F(DispatchTest, TheCommandsSendTheDocumentOrSayWhyNot)
{
    MailStandIn mailClient(dir.path(u"mail"_qs));
    const QString store = dir.profile().supportFolder;
    const QString file = dir.path(u"cli.pdf"_qs);
    CommandOutcome run = runTamo(store, {u"pdf"_qs, u"RE-2026-017"_qs, file});
    ASSERT_EQ(run.code, 0) << run.err.toStdString();
    EXPECT_TRUE(readWholeFile(file).value_or("").startsWith("%PDF"));
    EXPECT_TRUE(run.out.contains(u"RE-2026-017 is marked as sent"));

    run = runTamo(store, {u"mail"_qs, u"RE-2026-017"_qs, u"--einvoice"_qs});
    EXPECT_EQ(run.code, 1);
    EXPECT_TRUE(run.err.contains(u"marked as already sent")) << run.err.toStdString();
    run = runTamo(store, {u"mail"_qs, u"RE-2026-017"_qs});
    EXPECT_EQ(run.code, 0) << run.err.toStdString();
    EXPECT_TRUE(mailClient.attached().startsWith("%PDF"));

    run =
        runTamo(store, {u"export-document"_qs, u"RE-2026-017"_qs, dir.path(u"no/such/x.tamo"_qs)});
    EXPECT_EQ(run.code, 1);
    EXPECT_EQ(run.err.count(u'\n'), 1) << run.err.toStdString();
    run = runTamo(store,
                  {u"export-document"_qs, u"RE-2026-017"_qs, dir.path(u"cli.xml"_qs), u"--xml"_qs});
    EXPECT_EQ(run.code, 0) << run.err.toStdString();
    EXPECT_TRUE(readWholeFile(dir.path(u"cli.xml"_qs)).value_or("").contains("<plist"));

    if (CupsPrintSystem().printers().isEmpty()) {
        run = runTamo(store, {u"print"_qs, u"RE-2026-017"_qs});
        EXPECT_EQ(run.code, 1);
        EXPECT_TRUE(run.err.startsWith(u"tamo: No printer is set up on this computer."))
            << run.err.toStdString();
    }
}

TEST_F(DispatchTest, TheProgramPrintsOneDocumentWithTheEngineInsideAndEnds)
{
    session.saveContext();
    const QString file = dir.path(u"program.pdf"_qs);
    for (int run = 0; run < 2; ++run) {  // the second finds the engine's files of the first
        QProcess tamo;
        tamo.start(QStringLiteral(TAMO_PROGRAM), {u"--store"_qs, dir.profile().supportFolder,
                                                  u"pdf"_qs, u"RE-2026-017"_qs, file});
        ASSERT_TRUE(tamo.waitForFinished(120000));
        EXPECT_EQ(tamo.exitStatus(), QProcess::NormalExit);
        EXPECT_EQ(tamo.exitCode(), 0) << tamo.readAllStandardError().toStdString();
        EXPECT_TRUE(readWholeFile(file).value_or("").startsWith("%PDF"));
    }
}

}  // namespace
