#pragma once

#include <QFile>
#include <QPdfDocument>

#include "dispatch/dispatch.h"
#include "einvoice/einvoicefixture.h"
#include "interchange/plistfile.h"
#include "pdf/pdfrenderer.h"
#include "render/designlibrary.h"
#include "render/invoicehtml.h"
#include "support/fileprinter.h"

namespace tamo::test {

// The mail client at the edge of the machine: an "xdg-email" first on the PATH that records its
// arguments (each ended by a NUL) and copies the attachment, then exits with `code`.
class MailStandIn {
public:
    explicit MailStandIn(const QString& folder, int code = 0) : folder_(folder)
    {
        QDir().mkpath(folder_);
        QFile script(folder_ + u"/xdg-email"_qs);
        script.open(QIODevice::WriteOnly);
        script.write(QStringLiteral("#!/bin/sh\n"
                                    "rm -f '%1/attached'\n"
                                    "for a in \"$@\"; do printf '%s\\0' \"$a\"; done > '%1/args'\n"
                                    "while [ $# -gt 0 ]; do\n"
                                    "  [ \"$1\" = --attach ] && cp \"$2\" '%1/attached'\n"
                                    "  shift\n"
                                    "done\n"
                                    "exit %2\n")
                         .arg(folder_)
                         .arg(code)
                         .toUtf8());
        script.close();
        script.setPermissions(script.permissions() | QFile::ExeOwner);
        path_ = qgetenv("PATH");
        qputenv("PATH", QFile::encodeName(folder_) + ':' + path_);
    }
    ~MailStandIn() { qputenv("PATH", path_); }

    QStringList arguments() const
    {
        QStringList words =
            QString::fromUtf8(readWholeFile(folder_ + u"/args"_qs).value_or("")).split(QChar(0));
        words.removeLast();
        return words;
    }
    QString option(const QString& name) const
    {
        const QStringList words = arguments();
        return words.value(words.indexOf(name) + 1);
    }
    QByteArray attached() const
    {
        return readWholeFile(folder_ + u"/attached"_qs).value_or(QByteArray());
    }

private:
    QString folder_;
    QByteArray path_;
};

// An invoice ready for every way out, the shipped default design, a printer that writes files.
class DispatchTest : public EinvoiceTest {
protected:
    DispatchTest()
    {
        EXPECT_TRUE(designs.insertBuiltInDesign(u"Temp001"_qs, true).has_value());
        sent = invoice();
        item(sent, u"Workshop", u"unitCount=2 baseAmount=450 isTax1Applied=true tax1Percent=0.19");
        totals.calculateInvoice(*sent);
        session.saveContext();
    }

    // The export sheet from start to OK.
    ActionResult send(ExportKind kind)
    {
        if (!dispatch.beginExport(kind)) {
            return ActionResult::Cancelled;
        }
        if (!dispatch.createExportPDFAndWait()) {
            return ActionResult::Failed;
        }
        return dispatch.exportCommand(kind);
    }
    std::unique_ptr<QPdfDocument> pdf(const QString& path)
    {
        auto document = std::make_unique<QPdfDocument>();
        EXPECT_EQ(document->load(path), QPdfDocument::Error::None) << path.toStdString();
        return document;
    }

    Record* sent = nullptr;  // the invoice that goes out
    DesignLibrary designs{session};
    InvoiceHtml html{session, designs};
    PdfRenderer renderer{session.applicationDataDirectory()};
    FilePrinter printers{dir.path(u"printer"_qs)};
    MailClient mail;
    Dispatch dispatch{session, html, renderer, printers, mail};
};

}  // namespace tamo::test
