#include "app/renderactions.h"

#include <QAction>
#include <QDialogButtonBox>
#include <QDockWidget>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>

#include "app/designchooser.h"
#include "app/mainwindow.h"
#include "app/previewpane.h"
#include "app/sheets.h"
#include "app/templatepopover.h"

namespace tamo {

RenderWindowActions::RenderWindowActions(MainWindow& window, AppSession& session)
    : QObject(&window),
      window_(window),
      session_(session),
      designs_(session),
      html_(session, designs_),
      renderer_(session.applicationDataDirectory()),
      output_(session, html_, renderer_),
      live_(session, designs_, output_),
      templates_(session),
      dock_(new QDockWidget(tr("Preview"), &window)),
      pane_(new PreviewPane(dock_))
{
    designs_.installHooks();
    dock_->setObjectName(QStringLiteral("previewDock"));
    dock_->setWidget(pane_);
    dock_->setFeatures(QDockWidget::DockWidgetMovable | QDockWidget::DockWidgetClosable |
                       QDockWidget::DockWidgetFloatable);
    window.addDockWidget(Qt::RightDockWidgetArea, dock_);
    connect(&output_, &PdfOutput::previewReady, pane_, &PreviewPane::showFile);
    connect(&live_, &LivePreview::emptied, pane_, &PreviewPane::clear);
    connect(&output_, &PdfOutput::busyChanged, this, &RenderWindowActions::setBusy);
    // A hidden preview is not kept up to date; showing it again brings it up to date.
    connect(dock_, &QDockWidget::visibilityChanged, &live_, &LivePreview::setEnabled);
    addActions();
    // The sheets' button renders with the texts as edited there.
    window.setVariantSheetExtension([this](VariantTextsSheet& sheet, bool slip) {
        auto* buttons = sheet.findChild<QDialogButtonBox*>();
        if (!buttons) {
            return;
        }
        QPushButton* show = buttons->addButton(
            slip ? tr("Show Delivery Slip") : tr("Show Reminder"), QDialogButtonBox::AcceptRole);
        show->setObjectName(QStringLiteral("renderVariant"));
        show->setDefault(true);
        connect(show, &QPushButton::clicked, this, [this, &sheet, slip] {
            slip ? generateSlip(sheet.texts()) : generateReminder(sheet.texts());
            sheet.accept();
        });
    });
}

RenderWindowActions::~RenderWindowActions() = default;

void RenderWindowActions::setBusy(bool busy)
{
    dock_->setWindowTitle(busy ? tr("Preview (updating…)") : tr("Preview"));
}

void RenderWindowActions::addActions()
{
    QMenu* document = window_.documentMenu();
    document->addSeparator();
    const auto add = [&](QMenu* menu, const QString& text, const char* name,
                         const QKeySequence& keys, auto run) {
        QAction* a = menu->addAction(text, this, run);
        a->setObjectName(QString::fromLatin1(name));
        a->setShortcut(keys);
        return a;
    };
    QAction* choose = add(document, tr("Choose &Design…"), "chooseDesign",
                          QKeySequence(Qt::CTRL | Qt::Key_T), [this] { showTemplateSheet(); });
    // Changing the design changes a sent document's look, which its lock forbids.
    window_.setActionNeeds(choose, MainWindow::Needs::Unsent);
    add(document, tr("Document &Templates…"), "documentTemplates",
        QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_T), [this] { showTemplatePopover(); });
    add(document, tr("Preview as Re&minder"), "previewReminder", {},
        [this] { generateReminder(DocumentLifecycle(session_).reminderSheetTexts()); });
    add(document, tr("Preview as Delivery Sli&p"), "previewSlip", {},
        [this] { generateSlip(DocumentLifecycle(session_).slipSheetTexts()); });
    add(document, tr("Refresh Pre&view"), "refreshPreview", QKeySequence(Qt::Key_F5),
        [this] { generatePreview(); });
    document->addAction(dock_->toggleViewAction());
}

void RenderWindowActions::generatePreview()
{
    output_.generatePreview();
}

void RenderWindowActions::generateReminder(const SheetTexts& texts)
{
    dock_->show();
    output_.generateReminder(texts);
}

void RenderWindowActions::generateSlip(const SheetTexts& texts)
{
    dock_->show();
    output_.generateSlip(texts);
}

void RenderWindowActions::showTemplateSheet()
{
    if (refuseChangesToSentDocument(session_)) {
        return;
    }
    DesignChooser sheet(designs_, output_, &window_);
    sheet.exec();
}

void RenderWindowActions::showTemplatePopover()
{
    if (!templates_.showTemplatePopover()) {
        return;
    }
    TemplatePopover popover(templates_, session_.settings(), &window_);
    popover.exec();
}

RenderWindowActions* installRenderActions(MainWindow& window, AppSession& session)
{
    return new RenderWindowActions(window, session);
}

}  // namespace tamo
