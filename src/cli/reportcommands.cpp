// The sales report and the account book on the command line: the list is narrowed as in the
// window (filter and search), then the same operations build the page and the book.

#include <QFileInfo>
#include <QJsonDocument>

#include "cli/commands.h"
#include "documents/lifecycle.h"
#include "interchange/plistfile.h"
#include "model/appsession.h"
#include "pdf/pdfrenderer.h"
#include "render/pagelayout.h"
#include "reports/accountbook.h"
#include "reports/salesreport.h"

namespace tamo {

namespace {

// A day ("2026-03-01", counted whole: from its first moment or to its last) or a moment
// ("2026-03-01T12:00"), in local time.
std::optional<QDateTime> readDate(const QString& text, bool endOfDay)
{
    const QDate day = QDate::fromString(text, Qt::ISODate);
    if (day.isValid()) {
        return endOfDay ? day.endOfDay() : day.startOfDay();
    }
    const QDateTime moment = QDateTime::fromString(text, Qt::ISODateWithMs);
    return moment.isValid() ? std::optional(moment) : std::nullopt;
}

std::expected<std::optional<ReportRange>, Failure> rangeFromArgs(const CommandArgs& args)
{
    const bool from = args.has(u"--from"_qs);
    const bool to = args.has(u"--to"_qs);
    if (!from && !to) {
        return std::nullopt;
    }
    ReportRange range;  // an end not given stays open
    for (const auto& [option, end, target] :
         {std::tuple{u"--from"_qs, false, &range.from}, std::tuple{u"--to"_qs, true, &range.to}}) {
        if (!args.has(option)) {
            continue;
        }
        const auto date = readDate(args.value(option), end);
        if (!date) {
            return std::unexpected(
                args.usage(tr("%1 needs a date such as 2026-03-01").arg(option)));
        }
        *target = *date;
    }
    return range;
}

std::optional<Failure> writeOrPrint(const QString& path, const QByteArray& bytes, QTextStream& out)
{
    if (path == u"-") {
        out << QString::fromUtf8(bytes);
        return std::nullopt;
    }
    if (auto written = writeFileAtomically(path, bytes); !written) {
        return Failure{written.error().text()};
    }
    out << tr("Wrote %1").arg(QFileInfo(path).absoluteFilePath()) << '\n';
    return std::nullopt;
}

}  // namespace

std::optional<Failure> reportCommand(AppSession& session, const CommandArgs& args, QTextStream& out)
{
    const QString html = args.value(u"--html"_qs);
    const QString pdf = args.value(u"--pdf"_qs);
    const bool json = args.has(u"--json"_qs);
    if (args.operandCount() != 0 || int(!html.isEmpty()) + int(!pdf.isEmpty()) + int(json) != 1) {
        return args.usage();
    }
    const auto range = rangeFromArgs(args);
    if (!range) {
        return range.error();
    }
    if (auto failure = arrangeList(session, args)) {
        return failure;
    }
    SalesReport report(session);
    report.loadChartScript();
    const SalesReport::Page page = report.generateReport(*range);
    if (json) {
        out << QJsonDocument(reportJson(page, *range)).toJson(QJsonDocument::Indented);
        return std::nullopt;
    }
    if (!html.isEmpty()) {
        return writeOrPrint(html, page.html.toUtf8(), out);
    }
    // The charts are drawn by the page's own script, so this page runs its scripts.
    PdfRenderer renderer(session.applicationDataDirectory());
    const auto printed = renderer.renderAndWait(
        page.html, pageLayoutFromSettings(session.settings()), PdfPageOptions{.scripts = true});
    if (!printed) {
        return Failure{printed.error().text()};
    }
    return writeOrPrint(pdf, *printed, out);
}

std::optional<Failure> accountBookCommand(AppSession& session, const CommandArgs& args,
                                          QTextStream& out)
{
    const QString pdf = args.value(u"--pdf"_qs);
    if (args.operandCount() != 0 || pdf.isEmpty()) {
        return args.usage();
    }
    if (auto failure = arrangeList(session, args)) {
        return failure;
    }
    const auto pages = AccountBook(session).writePdf(pdf);
    if (!pages) {
        return Failure{pages.error().text()};
    }
    out << (*pages == 1 ? tr("Wrote %1 (1 page)") : tr("Wrote %1 (%2 pages)").arg(*pages))
               .arg(QFileInfo(pdf).absoluteFilePath())
        << '\n';
    return std::nullopt;
}

}  // namespace tamo
