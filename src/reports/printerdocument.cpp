#include "reports/printerdocument.h"

#include <QBuffer>
#include <QPagedPaintDevice>
#include <QPainter>
#include <QPdfWriter>
#include <QThread>
#include <QThreadPool>
#include <atomic>

namespace tamo {

PrinterTextView* PrinterView::addSubview(std::unique_ptr<PrinterTextView> view)
{
    subviews_.push_back(std::move(view));
    return subviews_.back().get();
}

void PrinterView::draw(QPainter& painter) const
{
    painter.save();
    painter.setClipRect(frame_, Qt::IntersectClip);
    for (const auto& view : subviews_) {
        view->draw(painter);
    }
    painter.restore();
}

std::unique_ptr<PrinterTextView> makeItemView(const PrinterItem& item, qreal pageWidth)
{
    const qreal width = pageWidth - (item.leftMargin + item.rightMargin);
    return std::make_unique<PrinterTextView>(
        QRectF(item.leftMargin, 0, width, 200), item.attributedString,
        QSizeF(item.horizontalInset, item.verticalInset), item.backgroundColor);
}

namespace {

// Lays the text out at the view's width and gives the frame its height.
void fitItemView(PrinterTextView& view, const PrinterItem& item)
{
    const QRectF f = view.frame();
    const qreal height = view.usedTextHeight() + item.bottomMargin + 2 * item.verticalInset;
    view.setFrame(QRectF(f.x(), f.y(), f.width(), height));
}

}  // namespace

std::vector<PrinterItem*> PrinterPage::fillWithItems(const std::vector<PrinterItem*>& items,
                                                     PrinterDocument& document)
{
    const qreal pageHeight = view_.frame().height();
    if (document.headerView) {
        header_ = view_.addSubview(document.headerView->copy());
    }
    if (document.footerView) {
        auto footer = document.footerView->copy();
        const QRectF f = footer->frame();
        footer->setFrame(QRectF(f.x(), pageHeight - f.height(), f.width(), f.height()));
        footer_ = view_.addSubview(std::move(footer));
    }
    qreal y = topMargin;
    bool placedAny = false;
    for (size_t i = 0; i < items.size(); ++i) {
        PrinterItem& item = *items[i];
        if (item.pageBreakBefore) {
            item.pageBreakBefore = false;
            return {items.begin() + qsizetype(i), items.end()};
        }
        auto view = document.takeItemView(item);
        const QRectF f = view->frame();
        const qreal top = y + item.topMargin;
        const qreal limit = pageHeight - bottomMargin;
        if (top + f.height() > limit) {
            if (placedAny) {
                document.returnItemView(item, std::move(view));
                return {items.begin() + qsizetype(i), items.end()};
            }
            // Taller than any page: alone on this one and cut at its bottom margin, since no
            // later page would hold it either.
            view->setFrame(QRectF(f.x(), top, f.width(), std::max<qreal>(0, limit - top)));
            view_.addSubview(std::move(view));
            return {items.begin() + qsizetype(i) + 1, items.end()};
        }
        view->setFrame(QRectF(f.x(), top, f.width(), f.height()));
        view_.addSubview(std::move(view));
        y = y + f.height() + item.topMargin;
        placedAny = true;
    }
    return {};
}

void PrinterPage::substituteVariables(const PrinterVariables& variables)
{
    for (const auto& view : view_.subviews()) {
        view->substituteVariables(variables);
    }
}

PrinterDocument::PrinterDocument(std::vector<PrinterItem> items)
    : items_(std::move(items)), workers_(std::make_unique<QThreadPool>())
{
    workers_->setMaxThreadCount(std::max(0, QThread::idealThreadCount() - 1));
}

PrinterDocument::~PrinterDocument()
{
    workers_->waitForDone();
}

void PrinterDocument::layout()
{
    if (layouted_) {
        return;
    }
    build();
    paginate();
    layouted_ = true;
}

void PrinterDocument::build()
{
    prepared_.clear();
    prepared_.resize(items_.size());
    readyEnd_ = 0;
    inFlightEnd_ = 0;
    std::vector<PrinterItem*> remaining;
    remaining.reserve(items_.size());
    for (PrinterItem& item : items_) {
        remaining.push_back(&item);
    }
    while (!remaining.empty()) {
        auto page = std::make_unique<PrinterPage>(pageSize);
        page->topMargin = topMargin;
        page->bottomMargin = bottomMargin;
        remaining = page->fillWithItems(remaining, *this);
        pages_.push_back(std::move(page));
    }
    workers_->waitForDone();
    prepared_.clear();
}

void PrinterDocument::paginate()
{
    const QString count = QString::number(pages_.size());
    for (size_t k = 0; k < pages_.size(); ++k) {
        pages_[k]->substituteVariables({{QStringLiteral("pageCount"), count},
                                        {QStringLiteral("pageNumber"), QString::number(k + 1)}});
    }
}

void PrinterDocument::substituteVariables(const PrinterVariables& variables)
{
    layout();
    for (const auto& page : pages_) {
        page->substituteVariables(variables);
    }
}

void PrinterDocument::makeItemViews(size_t from, size_t end, bool here)
{
    // Reading the blocks' HTML needs no fonts, so it can run on other threads. Laying them out
    // uses the fonts of the thread that does it, which end with a worker; that stays here.
    auto next = std::make_shared<std::atomic<size_t>>(from);
    const auto work = [this, next, end] {
        for (size_t i = (*next)++; i < end; i = (*next)++) {
            auto view = makeItemView(items_[i], pageSize.width());
            view->moveToMainThread();
            prepared_[i] = std::move(view);
        }
    };
    for (int i = 0; i < workers_->maxThreadCount(); ++i) {
        workers_->start(work);
    }
    if (here) {
        work();
        workers_->waitForDone();
    }
}

void PrinterDocument::prepareItemViews(size_t from)
{
    // While this thread lays one batch out, the workers read the next.
    constexpr size_t kBatch = 256;
    workers_->waitForDone();
    readyEnd_ = inFlightEnd_;
    if (from >= readyEnd_) {
        readyEnd_ = std::min(items_.size(), from + kBatch);
        makeItemViews(from, readyEnd_, true);
    }
    inFlightEnd_ = std::min(items_.size(), readyEnd_ + kBatch);
    if (inFlightEnd_ > readyEnd_ && workers_->maxThreadCount() > 0) {
        makeItemViews(readyEnd_, inFlightEnd_, false);
    } else {
        inFlightEnd_ = readyEnd_;
    }
}

std::unique_ptr<PrinterTextView> PrinterDocument::takeItemView(PrinterItem& item)
{
    const size_t i = indexOf(item);
    std::unique_ptr<PrinterTextView> view;
    if (i < prepared_.size()) {
        if (i >= readyEnd_) {
            prepareItemViews(i);
        }
        view = std::move(prepared_[i]);
    }
    if (!view) {
        view = makeItemView(item, pageSize.width());
    }
    if (!view->isFrozen()) {
        fitItemView(*view, item);
        view->freeze();  // nothing changes it any more, unless it holds a tag
    }
    return view;
}

void PrinterDocument::returnItemView(PrinterItem& item, std::unique_ptr<PrinterTextView> view)
{
    const size_t i = indexOf(item);
    if (i < prepared_.size()) {
        prepared_[i] = std::move(view);
    }
}

bool PrinterDocument::drawPages(QPagedPaintDevice& device)
{
    layout();
    QPainter painter;
    if (!painter.begin(&device)) {
        return false;
    }
    // Points on the page, whatever the device's resolution.
    const qreal scale = device.logicalDpiX() / 72.0;
    const QSizeF area(device.width() / scale, device.height() / scale);
    const QPointF offset((area.width() - pageSize.width()) / 2,
                         (area.height() - pageSize.height()) / 2);
    for (size_t k = 0; k < pages_.size(); ++k) {
        if (k > 0 && !device.newPage()) {
            return false;
        }
        painter.save();
        painter.scale(scale, scale);
        painter.translate(offset);
        pages_[k]->draw(painter);
        painter.restore();
    }
    return painter.end();
}

QByteArray PrinterDocument::PDFDocument()
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    {
        QPdfWriter writer(&buffer);
        writer.setCreator(QStringLiteral("Tamo"));
        writer.setResolution(72);
        writer.setPageSize(QPageSize(pageSize, QPageSize::Point));
        writer.setPageMargins(QMarginsF(0, 0, 0, 0), QPageLayout::Point);
        if (!drawPages(writer)) {
            return {};
        }
    }
    return bytes;
}

}  // namespace tamo
