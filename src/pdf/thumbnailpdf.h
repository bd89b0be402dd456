#pragma once

#include <QByteArray>
#include <QImage>
#include <QSize>
#include <functional>

class QPdfDocument;

namespace tamo {

// A picture of one page of a PDF, scaled to fit `imageSize` with the page's proportions kept.
// An image of no size when the data is no PDF or has no such page.
class ThumbnailPDF {
public:
    static QImage thumbnailFromData(const QByteArray& data, QSize imageSize, int indexPage);
    // The same from a document already open; what the page leaves unpainted is white paper.
    static QImage thumbnailFromDocument(QPdfDocument& document, QSize imageSize, int indexPage);
    static QImage thumbnailFromData(const QByteArray& data, QSize imageSize)
    {
        return thumbnailFromData(data, imageSize, 0);
    }
    // The same, delivered to `completion` from the event loop, so that the caller goes on first.
    static void startWithCompletionHandler(const QByteArray& data, QSize imageSize,
                                           std::function<void(const QImage&)> completion);
};

}  // namespace tamo
