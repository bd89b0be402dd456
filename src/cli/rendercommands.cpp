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
    return std::unexpected(Failure{tr("there is no design %1 (see designs list)").arg(name)});
}

}  // namespace

bool commandRendersPages(const QString& command)
{
    return command == u"render" || command == u"export-pdfs" || command == u"report" ||
           command == u"account-book" || command == u"print" || command == u"pdf" ||
           command == u"mail";
}

bool commandPrintsOneDocument(const QString& command)
{
    return command == u"render" || command == u"print" || command == u"pdf" || command == u"mail";
}

std::optional<Failure> renderCommand(AppSession& session, const CommandArgs& args, QTextStream& out)
{
    const QString html = args.value(u"--html"_qs);
    const QString pdf = args.value(u"--pdf"_qs);
    const QString design = args.value(u"--design"_qs);
    const QString number = args.operand(0);
    const bool reminder = args.has(u"--reminder"_qs);
    const bool slip = args.has(u"--slip"_qs);
    if (args.operandCount() != 1 || html.isEmpty() == pdf.isEmpty() || (reminder && slip)) {
        return args.usage();
    }
    const RenderMode mode = reminder ? RenderMode::Reminder
                            : slip   ? RenderMode::Slip
                                     : RenderMode::Document;
    auto document = selectDocument(session, number);
    if (!document) {
        return document.error();
    }
    DesignLibrary designs(session);
    InvoiceHtml renderer(session, designs);
    if (!design.isEmpty()) {
        auto index = designIndex(designs, design);
        if (!index) {
            return index.error();
        }
        renderer.useDesign(designs.designs()[size_t(*index)]);  // the choice stays as it was
    }
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
        out << tr("Wrote %1").arg(QFileInfo(html).absoluteFilePath()) << '\n';
        return std::nullopt;
    }
    PdfRenderer pages(session.applicationDataDirectory());
    PdfOutput output(session, renderer, pages);
    if (auto written = output.writePdf(**document, pdf); !written) {
        return Failure{written.error().text()};
    }
    out << tr("Wrote %1").arg(QFileInfo(pdf).absoluteFilePath()) << '\n';
    return std::nullopt;
}

std::optional<Failure> exportPdfsCommand(AppSession& session, const CommandArgs& args,
                                         QTextStream& out)
{
    if (args.operandCount() != 1) {
        return args.usage();
    }
    if (auto failure = arrangeList(session, args)) {
        return failure;
    }
    const QString folder = QFileInfo(args.operand(0)).absoluteFilePath();
    if (!QDir().mkpath(folder)) {
        return Failure{tr("cannot create the folder %1").arg(folder)};
    }
    DesignLibrary designs(session);
    InvoiceHtml html(session, designs);
    const auto& documents = session.documents().arranged();
    std::vector<std::unique_ptr<PdfRenderer>> renderers;
    std::vector<PdfRenderer*> workers;
    for (int i = 0; i < batchRendererCount(qsizetype(documents.size())); ++i) {
        renderers.push_back(std::make_unique<PdfRenderer>(session.applicationDataDirectory()));
        workers.push_back(renderers.back().get());
    }
    PdfExportQueue queue(workers);
    const QPageLayout layout = html.pageLayout();
    long number = 0;
    for (const Record* document : documents) {
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
            out << tr("not written: %1: %2").arg(item.destinationURL, item.error->text()) << '\n';
        }
    }
    if (failed > 0) {
        return Failure{tr("%1 of %2 documents were not written").arg(failed).arg(number)};
    }
    return std::nullopt;
}

std::optional<Failure> designsCommand(AppSession& session, const CommandArgs& args,
                                      QTextStream& out)
{
    const Failure usage = args.usage();
    const QString verb = args.operand(0);
    const qsizetype count = args.operandCount();
    DesignLibrary designs(session);
    if (verb == u"list" && count == 1) {
        const auto list = designs.designs();
        const int selected = designs.selectedIndex();
        for (size_t i = 0; i < list.size(); ++i) {
            out << QStringLiteral("%1 %2 %3%4\n")
                       .arg(int(i), 2)
                       .arg(int(i) == selected ? QChar(u'*') : QChar(u' '))
                       .arg(list[i]->string("title"))
                       .arg(list[i]->boolean("isDefault") ? u' ' + tr("(default)") : QString());
        }
        return std::nullopt;
    }
    if (verb == u"add" && count == 1) {
        designs.addDesign();
        out << designs.selectedIndex() << '\n';
        return std::nullopt;
    }
    if (verb == u"import" && count == 2) {
        auto imported = designs.importDesignFile(args.operand(1));
        if (!imported) {
            return Failure{imported.error().text()};
        }
        out << designs.selectedIndex() << ' ' << (*imported)->string("title") << '\n';
        return std::nullopt;
    }
    const bool withFile = verb == u"export" && count == 3;
    if (!(withFile ||
          (count == 2 && (verb == u"default" || verb == u"select" || verb == u"delete")))) {
        return usage;
    }
    auto index = designIndex(designs, args.operand(1));
    if (!index) {
        return index.error();
    }
    if (withFile) {
        const Record& design = *designs.designs()[size_t(*index)];
        const QString file = args.operand(2);
        if (auto written = designs.exportDesignFile(design, file); !written) {
            return Failure{written.error().text()};
        }
        out << tr("Wrote %1").arg(QFileInfo(file).absoluteFilePath()) << '\n';
        return std::nullopt;
    }
    designs.selectDesign(*index);
    if (verb == u"default") {
        designs.makeDefaultDesign();
    } else if (verb == u"delete" && !designs.deleteDesign()) {
        return Failure{tr("nothing deleted (answer with --yes)")};
    }
    return std::nullopt;
}

}  // namespace tamo

namespace tamo {

std::optional<Failure> templatesCommand(AppSession& session, const CommandArgs& args,
                                        QTextStream& out)
{
    const Failure usage = args.usage();
    const QString verb = args.operand(0);
    const qsizetype count = args.operandCount();
    DocumentTemplates templates(session);
    const auto list = templates.templates();
    if (verb == u"list" && count == 1) {
        for (size_t i = 0; i < list.size(); ++i) {
            const QString title =
                QStringList{list[i]->string("customerName"), list[i]->string("title")}
                    .join(u' ')
                    .trimmed();
            out << tr("%1 %2 (%3 lines) %4")
                       .arg(int(i), 2)
                       .arg(list[i]->string("notes"))
                       .arg(list[i]->toMany("items").size())
                       .arg(title)
                << '\n';
        }
        return std::nullopt;
    }
    if (verb == u"create" && (count == 2 || count == 3)) {
        auto document = selectDocument(session, args.operand(1));
        if (!document) {
            return document.error();
        }
        templates.createNewTemplate(count == 3 ? args.operand(2) : (*document)->string("number"));
        out << templates.templates().size() - 1 << '\n';
        return std::nullopt;
    }
    bool number = false;
    const int index = args.operand(1).toInt(&number);
    if (!number || index < 0 || index >= int(list.size())) {
        return count >= 2 && (verb == u"apply" || verb == u"delete")
                   ? Failure{tr("there is no template %1 (see templates list)")
                                 .arg(args.operand(1))}
                   : usage;
    }
    if (verb == u"apply" && count == 3) {
        auto document = selectDocument(session, args.operand(2));
        if (!document) {
            return document.error();
        }
        if (!templates.selectTemplate(*list[size_t(index)])) {
            return Failure{tr("%1 is marked as already sent; the template was not applied")
                               .arg(args.operand(2))};
        }
        return std::nullopt;
    }
    if (verb == u"delete" && count == 2) {
        templates.deleteTemplate(list[size_t(index)]);
        return std::nullopt;
    }
    return usage;
}

}  // namespace tamo
