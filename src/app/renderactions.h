#pragma once

#include <QObject>
#include <memory>

#include "documents/lifecycle.h"
#include "pdf/livepreview.h"
#include "pdf/pdfoutput.h"
#include "render/designlibrary.h"
#include "render/documenttemplates.h"
#include "render/invoicehtml.h"

class QDockWidget;

namespace tamo {

class MainWindow;
class PreviewPane;

// The rendering in the window: the preview beside the editor, refreshed after each change; the
// design chooser; the document templates; and the reminder and delivery-slip previews. Created
// before the store opens, so that the store set-up
// loads the shipped designs through it.
class RenderWindowActions : public QObject {
    Q_OBJECT

public:
    RenderWindowActions(MainWindow& window, AppSession& session);
    ~RenderWindowActions() override;

    DesignLibrary& designs() { return designs_; }
    InvoiceHtml& html() { return html_; }
    PdfOutput& output() { return output_; }
    LivePreview& livePreview() { return live_; }
    DocumentTemplates& templates() { return templates_; }
    PreviewPane* previewPane() const { return pane_; }

    void generatePreview();
    // The buttons of the reminder and delivery-slip sheets call these with their texts.
    void generateReminder(const SheetTexts& texts);
    void generateSlip(const SheetTexts& texts);
    void showTemplateSheet();
    void showTemplatePopover();

private:
    void addActions();
    void setBusy(bool busy);

    MainWindow& window_;
    AppSession& session_;
    DesignLibrary designs_;
    InvoiceHtml html_;
    PdfRenderer renderer_;
    PdfOutput output_;
    LivePreview live_;
    DocumentTemplates templates_;
    QDockWidget* dock_;
    PreviewPane* pane_;
};

// Adds the preview and the design and template actions to the window.
RenderWindowActions* installRenderActions(MainWindow& window, AppSession& session);

}  // namespace tamo
