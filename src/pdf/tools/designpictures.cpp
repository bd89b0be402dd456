// Draws the first page of every shipped design, filled with the sample document, as a PNG:
// the pictures in docs/designs.
//
//   tamo-design-pictures OUTPUT_FOLDER [--paper N]   (N as tempPaperSize; 2, A4, by default)

#include <QBuffer>
#include <QDir>
#include <QGuiApplication>
#include <QPainter>
#include <QTemporaryDir>
#include <QTextStream>

#include "pdf/pdfrenderer.h"
#include "pdf/thumbnailpdf.h"
#include "platform/scriptedprompter.h"
#include "render/designarchive.h"
#include "render/designlibrary.h"
#include "render/invoicehtml.h"
#include "render/pagelayout.h"
#include "render/sampledocument.h"

using namespace tamo;

int main(int argc, char** argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    prepareRendering();
    QGuiApplication app(argc, argv);
    QTextStream err(stderr);
    const QStringList args = app.arguments();
    if (args.size() < 2) {
        err << "usage: tamo-design-pictures OUTPUT_FOLDER [--paper N]\n";
        return 2;
    }
    const QDir output(args[1]);
    QDir().mkpath(output.path());
    const int paper =
        args.contains(u"--paper"_qs) ? args.value(args.indexOf(u"--paper"_qs) + 1).toInt() : 2;

    QTemporaryDir scratch;
    const Profile profile = Profile::inDirectory(scratch.path());
    Settings settings(profile.settingsFile);
    applySampleSettings(settings);
    // A made-up logo, so that the pictures show where each design puts one.
    QImage logo(360, 120, QImage::Format_ARGB32);
    logo.fill(Qt::transparent);
    {
        QPainter p(&logo);
        p.setRenderHint(QPainter::Antialiasing);
        p.setBrush(QColor(0x1b, 0x5e, 0x8c));
        p.setPen(Qt::NoPen);
        p.drawEllipse(QRectF(8, 8, 104, 104));
        p.setPen(QColor(0x1b, 0x5e, 0x8c));
        p.setFont(QFont(u"DejaVu Sans"_qs, 40, QFont::Bold));
        p.drawText(QRectF(128, 0, 232, 120), Qt::AlignVCenter, u"EDS"_qs);
    }
    QByteArray png;
    QBuffer buffer(&png);
    buffer.open(QIODevice::WriteOnly);
    logo.save(&buffer, "PNG");
    settings.set(key::prefsLogo, png);
    FixedClock clock(QDateTime(QDate(2026, 3, 5), QTime(9, 0), Qt::UTC));
    ScriptedPrompter prompter;
    AppSession session(profile, settings, clock, prompter);
    DesignLibrary designs(session);
    designs.installHooks();
    Context* context = session.managedObjectContext();
    if (!context) {
        return 1;
    }
    Record* sample = insertSampleDocument(*context, clock.now());
    session.documents().setSelection({sample});
    InvoiceHtml html(session, designs);
    PdfRenderer renderer(session.applicationDataDirectory());
    const QStringList names = builtInDesignNames();
    for (int i = 0; i < int(designs.designs().size()); ++i) {
        designs.selectDesign(i);
        // The window letters and the sidebar lay out the sheet themselves.
        const bool own = designSetsPageMargins(designs.currentDesign()->string("css"));
        auto pdf = renderer.renderAndWait(html.invoiceHTMLString(), pageLayoutFor(paper, own));
        if (!pdf) {
            err << names.value(i) << ": " << pdf.error().text() << '\n';
            return 1;
        }
        const QImage page = ThumbnailPDF::thumbnailFromData(*pdf, QSize(1000, 1000));
        QImage picture(page.size(), QImage::Format_RGB32);
        picture.fill(Qt::white);
        QPainter(&picture).drawImage(0, 0, page);
        const QString file = output.filePath(names.value(i) + u".png"_qs);
        if (!picture.save(file)) {
            err << "cannot write " << file << '\n';
            return 1;
        }
    }
    return 0;
}
