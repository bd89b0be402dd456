#pragma once

#include <QPageLayout>
#include <QString>
#include <QStringList>
#include <optional>

#include "platform/error.h"

namespace tamo {

inline constexpr auto kDispatchDomain = "Tamo.dispatch";

enum DispatchError {
    kDispatchNoDesign = 1,
    kDispatchNoPrinter,
    kDispatchPrintFailed,
    kDispatchNoMailClient,
    kDispatchNoPdf,
};

// The paper names of `tempPaperSize`: 1 "na-legal", 2 "iso-a4", 3 "jis-b4", 4 "jis-b5", anything
// else "na-letter".
QString paperName(int paperSize);
// The same paper as the print system names it ("na_letter_8.5x11in", ...), from a page layout.
QString mediaName(const QPageLayout& layout);

// One PDF to be printed, and how.
struct PrintJob {
    enum class Sides { OneSided, LongEdge, ShortEdge };

    QString file;        // the PDF
    QString title;       // the job's name in the printer queue
    QString printer;     // empty: the default printer
    QPageLayout layout;  // paper and margins the PDF was made with
    int copies = 1;
    bool collate = true;
    QString pageRanges;  // "1-2,4"; empty prints every page
    Sides sides = Sides::OneSided;
    QString outputFile;  // print into this file instead of to a printer
};

// The machine's printers. The CUPS implementation prints without asking; the window's shows the
// print dialog first (choose), and tests print into files.
class PrintSystem {
public:
    virtual ~PrintSystem() = default;

    virtual QStringList printers() const = 0;
    // Empty when no printer is set up (or none is the default).
    virtual QString defaultPrinter() const = 0;
    // Lets the person choose printer and options; nullopt when they cancel. Without a dialog
    // the job stays as proposed.
    virtual std::optional<PrintJob> choose(const PrintJob& proposed) { return proposed; }
    // Hands the job over; the file is printed as it is, fitted to the paper.
    virtual Result<void> submit(const PrintJob& job) = 0;
};

// The printers of CUPS, reached through its library (the scheduler's queues and the default
// destination of the user's lpoptions).
class CupsPrintSystem : public PrintSystem {
public:
    QStringList printers() const override;
    QString defaultPrinter() const override;
    Result<void> submit(const PrintJob& job) override;
};

// Writes a print job's file to `job.outputFile` ("print to file"), in one piece.
Result<void> printToFile(const PrintJob& job);

}  // namespace tamo
