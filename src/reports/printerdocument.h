#pragma once

#include <QByteArray>
#include <QSizeF>
#include <memory>
#include <vector>

#include "reports/printertextview.h"

class QPagedPaintDevice;
class QPainter;
class QThreadPool;

namespace tamo {

class PrinterDocument;

// One block of styled text with its margins, as the caller describes it (in points).
struct PrinterItem {
    StyledText attributedString;
    qreal leftMargin = 0;
    qreal rightMargin = 0;
    qreal topMargin = 0;     // gap above the block; negative overlaps the block above
    qreal bottomMargin = 0;  // added inside the frame below the text; may be negative
    qreal horizontalInset = 0;
    qreal verticalInset = 0;
    bool pageBreakBefore = false;
    std::optional<QColor> backgroundColor;
};

// The drawing surface of a page: it draws nothing of its own and hosts the text views, with y
// growing downwards from the top edge.
class PrinterView {
public:
    explicit PrinterView(const QRectF& frame) : frame_(frame) {}

    QRectF frame() const { return frame_; }
    const std::vector<std::unique_ptr<PrinterTextView>>& subviews() const { return subviews_; }
    PrinterTextView* addSubview(std::unique_ptr<PrinterTextView> view);
    void draw(QPainter& painter) const;

private:
    QRectF frame_;
    std::vector<std::unique_ptr<PrinterTextView>> subviews_;
};

// One page: its view, its margins and its own copies of the document's header and footer.
class PrinterPage {
public:
    explicit PrinterPage(const QSizeF& pageSize) : view_(QRectF(QPointF(0, 0), pageSize)) {}

    PrinterView& view() { return view_; }
    const PrinterView& view() const { return view_; }
    qreal topMargin = 0;
    qreal bottomMargin = 0;
    PrinterTextView* headerView() const { return header_; }
    PrinterTextView* footerView() const { return footer_; }

    // Places as many of the leading `items` as fit and returns the rest (empty when all fit). An
    // item marked to start a new page ends the page before it, even at its head (that page
    // stays empty). An item taller than the page is placed alone and clipped.
    std::vector<PrinterItem*> fillWithItems(const std::vector<PrinterItem*>& items,
                                            PrinterDocument& document);
    void substituteVariables(const PrinterVariables& variables);
    void draw(QPainter& painter) const { view_.draw(painter); }

private:
    PrinterView view_;
    PrinterTextView* header_ = nullptr;
    PrinterTextView* footer_ = nullptr;
};

// The items split into pages. Layout runs once: the pages are built, then numbered through the
// variables "pageNumber" and "pageCount" of their views.
class PrinterDocument {
public:
    explicit PrinterDocument(std::vector<PrinterItem> items);
    ~PrinterDocument();

    std::vector<PrinterItem>& printerItems() { return items_; }
    const std::vector<std::unique_ptr<PrinterPage>>& pages() const { return pages_; }
    qreal topMargin = 0;
    qreal bottomMargin = 0;
    QSizeF pageSize{595, 842};  // A4 portrait
    std::unique_ptr<PrinterTextView> headerView;
    std::unique_ptr<PrinterTextView> footerView;
    bool layouted() const { return layouted_; }

    void layout();
    void build();
    void paginate();
    void substituteVariables(const PrinterVariables& variables);
    // The pages as one PDF, written afresh on every call.
    QByteArray PDFDocument();
    // Draws the pages onto a paged device, one page per sheet, at their own size and centred in
    // the sheet's printable area; false when the device cannot be painted on.
    bool drawPages(QPagedPaintDevice& device);

    // The view of `item` laid out at its width on a page of this document, at y 0 and with its
    // final height. The views are made ahead, several at once; a page that cannot place one
    // hands it back for the next page.
    std::unique_ptr<PrinterTextView> takeItemView(PrinterItem& item);
    void returnItemView(PrinterItem& item, std::unique_ptr<PrinterTextView> view);

private:
    void prepareItemViews(size_t from);
    void makeItemViews(size_t from, size_t end, bool here);
    size_t indexOf(const PrinterItem& item) const { return size_t(&item - items_.data()); }

    std::vector<PrinterItem> items_;
    std::vector<std::unique_ptr<PrinterPage>> pages_;
    std::vector<std::unique_ptr<PrinterTextView>> prepared_;
    size_t readyEnd_ = 0;     // views before this index are made
    size_t inFlightEnd_ = 0;  // views up to this index are being made by the workers
    std::unique_ptr<QThreadPool> workers_;
    bool layouted_ = false;
};

// The frame of an item's view on a page of `pageWidth`, at y 0, before its height is known.
std::unique_ptr<PrinterTextView> makeItemView(const PrinterItem& item, qreal pageWidth);

}  // namespace tamo
