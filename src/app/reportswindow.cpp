#include "app/reportswindow.h"

#include <QCheckBox>
#include <QDateTimeEdit>
#include <QFormLayout>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QPrintDialog>
#include <QPrinter>
#include <QProgressBar>
#include <QPushButton>
#include <QScreen>
#include <QStackedWidget>
#include <QVBoxLayout>
#include <QWebEngineProfile>
#include <QWebEngineSettings>
#include <QWebEngineUrlRequestInterceptor>
#include <QWebEngineView>

#include "app/popover.h"
#include "model/appsession.h"

namespace tamo {

namespace {

// The report page carries everything it shows; any request it makes is refused.
class SelfContained : public QWebEngineUrlRequestInterceptor {
public:
    using QWebEngineUrlRequestInterceptor::QWebEngineUrlRequestInterceptor;
    void interceptRequest(QWebEngineUrlRequestInfo& info) override
    {
        const QString scheme = info.requestUrl().scheme();
        info.block(scheme != u"data" && scheme != u"about" && scheme != u"blob");
    }
};

QWebEngineView* makeReportView(QWidget* parent)
{
    auto* view = new QWebEngineView(parent);
    // Off the record, so that nothing of the page is kept on disk.
    auto* profile = new QWebEngineProfile(view);
    profile->setUrlRequestInterceptor(new SelfContained(profile));
    auto* page = new QWebEnginePage(profile, view);
    QWebEngineSettings* s = page->settings();
    s->setAttribute(QWebEngineSettings::JavascriptEnabled, true);  // the charts
    s->setAttribute(QWebEngineSettings::JavascriptCanOpenWindows, false);
    s->setAttribute(QWebEngineSettings::LocalContentCanAccessRemoteUrls, false);
    s->setAttribute(QWebEngineSettings::LocalContentCanAccessFileUrls, false);
    s->setAttribute(QWebEngineSettings::PluginsEnabled, false);
    view->setPage(page);
    view->setContextMenuPolicy(Qt::NoContextMenu);
    return view;
}

}  // namespace

ReportsWindow::ReportsWindow(AppSession& session, SalesReport& report, QWidget* parent)
    : QWidget(parent, Qt::Window),
      session_(session),
      report_(report),
      pages_(new QStackedWidget(this)),
      view_(makeReportView(pages_)),
      range_(new QLabel(this)),
      listed_(new QLabel(this)),
      dates_(new QPushButton(QIcon::fromTheme(QStringLiteral("x-office-calendar")),
                             tr("Date Range…"), this)),
      print_(
          new QPushButton(QIcon::fromTheme(QStringLiteral("document-print")), tr("Print…"), this))
{
    setObjectName(QStringLiteral("reportsWindow"));
    setWindowTitle(tr("Sales Report"));
    resize(780, 720);

    auto* refresh =
        new QPushButton(QIcon::fromTheme(QStringLiteral("view-refresh")), tr("Refresh"), this);
    refresh->setObjectName(QStringLiteral("refreshReport"));
    refresh->setShortcut(QKeySequence::Refresh);
    dates_->setObjectName(QStringLiteral("reportDates"));
    print_->setObjectName(QStringLiteral("printReport"));
    print_->setShortcut(QKeySequence::Print);
    range_->setObjectName(QStringLiteral("reportRange"));
    listed_->setObjectName(QStringLiteral("reportListed"));
    listed_->setEnabled(false);  // secondary text
    connect(refresh, &QPushButton::clicked, this, &ReportsWindow::generateReportAction);
    connect(dates_, &QPushButton::clicked, this, &ReportsWindow::showDatePopover);
    connect(print_, &QPushButton::clicked, this, &ReportsWindow::printReport);

    auto* bar = new QHBoxLayout;
    bar->setContentsMargins(10, 8, 10, 8);
    auto* labels = new QVBoxLayout;
    labels->setSpacing(0);
    labels->addWidget(range_);
    labels->addWidget(listed_);
    bar->addLayout(labels, 1);
    bar->addWidget(dates_);
    bar->addWidget(refresh);
    bar->addWidget(print_);

    // While the page is being made: a busy bar where the page will be.
    auto* busy = new QWidget(pages_);
    auto* busyLayout = new QVBoxLayout(busy);
    auto* progress = new QProgressBar(busy);
    progress->setRange(0, 0);
    progress->setMaximumWidth(220);
    progress->setTextVisible(false);
    busyLayout->addStretch();
    busyLayout->addWidget(progress, 0, Qt::AlignCenter);
    busyLayout->addStretch();
    pages_->addWidget(busy);
    pages_->addWidget(view_);

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addLayout(bar);
    layout->addWidget(pages_, 1);

    connect(view_, &QWebEngineView::loadFinished, this, &ReportsWindow::reportShown);
    connect(view_, &QWebEngineView::printFinished, this, [this](bool) { printEnd(); });

    follow_.setSingleShot(true);
    follow_.setInterval(300);
    connect(&follow_, &QTimer::timeout, this, &ReportsWindow::generateReportAction);
    DocumentList& list = session_.documents();
    connect(&list, &DocumentList::arrangementChanged, this, &ReportsWindow::listChanged);
    connect(&list, &DocumentList::documentsChanged, this, &ReportsWindow::listChanged);
    updateRangeLabel();
}

ReportsWindow::~ReportsWindow() = default;

void ReportsWindow::listChanged()
{
    if (isVisible()) {
        follow_.start();  // changes that come together (typing a search) make one report
    }
}

void ReportsWindow::generateReportAction()
{
    follow_.stop();
    generating_ = true;
    // The old page is hidden (and not printed) until the new one is there.
    pages_->setCurrentIndex(0);
    print_->setEnabled(false);
    // The busy state is drawn before the work starts.
    QTimer::singleShot(0, this, &ReportsWindow::generateReport);
}

void ReportsWindow::generateReport()
{
    const SalesReport::Page page = report_.generateReport(report_.rangeFromSettings());
    listed_->setText(tr("Documents of the main list: %1").arg(page.documents));
    updateRangeLabel();
    generating_ = false;
    pages_->setCurrentIndex(1);
    print_->setEnabled(!printer_);
    view_->setHtml(page.html, QUrl());
}

void ReportsWindow::updateRangeLabel()
{
    const auto range = report_.rangeFromSettings();
    if (!range) {
        range_->setText(tr("All dates"));
        return;
    }
    const QLocale locale;
    const auto text = [&](const QDateTime& d) {
        return d.isValid() ? locale.toString(d.toLocalTime(), QLocale::ShortFormat)
                           : QStringLiteral("…");
    };
    range_->setText(tr("%1 to %2").arg(text(range->from), text(range->to)));
}

void ReportsWindow::showDatePopover()
{
    if (popover_ && popover_->isVisible()) {
        popover_->hide();
        return;
    }
    buildDatePopover();
    const Settings& s = session_.settings();
    const QSignalBlocker a(useRange_), b(from_), c(to_);
    useRange_->setChecked(s.boolean(key::useReportDateRange));
    const QDateTime now = session_.clock().now();
    from_->setDateTime(s.date(key::reportDateL).isValid() ? s.date(key::reportDateL) : now);
    to_->setDateTime(s.date(key::reportDateR).isValid() ? s.date(key::reportDateR) : now);
    from_->setEnabled(useRange_->isChecked());
    to_->setEnabled(useRange_->isChecked());
    rangeEdited_ = false;
    popover_->openAt(dates_);
}

void ReportsWindow::buildDatePopover()
{
    if (popover_) {
        return;
    }
    popover_ = new Popover(this);
    popover_->setObjectName(QStringLiteral("reportDatePopover"));
    useRange_ = new QCheckBox(tr("Only documents dated in this range"), popover_);
    from_ = new QDateTimeEdit(popover_);
    to_ = new QDateTimeEdit(popover_);
    for (QDateTimeEdit* edit : {from_, to_}) {
        edit->setCalendarPopup(true);
        edit->setDisplayFormat(QLocale().dateTimeFormat(QLocale::ShortFormat));
    }
    auto* form = new QFormLayout(popover_);
    form->setContentsMargins(12, 12, 12, 12);
    form->addRow(useRange_);
    form->addRow(tr("From:"), from_);
    form->addRow(tr("To:"), to_);

    Settings& s = session_.settings();
    connect(useRange_, &QCheckBox::toggled, this, [this, &s](bool on) {
        s.set(key::useReportDateRange, on);
        from_->setEnabled(on);
        to_->setEnabled(on);
        rangeEdited_ = true;
    });
    connect(from_, &QDateTimeEdit::dateTimeChanged, this, [this, &s](const QDateTime& d) {
        s.set(key::reportDateL, d);
        rangeEdited_ = true;
    });
    connect(to_, &QDateTimeEdit::dateTimeChanged, this, [this, &s](const QDateTime& d) {
        s.set(key::reportDateR, d);
        rangeEdited_ = true;
    });
    // The report follows the range once it has been chosen.
    connect(popover_, &Popover::closed, this, [this] {
        updateRangeLabel();
        if (rangeEdited_) {
            rangeEdited_ = false;
            generateReportAction();
        }
    });
}

void ReportsWindow::printReport()
{
    if (printer_) {
        return;  // a print is still running
    }
    print_->setEnabled(false);
    printer_ = std::make_unique<QPrinter>(QPrinter::HighResolution);
    printer_->setDocName(windowTitle());
    // The page is laid out at the printable width and not centred, inside the printer's
    // imageable area (reported from the paper's bottom left corner) with the report's margins.
    QPageLayout layout = printer_->pageLayout();
    layout.setUnits(QPageLayout::Point);
    const QSizeF paper = layout.fullRectPoints().size();
    const QMarginsF least = layout.minimumMargins();
    const QRectF imageable(least.left(), least.bottom(),
                           paper.width() - least.left() - least.right(),
                           paper.height() - least.top() - least.bottom());
    printer_->setPageMargins(reportPrintMargins(paper, imageable), QPageLayout::Point);
    QPrintDialog dialog(printer_.get(), this);
    dialog.setWindowTitle(tr("Print Sales Report"));
    if (dialog.exec() != QDialog::Accepted) {
        printEnd();
        return;
    }
    view_->print(printer_.get());
}

void ReportsWindow::printEnd()
{
    printer_.reset();
    print_->setEnabled(!generating_);
}

}  // namespace tamo
