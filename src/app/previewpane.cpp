#include "app/previewpane.h"

#include <QHBoxLayout>
#include <QListWidget>
#include <QPdfDocument>
#include <QPdfPageNavigator>
#include <QPdfView>

#include "pdf/thumbnailpdf.h"

namespace tamo {

namespace {
constexpr int kThumbnailWidth = 72;
}  // namespace

PreviewPane::PreviewPane(QWidget* parent)
    : QWidget(parent),
      document_(new QPdfDocument(this)),
      view_(new QPdfView(this)),
      thumbnails_(new QListWidget(this))
{
    setObjectName(QStringLiteral("previewPane"));
    view_->setObjectName(QStringLiteral("previewView"));
    view_->setDocument(document_);
    view_->setPageMode(QPdfView::PageMode::SinglePage);
    view_->setZoomMode(QPdfView::ZoomMode::FitToWidth);
    view_->setDocumentMargins(QMargins(8, 8, 8, 8));

    thumbnails_->setObjectName(QStringLiteral("previewThumbnails"));
    thumbnails_->setViewMode(QListView::IconMode);
    thumbnails_->setFlow(QListView::TopToBottom);
    thumbnails_->setMovement(QListView::Static);
    thumbnails_->setIconSize(QSize(kThumbnailWidth, kThumbnailWidth * 3 / 2));
    thumbnails_->setFixedWidth(kThumbnailWidth + 28);
    thumbnails_->setSpacing(4);
    connect(thumbnails_, &QListWidget::currentRowChanged, this, [this](int row) {
        if (row >= 0 && row != view_->pageNavigator()->currentPage()) {
            view_->pageNavigator()->jump(row, {}, view_->pageNavigator()->currentZoom());
        }
    });
    connect(view_->pageNavigator(), &QPdfPageNavigator::currentPageChanged, thumbnails_,
            [this](int page) { thumbnails_->setCurrentRow(page); });

    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(thumbnails_);
    layout->addWidget(view_, 1);
}

int PreviewPane::pageCount() const
{
    return document_->pageCount();
}

void PreviewPane::showFile(const QString& path)
{
    const int page = view_->pageNavigator()->currentPage();
    document_->load(path);
    fillThumbnails();
    if (page > 0 && page < document_->pageCount()) {
        view_->pageNavigator()->jump(page, {}, view_->pageNavigator()->currentZoom());
    }
}

void PreviewPane::clear()
{
    document_->close();
    fillThumbnails();
}

void PreviewPane::fillThumbnails()
{
    thumbnails_->clear();
    for (int page = 0; page < document_->pageCount(); ++page) {
        const QImage image =
            ThumbnailPDF::thumbnailFromDocument(*document_, thumbnails_->iconSize(), page);
        thumbnails_->addItem(
            new QListWidgetItem(QIcon(QPixmap::fromImage(image)), QString::number(page + 1)));
    }
    thumbnails_->setVisible(document_->pageCount() > 1);
}

}  // namespace tamo
