#include "pdf/thumbnailpdf.h"

#include <QBuffer>
#include <QEventLoop>
#include <QPainter>
#include <QPdfDocument>
#include <QTimer>

namespace tamo {

QImage ThumbnailPDF::thumbnailFromData(const QByteArray& data, QSize imageSize, int indexPage)
{
    QBuffer buffer;
    buffer.setData(data);
    buffer.open(QIODevice::ReadOnly);
    QPdfDocument document;
    document.load(&buffer);
    if (document.status() == QPdfDocument::Status::Loading) {
        QEventLoop loop;
        QObject::connect(&document, &QPdfDocument::statusChanged, &loop, &QEventLoop::quit);
        loop.exec();
    }
    return thumbnailFromDocument(document, imageSize, indexPage);
}

QImage ThumbnailPDF::thumbnailFromDocument(QPdfDocument& document, QSize imageSize, int indexPage)
{
    if (document.status() != QPdfDocument::Status::Ready || indexPage < 0 ||
        indexPage >= document.pageCount()) {
        return {};
    }
    const QSize size =
        document.pagePointSize(indexPage).toSize().scaled(imageSize, Qt::KeepAspectRatio);
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::white);
    QPainter(&image).drawImage(0, 0, document.render(indexPage, size));
    return image;
}

void ThumbnailPDF::startWithCompletionHandler(const QByteArray& data, QSize imageSize,
                                              std::function<void(const QImage&)> completion)
{
    QTimer::singleShot(0, [data, imageSize, completion = std::move(completion)] {
        completion(thumbnailFromData(data, imageSize));
    });
}

}  // namespace tamo
