#pragma once

#include <QByteArray>
#include <QString>

#include "platform/error.h"

namespace tamo {

inline constexpr auto kLogoDomain = "Tamo.logo";

// The logo setting (`prefsLogo`) holds image data. An image file becomes PNG data, whatever its
// format, since that is what the logo file beside the rendered pages holds and the page renderer
// shows; a file that is no readable image is refused.
Result<QByteArray> logoDataFromFile(const QString& path);

// "PNG image, 360 × 120 pixels, 4 KB", for listings; empty when the data is no image.
QString logoDescription(const QByteArray& data);

}  // namespace tamo
