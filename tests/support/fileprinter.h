#pragma once

#include <QDir>
#include <vector>

#include "dispatch/printsystem.h"

namespace tamo::test {

// Stands in for the machine's printers: each job's PDF is written into a folder as
// "printed-N.pdf", and the jobs are kept. `panel` answers the print dialog (nullopt: cancelled).
class FilePrinter : public PrintSystem {
public:
    explicit FilePrinter(QString folder, QStringList names = {QStringLiteral("Office")})
        : folder_(std::move(folder)), names_(std::move(names))
    {
        QDir().mkpath(folder_);
    }

    QStringList printers() const override { return names_; }
    QString defaultPrinter() const override { return names_.value(0); }
    std::optional<PrintJob> choose(const PrintJob& proposed) override
    {
        ++panels;
        return cancelPanel ? std::nullopt : std::optional(proposed);
    }
    Result<void> submit(const PrintJob& job) override
    {
        if (job.outputFile.isEmpty() && job.printer.isEmpty() && names_.isEmpty()) {
            return fail(QString::fromLatin1(kDispatchDomain), kDispatchNoPrinter, u"No printer"_qs);
        }
        PrintJob printed = job;
        printed.outputFile = QStringLiteral("%1/printed-%2.pdf").arg(folder_).arg(jobs.size() + 1);
        jobs.push_back(job);
        return printToFile(printed);
    }

    std::vector<PrintJob> jobs;
    int panels = 0;
    bool cancelPanel = false;

private:
    QString folder_;
    QStringList names_;
};

}  // namespace tamo::test
