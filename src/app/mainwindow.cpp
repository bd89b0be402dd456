#include "app/mainwindow.h"

#include <QAction>
#include <QApplication>
#include <QCloseEvent>
#include <QHeaderView>
#include <QItemSelectionModel>
#include <QLabel>
#include <QLineEdit>
#include <QScreen>
#include <QSplitter>
#include <QStatusBar>
#include <QTableView>

#include "app/documentoperations.h"
#include "app/documenttable.h"
#include "app/documenttablemodel.h"
#include "app/editor/documenteditor.h"
#include "calc/numberformat.h"
#include "calc/totals.h"
#include "model/appsession.h"

// Resources compiled into a static library are registered by hand, or the linker drops them.
static void initWindowResources()
{
    Q_INIT_RESOURCE(stamps);
    Q_INIT_RESOURCE(icons);
}

namespace tamo {

namespace {
// Window layout, remembered by the interface only.
constexpr SettingKey kWindowGeometry{"windowGeometry", SettingType::Object};
constexpr SettingKey kWindowState{"windowState", SettingType::Object};
constexpr SettingKey kDocumentTableHeader{"documentTableHeader", SettingType::Object};
constexpr SettingKey kSplitterState{"mainSplitter", SettingType::Object};
}  // namespace

MainWindow::MainWindow(AppSession& session, DocumentOperations& operations, QWidget* parent)
    : MainWindow(session, nullptr, &operations, parent)
{
}

MainWindow::MainWindow(AppSession& session, QWidget* parent)
    : MainWindow(session, std::make_unique<DocumentOperations>(session), nullptr, parent)
{
}

MainWindow::MainWindow(AppSession& session, std::unique_ptr<DocumentOperations> own,
                       DocumentOperations* operations, QWidget* parent)
    : QMainWindow(parent),
      session_((initWindowResources(), session)),
      ownOperations_(std::move(own)),
      operations_(operations ? *operations : *ownOperations_),
      model_(new DocumentTableModel(session.documents(), this)),
      table_(new DocumentTable(this)),
      search_(new QLineEdit(this)),
      editor_(new DocumentEditor(session, operations_, this)),
      summary_(new QLabel(this)),
      readOnlyNotice_(new QLabel(this))
{
    setUnifiedTitleAndToolBarOnMac(true);

    table_->setObjectName(QStringLiteral("documentTable"));
    table_->setModel(model_);
    table_->setSelectionBehavior(QAbstractItemView::SelectRows);
    table_->setSelectionMode(QAbstractItemView::ExtendedSelection);
    table_->setSortingEnabled(true);
    table_->sortByColumn(DocumentTableModel::Date, Qt::DescendingOrder);
    table_->setShowGrid(false);
    table_->setAlternatingRowColors(true);
    table_->setWordWrap(false);
    table_->setFrameShape(QFrame::NoFrame);
    table_->verticalHeader()->hide();
    table_->verticalHeader()->setDefaultSectionSize(table_->fontMetrics().height() + 10);
    QHeaderView* header = table_->horizontalHeader();
    header->setHighlightSections(false);
    header->setSectionResizeMode(DocumentTableModel::Stamp, QHeaderView::Fixed);
    header->resizeSection(DocumentTableModel::Stamp, 30);
    for (auto [column, width] : {std::pair{DocumentTableModel::Number, 104},
                                 {DocumentTableModel::Title, 60},
                                 {DocumentTableModel::Date, 84},
                                 {DocumentTableModel::Due, 84},
                                 {DocumentTableModel::Amount, 88},
                                 {DocumentTableModel::Currency, 62}}) {
        header->resizeSection(column, width);
    }
    header->setSectionResizeMode(DocumentTableModel::Client, QHeaderView::Stretch);
    table_->setIconSize(QSize(18, 18));

    search_->setObjectName(QStringLiteral("search"));
    search_->setPlaceholderText(tr("Search"));
    search_->setClearButtonEnabled(true);
    search_->setMaximumWidth(240);
    connect(search_, &QLineEdit::textChanged, this,
            [this](const QString& text) { session_.documents().setSearchText(text); });

    auto* splitter = new QSplitter(this);
    splitter->setObjectName(QStringLiteral("mainSplitter"));
    splitter->addWidget(table_);
    splitter->addWidget(editor_);
    splitter->setStretchFactor(0, 1);
    splitter->setStretchFactor(1, 1);
    splitter->setSizes({680, 600});
    splitter->setChildrenCollapsible(false);
    setCentralWidget(splitter);
    statusBar()->addPermanentWidget(summary_);
    readOnlyNotice_->setObjectName(QStringLiteral("readOnlyNotice"));
    readOnlyNotice_->setVisible(false);
    statusBar()->addWidget(readOnlyNotice_, 1);

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
        updateWindowTitle();
        updateActions();
    });
    connect(&list, &DocumentList::documentsChanged, this, [this] {
        updateStatistics();
        updateWindowTitle();
        updateActions();  // a converted quote is deleted as an invoice
    });
    connect(&session_, &AppSession::statisticsChanged, this, &MainWindow::updateSummary);
    connect(table_->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &MainWindow::syncSelectionToList);
    connect(&session_, &AppSession::contextChanged, this, &MainWindow::contextChanged);

    DocumentLifecycle& lifecycle = operations_.lifecycle;
    connect(&lifecycle, &DocumentLifecycle::documentCreated, editor_,
            &DocumentEditor::showClientBlock);
    connect(&lifecycle, &DocumentLifecycle::dispatchDateSet, editor_,
            &DocumentEditor::focusDispatchNumber);
    connect(&list, &DocumentList::filterChanged, this, &MainWindow::updateFilterButton);
    // The list may clear its search text itself (a new document is never hidden).
    connect(&list, &DocumentList::searchTextChanged, search_, [this](const QString& text) {
        if (search_->text() != text) {
            search_->setText(text);
        }
    });
    contextChanged();
}

MainWindow::~MainWindow() = default;

void MainWindow::contextChanged()
{
    if (Context* context = session_.context()) {
        connect(context, &Context::undoStateChanged, this, &MainWindow::updateActions,
                Qt::UniqueConnection);
        connect(context, &Context::didSave, this, &MainWindow::updateActions, Qt::UniqueConnection);
    }
    // A store that may only be read is said so where the person looks: the title and the status
    // bar, which tells why.
    const bool readOnly = session_.isReadOnly();
    readOnlyNotice_->setVisible(readOnly);
    readOnlyNotice_->setText(readOnly ? tr("Read-only: %1").arg(session_.readOnlyReason())
                                      : QString());
    readOnlyNotice_->setToolTip(readOnlyNotice_->text());
    updateStatistics();
    updateSummary();
    updateWindowTitle();
    updateActions();
}

void MainWindow::updateWindowTitle()
{
    // The document's title and number; without one the desktop shows the application's name.
    const Record* d = session_.documents().current();
    QString title;
    if (d && !d->isDeleted()) {
        title = QStringList{d->string("title"), d->string("number")}.join(u' ').trimmed();
    }
    if (session_.isReadOnly()) {
        title = tr("%1 (read-only)").arg(title.isEmpty() ? QStringLiteral("Tamo") : title);
    }
    setWindowTitle(title.isEmpty() ? QString() : title + QStringLiteral("[*]"));
}

void MainWindow::updateStatistics()
{
    Totals(session_).refreshStatistics();
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
    if (!selection.isEmpty()) {
        table_->scrollTo(selection.first().topLeft());
    }
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
        resize(1280, 780);
    }
    keepOnScreen();
    restoreState(s.value(kWindowState).toByteArray());
    table_->horizontalHeader()->restoreState(s.value(kDocumentTableHeader).toByteArray());
    if (auto* splitter = qobject_cast<QSplitter*>(centralWidget())) {
        splitter->restoreState(s.value(kSplitterState).toByteArray());
    }
}

void MainWindow::keepOnScreen()
{
    // Geometry saved on another screen, or at another scale, may not fit this one.
    const QScreen* screen = QGuiApplication::screenAt(geometry().center());
    if (!screen) {
        screen = this->screen();
    }
    const QRect available = screen->availableGeometry();
    const bool maximized = windowState() & Qt::WindowMaximized;
    QRect normal = maximized ? normalGeometry() : geometry();
    if (available.contains(normal)) {
        return;
    }
    normal.setSize(normal.size().boundedTo(available.size()));
    normal.moveTopLeft(QPoint(
        std::clamp(normal.left(), available.left(), available.right() + 1 - normal.width()),
        std::clamp(normal.top(), available.top(), available.bottom() + 1 - normal.height())));
    if (maximized) {
        setWindowState(windowState() & ~Qt::WindowMaximized);
    }
    setGeometry(normal);
    if (maximized) {
        setWindowState(windowState() | Qt::WindowMaximized);
    }
}

void MainWindow::saveLayout()
{
    Settings& s = session_.settings();
    s.set(kWindowGeometry, saveGeometry());
    s.set(kWindowState, saveState());
    s.set(kDocumentTableHeader, table_->horizontalHeader()->saveState());
    if (auto* splitter = qobject_cast<QSplitter*>(centralWidget())) {
        s.set(kSplitterState, splitter->saveState());
    }
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
