#include "app/appicon.h"

#include "platform/profile.h"

// Resources compiled into a static library are registered by hand, or the linker drops them.
static void initIconResources()
{
    Q_INIT_RESOURCE(appicon);
}

namespace tamo {

QIcon applicationIcon()
{
    QIcon icon = QIcon::fromTheme(QString::fromLatin1(kApplicationId));
    if (!icon.isNull()) {
        return icon;
    }
    initIconResources();
    const QIcon small(QStringLiteral(":/appicon/app.tamo.Tamo-small.svg"));
    const QIcon full(QStringLiteral(":/appicon/app.tamo.Tamo.svg"));
    for (int size : {16, 22, 24, 32, 48, 64, 96, 128, 256}) {
        icon.addPixmap((size < 32 ? small : full).pixmap(size));
    }
    return icon;
}

}  // namespace tamo
