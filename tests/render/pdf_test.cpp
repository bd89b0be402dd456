#include <QElapsedTimer>
#include <QImage>
#include <QPdfDocument>
#include <QPdfSelection>
#include <QSignalSpy>
#include <QTcpServer>
#include <QTcpSocket>
#include <memory>

#include <QTest>

#include "interchange/plistfile.h"
#include "pdf/pdfoutput.h"
#include "pdf/thumbnailpdf.h"
#include "render/designlibrary.h"
#include "render/pagelayout.h"
#include "render/sampledocument.h"
#include "support/scratchfs.h"
#include "support/testsupport.h"

using namespace tamo;
using namespace tamo::test;

namespace {

TEST(PageLayout, PaperAndMarginsFollowTheSettings)
{
    struct Case {
        int paper;
        QPageSize::PageSizeId id;
    };
    const Case cases[] = {{0, QPageSize::Letter}, {1, QPageSize::Legal}, {2, QPageSize::A4},
                          {3, QPageSize::JisB4},  {4, QPageSize::JisB5}, {7, QPageSize::Letter},
                          {-1, QPageSize::Letter}};
    for (const Case& c : cases) {
        const QPageLayout framed = pageLayoutFor(c.paper, false);
        EXPECT_EQ(framed.pageSize().id(), c.id) << c.paper;
        EXPECT_EQ(framed.units(), QPageLayout::Point);
        EXPECT_EQ(framed.margins(), QMarginsF(40, 40, 40, 60)) << c.paper;
        EXPECT_EQ(pageLayoutFor(c.paper, true).margins(), QMarginsF(0, 0, 0, 0)) << c.paper;
    }
}

TEST(PdfPageCount, ReadsThePageTree)
{
    EXPECT_EQ(pdfPageCount("%PDF-1.4 no pages"), 0);
    EXPECT_EQ(pdfPageCount("<< /Type /Pages /Count 2 >> << /Type /Pages /Count 12 >>"), 12);
}

// The shipped designs, the sample document and English labels, printed by a real web engine.
class PdfTest : public SessionTest {
protected:
    PdfTest()
    {
        designs.installHooks();
        context = session.managedObjectContext();
        applySampleSettings(settings);
        sample = insertSampleDocument(*context, QDateTime(QDate(2026, 3, 5), QTime(12, 0)));
        session.documents().setSelection({sample});
    }

    // Loads through a file, which Qt PDF reads at once.
    std::unique_ptr<QPdfDocument> load(const QByteArray& pdf)
    {
        const QString path = dir.path(QStringLiteral("check-%1.pdf").arg(++loads));
        EXPECT_TRUE(writeFileAtomically(path, pdf).has_value());
        auto document = std::make_unique<QPdfDocument>();
        EXPECT_EQ(document->load(path), QPdfDocument::Error::None);
        return document;
    }
    QString text(QPdfDocument& document)
    {
        QString all;
        for (int page = 0; page < document.pageCount(); ++page) {
            all += document.getAllText(page).text() + u'\n';
        }
        return all;
    }
    Record* design(const QString& page, const QString& css = {})
    {
        Record* d = context->insert("Design");
        d->setValue("title", u"Test"_qs);
        d->setValue("invoice", page);
        d->setValue("item", u""_qs);
        d->setValue("css", css);
        designs.selectDesign(int(designs.designs().size()) - 1);
        return d;
    }

    Context* context = nullptr;
    Record* sample = nullptr;
    DesignLibrary designs{session};
    InvoiceHtml html{session, designs};
    PdfRenderer renderer{session.applicationDataDirectory()};
    PdfOutput output{session, html, renderer};
    int loads = 0;
};

TEST_F(PdfTest, ADocumentPrintsOnThePaperOfTheSettingsWithItsText)
{
    settings.set(key::tempPaperSize, 2);
    const QString file = dir.path(u"sample.pdf"_qs);
    ASSERT_TRUE(output.writePdf(*sample, file).has_value());
    auto pdf = load(readWholeFile(file).value());
    ASSERT_GE(pdf->pageCount(), 1);
    const QSizeF a4 = QPageSize(QPageSize::A4).size(QPageSize::Point);
    EXPECT_NEAR(pdf->pagePointSize(0).width(), a4.width(), 1.0);
    EXPECT_NEAR(pdf->pagePointSize(0).height(), a4.height(), 1.0);
    const QString words = text(*pdf);
    for (const char16_t* expected :
         {u"Nordlicht Studio GmbH", u"Concept workshop", u"RE-2026-0042"}) {
        EXPECT_TRUE(words.contains(QStringView(expected)))
            << QString::fromUtf16(expected).toStdString();
    }

    settings.set(key::tempPaperSize, 7);
    ASSERT_TRUE(output.writePdf(*sample, file).has_value());
    const QSizeF letter = QPageSize(QPageSize::Letter).size(QPageSize::Point);
    EXPECT_NEAR(load(readWholeFile(file).value())->pagePointSize(0).width(), letter.width(), 1.0);
}

TEST_F(PdfTest, MarginsLeaveTheEdgesBlankUnlessBorderless)
{
    // A block taller than the page fills what the margins leave of the first page.
    design(u"<html><style>%CSS%</style><body><div class=fill></div></body></html>"_qs,
           u"body { margin: 0; } .fill { height: 3000px; background: #000; }"_qs);
    const auto pageImage = [&] {
        auto pdf =
            load(renderer.renderAndWait(html.invoiceHTMLString(), pageLayoutFromSettings(settings))
                     .value());
        return pdf->render(0, pdf->pagePointSize(0).toSize());  // one pixel per point
    };
    settings.set(key::tempPaperSize, 2);
    QImage framed = pageImage();
    const int w = framed.width(), h = framed.height();
    // Qt PDF leaves what the page does not paint transparent.
    const auto dark = [](const QImage& image, int x, int y) {
        const QRgb p = image.pixel(x, y);
        return qAlpha(p) > 128 && qGray(p) < 60;
    };
    EXPECT_FALSE(dark(framed, 20, 20));         // inside the 40-point top and left margins
    EXPECT_FALSE(dark(framed, w - 20, h / 2));  // right margin
    EXPECT_FALSE(dark(framed, w / 2, h - 50));  // the bottom margin is 60 points
    EXPECT_TRUE(dark(framed, w / 2, h - 70));
    EXPECT_TRUE(dark(framed, 50, 50));

    settings.set(key::printBorderless, true);
    QImage bleed = pageImage();
    EXPECT_TRUE(dark(bleed, 2, 2));
    EXPECT_TRUE(dark(bleed, bleed.width() - 3, bleed.height() - 3));
}

TEST_F(PdfTest, ARunawayLayoutIsStoppedAndReportedWithoutAFile)
{
    // A flex row with a gap whose children are all hidden: the engine prints page after page.
    design(
        u"<html><style>%CSS%</style><body><p>%NUMBER%</p>"
        u"<div class=row><div>a</div><div>b</div></div></body></html>"_qs,
        u".row { display: flex; gap: 10px; } .row > div { display: none; }"_qs);
    renderer.setLimits({1000, 2500});
    const QString before = u"the previous preview"_qs;
    ASSERT_TRUE(writeFileAtomically(output.previewPath(), before.toUtf8()).has_value());
    QSignalSpy ready(&output, &PdfOutput::previewReady);
    QElapsedTimer clock;
    clock.start();
    output.generatePreview();
    EXPECT_TRUE(output.isBusy());
    ASSERT_TRUE(QTest::qWaitFor([&] { return !output.isBusy(); }, 20000));
    EXPECT_LT(clock.elapsed(), 15000);
    EXPECT_EQ(ready.count(), 0);
    ASSERT_EQ(prompter.alerts().size(), 1);
    EXPECT_EQ(prompter.alerts()[0].title, u"Ooops!");
    EXPECT_TRUE(prompter.alerts()[0].text.startsWith(
        u"Something went really wrong while creating the preview."));
    EXPECT_TRUE(prompter.alerts()[0].text.contains(u"running away") ||
                prompter.alerts()[0].text.contains(u"ran away"));
    EXPECT_EQ(readFile(output.previewPath()), before);

    // The renderer is usable again at once (with the usual time, on a busy machine too).
    renderer.setLimits({});
    designs.selectDesign(0);
    output.generatePreview();
    ASSERT_TRUE(QTest::qWaitFor([&] { return ready.count() == 1; }, 20000));
    EXPECT_GE(load(readWholeFile(output.previewPath()).value())->pageCount(), 1);
}

TEST_F(PdfTest, MorePagesThanTheLimitAreRefused)
{
    design(u"<html><body><div style='height: 2500px'>%NUMBER%</div></body></html>"_qs, u""_qs);
    renderer.setLimits({2, 30000});
    auto pdf = renderer.renderAndWait(html.invoiceHTMLString(), pageLayoutFor(2, false));
    ASSERT_FALSE(pdf.has_value());
    EXPECT_EQ(pdf.error().code, kRunawayPages);
    renderer.setLimits({10, 30000});
    pdf = renderer.renderAndWait(html.invoiceHTMLString(), pageLayoutFor(2, false));
    ASSERT_TRUE(pdf.has_value());
    EXPECT_EQ(pdfPageCount(*pdf), load(*pdf)->pageCount());
    EXPECT_GE(pdfPageCount(*pdf), 3);
}

TEST_F(PdfTest, AHostileDesignReachesNeitherTheNetworkNorFilesOutsideTheDataFolder)
{
    QTcpServer server;
    ASSERT_TRUE(server.listen(QHostAddress::LocalHost));
    int connections = 0;
    QObject::connect(&server, &QTcpServer::newConnection, [&] {
        ++connections;
        server.nextPendingConnection()->close();
    });
    const QString secret = dir.path(u"secret.txt"_qs);
    ASSERT_TRUE(writeFileAtomically(secret, "SECRET-OUTSIDE").has_value());
    const QString inside = session.applicationDataDirectory() + u"/inside.txt"_qs;
    ASSERT_TRUE(writeFileAtomically(inside, "ALLOWED-INSIDE").has_value());

    QString page = readFile(QStringLiteral(TAMO_TEST_DATA "/render/hostile/invoice.html"));
    page.replace(u"PORT"_qs, QString::number(server.serverPort()))
        .replace(u"SECRET"_qs, QUrl::fromLocalFile(secret).toString())
        .replace(u"INSIDE"_qs, QUrl::fromLocalFile(inside).toString());
    design(page, u"body { font-size: 10pt; }"_qs);
    sample->setValue("title", u"<script>document.write('VALUE-SCRIPT-RAN')</script>"_qs);

    // Documents print with scripts off; a page allowed its scripts (the sales report) stays
    // inside the data folder all the same.
    auto pdf = renderer.renderAndWait(html.invoiceHTMLString(), pageLayoutFor(2, false));
    ASSERT_TRUE(pdf.has_value()) << pdf.error().text().toStdString();
    QString words = text(*load(*pdf));
    EXPECT_FALSE(words.contains(u"SCRIPT-RAN"));
    pdf = renderer.renderAndWait(html.invoiceHTMLString(), pageLayoutFor(2, false),
                                 PdfPageOptions{.scripts = true});
    ASSERT_TRUE(pdf.has_value()) << pdf.error().text().toStdString();
    QTest::qWait(500);  // anything sent late would have arrived by now
    words = text(*load(*pdf));
    EXPECT_TRUE(words.contains(u"DESIGN-SCRIPT-RAN"));
    EXPECT_TRUE(words.contains(u"VALUE-SCRIPT-RAN"));
    EXPECT_TRUE(words.contains(u"ALLOWED-INSIDE"));
    EXPECT_FALSE(words.contains(u"SECRET-OUTSIDE"));
    EXPECT_EQ(connections, 0);
}

// The page reaches the engine through a file in the data folder; where that folder cannot be
// written it goes in memory, and the logo beside it is printed either way.
TEST_F(PdfTest, APageIsPrintedWithItsLogoWhetherOrNotTheDataFolderCanBeWritten)
{
    const QString folder = dir.path(u"data"_qs);
    PdfRenderer local(folder);
    QImage logo(40, 40, QImage::Format_RGB32);
    logo.fill(Qt::darkBlue);
    ASSERT_TRUE(logo.save(folder + u"/logo.png"_qs));
    const QString page = u"<!DOCTYPE html><p>HANDED-OVER</p><img src='logo.png'>"_qs;
    for (const bool writable : {true, false}) {
        SCOPED_TRACE(writable ? "writable" : "read-only");
        std::optional<ReadOnlyFolder> locked;
        if (!writable) {
            locked.emplace(folder);
            if (!locked->available()) {
                GTEST_SKIP() << locked->reason().toStdString();
            }
        }
        const auto pdf = local.renderAndWait(page, pageLayoutFor(2, false));
        ASSERT_TRUE(pdf.has_value()) << pdf.error().text().toStdString();
        EXPECT_TRUE(text(*load(*pdf)).contains(u"HANDED-OVER"));
        EXPECT_TRUE(pdf->contains("/Width 40")) << "the logo is missing";
    }
}

TEST_F(PdfTest, RecordsAndDesignsCannotScriptThePrintedPage)
{
    // A line whose title replaces the page, HTML that still counts as such, and a design whose
    // script would never end.
    Record* line = sample->toMany("items").front();
    line->setValue("title", u"<script>document.body.innerHTML = 'REPLACED'</script>Logo"_qs);
    sample->setValue("subject", u"<b>Bold</b> subject"_qs);
    ASSERT_TRUE(output.writePdf(*sample, dir.path(u"values.pdf"_qs)).has_value());
    const QString words = text(*load(readWholeFile(dir.path(u"values.pdf"_qs)).value()));
    EXPECT_FALSE(words.contains(u"REPLACED"));
    EXPECT_TRUE(words.contains(u"RE-2026-0042"));
    EXPECT_TRUE(words.contains(u"Bold subject"));
    EXPECT_FALSE(words.contains(u"<b>"));

    design(u"<html><body><p>%NUMBER%</p><script>for (;;) {}</script></body></html>"_qs);
    renderer.setLimits({1000, 20000});
    QElapsedTimer clock;
    clock.start();
    const auto pdf = renderer.renderAndWait(html.invoiceHTMLString(), pageLayoutFor(2, false));
    ASSERT_TRUE(pdf.has_value()) << pdf.error().text().toStdString();
    EXPECT_LT(clock.elapsed(), 10000);
    EXPECT_TRUE(text(*load(*pdf)).contains(u"RE-2026-0042"));

    // The preview too: a design's script writes nothing there.
    design(
        u"<html><body><p>%NUMBER%</p><script>document.write('PREVIEW-SCRIPT-RAN')</script>"
        u"</body></html>"_qs);
    QSignalSpy ready(&output, &PdfOutput::previewReady);
    output.generatePreview();
    ASSERT_TRUE(QTest::qWaitFor([&] { return ready.count() == 1; }, 20000));
    const QString preview = text(*load(readWholeFile(output.previewPath()).value()));
    EXPECT_TRUE(preview.contains(u"RE-2026-0042"));
    EXPECT_FALSE(preview.contains(u"PREVIEW-SCRIPT-RAN"));
}

// The window letters put the address into the envelope's window on A4 however the settings print:
// the address zone of the address field, measured on the page.
TEST_F(PdfTest, TheWindowLettersPutTheAddressIntoTheWindow)
{
    settings.set(key::tempPaperSize, 2);
    const double mm = 72 / 25.4;
    struct Case {
        const char16_t* design;
        double zoneTop;  // the address zone: the lower 27.3 mm of the 45 mm field
    };
    const Case cases[] = {{u"DIN 5008 Letter, Form A", 27 + 17.7},
                          {u"DIN 5008 Letter, Form B", 45 + 17.7}};
    for (const Case& c : cases) {
        for (const bool borderless : {false, true}) {
            SCOPED_TRACE(testing::Message() << QString::fromUtf16(c.design).toStdString()
                                            << (borderless ? " borderless" : " with margins"));
            settings.set(key::printBorderless, borderless);
            Record* letter = nullptr;
            for (Record* d : designs.designs()) {
                letter = d->string("title") == QStringView(c.design) ? d : letter;
            }
            ASSERT_NE(letter, nullptr);
            html.useDesign(letter);
            auto pdf =
                load(renderer.renderAndWait(html.invoiceHTMLString(), html.pageLayout()).value());
            const QString words = pdf->getAllText(0).text();
            for (const char16_t* line : {u"Attn. Mara Lindqvist", u"20457 Hamburg"}) {
                const qsizetype at = words.indexOf(QStringView(line));
                ASSERT_GE(at, 0);
                const QRectF box =
                    pdf->getSelectionAtIndex(0, int(at), int(QStringView(line).size()))
                        .boundingRectangle();
                EXPECT_NEAR(box.left() / mm, 25, 1.5);  // 5 mm inside the field at 20 mm
                EXPECT_GE(box.top() / mm, c.zoneTop - 0.5);
                EXPECT_LE(box.bottom() / mm, c.zoneTop + 27.3 + 0.5);
            }
        }
    }
}

// Borderless, the sidebar runs to the edges of the sheet; the letter's text does not.
TEST_F(PdfTest, TheSidebarKeepsTheTextOffTheEdges)
{
    settings.set(key::tempPaperSize, 2);
    settings.set(key::printBorderless, true);
    for (Record* d : designs.designs()) {
        if (d->string("title") == u"Sidebar") {
            html.useDesign(d);
        }
    }
    ASSERT_NE(html.currentDesign(), nullptr);
    ASSERT_EQ(html.currentDesign()->string("title"), u"Sidebar");
    {
        // Enough lines for a second page.
        for (int i = 0; i < 30; ++i) {
            Record* line = context->insert("Item");
            line->setValue("title", QStringLiteral("Extra line %1").arg(i));
            line->setValue("unitCount", 1.0);
            line->setValue("baseAmount", 10.0);
            line->setToOne("invoice", sample);
        }
    }
    auto pdf = load(renderer.renderAndWait(html.invoiceHTMLString(), html.pageLayout()).value());
    ASSERT_GE(pdf->pageCount(), 2);
    const double mm = 72 / 25.4;
    for (int page = 0; page < pdf->pageCount(); ++page) {
        const QImage image = pdf->render(page, pdf->pagePointSize(page).toSize());
        const int w = image.width(), h = image.height();
        EXPECT_LT(qGray(image.pixel(2, h / 2)), 100) << "the column bleeds, page " << page;
        int inked = 0;
        for (int x = int(50 * mm); x < w; ++x) {
            for (int y = 0; y < h; ++y) {
                const bool band = x > w - 6 * mm || y < 6 * mm || y > h - 6 * mm;
                const QRgb p = image.pixel(x, y);
                inked += band && qAlpha(p) > 128 && qGray(p) < 160 ? 1 : 0;
            }
        }
        EXPECT_EQ(inked, 0) << "text within 6 mm of an edge on page " << page;
    }
}

TEST_F(PdfTest, ThePreviewFollowsTheModesAndTheChooser)
{
    QSignalSpy ready(&output, &PdfOutput::previewReady);
    QSignalSpy chosen(&output, &PdfOutput::templatePreviewReady);
    output.generateReminder({u"Payment reminder"_qs, u"Please pay"_qs, {}, {}});
    EXPECT_TRUE(html.isReminderAction());
    EXPECT_TRUE(settings.boolean(key::isMainPreviewAction));
    ASSERT_TRUE(QTest::qWaitFor([&] { return ready.count() == 1; }, 20000));
    EXPECT_TRUE(
        text(*load(readWholeFile(output.previewPath()).value())).contains(u"Payment reminder"));

    output.generateSlip({u"Delivery note"_qs, {}, {}, {}});
    EXPECT_TRUE(html.isSlipAction());
    ASSERT_TRUE(QTest::qWaitFor([&] { return ready.count() == 2; }, 20000));

    output.selectDesign(6);
    EXPECT_EQ(settings.integer(key::selectedDesign), 6);
    ASSERT_TRUE(QTest::qWaitFor([&] { return chosen.count() == 1; }, 20000));
    EXPECT_TRUE(
        text(*load(readWholeFile(output.previewPath()).value())).contains(u"Delivery note"));

    // A quick second request makes the first one pointless: only the last is shown.
    output.generatePreview();
    output.generatePreview();
    ASSERT_TRUE(QTest::qWaitFor([&] { return ready.count() == 3; }, 20000));
    QTest::qWait(300);
    EXPECT_EQ(ready.count(), 3);
    EXPECT_TRUE(prompter.alerts().isEmpty());
}

TEST_F(PdfTest, TheExportQueueWritesEveryDocumentThroughOneRenderer)
{
    PdfExportQueue queue(renderer);
    const QString folder = dir.path(u"export"_qs);
    QDir().mkpath(folder);
    std::vector<Record*> documents{sample};
    for (int i = 0; i < 3; ++i) {
        Record* d = insertSampleDocument(*context, QDateTime::currentDateTimeUtc(), i + 1);
        d->setValue("number", QStringLiteral("2026/%1").arg(i));
        documents.push_back(d);
    }
    long n = 0;
    for (Record* d : documents) {
        queue.add({html.invoiceHTMLStringFromInvoice(*d), batchExportPath(folder, *d, ++n),
                   pageLayoutFor(2, false)});
    }
    queue.add(
        {u"<p>unwritable</p>"_qs, dir.path(u"no/such/folder/x.pdf"_qs), pageLayoutFor(2, false)});
    queue.waitForFinished();
    ASSERT_EQ(queue.items().size(), 5u);
    for (size_t i = 0; i < 4; ++i) {
        EXPECT_TRUE(queue.items()[i].completed) << i;
        EXPECT_GE(load(readWholeFile(queue.items()[i].destinationURL).value())->pageCount(), 1);
    }
    EXPECT_EQ(queue.items()[0].destinationURL, folder + u"/RE-2026-0042_1.pdf"_qs);
    EXPECT_EQ(queue.items()[2].destinationURL, folder + u"/2026-1_3.pdf"_qs);
    EXPECT_FALSE(queue.items()[4].completed);
    EXPECT_TRUE(queue.items()[4].error.has_value());
}

TEST_F(PdfTest, ThumbnailsShowOnePageFittedIntoTheirSize)
{
    const QByteArray pdf =
        renderer.renderAndWait(html.invoiceHTMLString(), pageLayoutFor(2, false)).value();
    const QImage thumb = ThumbnailPDF::thumbnailFromData(pdf, QSize(200, 200));
    EXPECT_EQ(thumb.height(), 200);
    EXPECT_NEAR(thumb.width(), 200 * 595 / 842, 2);
    EXPECT_TRUE(ThumbnailPDF::thumbnailFromData(pdf, QSize(200, 200), 99).isNull());
    EXPECT_TRUE(ThumbnailPDF::thumbnailFromData("no pdf", QSize(200, 200)).isNull());
    QImage later;
    ThumbnailPDF::startWithCompletionHandler(pdf, QSize(100, 100),
                                             [&](const QImage& i) { later = i; });
    EXPECT_TRUE(later.isNull());  // delivered from the event loop
    ASSERT_TRUE(QTest::qWaitFor([&] { return !later.isNull(); }, 5000));
    EXPECT_EQ(later.height(), 100);
}

}  // namespace
