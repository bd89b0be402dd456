// Documents as HTML and PDF, batch export and the designs on the command line. The pages are
// printed by the same renderer as in the window, off screen.

#include <QDir>
#include <QFileInfo>

#include "cli/commands.h"
#include "documents/lifecycle.h"
#include "interchange/plistfile.h"
#include "pdf/pdfoutput.h"
#include "render/designlibrary.h"
#include "render/documenttemplates.h"
#include "render/pagelayout.h"

namespace tamo {

namespace {

// A design named by its position in the list (from 0) or by its title.
std::expected<int, Failure> designIndex(DesignLibrary& designs, const QString& name)
{
    const auto list = designs.designs();
    bool number = false;
    const int index = name.toInt(&number);
    if (number && index >= 0 && index < int(list.size())) {
        return index;
    }
    for (size_t i = 0; i < list.size(); ++i) {
        if (list[i]->string("title") == name) {
            return int(i);
        }
    }
    return std::unexpected(
        Failure{QStringLiteral("there is no design %1 (see designs list)").arg(name)});
}

}  // namespace

bool commandRendersPages(const QString& command)
{
    return command == u"render" || command == u"export-pdfs";
}

std::optional<Failure> renderCommand(AppSession& session, const QStringList& args, QTextStream& out)
{
    const Failure usage{QStringLiteral("usage: tamo render N --html FILE|- | --pdf FILE "
                                       "[--reminder | --slip] [--design INDEX|TITLE]"),
                        kUsageError};
    QString html, pdf, design, number;
    RenderMode mode = RenderMode::Document;
    for (int i = 0; i < args.size(); ++i) {
        const QString& a = args[i];
        const bool hasValue = i + 1 < args.size();
        if (a == u"--html" && hasValue) {
            html = args[++i];
        } else if (a == u"--pdf" && hasValue) {
            pdf = args[++i];
        } else if (a == u"--design" && hasValue) {
            design = args[++i];
        } else if (a == u"--reminder" && mode == RenderMode::Document) {
            mode = RenderMode::Reminder;
        } else if (a == u"--slip" && mode == RenderMode::Document) {
            mode = RenderMode::Slip;
        } else if (number.isEmpty() && !a.startsWith(u'-')) {
            number = a;
        } else {
            return usage;
        }
    }
    if (number.isEmpty() || html.isEmpty() == pdf.isEmpty()) {
        return usage;
    }
    auto document = selectDocument(session, number);
    if (!document) {
        return document.error();
    }
    DesignLibrary designs(session);
    if (!design.isEmpty()) {
        auto index = designIndex(designs, design);
        if (!index) {
            return index.error();
        }
        designs.selectDesign(*index);
    }
    InvoiceHtml renderer(session, designs);
    DocumentLifecycle lifecycle(session);
    renderer.setMode(mode, mode == RenderMode::Reminder ? lifecycle.reminderSheetTexts()
                           : mode == RenderMode::Slip   ? lifecycle.slipSheetTexts()
                                                        : SheetTexts{});
    if (!html.isEmpty()) {
        const QString page = renderer.invoiceHTMLStringFromInvoice(**document);
        if (html == u"-") {
            out << page;
            return std::nullopt;
        }
        if (auto written = writeFileAtomically(html, page.toUtf8()); !written) {
            return Failure{written.error().text()};
        }
        out << "Wrote " << QFileInfo(html).absoluteFilePath() << '\n';
        return std::nullopt;
    }
    PdfRenderer pages(session.applicationDataDirectory());
    PdfOutput output(session, renderer, pages);
    if (auto written = output.writePdf(**document, pdf); !written) {
        return Failure{written.error().text()};
    }
    out << "Wrote " << QFileInfo(pdf).absoluteFilePath() << '\n';
    return std::nullopt;
}

std::optional<Failure> exportPdfsCommand(AppSession& session, const QStringList& args,
                                         QTextStream& out)
{
    const bool filtered = args.size() == 3 && args[1] == u"--filter";
    bool tagOk = true;
    const int tag = filtered ? args[2].toInt(&tagOk) : 0;
    if (!(args.size() == 1 || filtered) || !tagOk) {
        return Failure{QStringLiteral("usage: tamo export-pdfs DIR [--filter TAG]"), kUsageError};
    }
    const QString folder = QFileInfo(args[0]).absoluteFilePath();
    if (!QDir().mkpath(folder)) {
        return Failure{QStringLiteral("cannot create the folder %1").arg(folder)};
    }
    if (filtered) {
        DocumentLifecycle(session).selectFilter(tag);
    }
    DesignLibrary designs(session);
    InvoiceHtml html(session, designs);
    PdfRenderer pages(session.applicationDataDirectory());
    PdfExportQueue queue(pages);
    const QPageLayout layout = pageLayoutFromSettings(session.settings());
    long number = 0;
    for (const Record* document : session.documents().arranged()) {
        queue.add({html.invoiceHTMLStringFromInvoice(*document),
                   batchExportPath(folder, *document, ++number), layout});
    }
    queue.waitForFinished();
    int failed = 0;
    for (const ExporterItem& item : queue.items()) {
        if (item.completed) {
            out << item.destinationURL << '\n';
        } else {
            ++failed;
            out << "not written: " << item.destinationURL << ": " << item.error->text() << '\n';
        }
    }
    if (failed > 0) {
        return Failure{
            QStringLiteral("%1 of %2 documents were not written").arg(failed).arg(number)};
    }
    return std::nullopt;
}

std::optional<Failure> designsCommand(AppSession& session, const QStringList& args,
                                      QTextStream& out)
{
    const Failure usage{QStringLiteral("usage: tamo designs list | add | import FILE | "
                                       "export INDEX FILE | default INDEX | select INDEX | "
                                       "delete INDEX"),
                        kUsageError};
    const QString verb = args.value(0);
    DesignLibrary designs(session);
    if (verb == u"list" && args.size() == 1) {
        const auto list = designs.designs();
        const int selected = designs.selectedIndex();
        for (size_t i = 0; i < list.size(); ++i) {
            out << QStringLiteral("%1 %2 %3%4\n")
                       .arg(int(i), 2)
                       .arg(int(i) == selected ? QChar(u'*') : QChar(u' '))
                       .arg(list[i]->string("title"))
                       .arg(list[i]->boolean("isDefault") ? QStringLiteral(" (default)")
                                                          : QString());
        }
        return std::nullopt;
    }
    if (verb == u"add" && args.size() == 1) {
        designs.addDesign();
        out << designs.selectedIndex() << '\n';
        return std::nullopt;
    }
    if (verb == u"import" && args.size() == 2) {
        auto imported = designs.importDesignFile(args[1]);
        if (!imported) {
            return Failure{imported.error().text()};
        }
        out << designs.selectedIndex() << ' ' << (*imported)->string("title") << '\n';
        return std::nullopt;
    }
    const bool withFile = verb == u"export" && args.size() == 3;
    if (!(withFile ||
          (args.size() == 2 && (verb == u"default" || verb == u"select" || verb == u"delete")))) {
        return usage;
    }
    auto index = designIndex(designs, args[1]);
    if (!index) {
        return index.error();
    }
    if (withFile) {
        const Record& design = *designs.designs()[size_t(*index)];
        if (auto written = designs.exportDesignFile(design, args[2]); !written) {
            return Failure{written.error().text()};
        }
        out << "Wrote " << QFileInfo(args[2]).absoluteFilePath() << '\n';
        return std::nullopt;
    }
    designs.selectDesign(*index);
    if (verb == u"default") {
        designs.makeDefaultDesign();
    } else if (verb == u"delete" && !designs.deleteDesign()) {
        return Failure{QStringLiteral("nothing deleted (answer with --yes)")};
    }
    return std::nullopt;
}

}  // namespace tamo

namespace tamo {

std::optional<Failure> templatesCommand(AppSession& session, const QStringList& args,
                                        QTextStream& out)
{
    const Failure usage{QStringLiteral("usage: tamo templates list | create N [NOTES] | "
                                       "apply INDEX N | delete INDEX"),
                        kUsageError};
    const QString verb = args.value(0);
    DocumentTemplates templates(session);
    const auto list = templates.templates();
    if (verb == u"list" && args.size() == 1) {
        for (size_t i = 0; i < list.size(); ++i) {
            const QString title =
                QStringList{list[i]->string("customerName"), list[i]->string("title")}
                    .join(u' ')
                    .trimmed();
            out << QStringLiteral("%1 %2 (%3 lines) %4\n")
                       .arg(int(i), 2)
                       .arg(list[i]->string("notes"))
                       .arg(list[i]->toMany("items").size())
                       .arg(title);
        }
        return std::nullopt;
    }
    if (verb == u"create" && (args.size() == 2 || args.size() == 3)) {
        auto document = selectDocument(session, args[1]);
        if (!document) {
            return document.error();
        }
        templates.createNewTemplate(args.value(2, (*document)->string("number")));
        out << templates.templates().size() - 1 << '\n';
        return std::nullopt;
    }
    bool number = false;
    const int index = args.value(1).toInt(&number);
    if (!number || index < 0 || index >= int(list.size())) {
        return args.size() >= 2 && (verb == u"apply" || verb == u"delete")
                   ? Failure{QStringLiteral("there is no template %1 (see templates list)")
                                 .arg(args.value(1))}
                   : usage;
    }
    if (verb == u"apply" && args.size() == 3) {
        auto document = selectDocument(session, args[2]);
        if (!document) {
            return document.error();
        }
        if (!templates.selectTemplate(*list[size_t(index)])) {
            return Failure{QStringLiteral("%1 is marked as already sent; the template was not "
                                          "applied")
                               .arg(args[2])};
        }
        return std::nullopt;
    }
    if (verb == u"delete" && args.size() == 2) {
        templates.deleteTemplate(list[size_t(index)]);
        return std::nullopt;
    }
    return usage;
}

}  // namespace tamo
