#include "dispatch/printsystem.h"

#include <cups/cups.h>
#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QPageSize>
#include <algorithm>

#include "interchange/plistfile.h"
#include "platform/translations.h"

namespace tamo {

namespace {

// Frees what CUPS handed out for one list of destinations.
class Destinations {
public:
    Destinations() : count_(cupsGetDests2(CUPS_HTTP_DEFAULT, &dests_)) {}
    ~Destinations() { cupsFreeDests(count_, dests_); }
    Destinations(const Destinations&) = delete;
    Destinations& operator=(const Destinations&) = delete;

    QStringList names() const
    {
        QStringList list;
        for (int i = 0; i < count_; ++i) {
            list << QString::fromUtf8(dests_[i].name);
        }
        return list;
    }
    QString defaultName() const
    {
        const cups_dest_t* dest = cupsGetDest(nullptr, nullptr, count_, dests_);
        return dest ? QString::fromUtf8(dest->name) : QString();
    }

private:
    cups_dest_t* dests_ = nullptr;
    int count_ = 0;
};

class Options {
public:
    ~Options() { cupsFreeOptions(count_, options_); }
    void add(const char* name, const QString& value)
    {
        count_ = cupsAddOption(name, value.toUtf8().constData(), count_, &options_);
    }
    int count() const { return count_; }
    cups_option_t* options() const { return options_; }

private:
    int count_ = 0;
    cups_option_t* options_ = nullptr;
};

}  // namespace

QString paperName(int paperSize)
{
    switch (paperSize) {
    case 1:
        return QStringLiteral("na-legal");
    case 2:
        return QStringLiteral("iso-a4");
    case 3:
        return QStringLiteral("jis-b4");
    case 4:
        return QStringLiteral("jis-b5");
    default:
        return QStringLiteral("na-letter");
    }
}

QString mediaName(const QPageLayout& layout)
{
    switch (layout.pageSize().id()) {
    case QPageSize::Legal:
        return QStringLiteral("na_legal_8.5x14in");
    case QPageSize::A4:
        return QStringLiteral("iso_a4_210x297mm");
    case QPageSize::JisB4:
        return QStringLiteral("jis_b4_257x364mm");
    case QPageSize::JisB5:
        return QStringLiteral("jis_b5_182x257mm");
    default:
        return QStringLiteral("na_letter_8.5x11in");
    }
}

QStringList CupsPrintSystem::printers() const
{
    return Destinations().names();
}

QString CupsPrintSystem::defaultPrinter() const
{
    return Destinations().defaultName();
}

Result<void> CupsPrintSystem::submit(const PrintJob& job)
{
    if (!job.outputFile.isEmpty()) {
        return printToFile(job);
    }
    const QString printer = job.printer.isEmpty() ? defaultPrinter() : job.printer;
    if (printer.isEmpty()) {
        return fail(QString::fromLatin1(kDispatchDomain), kDispatchNoPrinter,
                    tr("No printer is set up on this computer."),
                    tr("Add a printer in the system settings, or save the document as a PDF "
                       "file instead."));
    }
    Options options;
    options.add("media", mediaName(job.layout));
    // The page already carries its margins; the printer only fits it to the paper.
    options.add("fit-to-page", QStringLiteral("true"));
    options.add("copies", QString::number(std::max(1, job.copies)));
    options.add("multiple-document-handling", job.collate
                                                  ? u"separate-documents-collated-copies"_qs
                                                  : u"separate-documents-uncollated-copies"_qs);
    if (!job.pageRanges.isEmpty()) {
        options.add("page-ranges", job.pageRanges);
    }
    options.add("sides", job.sides == PrintJob::Sides::LongEdge    ? u"two-sided-long-edge"_qs
                         : job.sides == PrintJob::Sides::ShortEdge ? u"two-sided-short-edge"_qs
                                                                   : u"one-sided"_qs);
    const int id = cupsPrintFile2(
        CUPS_HTTP_DEFAULT, printer.toUtf8().constData(), QFile::encodeName(job.file).constData(),
        job.title.toUtf8().constData(), options.count(), options.options());
    if (id == 0) {
        return fail(QString::fromLatin1(kDispatchDomain), kDispatchPrintFailed,
                    tr("The document could not be sent to the printer “%1”.").arg(printer),
                    QString::fromUtf8(cupsLastErrorString()));
    }
    return {};
}

Result<void> printToFile(const PrintJob& job)
{
    auto bytes = readWholeFile(job.file);
    if (!bytes) {
        return std::unexpected(bytes.error());
    }
    return writeFileAtomically(job.outputFile, *bytes);
}

}  // namespace tamo
