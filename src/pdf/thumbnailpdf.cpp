#include "pdf/thumbnailpdf.h"

#include <QBuffer>
#include <QEventLoop>
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
    if (document.status() != QPdfDocument::Status::Ready || indexPage < 0 ||
        indexPage >= document.pageCount()) {
        return {};
    }
    const QSize size =
        document.pagePointSize(indexPage).toSize().scaled(imageSize, Qt::KeepAspectRatio);
    return document.render(indexPage, size);
}

void ThumbnailPDF::startWithCompletionHandler(const QByteArray& data, QSize imageSize,
                                              std::function<void(const QImage&)> completion)
{
    QTimer::singleShot(0, [data, imageSize, completion = std::move(completion)] {
        completion(thumbnailFromData(data, imageSize));
    });
}

}  // namespace tamo
