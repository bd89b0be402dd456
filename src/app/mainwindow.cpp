#include "app/mainwindow.h"

#include <QAction>
#include <QApplication>
#include <QCloseEvent>
#include <QHeaderView>
#include <QItemSelectionModel>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QSplitter>
#include <QStatusBar>
#include <QTableView>
#include <QToolBar>

#include "app/documenteditor.h"
#include "app/documenttablemodel.h"
#include "calc/numberformat.h"
#include "calc/totals.h"
#include "model/appsession.h"

namespace tamo {

namespace {
// Window layout, remembered by the interface only.
constexpr SettingKey kWindowGeometry{"windowGeometry", SettingType::Object};
constexpr SettingKey kWindowState{"windowState", SettingType::Object};
constexpr SettingKey kDocumentTableHeader{"documentTableHeader", SettingType::Object};
}  // namespace

MainWindow::MainWindow(AppSession& session, QWidget* parent)
    : QMainWindow(parent),
      session_(session),
      model_(new DocumentTableModel(session.documents(), this)),
      table_(new QTableView(this)),
      search_(new QLineEdit(this)),
      editor_(new DocumentEditor(session, this)),
      summary_(new QLabel(this))
{
    setWindowTitle(QStringLiteral("Tamo[*]"));
    setUnifiedTitleAndToolBarOnMac(true);

    table_->setModel(model_);
    table_->setSelectionBehavior(QAbstractItemView::SelectRows);
    table_->setSelectionMode(QAbstractItemView::ExtendedSelection);
    table_->setSortingEnabled(true);
    table_->sortByColumn(DocumentTableModel::Date, Qt::DescendingOrder);
    table_->setShowGrid(false);
    table_->setAlternatingRowColors(true);
    table_->setWordWrap(false);
    table_->verticalHeader()->hide();
    table_->verticalHeader()->setDefaultSectionSize(table_->fontMetrics().height() + 8);
    table_->horizontalHeader()->setHighlightSections(false);
    table_->horizontalHeader()->setSectionResizeMode(DocumentTableModel::Stamp, QHeaderView::Fixed);
    table_->horizontalHeader()->resizeSection(DocumentTableModel::Stamp, 28);
    for (auto [column, width] : {std::pair{DocumentTableModel::Number, 120},
                                 {DocumentTableModel::Title, 90},
                                 {DocumentTableModel::Date, 100},
                                 {DocumentTableModel::Due, 100},
                                 {DocumentTableModel::Amount, 100},
                                 {DocumentTableModel::Currency, 70}}) {
        table_->horizontalHeader()->resizeSection(column, width);
    }
    table_->horizontalHeader()->setSectionResizeMode(DocumentTableModel::Client,
                                                     QHeaderView::Stretch);
    table_->setIconSize(QSize(16, 16));

    search_->setPlaceholderText(tr("Search"));
    search_->setClearButtonEnabled(true);
    search_->setMaximumWidth(260);
    connect(search_, &QLineEdit::textChanged, this,
            [this](const QString& text) { session_.documents().setSearchText(text); });

    auto* splitter = new QSplitter(this);
    splitter->addWidget(table_);
    splitter->addWidget(editor_);
    splitter->setStretchFactor(0, 3);
    splitter->setStretchFactor(1, 2);
    splitter->setSizes({760, 420});
    splitter->setChildrenCollapsible(false);
    setCentralWidget(splitter);
    statusBar()->addPermanentWidget(summary_);

    createActions();

    DocumentList& list = session_.documents();
    connect(&list, &DocumentList::arrangementChanged, this, [this] {
        syncSelectionFromList();
        updateStatistics();
        updateSummary();
    });
    connect(&list, &DocumentList::selectionChanged, this, [this] {
        syncSelectionFromList();
        editor_->showDocument(session_.documents().current());
    });
    connect(&list, &DocumentList::documentsChanged, this, [this](const std::vector<Record*>& d) {
        if (std::find(d.begin(), d.end(), session_.documents().current()) != d.end()) {
            editor_->refresh();
        }
        updateStatistics();
    });
    connect(&session_, &AppSession::statisticsChanged, this, &MainWindow::updateSummary);
    connect(table_->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &MainWindow::syncSelectionToList);
    connect(&session_, &AppSession::contextChanged, this, &MainWindow::contextChanged);
    contextChanged();
}

void MainWindow::createActions()
{
    QMenu* file = menuBar()->addMenu(tr("&File"));
    saveAction_ = file->addAction(QIcon::fromTheme(QStringLiteral("document-save")), tr("&Save"),
                                  QKeySequence::Save, this, [this] { session_.saveAction(); });
    file->addSeparator();
    QAction* quit = file->addAction(QIcon::fromTheme(QStringLiteral("application-exit")),
                                    tr("&Quit"), QKeySequence::Quit, this, [this] { close(); });
    quit->setMenuRole(QAction::QuitRole);

    QMenu* edit = menuBar()->addMenu(tr("&Edit"));
    undoAction_ = edit->addAction(QIcon::fromTheme(QStringLiteral("edit-undo")), tr("&Undo"),
                                  QKeySequence::Undo, this, [this] { session_.undo(); });
    redoAction_ = edit->addAction(QIcon::fromTheme(QStringLiteral("edit-redo")), tr("&Redo"),
                                  QKeySequence::Redo, this, [this] { session_.redo(); });
    edit->addSeparator();
    edit->addAction(QIcon::fromTheme(QStringLiteral("edit-find")), tr("&Find…"), QKeySequence::Find,
                    this, [this] {
                        search_->setFocus(Qt::ShortcutFocusReason);
                        search_->selectAll();
                    });

    QToolBar* bar = addToolBar(tr("Main"));
    bar->setObjectName(QStringLiteral("mainToolBar"));
    bar->setMovable(false);
    bar->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    bar->addAction(saveAction_);
    bar->addAction(undoAction_);
    bar->addAction(redoAction_);
    auto* spacer = new QWidget(bar);
    spacer->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    bar->addWidget(spacer);
    bar->addWidget(search_);
}

void MainWindow::contextChanged()
{
    if (Context* context = session_.context()) {
        connect(context, &Context::undoStateChanged, this, &MainWindow::updateActions,
                Qt::UniqueConnection);
        connect(context, &Context::didSave, this, &MainWindow::updateActions, Qt::UniqueConnection);
    }
    updateStatistics();
    updateSummary();
    updateActions();
}

void MainWindow::updateStatistics()
{
    Context* context = session_.context();
    if (!context) {
        return;
    }
    // Open and overdue follow from the clock, not from anything the user did, so moving an
    // invoice between them is not an undoable step.
    WithoutUndo automatic(*context);
    UndoGroup group(*context, {});
    Totals(session_).calculateDatabase();
}

void MainWindow::updateSummary()
{
    const DocumentStatistics& s = session_.statistics();
    summary_->setText(tr("Invoices: %1   Quotes: %2   Total: %3   Paid: %4   Due: %5")
                          .arg(s.invoiceCountForNumber)
                          .arg(s.quoteCount)
                          .arg(stringFromNumber(s.totalAmount), stringFromNumber(s.paidAmount),
                               stringFromNumber(s.dueAmount)));
}

void MainWindow::updateActions()
{
    Context* context = session_.context();
    const bool open = context != nullptr;
    saveAction_->setEnabled(open);
    undoAction_->setEnabled(open && context->undoManager().canUndo());
    redoAction_->setEnabled(open && context->undoManager().canRedo());
    undoAction_->setText(open && context->undoManager().canUndo()
                             ? tr("&Undo %1").arg(context->undoManager().undoActionName())
                             : tr("&Undo"));
    redoAction_->setText(open && context->undoManager().canRedo()
                             ? tr("&Redo %1").arg(context->undoManager().redoActionName())
                             : tr("&Redo"));
    setWindowModified(open && context->hasChanges());
}

void MainWindow::syncSelectionFromList()
{
    if (syncing_) {
        return;
    }
    syncing_ = true;
    QItemSelection selection;
    for (const Record* r : session_.documents().selection()) {
        const int row = session_.documents().indexOf(r);
        if (row >= 0) {
            selection.select(model_->index(row, 0),
                             model_->index(row, DocumentTableModel::ColumnCount - 1));
        }
    }
    table_->selectionModel()->select(selection, QItemSelectionModel::ClearAndSelect);
    syncing_ = false;
}

void MainWindow::syncSelectionToList()
{
    if (syncing_) {
        return;
    }
    syncing_ = true;
    std::vector<Record*> selected;
    for (const QModelIndex& index : table_->selectionModel()->selectedRows()) {
        if (Record* r = model_->recordAt(index.row())) {
            selected.push_back(r);
        }
    }
    std::sort(selected.begin(), selected.end(), [this](Record* a, Record* b) {
        return session_.documents().indexOf(a) < session_.documents().indexOf(b);
    });
    session_.documents().setSelection(std::move(selected));
    syncing_ = false;
}

void MainWindow::restoreLayout()
{
    Settings& s = session_.settings();
    if (!restoreGeometry(s.value(kWindowGeometry).toByteArray())) {
        resize(1180, 720);
    }
    restoreState(s.value(kWindowState).toByteArray());
    table_->horizontalHeader()->restoreState(s.value(kDocumentTableHeader).toByteArray());
}

void MainWindow::saveLayout()
{
    Settings& s = session_.settings();
    s.set(kWindowGeometry, saveGeometry());
    s.set(kWindowState, saveState());
    s.set(kDocumentTableHeader, table_->horizontalHeader()->saveState());
}

void MainWindow::closeEvent(QCloseEvent* event)
{
    if (closeGuard_ && !closeGuard_()) {
        event->ignore();
        return;
    }
    saveLayout();
    event->accept();
}

}  // namespace tamo
