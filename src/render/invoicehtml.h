#pragma once

#include <QCoreApplication>
#include <QPageLayout>
#include <QString>
#include <optional>
#include <vector>

#include "documents/lifecycle.h"
#include "settings/settings.h"

namespace tamo {

class AppSession;
class DesignLibrary;
class Record;

// How a document is rendered: as itself, as a reminder or as a delivery slip. The two variants
// take their title, conditions, further text and footer from their sheet.
enum class RenderMode { Document, Reminder, Slip };

// The three templates of a design. A part the design does not have is nullopt (an empty text is
// a part, and renders as nothing).
struct DesignParts {
    std::optional<QString> invoice;
    std::optional<QString> item;
    std::optional<QString> css;

    static DesignParts of(const Record* design);
};

// What one page is made from. Without a document every value is empty.
struct PageInput {
    DesignParts design;
    const Record* document = nullptr;
    std::vector<Record*> items;  // in the order the rows appear
    QString rowCurrency;         // "%CURRENCY%" of the rows: the document selected in the list
    RenderMode mode = RenderMode::Document;
    SheetTexts sheet;    // used in the two variant modes
    QString dataFolder;  // where the logo file is written
};

// Replaces the placeholder everywhere. A value may join with the text around it into a new
// occurrence, so the pass repeats while it still occurs; a value that holds its own placeholder
// is inserted once, and a join that keeps coming back stops after a few passes: no value can
// make the rendering run forever.
void replacePlaceholder(QString& text, QStringView placeholder, const QString& value);

// The text with each "\n" replaced by "<br />".
QString htmlLineBreakStringFromString(const QString& text);

// Shown, and printed, in place of the page or the item table when the design lacks a part.
QString designFailureText();

// The item rows: one copy of the design's row template per item, filled and joined.
QString fillItemRows(const DesignParts& design, const std::vector<Record*>& items,
                     const Settings& settings, const QString& rowCurrency);

// The complete page, rows included.
QString fillPage(const PageInput& input, const Settings& settings);

// Writes the logo of the settings (PNG) to "Logo.png" in `dataFolder` and returns the markup of
// "%LOGO%": the image, or a notice when there is no logo.
QString logoMarkup(const Settings& settings, const QString& dataFolder);

// The renderer of the application controller: the current document (or a given one) in the
// selected design, in the mode the last preview, reminder or slip asked for.
class InvoiceHtml {
    Q_DECLARE_TR_FUNCTIONS(tamo::InvoiceHtml)

public:
    InvoiceHtml(AppSession& session, DesignLibrary& designs);

    void setMode(RenderMode mode, SheetTexts sheet = {});
    RenderMode mode() const { return mode_; }
    const SheetTexts& sheetTexts() const { return sheet_; }
    DesignLibrary& designs() { return designs_; }
    bool isReminderAction() const { return mode_ == RenderMode::Reminder; }
    bool isSlipAction() const { return mode_ == RenderMode::Slip; }

    QString invoiceHTMLString();
    QString invoiceHTMLStringFromInvoice(const Record& document);
    QString itemsList();
    QString itemsListForInvoice(const Record& document);
    // The design pages are filled in: the one given to useDesign, else the selected one.
    Record* currentDesign();
    // The paper and margins for pages of the design in use.
    QPageLayout pageLayout();
    // Renders with `design` instead of the selected one, leaving the person's choice alone (a
    // one-off rendering); nullptr returns to the selected design.
    void useDesign(Record* design) { design_ = design; }

private:
    PageInput input(const Record* document);

    AppSession& session_;
    DesignLibrary& designs_;
    RenderMode mode_ = RenderMode::Document;
    SheetTexts sheet_;
    Record* design_ = nullptr;
};

}  // namespace tamo
