// The menus and toolbar of the main window and the actions behind them.
#include <QAction>
#include <QActionGroup>
#include <QLineEdit>
#include <QMenuBar>
#include <QTableView>
#include <QToolBar>
#include <QToolButton>
#include <QWidgetAction>

#include "app/documentoperations.h"
#include "app/editor/clientsection.h"
#include "app/editor/documenteditor.h"
#include "app/editor/linessection.h"
#include "app/mainwindow.h"
#include "app/sheets.h"

namespace tamo {

namespace {

struct FilterChoice {
    int tag;
    const char* text;
};

// The list filters; the tags are the ones DocumentLifecycle::filterPredicate knows.
const FilterChoice kFilterChoices[] = {
    {0, QT_TRANSLATE_NOOP("tamo::MainWindow", "All Documents")},
    {1, QT_TRANSLATE_NOOP("tamo::MainWindow", "Open Invoices")},
    {2, QT_TRANSLATE_NOOP("tamo::MainWindow", "Overdue and Partially Paid")},
    {3, QT_TRANSLATE_NOOP("tamo::MainWindow", "Paid Invoices")},
    {4, QT_TRANSLATE_NOOP("tamo::MainWindow", "Quotes")},
    {5, QT_TRANSLATE_NOOP("tamo::MainWindow", "Last 12 Hours")},
    {6, QT_TRANSLATE_NOOP("tamo::MainWindow", "Last Few Days")},
    {7, QT_TRANSLATE_NOOP("tamo::MainWindow", "Last Two Weeks")},
    {8, QT_TRANSLATE_NOOP("tamo::MainWindow", "Last Six Months")},
};

}  // namespace

QAction* MainWindow::makeAction(QMenu* menu, const QString& text, const char* name,
                                const char* icon, const QKeySequence& shortcut,
                                std::function<void()> run)
{
    auto* a = new QAction(text, this);
    a->setObjectName(QString::fromLatin1(name));
    if (icon) {
        a->setIcon(QIcon::fromTheme(QString::fromLatin1(icon)));
    }
    a->setShortcut(shortcut);
    // An edit still being typed belongs to the document it was typed into.
    connect(a, &QAction::triggered, this, [this, run = std::move(run)] {
        editor_->commitEditing();
        run();
    });
    menu->addAction(a);
    return a;
}

QAction* MainWindow::action(const QString& name) const
{
    return findChild<QAction*>(name);
}

void MainWindow::addToolBarActions(const QList<QAction*>& actions)
{
    auto* bar = findChild<QToolBar*>(QStringLiteral("mainToolBar"));
    if (!bar) {
        return;
    }
    // Before the spacer that pushes the search field to the right.
    QAction* before = nullptr;
    for (QAction* a : bar->actions()) {
        if (!before && qobject_cast<QWidgetAction*>(a)) {
            before = a;
        }
    }
    bar->insertSeparator(before);
    bar->insertActions(before, actions);
}

void MainWindow::createActions()
{
    DocumentLifecycle& life = operations_.lifecycle;
    const QKeySequence none;

    QMenu* file = menuBar()->addMenu(tr("&File"));
    QAction* newInvoice = makeAction(file, tr("New &Invoice"), "newInvoice", "document-new",
                                     QKeySequence::New, [&life] { life.addInvoice(); });
    QAction* newQuote =
        makeAction(file, tr("New &Quote"), "newQuote", "document-new",
                   QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_N), [&life] { life.addQuote(); });
    file->addSeparator();
    QAction* save = makeAction(file, tr("&Save"), "save", "document-save", QKeySequence::Save,
                               [this] { session_.saveAction(); });
    file->addSeparator();
    QAction* quit = file->addAction(QIcon::fromTheme(QStringLiteral("application-exit")),
                                    tr("&Quit"), QKeySequence::Quit, this, [this] { close(); });
    quit->setMenuRole(QAction::QuitRole);

    QMenu* edit = menuBar()->addMenu(tr("&Edit"));
    QAction* undo = makeAction(edit, tr("&Undo"), "undo", "edit-undo", QKeySequence::Undo,
                               [this] { session_.undo(); });
    QAction* redo = makeAction(edit, tr("&Redo"), "redo", "edit-redo", QKeySequence::Redo,
                               [this] { session_.redo(); });
    edit->addSeparator();
    makeAction(edit, tr("&Find…"), "find", "edit-find", QKeySequence::Find, [this] {
        search_->setFocus(Qt::ShortcutFocusReason);
        search_->selectAll();
    });

    QMenu* view = menuBar()->addMenu(tr("&View"));
    const std::pair<DocumentEditor::Page, QString> pages[] = {
        {DocumentEditor::DocumentPage, tr("&Document")},
        {DocumentEditor::ClientPage, tr("&Client")},
        {DocumentEditor::ItemsPage, tr("&Items")},
        {DocumentEditor::TextsPage, tr("&Texts")}};
    for (const auto& [page, text] : pages) {
        makeAction(view, text, "", nullptr, QKeySequence(Qt::CTRL | Qt::Key(Qt::Key_1 + int(page))),
                   [this, page] { editor_->showPage(page); });
    }
    view->addSeparator();
    view->addMenu(createFilterMenu());

    // Other areas add their entries to this menu.
    auto* document = new QMenu(tr("&Document"), menuBar());
    document->setObjectName(QStringLiteral("documentMenu"));
    menuBar()->addMenu(document);
    documentMenu_ = document;
    QAction* duplicate =
        makeAction(document, tr("D&uplicate"), "duplicate", "edit-copy",
                   QKeySequence(Qt::CTRL | Qt::Key_D), [&life] { life.duplicateInvoice(false); });
    QAction* duplicateLines = makeAction(
        document, tr("Duplicate with &Lines"), "duplicateWithLines", nullptr,
        QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_D), [&life] { life.duplicateInvoice(true); });
    QAction* convert = makeAction(document, tr("&Convert to Invoice"), "convertToInvoice", nullptr,
                                  none, [&life] { life.convertQuoteToInvoice(); });
    QAction* remove = makeAction(document, life.deleteActionTitle(), "deleteInvoice", "edit-delete",
                                 QKeySequence::Delete, [&life] { life.deleteInvoice(); });
    // Delete removes a document only while the list has the focus.
    remove->setShortcutContext(Qt::WidgetShortcut);
    table_->addAction(remove);
    document->addSeparator();
    QAction* client = makeAction(document, tr("Choose C&lient…"), "chooseClient", nullptr,
                                 QKeySequence(Qt::CTRL | Qt::Key_K), [this] {
                                     editor_->showPage(DocumentEditor::ClientPage);
                                     editor_->client()->chooseClient();
                                 });
    QAction* line = makeAction(document, tr("&Add Line…"), "addLine", "list-add",
                               QKeySequence(Qt::CTRL | Qt::Key_L), [this] {
                                   editor_->showPage(DocumentEditor::ItemsPage);
                                   editor_->lines()->addLine();
                               });
    QAction* shipping = makeAction(document, tr("S&hipping…"), "shipping", nullptr, none, [this] {
        editor_->showPage(DocumentEditor::ItemsPage);
        editor_->lines()->editShipping();
    });
    QAction* discount = makeAction(document, tr("Disc&ount…"), "discount", nullptr, none, [this] {
        editor_->showPage(DocumentEditor::ItemsPage);
        editor_->lines()->editDiscount();
    });
    document->addSeparator();
    QAction* dispatch = makeAction(document, tr("Set Deli&very Date"), "setDispatched", nullptr,
                                   none, [&life] { life.setDispatched(); });
    QAction* reminder = makeAction(document, tr("&Reminder…"), "reminder", nullptr, none,
                                   [this] { openReminderSheet(); });
    QAction* slip = makeAction(document, tr("Delivery &Slip…"), "deliverySlip", nullptr, none,
                               [this] { openSlipSheet(); });
    QAction* notify = makeAction(document, tr("Due-Date &Notification…"), "notification",
                                 "appointment-new", none, [this] { openNotificationSheet(); });

    for (QAction* a : {newInvoice, newQuote, save}) {
        setActionNeeds(a, Needs::Store);
    }
    for (QAction* a : {duplicate, duplicateLines, reminder, slip, notify}) {
        setActionNeeds(a, Needs::Document);
    }
    // A sent document shows its lock: what would only answer with the "already sent" alert is
    // not offered.
    for (QAction* a : {client, line, shipping, discount, dispatch}) {
        setActionNeeds(a, Needs::Unsent);
    }
    setActionNeeds(convert, Needs::Quote);
    setActionNeeds(remove, Needs::Deletable);

    newInvoice->setIconText(tr("Invoice"));
    newQuote->setIconText(tr("Quote"));
    newQuote->setIcon(QIcon::fromTheme(QStringLiteral("x-office-document")));
    duplicate->setIconText(tr("Duplicate"));
    QToolBar* bar = addToolBar(tr("Main"));
    bar->setObjectName(QStringLiteral("mainToolBar"));
    bar->setMovable(false);
    bar->setIconSize(QSize(22, 22));
    bar->setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
    bar->addActions({newInvoice, newQuote, duplicate, remove});
    bar->addSeparator();
    bar->addActions({undo, redo});
    auto* spacer = new QWidget(bar);
    spacer->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    bar->addWidget(spacer);
    bar->addAction(filter_);
    if (auto* button = qobject_cast<QToolButton*>(bar->widgetForAction(filter_))) {
        button->setPopupMode(QToolButton::InstantPopup);
        button->setToolButtonStyle(Qt::ToolButtonIconOnly);
    }
    bar->addWidget(search_);
    updateFilterButton();
}

QMenu* MainWindow::createFilterMenu()
{
    auto* menu = new QMenu(tr("&Filter"), this);
    filterChoices_ = new QActionGroup(menu);
    for (const FilterChoice& choice : kFilterChoices) {
        QAction* a = menu->addAction(tr(choice.text));
        a->setCheckable(true);
        a->setData(choice.tag);
        filterChoices_->addAction(a);
        connect(a, &QAction::triggered, this,
                [this, tag = choice.tag] { operations_.lifecycle.selectFilter(tag); });
    }
    // Opening the choices shows every document again until one is chosen.
    connect(menu, &QMenu::aboutToShow, this, [this] { operations_.lifecycle.openFilterPopover(); });
    filter_ = menu->menuAction();
    filter_->setObjectName(QStringLiteral("filter"));
    filter_->setToolTip(tr("Filter the list"));
    return menu;
}

void MainWindow::updateFilterButton()
{
    const DocumentLifecycle& life = operations_.lifecycle;
    filter_->setIcon(QIcon(QStringLiteral(":/icons/%1.svg").arg(life.filterImageName())));
    for (QAction* a : filterChoices_->actions()) {
        a->setChecked(a->data().toInt() == life.filterTag());
    }
}

void MainWindow::setActionNeeds(QAction* action, Needs needs)
{
    needs_.emplace_back(action, needs);
    updateActions();
}

void MainWindow::updateActions()
{
    Context* context = session_.context();
    const bool open = context != nullptr;
    const Record* current = open ? session_.documents().current() : nullptr;
    const bool quote = current && current->integer("kind") == 0;
    const bool sent = current && current->integer("status") > 0;
    // A store open for reading only leaves what reads: the list, the search, the filters and
    // the reminder and delivery-slip previews.
    const bool writable = open && !context->isReadOnly();
    const QStringList reading{QStringLiteral("reminder"), QStringLiteral("deliverySlip")};
    for (const auto& [a, needs] : needs_) {
        bool enabled = false;
        switch (needs) {
        case Needs::Store:
            enabled = open;
            break;
        case Needs::Document:
            enabled = current != nullptr;
            break;
        case Needs::Unsent:
            enabled = current && !sent;
            break;
        case Needs::Quote:
            enabled = quote;
            break;
        case Needs::UnsentInvoice:
            enabled = current && !quote && !sent;
            break;
        case Needs::Deletable:
            enabled = current && (quote || !sent);
            break;
        }
        a->setEnabled(enabled && (writable || reading.contains(a->objectName())));
    }
    filter_->setEnabled(open);
    // The toolbar shows the same name as the menu: "Delete Invoice" or "Delete Quote".
    QAction* remove = action(QStringLiteral("deleteInvoice"));
    remove->setText(operations_.lifecycle.deleteActionTitle());
    remove->setIconText(remove->text());

    QAction* undo = action(QStringLiteral("undo"));
    QAction* redo = action(QStringLiteral("redo"));
    const bool canUndo = writable && context->undoManager().canUndo();
    const bool canRedo = writable && context->undoManager().canRedo();
    undo->setEnabled(canUndo);
    redo->setEnabled(canRedo);
    undo->setText(canUndo ? tr("&Undo %1").arg(context->undoManager().undoActionName())
                          : tr("&Undo"));
    redo->setText(canRedo ? tr("&Redo %1").arg(context->undoManager().redoActionName())
                          : tr("&Redo"));
    if (windowTitle().contains(QStringLiteral("[*]"))) {
        setWindowModified(open && context->hasChanges());
    }
}

void MainWindow::openReminderSheet()
{
    VariantTextsSheet sheet(tr("Reminder"), operations_.lifecycle.reminderSheetTexts(), this);
    if (extendVariantSheet_) {
        extendVariantSheet_(sheet, false);
    }
    sheet.exec();
}

void MainWindow::openSlipSheet()
{
    VariantTextsSheet sheet(tr("Delivery Slip"), operations_.lifecycle.slipSheetTexts(), this);
    if (extendVariantSheet_) {
        extendVariantSheet_(sheet, true);
    }
    sheet.exec();
}

void MainWindow::openNotificationSheet()
{
    DocumentLifecycle& life = operations_.lifecycle;
    if (!life.openNotificationSheet()) {
        return;
    }
    NotificationSheet sheet(life.prepareNotification(), this);
    if (sheet.exec() == QDialog::Accepted) {
        life.sendNotification(sheet.request());
    }
}

}  // namespace tamo
