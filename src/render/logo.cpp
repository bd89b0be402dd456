#include "render/logo.h"
#include "platform/translations.h"

#include <QBuffer>
#include <QCoreApplication>
#include <QFileInfo>
#include <QImage>
#include <QImageReader>
#include <QLocale>

namespace tamo {

namespace {

// A logo is small; a file far beyond this is a photo or no image at all.
constexpr qint64 kMaxLogoFile = qint64(20) << 20;

}  // namespace

Result<QByteArray> logoDataFromFile(const QString& path)
{
    const QString name = QFileInfo(path).fileName();
    const auto refused = [&](const QString& reason) {
        return fail(QString::fromLatin1(kLogoDomain), 1,
                    tr("“%1” cannot be used as the logo.").arg(name), reason);
    };
    if (QFileInfo(path).size() > kMaxLogoFile) {
        return refused(tr("The file is larger than 20 MB."));
    }
    QImageReader reader(path);
    const QImage image = reader.read();
    if (image.isNull()) {
        return refused(reader.error() == QImageReader::FileNotFoundError
                           ? tr("The file cannot be opened.")
                           : tr("It is no image Tamo can read (PNG, JPEG, GIF, BMP, SVG or "
                                "WebP)."));
    }
    QByteArray png;
    QBuffer out(&png);
    out.open(QIODevice::WriteOnly);
    if (!image.save(&out, "PNG")) {
        return refused(tr("The image could not be converted to PNG."));
    }
    return png;
}

QString logoDescription(const QByteArray& data)
{
    QBuffer buffer;
    buffer.setData(data);
    QImageReader reader(&buffer);
    const QSize size = reader.size();
    if (data.isEmpty() || !size.isValid()) {
        return {};
    }
    return tr("%1 image, %2 × %3 pixels, %4")
        .arg(QString::fromLatin1(reader.format()).toUpper())
        .arg(size.width())
        .arg(size.height())
        .arg(QLocale().formattedDataSize(data.size()));
}

}  // namespace tamo
